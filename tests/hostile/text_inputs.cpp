// SPDX-License-Identifier: MIT
// Captions, axis titles and their encoding.
#include "hostile/hostile_input.h"

namespace tovangl {

namespace {

constexpr std::size_t kMillion = 1000000;
constexpr std::size_t kLongest = 10 * kMillion; // bytes

struct CTextCase
{
    const char* name;
    std::string piece;  // repeated up to the length
    std::size_t length; // bytes
};

std::string repeat(const std::string& piece, std::size_t length)
{
    std::string text;
    text.reserve(length + piece.size());
    while (text.size() < length)
        text += piece;
    return text;
}

const std::vector<CTextCase>& textCases()
{
    static const std::vector<CTextCase> cases = {
        {"empty", "", 0},
        {"one space", " ", 1},
        {"spaces only", " ", 1000},
        {"a single NUL", std::string(1, '\0'), 1},
        {"NULs between letters", std::string("a\0b\0", 4), 1000},
        {"bytes that begin nothing", "\xff", 1000},
        {"continuation bytes alone", "\x80", 1000},
        {"sequences cut short", "\xe2\x82", 1000},
        {"overlong sequences", "\xc0\xaf", 1000},
        {"a code point beyond the last", "\xf5\x80\x80\x80", 1000},
        {"lone high surrogates", "\xed\xa0\x80", 1000},
        {"lone low surrogates", "\xed\xb0\x80", 1000},
        {"surrogate pairs in three bytes each", "\xed\xa0\xbd\xed\xb8\x80", 1000},
        {"code points that are no characters", "\xef\xbf\xbe\xef\xbf\xbf", 1000},
        {"byte order marks", "\xef\xbb\xbf", 1000},
        {"the byte that separates text variants", "a\xc2\x9c", 1000},
        {"control characters", "\x01\x02\x1b[31m\x7f", 1000},
        {"tabs", "\t", 1000},
        {"carriage returns", "\r", 1000},
        {"line separators", "a\xe2\x80\xa8", 1000},
        {"paragraph separators", "a\xe2\x80\xa9", 1000},
        {"no-break spaces", "\xc2\xa0", 1000},
        {"zero-width spaces", "\xe2\x80\x8b", 1000},
        {"soft hyphens", "a\xc2\xad", 1000},
        {"combining marks without a base", "\xcc\x81", 1000},
        {"many marks on one letter", "\xcc\x81\xcc\xa7", 100000},
        {"right-to-left overrides", "a\xe2\x80\xae", 1000},
        {"embeddings nested past every limit", "\xe2\x80\xab", 100000},
        {"isolates nested past every limit", "\xe2\x81\xa7", 100000},
        {"both directions in turn", "a\xd8\xa7", 10000},
        {"joined letters", "\xd9\x84\xd8\xa7", 10000},
        {"conjuncts of an Indic script", "\xe0\xa4\x95\xe0\xa5\x8d\xe0\xa4\xb7", 10000},
        {"stacked vowels", "\xe0\xb8\x81\xe0\xb8\xb5\xe0\xb9\x89", 10000},
        {"conjoining jamo", "\xe1\x84\x80\xe1\x85\xa1\xe1\x86\xa8", 10000},
        {"emoji joined into one", "\xf0\x9f\x91\xa8\xe2\x80\x8d", 10000},
        {"flags", "\xf0\x9f\x87\xa6\xf0\x9f\x87\xb9", 10000},
        {"ideographs", "\xe6\xb0\xb4", 10000},
        {"mark-up", "<b>&amp;</b><img src=x>", 1000},
        {"format directives", "%s%n%1%2", 1000},
        {"mnemonics", "&File && ", 1000},
    };
    return cases;
}

const std::vector<CTextCase>& longTextCases()
{
    static const std::vector<CTextCase> cases = {
        {"a million letters in one line", "a", kMillion},
        {"ten million letters in one line", "a", kLongest},
        {"ten million spaces", " ", kLongest},
        {"ten million bytes of words", "lorem ipsum ", kLongest},
        {"ten million NULs", std::string(1, '\0'), kLongest},
        {"ten million bytes that begin nothing", "\xff", kLongest},
        {"a million lines", "a\n", 2 * kMillion},
        {"ten million empty lines", "\n", kLongest},
        {"ten million bytes of line separators", "\xe2\x80\xa8", kLongest},
        {"ten million tabs", "\t", kLongest},
        {"ten million bytes of combining marks", "\xcc\x81", kLongest},
        {"ten million bytes of overrides", "\xe2\x80\xae", kLongest},
        {"ten million bytes of embeddings", "\xe2\x80\xab", kLongest},
        {"ten million bytes in both directions", "a\xd8\xa7", kLongest},
        {"ten million bytes of joined letters", "\xd9\x84\xd8\xa7", kLongest},
        {"ten million bytes of conjuncts", "\xe0\xa4\x95\xe0\xa5\x8d", kLongest},
        {"ten million bytes of lone surrogates", "\xed\xa0\x80", kLongest},
        {"ten million bytes of emoji", "\xf0\x9f\x98\x80", kLongest},
        {"ten million bytes with the variant separator", "abc\xc2\x9c", kLongest},
        {"ten million bytes without a place to break",
         "\xe2\x81\xa0"
         "a",
         kLongest},
    };
    return cases;
}

// As the caption of one item among others.
void drawCaption(ChartKind kind, const std::string& text)
{
    CAnyChart chart(kind);
    addOrdinaryItems(chart);
    chart.addItem(500, text);
    drawEverything(chart);
}

// As the title, and as the caption of the item that gathers others.
void drawChartTexts(ChartKind kind, const std::string& text)
{
    constexpr double kThreshold = 5; // per cent
    CAnyChart chart(kind, true);
    addOrdinaryItems(chart);
    chart.graph().setTitle(text);
    chart.graph().setThreshold(kThreshold);
    chart.graph().setOthers(text);
    drawEverything(chart);
    drawEverything(chart, 120, 60, 1);
}

void drawAxisTitle(ChartKind kind, const std::string& text)
{
    CAnyChart chart(kind, true);
    addOrdinaryItems(chart);
    constexpr int kLineLabelsBoldTitle = AxisProperty::ShowLine | AxisProperty::ShowLabels |
                                         AxisProperty::ShowTitle | AxisProperty::BoldTitle;
    chart.setProperties(kLineLabelsBoldTitle, text);
    drawEverything(chart);
}

void drawBoldPie(const std::string& text)
{
    CAnyChart chart(ChartKind::Pie);
    for (int i = 0; i < 12; ++i)
        chart.addItem(i + 1, text);
    chart.setProperties(PieGraph::BoldLabels | PieGraph::ShortenFromLeft | PieGraph::ShowSizes |
                            PieGraph::RemoveLabelOverlaps,
                        "");
    drawEverything(chart);
}

void addCase(HostileTable& table, const CTextCase& entry, bool isHeavy)
{
    const auto text = [entry] { return repeat(entry.piece, entry.length); };
    for (ChartKind kind : kChartKinds)
        table.push_back({nameOf(kind) + std::string(", caption: ") + entry.name,
                         [=] { drawCaption(kind, text()); }, isHeavy});
    for (ChartKind kind : kChartKinds)
        table.push_back({nameOf(kind) + std::string(", title and others: ") + entry.name,
                         [=] { drawChartTexts(kind, text()); }, isHeavy});
    for (ChartKind kind : {ChartKind::VerticalBars, ChartKind::HorizontalBars})
        table.push_back({nameOf(kind) + std::string(", axis title: ") + entry.name,
                         [=] { drawAxisTitle(kind, text()); }, isHeavy});
    table.push_back({std::string("pie, twelve bold captions cut from the left: ") + entry.name,
                     [=] { drawBoldPie(text()); }, isHeavy});
}

} // namespace

HostileTable textInputs()
{
    HostileTable table;
    for (const CTextCase& entry : textCases())
        addCase(table, entry, !kHeavy);
    for (const CTextCase& entry : longTextCases())
        addCase(table, entry, kHeavy);
    return table;
}

} // namespace tovangl
