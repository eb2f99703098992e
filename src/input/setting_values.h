// SPDX-License-Identifier: MIT
/// @file
/// Reads the values of settings that are given as text.
#ifndef TOVANGL_INPUT_SETTING_VALUES_H
#define TOVANGL_INPUT_SETTING_VALUES_H

#include "input/CAxisSettings.h"

#include <QColor>
#include <QPoint>
#include <QString>

#include <optional>
#include <string_view>
#include <vector>

namespace tovangl {

/// The word for the value that a new chart has.
inline constexpr std::string_view kDefaultValue = "default";

/// The names that parseAxisProperties() reads, with commas between them.
inline constexpr const char* kAxisPropertyNames =
    "line,labels,title,bold-labels,bold-title,prefixes,hide-overlapped,shift-last";

// Each parse function gives nothing where the text has another form.

/// "true" or "false"
[[nodiscard]] std::optional<bool> parseBoolean(std::string_view text);
/// A whole number within a range, ends included.
[[nodiscard]] std::optional<long> parseWhole(std::string_view text, long minimum, long maximum);
/// A decimal number with a point, or "nan".
[[nodiscard]] std::optional<double> parseReal(std::string_view text);
/// Any UTF-8.
[[nodiscard]] std::optional<QString> parseText(std::string_view text);
/// UTF-8 that isLinkAddress(), or nothing at all.
[[nodiscard]] std::optional<QString> parseLink(std::string_view text);
/// "#rrggbb" in upper or lower case, or "default": the invalid colour.
[[nodiscard]] std::optional<QColor> parseColor(std::string_view text);
/// "#rrggbb", "transparent", or "default": white.
[[nodiscard]] std::optional<QColor> parsePictureColor(std::string_view text);
/// "#rrggbb,#rrggbb", or "default": no colours.
[[nodiscard]] std::optional<std::vector<QColor>> parseColors(std::string_view text);
/// "60,200"
[[nodiscard]] std::optional<QPoint> parsePosition(std::string_view text);
/// Names such as "line,labels", or "none".
[[nodiscard]] std::optional<CAxisSettings::Properties> parseAxisProperties(std::string_view text);

/// A locale's two parts.
struct CLocaleName
{
    QString language;
    QString country;
};

/// "de_AT", "de-AT" or "C"
[[nodiscard]] std::optional<CLocaleName> parseLocale(std::string_view text);

/// Splits a text at a separator; there is always a first part.
[[nodiscard]] std::vector<std::string_view> splitText(std::string_view text, char separator);

} // namespace tovangl

#endif
