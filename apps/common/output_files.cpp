// SPDX-License-Identifier: MIT
// Writes the results of a program so that no file is ever left half-written.
#include "common/output_files.h"

#include "common/CFailure.h"
#include "common/COpenFile.h"

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <memory>
#include <optional>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace tovangl::program {

namespace {

constexpr mode_t kAllPermissions = 07777;

using FileStatus = struct stat;

std::string nameOf(const std::string& path)
{
    return path == kStandardOutput ? "standard output" : path;
}

/// What the path leads to; nothing if a new file would be made. A dangling link is refused, because
/// making its target could put a file where nobody expects one.
std::optional<FileStatus> statusOf(const std::string& path)
{
    FileStatus status = {};
    if (::stat(path.c_str(), &status) == 0)
        return status;
    const int error = errno;
    if (error != ENOENT || ::lstat(path.c_str(), &status) == 0)
        throw systemFailure(path, error);
    return std::nullopt;
}

bool isStandardOutput(const FileStatus& status)
{
    FileStatus standard = {};
    return ::fstat(STDOUT_FILENO, &standard) == 0 && standard.st_dev == status.st_dev &&
           standard.st_ino == status.st_ino;
}

/// "/dev/stdout" counts as standard output even if that is a file, because the user means the
/// shell's open file, not a new one in its place.
bool leadsToStandardOutput(const std::string& path)
{
    if (path == kStandardOutput)
        return true;
    const std::optional<FileStatus> status = statusOf(path);
    return status && isStandardOutput(*status);
}

void writeStream(const Output& output)
{
    COpenFile file(openStream(output.path), nameOf(output.path));
    file.write(output.bytes);
    file.close();
}

/// Holds back the signals that end a program, so that none of them leaves a file under its
/// provisional name.
class CSignalPause
{
public:
    CSignalPause()
    {
        sigset_t signals;
        ::sigemptyset(&signals);
        for (int signal : {SIGHUP, SIGINT, SIGQUIT, SIGTERM})
            ::sigaddset(&signals, signal);
        ::sigprocmask(SIG_BLOCK, &signals, &m_before);
    }

    ~CSignalPause() { ::sigprocmask(SIG_SETMASK, &m_before, nullptr); }

    CSignalPause(const CSignalPause&) = delete;
    CSignalPause& operator=(const CSignalPause&) = delete;

private:
    sigset_t m_before = {};
};

std::string resolveLinks(const std::string& path)
{
    const std::unique_ptr<char, decltype(&std::free)> real(::realpath(path.c_str(), nullptr),
                                                           &std::free);
    if (!real)
        throw systemFailure(path);
    return real.get();
}

/// A provisional file beside its final place, which the destructor removes unless it was moved
/// there.
class CStagedFile
{
public:
    explicit CStagedFile(const std::string& path)
        : m_name(path)
        , m_target(path)
    {}

    ~CStagedFile()
    {
        if (!m_provisional.empty())
            ::unlink(m_provisional.c_str());
    }

    CStagedFile(const CStagedFile&) = delete;
    CStagedFile& operator=(const CStagedFile&) = delete;

    void write(std::string_view bytes)
    {
        const mode_t permissions = prepareTarget();
        std::string provisional = m_target.substr(0, m_target.rfind('/') + 1) + ".tovangl-XXXXXX";
        COpenFile file(::mkostemp(provisional.data(), O_CLOEXEC), m_name);
        m_provisional = std::move(provisional);
        file.write(bytes);
        file.setPermissions(permissions);
        file.bringToDisk();
        file.close();
    }

    /// Moves the written file to its final place.
    void publish()
    {
        if (::rename(m_provisional.c_str(), m_target.c_str()) != 0)
            throw systemFailure(m_name);
        m_provisional.clear();
    }

private:
    /// Finds the file to be replaced, if there is one.
    ///
    /// @return the permissions for the new file
    mode_t prepareTarget()
    {
        const std::optional<FileStatus> old = statusOf(m_name);
        if (!old)
            return maskedPermissions(kNewFilePermissions);
        requireReplaceable(*old);
        m_target = resolveLinks(m_name);
        return old->st_mode & kAllPermissions;
    }

    /// Renaming needs no permission for the file that it replaces, but a write-protected file must
    /// stay.
    void requireReplaceable(const FileStatus& old) const
    {
        if (S_ISDIR(old.st_mode))
            throw systemFailure(m_name, EISDIR);
        if (::access(m_name.c_str(), W_OK) != 0)
            throw systemFailure(m_name);
    }

    std::string m_name;
    std::string m_target;
    std::string m_provisional;
};

void writeFiles(const std::vector<const Output*>& outputs)
{
    const CSignalPause pause;
    std::vector<std::unique_ptr<CStagedFile>> staged;
    for (const Output* output : outputs) {
        staged.push_back(std::make_unique<CStagedFile>(output->path));
        staged.back()->write(output->bytes);
    }
    for (const std::unique_ptr<CStagedFile>& file : staged)
        file->publish();
}

} // namespace

bool isStream(const std::string& path)
{
    if (leadsToStandardOutput(path))
        return true;
    const std::optional<FileStatus> status = statusOf(path);
    return status && !S_ISREG(status->st_mode) && !S_ISDIR(status->st_mode);
}

int openStream(const std::string& path)
{
    return leadsToStandardOutput(path) ? STDOUT_FILENO
                                       : ::open(path.c_str(), O_WRONLY | O_NOCTTY | O_CLOEXEC);
}

void writeOutputs(const std::vector<Output>& outputs)
{
    // Streams first: they can block for as long as a reader likes, so no provisional file should
    // exist yet, and files must appear only after the streams have succeeded.
    std::vector<const Output*> files;
    for (const Output& output : outputs) {
        if (isStream(output.path))
            writeStream(output);
        else
            files.push_back(&output);
    }
    writeFiles(files);
}

void refuseTerminal(const std::string& path)
{
    if (leadsToStandardOutput(path) && ::isatty(STDOUT_FILENO))
        throw CFailure("standard output is a terminal, which cannot show a picture; write it to a "
                       "file with -o FILE");
}

bool isSamePlace(const std::string& first, const std::string& second)
{
    if (leadsToStandardOutput(first) || leadsToStandardOutput(second))
        return leadsToStandardOutput(first) && leadsToStandardOutput(second);
    if (!statusOf(first) || !statusOf(second))
        return first == second;
    return resolveLinks(first) == resolveLinks(second);
}

} // namespace tovangl::program
