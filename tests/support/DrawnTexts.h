#pragma once

#include <QPaintDevice>
#include <QPaintEngine>
#include <QWidget>

/// A text as it has been drawn, on its widget.
struct SDrawnText
{
    QString strText;
    QRectF place;
};

/// Draws nothing and notes every text.
class CTextRecorder : public QPaintDevice
{
public:
    explicit CTextRecorder(const QWidget& like)
        : m_engine(m_listTexts)
        , m_size(like.size())
        , m_nDpi(like.logicalDpiX())
    {}

    QPaintEngine* paintEngine() const override { return &m_engine; }
    const QList<SDrawnText>& GetTexts() const { return m_listTexts; }

protected:
    int metric(PaintDeviceMetric eMetric) const override
    {
        switch (eMetric)
        {
        case PdmWidth:
            return m_size.width();
        case PdmHeight:
            return m_size.height();
        case PdmDpiX:
        case PdmDpiY:
        case PdmPhysicalDpiX:
        case PdmPhysicalDpiY:
            return m_nDpi;
        case PdmDevicePixelRatio:
            return 1;
        case PdmDevicePixelRatioScaled:
            return int(devicePixelRatioFScale());
        case PdmDepth:
            return 32;
        default:
            return QPaintDevice::metric(eMetric);
        }
    }

private:
    class CEngine : public QPaintEngine
    {
    public:
        explicit CEngine(QList<SDrawnText>& listTexts)
            : QPaintEngine(AllFeatures)
            , m_listTexts(listTexts)
        {}

        bool begin(QPaintDevice* /*pDevice*/) override { return true; }
        bool end() override { return true; }
        Type type() const override { return User; }
        void updateState(const QPaintEngineState& state) override
        {
            if (state.state() & DirtyTransform)
            {
                m_transform = state.transform();
            }
        }
        void drawPixmap(const QRectF& /*to*/, const QPixmap& /*pixmap*/, const QRectF& /*from*/) override {}
        void drawPath(const QPainterPath& /*path*/) override {}
        void drawPolygon(const QPointF* /*pPoints*/, int /*nCount*/, PolygonDrawMode /*eMode*/) override {}
        void drawTextItem(const QPointF& start, const QTextItem& item) override
        {
            const QRectF place(start.x(), start.y() - item.ascent(), item.width(), item.ascent() + item.descent());
            m_listTexts += {item.text(), m_transform.mapRect(place)};
        }

    private:
        QList<SDrawnText>& m_listTexts;
        QTransform m_transform;
    };

    QList<SDrawnText> m_listTexts;
    mutable CEngine m_engine;
    QSize m_size;
    int m_nDpi;
};

/// What a widget draws itself, without its children.
inline QList<SDrawnText> DrawnTexts(QWidget& widget)
{
    CTextRecorder recorder(widget);
    widget.render(&recorder, QPoint(), QRegion(), {});
    return recorder.GetTexts();
}
