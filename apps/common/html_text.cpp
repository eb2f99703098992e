// SPDX-License-Identifier: MIT
// Makes untrusted text safe for a page.
#include "common/html_text.h"

#include "common/text_checks.h"

namespace tovangl::program {

namespace {

constexpr std::string_view kReplacement = "\xef\xbf\xbd"; // U+FFFD

std::string_view entityOf(char character)
{
    switch (character) {
    case '&':
        return "&amp;";
    case '<':
        return "&lt;";
    case '>':
        return "&gt;";
    case '"':
        return "&quot;";
    case '\'':
        return "&#39;";
    default:
        return {};
    }
}

// U+2400 to U+2421 show U+0000 to U+001F and U+007F.
std::string controlPicture(char control)
{
    constexpr char kDelete = 0x7f;
    constexpr char kDeleteOffset = 0x21;
    return {'\xe2', '\x90',
            static_cast<char>(0x80 + (control == kDelete ? kDeleteOffset : control))};
}

bool startsWithAnyOf(std::string_view text, std::string_view prefix, char first, char last)
{
    return text.size() > prefix.size() && text.substr(0, prefix.size()) == prefix &&
           text[prefix.size()] >= first && text[prefix.size()] <= last;
}

// U+202A to U+202E, U+2066 to U+2069
bool turnsDirection(std::string_view character)
{
    return startsWithAnyOf(character, "\xe2\x80", '\xaa', '\xae') ||
           startsWithAnyOf(character, "\xe2\x81", '\xa6', '\xa9');
}

std::string displayCharacter(std::string_view character)
{
    if (!isControl(character))
        return std::string(turnsDirection(character) ? kReplacement : character);
    return character.size() == 1 ? controlPicture(character[0]) : std::string(kReplacement);
}

} // namespace

std::string escapeHtml(std::string_view text)
{
    std::string result;
    for (const char character : text) {
        const std::string_view entity = entityOf(character);
        if (entity.empty())
            result += character;
        else
            result += entity;
    }
    return result;
}

std::string htmlAttribute(std::string_view name, std::string_view value)
{
    return ' ' + std::string(name) + "=\"" + escapeHtml(value) + '"';
}

std::string displayName(std::string_view bytes)
{
    std::string result;
    while (!bytes.empty()) {
        const std::size_t length = characterLength(bytes);
        if (length == 0)
            result += kReplacement;
        else
            result += displayCharacter(bytes.substr(0, length));
        bytes.remove_prefix(length == 0 ? 1 : length);
    }
    return result;
}

} // namespace tovangl::program
