// SPDX-License-Identifier: MIT
// Measures texts as the painter of a picture draws them.
#include "text/CTextMeasurer.h"

#include "base/pixel_arithmetic.h"
#include "text/qt_text.h"

#include <QFontInfo>
#include <QPainter>

namespace tovangl {

namespace {

// Each letter of a magnified text is at most one and a half pixels wider than twice the small
// one's, and most letters are not: a quarter of the width is far more than whole texts grow by.
constexpr double kMostGrowth = 0.25;

// Sets the painter's bold font for a scope; the plain one is already set.
class CFontScope
{
public:
    CFontScope(QPainter& painter, const QFont& font, bool isBold)
        : m_painter(isBold ? &painter : nullptr)
    {
        if (!m_painter)
            return;
        m_plain = painter.font();
        painter.setFont(font);
    }
    ~CFontScope()
    {
        if (m_painter)
            m_painter->setFont(m_plain);
    }
    Q_DISABLE_COPY(CFontScope)

private:
    QPainter* m_painter; // null where nothing was changed
    QFont m_plain;
};

// Where one font serves all scripts, Qt takes the one that suits the first text. For an Arabic one
// that would be any installed family that can shape Arabic, and it would serve all other texts too.
void loadForAllScripts(const QFont& font)
{
    static_cast<void>(QFontInfo(font).family());
}

bool isShort(const QString& text)
{
    return text.size() == 1 || text == cdraw::ellipsis();
}

} // namespace

CTextMeasurer::CTextMeasurer(QPainter& painter, int magnification)
    : m_painter(painter)
    , m_magnification(magnification)
    , m_plain{painter.font(), {}}
    , m_bold{painter.font(), {}}
{
    m_bold.font.setWeight(QFont::Bold);
    if (m_plain.font.styleStrategy() & QFont::NoFontMerging) {
        loadForAllScripts(m_plain.font);
        loadForAllScripts(m_bold.font);
    }
}

QRectF CTextMeasurer::boundingRect(const QString& text, bool isBold)
{
    const CFontScope scope(m_painter, m_bold.font, isBold);
    const QRectF rect = qt::measureText(m_painter, QRectF(), cdraw::measuredPart(text));
    return QRectF(rect.topLeft() * m_magnification, rect.size() * m_magnification);
}

double CTextMeasurer::slack(double width) const
{
    return m_magnification > 1 ? width * kMostGrowth : 0;
}

int CTextMeasurer::fontHeight() const
{
    return scalePixels(qt::fontHeight(m_painter), m_magnification);
}

bool CTextMeasurer::canShorten(const QString& text, double width, const CTextStyle& style)
{
    const CFontScope scope(m_painter, m_bold.font, style.isBold);
    return cdraw::canShortenText(text, width, style.isShortFromLeft, cdraw::kStripSpaces,
                                 measureIn(face(style.isBold)));
}

QString CTextMeasurer::shortened(const QString& text, double width, const CTextStyle& style)
{
    const CFontScope scope(m_painter, m_bold.font, style.isBold);
    return cdraw::shortenText(text, width, style.isShortFromLeft, cdraw::kStripSpaces,
                              measureIn(face(style.isBold)))
        .text;
}

double CTextMeasurer::width(const QString& text, CFace& face)
{
    const auto measured = [&] {
        return m_magnification * m_painter.boundingRect(QRectF(), 0, text).width();
    };
    if (!isShort(text))
        return measured();
    const auto known = face.shortWidths.constFind(text);
    return known != face.shortWidths.constEnd() ? *known
                                                : *face.shortWidths.insert(text, measured());
}

cdraw::TextMeasure CTextMeasurer::measureIn(CFace& face)
{
    return [this, &face](const QString& text) { return width(text, face); };
}

} // namespace tovangl
