// SPDX-License-Identifier: MIT
// Decodes the texts of the public interface.
#include "base/host_text.h"

#include <limits>
#include <new>

namespace tovangl {

QString toQString(std::string_view text)
{
    if (text.size() > static_cast<std::size_t>(std::numeric_limits<int>::max()))
        throw std::bad_alloc();
    return QString::fromUtf8(text.data(), static_cast<int>(text.size()));
}

} // namespace tovangl
