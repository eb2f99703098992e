// SPDX-License-Identifier: MIT
// The addresses that an item can lead to.
#include "input/link_address.h"

#include "base/host_text.h"

#include <QString>

#include <algorithm>
#include <iterator>

namespace tovangl {

namespace {

constexpr std::size_t kLongest = 8192; // bytes; no reader takes much longer ones
constexpr std::string_view kSchemes[] = {"http", "https", "mailto"};

// Readers leave out some of these, and take others for the end of an address.
bool isUnseen(QChar character)
{
    return character.isSpace() || !character.isPrint();
}

bool isSlash(char character)
{
    return character == '/' || character == '\\';
}

char lower(char letter)
{
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

bool isSame(std::string_view scheme, std::string_view wanted)
{
    return std::equal(scheme.begin(), scheme.end(), wanted.begin(), wanted.end(),
                      [](char a, char b) { return lower(a) == b; });
}

// What comes before the first colon is a scheme, unless it is part of a path, query or fragment.
bool isSchemeGood(std::string_view address)
{
    const std::size_t end = address.find_first_of(":/\\?#");
    if (end == std::string_view::npos || address[end] != ':')
        return true;
    return std::any_of(std::begin(kSchemes), std::end(kSchemes), [=](std::string_view scheme) {
        return isSame(address.substr(0, end), scheme);
    });
}

} // namespace

// With a mark before them, two slashes are no beginning for the checks, but one for readers.
bool isLinkAddress(std::string_view address)
{
    if (address.substr(0, kByteOrderMark.size()) == kByteOrderMark)
        return false;
    const QString text =
        QString::fromUtf8(address.data(), static_cast<int>(std::min(address.size(), kLongest + 1)));
    if (address.empty() || address.size() > kLongest ||
        std::any_of(text.cbegin(), text.cend(), isUnseen))
        return false;
    const bool leavesHost = address.size() > 1 && isSlash(address[0]) && isSlash(address[1]);
    return !leavesHost && isSchemeGood(address);
}

} // namespace tovangl
