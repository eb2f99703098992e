// SPDX-License-Identifier: MIT
// Keeps fontconfig's complaints out of the host's output.
#include "process/CStderrSilencer.h"

#include <atomic>
#include <cstddef>
#include <thread>

namespace tovangl {

namespace {

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
    : m_hostStream(stderr)
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
