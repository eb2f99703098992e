// SPDX-License-Identifier: MIT
/// @file
/// A paint device that writes down the texts that are painted on it.
#ifndef TOVANGL_LAYOUT_CTEXTRECORDER_H
#define TOVANGL_LAYOUT_CTEXTRECORDER_H

#include <QImage>
#include <QPaintEngine>
#include <QString>

#include <vector>

namespace tovangl {

/// One text as it reached the device.
struct CRecordedText
{
    QString text;
    QPointF baseline; ///< start of the baseline, in picture pixels
    int angle = 0;    ///< degrees, clockwise
    bool isBold = false;
    QString color;
};

/// A picture that records texts, and stays unpainted.
class CTextRecorder : public QImage
{
public:
    explicit CTextRecorder(const QSize& size)
        : QImage(size, QImage::Format_ARGB32)
    {}

    [[nodiscard]] const std::vector<CRecordedText>& texts() const { return m_engine.texts; }
    QPaintEngine* paintEngine() const override { return &m_engine; }

private:
    class CEngine : public QPaintEngine
    {
    public:
        CEngine()
            : QPaintEngine(AllFeatures)
        {}
        bool begin(QPaintDevice*) override { return true; }
        bool end() override { return true; }
        void updateState(const QPaintEngineState&) override {}
        void drawPath(const QPainterPath&) override {}
        void drawPolygon(const QPointF*, int, PolygonDrawMode) override {}
        void drawPixmap(const QRectF&, const QPixmap&, const QRectF&) override {}
        void drawTextItem(const QPointF& pos, const QTextItem& item) override;
        Type type() const override { return User; }

        std::vector<CRecordedText> texts;
    };

    mutable CEngine m_engine;
};

} // namespace tovangl

#endif
