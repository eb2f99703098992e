// SPDX-License-Identifier: MIT
/// @file
/// Tells whether the process can open files.
#ifndef TOVANGL_PROCESS_FREE_DESCRIPTORS_H
#define TOVANGL_PROCESS_FREE_DESCRIPTORS_H

namespace tovangl {

/// Whether the process can open as many files as Qt and the fonts need at once.
///
/// Without, Qt ends the process when it makes an application object or starts a thread, and takes
/// a font whose file it cannot open for one that does not exist, until the process ends.
[[nodiscard]] bool areDescriptorsFree();

} // namespace tovangl

#endif
