// SPDX-License-Identifier: MIT
// Font files, broken and odd.
#include "hostile/hostile_input.h"
#include "support/CDice.h"
#include "support/small_font.h"

#include <fstream>
#include <iterator>

namespace tovangl {

namespace {

constexpr const char* kRealFile = "/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf";

std::string realFont()
{
    std::ifstream file(kRealFile, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(file), {});
}

// Adds the file, and draws with every family that it is said to have.
void useFont(const std::string& file, int size = 11)
{
    const auto families = addFont(reinterpret_cast<const unsigned char*>(file.data()), file.size());
    for (const std::string& family : families) {
        CAnyChart chart(ChartKind::Pie, true);
        addOrdinaryItems(chart);
        chart.addItem(40, "\xd8\xa7\xd9\x84\xd8\xb3 fi \xe4\xb8\xad");
        chart.graph().setFont(family, size);
        drawEverything(chart);
    }
}

CSmallFont oddFont()
{
    return CSmallFont{{windowsName(1, "Odd")}};
}

void addCutFiles(HostileTable& table)
{
    table.push_back({"font file cut at each length", [] {
                         const std::string file = smallFont("Cut");
                         for (std::size_t size = 0; size < file.size(); ++size)
                             useFont(file.substr(0, size));
                     }});
    table.push_back({"real font file cut at many lengths", [] {
                         const std::string file = realFont();
                         for (std::size_t size = file.size(); size > 1000; size = size * 9 / 10)
                             useFont(file.substr(0, size));
                     }});
}

// A file in which some bytes are others, the first ones more often than the rest.
std::string damaged(std::string file, CDice& dice, int bytes)
{
    for (int i = 0; i < bytes; ++i) {
        const auto last = static_cast<int>(file.size()) - 1;
        const int end = dice.oneIn(2) ? std::min(last, 400) : last;
        file[static_cast<std::size_t>(dice.roll(0, end))] = static_cast<char>(dice.roll(0, 255));
    }
    return file;
}

void addDamagedFiles(HostileTable& table)
{
    for (const int bytes : {1, 3, 30}) {
        const std::string name = " with " + std::to_string(bytes) + " wrong bytes";
        table.push_back({"font files" + name, [bytes] {
                             CDice dice(static_cast<unsigned>(bytes));
                             for (int i = 0; i < 100; ++i)
                                 useFont(damaged(smallFont("Damaged"), dice, bytes));
                         }});
        table.push_back({"real font files" + name, [bytes] {
                             CDice dice(static_cast<unsigned>(bytes));
                             for (int i = 0; i < 20; ++i)
                                 useFont(damaged(realFont(), dice, bytes));
                         }});
    }
}

void addOddFonts(HostileTable& table)
{
    const auto add = [&table](const std::string& name, const CSmallFont& font, int size) {
        table.push_back({"font " + name, [=] { useFont(smallFont(font), size); }});
    };
    CSmallFont huge = oddFont();
    huge.unitsPerEm = 16;
    huge.glyphWidth = 32000;
    add("of huge letters", huge, 11);
    add("of huge letters at the largest size", huge, 30000);
    CSmallFont negative = oddFont();
    negative.glyphWidth = -500;
    add("of letters that go back", negative, 11);
    CSmallFont flat = oddFont();
    flat.glyphWidth = 0;
    add("of letters without a width", flat, 11);
    CSmallFont claiming = oddFont();
    for (const std::uint32_t last : {0x10ffffU, 0x110000U, 0xffffffffU}) {
        claiming.characterMap = charactersFrom(0, last);
        add("of characters up to " + std::to_string(last), claiming, 11);
    }
    add("with a long name", CSmallFont{{windowsName(1, std::string(30000, 'x'))}}, 11);
    add("with a name of line breaks", CSmallFont{{windowsName(1, "a\n\tb")}}, 11);
    add("with a name of brackets and commas", CSmallFont{{windowsName(1, "[,],[[")}}, 11);
    table.push_back({"font collection of the same font 256 times", [] {
                         useFont(smallCollection(std::vector<std::string>(256, smallFont("Many"))));
                     }});
    table.push_back({"font collection of all characters 17 times", [claiming]() mutable {
                         claiming.characterMap = charactersFrom(0, 0x10ffff);
                         useFont(
                             smallCollection(std::vector<std::string>(17, smallFont(claiming))));
                     }});
    table.push_back({"thirty fonts for one family that is in use", [] {
                         for (int i = 0; i < 30; ++i)
                             useFont(smallFont("Growing") +
                                     std::string(static_cast<unsigned>(i), ' '));
                     }});
}

void addPlacesOfFiles(HostileTable& table)
{
    const auto add = [&table](const std::string& name, const std::string& path) {
        table.push_back({"font file that is " + name, [path] { (void)addFont(path); }});
    };
    add("a folder", "/");
    add("a device without an end", "/dev/zero");
    add("a terminal", "/dev/tty");
    add("a million letters long in its name", std::string(1000000, 'x'));
    add("nowhere", "/nonexistent/font.ttf");
    add("a program", "/proc/self/exe");
    add("made up by the kernel", "/proc/self/maps");
}

} // namespace

HostileTable fontInputs()
{
    HostileTable table;
    addCutFiles(table);
    addDamagedFiles(table);
    addOddFonts(table);
    addPlacesOfFiles(table);
    return table;
}

} // namespace tovangl
