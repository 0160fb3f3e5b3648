#include "KvLineEdit.h"

#include <QEvent>
#include <QLabel>
#include <QStyle>

namespace KVGUI
{

namespace
{

constexpr int g_nTipDistance = 4; // pixels between field and tip

} // namespace

KvLineEdit::KvLineEdit(QWidget* pParent)
    : QLineEdit(pParent)
{}

KvLineEdit::~KvLineEdit()
{
    if (m_pTip)
    {
        m_pTip->disconnect(this); // there is nothing left to tidy up
        delete m_pTip;
    }
}

void KvLineEdit::showErrorHint(QWidget* pTipParent, bool bError, const QString& strText)
{
    const bool bShow = pTipParent && bError;
    SetError(bShow);
    if (bShow && !strText.isEmpty())
    {
        ShowTip(pTipParent, strText);
    }
    else
    {
        DropTip();
    }
}

void KvLineEdit::showErrorHintNoTip(bool bError)
{
    SetError(bError);
    DropTip();
}

bool KvLineEdit::IsErrorHintShown() const
{
    return m_bError;
}

QString KvLineEdit::GetErrorHintText() const
{
    return m_pTip ? m_pTip->text() : QString();
}

void KvLineEdit::SetError(bool bError)
{
    if (bError == m_bError)
    {
        return;
    }
    m_bError = bError;
    setProperty("error", bError);
    style()->unpolish(this);
    style()->polish(this);
    update();
}

void KvLineEdit::ShowTip(QWidget* pTipParent, const QString& strText)
{
    if (m_pTip && m_pTip->parentWidget() != pTipParent)
    {
        DropTip();
    }
    if (!m_pTip)
    {
        m_pTip = new QLabel(pTipParent);
        m_pTip->setObjectName(QStringLiteral("errorTip"));
        m_pTip->setAttribute(Qt::WA_TransparentForMouseEvents);
        m_pTip->setWordWrap(true);
        connect(m_pTip, &QLabel::destroyed, this, &KvLineEdit::OnTipGone);
        m_strOwnDescription = accessibleDescription();
        // The field's place on the tip's parent depends on every widget between the two.
        for (QWidget* pWidget = this; pWidget; pWidget = pWidget->parentWidget())
        {
            pWidget->installEventFilter(this);
            m_listWatched += pWidget;
            if (pWidget == pTipParent || pWidget->isWindow())
            {
                break;
            }
        }
    }
    m_pTip->setText(strText);
    setAccessibleDescription(strText);
    m_pTip->setVisible(isVisible());
    PlaceTip();
}

void KvLineEdit::DropTip()
{
    delete m_pTip;
    m_pTip.clear();
}

void KvLineEdit::OnTipGone()
{
    for (const QPointer<QWidget>& pWidget : qAsConst(m_listWatched))
    {
        if (pWidget)
        {
            pWidget->removeEventFilter(this);
        }
    }
    m_listWatched.clear();
    setAccessibleDescription(m_strOwnDescription);
}

void KvLineEdit::PlaceTip()
{
    if (!m_pTip)
    {
        return;
    }
    const QWidget* pParent = m_pTip->parentWidget();
    const QPoint field = pParent->mapFromGlobal(mapToGlobal(QPoint()));
    m_pTip->setWordWrap(false);
    m_pTip->setMinimumWidth(0);
    m_pTip->setMaximumWidth(QWIDGETSIZE_MAX);
    m_pTip->adjustSize();
    if (m_pTip->width() > pParent->width())
    {
        m_pTip->setWordWrap(true);
        m_pTip->setFixedWidth(pParent->width());
        m_pTip->adjustSize();
    }
    const int nStart = layoutDirection() == Qt::RightToLeft ? field.x() + width() - m_pTip->width() : field.x();
    const int nX = qBound(0, nStart, pParent->width() - m_pTip->width());
    const int nBelow = field.y() + height() + g_nTipDistance;
    const bool bFitsBelow = nBelow + m_pTip->height() <= pParent->height();
    const int nY = bFitsBelow ? nBelow : qMax(0, field.y() - m_pTip->height() - g_nTipDistance);
    m_pTip->move(nX, nY);
    m_pTip->raise();
}

void KvLineEdit::hideEvent(QHideEvent* pEvent)
{
    QLineEdit::hideEvent(pEvent);
    if (m_pTip)
    {
        m_pTip->hide();
    }
}

void KvLineEdit::showEvent(QShowEvent* pEvent)
{
    QLineEdit::showEvent(pEvent);
    if (m_pTip)
    {
        m_pTip->show();
        PlaceTip();
    }
}

bool KvLineEdit::eventFilter(QObject* pWatched, QEvent* pEvent)
{
    if (pEvent->type() == QEvent::Move || pEvent->type() == QEvent::Resize)
    {
        PlaceTip();
    }
    return QLineEdit::eventFilter(pWatched, pEvent);
}

} // namespace KVGUI
