// SPDX-License-Identifier: MIT
// Fits a text into a width.
#include "text/text_fitting.h"

#include <algorithm>
#include <limits>
#include <map>

namespace tovangl {
namespace cdraw {

namespace {

constexpr int kNothingFits = 0;
// A longer text can be narrower than a shorter one by at most this many ellipses, because letters
// of some scripts join.
constexpr double kCutSlack = 3.0;
// How far beyond the length that the binary search found to look for a narrower text, in UTF-16
// units.
constexpr int kReach = 256;
// A text longer than this is first judged by its beginning, in UTF-16 units.
constexpr int kLongText = 1024;
// At most this many UTF-16 units are measured to find one cut. Only texts with thousands of
// zero-width characters need more; they are cut shorter than necessary.
constexpr int kMeasuringBudget = 1 << 18;
// Further combining marks on one character are neither measured nor drawn.
constexpr int kMostMarks = 256;
// This character separates variants of a text, of which the painter shows one: the last variant if
// there is no room.
constexpr ushort kVariantSeparator = 0x9c;

// The part that is kept after a cut.
QString keptPart(const QString& text, int length, bool fromLeft)
{
    return fromLeft ? text.right(length) : text.left(length);
}

double slackOf(double ellipsisWidth)
{
    return kCutSlack * ellipsisWidth;
}

// The greatest length up to top for which a condition holds, by binary search. The condition must
// hold for floor; the result is exact if it never holds again after it first fails.
template <typename Condition>
int lastWhere(int floor, int top, Condition holds)
{
    int last = floor;
    int step = 1;
    while (step <= top - last && holds(last + step)) {
        last += step;
        step *= 2;
    }
    int beyond = step <= top - last ? last + step : top + 1;
    while (beyond - last > 1) {
        const int middle = last + (beyond - last) / 2;
        (holds(middle) ? last : beyond) = middle;
    }
    return last;
}

// Finds how many units of a text fit into a width together with the ellipsis.
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
    [[nodiscard]] int find()
    {
        const int size = static_cast<int>(m_text.size());
        const int longest = std::min(size - 1, kLongestMeasuredText);
        if (!(m_ellipsisWidth <= m_maxWidth))
            return kNothingFits;
        if (!m_fromLeft)
            return findBetween(lengthThroughSeparator(longest), longest);
        // A text with a separator is as wide as its last variant.
        const int lastVariant = size - lengthThroughSeparator(size);
        if (lastVariant < longest && fits(longest))
            return longest;
        return findBetween(kNothingFits, std::min(lastVariant, longest));
    }

private:
    // The length up to and including the last separator within a length; 0 if there is none.
    [[nodiscard]] int lengthThroughSeparator(int length) const
    {
        return static_cast<int>(m_text.lastIndexOf(QChar(kVariantSeparator), length - 1)) + 1;
    }

    // Once the budget is used up, every further length counts as infinitely wide.
    [[nodiscard]] double widthOf(int length)
    {
        const auto known = m_widths.find(length);
        if (known != m_widths.end())
            return known->second;
        m_budget -= length;
        double width = std::numeric_limits<double>::infinity();
        if (m_budget >= 0)
            width = m_measure(keptPart(m_text, length, m_fromLeft)) + m_ellipsisWidth;
        return m_widths[length] = width;
    }

    [[nodiscard]] bool fits(int length) { return widthOf(length) <= m_maxWidth; }

    // Whether this length, or a greater one that is narrower, could fit.
    [[nodiscard]] bool mayFit(int length)
    {
        return widthOf(length) <= m_maxWidth + slackOf(m_ellipsisWidth);
    }

    // A binary search finds a length that fits although the next one does not. Greater lengths can
    // still fit, so those within the slack are tried as well.
    [[nodiscard]] int findBetween(int floor, int top)
    {
        const int found = lastWhere(floor, top, [this](int length) { return fits(length); });
        int length = lastWhere(found, std::min(top, found + kReach),
                               [this](int candidate) { return mayFit(candidate); });
        while (length > found && !fits(length))
            --length;
        return length;
    }

    const QString& m_text;
    double m_maxWidth;
    double m_ellipsisWidth;
    bool m_fromLeft;
    const TextMeasure& m_measure;
    std::map<int, double> m_widths; // with the ellipsis, by length
    int m_budget = kMeasuringBudget;
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

// A negative width fits nothing.
double widthOrZero(double width)
{
    return std::max(width, 0.0);
}

double measureEllipsis(const TextMeasure& measure)
{
    return widthOrZero(measure(ellipsis()));
}

bool isBeginningTooWide(const QString& text, double maxWidth, const TextMeasure& measure)
{
    const double slack = slackOf(measureEllipsis(measure));
    return measure(text.left(kLongText)) > maxWidth + slack;
}

// Rejects a long text without measuring all of it if its beginning alone is too wide.
bool fitsWhole(const QString& text, double maxWidth, const TextMeasure& measure)
{
    if (text.isEmpty())
        return true;
    const bool isJudgedByBeginning =
        text.size() > kLongText && !text.contains(QChar(kVariantSeparator));
    if (isJudgedByBeginning && isBeginningTooWide(text, maxWidth, measure))
        return false;
    return maxWidth >= widthOrZero(measure(text));
}

// One character with the ellipsis.
bool fitsShortestCut(const QString& text, double maxWidth, bool fromLeft,
                     const TextMeasure& measure)
{
    const double width = measure(keptPart(text, 1, fromLeft));
    return width + measureEllipsis(measure) <= maxWidth;
}

// Shaping time grows with the square of the number of marks on one character.
QString withoutExcessMarks(QString text)
{
    int kept = 0;
    int marks = 0;
    for (int i = 0; i < text.size(); ++i) {
        marks = text.at(i).isMark() ? marks + 1 : 0;
        if (marks > kMostMarks)
            continue;
        if (kept < i)
            text[kept] = text.at(i);
        ++kept;
    }
    text.truncate(kept);
    return text;
}

} // namespace

QString ellipsis()
{
    return QString(QLatin1String("..."));
}

QString measuredPart(const QString& text)
{
    if (text.size() <= kMostMarks)
        return text;
    return withoutExcessMarks(text.left(kLongestMeasuredText));
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

CFittedText shortenText(const QString& text, double maxWidth, bool fromLeft, bool strip,
                        const TextMeasure& wholeMeasure)
{
    CFittedText unfit{false, text};
    if (maxWidth < 0)
        return unfit;

    const TextMeasure measure = [&wholeMeasure](const QString& part) {
        return wholeMeasure(measuredPart(part));
    };
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
    if (fromLeft)
        return {true, ellipsis() + part};
    return {true, part + ellipsis()};
}

bool canShortenText(const QString& text, double maxWidth, bool fromLeft, bool strip,
                    const TextMeasure& measure)
{
    QString copy = text;
    if (strip)
        stripWhiteSpaces(copy, fromLeft, !fromLeft);
    // Where the shortest cut fits, so does some cut or the whole text.
    if (maxWidth >= 0 && copy.size() > 1 && fitsShortestCut(copy, maxWidth, fromLeft, measure))
        return true;
    return shortenText(text, maxWidth, fromLeft, strip, measure).fits;
}

} // namespace cdraw
} // namespace tovangl
