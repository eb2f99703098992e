// SPDX-License-Identifier: MIT
// An SVG picture as pixels, and how far these are from a painted picture.
#include "svg/rendered_svg.h"

#include "svg/parsed_svg.h"

#include <QFile>
#include <QProcess>
#include <QRegion>
#include <QTemporaryDir>
#include <QTransform>

#include <algorithm>
#include <cstdlib>

namespace tovangl {

namespace {

constexpr int kTolerance = 16;     // of 255
constexpr int kEdgeTolerance = 64; // of 255: between two pixels of a smoothed edge

int difference(QRgb a, QRgb b)
{
    return std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)),
                     std::abs(qBlue(a) - qBlue(b)), std::abs(qAlpha(a) - qAlpha(b))});
}

// Whether a pixel or one of its eight neighbours has a colour like this one.
bool isNear(QRgb color, const QImage& picture, const QPoint& place)
{
    for (int y = place.y() - 1; y <= place.y() + 1; ++y) {
        for (int x = place.x() - 1; x <= place.x() + 1; ++x) {
            if (picture.rect().contains(x, y) &&
                difference(color, picture.pixel(x, y)) <= kEdgeTolerance)
                return true;
        }
    }
    return false;
}

QRectF boxOf(const CSvgElement& text, double fontSize)
{
    constexpr double kBeside = 2;  // pixels
    constexpr double kAbove = 1.3; // font sizes
    constexpr double kHeight = 1.9;
    const double width = text.number("textLength");
    const double x = text.number("x") - (text["direction"] == QLatin1String("rtl") ? width : 0);
    return QRectF(x - kBeside, text.number("y") - kAbove * fontSize, width + 2 * kBeside,
                  kHeight * fontSize);
}

// Only one kind of transform is in use: "rotate(-90 12 40)".
QTransform transformOf(const QString& text)
{
    if (text.isEmpty())
        return QTransform();
    const QStringList numbers = text.mid(7).chopped(1).split(QLatin1Char(' '));
    QTransform transform;
    if (numbers.size() == 3)
        transform.translate(numbers[1].toDouble(), numbers[2].toDouble())
            .rotate(numbers[0].toDouble())
            .translate(-numbers[1].toDouble(), -numbers[2].toDouble());
    return transform;
}

// A text is turned itself or, where its room cuts it off, with that.
QTransform transformOf(const CSvgElement& text, const std::vector<CSvgElement>& elements)
{
    const CSvgElement* element = &text;
    while ((*element)["transform"].isEmpty() && element->parent >= 0)
        element = &elements[static_cast<std::size_t>(element->parent)];
    return transformOf((*element)["transform"]);
}

} // namespace

QImage renderedSvg(const std::string& bytes)
{
    const QTemporaryDir folder;
    const QString svg = folder.filePath(QStringLiteral("picture.svg"));
    const QString png = folder.filePath(QStringLiteral("picture.png"));
    QFile file(svg);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes.data(), qint64(bytes.size())) < 0)
        return QImage();
    file.close();
    QProcess::execute(QStringLiteral("rsvg-convert"), {QStringLiteral("-o"), png, svg});
    return QImage(png).convertToFormat(QImage::Format_ARGB32);
}

std::vector<QRect> textBoxes(const CParsedSvg& svg)
{
    const double fontSize = svg.elements().front().number("font-size");
    std::vector<QRect> boxes;
    for (const CSvgElement& text : svg.all("text"))
        boxes.push_back(
            transformOf(text, svg.elements()).mapRect(boxOf(text, fontSize)).toAlignedRect());
    return boxes;
}

double CPixelComparison::share() const
{
    constexpr double kAll = 100;
    return kAll - kAll * static_cast<double>(different) / static_cast<double>(compared);
}

CPixelComparison comparePixels(const QImage& painted, const QImage& drawn,
                               const std::vector<QRect>& texts)
{
    QRegion outside(painted.rect());
    for (const QRect& box : texts)
        outside -= box;
    CPixelComparison result;
    for (const QRect& part : outside) {
        for (int y = part.top(); y <= part.bottom(); ++y) {
            for (int x = part.left(); x <= part.right(); ++x) {
                const QRgb one = painted.pixel(x, y);
                const QRgb other = drawn.pixel(x, y);
                ++result.compared;
                if (difference(one, other) <= kTolerance)
                    continue;
                ++result.different;
                if (!isNear(one, drawn, {x, y}) || !isNear(other, painted, {x, y}))
                    ++result.moved;
            }
        }
    }
    return result;
}

} // namespace tovangl
