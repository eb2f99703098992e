// SPDX-License-Identifier: MIT
// Numbers of bytes: added without overflow, and written for people.
#include "tovangl-du/byte_text.h"

#include <array>
#include <charconv>
#include <limits>

namespace tovangl::program {

namespace {

constexpr int kKilo = 1024;
constexpr std::size_t kGroup = 3;    // digits
constexpr double kLeastShare = 0.05; // per cent; rounds to 0.1

std::string fixed(double number, int decimals)
{
    std::array<char, 64> text{};
    const auto end =
        std::to_chars(text.begin(), text.end(), number, std::chars_format::fixed, decimals);
    return {text.data(), end.ptr};
}

std::string grouped(std::string digits)
{
    for (std::size_t end = digits.size(); end > kGroup; end -= kGroup)
        digits.insert(end - kGroup, 1, ',');
    return digits;
}

} // namespace

long addBytes(long a, long b)
{
    const long room = std::numeric_limits<long>::max() - a;
    return b > room ? std::numeric_limits<long>::max() : a + b;
}

std::string formatCount(std::uint64_t count)
{
    return grouped(std::to_string(count));
}

std::string formatBytes(long bytes)
{
    constexpr std::array<const char*, 6> kUnits = {" KB", " MB", " GB", " TB", " PB", " EB"};
    const auto count = static_cast<std::uint64_t>(bytes);
    if (bytes < kKilo)
        return formatNumberOf(count, "byte", "bytes");
    double amount = static_cast<double>(count) / kKilo;
    std::size_t unit = 0;
    while (amount >= kKilo) {
        amount /= kKilo;
        ++unit;
    }
    const std::string text = fixed(amount, 1);
    const std::size_t point = text.find('.');
    const std::string whole = grouped(text.substr(0, point));
    return (point == kGroup ? whole : whole + text.substr(point)) + kUnits[unit];
}

std::string formatShare(long part, long whole)
{
    const double share = static_cast<double>(part) * 100.0 / static_cast<double>(whole);
    if (part > 0 && share < kLeastShare)
        return "under 0.1 %";
    return fixed(share, 1) + " %";
}

std::string formatNumberOf(std::uint64_t count, const std::string& one, const std::string& many)
{
    return formatCount(count) + ' ' + (count == 1 ? one : many);
}

} // namespace tovangl::program
