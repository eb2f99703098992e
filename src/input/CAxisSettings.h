// SPDX-License-Identifier: MIT
/// @file
/// What a host sets on an axis of a bar chart.
#ifndef TOVANGL_INPUT_CAXISSETTINGS_H
#define TOVANGL_INPUT_CAXISSETTINGS_H

#include <QFlags>
#include <QString>

namespace tovangl {

struct CAxisSettings
{
    enum Property
    {
        ShowLine = 1,
        ShowLabels = 2,
        ShowTitle = 4,
        BoldLabels = 8,
        BoldTitle = 16,
        UnitPrefixes = 32,
        HideOverlapped = 128,
        ShiftLastLabel = 4096
    };
    Q_DECLARE_FLAGS(Properties, Property)

    [[nodiscard]] bool has(Property property) const { return properties.testFlag(property); }

    Properties properties;
    QString title;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(CAxisSettings::Properties)

} // namespace tovangl

#endif
