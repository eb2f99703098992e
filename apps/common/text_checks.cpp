// SPDX-License-Identifier: MIT
// Checks untrusted text for UTF-8, and makes it printable in messages.
#include "common/text_checks.h"

#include <array>

namespace tovangl::program {

namespace {

constexpr std::size_t kQuotedBytes = 40;
constexpr unsigned kFirstBeyondControls = 0x20;
constexpr unsigned kDelete = 0x7f;
constexpr unsigned kFirstBeyondC1Controls = 0xa0;

/// Characters whose first byte lies in [first, last]: their length, and the range of the second
/// byte, which is enough to exclude overlong forms, surrogates and numbers beyond the last
/// character.
struct Utf8Form
{
    unsigned first;
    unsigned last;
    std::size_t length;
    unsigned secondMin;
    unsigned secondMax;
};

constexpr std::array<Utf8Form, 9> kUtf8Forms{{{0x00, 0x7f, 1, 0, 0},
                                              {0xc2, 0xdf, 2, 0x80, 0xbf},
                                              {0xe0, 0xe0, 3, 0xa0, 0xbf},
                                              {0xe1, 0xec, 3, 0x80, 0xbf},
                                              {0xed, 0xed, 3, 0x80, 0x9f},
                                              {0xee, 0xef, 3, 0x80, 0xbf},
                                              {0xf0, 0xf0, 4, 0x90, 0xbf},
                                              {0xf1, 0xf3, 4, 0x80, 0xbf},
                                              {0xf4, 0xf4, 4, 0x80, 0x8f}}};

unsigned byteAt(std::string_view text, std::size_t index)
{
    return static_cast<unsigned char>(text[index]);
}

bool isContinuation(unsigned byte)
{
    return byte >= 0x80 && byte <= 0xbf;
}

bool hasForm(std::string_view text, const Utf8Form& form)
{
    if (text.size() < form.length)
        return false;
    if (form.length > 1 && (byteAt(text, 1) < form.secondMin || byteAt(text, 1) > form.secondMax))
        return false;
    for (std::size_t i = 2; i < form.length; ++i) {
        if (!isContinuation(byteAt(text, i)))
            return false;
    }
    return true;
}

} // namespace

std::size_t characterLength(std::string_view text)
{
    const unsigned first = byteAt(text, 0);
    for (const Utf8Form& form : kUtf8Forms) {
        if (first >= form.first && first <= form.last)
            return hasForm(text, form) ? form.length : 0;
    }
    return 0;
}

bool isControl(std::string_view character)
{
    const unsigned first = byteAt(character, 0);
    if (character.size() == 1)
        return first < kFirstBeyondControls || first == kDelete;
    return first == 0xc2 && byteAt(character, 1) < kFirstBeyondC1Controls;
}

std::size_t findBrokenUtf8(std::string_view text)
{
    std::size_t offset = 0;
    while (offset < text.size()) {
        const std::size_t length = characterLength(text.substr(offset));
        if (length == 0)
            return offset;
        offset += length;
    }
    return std::string_view::npos;
}

std::string makePrintable(std::string_view text)
{
    std::string result;
    while (!text.empty()) {
        const std::size_t length = characterLength(text);
        if (length == 0 || isControl(text.substr(0, length)))
            result += '?';
        else
            result += text.substr(0, length);
        text.remove_prefix(length == 0 ? 1 : length);
    }
    return result;
}

std::string quote(std::string_view text)
{
    std::size_t end = 0;
    while (end < text.size() && end < kQuotedBytes) {
        const std::size_t length = characterLength(text.substr(end));
        end += length == 0 ? 1 : length;
    }
    return '"' + makePrintable(text.substr(0, end)) + (end < text.size() ? "...\"" : "\"");
}

} // namespace tovangl::program
