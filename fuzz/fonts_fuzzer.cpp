// SPDX-License-Identifier: MIT
// Takes any bytes for a font file: reads its names, renames it, adds it, and draws with it.
#include "failed_promise.h"
#include "seeded_fault.h"
#include "support/CAnyChart.h"
#include "text/font_file.h"

namespace tovangl {
namespace {

constexpr int kWidth = 120;
constexpr int kHeight = 90;

// Added fonts stay for good, and would use up the memory of a long run. From then on only the
// reading of files is tried.
constexpr int kMostFonts = 4000;

std::string_view viewOf(const QByteArray& bytes)
{
    return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
}

// Where the parts of a file overlap, its new names can make it unreadable, but never another file.
void renameFonts(std::string_view file, const std::vector<QString>& families)
{
    const std::vector<QString> names(families.size(), QStringLiteral("renamed"));
    std::vector<QString> found = familiesInFile(viewOf(renamedFile(file, names)));
    if (isFaultSeeded())
        found.push_back(names.front());
    require(found.empty() || found.size() == names.size(), "a renamed file has as many fonts");
}

void drawWith(const std::string& family)
{
    CAnyChart chart(ChartKind::Pie, false);
    chart.graph().setFont(family, 11);
    chart.addItem(3, "Caption \xd8\xa7 12");
    require(chart.createPixmap(kWidth, kHeight).size > 0, "a chart is drawn with any font");
}

} // namespace
} // namespace tovangl

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace tovangl;
    const std::string_view file(reinterpret_cast<const char*>(data), size);
    const std::vector<QString> families = familiesInFile(file);
    if (!families.empty())
        renameFonts(file, families);
    static int fonts = 0;
    fonts += static_cast<int>(families.size());
    if (fonts > kMostFonts)
        return 0;
    const std::vector<std::string> added = addFont(data, size);
    require(added.size() <= families.size(), "only families of the file are added");
    for (const std::string& family : added)
        drawWith(family);
    return 0;
}
