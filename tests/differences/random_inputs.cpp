// SPDX-License-Identifier: MIT
// What hosts hand to charts: the ordinary, the rare and the hostile, by chance.
#include "differences/random_inputs.h"

#include <limits>
#include <string_view>

namespace tovangl {

namespace {

using namespace std::string_view_literals;

constexpr int kLeastInt = std::numeric_limits<int>::min();
constexpr int kGreatestInt = std::numeric_limits<int>::max();
constexpr long kLeastLong = std::numeric_limits<long>::min();
constexpr long kGreatestLong = std::numeric_limits<long>::max();

constexpr std::array kNames = {"usr"sv,
                               "Rent"sv,
                               "January"sv,
                               "2024-03"sv,
                               "/var/lib/a rather long folder name/data"sv,
                               "Sales, north"sv,
                               "i"sv,
                               "a caption of several words that will hardly fit"sv,
                               "WWWWWWWWWWWW"sv,
                               ""sv};

constexpr std::array kScripts = {"Größe"sv,
                                 "Αθήνα"sv,
                                 "Москва"sv,
                                 "العربية"sv,
                                 "עברית"sv,
                                 "हिन्दी"sv,
                                 "ภาษาไทย"sv,
                                 "한국어"sv,
                                 "日本語"sv,
                                 "\xf0\x9f\x91\xa8\xe2\x80\x8d\xf0\x9f\x91\xa9"sv,
                                 "e\xcc\x81le\xcc\x80ve"sv,
                                 "abc العربية 123"sv};

constexpr std::array kHostilePieces = {"two\nlines"sv,
                                       "\n\n\n"sv,
                                       "a\0b"sv,
                                       "\0"sv,
                                       "\xff broken \xc3"sv,
                                       "\xe2\x82"sv,
                                       "\xed\xa0\x80"sv,
                                       "\xf5\x80\x80\x80"sv,
                                       "\tt\t"sv,
                                       "\r\n"sv,
                                       "   "sv,
                                       "a\xe2\x80\xa8z"sv,
                                       "\xe2\x80\xae"
                                       "over"sv,
                                       "a\xc2\x9cvariant"sv,
                                       "\xe2\x80\x8b"sv,
                                       "so\xc2\xad"
                                       "ft"sv,
                                       "\xcc\x81\xcc\xa7"sv,
                                       "<b>&amp;</b>"sv,
                                       "&File %1 %s"sv,
                                       "\x1b[31m\x7f"sv};

constexpr std::array kFamilies = {"Tahoma"sv,      "DejaVu Sans"sv, "no such family"sv,    ""sv,
                                  "dejavu sans"sv, "\xff\xc3"sv,    "Tahoma,DejaVu Sans"sv};
constexpr std::array kLanguages = {"de"sv, "en"sv, "fr"sv, "hi"sv, "ar"sv,
                                   "fa"sv, "zz"sv, ""sv,   "C"sv,  "german"sv};
constexpr std::array kCountries = {"at"sv, "us"sv, "fr"sv, "in"sv, "eg"sv,
                                   "ir"sv, "ZZ"sv, ""sv,   "ch"sv, "\xff"sv};

template <std::size_t N>
std::string pickText(CDice& dice, const std::array<std::string_view, N>& choices)
{
    return std::string(dice.pick(choices));
}

} // namespace

CRandomInputs::CRandomInputs(CDice& dice)
    : m_dice(dice)
    , m_valueStyle(rollValueStyle())
    , m_textStyle(rollTextStyle())
    , m_equalValue(dice.rollValue())
{}

CRandomInputs::ValueStyle CRandomInputs::rollValueStyle()
{
    constexpr std::array kStyles = {
        ValueStyle::Small,        ValueStyle::Small,    ValueStyle::Small,  ValueStyle::AnyLength,
        ValueStyle::AnyLength,    ValueStyle::Bytes,    ValueStyle::Bytes,  ValueStyle::Equal,
        ValueStyle::OneDominates, ValueStyle::Negative, ValueStyle::Extreme};
    return m_dice.pick(kStyles);
}

CRandomInputs::TextStyle CRandomInputs::rollTextStyle()
{
    constexpr std::array kStyles = {
        TextStyle::Names,     TextStyle::Names,      TextStyle::Names,  TextStyle::AnyScript,
        TextStyle::AnyScript, TextStyle::Repetition, TextStyle::Hostile};
    return m_dice.pick(kStyles);
}

int CRandomInputs::itemCount()
{
    constexpr int kMany = 300;
    constexpr int kThousands = 3000;
    if (m_dice.oneIn(150))
        m_itemCount = m_dice.roll(kMany, kThousands);
    else if (m_dice.oneIn(10))
        m_itemCount = m_dice.roll(30, kMany);
    else if (m_dice.oneIn(30))
        m_itemCount = 0;
    else
        m_itemCount = m_dice.roll(1, m_dice.oneIn(3) ? 4 : 30);
    return m_itemCount;
}

long CRandomInputs::value()
{
    constexpr int kSmall = 1000;
    constexpr int kDominance = 1000000;
    constexpr int kNearTheEnd = 3;
    switch (m_valueStyle) {
    case ValueStyle::Small:
        return m_dice.oneIn(10) ? -m_dice.roll(0, kSmall) : m_dice.roll(0, kSmall);
    case ValueStyle::AnyLength:
        return m_dice.rollValue();
    case ValueStyle::Bytes:
        return (1L << m_dice.roll(0, 62)) + m_dice.roll(-1, 1);
    case ValueStyle::Equal:
        return m_equalValue;
    case ValueStyle::OneDominates:
        return m_dice.oneIn(8) ? kDominance : m_dice.roll(0, kSmall);
    case ValueStyle::Negative:
        return -m_dice.roll(0, kSmall);
    case ValueStyle::Extreme:
        break;
    }
    if (m_dice.oneIn(3))
        return m_dice.roll(-kNearTheEnd, kNearTheEnd);
    return m_dice.oneIn(2) ? kGreatestLong - m_dice.roll(0, kNearTheEnd)
                           : kLeastLong + m_dice.roll(0, kNearTheEnd);
}

std::string CRandomInputs::text()
{
    constexpr int kLong = 2000; // bytes
    constexpr int kShort = 60;
    if (m_dice.oneIn(300))
        return repetition(kLong);
    std::string text;
    switch (m_textStyle) {
    case TextStyle::Names:
        text = pickText(m_dice, kNames);
        return m_dice.oneIn(2) ? text + std::to_string(m_dice.roll(1, 400)) : text;
    case TextStyle::AnyScript:
        text = pickText(m_dice, kScripts);
        return m_dice.oneIn(3) ? text + ' ' + pickText(m_dice, kScripts) : text;
    case TextStyle::Repetition:
        return repetition(kShort);
    case TextStyle::Hostile:
        break;
    }
    if (m_dice.oneIn(4))
        return randomBytes();
    text = pickText(m_dice, kHostilePieces);
    return text + pickText(m_dice, kNames);
}

std::string CRandomInputs::repetition(int longest)
{
    const std::string piece =
        m_dice.oneIn(2) ? pickText(m_dice, kScripts) : pickText(m_dice, kNames) + ' ';
    const auto length = static_cast<std::size_t>(m_dice.roll(0, longest));
    std::string text;
    while (text.size() < length)
        text += piece;
    return text;
}

std::string CRandomInputs::randomBytes()
{
    std::string bytes(static_cast<std::size_t>(m_dice.roll(0, 40)), ' ');
    for (char& byte : bytes)
        byte = static_cast<char>(m_dice.roll(-128, 127));
    return bytes;
}

Color CRandomInputs::color()
{
    if (!m_dice.oneIn(8))
        return m_dice.rollColor();
    constexpr std::array kNotSet = {-1, 256, kLeastInt, kGreatestInt, 0};
    const int red = m_dice.pick(kNotSet);
    const int green = m_dice.pick(kNotSet);
    return Color{red, green, m_dice.pick(kNotSet)};
}

double CRandomInputs::threshold()
{
    constexpr std::array kRare = {-5.0,
                                  -0.0,
                                  100.0,
                                  1e-10,
                                  1e300,
                                  std::numeric_limits<double>::denorm_min(),
                                  std::numeric_limits<double>::infinity(),
                                  -std::numeric_limits<double>::infinity(),
                                  std::numeric_limits<double>::quiet_NaN()};
    constexpr double kParts = 8;
    constexpr double kAll = 100;
    if (m_valueStyle == ValueStyle::Equal && m_itemCount > 0 && m_dice.oneIn(2))
        return kAll / m_itemCount;
    if (m_dice.oneIn(6))
        return m_dice.pick(kRare);
    return m_dice.roll(0, m_dice.oneIn(4) ? 400 : 24) / kParts;
}

std::string CRandomInputs::fontFamily()
{
    constexpr std::size_t kTooLong = 300;
    return m_dice.oneIn(20) ? std::string(kTooLong, 'F') : pickText(m_dice, kFamilies);
}

int CRandomInputs::fontSize()
{
    constexpr std::array kRare = {kLeastInt, 100, 300};
    if (m_dice.oneIn(40))
        return m_dice.pick(kRare);
    return m_dice.oneIn(4) ? m_dice.roll(-3, 60) : m_dice.roll(8, 20);
}

std::pair<std::string, std::string> CRandomInputs::locale()
{
    const std::string language = pickText(m_dice, kLanguages);
    return {language, pickText(m_dice, kCountries)};
}

int CRandomInputs::properties()
{
    constexpr int kAllBits = 8191;
    constexpr std::array kRare = {-1, kLeastInt, kGreatestInt, 0};
    return m_dice.oneIn(10) ? m_dice.pick(kRare) : m_dice.roll(0, kAllBits);
}

int CRandomInputs::pixels()
{
    constexpr std::array kRare = {-1, kLeastInt, kGreatestInt, 1 << 20};
    return m_dice.oneIn(8) ? m_dice.pick(kRare) : m_dice.roll(0, m_dice.oneIn(2) ? 40 : 500);
}

int CRandomInputs::side()
{
    // No picture has such a side.
    constexpr std::array kImpossible = {0, -1, kLeastInt, kGreatestInt, 1000001};
    if (m_dice.oneIn(100))
        return m_dice.pick(kImpossible);
    if (m_dice.oneIn(60))
        return m_dice.roll(900, 3000);
    return m_dice.oneIn(25) ? m_dice.roll(1, 60) : m_dice.roll(60, m_dice.oneIn(3) ? 900 : 450);
}

int CRandomInputs::printFactor()
{
    constexpr std::array kRare = {0, -1, kLeastInt, 1};
    return m_dice.oneIn(10) ? m_dice.pick(kRare) : m_dice.roll(1, 6);
}

} // namespace tovangl
