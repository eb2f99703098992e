// SPDX-License-Identifier: MIT
// The glyphs of a text that a painter paints.
#include "pdf/text_shaping.h"

#include <QPaintEngine>
#include <QRawFont>
#include <QTextLayout>
#include <QTextOption>
#include <QVector>

#include <algorithm>

namespace tovangl {

namespace {

constexpr qreal kUnlimitedWidth = 0x01000000; // pixels

bool isRightToLeft(const QTextItem& item)
{
    return item.renderFlags() & QTextItem::RightToLeft;
}

QTextOption optionFor(const QTextItem& item)
{
    QTextOption option;
    option.setAlignment(Qt::AlignLeft | Qt::AlignAbsolute);
    option.setWrapMode(QTextOption::NoWrap);
    option.setTextDirection(isRightToLeft(item) ? Qt::RightToLeft : Qt::LeftToRight);
    return option;
}

void reverse(CShapedRun& run)
{
    std::reverse(run.glyphs.begin(), run.glyphs.end());
    std::reverse(run.positions.begin(), run.positions.end());
    std::reverse(run.letters.begin(), run.letters.end());
}

// The glyphs in the order of reading.
CShapedRun toRun(const QGlyphRun& run, const QPointF& origin, const QTextItem& item)
{
    CShapedRun shaped;
    shaped.face = run.rawFont();
    shaped.isBold = item.font().bold();
    for (const quint32 glyph : run.glyphIndexes())
        shaped.glyphs.push_back(glyph);
    for (const QPointF& position : run.positions())
        shaped.positions.push_back(position - origin);
    if (isRightToLeft(item) && shaped.positions.front().x() < shaped.positions.back().x())
        reverse(shaped);
    return shaped;
}

// Where the text ends to the right.
double rightEnd(const std::vector<CShapedRun>& runs)
{
    double end = 0;
    for (const CShapedRun& run : runs) {
        const QVector<QPointF> advances = run.face.advancesForGlyphIndexes(
            QVector<quint32>(run.glyphs.begin(), run.glyphs.end()));
        for (std::size_t i = 0; i < run.positions.size(); ++i) {
            const int index = static_cast<int>(i);
            const double advance = index < advances.size() ? advances[index].x() : 0;
            end = std::max(end, run.positions[i].x() + advance);
        }
    }
    return end;
}

std::vector<QString> lettersOf(const QString& text)
{
    std::vector<QString> letters;
    for (const char32_t character : text.toUcs4())
        letters.push_back(QString::fromUcs4(&character, 1));
    return letters;
}

std::vector<QString> withLamAlefs(const std::vector<QString>& letters)
{
    std::vector<QString> joined;
    for (std::size_t i = 0; i < letters.size(); ++i) {
        const bool isJoined = i > 0 && isLamAlef(letters[i - 1] + letters[i]);
        if (isJoined)
            joined.back() += letters[i];
        else
            joined.push_back(letters[i]);
    }
    return joined;
}

bool hasMarks(const QString& text)
{
    return std::any_of(text.begin(), text.end(), [](QChar unit) { return unit.isMark(); });
}

std::vector<QString> turnedLettersOf(const QString& text)
{
    std::vector<QString> letters = lettersOf(text);
    std::reverse(letters.begin(), letters.end());
    return letters;
}

// Letters that are read from right to left have other forms in a word, but keep their order, unless
// there are marks. Of all others, those count whose glyphs are the ones that the font has for
// single letters.
std::vector<QString> lettersOf(const CShapedRun& run, const QTextItem& item)
{
    const QString text = item.text();
    if (isRightToLeft(item) && hasMarks(text))
        return {};
    std::vector<QString> letters = lettersOf(text);
    const QVector<quint32> single = run.face.glyphIndexesForString(text);
    const bool isPlain =
        std::equal(single.begin(), single.end(), run.glyphs.begin(), run.glyphs.end());
    const bool isJoined = !isPlain && isRightToLeft(item);
    if (isJoined && letters.size() != run.glyphs.size())
        letters = withLamAlefs(letters);
    const bool isKnown = (isPlain || isJoined) && letters.size() == run.glyphs.size();
    return isKnown ? letters : std::vector<QString>();
}

// From left to right, as it is painted. The spaces that such a text ends with can hang out to the
// left of where it begins.
void turnAround(std::vector<CShapedRun>& runs, double width)
{
    const double shift = width - rightEnd(runs);
    std::reverse(runs.begin(), runs.end());
    for (CShapedRun& run : runs) {
        reverse(run);
        for (QPointF& position : run.positions)
            position.rx() += shift;
    }
}

} // namespace

bool isLamAlef(const QString& letters)
{
    constexpr ushort kLam = 0x0644;
    constexpr ushort kAlefs[] = {0x0622, 0x0623, 0x0625, 0x0627};
    return letters.size() == 2 && letters[0] == QChar(kLam) &&
           std::any_of(std::begin(kAlefs), std::end(kAlefs),
                       [&](ushort alef) { return letters[1] == QChar(alef); });
}

std::vector<CShapedRun> shapeItem(const QTextItem& item)
{
    QTextLayout layout(item.text(), item.font());
    layout.setTextOption(optionFor(item));
    layout.beginLayout();
    QTextLine line = layout.createLine();
    if (line.isValid())
        line.setLineWidth(kUnlimitedWidth);
    layout.endLayout();

    std::vector<CShapedRun> runs;
    if (!line.isValid())
        return runs;
    const QPointF origin(0, line.y() + line.ascent());
    for (const QGlyphRun& run : line.glyphRuns()) {
        if (!run.isEmpty())
            runs.push_back(toRun(run, origin, item));
    }
    if (runs.size() == 1) {
        runs.front().letters = lettersOf(runs.front(), item);
        runs.front().right = item.width();
    }
    if (isRightToLeft(item)) {
        turnAround(runs, item.width());
        for (CShapedRun& run : runs)
            run.turnedLetters = turnedLettersOf(item.text());
    }
    return runs;
}

} // namespace tovangl
