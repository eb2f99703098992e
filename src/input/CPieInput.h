// SPDX-License-Identifier: MIT
/// @file
/// All that a pie is drawn from.
#ifndef TOVANGL_INPUT_CPIEINPUT_H
#define TOVANGL_INPUT_CPIEINPUT_H

#include "input/CGraph1dInput.h"

#include <QFlags>
#include <QString>

namespace tovangl {

/// A pie as the host described it.
struct CPieInput : CGraph1dInput
{
    enum Option
    {
        BoldLabels = 0x08,
        ShortenFromLeft = 0x40,
        RemoveLabelOverlaps = 0x80,
        ShowSizes = 0x100
    };
    Q_DECLARE_FLAGS(Options, Option)

    explicit CPieInput(bool withBackground) { settings.hasBackground = withBackground; }

    Options options = Options(RemoveLabelOverlaps) | ShowSizes;
    QString unit = QStringLiteral("B"); ///< of the sizes
};

Q_DECLARE_OPERATORS_FOR_FLAGS(CPieInput::Options)

} // namespace tovangl

#endif
