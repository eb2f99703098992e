// SPDX-License-Identifier: MIT
/// @file
/// One slice of a pie.
#ifndef TOVANGL_CORE_CPIEBASEITEM_H
#define TOVANGL_CORE_CPIEBASEITEM_H

#include "core/CGraph1dItem.h"

namespace tovangl {

/// A data item drawn as a slice. Angles are in sixteenths of a degree, 0 at three o'clock, positive
/// counter-clockwise. The pie's layout sets both before anything reads them.
class CPieBaseItem : public CGraph1dItem
{
public:
    CPieBaseItem(long long value, const QString& text, const QColor& color);
    ~CPieBaseItem() override;

    [[nodiscard]] int startAngle() const { return m_startAngle; }
    void setStartAngle(int angle) { m_startAngle = angle; }
    /// Negative for a clockwise slice.
    [[nodiscard]] int spanAngle() const { return m_spanAngle; }
    void setSpanAngle(int angle) { m_spanAngle = angle; }

private:
    int m_startAngle = 0;
    int m_spanAngle = 0;
};

} // namespace tovangl

#endif
