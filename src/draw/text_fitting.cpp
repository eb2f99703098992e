// SPDX-License-Identifier: MIT
// Fits a text into a width.
#include "draw/text_fitting.h"

#include <QPainter>

#include <algorithm>

namespace tovangl {
namespace cdraw {

namespace {

constexpr int kNothingFits = 0;
// Ellipses by which a longer text may be narrower than a shorter one: letters of some scripts join.
constexpr double kCutSlack = 3.0;
// A text longer than this is first judged by its beginning, in UTF-16 units.
constexpr int kLongText = 1024;
// The painter shows one of several variants of a text that holds this character, so its width does
// not follow its length. Up to kLongText such a text is cut unit by unit.
constexpr ushort kVariantSeparator = 0x9c;

QString ellipsis()
{
    return QString(QLatin1String("..."));
}

// The part that is kept after a cut.
QString keptPart(const QString& text, int length, bool fromLeft)
{
    return fromLeft ? text.right(length) : text.left(length);
}

double slackOf(double ellipsisWidth)
{
    return kCutSlack * ellipsisWidth;
}

// Finds how many units of a text can be kept in a room.
class CCutFinder
{
public:
    CCutFinder(const QString& text, double maxWidth, double ellipsisWidth, bool fromLeft,
               const TextMeasure& measure)
        : m_text(text)
        , m_maxWidth(maxWidth)
        , m_ellipsisWidth(ellipsisWidth)
        , m_fromLeft(fromLeft)
        , m_measure(measure)
    {}

    // The greatest length below the text's own that fits together with the ellipsis.
    [[nodiscard]] int find() const
    {
        const int longest = static_cast<int>(m_text.size()) - 1;
        const bool isPlain = !m_text.contains(QChar(kVariantSeparator)) || longest > kLongText;
        return findDownFrom(isPlain ? findUpperBound(longest) : longest);
    }

private:
    [[nodiscard]] double widthOf(int length) const
    {
        return m_measure(keptPart(m_text, length, m_fromLeft)) + m_ellipsisWidth;
    }

    // Whether this length, or a greater one that is narrower, could fit.
    [[nodiscard]] bool mayFit(int length) const
    {
        return widthOf(length) <= m_maxWidth + slackOf(m_ellipsisWidth);
    }

    // A length above which nothing fits, close to the place of the cut.
    [[nodiscard]] int findUpperBound(int longest) const
    {
        int fitting = 0;
        int probe = 1;
        while (probe < longest && mayFit(probe)) {
            fitting = probe;
            probe *= 2;
        }
        int beyond = std::min(probe, longest);
        if (beyond == longest && mayFit(longest))
            return longest;
        while (beyond - fitting > 1) {
            const int middle = fitting + (beyond - fitting) / 2;
            (mayFit(middle) ? fitting : beyond) = middle;
        }
        return fitting;
    }

    [[nodiscard]] int findDownFrom(int length) const
    {
        while (length > kNothingFits && !(widthOf(length) <= m_maxWidth))
            --length;
        return length;
    }

    const QString& m_text;
    double m_maxWidth;
    double m_ellipsisWidth;
    bool m_fromLeft;
    const TextMeasure& m_measure;
};

int leadingSpaces(const QString& text)
{
    int count = 0;
    while (count < text.size() && text.at(count).isSpace())
        ++count;
    return count;
}

int trailingSpaces(const QString& text)
{
    int count = 0;
    while (count < text.size() && text.at(text.size() - 1 - count).isSpace())
        ++count;
    return count;
}

// A negative width counts as none.
double widthOrZero(double width)
{
    return std::max(width, 0.0);
}

double measureEllipsis(const TextMeasure& measure)
{
    return widthOrZero(measure(ellipsis()));
}

// A long text whose beginning alone is too wide need not be measured to its end.
bool fitsWhole(const QString& text, double maxWidth, const TextMeasure& measure)
{
    if (text.isEmpty())
        return true;
    if (text.size() > kLongText && !text.contains(QChar(kVariantSeparator)) &&
        measure(text.left(kLongText)) > maxWidth + slackOf(measureEllipsis(measure)))
        return false;
    return maxWidth >= widthOrZero(measure(text));
}

} // namespace

QString measuredPart(const QString& text)
{
    return text.size() > kLongestMeasuredText ? text.left(kLongestMeasuredText) : text;
}

void stripWhiteSpaces(QString& text, bool fromLeft, bool fromRight)
{
    if (fromLeft && fromRight)
        text = text.trimmed();
    else if (fromLeft)
        text.remove(0, leadingSpaces(text));
    else if (fromRight)
        text.chop(trailingSpaces(text));
}

CFittedText fitText(const QString& text, double maxWidth, bool fromLeft, bool strip,
                    const TextMeasure& measure)
{
    const CFittedText unfit{false, text};
    if (maxWidth < 0)
        return unfit;

    QString copy = text;
    if (fitsWhole(copy, maxWidth, measure))
        return {true, copy};
    if (strip) {
        stripWhiteSpaces(copy, fromLeft, !fromLeft);
        if (copy.size() != text.size() && fitsWhole(copy, maxWidth, measure))
            return {true, copy};
    }
    if (copy.size() < 2)
        return unfit;

    const int kept = CCutFinder(copy, maxWidth, measureEllipsis(measure), fromLeft, measure).find();
    if (kept == kNothingFits)
        return unfit;
    const QString part = keptPart(copy, kept, fromLeft);
    return {true, fromLeft ? ellipsis() + part : part + ellipsis()};
}

bool shortenText(QString& text, double maxWidth, QPainter& painter, bool fromLeft, bool strip)
{
    const CFittedText fitted =
        fitText(text, maxWidth, fromLeft, strip, [&painter](const QString& candidate) {
            return painter.boundingRect(QRectF(), 0, measuredPart(candidate)).width();
        });
    if (fitted.fits)
        text = fitted.text;
    return fitted.fits;
}

} // namespace cdraw
} // namespace tovangl
