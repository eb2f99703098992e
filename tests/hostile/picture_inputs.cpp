// SPDX-License-Identifier: MIT
// Picture sizes and print factors.
#include "hostile/hostile_input.h"

#include <limits>

namespace tovangl {

namespace {

constexpr int kMin = std::numeric_limits<int>::min();
constexpr int kMax = std::numeric_limits<int>::max();

struct CPictureCase
{
    int width;
    int height;
    int factor;
};

const std::vector<CPictureCase>& smallPictures()
{
    static const std::vector<CPictureCase> cases = {
        {0, 0, 1},
        {0, 300, 1},
        {400, 0, 1},
        {-1, 300, 1},
        {400, -1, 1},
        {-400, -300, 1},
        {-400, -300, -1},
        {kMin, kMin, 1},
        {kMax, kMax, 1},
        {kMin, kMax, kMin},
        {1, 1, 1},
        {1, 1, 100},
        {2, 2, 1},
        {3, 1, 1},
        {1, 3, 1},
        {20, 20, 1},
        {21, 41, 1},
        {400, 5, 1},
        {5, 300, 1},
        {32767, 1, 1},
        {1, 32767, 1},
        {32768, 1, 1},
        {1, 32768, 1},
        {32767, 20, 1},
        {20, 32767, 1},
        {65536, 2, 1},
        {2, 65536, 1},
        {1000000, 1, 1},
        {1, 1000000, 1},
        {1000001, 1, 1},
        {1, 1000001, 1},
        {40000, 40000, 1},
        {65536, 65536, 1},
        {1 << 20, 1 << 20, 1},
        {kMax, 1, 1},
        {1, kMax, 1},
        {400, 300, kMin},
        {400, 300, -1},
        {400, 300, 0},
        {400, 300, 1},
        {400, 300, 3},
        {40, 30, 40},
        {4, 3, 400},
        {1, 1, 1000},
        {400, 300, 1 << 16},
        {1 << 16, 1 << 16, 1 << 16},
        {1 << 20, 1 << 20, 1 << 12},
        {3, 3, 1431655766}, // the products wrap to 2
        {400, 300, kMax},
        {kMax, kMax, kMax},
        {kMin, kMin, kMin},
    };
    return cases;
}

const std::vector<CPictureCase>& largePictures()
{
    static const std::vector<CPictureCase> cases = {
        {32767, 100, 1},  {100, 32767, 1}, {32767, 1000, 1},
        {1000, 32767, 1}, {5000, 5000, 1}, {400, 300, 10},
    };
    return cases;
}

// At the border of what is drawn at all: 2^31 - 1 bytes.
const std::vector<CPictureCase>& largestPictures()
{
    static const std::vector<CPictureCase> cases = {
        {20000, 20000, 1},  {23170, 23170, 1}, {23171, 23171, 1}, {1000000, 536, 1},
        {1000000, 1000, 1}, {536, 1000000, 1}, {1000, 1000, 23},
    };
    return cases;
}

void drawPicture(ChartKind kind, const CPictureCase& picture)
{
    CAnyChart chart(kind, true);
    addOrdinaryItems(chart);
    drawEverything(chart, picture.width, picture.height, picture.factor);
}

// Half a thousand million pixels take seconds: once is enough.
void drawOnce(ChartKind kind, const CPictureCase& picture)
{
    CAnyChart chart(kind, true);
    addOrdinaryItems(chart);
    (void)chart.createPixmapForPrinter(picture.width, picture.height, picture.factor);
}

template <typename Kinds, typename Draw>
void addCases(HostileTable& table, const std::vector<CPictureCase>& cases, const Kinds& kinds,
              Draw draw, bool isHeavy)
{
    for (const CPictureCase& picture : cases) {
        const std::string name = std::to_string(picture.width) + " x " +
                                 std::to_string(picture.height) + " pixels, factor " +
                                 std::to_string(picture.factor);
        for (ChartKind kind : kinds)
            table.push_back({nameOf(kind) + (": " + name), [=] { draw(kind, picture); }, isHeavy});
    }
}

} // namespace

HostileTable pictureInputs()
{
    // A pie has too many colours for a palette, and saving that many pixels takes half a minute.
    constexpr std::array<ChartKind, 2> kBars = {ChartKind::VerticalBars, ChartKind::HorizontalBars};
    HostileTable table;
    addCases(table, smallPictures(), kChartKinds, drawPicture, !kHeavy);
    addCases(table, largePictures(), kChartKinds, drawPicture, kHeavy);
    addCases(table, largestPictures(), kBars, drawOnce, kHeavy);
    return table;
}

} // namespace tovangl
