#include "MapView.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

namespace LocalConfigClient
{

namespace
{

constexpr int g_nFlashInterval = 400; // milliseconds
constexpr int g_nRoomHeight = 30;
constexpr int g_nMargin = 8;
constexpr int g_nMarkerRadius = 5;
constexpr int g_nFocusWidth = 2;

} // namespace

MapView::MapView(QWidget* pParent)
    : QWidget(pParent)
{
    setObjectName(QStringLiteral("mapView"));
    setAccessibleName(tr("Map"));
    setFocusPolicy(Qt::StrongFocus);
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
    GoTo(0);
}

QRect MapView::GetRoom(int nPlace) const
{
    const int nShare = (height() - 2 * g_nMargin) / qMax(1, m_mapCategories.size());
    const int nHeight = qBound(qMin(fontMetrics().height(), g_nRoomHeight), nShare, g_nRoomHeight);
    return {g_nMargin, g_nMargin + nPlace * nHeight, width() - 2 * g_nMargin, nHeight};
}

/// Stays at the ends.
void MapView::GoTo(int nPlace)
{
    m_nPlace = qBound(0, nPlace, qMax(0, m_mapCategories.size() - 1));
    setAccessibleDescription(m_mapCategories.values().value(m_nPlace));
    update();
}

void MapView::keyPressEvent(QKeyEvent* pEvent)
{
    switch (pEvent->key())
    {
    case Qt::Key_Up:
        GoTo(m_nPlace - 1);
        break;
    case Qt::Key_Down:
        GoTo(m_nPlace + 1);
        break;
    case Qt::Key_Home:
        GoTo(0);
        break;
    case Qt::Key_End:
        GoTo(m_mapCategories.size() - 1);
        break;
    case Qt::Key_Space:
        if (!m_mapCategories.isEmpty())
        {
            emit SignalCategoryPicked(m_mapCategories.keys()[m_nPlace]);
        }
        break;
    default:
        QWidget::keyPressEvent(pEvent);
    }
}

void MapView::mousePressEvent(QMouseEvent* pEvent)
{
    for (int nPlace = 0; nPlace < m_mapCategories.size(); ++nPlace)
    {
        if (GetRoom(nPlace).contains(pEvent->pos()))
        {
            GoTo(nPlace);
            emit SignalCategoryPicked(m_mapCategories.keys()[nPlace]);
        }
    }
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

/// Where a category's name lies.
QRect MapView::GetTextRect(int nPlace) const
{
    const QRect room = GetRoom(nPlace);
    return QStyle::visualRect(layoutDirection(), room, room.adjusted(8 * g_nMarkerRadius, 0, -4, 0));
}

/// A tool tip tells a name that does not fit.
bool MapView::event(QEvent* pEvent)
{
    if (pEvent->type() != QEvent::ToolTip)
    {
        return QWidget::event(pEvent);
    }
    const auto* pHelp = static_cast<QHelpEvent*>(pEvent);
    QString strTip;
    for (int nPlace = 0; nPlace < m_mapCategories.size(); ++nPlace)
    {
        const QString strName = m_mapCategories.values()[nPlace];
        const bool bCut = fontMetrics().horizontalAdvance(strName) > GetTextRect(nPlace).width();
        strTip = bCut && GetRoom(nPlace).contains(pHelp->pos()) ? strName : strTip;
    }
    QToolTip::showText(pHelp->globalPos(), strTip, this); // an empty one hides what is shown
    return true;
}

QSize MapView::sizeHint() const
{
    return {280, m_mapCategories.size() * g_nRoomHeight + 2 * g_nMargin};
}

void MapView::paintEvent(QPaintEvent* /*pEvent*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const int nAlignment = int(QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft) | Qt::AlignVCenter);
    int nPlace = 0;
    for (auto it = m_mapCategories.cbegin(); it != m_mapCategories.cend(); ++it, ++nPlace)
    {
        const QRect room = GetRoom(nPlace);
        const bool bLit = m_bLit && it.key() == m_nCategory;
        painter.setPen(m_wallColor);
        painter.setBrush(m_groundColor);
        painter.drawRect(room);
        painter.setPen(Qt::NoPen);
        painter.setBrush(bLit ? m_flashColor : m_markerColor);
        const int nRadius = bLit ? 2 * g_nMarkerRadius : g_nMarkerRadius;
        QRect marker(0, 0, 2 * nRadius, 2 * nRadius);
        marker.moveCenter({room.left() + 4 * g_nMarkerRadius, room.center().y()});
        painter.drawEllipse(QStyle::visualRect(layoutDirection(), room, marker));
        painter.setPen(m_textColor);
        const QRect text = GetTextRect(nPlace);
        painter.drawText(text, nAlignment, fontMetrics().elidedText(it.value(), Qt::ElideRight, text.width()));
        if (hasFocus() && nPlace == m_nPlace)
        {
            painter.setPen(QPen(m_focusColor, g_nFocusWidth));
            painter.setBrush(Qt::NoBrush);
            painter.drawRect(room.adjusted(g_nFocusWidth, g_nFocusWidth, -g_nFocusWidth, -g_nFocusWidth));
        }
    }
}

} // namespace LocalConfigClient
