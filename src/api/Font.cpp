// SPDX-License-Identifier: MIT
// Fonts that the host brings along.
#include "process/CAddedFonts.h"
#include "process/CDefaultArithmetic.h"
#include "process/CMessageSilencer.h"
#include "process/CRendering.h"
#include "process/font_gate.h"
#include "process/host_file.h"
#include "text/font_file.h"
#include <tovangl/Font.h>

#include <algorithm>
#include <string_view>

namespace tovangl {

namespace {

// Each once: a collection has several fonts of a family.
std::vector<std::string> toStrings(const std::vector<QString>& names)
{
    std::vector<std::string> strings;
    for (const QString& name : names) {
        std::string text = name.toStdString();
        if (std::find(strings.begin(), strings.end(), text) == strings.end())
            strings.push_back(std::move(text));
    }
    return strings;
}

} // namespace

std::vector<std::string> addFont(const unsigned char* bytes, std::size_t size)
{
    if (!bytes)
        return {};
    const CDefaultArithmetic arithmetic;
    const std::string_view file(reinterpret_cast<const char*>(bytes), size);
    const std::vector<QString> families = familiesInFile(file);
    if (families.empty())
        return {};
    std::vector<std::string> names = toStrings(families);
    const CFontChange change;
    const CMessageSilencer silencer;
    const bool canPaint = findObstacle() == Problem::None;
    if (!canPaint || !CAddedFonts::ofProcess().add(file, families))
        names.clear();
    return names;
}

std::vector<std::string> addFont(const std::string& path)
{
    const std::vector<unsigned char> bytes = readHostFile(path);
    return addFont(bytes.data(), bytes.size());
}

} // namespace tovangl
