// SPDX-License-Identifier: MIT
// The places where the pictures of a batch can go.
#include "tovangl-chart/batch_sinks.h"

#include "common/CFailure.h"
#include "common/CWholeFile.h"
#include "common/output_files.h"

#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>
#include <unistd.h>

namespace tovangl::program {

namespace {

std::string makeFolder(const std::string& path)
{
    std::error_code error;
    std::filesystem::create_directories(path, error);
    if (error)
        throw systemFailure(path, error.value());
    return path + '/';
}

// The last chunk of a PNG file, which is empty.
constexpr std::string_view kPngEnd("\0\0\0\0IEND\xae\x42\x60\x82", 12);
constexpr std::string_view kSvgEnd("</svg>");
constexpr std::string_view kPdfEnd("\n%%EOF\n");
constexpr std::string_view kMapEnd("\n}\n");

// What every whole file of a format ends in.
std::string_view pictureEnd(PictureFormat format)
{
    switch (format) {
    case PictureFormat::Svg:
        return kSvgEnd;
    case PictureFormat::Pdf:
        return kPdfEnd;
    case PictureFormat::Png:
        break;
    }
    return kPngEnd;
}

// After a failure of the machine, a file can be there without its bytes. Only a file is opened: a
// pipe would wait for somebody to write.
bool endsIn(const std::string& path, std::string_view end)
{
    std::error_code error;
    if (!std::filesystem::is_regular_file(path, error))
        return false;
    std::ifstream file(path, std::ios::binary);
    std::string found(end.size(), ' ');
    file.seekg(-static_cast<std::streamoff>(end.size()), std::ios::end);
    file.read(found.data(), static_cast<std::streamsize>(found.size()));
    return file && found == end;
}

std::string textOrNull(const std::string& text)
{
    return text.empty() ? "null" : nlohmann::json(text).dump();
}

// A map is JSON already, and long: it is not read again.
std::string frameHeader(const BatchAnswer& answer)
{
    const std::string& problem = answer.failure.empty() ? answer.problem : answer.failure;
    return "{\"line\":" + std::to_string(answer.line) + ",\"id\":" + textOrNull(answer.id) +
           ",\"bytes\":" + std::to_string(answer.picture.size()) +
           ",\"regions\":" + (answer.map.empty() ? "null" : answer.map) +
           ",\"description\":" + textOrNull(answer.description) +
           ",\"problem\":" + textOrNull(problem) + "}\n";
}

} // namespace

std::string pictureName(const std::string& id, PictureFormat format)
{
    return id + '.' + formatName(format);
}

std::string mapName(const std::string& id)
{
    return id + ".json";
}

CFolderSink::CFolderSink(const std::string& path, PictureFormat format)
    : m_path(makeFolder(path))
    , m_format(format)
{
    if (::access(m_path.c_str(), W_OK | X_OK) != 0)
        throw systemFailure(path);
}

// The picture comes last, so that a map never lacks beside it.
void CFolderSink::put(const BatchAnswer& answer)
{
    if (!answer.failure.empty())
        return;
    if (!answer.map.empty())
        write(mapName(answer.id), answer.map);
    write(pictureName(answer.id, m_format), answer.picture);
}

void CFolderSink::finish()
{
    const COpenFile folder(::open(m_path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC), m_path);
    folder.bringFileSystemToDisk();
}

bool CFolderSink::has(const std::string& id, MapForm map) const
{
    return endsIn(m_path + pictureName(id, m_format), pictureEnd(m_format)) &&
           (map == MapForm::None || endsIn(m_path + mapName(id), kMapEnd));
}

void CFolderSink::write(const std::string& name, const std::string& bytes) const
{
    CWholeFile file(m_path + name);
    file.write(bytes);
    file.publish();
}

CFrameSink::CFrameSink()
    : m_output(::fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, 0), "standard output")
{
    refuseTerminal(kStandardOutput);
}

// In one piece, which a host can read at once.
void CFrameSink::put(const BatchAnswer& answer)
{
    m_output.write(frameHeader(answer) + answer.picture);
}

void CFrameSink::finish()
{
    m_output.close();
}

} // namespace tovangl::program
