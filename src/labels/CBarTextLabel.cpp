// SPDX-License-Identifier: MIT
// The label of bar charts and of their axes.
#include "labels/CBarTextLabel.h"

namespace tovangl {

CBarTextLabel::CBarTextLabel(CGraph1dItem* item, const QLocale* locale)
    : CTextLabel(item, locale)
{}

CBarTextLabel::CBarTextLabel(const QString& text, const QLocale* locale)
    : CTextLabel(text, locale)
{}

CBarTextLabel::CBarTextLabel(long long value, NumberFormat format, const QLocale* locale)
    : CTextLabel(value, format, locale)
{}

CBarTextLabel::~CBarTextLabel() = default;

} // namespace tovangl
