#include "KvLineEdit.h"

#include "KvAlert.h"
#include "KvErrorMark.h"

#include <QAbstractButton>
#include <QEvent>
#include <QLabel>
#include <QPainter>
#include <QStyle>
#include <QVector>

#include <algorithm>

namespace KVGUI
{

namespace
{

constexpr int g_nTipDistance = 4;                 // pixels between a field and the tip above or below it
constexpr int g_nTipGap = 8;                      // pixels between what stands in a line with the tip and the tip
constexpr int g_nSignRoom = g_nErrorMarkSize + 8; // 8 between the sign and what stands at the field's edge
constexpr char g_szSignColor[] = "signColor";
constexpr char g_szSignTextColor[] = "signTextColor";
constexpr char g_szTipName[] = "errorTip";

/// What a widget shows within its place: a caption is often given more than its text needs.
QRect GetShownPart(const QWidget& widget)
{
    const auto* pLabel = qobject_cast<const QLabel*>(&widget);
    const Qt::Alignment eAlignment = pLabel ? pLabel->alignment() : Qt::AlignLeading | Qt::AlignVCenter;
    const bool bText = pLabel || qobject_cast<const QAbstractButton*>(&widget);
    const QSize size = bText ? widget.sizeHint().boundedTo(widget.size()) : widget.size();
    return QStyle::alignedRect(widget.layoutDirection(), eAlignment, size, widget.rect());
}

/// The places, in a parent, of the captions and controls that are not the field's own.
QVector<QRect> FindNeighbours(const QWidget& parent, const QWidget& field)
{
    QVector<QRect> vecPlaces;
    for (const QWidget* pWidget : parent.findChildren<QWidget*>())
    {
        const bool bCaption =
            qobject_cast<const QLabel*>(pWidget) && pWidget->objectName() != QLatin1String(g_szTipName);
        const bool bControl = pWidget->focusPolicy() != Qt::NoFocus;
        if ((bCaption || bControl) && pWidget->isVisible() && pWidget != &field && !field.isAncestorOf(pWidget) &&
            !pWidget->isAncestorOf(&field))
        {
            vecPlaces += GetShownPart(*pWidget).translated(pWidget->mapTo(&parent, QPoint()));
        }
    }
    return vecPlaces;
}

/// A place for the tip that covers no neighbour: beside its field or, where there is no room, above it behind the
/// caption, or below it.
QRect FindPlace(const QSize& tip, const QRect& field, const QSize& parent, const QVector<QRect>& vecNeighbours)
{
    const auto findCovered = [&vecNeighbours](const QRect& place) {
        return std::find_if(vecNeighbours.begin(), vecNeighbours.end(),
                            [&place](const QRect& neighbour) { return neighbour.intersects(place); });
    };
    const auto behindNeighbours = [&](QRect place) {
        for (auto it = findCovered(place); it != vecNeighbours.end(); it = findCovered(place))
        {
            place.moveLeft(it->right() + 1 + g_nTipGap);
        }
        return place;
    };
    const int nEnd = parent.width() - tip.width();
    const int nLeading = qBound(0, field.left(), nEnd);
    const int nTrailing = qBound(0, field.right() + 1 - tip.width(), nEnd);
    const int nBelow = field.bottom() + 1 + g_nTipDistance;
    const int nAbove = field.top() - tip.height() - g_nTipDistance;
    const QRect beside({field.right() + 1 + g_nTipGap, field.center().y() - tip.height() / 2}, tip);
    const QRect below({nLeading, nBelow}, tip);
    const QRect within(QPoint(), parent);
    for (const QRect& place :
         {behindNeighbours(beside), behindNeighbours({{nLeading, nAbove}, tip}), below, {{nTrailing, nBelow}, tip}})
    {
        if (within.contains(place) && findCovered(place) == vecNeighbours.end())
        {
            return place;
        }
    }
    return within.contains(below) ? below : QRect({nLeading, qMax(0, nAbove)}, tip);
}

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
        setAccessibleDescription(strText);
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
    AddTrailingMargin(bError ? g_nSignRoom : -g_nSignRoom);
    update();
}

void KvLineEdit::AddTrailingMargin(int nPixels)
{
    const bool bMirrored = layoutDirection() == Qt::RightToLeft;
    const int nTrailing = GetTrailingMargin() + nPixels;
    setTextMargins(bMirrored ? nTrailing : 0, 0, bMirrored ? 0 : nTrailing, 0);
}

int KvLineEdit::GetTrailingMargin() const
{
    return layoutDirection() == Qt::RightToLeft ? textMargins().left() : textMargins().right();
}

void KvLineEdit::paintEvent(QPaintEvent* pEvent)
{
    QLineEdit::paintEvent(pEvent);
    if (!m_bError)
    {
        return;
    }
    const QRect sign(width() - GetTrailingMargin(), (height() - g_nErrorMarkSize) / 2, g_nErrorMarkSize,
                     g_nErrorMarkSize);
    QPainter painter(this);
    PaintErrorMark(painter, QStyle::visualRect(layoutDirection(), rect(), sign), GetErrorColor(), GetErrorTextColor());
}

void KvLineEdit::changeEvent(QEvent* pEvent)
{
    QLineEdit::changeEvent(pEvent);
    if (pEvent->type() == QEvent::LayoutDirectionChange)
    {
        const QMargins margins = textMargins();
        setTextMargins(margins.right(), margins.top(), margins.left(), margins.bottom());
    }
}

// Few fields are ever marked, so that the others have no room for colours.

QColor KvLineEdit::GetErrorColor() const
{
    const auto color = property(g_szSignColor).value<QColor>();
    return color.isValid() ? color : palette().color(QPalette::Text);
}

void KvLineEdit::SetErrorColor(const QColor& color)
{
    setProperty(g_szSignColor, color);
}

QColor KvLineEdit::GetErrorTextColor() const
{
    const auto color = property(g_szSignTextColor).value<QColor>();
    return color.isValid() ? color : palette().color(QPalette::Base);
}

void KvLineEdit::SetErrorTextColor(const QColor& color)
{
    setProperty(g_szSignTextColor, color);
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
        m_pTip->setObjectName(QString::fromLatin1(g_szTipName));
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
    // Reckoned as from left to right.
    const auto mirror = [this, pParent](const QRect& place) {
        return QStyle::visualRect(layoutDirection(), pParent->rect(), place);
    };
    const QRect field = mirror(QRect(pParent->mapFromGlobal(mapToGlobal(QPoint())), size()));
    QVector<QRect> vecNeighbours = FindNeighbours(*pParent, *this);
    std::transform(vecNeighbours.begin(), vecNeighbours.end(), vecNeighbours.begin(), mirror);
    m_pTip->move(mirror(FindPlace(m_pTip->size(), field, pParent->size(), vecNeighbours)).topLeft());
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
