#include "CAlarmTypeMenu.h"

#include <QAbstractListModel>
#include <QHBoxLayout>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QListView>
#include <QScreen>

namespace UICommonMdl
{

namespace
{

constexpr int g_nMainWidth = 200;
constexpr int g_nSubWidth = 280;
constexpr int g_nMaxRows = 12;     // beyond them a list scrolls
constexpr int g_nFrame = 10;       // pixels that frame and padding take
constexpr int g_nMouseRests = 200; // milliseconds without a movement

/// A list in which Ctrl does not unselect the current item.
class CMenuList : public QListView
{
public:
    using QListView::QListView;

protected:
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index, const QEvent* pEvent) const override
    {
        const QItemSelectionModel::SelectionFlags eFlags = QListView::selectionCommand(index, pEvent);
        return eFlags.testFlag(QItemSelectionModel::Deselect) ? QItemSelectionModel::ClearAndSelect : eFlags;
    }
};

/// Whether the row at a place of the viewport does not show its whole text.
bool IsCut(const QListView& list, const QPoint& pos)
{
    const QModelIndex index = list.indexAt(pos);
    return index.isValid() && list.sizeHintForIndex(index).width() > list.viewport()->width();
}

int Mirrored(int nKey)
{
    return nKey == Qt::Key_Left ? Qt::Key_Right : nKey == Qt::Key_Right ? Qt::Key_Left : nKey;
}

} // namespace

/// Keyed texts, in the order of their keys.
class CMenuModel : public QAbstractListModel
{
public:
    using QAbstractListModel::QAbstractListModel;

    void SetItems(const QMap<int, QString>& mapItems)
    {
        beginResetModel();
        m_listKeys = mapItems.keys();
        m_listTexts = mapItems.values();
        endResetModel();
    }

    int rowCount(const QModelIndex& parent = QModelIndex()) const override
    {
        return parent.isValid() ? 0 : m_listKeys.size();
    }

    QVariant data(const QModelIndex& index, int nRole) const override
    {
        return nRole == Qt::DisplayRole || nRole == Qt::ToolTipRole ? m_listTexts.value(index.row()) : QVariant();
    }

    int GetKey(const QModelIndex& index) const { return m_listKeys.value(index.row(), -1); }

    QModelIndex Find(int nKey) const
    {
        const auto it = std::lower_bound(m_listKeys.begin(), m_listKeys.end(), nKey);
        return it != m_listKeys.end() && *it == nKey ? index(int(it - m_listKeys.begin())) : QModelIndex();
    }

private:
    QList<int> m_listKeys;
    QStringList m_listTexts;
};

CAlarmTypeMenu::CAlarmTypeMenu(QWidget* pOwner)
    : QWidget(pOwner, Qt::Popup)
    , m_pMainModel(new CMenuModel(this))
    , m_pSubModel(new CMenuModel(this))
    , m_pMainList(MakeList("mainItems", tr("Alarm categories"), m_pMainModel))
    , m_pSubList(MakeList("subItems", tr("Alarm types"), m_pSubModel))
{
    setObjectName(QStringLiteral("alarmTypeMenu"));
    setAttribute(Qt::WA_StyledBackground); // no frame, since style sheets leave those of a combo box alone
    auto* pLayout = new QHBoxLayout(this);
    pLayout->setContentsMargins(1, 1, 1, 1); // the border
    pLayout->setSpacing(0);
    pLayout->addWidget(m_pMainList);
    pLayout->addWidget(m_pSubList);
    m_pMainList->setFixedWidth(g_nMainWidth);
    m_pSubList->setFixedWidth(g_nSubWidth);
    connect(m_pMainList->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &CAlarmTypeMenu::OnMainItemChanged);
    connect(m_pSubList, &QListView::clicked, this, &CAlarmTypeMenu::Choose);
    for (QListView* pList : {m_pMainList, m_pSubList})
    {
        // Not the list's own signal, which also tells of items that come under a resting mouse when the list scrolls.
        pList->viewport()->installEventFilter(this);
    }
    m_mouseRests.setSingleShot(true);
    m_mouseRests.setInterval(g_nMouseRests);
    connect(&m_mouseRests, &QTimer::timeout, this, &CAlarmTypeMenu::ShowCategoryUnderMouse);
}

QListView* CAlarmTypeMenu::MakeList(const char* pszName, const QString& strAccessibleName, CMenuModel* pModel)
{
    auto* pList = new CMenuList(this);
    pList->setObjectName(QString::fromLatin1(pszName));
    pList->setAccessibleName(strAccessibleName);
    pList->setModel(pModel);
    pList->setUniformItemSizes(true);
    pList->setEditTriggers(QAbstractItemView::NoEditTriggers);
    pList->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    pList->setMouseTracking(true);
    pList->installEventFilter(this);
    return pList;
}

void CAlarmTypeMenu::SetItems(const QMap<int, QString>& mapMain, const QMap<int, QMap<int, QString>>& mapSub)
{
    m_mapSub = mapSub;
    m_pMainModel->SetItems(mapMain);
    m_pSubModel->SetItems({});
}

void CAlarmTypeMenu::Open(int nMainItem, int nSubItem)
{
    setLayoutDirection(parentWidget()->layoutDirection()); // a window does not take it over by itself
    const QModelIndex main = m_pMainModel->Find(nMainItem);
    m_pMainList->setCurrentIndex(main.isValid() ? main : m_pMainModel->index(0));
    const QModelIndex sub = main.isValid() ? m_pSubModel->Find(nSubItem) : QModelIndex();
    m_pSubList->setCurrentIndex(sub);
    Place();
    show();
    m_pSubList->scrollTo(sub, QAbstractItemView::PositionAtCenter);
    (sub.isValid() ? m_pSubList : m_pMainList)->setFocus();
}

bool CAlarmTypeMenu::IsMirrored() const
{
    return layoutDirection() == Qt::RightToLeft;
}

void CAlarmTypeMenu::Place()
{
    ensurePolished();
    const QWidget* pOwner = parentWidget();
    const QRect owner(pOwner->mapToGlobal(QPoint()), pOwner->size());
    const QRect screen = pOwner->screen()->availableGeometry();
    const int nRoomAbove = owner.top() - screen.top();
    const int nRoomBelow = screen.bottom() - owner.bottom();

    const int nRowHeight = qMax(1, m_pMainList->sizeHintForRow(0));
    const int nRows = qBound(1, m_pMainModel->rowCount(), g_nMaxRows);
    const QSize wanted = QSize(0, nRows * nRowHeight + g_nFrame).expandedTo(layout()->minimumSize());
    const bool bAbove = wanted.height() > nRoomBelow && nRoomAbove > nRoomBelow;
    const int nHeight = qMin(wanted.height(), bAbove ? nRoomAbove : nRoomBelow);

    const int nLeft = IsMirrored() ? owner.right() + 1 - wanted.width() : owner.left();
    const int nRightmost = screen.right() + 1 - wanted.width();
    setGeometry(qMax(screen.left(), qMin(nLeft, nRightmost)), bAbove ? owner.top() - nHeight : owner.bottom() + 1,
                wanted.width(), nHeight);
}

void CAlarmTypeMenu::Search(const QString& strText)
{
    (m_pSubList->hasFocus() ? m_pSubList : m_pMainList)->keyboardSearch(strText);
}

void CAlarmTypeMenu::OnMainItemChanged(const QModelIndex& index)
{
    m_pSubModel->SetItems(m_mapSub.value(m_pMainModel->GetKey(index)));
}

void CAlarmTypeMenu::EnterTypes()
{
    if (!m_pSubList->currentIndex().isValid())
    {
        m_pSubList->setCurrentIndex(m_pSubModel->index(0));
    }
    m_pSubList->setFocus();
}

void CAlarmTypeMenu::Choose(const QModelIndex& index)
{
    if (index.isValid())
    {
        const int nMainItem = m_pMainModel->GetKey(m_pMainList->currentIndex());
        const int nSubItem = m_pSubModel->GetKey(index);
        hide();
        emit SignalChosen(nMainItem, nSubItem);
    }
}

void CAlarmTypeMenu::FollowMouse(const QPoint& pos)
{
    m_mouse = pos;
    m_mouseRests.start();
    if (!IsOnTheWayToTypes(pos))
    {
        ShowCategoryUnderMouse();
    }
}

/// Whether the mouse, if it goes straight on, gets from the categories to the types.
bool CAlarmTypeMenu::IsOnTheWayToTypes(const QPoint& pos) const
{
    const QRect types(m_pMainList->viewport()->mapFrom(this, m_pSubList->pos()), m_pSubList->size());
    const int nDistance = (IsMirrored() ? types.right() : types.left()) - m_mouseOrigin.x();
    const int nAdvance = pos.x() - m_mouseOrigin.x();
    if (nAdvance == 0 || (nAdvance < 0) != IsMirrored())
    {
        return false;
    }
    const double dArrival = m_mouseOrigin.y() + double(pos.y() - m_mouseOrigin.y()) * nDistance / nAdvance;
    return dArrival >= types.top() && dArrival <= types.bottom();
}

void CAlarmTypeMenu::ShowCategoryUnderMouse()
{
    m_mouseOrigin = m_mouse;
    const QModelIndex index = m_pMainList->indexAt(m_mouse);
    if (index.isValid())
    {
        m_pMainList->setCurrentIndex(index);
    }
}

void CAlarmTypeMenu::MarkType(const QPoint& pos)
{
    const QModelIndex index = m_pSubList->indexAt(pos);
    if (index.isValid())
    {
        m_pSubList->setCurrentIndex(index);
    }
}

bool CAlarmTypeMenu::OnKey(const QObject* pList, int nKey)
{
    const bool bMain = pList == m_pMainList;
    switch (IsMirrored() ? Mirrored(nKey) : nKey)
    {
    case Qt::Key_Escape:
    case Qt::Key_F4:
        hide();
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (!bMain)
        {
            Choose(m_pSubList->currentIndex());
            return true;
        }
        Q_FALLTHROUGH();
    case Qt::Key_Right:
        if (bMain)
        {
            EnterTypes();
        }
        return true;
    case Qt::Key_Left:
        m_pMainList->setFocus();
        return true;
    default:
        return false;
    }
}

bool CAlarmTypeMenu::eventFilter(QObject* pWatched, QEvent* pEvent)
{
    const bool bCategories = pWatched == m_pMainList->viewport();
    switch (pEvent->type())
    {
    case QEvent::KeyPress:
        return OnKey(pWatched, static_cast<QKeyEvent*>(pEvent)->key());
    case QEvent::Enter:
        if (bCategories)
        {
            m_mouseOrigin = static_cast<QEnterEvent*>(pEvent)->pos();
        }
        return false;
    case QEvent::MouseMove:
        if (bCategories)
        {
            FollowMouse(static_cast<QMouseEvent*>(pEvent)->pos());
        }
        else if (pWatched == m_pSubList->viewport())
        {
            MarkType(static_cast<QMouseEvent*>(pEvent)->pos());
        }
        return false;
    case QEvent::ToolTip:
        return !IsCut(pWatched == m_pMainList->viewport() ? *m_pMainList : *m_pSubList,
                      static_cast<QHelpEvent*>(pEvent)->pos());
    case QEvent::Leave:
        if (bCategories)
        {
            m_mouseRests.stop();
        }
        return false;
    default:
        return false;
    }
}

void CAlarmTypeMenu::showEvent(QShowEvent* pEvent)
{
    QWidget::showEvent(pEvent);
    parentWidget()->update(); // which looks open now
}

void CAlarmTypeMenu::hideEvent(QHideEvent* pEvent)
{
    QWidget::hideEvent(pEvent);
    parentWidget()->update();
    emit SignalClosed();
}

void CAlarmTypeMenu::mousePressEvent(QMouseEvent* pEvent)
{
    // A press on the box itself closes the menu; it is not to open it again.
    const QWidget* pOwner = parentWidget();
    const bool bOnOwner = pOwner->rect().contains(pOwner->mapFromGlobal(pEvent->globalPos()));
    setAttribute(Qt::WA_NoMouseReplay, bOnOwner);
    QWidget::mousePressEvent(pEvent);
}

} // namespace UICommonMdl
