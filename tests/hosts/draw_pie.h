// SPDX-License-Identifier: MIT
/// @file
/// What every small host does: it draws one pie and writes it to a file.
#ifndef TOVANGL_HOSTS_DRAW_PIE_H
#define TOVANGL_HOSTS_DRAW_PIE_H

#include <tovangl/PieGraph.h>

#include <cstdio>
#include <string>

struct PieExport
{
    std::string bytes; // empty where it cannot be drawn
    tovangl::Problem problem;
};

/// A pie, red above and blue below, as PNG. Its captions are in scripts that few fonts have, about
/// which Qt would print warnings.
inline PieExport exportPie(int width = 400, int height = 300)
{
    tovangl::PieGraph pie(false);
    pie.addItem(1, "above \xe0\xa4\x8a\xe0\xa4\xaa\xe0\xa4\xb0", tovangl::Color{200, 30, 30});
    pie.addItem(1, "below \xd8\xa3\xd8\xb3\xd9\x81\xd9\x84 \xf0\x9f\x98\x80",
                tovangl::Color{30, 30, 200});
    unsigned char* data = nullptr;
    int size = 0;
    pie.createPixmap(width, height, &data, &size);
    return {std::string(reinterpret_cast<const char*>(data), static_cast<std::size_t>(size)),
            pie.problem()};
}

/// Draws the pie into folder/name.png. Returns whether the file was written.
inline bool drawPie(const std::string& folder, const std::string& name)
{
    std::FILE* file = std::fopen((folder + '/' + name + ".png").c_str(), "wb");
    if (!file)
        return false;
    const std::string bytes = exportPie().bytes;
    const bool isWritten = std::fwrite(bytes.data(), 1, bytes.size(), file) == bytes.size();
    return std::fclose(file) == 0 && isWritten;
}

#endif
