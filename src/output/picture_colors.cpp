// SPDX-License-Identifier: MIT
// What one pass over a picture finds: its colours, and the rows that repeat the row above.
#include "output/picture_colors.h"

#include "output/opacity.h"
#include "output/pixel_blocks.h"

#include <QImage>

#include <cstring>

namespace tovangl {

namespace {

const QRgb* pixelRow(const QImage& picture, int y)
{
    return reinterpret_cast<const QRgb*>(picture.constScanLine(y));
}

// Adds the colours of one row to the index. Neighbouring pixels are mostly equal.
class CColorReader
{
public:
    CColorReader(CColorIndex& index, const QRgb* row)
        : m_index(index)
        , m_row(row)
    {}

    // False if there are too many.
    bool operator()(int begin, int end) const
    {
        for (int x = begin; x < end; ++x) {
            if (x > begin && m_row[x] == m_row[x - 1])
                continue;
            if (m_index.add(m_row[x]) == CColorIndex::kFull)
                return false;
        }
        return true;
    }

private:
    CColorIndex& m_index;
    const QRgb* m_row;
};

// Samples a few rows, which quickly detects nearly every picture with too many colours.
bool addSampledRows(CColorIndex& index, const QImage& picture)
{
    constexpr int kSampledRows = 24;
    const int step = picture.height() / kSampledRows + 1;
    for (int y = step / 2; y < picture.height(); y += step) {
        if (!CColorReader(index, pixelRow(picture, y))(0, picture.width()))
            return false;
    }
    return true;
}

// Most rows of a chart repeat the row above, or most of it; only changed pixels are looked up.
bool addAllRows(CPictureColors& colors, const QImage& picture)
{
    const int width = picture.width();
    const auto bytes = static_cast<std::size_t>(width) * sizeof(QRgb);
    colors.isRepeated.assign(static_cast<std::size_t>(picture.height()), false);
    if (!CColorReader(colors.index, pixelRow(picture, 0))(0, width))
        return false;
    for (int y = 1; y < picture.height(); ++y) {
        const QRgb* const row = pixelRow(picture, y);
        const QRgb* const above = pixelRow(picture, y - 1);
        if (std::memcmp(row, above, bytes) == 0) {
            colors.isRepeated[static_cast<std::size_t>(y)] = true;
            ++colors.repeatedRows;
        } else if (!visitChangedBlocks(row, above, width, CColorReader(colors.index, row))) {
            return false;
        }
    }
    return true;
}

bool areAllOpaque(const CColorIndex& index)
{
    for (int number = 0; number < index.count(); ++number) {
        if (!isOpaque(index.colorAt(number)))
            return false;
    }
    return true;
}

CColorIndex withOpaqueLast(const CColorIndex& index)
{
    CColorIndex sorted;
    for (const bool areOpaque : {false, true}) {
        for (int number = 0; number < index.count(); ++number) {
            if (isOpaque(index.colorAt(number)) == areOpaque)
                (void)sorted.add(index.colorAt(number));
        }
    }
    return sorted;
}

} // namespace

CPictureColors readColors(const QImage& picture)
{
    CPictureColors colors;
    colors.areFew = addSampledRows(colors.index, picture) && addAllRows(colors, picture);
    if (colors.areFew && !areAllOpaque(colors.index))
        colors.index = withOpaqueLast(colors.index);
    return colors;
}

} // namespace tovangl
