// SPDX-License-Identifier: MIT
// Reads a file that a host names.
#include "process/host_file.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tovangl {

namespace {

constexpr off_t kLargestFile = off_t{1} << 28; // bytes

class COpenedFile
{
public:
    // Without O_NONBLOCK, a pipe that nobody writes to would make this wait.
    explicit COpenedFile(const char* path)
        : m_descriptor(::open(path, O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY))
    {}
    ~COpenedFile()
    {
        if (m_descriptor >= 0)
            ::close(m_descriptor);
    }
    COpenedFile(const COpenedFile&) = delete;
    COpenedFile& operator=(const COpenedFile&) = delete;

    // 0 if it is no file that can be read to its end.
    [[nodiscard]] std::size_t size() const
    {
        struct stat status = {};
        if (m_descriptor < 0 || ::fstat(m_descriptor, &status) != 0 || !S_ISREG(status.st_mode) ||
            status.st_size > kLargestFile)
            return 0;
        return static_cast<std::size_t>(status.st_size);
    }

    // As many bytes as the buffer has, or all that there are; negative if reading fails.
    [[nodiscard]] ssize_t read(unsigned char* bytes, std::size_t size) const
    {
        ssize_t count = 0;
        do {
            count = ::read(m_descriptor, bytes, size);
        } while (count < 0 && errno == EINTR);
        return count;
    }

private:
    int m_descriptor;
};

} // namespace

std::vector<unsigned char> readHostFile(const std::string& path)
{
    if (path.find('\0') != std::string::npos)
        return {};
    const COpenedFile file(path.c_str());
    std::vector<unsigned char> bytes(file.size());
    std::size_t done = 0;
    while (done < bytes.size()) {
        const ssize_t count = file.read(bytes.data() + done, bytes.size() - done);
        if (count <= 0)
            return {};
        done += static_cast<std::size_t>(count);
    }
    return bytes;
}

} // namespace tovangl
