// SPDX-License-Identifier: MIT
// Puts a text on one line.
#include "text/one_line.h"

namespace tovangl {

QString oneLine(QString text)
{
    for (QChar& character : text) {
        if (character.category() == QChar::Other_Control)
            character = QLatin1Char(' ');
    }
    return text.simplified();
}

} // namespace tovangl
