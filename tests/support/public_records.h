// SPDX-License-Identifier: MIT
/// @file
/// Lets tests compare and print the records of the public interface.
#ifndef TOVANGL_SUPPORT_PUBLIC_RECORDS_H
#define TOVANGL_SUPPORT_PUBLIC_RECORDS_H

#include <tovangl/Rectangle.h>

#include <ostream>

namespace tovangl {

inline bool operator==(const Rectangle& a, const Rectangle& b)
{
    return a.x == b.x && a.y == b.y && a.width == b.width && a.height == b.height;
}

inline bool operator!=(const Rectangle& a, const Rectangle& b)
{
    return !(a == b);
}

inline std::ostream& operator<<(std::ostream& stream, const Rectangle& rect)
{
    return stream << '(' << rect.x << ' ' << rect.y << ' ' << rect.width << ' ' << rect.height
                  << ')';
}

} // namespace tovangl

#endif
