// SPDX-License-Identifier: MIT
/// @file
/// The places where the pictures of a batch can go.
#ifndef TOVANGL_CHART_BATCH_SINKS_H
#define TOVANGL_CHART_BATCH_SINKS_H

#include "common/COpenFile.h"
#include "tovangl-chart/CBatchSink.h"

#include <memory>
#include <string>

namespace tovangl::program {

/// The names of a chart's files.
[[nodiscard]] std::string pictureName(const std::string& id, PictureFormat format);
[[nodiscard]] std::string mapName(const std::string& id);

/// A folder with a file for each picture and map, each there as a whole or not at all.
class CFolderSink : public CBatchSink
{
public:
    /// @param path  is made if it is not there
    CFolderSink(const std::string& path, PictureFormat format);

    void put(const BatchAnswer& answer) override;
    /// Waits until all files survive a failure of the machine. Once at the end, because each file
    /// on its own would take longer than its chart.
    void finish() override;

    /// Whether the files of an id are there, and whole.
    [[nodiscard]] bool has(const std::string& id, MapForm map) const;

private:
    void write(const std::string& name, const std::string& bytes) const;

    std::string m_path; // ends in a slash
    PictureFormat m_format;
};

/// Standard output: for each line a header in one line of JSON, and the bytes of the picture.
class CFrameSink : public CBatchSink
{
public:
    CFrameSink();

    void put(const BatchAnswer& answer) override;
    void finish() override;

private:
    COpenFile m_output;
};

/// A tar archive with the files that a folder would have.
///
/// @param path  "-" is standard output
[[nodiscard]] std::unique_ptr<CBatchSink> makeTarSink(const std::string& path,
                                                      PictureFormat format);

} // namespace tovangl::program

#endif
