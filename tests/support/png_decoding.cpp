// SPDX-License-Identifier: MIT
// From exported bytes back to pixels.
#include "support/png_decoding.h"

namespace tovangl {

QImage decodePng(const std::string& bytes)
{
    const QImage image = QImage::fromData(reinterpret_cast<const uchar*>(bytes.data()),
                                          static_cast<int>(bytes.size()), "PNG");
    return image.isNull() ? image : image.convertToFormat(QImage::Format_ARGB32);
}

} // namespace tovangl
