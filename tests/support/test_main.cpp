// SPDX-License-Identifier: MIT
// Runs the tests with the pinned fonts, or not at all.
#include <QFont>
#include <QFontInfo>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <gtest/gtest.h>
#include <unistd.h>

namespace {

constexpr const char* kPinnedFonts = TOVANGL_PINNED_FONTS;
constexpr int kCannotRun = 70;

// The library makes its application object before main(), so the variable has to be there when the
// process starts.
void restartWithPinnedFonts(char** arguments)
{
    const char* current = std::getenv("FONTCONFIG_FILE");
    if (current && std::strcmp(current, kPinnedFonts) == 0)
        return;
    ::setenv("FONTCONFIG_FILE", kPinnedFonts, 1);
    ::execv("/proc/self/exe", arguments);
    std::perror("cannot restart with the pinned fonts");
    std::exit(kCannotRun);
}

void requireFont(const char* family)
{
    const QString name = QString::fromLatin1(family);
    if (QFontInfo(QFont(name)).family() == name)
        return;
    std::fprintf(stderr,
                 "The tests measure texts and need the font \"%s\", which is not in use.\n"
                 "Install fonts-dejavu-core and fonts-wine; scripts/test does it.\n",
                 family);
    std::exit(kCannotRun);
}

} // namespace

int main(int count, char** arguments)
{
    restartWithPinnedFonts(arguments);
    ::testing::InitGoogleTest(&count, arguments);
    requireFont("Tahoma");
    requireFont("DejaVu Sans");
    return RUN_ALL_TESTS();
}
