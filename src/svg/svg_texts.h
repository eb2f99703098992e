// SPDX-License-Identifier: MIT
/// @file
/// The texts of a chart as SVG.
#ifndef TOVANGL_SVG_SVG_TEXTS_H
#define TOVANGL_SVG_SVG_TEXTS_H

#include <QPointF>

namespace tovangl {

struct CPlacedText;
struct CSvgScene;

/// Writes a text line by line, each as long as the layout measured it: a reader with another font
/// of that name moves nothing.
///
/// @param shift  by which the layout's coordinates are moved
void writeText(CSvgScene& scene, const CPlacedText& text, const QPointF& shift = QPointF());

} // namespace tovangl

#endif
