// SPDX-License-Identifier: MIT
// The widths of the texts that every shortened text is compared with.
#include "draw/CShortTextWidths.h"

#include "draw/text_fitting.h"

#include <QPainter>

#include <algorithm>

namespace tovangl {
namespace cdraw {

namespace {

thread_local CShortTextWidths* inUse = nullptr;

bool isShort(const QString& text)
{
    return text.size() == 1 || text == ellipsis();
}

double measured(const QString& text, QPainter& painter)
{
    return painter.boundingRect(QRectF(), 0, text).width();
}

} // namespace

CShortTextWidths::CShortTextWidths()
    : m_outer(inUse)
{
    inUse = this;
}

CShortTextWidths::~CShortTextWidths()
{
    inUse = m_outer;
}

double CShortTextWidths::widthOf(const QString& text, QPainter& painter)
{
    if (!inUse || !isShort(text))
        return measured(text, painter);
    QHash<QString, double>& widths = inUse->widthsIn(painter.font());
    const auto known = widths.constFind(text);
    if (known != widths.constEnd())
        return known.value();
    return *widths.insert(text, measured(text, painter));
}

QHash<QString, double>& CShortTextWidths::widthsIn(const QFont& font)
{
    const auto known = std::find_if(m_fonts.begin(), m_fonts.end(),
                                    [&font](const auto& entry) { return entry.font == font; });
    if (known != m_fonts.end())
        return known->widths;
    m_fonts.push_back({font, {}});
    return m_fonts.back().widths;
}

} // namespace cdraw
} // namespace tovangl
