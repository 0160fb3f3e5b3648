#include "KvMessageNotify.h"

#include "KvAlert.h"

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

class CNotifyBar : public QFrame
{
public:
    CNotifyBar(const QString& strText, QWidget* pWindow, int nDuration)
        : QFrame(pWindow)
        , m_pText(new QLabel(strText, this))
    {
        m_timer.setSingleShot(true);
        m_timer.setInterval(nDuration);
        connect(&m_timer, &QTimer::timeout, this, [this] { m_endHandler(); });
        setObjectName(QStringLiteral("notifyBar"));
        setAttribute(Qt::WA_StyledBackground);
        setAutoFillBackground(true);
        setAccessibleName(strText);
        setCursor(Qt::PointingHandCursor);
        m_pText->setObjectName(QStringLiteral("notifyText"));
        m_pText->setTextFormat(Qt::PlainText);
        m_pText->setWordWrap(true);
        m_pText->setAttribute(Qt::WA_TransparentForMouseEvents);
        auto* pLayout = new QHBoxLayout(this);
        pLayout->setContentsMargins(16, 10, 16, 10);
        pLayout->addWidget(m_pText);
    }

    /// Called when the bar is clicked or has been seen for long enough.
    void SetEndHandler(std::function<void()> handler) { m_endHandler = std::move(handler); }

    /// Time passes only while the bar can be seen.
    void SetSeen(bool bSeen)
    {
        if (!bSeen)
        {
            m_timer.stop();
        }
        else if (!m_timer.isActive())
        {
            m_timer.start();
        }
    }

    /// As wide as the text needs, as high as it is then.
    void FitInto(int nWidth)
    {
        ensurePolished();
        m_pText->ensurePolished();
        const QMargins margins = layout()->contentsMargins();
        const int nNatural =
            m_pText->fontMetrics().horizontalAdvance(m_pText->text()) + margins.left() + margins.right() + 4;
        const int nBarWidth = qMin(nNatural, nWidth);
        resize(nBarWidth, layout()->hasHeightForWidth() ? layout()->heightForWidth(nBarWidth) : sizeHint().height());
    }

protected:
    void mousePressEvent(QMouseEvent* pEvent) override
    {
        pEvent->accept();
        m_endHandler();
    }

private:
    QLabel* m_pText;
    QTimer m_timer;
    std::function<void()> m_endHandler;
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
    if (QThread::currentThread() != thread())
    {
        QMetaObject::invokeMethod(this, "AddTextNotification", Qt::QueuedConnection, Q_ARG(QString, strText));
        return;
    }
    if (strText.isEmpty())
    {
        return;
    }
    if (QWidget* pWindow = FindWindow(nullptr))
    {
        auto* pBar = new CNotifyBar(strText, pWindow, m_nDuration);
        pBar->SetEndHandler([this, pBar] { Remove(pBar); });
        m_listBars.removeAll(nullptr); // bars that have died with their window
        m_listBars += pBar;
        Watch(pWindow);
        Arrange(pWindow);
        KvAlert::Show(pBar);
        pBar->SetSeen(!pWindow->isMinimized());
    }
    emit SignalTextNotificationAdded(strText);
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

void KvMessageNotify::Arrange(const QWidget* pWindow)
{
    int nTop = g_nTop;
    for (const QPointer<QWidget>& pWidget : qAsConst(m_listBars))
    {
        if (!pWidget || pWidget->parentWidget() != pWindow)
        {
            continue;
        }
        auto* pBar = static_cast<CNotifyBar*>(pWidget.data());
        pBar->FitInto(qMin(g_nMaxWidth, pWindow->width() - 2 * g_nSideMargin));
        pBar->move((pWindow->width() - pBar->width()) / 2, nTop);
        pBar->raise();
        nTop += pBar->height() + g_nDistance;
    }
}

void KvMessageNotify::MoveAwayFrom(QWidget* pWindow)
{
    QWidget* pNew = FindWindow(pWindow);
    if (!pNew)
    {
        return;
    }
    bool bMoved = false;
    for (const QPointer<QWidget>& pBar : qAsConst(m_listBars))
    {
        if (pBar && pBar->parentWidget() == pWindow)
        {
            pBar->setParent(pNew);
            pBar->show();
            bMoved = true;
        }
    }
    if (bMoved)
    {
        Watch(pNew);
        Arrange(pNew);
        OnWindowStateChange(pNew);
    }
}

void KvMessageNotify::OnWindowStateChange(const QWidget* pWindow)
{
    for (const QPointer<QWidget>& pBar : qAsConst(m_listBars))
    {
        if (pBar && pBar->parentWidget() == pWindow)
        {
            static_cast<CNotifyBar*>(pBar.data())->SetSeen(!pWindow->isMinimized());
        }
    }
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
