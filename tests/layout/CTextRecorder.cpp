// SPDX-License-Identifier: MIT
// A paint device that writes down the texts that are painted on it.
#include "layout/CTextRecorder.h"

#include <QColor>
#include <QFont>
#include <QPainter>
#include <QPen>
#include <QTransform>

#include <cmath>

namespace tovangl {

namespace {

constexpr double kHalfTurn = 180.0; // degrees

} // namespace

void CTextRecorder::CEngine::drawTextItem(const QPointF& pos, const QTextItem& item)
{
    const QTransform transform = painter()->combinedTransform();
    CRecordedText recorded;
    recorded.text = item.text();
    recorded.baseline = transform.map(pos);
    const double radians = std::atan2(transform.m12(), transform.m11());
    recorded.angle = static_cast<int>(std::lround(radians * kHalfTurn / M_PI));
    recorded.isBold = item.font().bold();
    recorded.color = painter()->pen().color().name();
    texts.push_back(recorded);
}

} // namespace tovangl
