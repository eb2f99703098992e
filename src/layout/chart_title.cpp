// SPDX-License-Identifier: MIT
// Places a chart's title.
#include "layout/chart_title.h"

#include "input/CGraph1dSettings.h"
#include "layout/CRequest.h"
#include "text/CTextLabel.h"
#include "text/one_line.h"

namespace tovangl {

namespace {

constexpr CTextStyle kTitleStyle = {true, false};

// The title as it is drawn; empty if it has no room.
CTextLabel fitTitle(const CGraph1dSettings& settings, int room, CTextMeasurer& measurer)
{
    const QString line = oneLine(cdraw::measuredPart(settings.title));
    const CTextLabel whole(line, kTitleStyle, measurer);
    if (line.isEmpty() || !whole.canFit(room, measurer))
        return CTextLabel();
    return {whole.getAdjustedText(room, measurer), kTitleStyle, measurer};
}

} // namespace

std::optional<CChartTitle> placeTitle(const CGraph1dSettings& settings, const CRequest& request,
                                      CTextMeasurer& measurer)
{
    const int margin = request.scaled(kMargin);
    const int room = addPixels(request.width, -scalePixels(margin, 2));
    const CTextLabel title = fitTitle(settings, room, measurer);
    const QSize size = title.wholePixelRect().size();
    if (size.isEmpty())
        return std::nullopt;
    const QRect rect(QPoint((request.width - size.width()) / 2, margin), size);
    return CChartTitle{{title.getText(), toRoom(rect), Qt::AlignHCenter,
                        orElse(settings.colors.text, Qt::black), kTitleStyle.isBold, false,
                        QPointF(), measurer.slack(rect.width())},
                       rect};
}

} // namespace tovangl
