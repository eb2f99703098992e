// SPDX-License-Identifier: MIT
/// @file
/// What happens when exit() ends the process while threads draw.
///
/// Qt creates tables when it first paints this or that, and registers their destruction as an exit
/// handler. exit() runs the latest handler first, while other threads go on. So the library's own
/// handlers let pictures be finished, and refuse further ones, before that:
///
/// - One is registered when exit() has just begun, where the thread that loaded the library calls
///   it, which is the main thread of most hosts. It runs before all others: pictures that other
///   threads begin meanwhile wait for it. From then on this thread alone may draw, for handlers of
///   the host's.
/// - The same is registered again after the second, fourth, eighth picture and so on, for other
///   threads that call exit(). It is older than what Qt has created since. A process that ends so
///   during its first pictures can crash.
/// - One is registered after the first picture. From then on no thread may draw.
#ifndef TOVANGL_PROCESS_PROCESS_END_H
#define TOVANGL_PROCESS_PROCESS_END_H

namespace tovangl {

/// Whether the end of the process has come so far that the calling thread may not draw. Where the
/// main thread has just ended without exit(), the answer takes a tenth of a second, once.
[[nodiscard]] bool isProcessEnding();

/// To be called at the end of each picture, in its scope.
void notePicture();

} // namespace tovangl

#endif
