// SPDX-License-Identifier: MIT
#include "pdf/pdf_text.h"

#include <QByteArray>
#include <QColor>
#include <QPointF>
#include <QString>

#include <gtest/gtest.h>
#include <limits>

namespace tovangl {
namespace {

struct CNumberCase
{
    double value;
    const char* text;
};

class PdfNumber : public testing::TestWithParam<CNumberCase>
{};

TEST_P(PdfNumber, HasTwoDecimalsWithoutNeedlessZeros)
{
    EXPECT_EQ(pdfNumber(GetParam().value), GetParam().text);
}

constexpr double kInfinity = std::numeric_limits<double>::infinity();

INSTANTIATE_TEST_SUITE_P(
    Numbers, PdfNumber,
    testing::Values(CNumberCase{0, "0"}, CNumberCase{-0.0, "0"}, CNumberCase{-0.001, "0"},
                    CNumberCase{7, "7"}, CNumberCase{100, "100"}, CNumberCase{0.5, "0.5"},
                    CNumberCase{0.05, "0.05"}, CNumberCase{-1.25, "-1.25"}, CNumberCase{2.999, "3"},
                    CNumberCase{1e300, "1000000"}, CNumberCase{-kInfinity, "-1000000"},
                    CNumberCase{std::numeric_limits<double>::quiet_NaN(), "0"}));

TEST(PdfNumber, HasAsManyDecimalsAsAreAskedFor)
{
    EXPECT_EQ(pdfNumber(1.23456, 4), "1.2346");
    EXPECT_EQ(pdfNumber(0.00001, 5), "0.00001");
}

TEST(PdfText, APointIsTwoNumbers)
{
    EXPECT_EQ(pdfPoint(QPointF(1.5, -2)), "1.5 -2 ");
}

TEST(PdfText, AColourIsItsSharesOfOne)
{
    EXPECT_EQ(pdfColor(QColor(255, 0, 51)), "1 0 0.2 ");
}

TEST(PdfText, WordsAreWrittenAsTheyAre)
{
    EXPECT_EQ(pdfString(QStringLiteral("de-AT 1")), "(de-AT 1)");
    EXPECT_EQ(pdfString(QString()), "()");
}

TEST(PdfText, AnyOtherTextIsNothingButDigits)
{
    EXPECT_EQ(pdfString(QStringLiteral("A)\n")), "<FEFF00410029000A>");
    EXPECT_EQ(pdfString(QStringLiteral("(")), "<FEFF0028>");
    EXPECT_EQ(pdfString(QStringLiteral(")")), "<FEFF0029>");
    EXPECT_EQ(pdfString(QStringLiteral("\\")), "<FEFF005C>");
}

TEST(PdfText, ACharacterBeyondSixteenBitsIsAPair)
{
    EXPECT_EQ(pdfString(QString::fromUtf8("\xf0\x9f\x98\x80")), "<FEFFD83DDE00>");
}

TEST(PdfText, ANameHasLettersAndDigitsAlone)
{
    EXPECT_EQ(pdfName(QByteArray("\0D\0e j/a-V(u)1", 15)), "DejaVu1");
}

TEST(PdfText, AReferenceHasTheObjectsNumber)
{
    EXPECT_EQ(pdfReference(12), "12 0 R");
}

} // namespace
} // namespace tovangl
