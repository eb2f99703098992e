// SPDX-License-Identifier: MIT
/// @file
/// What the peers on Qt share: the look of the charts as Qt types, and the encoding as PNG.
#ifndef TOVANGL_BENCHMARKS_PEERS_QT_PEER_H
#define TOVANGL_BENCHMARKS_PEERS_QT_PEER_H

#include "peers/palette.h"
#include "support/timed_rounds.h"

#include <QColor>
#include <QFont>

class QImage;

namespace tovangl {
namespace bench {

/// Lets Qt run without a display; before the application object is made.
void useOffscreenPlatform();

[[nodiscard]] QColor fillColor(int place);
[[nodiscard]] QColor outlineColor(int place);
[[nodiscard]] QColor gridColor();
[[nodiscard]] QFont peerFont();

/// The picture as PNG bytes, which live until the next call.
[[nodiscard]] CPictureBytes encode(const QImage& image);

} // namespace bench
} // namespace tovangl

#endif
