#include "SplitView.h"

#include <QDateTime>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>

#include <algorithm>

namespace LocalConfigClient
{

namespace
{

constexpr int g_nGap = 2; // pixels between panes
constexpr int g_nOriginalScale = 0;
constexpr int g_nFullScreen = 1;
constexpr int g_nMarkSize = 12;
constexpr QSize g_pictureSize(352, 288); // of the stand-in for a camera's picture

struct SSplit
{
    int nSplit;
    int nColumns;
    int nRows;
    QRect large; // in cells; empty where all panes are of one size
};

const SSplit g_arrSplits[] = {
    {1, 1, 1, QRect()},           {4, 2, 2, QRect()},  {6, 3, 3, QRect(0, 0, 2, 2)},
    {8, 4, 4, QRect(0, 0, 3, 3)}, {9, 3, 3, QRect()},  {13, 4, 4, QRect(1, 1, 2, 2)},
    {16, 4, 4, QRect()},          {20, 5, 4, QRect()}, {25, 5, 5, QRect()},
    {36, 6, 6, QRect()},
};

} // namespace

SplitView::SplitView(QWidget* pParent)
    : QWidget(pParent)
{
    setObjectName(QStringLiteral("splitView"));
    setAccessibleName(tr("Live view"));
    setFocusPolicy(Qt::StrongFocus);
    ShowSelection();
}

void SplitView::SetSplit(int nSplit)
{
    if (!GetPanes(nSplit, rect()).isEmpty())
    {
        m_nSplit = nSplit;
        m_nSelected = qMin(m_nSelected, nSplit - 1);
        ShowSelection();
    }
}

void SplitView::SetDisplayScale(int nScale)
{
    if (nScale == g_nOriginalScale || nScale == g_nFullScreen)
    {
        m_nDisplayScale = nScale;
        update();
    }
}

QRect SplitView::GetPicturePlace(const QRect& pane, const QSize& picture, int nScale)
{
    if (nScale == g_nFullScreen)
    {
        return pane;
    }
    QRect place(QPoint(), picture);
    place.moveCenter(pane.center());
    return place;
}

QVector<QRect> SplitView::GetPanes(int nSplit, const QRect& area)
{
    QVector<QRect> listPanes;
    for (const SSplit& split : g_arrSplits)
    {
        if (split.nSplit != nSplit)
        {
            continue;
        }
        // Edges are computed, not sizes, so that the panes fill the area without a remainder.
        const auto pane = [&](const QRect& cells) {
            const int nLeft = area.left() + area.width() * cells.left() / split.nColumns;
            const int nRight = area.left() + area.width() * (cells.right() + 1) / split.nColumns;
            const int nTop = area.top() + area.height() * cells.top() / split.nRows;
            const int nBottom = area.top() + area.height() * (cells.bottom() + 1) / split.nRows;
            return QRect(nLeft, nTop, nRight - nLeft, nBottom - nTop);
        };
        for (int nRow = 0; nRow < split.nRows; ++nRow)
        {
            for (int nColumn = 0; nColumn < split.nColumns; ++nColumn)
            {
                const QPoint cell(nColumn, nRow);
                if (cell == split.large.topLeft() && !split.large.isEmpty())
                {
                    listPanes += pane(split.large);
                }
                else if (!split.large.contains(cell))
                {
                    listPanes += pane(QRect(cell, QSize(1, 1)));
                }
            }
        }
    }
    return listPanes;
}

void SplitView::Select(int nPane)
{
    if (nPane >= 0 && nPane < m_nSplit)
    {
        m_nSelected = nPane;
        ShowSelection();
    }
}

void SplitView::SetRecorded(int nPane)
{
    m_nRecorded = nPane;
    ShowSelection();
}

/// To the eye and to screen readers.
void SplitView::ShowSelection()
{
    const QString strChannel = GetChannelName(m_nSelected);
    setAccessibleDescription(m_nSelected == m_nRecorded ? tr("%1, recorded").arg(strChannel) : strChannel);
    update();
}

void SplitView::ToggleSingleWindow()
{
    m_bSingleWindow = !m_bSingleWindow;
    update();
}

QString SplitView::GetChannelName(int nPane)
{
    return tr("Camera %1").arg(nPane + 1, 2, 10, QLatin1Char('0'));
}

QImage SplitView::GetPicture(int nPane) const
{
    QImage picture(g_pictureSize, QImage::Format_RGB32);
    QPainter painter(&picture);
    QLinearGradient sky(0, 0, 0, picture.height());
    sky.setColorAt(0, m_paneColor.lighter(300));
    sky.setColorAt(1, m_paneColor.lighter(150));
    painter.fillRect(picture.rect(), sky);
    painter.setPen(m_textColor);
    painter.drawText(picture.rect().adjusted(8, 8, -8, -8), Qt::AlignLeft | Qt::AlignTop, GetChannelName(nPane));
    painter.drawText(picture.rect().adjusted(8, 8, -8, -8), Qt::AlignRight | Qt::AlignBottom,
                     QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss.zzz")));
    return picture;
}

QMap<int, QRect> SplitView::GetShownPanes() const
{
    if (m_bSingleWindow)
    {
        return {{m_nSelected, rect()}};
    }
    QMap<int, QRect> mapPanes;
    for (const QRect& pane : GetPanes(m_nSplit, rect()))
    {
        mapPanes.insert(mapPanes.size(), pane);
    }
    return mapPanes;
}

void SplitView::paintEvent(QPaintEvent* /*pEvent*/)
{
    QPainter painter(this);
    painter.fillRect(rect(), m_gapColor);
    const QMap<int, QRect> mapPanes = GetShownPanes();
    for (auto it = mapPanes.begin(); it != mapPanes.end(); ++it)
    {
        PaintPane(painter, it.key(), it.value().adjusted(g_nGap / 2, g_nGap / 2, -g_nGap / 2, -g_nGap / 2));
    }
}

void SplitView::PaintPane(QPainter& painter, int nPane, const QRect& pane) const
{
    painter.setClipRect(pane);
    painter.fillRect(pane, m_paneColor);
    QLinearGradient sky(0, 0, 0, 1);
    sky.setCoordinateMode(QGradient::ObjectBoundingMode);
    sky.setColorAt(0, m_paneColor.lighter(300));
    sky.setColorAt(1, m_paneColor.lighter(150));
    painter.fillRect(GetPicturePlace(pane, g_pictureSize, m_nDisplayScale), sky);
    painter.setPen(m_textColor);
    painter.drawText(pane, Qt::AlignCenter, QString::number(nPane + 1));
    if (nPane == m_nSelected)
    {
        const double dWidth = hasFocus() ? 2 * g_nGap : g_nGap;
        painter.setPen(QPen(hasFocus() ? m_focusColor : m_selectedColor, dWidth));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(QRectF(pane).adjusted(dWidth / 2, dWidth / 2, -dWidth / 2, -dWidth / 2));
    }
    if (nPane == m_nRecorded)
    {
        PaintRecorded(painter, pane);
    }
}

void SplitView::PaintRecorded(QPainter& painter, const QRect& pane) const
{
    const QRect mark(pane.topLeft() + QPoint(g_nMarkSize, g_nMarkSize), QSize(g_nMarkSize, g_nMarkSize));
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(m_recordedColor);
    const auto place = [&](const QRect& rect) { return QStyle::visualRect(layoutDirection(), pane, rect); };
    painter.drawEllipse(place(mark));
    painter.setPen(m_textColor);
    const QRect text(mark.right() + g_nMarkSize / 2, mark.top() - g_nMarkSize / 2, pane.width(), 2 * g_nMarkSize);
    painter.drawText(place(text), int(QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft) | Qt::AlignVCenter),
                     tr("REC"));
    painter.restore();
}

void SplitView::keyPressEvent(QKeyEvent* pEvent)
{
    const int nPane = FindNeighbour(pEvent->key());
    if (nPane < 0)
    {
        QWidget::keyPressEvent(pEvent);
        return;
    }
    Select(nPane);
}

/// The pane that a key leads to; the selected one at an edge, -1 for another key.
int SplitView::FindNeighbour(int nKey) const
{
    const QVector<QRect> listPanes = GetPanes(m_nSplit, rect());
    const QRect pane = listPanes.value(m_nSelected);
    QPoint beyond;
    switch (nKey)
    {
    case Qt::Key_Left:
        beyond = QPoint(pane.left() - 1, pane.center().y());
        break;
    case Qt::Key_Right:
        beyond = QPoint(pane.right() + 1, pane.center().y());
        break;
    case Qt::Key_Up:
        beyond = QPoint(pane.center().x(), pane.top() - 1);
        break;
    case Qt::Key_Down:
        beyond = QPoint(pane.center().x(), pane.bottom() + 1);
        break;
    case Qt::Key_Home:
        return 0;
    case Qt::Key_End:
        return m_nSplit - 1;
    default:
        return -1;
    }
    const auto it = std::find_if(listPanes.begin(), listPanes.end(),
                                 [&beyond](const QRect& other) { return other.contains(beyond); });
    return it == listPanes.end() ? m_nSelected : int(it - listPanes.begin());
}

void SplitView::mousePressEvent(QMouseEvent* pEvent)
{
    const QMap<int, QRect> mapPanes = GetShownPanes();
    for (auto it = mapPanes.begin(); it != mapPanes.end(); ++it)
    {
        if (it.value().contains(pEvent->pos()))
        {
            Select(it.key());
        }
    }
}

void SplitView::mouseDoubleClickEvent(QMouseEvent* pEvent)
{
    mousePressEvent(pEvent);
    ToggleSingleWindow();
}

} // namespace LocalConfigClient
