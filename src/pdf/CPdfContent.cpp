// SPDX-License-Identifier: MIT
// What a page of a PDF file shows.
#include "pdf/CPdfContent.h"

#include "pdf/CPdfObjects.h"
#include "pdf/path_operators.h"
#include "pdf/pdf_text.h"

#include <QBrush>
#include <QColor>
#include <QGradient>
#include <QPainterPath>
#include <QPen>
#include <QTransform>

#include <algorithm>
#include <cmath>

namespace tovangl {

namespace {

constexpr int kMatrixDecimals = 5;
constexpr double kThousand = 1000; // parts of a font's size that the pen's moves are given in

// Beyond its ends, the gradient goes on in its first and its last colour, as a painter's does.
std::string shading(const QLinearGradient& gradient, const QTransform& toPage)
{
    const QGradientStops stops = gradient.stops();
    return "<</ShadingType 2/ColorSpace/DeviceRGB/Coords[" +
           pdfPoint(toPage.map(gradient.start())) + pdfPoint(toPage.map(gradient.finalStop())) +
           "]/Extend[true true]/Function<</FunctionType 2/Domain[0 1]/N 1/C0[" +
           pdfColor(stops.first().second) + "]/C1[" + pdfColor(stops.last().second) + "]>>>>";
}

// Letters stand upright where y grows downward.
std::string textMatrix(const QTransform& toPage, const QPointF& position)
{
    std::string text;
    for (const qreal part : {toPage.m11(), toPage.m12(), -toPage.m21(), -toPage.m22()})
        text += pdfNumber(part, kMatrixDecimals) + ' ';
    return text + pdfPoint(toPage.map(position)) + "Tm\n";
}

// Images are squares with a side of 1 that stand upright where y grows upward.
std::string imageMatrix(const QTransform& toPage, const QRectF& box)
{
    const double width = box.width();
    const double height = box.height();
    std::string text;
    for (const qreal part : {toPage.m11() * width, toPage.m12() * width, -toPage.m21() * height,
                             -toPage.m22() * height})
        text += pdfNumber(part) + ' ';
    return text + pdfPoint(toPage.map(box.bottomLeft())) + "cm";
}

// Nothing is left of a byte order mark that a text holds.
uint characterOf(const QString& letter)
{
    return letter.isEmpty() ? 0 : letter.toUcs4().first();
}

bool isLetterOrMark(const QString& letter)
{
    const uint character = characterOf(letter);
    return QChar::isLetter(character) || QChar::isMark(character);
}

// A mark has no direction of its own. Left of all letters, where such a text is read last, readers
// take it for a part of what stands to the left, unless it has a character with a direction there.
std::vector<QString> withDirection(std::vector<QString> turnedLetters)
{
    constexpr ushort kRightToLeftMark = 0x200f;
    const auto first = std::find_if(turnedLetters.begin(), turnedLetters.end(), isLetterOrMark);
    if (first != turnedLetters.end() && QChar::isMark(characterOf(*first)))
        first->prepend(QChar(kRightToLeftMark));
    return turnedLetters;
}

bool isOnOneLine(const QPointF& a, const QPointF& b)
{
    return std::abs(a.y() - b.y()) < std::pow(10, -kLengthDecimals);
}

} // namespace

void CPdfContent::setClip(const std::optional<QPainterPath>& path)
{
    if (m_unclippedState) {
        m_bytes += "Q\n";
        m_state = *m_unclippedState;
        m_unclippedState.reset();
    }
    if (!path)
        return;
    m_unclippedState = m_state;
    m_bytes += "q\n" + pathOperators(*path) + "W n\n";
}

void CPdfContent::fill(const QPainterPath& path, const QBrush& brush, const QTransform& toPage)
{
    if (path.isEmpty() || brush.style() == Qt::NoBrush || brush.color().alpha() == 0)
        return;
    if (brush.gradient()) {
        fillWithGradient(path, *brush.gradient(), toPage);
        return;
    }
    change(m_state.fill, pdfColor(brush.color()) + "rg\n");
    m_bytes += pathOperators(path) + (path.fillRule() == Qt::WindingFill ? "f\n" : "f*\n");
}

void CPdfContent::stroke(const QPainterPath& path, const QPen& pen)
{
    if (path.elementCount() == 0 || pen.style() == Qt::NoPen || pen.color().alpha() == 0)
        return;
    change(m_state.stroke, pdfColor(pen.color()) + "RG\n");
    change(m_state.pen, penOperators(pen));
    m_bytes += pathOperators(path) + "S\n";
}

void CPdfContent::showText(const QString& text, std::vector<CShapedRun> runs, const QColor& color,
                           const QTransform& toPage)
{
    if (color.alpha() == 0)
        return;
    for (CShapedRun& run : runs)
        showPictures(run, color, toPage);
    change(m_state.fill, pdfColor(color) + "rg\n");
    const bool isOne = runs.size() == 1;
    if (isOne && tellLetters(runs.front())) {
        showRun(runs.front(), glyphsOf(runs.front()), toPage);
        return;
    }
    if (isOne && canHaveCells(runs.front())) {
        showRun(runs.front(), cellsOf(runs.front()), toPage);
        return;
    }
    m_bytes += "/Span<</ActualText" + pdfString(text) + ">>BDC\n";
    for (const CShapedRun& run : runs)
        showRun(run, glyphsOf(run), toPage);
    m_bytes += "EMC\n";
}

std::string CPdfContent::bytes() const
{
    return m_unclippedState ? m_bytes + "Q\n" : m_bytes;
}

std::string CPdfContent::writeResources(CPdfObjects& objects) const
{
    std::string fonts;
    for (std::size_t i = 0; i < m_fonts.size(); ++i)
        fonts += "/F" + std::to_string(i) + ' ' + pdfReference(m_fonts[i].write(objects));
    std::string shadings;
    for (std::size_t i = 0; i < m_shadings.size(); ++i)
        shadings += "/S" + std::to_string(i) + ' ' + pdfReference(objects.add(m_shadings[i]));
    const std::string images = m_images.write(objects);
    const std::string named = images.empty() ? images : "/XObject<<" + images + ">>";
    return "<</Font<<" + fonts + ">>/Shading<<" + shadings + ">>" + named + ">>";
}

void CPdfContent::change(std::string& setting, const std::string& wanted)
{
    if (setting == wanted)
        return;
    m_bytes += wanted;
    setting = wanted;
}

void CPdfContent::fillWithGradient(const QPainterPath& path, const QGradient& gradient,
                                   const QTransform& toPage)
{
    // Charts have no other gradients than linear ones from one colour to another.
    const auto& linear = static_cast<const QLinearGradient&>(gradient);
    m_bytes += "q\n" + pathOperators(path) + (path.fillRule() == Qt::WindingFill ? "W" : "W*") +
               " n\n/S" + std::to_string(m_shadings.size()) + " sh\nQ\n";
    m_shadings.push_back(shading(linear, toPage));
}

std::size_t CPdfContent::fontFor(const CShapedRun& run)
{
    std::size_t i = 0;
    while (i < m_fonts.size() && !m_fonts[i].isOf(run.face, run.isBold))
        ++i;
    if (i == m_fonts.size())
        m_fonts.emplace_back(run.face, run.isBold);
    return i;
}

void CPdfContent::showPictures(CShapedRun& run, const QColor& color, const QTransform& toPage)
{
    const std::size_t font = fontFor(run);
    for (std::size_t i = 0; i < run.glyphs.size(); ++i) {
        const auto image =
            m_images.find(font, m_fonts[font].form(), run.face, run.glyphs[i], color);
        if (!image)
            continue;
        run.pictures.insert(run.glyphs[i]);
        m_bytes += "q\n" + imageMatrix(toPage, image->box.translated(run.positions[i])) + "\n/I" +
                   std::to_string(image->image) + " Do\nQ\n";
    }
}

std::uint16_t CPdfContent::numberOf(std::size_t font, const CShapedRun& run, std::size_t glyph)
{
    const std::uint32_t number = run.glyphs[glyph];
    return run.isPicture(glyph) ? m_fonts[font].useUnseen(number) : m_fonts[font].use(number);
}

// Whether readers find the text by its glyphs alone.
bool CPdfContent::tellLetters(const CShapedRun& run)
{
    const std::size_t index = fontFor(run);
    CPdfFont& font = m_fonts[index];
    bool isTold = !run.letters.empty();
    for (std::size_t i = 0; i < run.letters.size(); ++i) {
        const QString& letters = run.letters[i];
        if (isLamAlef(letters)) {
            const CGlyphHalves halves = font.useInHalves(run.glyphs[i]);
            isTold = font.tell(halves.right, letters.left(1)) && isTold;
            isTold = font.tell(halves.left, letters.mid(1)) && isTold;
        } else {
            isTold = font.tell(numberOf(index, run, i), letters) && isTold;
        }
    }
    return isTold;
}

// A glyph of a run as glyphs of the file, from left to right.
std::vector<std::uint16_t> CPdfContent::numbersOf(std::size_t font, const CShapedRun& run,
                                                  std::size_t glyph)
{
    if (glyph >= run.letters.size() || !isLamAlef(run.letters[glyph]))
        return {numberOf(font, run, glyph)};
    const CGlyphHalves halves = m_fonts[font].useInHalves(run.glyphs[glyph]);
    return {halves.left, halves.right};
}

CPdfContent::CFileGlyphs CPdfContent::glyphsOf(const CShapedRun& run)
{
    CFileGlyphs glyphs{fontFor(run), run.positions, {}};
    for (std::size_t i = 0; i < run.glyphs.size(); ++i)
        glyphs.numbers.push_back(numbersOf(glyphs.font, run, i));
    return glyphs;
}

// Readers that go by places take the text of a span for one from left to right.
bool CPdfContent::canHaveCells(const CShapedRun& run)
{
    return !run.turnedLetters.empty() &&
           m_fonts[fontFor(run)].hasRoomForCells(run.turnedLetters.size());
}

// As many glyphs as there are letters, though none of them looks like its letter alone.
CPdfContent::CFileGlyphs CPdfContent::cellsOf(const CShapedRun& run)
{
    CFileGlyphs glyphs{fontFor(run), {}, {}};
    CPdfFont& font = m_fonts[glyphs.font];
    const std::vector<QString> letters = withDirection(run.turnedLetters);
    const CLetterCells cells = letterCells(run, run.right, letters.size());
    for (std::size_t i = 0; i < cells.cells.size(); ++i) {
        const std::uint16_t number =
            font.addCell(cells.cells[i], cells.width, run.face.pixelSize());
        static_cast<void>(font.tell(number, letters[i]));
        glyphs.positions.emplace_back(cells.cells[i].left, 0);
        glyphs.numbers.push_back({number});
    }
    return glyphs;
}

// What a font that must not be part of the file shows, shapes do. Its glyphs are there unseen, so
// that readers find and select the text.
void CPdfContent::showRun(const CShapedRun& run, const CFileGlyphs& glyphs,
                          const QTransform& toPage)
{
    const double size = run.face.pixelSize();
    const CPdfFont& font = m_fonts[glyphs.font];
    if (font.isEmbeddable() || font.form() == GlyphForm::Pictures) {
        showGlyphs(glyphs, size, toPage);
        return;
    }
    fillOutlines(run, toPage);
    m_bytes += "3 Tr\n";
    showGlyphs(glyphs, size, toPage);
    m_bytes += "0 Tr\n";
}

// Each glyph has the place that the layout gave it. Where the font's own widths lead elsewhere,
// which are not those of letters fitted to pixels, the pen is moved.
void CPdfContent::showGlyphs(const CFileGlyphs& glyphs, double size, const QTransform& toPage)
{
    const std::vector<QPointF>& positions = glyphs.positions;
    m_bytes += "BT\n/F" + std::to_string(glyphs.font) + ' ' + pdfNumber(size) + " Tf\n";
    std::size_t i = 0;
    while (i < positions.size()) {
        const QPointF start = positions[i];
        double pen = start.x();
        m_bytes += textMatrix(toPage, start) + "[<";
        for (; i < positions.size() && isOnOneLine(positions[i], start); ++i) {
            const long move = std::lround((pen - positions[i].x()) * kThousand / size);
            if (move != 0)
                m_bytes += '>' + std::to_string(move) + '<';
            pen -= static_cast<double>(move) * size / kThousand;
            for (const std::uint16_t number : glyphs.numbers[i]) {
                m_bytes += pdfHex(number);
                pen += m_fonts[glyphs.font].advance(number) * size / kThousand;
            }
        }
        m_bytes += ">]TJ\n";
    }
    m_bytes += "ET\n";
}

void CPdfContent::fillOutlines(const CShapedRun& run, const QTransform& toPage)
{
    QPainterPath outlines;
    outlines.setFillRule(Qt::WindingFill);
    for (std::size_t i = 0; i < run.glyphs.size(); ++i) {
        if (run.isPicture(i))
            continue;
        outlines.addPath(run.face.pathForGlyph(run.glyphs[i]).translated(run.positions[i]));
    }
    m_bytes += pathOperators(toPage.map(outlines)) + "f\n";
}

} // namespace tovangl
