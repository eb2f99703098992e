// SPDX-License-Identifier: MIT
/// @file
/// What a page of a PDF file shows.
#ifndef TOVANGL_PDF_CPDFCONTENT_H
#define TOVANGL_PDF_CPDFCONTENT_H

#include "pdf/CPdfFont.h"
#include "pdf/CPdfGlyphImages.h"
#include "pdf/text_shaping.h"

#include <list>
#include <optional>
#include <string>
#include <vector>

class QBrush;
class QColor;
class QGradient;
class QPainterPath;
class QPen;
class QTransform;

namespace tovangl {

/// Writes the operators of a page and collects the fonts, images and gradients that they name.
/// Shapes are in pixels of the page. Colours are opaque or nothing at all, as those of charts are.
class CPdfContent
{
public:
    /// From now on, only what is inside of a path is shown; all of it without one.
    void setClip(const std::optional<QPainterPath>& path);
    /// @param toPage  from the gradient's coordinates to those of the page
    void fill(const QPainterPath& path, const QBrush& brush, const QTransform& toPage);
    void stroke(const QPainterPath& path, const QPen& pen);
    /// @param text    as it reads
    /// @param toPage  from the baseline's left end
    void showText(const QString& text, std::vector<CShapedRun> runs, const QColor& color,
                  const QTransform& toPage);

    /// The operators so far.
    [[nodiscard]] std::string bytes() const;
    /// Writes what the operators name, and returns the dictionary of it.
    std::string writeResources(CPdfObjects& objects) const;

private:
    // Settings that hold until they are changed, as the operators that set them.
    struct CState
    {
        std::string fill;
        std::string stroke;
        std::string pen;
    };

    // What a run looks like in the file.
    struct CFileGlyphs
    {
        std::size_t font = 0;
        std::vector<QPointF> positions;
        std::vector<std::vector<std::uint16_t>> numbers; // one after the other at each position
    };

    void change(std::string& setting, const std::string& wanted);
    void fillWithGradient(const QPainterPath& path, const QGradient& gradient,
                          const QTransform& toPage);
    [[nodiscard]] std::size_t fontFor(const CShapedRun& run);
    void showPictures(CShapedRun& run, const QColor& color, const QTransform& toPage);
    [[nodiscard]] std::uint16_t numberOf(std::size_t font, const CShapedRun& run,
                                         std::size_t glyph);
    [[nodiscard]] bool tellLetters(const CShapedRun& run);
    [[nodiscard]] std::vector<std::uint16_t> numbersOf(std::size_t font, const CShapedRun& run,
                                                       std::size_t glyph);
    [[nodiscard]] CFileGlyphs glyphsOf(const CShapedRun& run);
    [[nodiscard]] bool canHaveCells(const CShapedRun& run);
    [[nodiscard]] CFileGlyphs cellsOf(const CShapedRun& run);
    void showRun(const CShapedRun& run, const CFileGlyphs& glyphs, const QTransform& toPage);
    void showGlyphs(const CFileGlyphs& glyphs, double size, const QTransform& toPage);
    void fillOutlines(const CShapedRun& run, const QTransform& toPage);

    std::string m_bytes;
    CState m_state;
    std::optional<CState> m_unclippedState; // what comes back at the end of a clip
    std::vector<CPdfFont> m_fonts;
    CPdfGlyphImages m_images;
    std::vector<std::string> m_shadings;
};

} // namespace tovangl

#endif
