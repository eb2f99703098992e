// SPDX-License-Identifier: MIT
/// @file
/// Compresses the rows of one picture.
#ifndef TOVANGL_OUTPUT_CDEFLATER_H
#define TOVANGL_OUTPUT_CDEFLATER_H

#include "output/packed_picture.h"
#include <tovangl/Compression.h>

#include <memory>

struct libdeflate_compressor;

namespace tovangl {

/// Compresses bytes that are all in memory into a zlib stream. The stream depends only on the
/// bytes, on which of them are still rows, and on the setting.
class CDeflater
{
public:
    CDeflater(const CPackedPicture& picture, Compression compression);
    CDeflater(CByteRange bytes, Compression compression, CStillRows still = CStillRows());

    /// Compresses into the room, if the stream fits.
    ///
    /// @return the stream's length; 0 if it does not fit
    [[nodiscard]] std::size_t deflate(CByteRoom room);

    /// The length that no stream exceeds.
    [[nodiscard]] std::size_t bound();

private:
    struct CFree
    {
        void operator()(libdeflate_compressor* compressor) const;
    };

    libdeflate_compressor* compressor();

    CByteRange m_bytes;
    Compression m_compression;
    CStillRows m_still;
    CRowShape m_shape;
    std::unique_ptr<libdeflate_compressor, CFree> m_compressor; // made when first needed
};

} // namespace tovangl

#endif
