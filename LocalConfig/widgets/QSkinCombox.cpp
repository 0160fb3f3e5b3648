#include "QSkinCombox.h"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QScrollBar>

namespace LocalConfig
{

namespace
{

constexpr int g_nStripFrames = 5;
constexpr int g_nTextRoom = 10; // pixels that an item's text needs beside its own width

bool IsNavigationKey(int nKey)
{
    switch (nKey)
    {
    case Qt::Key_Left:
    case Qt::Key_Up:
    case Qt::Key_Right:
    case Qt::Key_Down:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return true;
    default:
        return false;
    }
}

} // namespace

QSkinCombox::QSkinCombox(QWidget* pParent)
    : CCombobox(pParent)
{
    view()->installEventFilter(this);
    installEventFilter(this);
}

void QSkinCombox::SetStatePixmaps(const QPixmap& pixNormal, const QPixmap& pixHover, const QPixmap& pixPressed,
                                  const QPixmap& pixDisable)
{
    m_pixNormal = pixNormal;
    m_pixHover = pixHover;
    m_pixPressed = pixPressed;
    m_pixDisable = pixDisable;
}

void QSkinCombox::SetStatePixmap(const QPixmap& pixStrip)
{
    if (pixStrip.isNull())
    {
        return;
    }
    const int nWidth = pixStrip.width() / g_nStripFrames;
    const auto frame = [&](int n) { return pixStrip.copy(n * nWidth, 0, nWidth, pixStrip.height()); };
    SetStatePixmaps(frame(0), frame(1), frame(2), frame(3));
}

void QSkinCombox::SetTextPixmap(const QPixmap& pixText)
{
    m_pixText = pixText;
}

void QSkinCombox::SetState(int nState)
{
    if (nState != m_nState)
    {
        m_nState = nState;
        update();
    }
}

void QSkinCombox::enterEvent(QEvent* pEvent)
{
    if (!view()->isActiveWindow())
    {
        SetState(StateHovered);
    }
    CCombobox::enterEvent(pEvent);
}

void QSkinCombox::leaveEvent(QEvent* pEvent)
{
    if (!view()->isActiveWindow())
    {
        SetState(StateNormal);
    }
    CCombobox::leaveEvent(pEvent);
}

void QSkinCombox::mousePressEvent(QMouseEvent* pEvent)
{
    SetState(StatePressed);
    CCombobox::mousePressEvent(pEvent);
}

void QSkinCombox::showPopup()
{
    SetState(StatePressed);
    WidenPopup();
    CCombobox::showPopup();
}

void QSkinCombox::hidePopup()
{
    SetState(StateNormal);
    CCombobox::hidePopup();
}

void QSkinCombox::WidenPopup()
{
    const bool bMayScroll = view()->verticalScrollBarPolicy() != Qt::ScrollBarAlwaysOff;
    const bool bScrolls = bMayScroll && count() > maxVisibleItems();
    int nWidth = width();
    for (int n = 0; n < count(); ++n)
    {
        const QString strText = itemText(n);
        if (!strText.isEmpty())
        {
            nWidth = qMax(nWidth, fontMetrics().horizontalAdvance(strText) + g_nTextRoom);
        }
    }
    if (nWidth > width())
    {
        view()->setFixedWidth(nWidth + (bScrolls ? view()->verticalScrollBar()->sizeHint().width() : 0));
    }
}

bool QSkinCombox::eventFilter(QObject* pWatched, QEvent* pEvent)
{
    if (pEvent->type() == QEvent::KeyPress && (pWatched == this || pWatched == view()))
    {
        const int nKey = static_cast<QKeyEvent*>(pEvent)->key();
        if (!IsNavigationKey(nKey))
        {
            if (pWatched == this && (nKey == Qt::Key_Tab || nKey == Qt::Key_Backtab))
            {
                focusNextPrevChild(nKey == Qt::Key_Tab); // or the keyboard would never leave the box again
            }
            return true;
        }
    }
    if (pEvent->type() == QEvent::Hide && pWatched == view())
    {
        hidePopup(); // the window system may have closed the list
    }
    return CCombobox::eventFilter(pWatched, pEvent);
}

} // namespace LocalConfig
