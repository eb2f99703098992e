// SPDX-License-Identifier: MIT
/// @file
/// The part of a font that a PDF file needs.
#ifndef TOVANGL_PDF_CPDFFONT_H
#define TOVANGL_PDF_CPDFFONT_H

#include "pdf/letter_cells.h"
#include "pdf/true_type_file.h"
#include "text/glyph_picture.h"

#include <QByteArray>
#include <QPainterPath>
#include <QRawFont>
#include <QString>

#include <cstdint>
#include <map>
#include <vector>

namespace tovangl {

class CPdfObjects;

/// The numbers of two glyphs, of which the left one looks like both.
struct CGlyphHalves
{
    std::uint16_t left = 0;
    std::uint16_t right = 0;
};

/// A face with the glyphs that texts use, in the order of their first use. The file gets their
/// outlines as a TrueType font, whatever the face consists of: every reader has had those for
/// decades, and their outlines are all that is needed. Of a font whose maker forbids that, the file
/// gets how wide its glyphs are and which letters they stand for.
class CPdfFont
{
public:
    /// @param isBold  whether its glyphs are; a face that Qt makes bold is the same face to Qt
    CPdfFont(const QRawFont& face, bool isBold);

    [[nodiscard]] bool isOf(const QRawFont& face, bool isBold) const;
    [[nodiscard]] GlyphForm form() const { return m_form; }
    /// Whether its maker allows it in documents.
    [[nodiscard]] bool isEmbeddable() const { return m_isEmbeddable; }
    /// The number of a glyph in the file.
    [[nodiscard]] std::uint16_t use(std::uint32_t glyph);
    /// The same for a glyph that something else shows.
    [[nodiscard]] std::uint16_t useUnseen(std::uint32_t glyph);
    /// The same for a glyph that joins two letters: each gets half of its width. Of two letters of
    /// one glyph, readers that go by places take the left one for the first, whatever the script.
    [[nodiscard]] CGlyphHalves useInHalves(std::uint32_t glyph);
    /// Whether addCell() can be called so many times.
    [[nodiscard]] bool hasRoomForCells(std::size_t cells) const;
    /// A new glyph of the file, of the width of a cell and with the look of all that stands in it.
    ///
    /// @param size  of the font, in pixels
    [[nodiscard]] std::uint16_t addCell(const CLetterCell& cell, double width, double size);
    /// Says what a glyph of the file stands for, which is a letter or several joined.
    ///
    /// @return false if it already stands for something else
    [[nodiscard]] bool tell(std::uint16_t number, const QString& letters);
    /// How far a glyph of the file moves the pen, in thousandths of the font's size.
    [[nodiscard]] int advance(std::uint16_t number) const;
    /// Writes the font and returns the number of its object.
    int write(CPdfObjects& objects) const;

private:
    [[nodiscard]] QPainterPath pathOf(std::uint32_t glyph) const;
    [[nodiscard]] CFontGlyph outlineOf(std::uint32_t glyph);
    [[nodiscard]] std::uint16_t add(CFontGlyph glyph);
    [[nodiscard]] int inThousandths(int fontUnits) const;
    [[nodiscard]] int writeDescriptor(CPdfObjects& objects, const std::string& file,
                                      const std::string& name) const;
    [[nodiscard]] int writeLetters(CPdfObjects& objects) const;

    QRawFont m_face;
    GlyphForm m_form;
    bool m_isBold;
    QByteArray m_head;   // its table "head", which has a checksum of the font
    QRawFont m_outlines; // the face at the size whose pixels are font units
    bool m_isEmbeddable;
    CFontBox m_box;
    std::vector<CFontGlyph> m_glyphs;
    std::vector<QString> m_letters; // of the glyphs; empty where they are not told
    std::map<std::uint32_t, std::uint16_t> m_numbers;
    std::map<std::uint32_t, std::uint16_t> m_unseenNumbers;
    std::map<std::uint32_t, CGlyphHalves> m_halves;
};

} // namespace tovangl

#endif
