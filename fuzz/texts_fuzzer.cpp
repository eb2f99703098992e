// SPDX-License-Identifier: MIT
// Fits captions into widths and writes numbers in the locales that the input names.
#include "api/conversions.h"
#include "failed_promise.h"
#include "input/CGraph1dSettings.h"
#include "seeded_fault.h"
#include "support/chart_font.h"
#include "text/CTextMeasurer.h"
#include "text/number_text.h"
#include "text/plain_text_fitting.h"
#include "text/text_fitting.h"

#include <QImage>
#include <QLocale>
#include <QPainter>

#include <fuzzer/FuzzedDataProvider.h>

namespace tovangl {
namespace {

// The plain form is quadratic, and each step of it measures with a font.
constexpr int kLongestMeasuredByPainter = 24; // UTF-16 units
constexpr int kLongestMeasuredByRule = 400;

struct CFit
{
    double width = 0;
    bool fromLeft = false;
    bool strip = false;
};

// A painter with the font of a chart.
struct CTextPainter
{
    CTextPainter() { painter.setFont(chartFont("Tahoma", 11)); }

    [[nodiscard]] double measure(const QString& text)
    {
        return painter.boundingRect(QRectF(), 0, text).width();
    }

    QImage image = QImage(1, 1, QImage::Format_ARGB32);
    QPainter painter{&image};
};

// Made once: the font takes longest.
CTextPainter& textPainter()
{
    static CTextPainter painter;
    return painter;
}

// Widths that follow a rule instead of a font: letters differ, spaces are narrow, marks take none.
double measureByRule(const QString& text)
{
    double width = 0;
    for (const QChar unit : text)
        width += unit.isMark() ? 0.0 : unit.isSpace() ? 2.5 : 4.0 + unit.unicode() % 5;
    return width;
}

bool isSameFit(const cdraw::CFittedText& a, const cdraw::CFittedText& b)
{
    return a.fits == b.fits && a.text == b.text;
}

void fitByRule(const QString& text, const CFit& fit)
{
    auto fast = cdraw::shortenText(text, fit.width, fit.fromLeft, fit.strip, measureByRule);
    if (isFaultSeeded() && fast.fits && text.size() > 3)
        fast.text.chop(1);
    require(!fast.fits || fast.text.isEmpty() || measureByRule(fast.text) <= fit.width,
            "a fitted text fits");
    require(fast.fits || fast.text == text, "a text that does not fit stays");
    if (text.size() > kLongestMeasuredByRule)
        return;
    const auto plain =
        cdraw::plainlyShortenText(text, fit.width, fit.fromLeft, fit.strip, measureByRule);
    require(isSameFit(fast, plain), "the fast form of text fitting gives what the plain one gives");
    require(cdraw::canShortenText(text, fit.width, fit.fromLeft, fit.strip, measureByRule) ==
                plain.fits,
            "whether a text can be fitted is told as the plain form tells it");
}

// The measurer shortens as charts do: white space goes from the end that is cut.
void fitByPainter(const QString& text, const CFit& fit)
{
    CTextMeasurer measurer(textPainter().painter);
    const CTextStyle style{false, fit.fromLeft};
    const bool fits = measurer.canShorten(text, fit.width, style);
    const QString fast = measurer.shortened(text, fit.width, style);
    if (text.size() > kLongestMeasuredByPainter)
        return;
    const auto measure = [](const QString& part) { return textPainter().measure(part); };
    const auto plain =
        cdraw::plainlyShortenText(text, fit.width, fit.fromLeft, cdraw::kStripSpaces, measure);
    require(isSameFit({fits, fast}, plain),
            "the fast form of text fitting gives what the plain one gives with a font");
}

void writeNumber(long long value, int format, const CKilo& kilo, const QLocale& locale)
{
    const QString text = numberText(value, format, locale, kilo);
    require(!text.isEmpty(), "a number is never written as nothing");
    if (format == PlainNumber)
        require(text == locale.toString(value), "a plain number is the locale's");
    else
        require((value < 0) == text.startsWith(QLatin1Char('-')), "a negative number has a sign");
}

void useTexts(FuzzedDataProvider& input)
{
    CGraph1dSettings settings;
    const QString language = toQString(input.ConsumeRandomLengthString(8));
    settings.setLocale(language, toQString(input.ConsumeRandomLengthString(8)));
    const CKilo kilo = input.ConsumeBool() ? kKilo1024 : kKilo1000;
    const int format = input.ConsumeIntegralInRange(0, 3);
    const auto value = input.ConsumeIntegral<long long>();
    writeNumber(value >> input.ConsumeIntegralInRange(0, 63), format, kilo, settings.locale);

    CFit fit;
    fit.width = input.ConsumeBool() ? input.ConsumeFloatingPointInRange(-2.0, 300.0)
                                    : input.ConsumeFloatingPoint<double>();
    fit.fromLeft = input.ConsumeBool();
    fit.strip = input.ConsumeBool();
    const QString text = toQString(input.ConsumeRemainingBytesAsString());
    fitByRule(text, fit);
    fitByPainter(text, fit);
}

} // namespace
} // namespace tovangl

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    FuzzedDataProvider input(data, size);
    tovangl::useTexts(input);
    return 0;
}
