// SPDX-License-Identifier: MIT
// tovangl-chart doctor
#include "common/font_files.h"
#include "common/program_arguments.h"
#include "common/text_checks.h"
#include "tovangl-chart/command_line.h"
#include "tovangl-chart/option_adding.h"
#include <tovangl/Compression.h>
#include <tovangl/Diagnosis.h>
#include <tovangl/PieGraph.h>
#include <tovangl/Version.h>

#include <cstdlib>
#include <iostream>
#include <memory>

namespace tovangl::program {

namespace {

constexpr const char* kName = "doctor";
constexpr const char* kDescription = "Checks that charts can be drawn here, and says what to do";

constexpr const char* kExamples =
    R"(Every line is "good" or "bad"; a bad one says what to do. The exit status is 1 if one is bad.

Examples:
  tovangl-chart doctor
  tovangl-chart doctor --font "DejaVu Serif"
  tovangl-chart doctor --font-file /srv/fonts/DejaVuSans.ttf)";

constexpr int kExitBad = 1;
constexpr int kWidth = 400;  // pixels, of the picture that is tried
constexpr int kHeight = 300; // pixels

struct DoctorOptions
{
    std::optional<std::string> fontFamily;
    std::vector<std::string> fontFiles;
};

/// Prints a line for each thing, and remembers whether one is bad.
class CFindings
{
public:
    void good(const std::string& what, const std::string& finding)
    {
        std::cout << "good  " << what << ": " << makePrintable(finding) << '\n';
    }
    void bad(const std::string& what, const std::string& finding, const std::string& remedy)
    {
        std::cout << "bad   " << what << ": " << makePrintable(finding) << "; " << remedy << '\n';
        m_isAllGood = false;
    }
    [[nodiscard]] int exitStatus() const { return m_isAllGood ? EXIT_SUCCESS : kExitBad; }

private:
    bool m_isAllGood = true;
};

std::string quoted(const std::string& name)
{
    return '"' + name + '"';
}

void checkPlatform(CFindings& findings)
{
    const std::string major = std::string(qtVersion()).substr(0, 1);
    findings.good("Qt", qtVersion());
    const std::string platform = platformName();
    if (platform.empty())
        findings.bad("platform plugin", "none that can be loaded",
                     "install the package libqt" + major + "gui" + major +
                         ", which has the plugin \"offscreen\"");
    else
        findings.good("platform plugin", platform);
}

void checkDefaultFont(CFindings& findings)
{
    const std::string used = usedFontFamily("");
    if (used.empty())
        findings.bad("default font", "no font found",
                     "install the package fonts-dejavu-core, or give a --font-file");
    else
        findings.good("default font", "charts are drawn in " + quoted(used));
}

/// Whether charts are drawn in the family, or in one that the machine means by its name.
bool isThere(const std::string& family)
{
    PieGraph chart(false);
    chart.setFont(family, 11);
    unsigned char* bytes = nullptr;
    int size = 0;
    chart.createPixmap(kWidth, kHeight, &bytes, &size);
    return chart.problem() == Problem::None;
}

void checkFont(const std::string& family, CFindings& findings)
{
    const std::string what = "font " + quoted(makePrintable(family));
    const std::string used = usedFontFamily(family);
    if (isThere(family))
        findings.good(what, "charts are drawn in " + quoted(used));
    else
        findings.bad(what,
                     used.empty() ? "no font found" : "not there, and replaced by " + quoted(used),
                     "install the package that has it (apt-file search names it), or give a "
                     "--font-file");
}

void checkPicture(CFindings& findings)
{
    PieGraph chart(true);
    chart.addItem(3, "three");
    chart.addItem(2, "two");
    unsigned char* bytes = nullptr;
    int size = 0;
    chart.createPixmap(kWidth, kHeight, &bytes, &size);
    if (size > 0)
        findings.good("picture", "drawn, " + std::to_string(size) + " bytes");
    else
        findings.bad("picture", chart.problemText(), "see the lines above");
}

int examine(const DoctorOptions& options)
{
    const std::vector<std::string> added = addFontFiles(options.fontFiles);
    CFindings findings;
    findings.good("tovangl", version());
    checkPlatform(findings);
    checkDefaultFont(findings);
    for (const std::string& family : added)
        checkFont(family, findings);
    if (options.fontFamily)
        checkFont(*options.fontFamily, findings);
    checkPicture(findings);
    findings.good("compression",
                  std::string("libdeflate, and ") + fastCompressor() + " with --fast");
    return findings.exitStatus();
}

} // namespace

void addDoctorCommand(CLI::App& program, int& status)
{
    const auto options = std::make_shared<DoctorOptions>();
    CLI::App& command = addChartCommand(program, kName, kDescription, kExamples,
                                        [options, &status] { status = examine(*options); });
    addOption(command, "--font", options->fontFamily, parseText, "Look for this font family")
        ->type_name("NAME");
    addFontFileOption(command, options->fontFiles);
}

} // namespace tovangl::program
