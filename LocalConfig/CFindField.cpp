#include "CFindField.h"

#include "CGroupBox.h"

#include <KvGui/KvAlert.h>
#include <KvGui/KvLineEdit.h>
#include <KvGui/KvToolListView.h>

#include <QAbstractButton>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QRegularExpression>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyle>
#include <QStyleOptionGroupBox>

#include <algorithm>

namespace LocalConfig
{

namespace
{

constexpr int g_nWidth = 420;
constexpr int g_nEditWidth = 240;
constexpr int g_nButtonDistance = 8; // pixels between the field and the button of the title bar
constexpr int g_nRingDistance = 4;   // pixels between the ring and what it stands around
constexpr int g_nRingWidth = 3;
constexpr int g_nRingRadius = 6;
constexpr int g_nViewMargin = 50; // pixels above and below what was found
constexpr int g_nRowWeight = 10;  // a control of the same row is nearer than one that stands below

/// A text as it is compared: without accents and case.
QString Fold(const QString& strText)
{
    QString strFolded;
    for (const QChar ch : strText.normalized(QString::NormalizationForm_KD))
    {
        if (!ch.isMark())
        {
            strFolded += ch;
        }
    }
    return strFolded.toCaseFolded().simplified();
}

QString WithoutMnemonic(QString strText)
{
    static const QRegularExpression mnemonic(QStringLiteral("&(.)"));
    return strText.replace(mnemonic, QStringLiteral("\\1"));
}

QString GetCaption(const QWidget* pWidget)
{
    if (const auto* pLabel = qobject_cast<const QLabel*>(pWidget))
    {
        return pLabel->buddy() ? WithoutMnemonic(pLabel->text()) : pLabel->text(); // others have none
    }
    if (const auto* pButton = qobject_cast<const QAbstractButton*>(pWidget))
    {
        return WithoutMnemonic(pButton->text());
    }
    const auto* pBox = qobject_cast<const QGroupBox*>(pWidget);
    return pBox ? WithoutMnemonic(pBox->title()) : QString();
}

/// What a text of a widget is about: the control that a caption names.
QWidget* GetSubject(QWidget* pWidget)
{
    const auto* pLabel = qobject_cast<const QLabel*>(pWidget);
    return pLabel && pLabel->buddy() ? pLabel->buddy() : pWidget;
}

const CGroupBox* FindSection(const QWidget* pWidget)
{
    while (pWidget && !qobject_cast<const CGroupBox*>(pWidget))
    {
        pWidget = pWidget->parentWidget();
    }
    return static_cast<const CGroupBox*>(pWidget);
}

/// A whole card would be too much to look at.
QRect GetTitleRect(const CGroupBox* pBox)
{
    QStyleOptionGroupBox option;
    option.initFrom(pBox);
    option.text = pBox->title();
    option.subControls = QStyle::SC_GroupBoxLabel;
    option.fontMetrics = pBox->fontMetrics();
    return pBox->style()->subControlRect(QStyle::CC_GroupBox, &option, QStyle::SC_GroupBoxLabel, pBox);
}

class CFindRing : public QWidget
{
public:
    CFindRing(QWidget* pParent, const QColor& color)
        : QWidget(pParent)
        , m_color(color)
    {
        setObjectName(QStringLiteral("findRing"));
        setAttribute(Qt::WA_TransparentForMouseEvents);
    }

protected:
    void paintEvent(QPaintEvent* /*pEvent*/) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(m_color, g_nRingWidth));
        const double dInset = g_nRingWidth / 2.0;
        painter.drawRoundedRect(QRectF(rect()).adjusted(dInset, dInset, -dInset, -dInset), g_nRingRadius,
                                g_nRingRadius);
    }

private:
    QColor m_color;
};

/// The colour of the focus, which every skin has for the eye to find.
QColor GetRingColor(const QWidget* pDialog)
{
    const auto* pList = pDialog->findChild<KVGUI::KvToolListView*>();
    const QColor color = pList ? pList->property("focusColor").value<QColor>() : QColor();
    return color.isValid() ? color : pDialog->palette().color(QPalette::Highlight);
}

} // namespace

CFindField::CFindField(QWidget* pDialog, QScrollArea* pScrollArea)
    : QWidget(pDialog)
    , m_pDialog(pDialog)
    , m_pScrollArea(pScrollArea)
    , m_pStatus(new QLabel(this))
    , m_pEdit(new KVGUI::KvLineEdit(this))
{
    setObjectName(QStringLiteral("findField"));
    m_pStatus->setObjectName(QStringLiteral("findStatus"));
    m_pStatus->setAlignment(Qt::AlignTrailing | Qt::AlignVCenter);
    m_pEdit->setObjectName(QStringLiteral("findEdit"));
    m_pEdit->setAccessibleName(tr("Find"));
    m_pEdit->setPlaceholderText(tr("Find"));
    m_pEdit->setFixedWidth(g_nEditWidth);
    auto* pLayout = new QHBoxLayout(this);
    pLayout->setContentsMargins(0, 0, 0, 0);
    pLayout->addWidget(m_pStatus, 1);
    pLayout->addWidget(m_pEdit);
    hide();
    m_pEdit->installEventFilter(this);
    m_pDialog->installEventFilter(this);
    connect(m_pEdit, &QLineEdit::textChanged, this, &CFindField::OnTextChanged);
}

void CFindField::Open()
{
    if (isVisible())
    {
        m_pEdit->selectAll();
        m_pEdit->setFocus(Qt::ShortcutFocusReason);
        return;
    }
    m_pHolder = m_pDialog->focusWidget();
    m_pEdit->clear();
    ShowNothing(QString());
    Place();
    show();
    raise();
    m_pEdit->setFocus(Qt::ShortcutFocusReason);
}

void CFindField::Close()
{
    if (isHidden())
    {
        return;
    }
    QWidget* pStop = m_pFound ? FindStop(m_pFound) : nullptr;
    pStop = pStop ? pStop : m_pHolder.data();
    const bool bHadFocus = m_pDialog->focusWidget() == m_pEdit;
    delete m_pRing;
    m_pFound.clear();
    if (bHadFocus && pStop)
    {
        if (!pStop->isEnabled()) // locked meanwhile
        {
            pStop = m_pDialog->findChild<KVGUI::KvToolListView*>();
        }
        pStop->setFocus(Qt::ShortcutFocusReason);
    }
    hide();
}

void CFindField::Place()
{
    const auto* pTitleBar = m_pDialog->findChild<QWidget*>(QStringLiteral("titleBar"));
    const auto* pButton = m_pDialog->findChild<QWidget*>(QStringLiteral("btnClose"));
    if (!pTitleBar || !pButton)
    {
        return;
    }
    QRect place(QPoint(), QSize(g_nWidth, pTitleBar->height()));
    place.moveTop(pTitleBar->mapTo(m_pDialog, QPoint()).y());
    const int nButton = pButton->mapTo(m_pDialog, QPoint()).x();
    place.moveLeft(m_pDialog->layoutDirection() == Qt::RightToLeft ? nButton + pButton->width() + g_nButtonDistance
                                                                   : nButton - g_nButtonDistance - g_nWidth);
    setGeometry(place);
}

bool CFindField::eventFilter(QObject* pWatched, QEvent* pEvent)
{
    const bool bEdit = pWatched == m_pEdit;
    const bool bUsed = isVisible() && !(pEvent->type() == QEvent::FocusOut &&
                                        (static_cast<QFocusEvent*>(pEvent)->reason() == Qt::ActiveWindowFocusReason ||
                                         static_cast<QFocusEvent*>(pEvent)->reason() == Qt::PopupFocusReason));
    if (bUsed && bEdit && pEvent->type() == QEvent::KeyPress)
    {
        const auto* pKey = static_cast<QKeyEvent*>(pEvent);
        return OnKey(pKey->key(), pKey->modifiers());
    }
    const bool bLeft = bEdit && !m_bPaused && pEvent->type() == QEvent::FocusOut;
    if (bUsed && (bLeft || (!bEdit && pEvent->type() == QEvent::Hide)))
    {
        Close();
    }
    else if (bUsed && !bEdit && (pEvent->type() == QEvent::Resize || pEvent->type() == QEvent::LayoutRequest))
    {
        Place();
        PlaceRing();
    }
    return QWidget::eventFilter(pWatched, pEvent);
}

bool CFindField::OnKey(int nKey, Qt::KeyboardModifiers eModifiers)
{
    switch (nKey)
    {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        GoOn(eModifiers & Qt::ShiftModifier ? -1 : 1);
        return true;
    case Qt::Key_Escape:
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
        Close();
        return true;
    default:
        return false;
    }
}

// --- Matches

void CFindField::OnTextChanged()
{
    m_pFound.clear();
    GoOn(1);
}

void CFindField::GoOn(int nStep)
{
    const QString strWanted = Fold(m_pEdit->text());
    const QList<SMatch> listMatches = strWanted.isEmpty() ? QList<SMatch>() : FindMatches(strWanted);
    if (listMatches.isEmpty())
    {
        ShowNothing(strWanted.isEmpty() ? QString() : tr("No match"));
        return;
    }
    const auto it = std::find_if(listMatches.begin(), listMatches.end(),
                                 [this](const SMatch& match) { return match.pWidget == m_pFound; });
    const int nCount = listMatches.size();
    const int nLast = it == listMatches.end() ? -1 : int(it - listMatches.begin());
    const int nMatch = nLast < 0 ? (nStep > 0 ? 0 : nCount - 1) : (nLast + nStep + nCount) % nCount;
    m_pStatus->setText(tr("%1 of %2").arg(nMatch + 1).arg(nCount));
    m_pEdit->setAccessibleDescription(tr("%1 of %2: %3").arg(nMatch + 1).arg(nCount).arg(listMatches[nMatch].strText));
    Show(listMatches[nMatch]);
}

void CFindField::Show(const SMatch& match)
{
    m_pFound = match.pWidget;
    if (!m_pRing)
    {
        m_pRing = new CFindRing(m_pScrollArea->widget(), GetRingColor(m_pDialog));
    }
    PlaceRing();
    m_pRing->show();
    m_pRing->raise();
    const QRect place = GetPlace(m_pFound);
    m_pScrollArea->ensureVisible(place.center().x(), place.center().y(), 0, place.height() / 2 + g_nViewMargin);
    emit SignalSectionFound(FindSection(m_pFound)->GetIndex());
}

void CFindField::ShowNothing(const QString& strStatus)
{
    delete m_pRing;
    m_pFound.clear();
    m_pStatus->setText(strStatus);
    m_pEdit->setAccessibleDescription(strStatus);
    if (!strStatus.isEmpty())
    {
        KVGUI::KvAlert::Show(m_pStatus);
    }
}

void CFindField::PlaceRing()
{
    if (m_pRing && m_pFound)
    {
        const int nRoom = g_nRingDistance + g_nRingWidth;
        m_pRing->setGeometry(GetPlace(m_pFound).adjusted(-nRoom, -nRoom, nRoom, nRoom));
    }
}

/// In the order in which they stand, each once.
QList<CFindField::SMatch> CFindField::FindMatches(const QString& strWanted) const
{
    QList<SMatch> listMatches;
    for (QWidget* pWidget : m_pScrollArea->widget()->findChildren<QWidget*>())
    {
        QWidget* pSubject = GetSubject(pWidget);
        if (!pWidget->isVisibleTo(m_pDialog) || !FindSection(pSubject))
        {
            continue;
        }
        for (const QString& strText : {GetCaption(pWidget), pWidget->toolTip()})
        {
            const bool bKnown = std::any_of(listMatches.begin(), listMatches.end(),
                                            [pSubject](const SMatch& match) { return match.pWidget == pSubject; });
            if (!bKnown && Fold(strText).contains(strWanted))
            {
                listMatches += {pSubject, strText};
            }
        }
    }
    const int nMirror = m_pDialog->layoutDirection() == Qt::RightToLeft ? -1 : 1;
    std::stable_sort(listMatches.begin(), listMatches.end(), [&](const SMatch& one, const SMatch& other) {
        const QPoint a = GetPlace(one.pWidget).center();
        const QPoint b = GetPlace(other.pWidget).center();
        return a.y() != b.y() ? a.y() < b.y() : a.x() * nMirror < b.x() * nMirror;
    });
    return listMatches;
}

/// On what scrolls.
QRect CFindField::GetPlace(const QWidget* pWidget) const
{
    const auto* pBox = qobject_cast<const CGroupBox*>(pWidget);
    const QRect rect = pBox ? GetTitleRect(pBox) : pWidget->rect();
    return {pWidget->mapTo(m_pScrollArea->widget(), rect.topLeft()), rect.size()};
}

/// The control itself, or the nearest one of its section that can take the focus.
QWidget* CFindField::FindStop(QWidget* pWidget) const
{
    const auto canTakeIt = [this](const QWidget* pStop) {
        return pStop->focusPolicy() != Qt::NoFocus && pStop->isEnabled() && pStop->isVisibleTo(m_pDialog);
    };
    if (canTakeIt(pWidget))
    {
        return pWidget;
    }
    const QPoint place = GetPlace(pWidget).center();
    QWidget* pNearest = nullptr;
    int nLeast = 0;
    for (QWidget* pStop : FindSection(pWidget)->findChildren<QWidget*>())
    {
        const QPoint distance = GetPlace(pStop).center() - place;
        const int nDistance = g_nRowWeight * qAbs(distance.y()) + qAbs(distance.x());
        if (canTakeIt(pStop) && (!pNearest || nDistance < nLeast))
        {
            pNearest = pStop;
            nLeast = nDistance;
        }
    }
    return pNearest;
}

} // namespace LocalConfig
