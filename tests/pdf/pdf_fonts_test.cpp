// SPDX-License-Identifier: MIT
// PDF files in fonts that must not be part of them, or cannot. Fonts stay for the process, so that
// each test has its own family.
#include "pdf/pdf_reader.h"
#include "pdf/shape_comparison.h"
#include "support/CAnyChart.h"

#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <iterator>

namespace tovangl {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

constexpr int kWidth = 300; // points
constexpr int kHeight = 200;
constexpr const char* kCaption = "Jagd 27";

// Four bytes.
std::size_t numberAt(const std::string& bytes, std::size_t offset)
{
    std::size_t value = 0;
    for (std::size_t i = 0; i < 4; ++i)
        value = value << 8 | static_cast<unsigned char>(bytes.at(offset + i));
    return value;
}

// A font file that a test changes.
class CChangedFont
{
public:
    explicit CChangedFont(const std::string& name)
    {
        std::ifstream file("/usr/share/fonts/truetype/dejavu/" + name, std::ios::binary);
        m_bytes.assign(std::istreambuf_iterator<char>(file), {});
    }

    /// @param family  as long as the old name
    void rename(const std::string& from, const std::string& family)
    {
        const std::string old = inUtf16(from);
        for (std::size_t at = m_bytes.find(old); at != std::string::npos;
             at = m_bytes.find(old, at + 1))
            m_bytes.replace(at, old.size(), inUtf16(family));
    }
    void setByte(const std::string& table, std::size_t offset, char value)
    {
        m_bytes.at(number(entryOf(table) + 8) + offset) = value;
    }
    void clear(const std::string& table)
    {
        const std::size_t entry = entryOf(table);
        const std::size_t length = number(entry + 12);
        m_bytes.replace(number(entry + 8), length, std::string(length, '\0'));
    }
    void add() const
    {
        const auto* bytes = reinterpret_cast<const unsigned char*>(m_bytes.data());
        EXPECT_THAT(addFont(bytes, m_bytes.size()), Not(IsEmpty()));
    }

private:
    static std::string inUtf16(const std::string& text)
    {
        std::string utf16;
        for (const char letter : text)
            utf16 += {'\0', letter};
        return utf16;
    }
    [[nodiscard]] std::size_t entryOf(const std::string& table) const
    {
        constexpr std::size_t kDirectory = 12;
        return m_bytes.find(table, kDirectory);
    }
    [[nodiscard]] std::size_t number(std::size_t offset) const { return numberAt(m_bytes, offset); }

    std::string m_bytes;
};

std::string pageIn(const std::string& family)
{
    CAnyChart chart(ChartKind::HorizontalBars);
    chart.graph().setFont(family, 11);
    chart.addItem(1234, kCaption);
    const std::string pdf = chart.createPdf(kWidth, kHeight).bytes();
    EXPECT_EQ(chart.graph().problem(), Problem::None);
    EXPECT_NO_THROW(static_cast<void>(readPdf(pdf, "qpdf --check picture.pdf")));
    return pdf;
}

// Of all outlines in the one font that is part of the file.
std::size_t outlineBytes(const std::string& pdf)
{
    constexpr std::size_t kLength = 12; // in the list of a font's tables
    const std::string objects = readPdf(pdf, "qpdf --qdf picture.pdf -");
    const std::size_t entry = objects.find("glyf");
    return entry == std::string::npos ? entry : numberAt(objects, entry + kLength);
}

constexpr std::size_t kPermission = 9; // in the table "OS/2": where a font says who may have it

TEST(PdfInAFontThatForbidsIt, HasTheLettersAsShapesAndFindsThem)
{
    CChangedFont font("DejaVuSerif.ttf");
    font.setByte("OS/2", kPermission, 2);
    font.add();
    const std::string pdf = pageIn("DejaVu Serif");
    EXPECT_EQ(outlineBytes(pdf), 0U);
    EXPECT_THAT(textOfPdf(pdf), HasSubstr(kCaption));
}

TEST(PdfInAFontThatForbidsIt, LooksAsInOneThatAllowsIt)
{
    constexpr int kDotsPerInch = 288;
    constexpr int kNextPixel = 1;
    CChangedFont allowed("DejaVuSerif.ttf");
    allowed.rename("DejaVu Serif", "Public Serif");
    allowed.add();
    CChangedFont forbidden("DejaVuSerif.ttf");
    forbidden.rename("DejaVu Serif", "Secret Serif");
    forbidden.setByte("OS/2", kPermission, 2);
    forbidden.add();
    const std::string shown = pageIn("Public Serif");
    EXPECT_GT(outlineBytes(shown), 0U);
    EXPECT_EQ(countStrayPixels(pixelsOfPdf(shown, kDotsPerInch),
                               pixelsOfPdf(pageIn("Secret Serif"), kDotsPerInch), kNextPixel),
              0);
}

// How many dark pixels the caption has below that title.
int captionInk(const std::string& family, const std::string& title)
{
    constexpr int kDotsPerInch = 288;
    constexpr int kDark = 128;
    CAnyChart chart(ChartKind::Pie);
    chart.graph().setFont(family, 11);
    chart.graph().setTitle(title);
    chart.addItem(1234, kCaption);
    const QImage page = pixelsOfPdf(chart.createPdf(kWidth, kHeight).bytes(), kDotsPerInch);
    const Rectangle box = chart.graph().getRectangle()->front();
    int ink = 0;
    for (int y = box.y; y < box.y + box.height; ++y) {
        for (int x = box.x; x < box.x + box.width; ++x)
            ink += qGray(page.pixel(x, y)) < kDark ? 1 : 0;
    }
    return ink;
}

TEST(PdfInAFontWithoutABoldFace, HasPlainCaptionsBelowATitleThatIsMadeBold)
{
    CChangedFont font("DejaVuSerif.ttf");
    font.rename("DejaVu Serif", "Lonely Serif");
    font.add();
    const int plain = captionInk("Lonely Serif", "");
    EXPECT_GT(plain, 1000);
    EXPECT_EQ(captionInk("Lonely Serif", kCaption), plain);
}

TEST(PdfInAFontWithoutOutlines, FindsTheLettersAllTheSame)
{
    CChangedFont font("DejaVuSansMono.ttf");
    font.clear("loca"); // where the outlines are: nowhere
    font.add();
    EXPECT_THAT(textOfPdf(pageIn("DejaVu Sans Mono")), HasSubstr(kCaption));
}

} // namespace
} // namespace tovangl
