// SPDX-License-Identifier: MIT
// Keeps fontconfig's complaints out of the host's output.
#include "process/CStderrSilencer.h"

#include <QMetaType>

#include <atomic>
#include <cstddef>
#include <thread>

namespace tovangl {

namespace {

std::mutex mutexOfThisCopy;

} // namespace

/// The mutex of the copy of the library that made this object. All copies in a process must agree
/// on its name and its layout, so a new layout needs a new name.
struct CStderrMutex1
{
    std::mutex* mutex = &mutexOfThisCopy;
};

} // namespace tovangl

Q_DECLARE_METATYPE(tovangl::CStderrMutex1)

namespace tovangl {

namespace {

// Static copies of the library in one process share it: each would take the other's stream for the
// host's, and restore it after its end. Qt registers types by name, and has the first copy make an
// object of this one.
std::mutex& sharedMutex()
{
    CStderrMutex1 shared;
    QMetaType(qRegisterMetaType<CStderrMutex1>()).construct(&shared);
    return *shared.mutex;
}

std::atomic<std::thread::id> silentThread;

ssize_t writeOfOthers(void* hostStream, const char* bytes, std::size_t count)
{
    if (silentThread.load() == std::this_thread::get_id())
        return static_cast<ssize_t>(count);
    return static_cast<ssize_t>(std::fwrite(bytes, 1, count, static_cast<std::FILE*>(hostStream)));
}

std::FILE* openStream(std::FILE* hostStream)
{
    cookie_io_functions_t functions = {};
    functions.write = writeOfOthers;
    std::FILE* stream = fopencookie(hostStream, "w", functions);
    if (stream)
        static_cast<void>(std::setvbuf(stream, nullptr, _IONBF, 0));
    return stream;
}

// Other threads read it at any time.
void setStderr(std::FILE* stream)
{
    __atomic_store_n(&stderr, stream, __ATOMIC_RELEASE);
}

} // namespace

CStderrSilencer::CStderrSilencer()
    : m_lock(sharedMutex())
    , m_hostStream(stderr)
    , m_stream(openStream(m_hostStream))
{
    silentThread = std::this_thread::get_id();
    if (m_stream)
        setStderr(m_stream);
}

CStderrSilencer::~CStderrSilencer()
{
    if (m_stream && stderr == m_stream)
        setStderr(m_hostStream);
    silentThread = std::thread::id();
}

} // namespace tovangl
