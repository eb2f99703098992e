// SPDX-License-Identifier: MIT
// A host that rounds floating-point numbers otherwise, loses tiny ones or has traps, and still gets
// the same pictures and keeps its own ways.
#include <tovangl/tovangl.h>

#include <array>
#include <cfenv>
#include <cstdio>
#include <string>
#include <vector>

#ifdef __SSE__
#include <xmmintrin.h>
#endif

namespace {

void loseTinyNumbers()
{
#ifdef __SSE__
    constexpr unsigned kFlushToZeroAndDenormalsAreZero = 0x8040;
    _mm_setcsr(_mm_getcsr() | kFlushToZeroAndDenormalsAreZero);
#endif
}

struct CWay
{
    const char* name;
    void (*take)();
};

// The first pictures of the process are drawn with traps.
const std::array<CWay, 6> kWays = {{
    {"traps", [] { feenableexcept(FE_ALL_EXCEPT); }},
    {"rounding up", [] { std::fesetround(FE_UPWARD); }},
    {"rounding down", [] { std::fesetround(FE_DOWNWARD); }},
    {"rounding toward zero", [] { std::fesetround(FE_TOWARDZERO); }},
    {"no tiny numbers", loseTinyNumbers},
    {"flags", [] { std::feraiseexcept(FE_DIVBYZERO | FE_OVERFLOW); }},
}};

// What of them the thread has now.
std::vector<unsigned> currentWays()
{
    const int ways[] = {std::fegetround(), fegetexcept(), std::fetestexcept(FE_ALL_EXCEPT)};
    std::vector<unsigned> result(std::begin(ways), std::end(ways));
#ifdef __SSE__
    result.push_back(_mm_getcsr());
#endif
    return result;
}

template <typename Record>
void append(std::string& bytes, const Record& record)
{
    bytes.append(reinterpret_cast<const char*>(&record), sizeof record);
}

void appendPictures(std::string& bytes, tovangl::Graph& chart)
{
    constexpr int kWidth = 391;
    constexpr int kHeight = 287;
    constexpr int kFactor = 3;
    unsigned char* data = nullptr;
    int size = 0;
    const auto take = [&] { bytes.append(reinterpret_cast<const char*>(data), std::size_t(size)); };
    chart.createPixmap(kWidth, kHeight, &data, &size);
    take();
    chart.createPixmapForPrinter(kWidth, kHeight, kFactor, &data, &size);
    take();
    chart.createSvg(kWidth, kHeight, &data, &size);
    take();
    chart.createPdf(kWidth, kHeight, &data, &size);
    take();
    append(bytes, chart.threshold());
    bytes += chart.describe();
}

template <typename Chart>
void fill(Chart& chart)
{
    constexpr int kItems = 17;
    for (int i = 1; i <= kItems; ++i)
        chart.addItem(1234567L * i % 1000, "item " + std::to_string(i));
    chart.setFont("Even", 13);
    chart.setLocale("de", "DE");
    chart.setTitle("A title");
    chart.setOthers("others");
    chart.setByName("threshold", "3.3");
}

std::string drawPie()
{
    std::string bytes;
    tovangl::PieGraph pie(true);
    fill(pie);
    appendPictures(bytes, pie);
    for (const tovangl::Slice& slice : *pie.getSlice()) {
        append(bytes, slice);
        for (const tovangl::Point& corner : getPolygon(slice))
            append(bytes, corner);
    }
    return bytes;
}

template <typename Chart>
std::string drawBars()
{
    std::string bytes;
    Chart bars(true);
    fill(bars);
    appendPictures(bytes, bars);
    for (const tovangl::Rectangle& bar : *bars.getItemBarRectangle())
        append(bytes, bar);
    return bytes;
}

std::string drawAll()
{
    return drawPie() + drawBars<tovangl::VerticalBarGraph>() +
           drawBars<tovangl::HorizontalBarGraph>();
}

bool addsFont()
{
    return !tovangl::addFont(std::string(FONT)).empty();
}

// Does it in one of the ways. Returns whether that way was kept.
template <typename Work>
bool doIn(const CWay& way, Work work)
{
    std::fenv_t usual;
    std::fegetenv(&usual);
    way.take();
    const std::vector<unsigned> before = currentWays();
    work();
    const bool isKept = currentWays() == before;
    std::fesetenv(&usual);
    return isKept;
}

int failures = 0;

void expect(bool isTrue, const char* way, const char* what)
{
    if (isTrue)
        return;
    ++failures;
    std::fprintf(stderr, "%s: %s\n", way, what);
}

} // namespace

int main()
{
    std::array<std::string, kWays.size()> drawn;
    for (std::size_t i = 0; i < kWays.size(); ++i) {
        bool isAdded = false;
        const bool isKept = doIn(kWays[i], [&] {
            isAdded = addsFont();
            drawn[i] = drawAll();
        });
        expect(isKept, kWays[i].name, "not kept");
        expect(isAdded, kWays[i].name, "no font");
    }
    const std::string usual = drawAll();
    for (std::size_t i = 0; i < kWays.size(); ++i)
        expect(drawn[i] == usual, kWays[i].name, "other pictures");
    return failures == 0 ? 0 : 1;
}
