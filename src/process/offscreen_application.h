// SPDX-License-Identifier: MIT
/// @file
/// The application object that fonts and painting need in a host without a display.
#ifndef TOVANGL_PROCESS_OFFSCREEN_APPLICATION_H
#define TOVANGL_PROCESS_OFFSCREEN_APPLICATION_H

namespace tovangl {

/// Makes the application object if the process has none. It runs when the library is loaded, and
/// before every rendering, because a host may have destroyed its own object meanwhile.
///
/// The object is never destroyed, because a host may have its own by then. While it is made, Qt's
/// messages are discarded, and the host's C locale is preserved.
///
/// @return whether pictures can be drawn; false if Qt's offscreen platform plugin is missing
bool ensureApplication();

} // namespace tovangl

#endif
