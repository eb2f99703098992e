// SPDX-License-Identifier: MIT
/// @file
/// Compresses the rows of one picture.
#ifndef TOVANGL_OUTPUT_CDEFLATER_H
#define TOVANGL_OUTPUT_CDEFLATER_H

#include "output/CByteRange.h"
#include <tovangl/Compression.h>

#include <memory>

struct libdeflate_compressor;

namespace tovangl {

/// Makes a zlib stream of bytes that are all at hand. The stream depends on the bytes and the
/// setting alone.
class CDeflater
{
public:
    CDeflater(CByteRange bytes, Compression compression);

    /// Compresses into the room, if the stream fits.
    ///
    /// @return the stream's length; 0 where it does not fit
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
    std::unique_ptr<libdeflate_compressor, CFree> m_compressor; // made where it is needed
};

} // namespace tovangl

#endif
