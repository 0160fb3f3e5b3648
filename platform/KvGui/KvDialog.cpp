#include "KvDialog.h"

#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QScreen>
#include <QToolButton>
#include <QVBoxLayout>
#include <QWindow>

namespace KVGUI
{

namespace
{

constexpr int g_nTitleBarHeight = 36;
constexpr int g_nBorder = 1;
constexpr int g_nTitleMargin = 16;
constexpr int g_nCloseMargin = 4;

/// Qt mirrors the parts of a layout, but not its margins.
void SettleMargins(QWidget* pTitleBar)
{
    const bool bMirrored = pTitleBar->layoutDirection() == Qt::RightToLeft;
    pTitleBar->layout()->setContentsMargins(bMirrored ? g_nCloseMargin : g_nTitleMargin, 0,
                                            bMirrored ? g_nTitleMargin : g_nCloseMargin, 0);
}

/// In the middle of its parent's window or, without one, of the screen.
QPoint GetFirstPlace(const QWidget& dialog)
{
    const QWidget* pWindow = dialog.parentWidget() ? dialog.parentWidget()->window() : nullptr;
    const bool bOver = pWindow && pWindow->isVisible();
    const QRect available = (bOver ? pWindow : &dialog)->screen()->availableGeometry();
    QRect place(QPoint(), dialog.size());
    place.moveCenter(bOver ? pWindow->geometry().center() : available.center());
    return {qMax(available.left(), qMin(place.left(), available.right() + 1 - place.width())),
            qMax(available.top(), qMin(place.top(), available.bottom() + 1 - place.height()))};
}

} // namespace

KvDialog::KvDialog(QWidget* pParent)
    : QDialog(pParent, Qt::Dialog | Qt::FramelessWindowHint)
    , m_pTitleBar(new QWidget(this))
    , m_pTitleLabel(new QLabel(m_pTitleBar))
    , m_pCloseButton(new QToolButton(m_pTitleBar))
    , m_pContent(new QWidget(this))
{
    setAttribute(Qt::WA_StyledBackground); // a style sheet's border is drawn only then

    m_pTitleBar->setObjectName(QStringLiteral("titleBar"));
    m_pTitleBar->setAttribute(Qt::WA_StyledBackground);
    m_pTitleBar->setFixedHeight(g_nTitleBarHeight);
    m_pTitleBar->installEventFilter(this);
    m_pTitleLabel->setObjectName(QStringLiteral("titleLabel"));
    m_pTitleLabel->setTextFormat(Qt::PlainText);
    m_pTitleLabel->setMinimumWidth(0);
    m_pTitleLabel->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_pTitleLabel->installEventFilter(this);
    m_pCloseButton->setObjectName(QStringLiteral("btnClose"));
    m_pCloseButton->setAccessibleName(tr("Close"));
    m_pCloseButton->setToolTip(tr("Close"));
    m_pCloseButton->setFocusPolicy(Qt::TabFocus);
    m_pCloseButton->setFixedSize(28, 28);

    auto* pBarLayout = new QHBoxLayout(m_pTitleBar);
    pBarLayout->setSpacing(8);
    pBarLayout->addWidget(m_pTitleLabel, 1);
    pBarLayout->addWidget(m_pCloseButton);
    SettleMargins(m_pTitleBar);

    auto* pLayout = new QVBoxLayout(this);
    pLayout->setContentsMargins(g_nBorder, g_nBorder, g_nBorder, g_nBorder);
    pLayout->setSpacing(0);
    pLayout->addWidget(m_pTitleBar);
    pLayout->addWidget(m_pContent, 1);

    connect(m_pCloseButton, &QToolButton::clicked, this, [this] { OnCloseBtmClicked(); });
}

void KvDialog::SetTitle(const QString& strTitle)
{
    setWindowTitle(strTitle);
    ElideTitle();
}

void KvDialog::OnCloseBtmClicked()
{
    QDialog::reject();
}

void KvDialog::reject()
{
    // Escape and, through QDialog's own close event, the window manager arrive here.
    OnCloseBtmClicked();
}

void KvDialog::setVisible(bool bVisible)
{
    if (bVisible && !focusWidget())
    {
        FocusContent();
    }
    if (bVisible && !testAttribute(Qt::WA_Resized))
    {
        // Left alone, a dialog would not take more than two thirds of the screen, whatever its content needs.
        ensurePolished();
        resize(sizeHint());
    }
    if (bVisible && !m_bPlaced && !testAttribute(Qt::WA_Moved))
    {
        // Before there is a window: one that is moved while its manager dresses it may not learn where it stands, and
        // its lists would open elsewhere.
        move(GetFirstPlace(*this));
    }
    m_bPlaced |= bVisible;
    QDialog::setVisible(bVisible);
}

QWidget* KvDialog::GetContentWidget() const
{
    return m_pContent;
}

QWidget* KvDialog::GetFocusArea() const
{
    return m_pContent;
}

void KvDialog::SetCloseButtonVisible(bool bVisible)
{
    m_pCloseButton->setVisible(bVisible);
}

void KvDialog::MoveToEndOfTabOrder(QWidget* pWidget)
{
    // The focus chain is a ring that starts with the dialog; only widgets that take the focus can be moved in it.
    QWidget* pLast = previousInFocusChain();
    while (pLast != this && (pLast == pWidget || pLast->focusPolicy() == Qt::NoFocus))
    {
        pLast = pLast->previousInFocusChain();
    }
    if (pLast != this)
    {
        setTabOrder(pLast, pWidget);
    }
}

void KvDialog::FocusContent()
{
    for (QWidget* pWidget = nextInFocusChain(); pWidget != this; pWidget = pWidget->nextInFocusChain())
    {
        if ((pWidget->focusPolicy() & Qt::TabFocus) && pWidget->isEnabled() && GetFocusArea()->isAncestorOf(pWidget) &&
            pWidget->isVisibleTo(this))
        {
            pWidget->setFocus(Qt::ActiveWindowFocusReason);
            return;
        }
    }
}

void KvDialog::ElideTitle()
{
    const int nWidth = m_pTitleLabel->contentsRect().width();
    const QString strShown = m_pTitleLabel->fontMetrics().elidedText(windowTitle(), Qt::ElideRight, nWidth);
    m_pTitleLabel->setText(strShown);
    m_pTitleLabel->setToolTip(strShown == windowTitle() ? QString() : windowTitle());
}

bool KvDialog::eventFilter(QObject* pWatched, QEvent* pEvent)
{
    if (pWatched == m_pTitleLabel)
    {
        if (pEvent->type() == QEvent::Resize || pEvent->type() == QEvent::FontChange)
        {
            ElideTitle();
        }
    }
    else if (pWatched == m_pTitleBar)
    {
        const auto mouse = [pEvent] { return static_cast<QMouseEvent*>(pEvent); };
        switch (pEvent->type())
        {
        case QEvent::MouseButtonPress:
            if (mouse()->button() == Qt::LeftButton && !windowHandle()->startSystemMove())
            {
                m_bDragging = true;
                m_dragOffset = mouse()->globalPos() - pos();
            }
            return true;
        case QEvent::MouseMove:
            if (m_bDragging && (mouse()->buttons() & Qt::LeftButton))
            {
                move(mouse()->globalPos() - m_dragOffset);
            }
            return true;
        case QEvent::MouseButtonRelease:
            m_bDragging = false;
            return true;
        case QEvent::LayoutDirectionChange:
            SettleMargins(m_pTitleBar);
            break;
        default:
            break;
        }
    }
    return QDialog::eventFilter(pWatched, pEvent);
}

void KvDialog::showEvent(QShowEvent* pEvent)
{
    QDialog::showEvent(pEvent);
    ElideTitle();
}

} // namespace KVGUI
