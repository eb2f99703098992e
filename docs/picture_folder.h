// SPDX-License-Identifier: MIT
/// @file
/// Writes the pictures of the documentation.
#ifndef TOVANGL_DOCS_PICTURE_FOLDER_H
#define TOVANGL_DOCS_PICTURE_FOLDER_H

#include <tovangl/Graph.h>

#include <cstdio>
#include <fstream>
#include <string>
#include <utility>

/// A folder for pictures of charts. It remembers whether all of them could be written.
class PictureFolder
{
public:
    explicit PictureFolder(std::string path)
        : m_path(std::move(path))
    {}

    void draw(tovangl::Graph& chart, const std::string& name, int width, int height)
    {
        unsigned char* data = nullptr;
        int size = 0;
        chart.createPixmap(width, height, &data, &size);
        write(name + ".png", std::string(reinterpret_cast<const char*>(data), toLength(size)));
    }

    void drawSvg(tovangl::Graph& chart, const std::string& name, int width, int height)
    {
        unsigned char* data = nullptr;
        int size = 0;
        chart.createSvg(width, height, &data, &size);
        write(name + ".svg", std::string(reinterpret_cast<const char*>(data), toLength(size)));
    }

    void drawPdf(tovangl::Graph& chart, const std::string& name, int width, int height)
    {
        unsigned char* data = nullptr;
        int size = 0;
        chart.createPdf(width, height, &data, &size);
        write(name + ".pdf", std::string(reinterpret_cast<const char*>(data), toLength(size)));
    }

    void print(tovangl::Graph& chart, const std::string& name, int width, int height, int factor)
    {
        unsigned char* data = nullptr;
        int size = 0;
        chart.createPixmapForPrinter(width, height, factor, &data, &size);
        write(name + ".png", std::string(reinterpret_cast<const char*>(data), toLength(size)));
    }

    void write(const std::string& name, const std::string& bytes)
    {
        std::ofstream file(m_path + "/" + name, std::ios::binary);
        if (!bytes.empty() && file << bytes && file.flush())
            return;
        miss(name);
    }

    /// Records that something is not there.
    void miss(const std::string& name)
    {
        std::fprintf(stderr, "cannot write %s\n", name.c_str());
        m_isComplete = false;
    }

    bool isComplete() const { return m_isComplete; }

private:
    static std::size_t toLength(int size) { return static_cast<std::size_t>(size); }

    std::string m_path;
    bool m_isComplete = true;
};

#endif
