// SPDX-License-Identifier: MIT
/// @file
/// What the ids of a picture begin with.
#ifndef TOVANGL_SVG_PICTURE_ID_H
#define TOVANGL_SVG_PICTURE_ID_H

#include <string>

namespace tovangl {

/// Stands for the picture's id as long as the picture is being written. No other part of a picture
/// can hold these characters.
[[nodiscard]] std::string pictureId();

/// Gives a finished picture its id, which is computed from all of it: pictures in one page share
/// ids only if they are equal, and then it does not matter which of them an id means.
void setPictureId(std::string& picture);

} // namespace tovangl

#endif
