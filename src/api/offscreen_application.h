// SPDX-License-Identifier: MIT
/// @file
/// The application object that fonts and painting need in a host without a display.
#ifndef TOVANGL_API_OFFSCREEN_APPLICATION_H
#define TOVANGL_API_OFFSCREEN_APPLICATION_H

namespace tovangl {

/// Makes the application object where the process has none. It runs when the library is loaded, and
/// before every rendering, because a host may have destroyed its own object meanwhile.
///
/// The object is never destroyed, because a host may have one of its own by then. Qt's messages are
/// discarded while it is made, and the host's C locale stays as it was.
///
/// @return whether pictures can be drawn; false where Qt's offscreen platform plugin is missing
bool ensureApplication();

} // namespace tovangl

#endif
