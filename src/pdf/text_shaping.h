// SPDX-License-Identifier: MIT
/// @file
/// The glyphs of a text that a painter paints.
#ifndef TOVANGL_PDF_TEXT_SHAPING_H
#define TOVANGL_PDF_TEXT_SHAPING_H

#include <QGlyphRun>
#include <QPointF>
#include <QString>

#include <cstdint>
#include <set>
#include <vector>

class QTextItem;

namespace tovangl {

/// Glyphs of one face.
struct CShapedRun
{
    QRawFont face;
    bool isBold = false; ///< as the text is; Qt makes letters bold where the family has none
    std::vector<std::uint32_t> glyphs; ///< from left to right
    std::vector<QPointF> positions;    ///< of the glyphs, from the left end of the baseline
    /// What each glyph stands for; empty where letters are joined, reordered or combined.
    std::vector<QString> letters;
    /// The letters from left to right, if the text is read from right to left.
    std::vector<QString> turnedLetters;
    double right = 0;                 ///< where the run ends, if it is the only one
    std::set<std::uint32_t> pictures; ///< those of the glyphs that images show

    [[nodiscard]] bool isPicture(std::size_t i) const { return pictures.count(glyphs[i]) > 0; }
};

/// Whether these are the two letters of Arabic that always become one glyph.
[[nodiscard]] bool isLamAlef(const QString& letters);

/// The runs of a text item, from left to right.
[[nodiscard]] std::vector<CShapedRun> shapeItem(const QTextItem& item);

} // namespace tovangl

#endif
