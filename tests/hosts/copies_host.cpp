// SPDX-License-Identifier: MIT
// A host with two static copies of the library, which add different fonts, or begin to draw at the
// same moment: copies_host FOLDER fonts|together
#include "module.h"

#include <atomic>
#include <cstdio>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace {

using Draw = void(const char*, std::string*);

// A picture in a font that the copy has added; empty where it cannot be added.
std::string drawWithAddedFont(const CModule& copy, const char* path, const char* family)
{
    std::string bytes;
    if (copy.function<bool (*)(const char*)>("addFontInModule")(path))
        copy.function<Draw*>("drawWithFont")(family, &bytes);
    return bytes;
}

bool haveFontsOfTheirOwn(const CModule& first, const CModule& second)
{
    const std::string even = drawWithAddedFont(first, FONT, "Even");
    const std::string other =
        drawWithAddedFont(second, "/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf", "DejaVu Sans");
    return !even.empty() && !other.empty() && even != other;
}

void drawTogether(const CModule& first, const CModule& second)
{
    std::atomic<int> ready{0};
    const auto draw = [&ready](const CModule& copy) {
        const auto drawPie = copy.function<Draw*>("drawWithFont");
        std::string bytes;
        ++ready;
        while (ready < 2)
            continue;
        drawPie("DejaVu Sans", &bytes);
    };
    std::thread other([&] { draw(second); });
    draw(first);
    other.join();
}

// In a new process, where no picture has been drawn yet.
bool keepStderr(const CModule& first, const CModule& second)
{
    const pid_t child = fork();
    if (child == 0) {
        const std::FILE* const stream = stderr;
        drawTogether(first, second);
        _exit(stderr == stream ? 0 : 1);
    }
    int status = -1;
    return child > 0 && waitpid(child, &status, 0) == child && status == 0;
}

bool keepStderrOften(const CModule& first, const CModule& second)
{
    constexpr int kProcesses = 20;
    bool isKept = true;
    for (int i = 0; i < kProcesses; ++i)
        isKept = keepStderr(first, second) && isKept;
    return isKept;
}

} // namespace

int main(int, char** arguments)
{
    const CModule first(FIRST_COPY);
    const CModule second(SECOND_COPY);
    const bool isAboutFonts = std::string(arguments[2]) == "fonts";
    const bool isRight =
        isAboutFonts ? haveFontsOfTheirOwn(first, second) : keepStderrOften(first, second);
    return isRight ? 0 : 1;
}
