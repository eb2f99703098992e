// SPDX-License-Identifier: MIT
/// @file
/// The widths of the texts that every shortened text is compared with.
#ifndef TOVANGL_DRAW_CSHORTTEXTWIDTHS_H
#define TOVANGL_DRAW_CSHORTTEXTWIDTHS_H

#include <QFont>
#include <QHash>
#include <QString>

#include <vector>

class QPainter;

namespace tovangl {
namespace cdraw {

/// Remembers how wide the ellipsis and single characters are, so that a rendering finds that out
/// once and not for each of its texts. It serves the fitting of texts in its own thread, from its
/// constructor to its destructor; all painters that are used meanwhile must have one resolution.
class CShortTextWidths
{
public:
    CShortTextWidths();
    ~CShortTextWidths();
    Q_DISABLE_COPY(CShortTextWidths)

    /// Pixels that a text takes in the painter's font. A text that is not short, or any where no
    /// object of this class lives, is measured each time.
    [[nodiscard]] static double widthOf(const QString& text, QPainter& painter);

private:
    struct CFontWidths
    {
        QFont font;
        QHash<QString, double> widths;
    };

    [[nodiscard]] QHash<QString, double>& widthsIn(const QFont& font);

    std::vector<CFontWidths> m_fonts; // a rendering has two: normal and bold
    CShortTextWidths* m_outer;        // the one that serves again afterwards
};

} // namespace cdraw
} // namespace tovangl

#endif
