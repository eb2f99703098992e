// SPDX-License-Identifier: MIT
/// @file
/// The bytes of a picture file.
#ifndef TOVANGL_OUTPUT_CPICTUREFILE_H
#define TOVANGL_OUTPUT_CPICTUREFILE_H

#include <cstddef>
#include <memory>

namespace tovangl {

struct CPictureFile
{
    std::unique_ptr<unsigned char[]> data;
    std::size_t size = 0;
};

/// What stands for a picture that cannot be made: no bytes, but a pointer that is not null.
[[nodiscard]] inline CPictureFile noPictureFile()
{
    return {std::make_unique<unsigned char[]>(0), 0};
}

} // namespace tovangl

#endif
