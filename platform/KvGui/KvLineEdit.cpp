#include "KvLineEdit.h"

#include "KvAlert.h"
#include "KvErrorMark.h"

#include <QEvent>
#include <QLabel>
#include <QPainter>
#include <QStyle>

namespace KVGUI
{

namespace
{

constexpr int g_nTipDistance = 4; // pixels between field and tip
constexpr int g_nSignMargin = 8;  // pixels between the sign and the field's edge

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
    SetError(bShow, strText);
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
    SetError(bError, QString());
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

void KvLineEdit::SetError(bool bError, const QString& strText)
{
    if (bError != m_bError)
    {
        m_bError = bError;
        if (bError)
        {
            m_strOwnDescription = accessibleDescription();
            setAccessibleDescription(m_strOwnDescription.isEmpty() ? tr("Illegal value")
                                                                   : tr("Illegal value, %1").arg(m_strOwnDescription));
        }
        else
        {
            setAccessibleDescription(m_strOwnDescription);
        }
        setProperty("error", bError);
        style()->unpolish(this);
        style()->polish(this);
        ApplyMargins();
        update();
    }
    if (bError && !strText.isEmpty())
    {
        setAccessibleDescription(strText);
    }
}

void KvLineEdit::SetTrailingMargin(int nPixels)
{
    m_nTrailingMargin = nPixels;
    ApplyMargins();
}

void KvLineEdit::ApplyMargins()
{
    const int nTrailing = m_nTrailingMargin + (m_bError ? g_nErrorMarkSize + g_nSignMargin : 0);
    const bool bMirrored = layoutDirection() == Qt::RightToLeft;
    setTextMargins(bMirrored ? nTrailing : 0, 0, bMirrored ? 0 : nTrailing, 0);
}

void KvLineEdit::paintEvent(QPaintEvent* pEvent)
{
    QLineEdit::paintEvent(pEvent);
    if (!m_bError)
    {
        return;
    }
    const QRect sign(width() - g_nSignMargin - m_nTrailingMargin - g_nErrorMarkSize, (height() - g_nErrorMarkSize) / 2,
                     g_nErrorMarkSize, g_nErrorMarkSize);
    QPainter painter(this);
    PaintErrorMark(painter, QStyle::visualRect(layoutDirection(), rect(), sign),
                   m_errorColor.isValid() ? m_errorColor : palette().color(QPalette::Text),
                   m_errorTextColor.isValid() ? m_errorTextColor : palette().color(QPalette::Base));
}

void KvLineEdit::changeEvent(QEvent* pEvent)
{
    QLineEdit::changeEvent(pEvent);
    if (pEvent->type() == QEvent::LayoutDirectionChange)
    {
        ApplyMargins();
    }
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
    const bool bNew = m_pTip->text() != strText;
    m_pTip->setText(strText);
    PlaceTip();
    if (bNew && isVisible())
    {
        KvAlert::Show(m_pTip);
    }
    else if (!isVisible())
    {
        m_pTip->hide(); // until the field is seen
    }
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
        KvAlert::Show(m_pTip);
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
