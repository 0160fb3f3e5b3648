#include "SplitView.h"

#include <QPainter>

namespace LocalConfigClient
{

namespace
{

constexpr int g_nGap = 2; // pixels between panes
constexpr int g_nOriginalScale = 0;
constexpr int g_nFullScreen = 1;
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
}

void SplitView::SetSplit(int nSplit)
{
    if (!GetPanes(nSplit, rect()).isEmpty())
    {
        m_nSplit = nSplit;
        update();
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

void SplitView::paintEvent(QPaintEvent* /*pEvent*/)
{
    QPainter painter(this);
    painter.fillRect(rect(), m_gapColor);
    const QVector<QRect> listPanes = GetPanes(m_nSplit, rect());
    for (int n = 0; n < listPanes.size(); ++n)
    {
        const QRect pane = listPanes[n].adjusted(g_nGap / 2, g_nGap / 2, -g_nGap / 2, -g_nGap / 2);
        painter.fillRect(pane, m_paneColor);
        painter.setClipRect(pane);
        QLinearGradient sky(0, 0, 0, 1);
        sky.setCoordinateMode(QGradient::ObjectBoundingMode);
        sky.setColorAt(0, m_paneColor.lighter(300));
        sky.setColorAt(1, m_paneColor.lighter(150));
        painter.fillRect(GetPicturePlace(pane, g_pictureSize, m_nDisplayScale), sky);
        painter.setPen(m_textColor);
        painter.drawText(pane, Qt::AlignCenter, QString::number(n + 1));
    }
}

} // namespace LocalConfigClient
