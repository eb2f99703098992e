// SPDX-License-Identifier: MIT
/// @file
/// Marks what the shared library exports; everything else in it is hidden.
#ifndef TOVANGL_EXPORT_H
#define TOVANGL_EXPORT_H

#if defined(__GNUC__)
#define TOVANGL_EXPORT __attribute__((visibility("default")))
#else
#define TOVANGL_EXPORT
#endif

#endif
