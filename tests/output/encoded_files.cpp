// SPDX-License-Identifier: MIT
// Files of pictures, and what is in them.
#include "output/encoded_files.h"

namespace tovangl {

std::string bytesOf(const CPictureFile& file)
{
    return std::string(reinterpret_cast<const char*>(file.data.get()), file.size);
}

CPictureFile encoded(const QImage& picture, Compression compression)
{
    QImage copy = picture.copy();
    return encodePng(copy, compression);
}

std::string chunkOf(const std::string& file, const std::string& type)
{
    constexpr std::size_t kSignature = 8;
    constexpr std::size_t kFrame = 12;
    for (std::size_t at = kSignature; at + kFrame <= file.size();) {
        std::size_t length = 0;
        for (std::size_t i = 0; i < 4; ++i)
            length = length << 8 | static_cast<unsigned char>(file[at + i]);
        if (file.compare(at + 4, 4, type) == 0)
            return file.substr(at + 8, length);
        at += length + kFrame;
    }
    return "";
}

} // namespace tovangl
