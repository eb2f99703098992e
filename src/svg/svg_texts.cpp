// SPDX-License-Identifier: MIT
// The texts of a chart as SVG.
#include "svg/svg_texts.h"

#include "layout/CPlacedText.h"
#include "svg/CSvgScene.h"
#include "svg/svg_shapes.h"
#include "svg/svg_values.h"
#include "text/aligned_text.h"
#include "text/whole_pixel_text.h"

namespace tovangl {

namespace {

constexpr const char* kUpright = "";

QFont fontOf(const CSvgScene& scene, const CPlacedText& text)
{
    QFont font = scene.frame.font;
    if (text.isBold)
        font.setWeight(QFont::Bold);
    return font;
}

std::string boxOf(const QRectF& rect)
{
    return svgNumber(rect.x()) + ' ' + svgNumber(rect.y()) + ' ' + svgNumber(rect.width()) + ' ' +
           svgNumber(rect.height());
}

// From the top-left corner of a turned text, which reads upward from there.
std::string turnAt(const QPointF& corner)
{
    return "rotate(-90 " + svgNumber(corner.x()) + ' ' + svgNumber(corner.y()) + ')';
}

// Whether a reader would drop a space, which the text is painted with and measured by: one at
// either end, or beside another one.
bool needsItsSpaces(const QString& text)
{
    return text != text.simplified();
}

void writeLineOfText(CSvgScene& scene, const qt::CTextLine& line, const CPlacedText& text,
                     const std::string& turn)
{
    if (line.text.isEmpty())
        return;
    CSvgMarkup& markup = scene.markup;
    const double beginning = line.start.x() + (line.isRightToLeft ? line.width : 0);
    markup.begin("text").attribute("x", beginning).attribute("y", line.start.y());
    if (line.isRightToLeft)
        markup.attribute("direction", "rtl");
    if (!turn.empty())
        markup.attribute("transform", turn);
    if (text.isBold)
        markup.attribute("font-weight", "bold");
    if (needsItsSpaces(line.text)) // Chromium looks for it here alone, and not around the text
        markup.attribute("xml:space", "preserve");
    if (scene.frame.isOneOfTwo || text.color != QColor(Qt::black))
        scene.colors.paint(markup, {{"fill", text.color}});
    if (line.width > 0)
        markup.attribute("textLength", line.width).attribute("lengthAdjust", "spacingAndGlyphs");
    markup.open().content(line.text).close("text");
}

// A text that is larger than its room, which shows what lies in the room. A picture within the
// picture does that without a definition.
void writeCutText(CSvgScene& scene, const qt::CTextLines& lines, const CPlacedText& text,
                  const QRect& room, const std::string& turn)
{
    CSvgMarkup& markup = scene.markup;
    if (!turn.empty())
        markup.begin("g").attribute("transform", turn).open();
    markup.begin("svg");
    writeExtent(markup, room);
    markup.attribute("viewBox", boxOf(room)).open();
    for (const qt::CTextLine& line : lines.lines)
        writeLineOfText(scene, line, text, kUpright);
    markup.close("svg");
    if (!turn.empty())
        markup.close("g");
}

} // namespace

void writeText(CSvgScene& scene, const CPlacedText& text, const QPointF& shift)
{
    const QPointF place = text.origin + shift;
    const QRectF room = roomWithSlack(text).translated(place);
    const qt::CTextLines lines = qt::wholePixelLines(fontOf(scene, text), room, text.text,
                                                     alignedTextOption(text.alignment));
    const std::string turn = text.isTurned ? turnAt(text.room.topLeft() + place) : std::string();
    if (lines.isCut) {
        writeCutText(scene, lines, text, room.toAlignedRect(), turn);
        return;
    }
    for (const qt::CTextLine& line : lines.lines)
        writeLineOfText(scene, line, text, turn);
}

} // namespace tovangl
