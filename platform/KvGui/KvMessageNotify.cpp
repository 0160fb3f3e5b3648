#include "KvMessageNotify.h"

#include "KvAlert.h"
#include "KvButtonRow.h"
#include "KvPushButton.h"

#include <QApplication>
#include <QEvent>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QThread>
#include <QTimer>

#include <algorithm>
#include <functional>

namespace KVGUI
{

namespace
{

constexpr int g_nTop = 48;     // pixels below the window's top, clear of a title bar
constexpr int g_nDistance = 8; // between bars
constexpr int g_nSideMargin = 24;
constexpr int g_nMaxWidth = 560;
constexpr int g_nMarkSize = 16;
constexpr int g_nMinGap = 320;      // between the buttons of a dialog; in less a bar would be too high
constexpr int g_nFailureFactor = 2; // a failure stays that much longer than a success

class CNotifyBar : public QFrame
{
public:
    CNotifyBar(const QString& strText, bool bFailure, QWidget* pWindow)
        : QFrame(pWindow)
        , m_bFailure(bFailure)
        , m_pText(new QLabel(strText, this))
    {
        m_timer.setSingleShot(true);
        connect(&m_timer, &QTimer::timeout, this, [this] { m_endHandler(); });
        setObjectName(QStringLiteral("notifyBar"));
        setProperty("failure", bFailure);
        setAttribute(Qt::WA_StyledBackground);
        setAutoFillBackground(true);
        setAccessibleName(strText);
        setCursor(Qt::PointingHandCursor);
        auto* pMark = new QLabel(this);
        pMark->setObjectName(QStringLiteral("notifyMark"));
        pMark->setAttribute(Qt::WA_TransparentForMouseEvents);
        pMark->setFixedSize(g_nMarkSize, g_nMarkSize);
        m_pText->setObjectName(QStringLiteral("notifyText"));
        m_pText->setTextFormat(Qt::PlainText);
        m_pText->setWordWrap(true);
        m_pText->setAttribute(Qt::WA_TransparentForMouseEvents);
        auto* pLayout = new QHBoxLayout(this);
        pLayout->setContentsMargins(12, 6, 16, 6);
        pLayout->setSpacing(8);
        pLayout->addWidget(pMark, 0, Qt::AlignVCenter);
        pLayout->addWidget(m_pText, 1);
    }

    bool Tells(const QString& strText, bool bFailure) const
    {
        return bFailure == m_bFailure && strText == m_pText->text();
    }

    /// Called when the bar is clicked or has been seen for long enough.
    void SetEndHandler(std::function<void()> handler) { m_endHandler = std::move(handler); }

    /// Begins the time that the bar stays.
    void Renew(int nDuration)
    {
        m_timer.stop();
        m_timer.setInterval(nDuration);
        SettleTimer();
    }

    /// Time passes only while the bar can be seen.
    void SetSeen(bool bSeen)
    {
        m_bSeen = bSeen;
        SettleTimer();
    }

    /// As wide as the text needs, as high as it is then.
    void FitInto(int nWidth)
    {
        ensurePolished();
        m_pText->ensurePolished();
        const QMargins margins = layout()->contentsMargins();
        const int nNatural = m_pText->fontMetrics().horizontalAdvance(m_pText->text()) + g_nMarkSize +
                             layout()->spacing() + margins.left() + margins.right() + 4;
        const int nBarWidth = qMin(nNatural, nWidth);
        resize(nBarWidth, layout()->hasHeightForWidth() ? layout()->heightForWidth(nBarWidth) : sizeHint().height());
    }

protected:
    void enterEvent(QEvent* pEvent) override
    {
        QFrame::enterEvent(pEvent);
        m_bRead = true;
        SettleTimer();
    }

    void leaveEvent(QEvent* pEvent) override
    {
        QFrame::leaveEvent(pEvent);
        m_bRead = false;
        SettleTimer();
    }

    void hideEvent(QHideEvent* pEvent) override
    {
        QFrame::hideEvent(pEvent);
        m_bRead = false;
    }

    void mousePressEvent(QMouseEvent* pEvent) override
    {
        pEvent->accept();
        m_endHandler();
    }

private:
    void SettleTimer()
    {
        if (!m_bSeen || m_bRead)
        {
            m_timer.stop();
        }
        else if (!m_timer.isActive())
        {
            m_timer.start();
        }
    }

    bool m_bFailure;
    QLabel* m_pText;
    QTimer m_timer;
    std::function<void()> m_endHandler;
    bool m_bSeen = false;
    bool m_bRead = false; // the mouse is over it
};

QWidget* FindWindow(const QWidget* pExcept, bool bMinimized)
{
    if (!qobject_cast<QApplication*>(QCoreApplication::instance()))
    {
        return nullptr; // a program without windows
    }
    const auto usable = [pExcept, bMinimized](const QWidget* pWindow) {
        return pWindow && pWindow != pExcept && pWindow->isVisible() && pWindow->isMinimized() == bMinimized &&
               (pWindow->windowType() == Qt::Window || pWindow->windowType() == Qt::Dialog);
    };
    for (QWidget* pWindow : {QApplication::activeModalWidget(), QApplication::activeWindow()})
    {
        if (usable(pWindow))
        {
            return pWindow;
        }
    }
    for (QWidget* pParent = pExcept ? pExcept->parentWidget() : nullptr; pParent; pParent = pParent->parentWidget())
    {
        if (usable(pParent->window()))
        {
            return pParent->window();
        }
    }
    const QWidgetList listWindows = QApplication::topLevelWidgets();
    const auto it = std::find_if(listWindows.begin(), listWindows.end(), usable);
    return it == listWindows.end() ? nullptr : *it;
}

/// A minimized window only when there is no other: it shows the bar when it comes back.
QWidget* FindWindow(const QWidget* pExcept)
{
    QWidget* pWindow = FindWindow(pExcept, false);
    return pWindow ? pWindow : FindWindow(pExcept, true);
}

/// The widest room between the buttons of a dialog, in the dialog; empty when there is none worth speaking of.
QRect FindGap(const QWidget* pWindow)
{
    const auto* pRow = pWindow->findChild<KvButtonRow*>();
    if (!pRow || !pRow->isVisibleTo(pWindow))
    {
        return {};
    }
    QList<QRect> listButtons;
    for (const auto* pButton : pRow->findChildren<KvPushButton*>())
    {
        listButtons += pButton->geometry();
    }
    listButtons += QRect(pRow->width(), 0, 0, 0);
    std::sort(listButtons.begin(), listButtons.end(),
              [](const QRect& one, const QRect& other) { return one.left() < other.left(); });
    QRect widest;
    int nLeft = 0;
    for (const QRect& button : qAsConst(listButtons))
    {
        const QRect gap(nLeft + g_nDistance, 0, button.left() - nLeft - 2 * g_nDistance, pRow->height());
        widest = gap.width() > widest.width() ? gap : widest;
        nLeft = button.right() + 1;
    }
    return widest.width() >= g_nMinGap ? widest.translated(pRow->mapTo(pWindow, QPoint())) : QRect();
}

} // namespace

KvMessageNotify::KvMessageNotify()
{
    // Whoever asks first, the bars are widgets.
    if (QCoreApplication::instance())
    {
        moveToThread(QCoreApplication::instance()->thread());
    }
}

template <>
KvMessageNotify* KvSingleton<KvMessageNotify>::Instance()
{
    static KvMessageNotify notify;
    return &notify;
}

void KvMessageNotify::SetDuration(int nMilliseconds)
{
    m_nDuration = nMilliseconds;
}

int KvMessageNotify::GetDuration() const
{
    return m_nDuration;
}

void KvMessageNotify::AddTextNotification(const QString& strText)
{
    Add(strText, true);
}

void KvMessageNotify::AddSuccessNotification(const QString& strText)
{
    Add(strText, false);
}

void KvMessageNotify::Add(const QString& strText, bool bFailure)
{
    if (QThread::currentThread() != thread())
    {
        QMetaObject::invokeMethod(this, "Add", Qt::QueuedConnection, Q_ARG(QString, strText), Q_ARG(bool, bFailure));
        return;
    }
    if (strText.isEmpty())
    {
        return;
    }
    if (QWidget* pWindow = FindWindow(nullptr))
    {
        m_listBars.removeAll(nullptr); // bars that have died with their window
        auto* pBar = static_cast<CNotifyBar*>(FindBar(strText, bFailure));
        if (!pBar)
        {
            pBar = new CNotifyBar(strText, bFailure, pWindow);
            pBar->SetEndHandler([this, pBar] { Remove(pBar); });
        }
        else if (pBar->parentWidget() != pWindow)
        {
            const QWidget* pBefore = pBar->parentWidget();
            pBar->setParent(pWindow);
            Arrange(pBefore);
        }
        m_listBars.removeAll(pBar);
        m_listBars += pBar; // the newest
        pBar->Renew(m_nDuration * (bFailure ? g_nFailureFactor : 1));
        Watch(pWindow);
        Arrange(pWindow);
        KvAlert::Show(pBar);
    }
    emit SignalTextNotificationAdded(strText);
}

void KvMessageNotify::TakeBack(const QString& strText)
{
    for (const bool bFailure : {true, false})
    {
        if (QWidget* pBar = FindBar(strText, bFailure))
        {
            Remove(pBar);
        }
    }
}

QWidget* KvMessageNotify::FindBar(const QString& strText, bool bFailure) const
{
    const auto it = std::find_if(m_listBars.begin(), m_listBars.end(), [&](const QPointer<QWidget>& pBar) {
        return pBar && static_cast<const CNotifyBar*>(pBar.data())->Tells(strText, bFailure);
    });
    return it == m_listBars.end() ? nullptr : it->data();
}

void KvMessageNotify::Remove(QWidget* pBar)
{
    m_listBars.removeAll(pBar);
    pBar->hide();
    pBar->deleteLater();
    Arrange(pBar->parentWidget());
}

void KvMessageNotify::Watch(QWidget* pWindow)
{
    pWindow->removeEventFilter(this);
    pWindow->installEventFilter(this);
}

QList<QWidget*> KvMessageNotify::GetBars(const QWidget* pWindow) const
{
    QList<QWidget*> listBars;
    for (const QPointer<QWidget>& pBar : m_listBars)
    {
        if (pBar && pBar->parentWidget() == pWindow)
        {
            listBars += pBar;
        }
    }
    return listBars;
}

void KvMessageNotify::Arrange(const QWidget* pWindow)
{
    const QList<QWidget*> listBars = GetBars(pWindow);
    if (listBars.isEmpty())
    {
        return;
    }
    const QRect gap = FindGap(pWindow);
    int nTop = g_nTop;
    for (QWidget* pWidget : listBars)
    {
        auto* pBar = static_cast<CNotifyBar*>(pWidget);
        if (gap.isEmpty())
        {
            pBar->FitInto(qMin(g_nMaxWidth, pWindow->width() - 2 * g_nSideMargin));
            pBar->move((pWindow->width() - pBar->width()) / 2, nTop);
            nTop += pBar->height() + g_nDistance;
        }
        else
        {
            pBar->FitInto(gap.width());
            const int nAbove = (gap.height() - pBar->height()) / 2; // a text of many lines grows over the content
            pBar->move(gap.center().x() - pBar->width() / 2, gap.top() + qMin(nAbove, gap.height() - pBar->height()));
        }
        const bool bShow = gap.isEmpty() || pWidget == listBars.last();
        pBar->setVisible(bShow);
        pBar->SetSeen(bShow && !pWindow->isMinimized());
        pBar->raise();
    }
}

void KvMessageNotify::MoveAwayFrom(QWidget* pWindow)
{
    QWidget* pNew = FindWindow(pWindow);
    const QList<QWidget*> listBars = GetBars(pWindow);
    if (!pNew || listBars.isEmpty())
    {
        return;
    }
    for (QWidget* pBar : listBars)
    {
        pBar->setParent(pNew);
    }
    Watch(pNew);
    Arrange(pNew);
}

void KvMessageNotify::OnWindowStateChange(const QWidget* pWindow)
{
    Arrange(pWindow);
}

bool KvMessageNotify::eventFilter(QObject* pWatched, QEvent* pEvent)
{
    auto* pWindow = qobject_cast<QWidget*>(pWatched);
    if (pWindow && pEvent->type() == QEvent::Resize)
    {
        Arrange(pWindow);
    }
    else if (pWindow && pEvent->type() == QEvent::WindowStateChange)
    {
        OnWindowStateChange(pWindow);
    }
    else if (pWindow && pEvent->type() == QEvent::Hide && !pEvent->spontaneous())
    {
        MoveAwayFrom(pWindow);
    }
    return QObject::eventFilter(pWatched, pEvent);
}

} // namespace KVGUI
