// SPDX-License-Identifier: MIT
// How wide the outlines of slices are stroked, so that they look as they are painted.
#include "svg/pie_outline.h"

#include "base/circle_geometry.h"
#include "layout/CPieLayout.h"

#include <QtMath>

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace tovangl {

namespace {

constexpr double kHalf = 0.5;
// Of 255, in one channel. Nobody sees that a thin line is a little paler or darker.
constexpr double kVisibleDifference = 16;
constexpr int kGreatestContrast = 255;
constexpr double kSmallestDifference = 0.02; // pixels; of two widths
// Of the picture's pixels. A pixel counts the more the better its difference can be seen. Fewer are
// not worth a larger file.
constexpr double kFewPixels = 0.006;

// The greatest difference in a channel, of 255.
int contrastBetween(const QColor& one, const QColor& other)
{
    return std::max({std::abs(one.red() - other.red()), std::abs(one.green() - other.green()),
                     std::abs(one.blue() - other.blue())});
}

// A piece of a thin outline.
struct CPiece
{
    double width = 1;  // as it is painted, in pixels
    double length = 0; // in radiuses
    int contrast = 0;  // to what lies beside it
};

// How much the outline of a slice stands out of it, and of what is around the pie.
struct CContrasts
{
    int inside = kGreatestContrast;
    int outside = kGreatestContrast;
};

// A picture in two themes has the same shapes in both.
CContrasts contrastsOf(const CSvgFrame& frame, const CPieLayout& layout, const CPieSlice& slice)
{
    if (frame.isOneOfTwo)
        return {};
    const QColor ground = layout.background ? layout.background->fill.top : frame.picture;
    return {contrastBetween(slice.color, layout.outlineColor),
            contrastBetween(ground, layout.outlineColor)};
}

struct CTurn
{
    double start = 0; // degrees
    double span = 0;
};

CTurn turnOf(const CPieSlice& slice)
{
    constexpr double kUnits = cdraw::kUnitsPerDegree;
    return {slice.angles.start / kUnits, slice.angles.span / kUnits};
}

std::vector<CPiece> edgesOf(const CTurn& turn, int contrast)
{
    return {{paintedWidth(turn.start), 1, contrast},
            {paintedWidth(turn.start + turn.span), 1, contrast}};
}

void addArc(std::vector<CPiece>& pieces, const CTurn& turn, int contrast)
{
    constexpr int kPieces = 32;
    const double length = qDegreesToRadians(std::fabs(turn.span)) / kPieces;
    for (int i = 0; i < kPieces; ++i) {
        const double angle = turn.start + turn.span * (i + kHalf) / kPieces;
        pieces.push_back({paintedWidth(angle), length, contrast});
    }
}

double meanWidth(const std::vector<CPiece>& pieces)
{
    double sum = 0;
    double length = 0;
    for (const CPiece& piece : pieces) {
        sum += piece.width * piece.length;
        length += piece.length;
    }
    return sum / length;
}

// How much a piece counts that is stroked in this width.
double weightOf(const CPiece& piece, double width)
{
    const double difference = std::fabs(piece.width - width) * piece.contrast / kVisibleDifference;
    return difference < 1 ? 0 : difference * difference;
}

// The length of what a stroke of this width does not look like. Radiuses.
double wrongLength(const std::vector<CPiece>& pieces, double width)
{
    double length = 0;
    for (const CPiece& piece : pieces)
        length += piece.length * weightOf(piece, width);
    return length;
}

CSliceStroke edgeStroke(const std::vector<CPiece>& edges)
{
    if (edges.empty())
        return {};
    const double first = edges.front().width;
    const double last = edges.back().width;
    if (std::fabs(first - last) < kSmallestDifference)
        return {first, {}};
    return {first, last};
}

} // namespace

double paintedWidth(double angle)
{
    const double radians = qDegreesToRadians(angle);
    return std::max(std::fabs(std::sin(radians)), std::fabs(std::cos(radians)));
}

CPieOutline outlineOf(const CSvgFrame& frame, const CPieLayout& layout)
{
    CPieOutline plain;
    CPieOutline withRims{true, {}};
    double wrong = 0; // radiuses
    for (const CPieSlice& slice : layout.slices) {
        const CContrasts contrasts = contrastsOf(frame, layout, slice);
        const CTurn turn = turnOf(slice);
        std::vector<CPiece> pieces;
        if (!layout.isWholeDisc)
            pieces = edgesOf(turn, contrasts.inside);
        withRims.slices.push_back(edgeStroke(pieces));
        addArc(pieces, turn, std::max(contrasts.inside, contrasts.outside));
        const double width = meanWidth(pieces);
        wrong += wrongLength(pieces, width);
        plain.slices.push_back({width, {}});
    }
    const double pixels = wrong * layout.drawnPieRect.width() * kHalf;
    return pixels < kFewPixels * frame.width * frame.height ? plain : withRims;
}

} // namespace tovangl
