// SPDX-License-Identifier: MIT
/// @file
/// Text options of labels.
#ifndef TOVANGL_AXES_ALIGNED_TEXT_OPTION_H
#define TOVANGL_AXES_ALIGNED_TEXT_OPTION_H

#include <QTextOption>

namespace tovangl {

/// An option with an alignment. Unlike Qt's constructor from an alignment, it leaves the direction
/// of reading to the text, and not to the application object of the host.
[[nodiscard]] inline QTextOption alignedTextOption(Qt::Alignment alignment)
{
    QTextOption option;
    option.setAlignment(alignment);
    return option;
}

} // namespace tovangl

#endif
