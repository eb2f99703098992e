// SPDX-License-Identifier: MIT
// A tar archive with the pictures of a batch.
#include "common/CFailure.h"
#include "common/CWholeFile.h"
#include "common/output_files.h"
#include "tovangl-chart/batch_sinks.h"

#include <archive.h>
#include <archive_entry.h>
#include <exception>
#include <optional>
#include <unistd.h>

namespace tovangl::program {

namespace {

constexpr mode_t kPermissions = 0644;

using Archive = std::unique_ptr<archive, int (*)(archive*)>;
using Entry = std::unique_ptr<archive_entry, void (*)(archive_entry*)>;

/// A stream, or a file that appears when it is whole.
class CArchiveFile
{
public:
    explicit CArchiveFile(const std::string& path)
    {
        if (isStream(path))
            m_stream.emplace(openStream(path), path == kStandardOutput ? "standard output" : path);
        else
            m_file.emplace(path);
    }

    void write(std::string_view bytes) const
    {
        if (m_stream)
            m_stream->write(bytes);
        else
            m_file->write(bytes);
    }

    void finish()
    {
        if (m_stream) {
            m_stream->close();
            return;
        }
        m_file->bringToDisk();
        m_file->publish();
    }

private:
    std::optional<COpenFile> m_stream;
    std::optional<CWholeFile> m_file;
};

/// The same charts give the same archive: no times, no owners.
class CTarSink : public CBatchSink
{
public:
    CTarSink(const std::string& path, PictureFormat format)
        : m_name(path)
        , m_format(format)
        , m_file(path)
        , m_archive(::archive_write_new(), &::archive_write_free)
        , m_entry(::archive_entry_new(), &::archive_entry_free)
    {
        if (!m_archive || !m_entry)
            throw std::bad_alloc();
        require(::archive_write_set_format_pax_restricted(m_archive.get()));
        require(::archive_write_open(m_archive.get(), this, nullptr, &writeBytes, nullptr));
    }

    // What was begun must not be written out any more.
    ~CTarSink() override { m_isBrokenOff = true; }

    CTarSink(const CTarSink&) = delete;
    CTarSink& operator=(const CTarSink&) = delete;

    void put(const BatchAnswer& answer) override
    {
        if (!answer.failure.empty())
            return;
        add(pictureName(answer.id, m_format), answer.picture);
        if (!answer.map.empty())
            add(mapName(answer.id), answer.map);
    }

    void finish() override
    {
        require(::archive_write_close(m_archive.get()));
        m_file.finish();
    }

private:
    void add(const std::string& name, const std::string& bytes)
    {
        archive_entry* entry = ::archive_entry_clear(m_entry.get());
        ::archive_entry_set_pathname(entry, name.c_str());
        ::archive_entry_set_size(entry, static_cast<la_int64_t>(bytes.size()));
        ::archive_entry_set_filetype(entry, AE_IFREG);
        ::archive_entry_set_perm(entry, kPermissions);
        require(::archive_write_header(m_archive.get(), entry));
        const la_ssize_t count = ::archive_write_data(m_archive.get(), bytes.data(), bytes.size());
        require(count < 0 ? static_cast<int>(count) : ARCHIVE_OK);
    }

    // No exception may pass through the library: it is kept, and thrown when the call is back.
    static la_ssize_t writeBytes(archive* /*archive*/, void* self, const void* bytes,
                                 std::size_t count)
    {
        auto* sink = static_cast<CTarSink*>(self);
        if (sink->m_isBrokenOff)
            return static_cast<la_ssize_t>(count);
        try {
            sink->m_file.write({static_cast<const char*>(bytes), count});
            return static_cast<la_ssize_t>(count);
        } catch (...) {
            sink->m_failure = std::current_exception();
            return -1;
        }
    }

    void require(int result) const
    {
        if (m_failure)
            std::rethrow_exception(m_failure);
        if (result < ARCHIVE_WARN)
            throw CFailure(m_name + ": " + ::archive_error_string(m_archive.get()));
    }

    std::string m_name;
    PictureFormat m_format;
    CArchiveFile m_file;
    std::exception_ptr m_failure;
    bool m_isBrokenOff = false;
    Archive m_archive; // freeing it writes its rest, which needs the fields above
    Entry m_entry;
};

} // namespace

std::unique_ptr<CBatchSink> makeTarSink(const std::string& path, PictureFormat format)
{
    refuseTerminal(path);
    return std::make_unique<CTarSink>(path, format);
}

} // namespace tovangl::program
