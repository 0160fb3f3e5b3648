#include "KvToolListView.h"

#include "KvErrorMark.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStandardItemModel>
#include <QStyledItemDelegate>
#include <QToolTip>

namespace KVGUI
{

namespace
{

constexpr int g_nIndexRole = Qt::UserRole;
constexpr int g_nRowHeight = 40;
constexpr int g_nIconSize = 20;
constexpr int g_nMargin = 16;
constexpr int g_nIconGap = 12;
constexpr int g_nBarWidth = 3;
constexpr int g_nRadius = 4;

} // namespace

/// Paints an entry: its card when current or under the mouse, the accent bar at the leading edge, icon, text.
class CToolListDelegate : public QStyledItemDelegate
{
public:
    explicit CToolListDelegate(KvToolListView* pView)
        : QStyledItemDelegate(pView)
        , m_pView(pView)
    {}

    QSize sizeHint(const QStyleOptionViewItem& /*option*/, const QModelIndex& /*index*/) const override
    {
        return {0, g_nRowHeight}; // as wide as the list
    }

    /// An entry that does not show all of its text tells it.
    bool helpEvent(QHelpEvent* pEvent, QAbstractItemView* pView, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override
    {
        const QString strText = index.data(Qt::DisplayRole).toString();
        const bool bTip = pEvent->type() == QEvent::ToolTip && index.data(Qt::ToolTipRole).isNull();
        if (!bTip || option.fontMetrics.horizontalAdvance(strText) <= GetTextRect(pView->visualRect(index)).width())
        {
            return QStyledItemDelegate::helpEvent(pEvent, pView, option, index);
        }
        QToolTip::showText(pEvent->globalPos(), strText, pView);
        return true;
    }

    void paint(QPainter* pPainter, const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        const bool bCurrent = index == m_pView->currentIndex();
        const bool bHover = option.state & QStyle::State_MouseOver;
        const bool bFocus = bCurrent && m_pView->hasFocus();
        const QPalette& palette = option.palette;
        const auto color = [](const QColor& own, const QColor& other) { return own.isValid() ? own : other; };

        pPainter->save();
        pPainter->setRenderHint(QPainter::Antialiasing);
        pPainter->setPen(Qt::NoPen);
        const QRectF card = QRectF(option.rect).adjusted(1, 1, -1, -1);
        if (bCurrent || bHover)
        {
            pPainter->setBrush(bCurrent ? color(m_pView->m_selectedColor, palette.color(QPalette::AlternateBase))
                                        : color(m_pView->m_hoverColor, palette.color(QPalette::AlternateBase)));
            pPainter->drawRoundedRect(card, g_nRadius, g_nRadius);
        }
        const auto place = [&option](const QRect& rect) {
            return QStyle::visualRect(option.direction, option.rect, rect);
        };
        if (bCurrent)
        {
            const QRect bar(option.rect.left() + 1, option.rect.top() + 8, g_nBarWidth, option.rect.height() - 16);
            pPainter->setBrush(color(m_pView->m_accentColor, palette.color(QPalette::Highlight)));
            pPainter->drawRoundedRect(place(bar), g_nBarWidth / 2.0, g_nBarWidth / 2.0);
        }
        if (bFocus)
        {
            pPainter->setBrush(Qt::NoBrush);
            pPainter->setPen(QPen(color(m_pView->m_focusColor, palette.color(QPalette::Highlight)), 1.5));
            pPainter->drawRoundedRect(card.adjusted(0.5, 0.5, -0.5, -0.5), g_nRadius, g_nRadius);
        }

        const QRect icon(option.rect.left() + g_nMargin, option.rect.center().y() - g_nIconSize / 2 + 1, g_nIconSize,
                         g_nIconSize);
        const QIcon::Mode eMode = bCurrent ? QIcon::Selected : bHover ? QIcon::Active : QIcon::Normal;
        index.data(Qt::DecorationRole).value<QIcon>().paint(pPainter, place(icon), Qt::AlignCenter, eMode);

        QRect text = GetTextRect(option.rect);
        if (!index.data(Qt::ToolTipRole).isNull())
        {
            const QRect mark(option.rect.right() - g_nMargin - g_nErrorMarkSize,
                             option.rect.center().y() - g_nErrorMarkSize / 2 + 1, g_nErrorMarkSize, g_nErrorMarkSize);
            text.setRight(mark.left() - g_nMargin / 2);
            PaintErrorMark(*pPainter, place(mark), color(m_pView->m_errorColor, palette.color(QPalette::Text)),
                           color(m_pView->m_errorTextColor, palette.color(QPalette::Base)));
        }
        pPainter->setPen(bCurrent ? color(m_pView->m_selectedTextColor, palette.color(QPalette::Text))
                                  : palette.color(QPalette::Text));
        const QString strText =
            option.fontMetrics.elidedText(index.data(Qt::DisplayRole).toString(), Qt::ElideRight, text.width());
        pPainter->drawText(place(text),
                           int(QStyle::visualAlignment(option.direction, Qt::AlignLeft) | Qt::AlignVCenter), strText);
        pPainter->restore();
    }

private:
    /// As it lies where texts are read from the left.
    static QRect GetTextRect(const QRect& entry)
    {
        return entry.adjusted(g_nMargin + g_nIconSize + g_nIconGap, 0, -g_nMargin / 2, 0);
    }

    KvToolListView* m_pView;
};

KvToolListView::KvToolListView(QWidget* pParent)
    : QListView(pParent)
    , m_pModel(new QStandardItemModel(this))
{
    setModel(m_pModel);
    setItemDelegate(new CToolListDelegate(this));
    setEditTriggers(NoEditTriggers);
    setSelectionMode(SingleSelection);
    setMouseTracking(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    connect(this, &KvToolListView::SignalColorChanged, viewport(), QOverload<>::of(&QWidget::update));
}

void KvToolListView::AddItem(const QIcon& icon, const QString& strText)
{
    auto* pItem = new QStandardItem(icon, strText);
    pItem->setData(m_nNextIndex++, g_nIndexRole);
    m_pModel->appendRow(pItem);
}

void KvToolListView::RemoveItem(int nIndex)
{
    const QModelIndex index = Find(nIndex);
    if (index.isValid())
    {
        m_pModel->removeRow(index.row());
    }
}

void KvToolListView::SetCurrentIndex(int nIndex)
{
    const QModelIndex index = Find(nIndex);
    if (index.isValid())
    {
        setCurrentIndex(index);
    }
}

int KvToolListView::GetCurrentIndex() const
{
    return currentIndex().isValid() ? currentIndex().data(g_nIndexRole).toInt() : -1;
}

void KvToolListView::SetItemError(int nIndex, const QString& strText)
{
    const QModelIndex index = Find(nIndex);
    if (index.isValid() && index.data(Qt::ToolTipRole).toString() != strText)
    {
        const QVariant text = strText.isEmpty() ? QVariant() : QVariant(strText);
        m_pModel->setData(index, text, Qt::ToolTipRole);
        m_pModel->setData(index, text, Qt::AccessibleDescriptionRole);
    }
}

QString KvToolListView::GetItemError(int nIndex) const
{
    return Find(nIndex).data(Qt::ToolTipRole).toString();
}

QModelIndex KvToolListView::Find(int nIndex) const
{
    const QModelIndexList listFound = m_pModel->match(m_pModel->index(0, 0), g_nIndexRole, nIndex, 1, Qt::MatchExactly);
    return listFound.value(0);
}

void KvToolListView::currentChanged(const QModelIndex& current, const QModelIndex& previous)
{
    if (hasFocus())
    {
        QListView::currentChanged(current, previous);
    }
    else
    {
        // The list's own tells screen readers that the entry has got the focus, whoever has it.
        QAbstractItemView::currentChanged(current, previous); // NOLINT(bugprone-parent-virtual-call)
    }
    if (current.isValid())
    {
        emit SignalCurrentIndexChanged(current.data(g_nIndexRole).toInt());
    }
}

void KvToolListView::PickAgainUnlessChanged(const QModelIndex& before)
{
    if (before.isValid() && currentIndex() == before)
    {
        emit SignalCurrentIndexChanged(GetCurrentIndex());
    }
}

QItemSelectionModel::SelectionFlags KvToolListView::selectionCommand(const QModelIndex& index,
                                                                     const QEvent* pEvent) const
{
    const QItemSelectionModel::SelectionFlags eFlags = QListView::selectionCommand(index, pEvent);
    return eFlags.testFlag(QItemSelectionModel::Deselect) ? QItemSelectionModel::ClearAndSelect : eFlags; // with Ctrl
}

void KvToolListView::mousePressEvent(QMouseEvent* pEvent)
{
    if (pEvent->button() != Qt::LeftButton)
    {
        return;
    }
    const QModelIndex before = currentIndex();
    const bool bOnCurrent = indexAt(pEvent->pos()) == before;
    QListView::mousePressEvent(pEvent);
    if (bOnCurrent)
    {
        PickAgainUnlessChanged(before);
    }
}

void KvToolListView::keyPressEvent(QKeyEvent* pEvent)
{
    const QModelIndex before = currentIndex();
    QListView::keyPressEvent(pEvent);
    switch (pEvent->key())
    {
    case Qt::Key_Home:
    case Qt::Key_End:
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        PickAgainUnlessChanged(before);
        pEvent->accept(); // Enter on an entry must not press the dialog's default button
        break;
    default:
        break;
    }
}

} // namespace KVGUI
