// SPDX-License-Identifier: MIT
/// @file
/// All that a pie is drawn from.
#ifndef TOVANGL_INPUT_CPIEINPUT_H
#define TOVANGL_INPUT_CPIEINPUT_H

#include "input/CGraph1dInput.h"

#include <QColor>
#include <QFlags>

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

    explicit CPieInput(bool withBackground)
        : hasBackground(withBackground)
    {}

    bool hasBackground; ///< a gradient behind the pie, on screens only
    Options options = Options(RemoveLabelOverlaps) | ShowSizes;
    QColor outlineColor;               ///< if invalid: one that suits the device
    QColor textColor;                  ///< if invalid: black
    QColor labelLineColor = Qt::black; ///< if invalid: that of the outlines
};

Q_DECLARE_OPERATORS_FOR_FLAGS(CPieInput::Options)

} // namespace tovangl

#endif
