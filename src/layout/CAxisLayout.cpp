// SPDX-License-Identifier: MIT
// An axis with its line, labels and title in their places.
#include "layout/CAxisLayout.h"

namespace tovangl {

bool CAxisLayout::isRotated() const
{
    return shape.frame.isHorizontal() && shape.direction == LabelDirection::Across;
}

std::int64_t CAxisLayout::usableSpan() const
{
    return std::int64_t{length} + shiftAtEnd - shiftAtBegin;
}

int CAxisLayout::halfLabelSigned() const
{
    return shape.frame.signedAlong(shape.labelExtentAlong() / 2);
}

QPoint CAxisLayout::originOnPicture() const
{
    // Deliberate: the origin already has the signs applied; applying them again removes them.
    return shape.frame.resolveOrientedCoordSigned(origin);
}

} // namespace tovangl
