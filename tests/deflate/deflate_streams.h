// SPDX-License-Identifier: MIT
/// @file
/// Deflate streams, made and read by libdeflate.
#ifndef TOVANGL_DEFLATE_DEFLATE_STREAMS_H
#define TOVANGL_DEFLATE_DEFLATE_STREAMS_H

#include <libdeflate.h>
#include <memory>
#include <random>
#include <vector>

namespace tovangl {

using Bytes = std::vector<unsigned char>;

/// Bytes that repeat earlier ones, with some new ones.
inline Bytes repetitiveBytes(std::size_t size)
{
    Bytes bytes(size);
    std::minstd_rand random;
    for (std::size_t i = 0; i < size; ++i)
        bytes[i] =
            i % 1000 == 0 || i < 1000 ? static_cast<unsigned char>(random()) : bytes[i - 1000];
    return bytes;
}

/// Bytes that nothing makes smaller.
inline Bytes anyBytes(std::size_t size)
{
    Bytes bytes(size);
    std::mt19937 random;
    for (unsigned char& byte : bytes)
        byte = static_cast<unsigned char>(random());
    return bytes;
}

/// A stream without a zlib header.
inline Bytes rawDeflated(const Bytes& bytes, int level)
{
    const std::unique_ptr<libdeflate_compressor, decltype(&libdeflate_free_compressor)> compressor(
        libdeflate_alloc_compressor(level), libdeflate_free_compressor);
    Bytes stream(libdeflate_deflate_compress_bound(compressor.get(), bytes.size()));
    stream.resize(libdeflate_deflate_compress(compressor.get(), bytes.data(), bytes.size(),
                                              stream.data(), stream.size()));
    return stream;
}

/// The content of a stream without a zlib header; empty if it is not one of that many bytes.
inline Bytes rawInflated(const Bytes& stream, std::size_t size)
{
    const std::unique_ptr<libdeflate_decompressor, decltype(&libdeflate_free_decompressor)>
        decompressor(libdeflate_alloc_decompressor(), libdeflate_free_decompressor);
    Bytes bytes(size);
    const auto result = libdeflate_deflate_decompress(
        decompressor.get(), stream.data(), stream.size(), bytes.data(), bytes.size(), nullptr);
    return result == LIBDEFLATE_SUCCESS ? bytes : Bytes();
}

/// The content of a stream with a zlib header; empty if it is not one of that many bytes.
inline Bytes inflated(const Bytes& stream, std::size_t size)
{
    const std::unique_ptr<libdeflate_decompressor, decltype(&libdeflate_free_decompressor)>
        decompressor(libdeflate_alloc_decompressor(), libdeflate_free_decompressor);
    Bytes bytes(size);
    const auto result = libdeflate_zlib_decompress(decompressor.get(), stream.data(), stream.size(),
                                                   bytes.data(), bytes.size(), nullptr);
    return result == LIBDEFLATE_SUCCESS ? bytes : Bytes();
}

} // namespace tovangl

#endif
