// SPDX-License-Identifier: MIT
// Turns a painted picture into the bytes of a PNG file.
#include "output/png_encoding.h"

#include "output/CDeflater.h"
#include "output/CPngBuilder.h"
#include "output/packed_picture.h"

#include <QImage>

#include <algorithm>

namespace tovangl {

CPictureFile encodePng(QImage& picture, Compression compression)
{
    if (picture.isNull())
        return noPictureFile();
    const CPackedPicture packed = packPicture(picture, compression);
    CDeflater deflater(packed, compression);
    // For nearly every chart the compressed rows fit into the memory that packing has freed.
    if (const std::size_t size = deflater.deflate(packed.spare)) {
        CPngBuilder builder(packed, size);
        std::copy_n(packed.spare.data, size, builder.room().data);
        return builder.finish(size);
    }
    CPngBuilder builder(packed, deflater.bound());
    return builder.finish(deflater.deflate(builder.room()));
}

} // namespace tovangl
