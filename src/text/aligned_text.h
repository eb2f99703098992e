// SPDX-License-Identifier: MIT
/// @file
/// How a chart's texts are set in their rooms.
#ifndef TOVANGL_TEXT_ALIGNED_TEXT_H
#define TOVANGL_TEXT_ALIGNED_TEXT_H

#include <QTextOption>

namespace tovangl {

/// Sets the alignment afterwards, because the constructor that takes one would take the reading
/// direction from the host's application object. This way it comes from the text.
[[nodiscard]] inline QTextOption alignedTextOption(Qt::Alignment alignment)
{
    QTextOption option;
    option.setAlignment(alignment);
    return option;
}

} // namespace tovangl

#endif
