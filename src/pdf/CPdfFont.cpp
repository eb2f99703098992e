// SPDX-License-Identifier: MIT
// The part of a font that a PDF file needs.
#include "pdf/CPdfFont.h"

#include "pdf/CPdfObjects.h"
#include "pdf/font_tables.h"
#include "pdf/pdf_text.h"

#include <QByteArray>
#include <QPainterPath>
#include <QPointF>
#include <QString>
#include <QVector>

#include <algorithm>
#include <cmath>

namespace tovangl {

namespace {

constexpr int kThousand = 1000;          // parts of a font's size that lengths in PDF are given in
constexpr int kDefaultUnitsPerEm = 1000; // of a font without outlines
constexpr std::uint32_t kMissingGlyph = 0;
// A font file has twice that number, of which the rest stays for the glyphs of the face.
constexpr std::size_t kMostGlyphsWithCells = 32767;
constexpr int kTagLetters = 6;
constexpr std::size_t kMostMappings = 100; // in one block of a table of characters

// Tells apart the parts of one font in several documents, which a program can put together.
std::string subsetTag(const std::string& file)
{
    std::uint64_t hash = 14695981039346656037u;
    for (const char byte : file)
        hash = (hash ^ static_cast<unsigned char>(byte)) * 1099511628211u;
    std::string tag;
    for (int i = 0; i < kTagLetters; ++i) {
        tag += static_cast<char>('A' + hash % 26);
        hash /= 26;
    }
    return tag;
}

std::string faceName(const QRawFont& face)
{
    const std::string name = pdfName(postScriptName(face.fontTable("name")));
    return name.empty() ? "Font" : name;
}

std::string letterTable(const std::vector<std::string>& mappings)
{
    std::string table = "/CIDInit/ProcSet findresource begin\n12 dict begin\nbegincmap\n"
                        "/CIDSystemInfo<</Registry(Adobe)/Ordering(UCS)/Supplement 0>>def\n"
                        "/CMapName/Adobe-Identity-UCS def\n/CMapType 2 def\n"
                        "1 begincodespacerange\n<0000><FFFF>\nendcodespacerange\n";
    for (std::size_t begin = 0; begin < mappings.size(); begin += kMostMappings) {
        const std::size_t end = std::min(begin + kMostMappings, mappings.size());
        table += std::to_string(end - begin) + " beginbfchar\n";
        for (std::size_t i = begin; i < end; ++i)
            table += mappings[i];
        table += "endbfchar\n";
    }
    return table + "endcmap\nCMapName currentdict/CMap defineresource pop\nend\nend";
}

std::string mapping(std::size_t number, const QString& letters)
{
    std::string text = '<' + pdfHex(static_cast<std::uint16_t>(number)) + "><";
    for (const QChar unit : letters)
        text += pdfHex(unit.unicode());
    return text + ">\n";
}

} // namespace

CPdfFont::CPdfFont(const QRawFont& face, bool isBold)
    : m_face(face)
    , m_form(glyphFormOf(face))
    , m_isBold(isBold)
    , m_head(face.fontTable("head"))
    , m_outlines(face)
    , m_isEmbeddable(allowsEmbedding(face.fontTable("OS/2")))
{
    const int units = static_cast<int>(std::lround(face.unitsPerEm()));
    m_box.unitsPerEm = units > 0 ? units : kDefaultUnitsPerEm;
    m_outlines.setPixelSize(m_box.unitsPerEm);
    m_box.ascent = static_cast<int>(std::lround(m_outlines.ascent()));
    m_box.descent = static_cast<int>(std::lround(m_outlines.descent()));
    // Every font begins with the glyph that stands for missing ones.
    static_cast<void>(use(kMissingGlyph));
}

// Qt can have one face several times: for each script.
bool CPdfFont::isOf(const QRawFont& face, bool isBold) const
{
    if (m_isBold != isBold)
        return false;
    return m_face == face || (!m_head.isEmpty() && m_head == face.fontTable("head") &&
                              m_face.weight() == face.weight() && m_face.style() == face.style());
}

std::uint16_t CPdfFont::use(std::uint32_t glyph)
{
    const auto known = m_numbers.find(glyph);
    if (known != m_numbers.end())
        return known->second;
    const std::uint16_t number = add(outlineOf(glyph));
    m_numbers[glyph] = number;
    return number;
}

std::uint16_t CPdfFont::useUnseen(std::uint32_t glyph)
{
    const auto known = m_unseenNumbers.find(glyph);
    if (known != m_unseenNumbers.end())
        return known->second;
    CFontGlyph unseen = outlineOf(glyph);
    unseen.contours.clear();
    // The advances that Qt tells of pictures are a third of those that it lays them out with.
    const double right = m_outlines.boundingRect(glyph).right();
    unseen.advance = std::max(unseen.advance, static_cast<int>(std::lround(right)));
    const std::uint16_t number = add(std::move(unseen));
    m_unseenNumbers[glyph] = number;
    return number;
}

CGlyphHalves CPdfFont::useInHalves(std::uint32_t glyph)
{
    const auto known = m_halves.find(glyph);
    if (known != m_halves.end())
        return known->second;
    CFontGlyph left = outlineOf(glyph);
    CFontGlyph right;
    right.advance = left.advance / 2;
    left.advance -= right.advance;
    const CGlyphHalves halves{add(std::move(left)), add(std::move(right))};
    m_halves[glyph] = halves;
    return halves;
}

bool CPdfFont::hasRoomForCells(std::size_t cells) const
{
    return m_glyphs.size() + cells <= kMostGlyphsWithCells;
}

std::uint16_t CPdfFont::addCell(const CLetterCell& cell, double width, double size)
{
    const double units = m_box.unitsPerEm / size;
    CFontGlyph glyph;
    glyph.advance = static_cast<int>(std::lround(width * units));
    QPainterPath outlines;
    outlines.setFillRule(Qt::WindingFill);
    for (const CCellGlyph& part : cell.glyphs)
        outlines.addPath(pathOf(part.glyph).translated(part.place * units));
    if (m_isEmbeddable)
        glyph.contours = toContours(outlines);
    return add(std::move(glyph));
}

QPainterPath CPdfFont::pathOf(std::uint32_t glyph) const
{
    return m_form == GlyphForm::Pictures ? QPainterPath() : m_outlines.pathForGlyph(glyph);
}

CFontGlyph CPdfFont::outlineOf(std::uint32_t glyph)
{
    CFontGlyph outline;
    if (m_isEmbeddable)
        outline.contours = toContours(pathOf(glyph));
    const QVector<QPointF> advances = m_outlines.advancesForGlyphIndexes(QVector<quint32>{glyph});
    if (!advances.isEmpty())
        outline.advance = static_cast<int>(std::lround(advances.first().x()));
    return outline;
}

std::uint16_t CPdfFont::add(CFontGlyph glyph)
{
    widen(m_box, glyph.contours);
    m_glyphs.push_back(std::move(glyph));
    m_letters.emplace_back();
    return static_cast<std::uint16_t>(m_glyphs.size() - 1);
}

bool CPdfFont::tell(std::uint16_t number, const QString& letters)
{
    QString& told = m_letters[number];
    if (told.isEmpty() && number != kMissingGlyph)
        told = letters;
    return told == letters && !told.isEmpty();
}

int CPdfFont::advance(std::uint16_t number) const
{
    return inThousandths(m_glyphs[number].advance);
}

int CPdfFont::inThousandths(int fontUnits) const
{
    return static_cast<int>(
        std::lround(static_cast<double>(fontUnits) * kThousand / m_box.unitsPerEm));
}

int CPdfFont::write(CPdfObjects& objects) const
{
    const std::string file = trueTypeFile(m_box, m_glyphs);
    const std::string name = subsetTag(file) + '+' + faceName(m_face);
    const int descriptor = writeDescriptor(objects, file, name);
    std::string widths;
    for (std::size_t number = 0; number < m_glyphs.size(); ++number)
        widths += std::to_string(advance(static_cast<std::uint16_t>(number))) + ' ';
    const int glyphs = objects.add(
        "<</Type/Font/Subtype/CIDFontType2/BaseFont/" + name +
        "/CIDSystemInfo<</Registry(Adobe)/Ordering(Identity)/Supplement 0>>/FontDescriptor " +
        pdfReference(descriptor) + "/CIDToGIDMap/Identity/W[0[" + widths + "]]>>");
    return objects.add("<</Type/Font/Subtype/Type0/BaseFont/" + name +
                       "/Encoding/Identity-H/DescendantFonts[" + pdfReference(glyphs) +
                       "]/ToUnicode " + pdfReference(writeLetters(objects)) + ">>");
}

int CPdfFont::writeDescriptor(CPdfObjects& objects, const std::string& file,
                              const std::string& name) const
{
    constexpr char kNeitherSerifNorScript[] = "/Flags 4/ItalicAngle 0/StemV 80";
    const int program = objects.addStream("/Length1 " + std::to_string(file.size()), file);
    std::string box;
    for (const int edge : {m_box.left, m_box.bottom, m_box.right, m_box.top})
        box += std::to_string(inThousandths(edge)) + ' ';
    const std::string ascent = std::to_string(inThousandths(m_box.ascent));
    return objects.add("<</Type/FontDescriptor/FontName/" + name + kNeitherSerifNorScript +
                       "/FontBBox[" + box + "]/Ascent " + ascent + "/CapHeight " + ascent +
                       "/Descent " + std::to_string(-inThousandths(m_box.descent)) + "/FontFile2 " +
                       pdfReference(program) + ">>");
}

int CPdfFont::writeLetters(CPdfObjects& objects) const
{
    std::vector<std::string> mappings;
    for (std::size_t number = 0; number < m_letters.size(); ++number) {
        if (!m_letters[number].isEmpty())
            mappings.push_back(mapping(number, m_letters[number]));
    }
    return objects.addStream(std::string(), letterTable(mappings));
}

} // namespace tovangl
