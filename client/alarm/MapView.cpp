#include "MapView.h"

#include <QPainter>

namespace LocalConfigClient
{

namespace
{

constexpr int g_nFlashInterval = 400; // milliseconds
constexpr int g_nRoomHeight = 30;
constexpr int g_nMargin = 8;
constexpr int g_nMarkerRadius = 5;

} // namespace

MapView::MapView(QWidget* pParent)
    : QWidget(pParent)
{
    setObjectName(QStringLiteral("mapView"));
    setAccessibleName(tr("Map"));
    m_timer.setInterval(g_nFlashInterval);
    connect(&m_timer, &QTimer::timeout, this, [this] {
        m_bLit = !m_bLit;
        update();
    });
}

void MapView::SetCategories(const QMap<int, QString>& mapCategories)
{
    m_mapCategories = mapCategories;
    updateGeometry();
    update();
}

void MapView::Flash(int nCategory)
{
    StopFlash();
    if (m_mapCategories.contains(nCategory))
    {
        m_nCategory = nCategory;
        m_bLit = true;
        m_timer.start();
    }
}

void MapView::StopFlash()
{
    m_timer.stop();
    m_nCategory = 0;
    m_bLit = false;
    update();
}

QSize MapView::sizeHint() const
{
    return {280, m_mapCategories.size() * g_nRoomHeight + 2 * g_nMargin};
}

void MapView::paintEvent(QPaintEvent* /*pEvent*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QRect room(g_nMargin, g_nMargin, width() - 2 * g_nMargin, g_nRoomHeight);
    for (auto it = m_mapCategories.cbegin(); it != m_mapCategories.cend(); ++it, room.translate(0, g_nRoomHeight))
    {
        const bool bLit = m_bLit && it.key() == m_nCategory;
        painter.setPen(m_wallColor);
        painter.setBrush(m_groundColor);
        painter.drawRect(room);
        painter.setPen(Qt::NoPen);
        painter.setBrush(bLit ? m_flashColor : m_markerColor);
        const int nRadius = bLit ? 2 * g_nMarkerRadius : g_nMarkerRadius;
        const QPoint marker(room.left() + 4 * g_nMarkerRadius, room.center().y());
        painter.drawEllipse(marker, nRadius, nRadius);
        painter.setPen(m_textColor);
        const QRect text = room.adjusted(8 * g_nMarkerRadius, 0, -4, 0);
        painter.drawText(text, Qt::AlignVCenter, fontMetrics().elidedText(it.value(), Qt::ElideRight, text.width()));
    }
}

} // namespace LocalConfigClient
