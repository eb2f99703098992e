// SPDX-License-Identifier: MIT
/// @file
/// A chart described in a small text file.
#ifndef TOVANGL_LAYOUT_CHART_FILE_H
#define TOVANGL_LAYOUT_CHART_FILE_H

#include <QColor>
#include <QSize>
#include <QString>

#include <optional>
#include <string>
#include <vector>

namespace tovangl {

/// What one file says. A file has one setting a line, `#` begins a comment line:
///
///     kind pie|bars|lying            (required)
///     size WIDTH HEIGHT              (required)
///     background
///     print FACTOR                   draws for print
///     set NAME VALUE                 a setting by its name in the library's table
///     item VALUE [CAPTION]           \n in a caption is a line break
///     painted VALUE COLOR CAPTION    an item in a colour of its own
///     repeat COUNT VALUE STEP        COUNT items named "item 1" and so on
struct CChartFile
{
    struct CItem
    {
        long long value = 0;
        QString text;
        QColor color;
    };
    struct CSetting
    {
        std::string name;
        std::string value;
    };

    QString kind;
    QSize size;
    bool background = false;
    std::optional<int> printFactor;
    std::vector<CSetting> settings; ///< by name, in the order in which they are set
    std::vector<CItem> items;
};

/// Reads a file. Throws std::runtime_error that names the line where there is a mistake.
[[nodiscard]] CChartFile readChartFile(const std::string& path);

} // namespace tovangl

#endif
