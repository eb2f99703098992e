// SPDX-License-Identifier: MIT
// Makes a TrueType font of a few letters.
#include "pdf/true_type_file.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

namespace tovangl {

namespace {

constexpr std::uint32_t kVersion = 0x00010000;
constexpr std::size_t kTableAlignment = 4;      // bytes
constexpr std::size_t kEntrySize = 16;          // of the list of tables
constexpr std::size_t kListBegin = 12;          // where the list of tables begins
constexpr std::size_t kAdjustmentOffset = 8;    // in the table "head"
constexpr std::uint32_t kWholeSum = 0xb1b0afba; // that the sum of a font and its adjustment is
constexpr std::uint32_t kMagicNumber = 0x5f0f3cf5;

constexpr unsigned kOnCurve = 0x01; // flags of a point
constexpr unsigned kShortX = 0x02;
constexpr unsigned kShortY = 0x04;
constexpr unsigned kSameOrPositiveX = 0x10;
constexpr unsigned kSameOrPositiveY = 0x20;
constexpr int kLargestShort = 255;

struct CTable
{
    const char* tag;
    std::string bytes;
};

void append8(std::string& bytes, unsigned value)
{
    bytes += static_cast<char>(value & 0xff);
}

void append16(std::string& bytes, int value)
{
    append8(bytes, static_cast<unsigned>(value) >> 8);
    append8(bytes, static_cast<unsigned>(value));
}

void append32(std::string& bytes, std::uint32_t value)
{
    append16(bytes, static_cast<int>(value >> 16));
    append16(bytes, static_cast<int>(value & 0xffff));
}

void appendZeros(std::string& bytes, std::size_t count)
{
    bytes.append(count, '\0');
}

void pad(std::string& bytes)
{
    while (bytes.size() % kTableAlignment != 0)
        append8(bytes, 0);
}

std::uint32_t checksum(const std::string& bytes)
{
    std::uint32_t sum = 0;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        const std::size_t shift = 8 * (kTableAlignment - 1 - i % kTableAlignment);
        sum += static_cast<std::uint32_t>(static_cast<unsigned char>(bytes[i])) << shift;
    }
    return sum;
}

// Points one behind the other, as differences from the one before. A difference is nothing, a byte
// with its sign among the flags, or two bytes.
class CPointWriter
{
public:
    void add(const COutlinePoint& point)
    {
        unsigned flags = point.isOnCurve ? kOnCurve : 0;
        flags |= addDifference(m_xs, point.x - m_last.x, kShortX, kSameOrPositiveX);
        flags |= addDifference(m_ys, point.y - m_last.y, kShortY, kSameOrPositiveY);
        append8(m_flags, flags);
        m_last = point;
    }
    [[nodiscard]] std::string bytes() const { return m_flags + m_xs + m_ys; }

private:
    static unsigned addDifference(std::string& bytes, int difference, unsigned isShort,
                                  unsigned isSameOrPositive)
    {
        if (difference == 0)
            return isSameOrPositive;
        if (difference < -kLargestShort || difference > kLargestShort) {
            append16(bytes, difference);
            return 0;
        }
        append8(bytes, static_cast<unsigned>(difference < 0 ? -difference : difference));
        return difference > 0 ? isShort | isSameOrPositive : isShort;
    }

    std::string m_flags;
    std::string m_xs;
    std::string m_ys;
    COutlinePoint m_last;
};

// Empty for a glyph without any outline, such as a space.
std::string glyphData(const CFontGlyph& glyph)
{
    std::string bytes;
    if (glyph.contours.empty())
        return bytes;
    CFontBox box;
    widen(box, glyph.contours);
    append16(bytes, static_cast<int>(glyph.contours.size()));
    for (const int edge : {box.left, box.bottom, box.right, box.top})
        append16(bytes, edge);
    CPointWriter points;
    int count = 0;
    for (const CContour& contour : glyph.contours) {
        count += static_cast<int>(contour.size());
        append16(bytes, count - 1);
        for (const COutlinePoint& point : contour)
            points.add(point);
    }
    append16(bytes, 0); // no instructions
    bytes += points.bytes();
    pad(bytes);
    return bytes;
}

int leftEdge(const CFontGlyph& glyph)
{
    CFontBox box;
    widen(box, glyph.contours);
    return box.left;
}

std::string headTable(const CFontBox& box)
{
    std::string bytes;
    append32(bytes, kVersion);
    append32(bytes, kVersion); // of the font
    append32(bytes, 0);        // the adjustment, which is not known yet
    append32(bytes, kMagicNumber);
    append16(bytes, 0x0003); // the baseline is at 0, and so is the left edge
    append16(bytes, box.unitsPerEm);
    appendZeros(bytes, 16); // made and changed at no time
    for (const int edge : {box.left, box.bottom, box.right, box.top})
        append16(bytes, edge);
    append16(bytes, 0); // style
    append16(bytes, 8); // smallest readable size, in pixels
    append16(bytes, 2); // directions are mixed
    append16(bytes, 1); // places of glyphs have four bytes
    append16(bytes, 0);
    return bytes;
}

std::string heightsTable(const CFontBox& box, const std::vector<CFontGlyph>& glyphs)
{
    int widest = 0;
    for (const CFontGlyph& glyph : glyphs)
        widest = std::max(widest, glyph.advance);
    std::string bytes;
    append32(bytes, kVersion);
    append16(bytes, box.ascent);
    append16(bytes, -box.descent);
    append16(bytes, 0); // gap between lines
    append16(bytes, widest);
    append16(bytes, box.left);
    append16(bytes, 0);
    append16(bytes, box.right);
    append16(bytes, 1); // the cursor stands upright
    appendZeros(bytes, 14);
    append16(bytes, static_cast<int>(glyphs.size()));
    return bytes;
}

std::string widthsTable(const std::vector<CFontGlyph>& glyphs)
{
    std::string bytes;
    for (const CFontGlyph& glyph : glyphs) {
        append16(bytes, glyph.advance);
        append16(bytes, leftEdge(glyph));
    }
    return bytes;
}

std::string limitsTable(const std::vector<CFontGlyph>& glyphs)
{
    std::size_t mostPoints = 0;
    std::size_t mostContours = 0;
    for (const CFontGlyph& glyph : glyphs) {
        std::size_t points = 0;
        for (const CContour& contour : glyph.contours)
            points += contour.size();
        mostPoints = std::max(mostPoints, points);
        mostContours = std::max(mostContours, glyph.contours.size());
    }
    std::string bytes;
    append32(bytes, kVersion);
    append16(bytes, static_cast<int>(glyphs.size()));
    append16(bytes, static_cast<int>(mostPoints));
    append16(bytes, static_cast<int>(mostContours));
    appendZeros(bytes, 4); // no glyph consists of others
    append16(bytes, 2);
    appendZeros(bytes, 16); // no instructions
    return bytes;
}

std::vector<CTable> tables(const CFontBox& box, const std::vector<CFontGlyph>& glyphs)
{
    std::string outlines;
    std::string places;
    for (const CFontGlyph& glyph : glyphs) {
        append32(places, static_cast<std::uint32_t>(outlines.size()));
        outlines += glyphData(glyph);
    }
    append32(places, static_cast<std::uint32_t>(outlines.size()));
    // In the order of their tags, as readers search them.
    return {{"glyf", outlines},
            {"head", headTable(box)},
            {"hhea", heightsTable(box, glyphs)},
            {"hmtx", widthsTable(glyphs)},
            {"loca", places},
            {"maxp", limitsTable(glyphs)}};
}

// The numbers with which a list of that many tables is searched in halves.
void appendSearchNumbers(std::string& bytes, std::size_t count)
{
    int power = 1;
    int exponent = 0;
    while (static_cast<std::size_t>(2 * power) <= count) {
        power *= 2;
        ++exponent;
    }
    const int range = power * static_cast<int>(kEntrySize);
    append16(bytes, range);
    append16(bytes, exponent);
    append16(bytes, static_cast<int>(count * kEntrySize) - range);
}

} // namespace

void widen(CFontBox& box, const std::vector<CContour>& contours)
{
    const bool isFirst = box.left == 0 && box.right == 0 && box.bottom == 0 && box.top == 0;
    if (isFirst && !contours.empty()) {
        const COutlinePoint& start = contours.front().front();
        box.left = box.right = start.x;
        box.bottom = box.top = start.y;
    }
    for (const CContour& contour : contours) {
        for (const COutlinePoint& point : contour) {
            box.left = std::min(box.left, point.x);
            box.right = std::max(box.right, point.x);
            box.bottom = std::min(box.bottom, point.y);
            box.top = std::max(box.top, point.y);
        }
    }
}

std::string trueTypeFile(const CFontBox& box, const std::vector<CFontGlyph>& glyphs)
{
    const std::vector<CTable> parts = tables(box, glyphs);
    std::string list;
    append32(list, kVersion);
    append16(list, static_cast<int>(parts.size()));
    appendSearchNumbers(list, parts.size());
    std::string bodies;
    const std::size_t begin = kListBegin + parts.size() * kEntrySize;
    std::size_t head = 0;
    for (const CTable& part : parts) {
        if (part.tag == std::string("head"))
            head = begin + bodies.size();
        list += part.tag;
        append32(list, checksum(part.bytes));
        append32(list, static_cast<std::uint32_t>(begin + bodies.size()));
        append32(list, static_cast<std::uint32_t>(part.bytes.size()));
        bodies += part.bytes;
        pad(bodies);
    }
    std::string file = list + bodies;
    std::string adjustment;
    append32(adjustment, kWholeSum - checksum(file));
    file.replace(head + kAdjustmentOffset, adjustment.size(), adjustment);
    return file;
}

} // namespace tovangl
