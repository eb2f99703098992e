// SPDX-License-Identifier: MIT
// Numbers whose digits are all grouped.
#include "text/digit_groups.h"

#include <algorithm>

namespace tovangl {
namespace qt {

namespace {

constexpr int kGroup = 3; // digits

bool isDigit(QChar character)
{
    return character.isDigit();
}

} // namespace

QString separateLeadingDigits(const QString& text, const QString& separator)
{
    const auto begin = std::find_if(text.begin(), text.end(), isDigit);
    const auto end = std::find_if_not(begin, text.end(), isDigit);
    const auto first = begin - text.begin();
    QString result = text;
    for (auto place = end - text.begin() - kGroup; place > first; place -= kGroup)
        result.insert(static_cast<int>(place), separator);
    return result;
}

} // namespace qt
} // namespace tovangl
