// SPDX-License-Identifier: MIT
/// @file
/// Puts the chunks of a PNG file around the compressed rows.
#ifndef TOVANGL_OUTPUT_CPNGBUILDER_H
#define TOVANGL_OUTPUT_CPNGBUILDER_H

#include "deflate/CByteRange.h"
#include "output/CPictureFile.h"
#include "output/packed_picture.h"

#include <memory>

namespace tovangl {

/// Writes everything before the rows, leaves room for them, and closes the file after them.
class CPngBuilder
{
public:
    /// @param room  the maximum size of the compressed rows in bytes
    CPngBuilder(const CPackedPicture& picture, std::size_t room);

    /// Where the compressed rows go.
    [[nodiscard]] CByteRoom room() const;

    /// The finished file, given the actual size of the compressed rows in bytes.
    [[nodiscard]] CPictureFile finish(std::size_t size);

private:
    void writeHeader(const CPackedPicture& picture);
    void writePalette(const std::vector<QRgb>& palette);
    void writeTransparency(const std::vector<QRgb>& palette);
    void writeResolution();

    void beginChunk(const char* type, std::size_t size);
    void endChunk();
    void writeByte(unsigned value);
    void writeNumber(std::size_t value);

    std::size_t m_room;
    std::unique_ptr<unsigned char[]> m_data;
    unsigned char* m_next;                    // where the next byte goes
    const unsigned char* m_checked = nullptr; // where the checksum of the current chunk begins
};

} // namespace tovangl

#endif
