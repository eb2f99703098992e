// SPDX-License-Identifier: MIT
/// @file
/// The kilo, as the pure algorithms take it.
#ifndef TOVANGL_CORE_CKILO_H
#define TOVANGL_CORE_CKILO_H

namespace tovangl {

/// Base and size of a kilo. The two need not agree: a base that is neither 0 nor 1 has a size of
/// 1000, but is not the base of 1000.
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
