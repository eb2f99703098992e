// SPDX-License-Identifier: MIT
// A host with two static copies of the library, which add different fonts.
#include "module.h"

namespace {

// A picture in a font that the copy has added; empty where it cannot be added.
std::string drawWithAddedFont(const CModule& copy, const char* path, const char* family)
{
    std::string bytes;
    if (copy.function<bool (*)(const char*)>("addFontInModule")(path))
        copy.function<void (*)(const char*, std::string*)>("drawWithFont")(family, &bytes);
    return bytes;
}

} // namespace

int main()
{
    const CModule first(FIRST_COPY);
    const CModule second(SECOND_COPY);
    const std::string even = drawWithAddedFont(first, FONT, "Even");
    const std::string other =
        drawWithAddedFont(second, "/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf", "DejaVu Sans");
    return !even.empty() && !other.empty() && even != other ? 0 : 1;
}
