// SPDX-License-Identifier: MIT
/// @file
/// The kilo, as an argument of the pure algorithms.
#ifndef TOVANGL_BASE_CKILO_H
#define TOVANGL_BASE_CKILO_H

namespace tovangl {

/// Base and size of a kilo. The two can disagree: a base other than 0 and 1 also has a size of
/// 1000, although 1 is the base of 1000.
struct CKilo
{
    int base = 0;    ///< 0: 1024; 1: 1000
    int size = 1024; ///< 1024 or 1000

    [[nodiscard]] constexpr bool isBase1000() const { return base == 1; }
};

inline constexpr CKilo kKilo1024{0, 1024};
inline constexpr CKilo kKilo1000{1, 1000};

} // namespace tovangl

#endif
