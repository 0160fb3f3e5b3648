#include "CAlarmTypeMenu.h"

#include <QAbstractListModel>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QListView>
#include <QScreen>

namespace UICommonMdl
{

namespace
{

constexpr int g_nMainWidth = 200;
constexpr int g_nSubWidth = 280;
constexpr int g_nMaxRows = 12; // beyond them a list scrolls
constexpr int g_nFrame = 10;   // pixels that frame and padding take

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
}

QListView* CAlarmTypeMenu::MakeList(const char* pszName, const QString& strAccessibleName, CMenuModel* pModel)
{
    auto* pList = new QListView(this);
    pList->setObjectName(QString::fromLatin1(pszName));
    pList->setAccessibleName(strAccessibleName);
    pList->setModel(pModel);
    pList->setUniformItemSizes(true);
    pList->setEditTriggers(QAbstractItemView::NoEditTriggers);
    pList->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    pList->setMouseTracking(true);
    connect(pList, &QListView::entered, pList, &QListView::setCurrentIndex);
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
    const QModelIndex main = m_pMainModel->Find(nMainItem);
    m_pMainList->setCurrentIndex(main.isValid() ? main : m_pMainModel->index(0));
    const QModelIndex sub = main.isValid() ? m_pSubModel->Find(nSubItem) : QModelIndex();
    m_pSubList->setCurrentIndex(sub);
    Place();
    show();
    m_pSubList->scrollTo(sub, QAbstractItemView::PositionAtCenter);
    (sub.isValid() ? m_pSubList : m_pMainList)->setFocus();
}

void CAlarmTypeMenu::Place()
{
    ensurePolished();
    const int nRowHeight = qMax(1, m_pMainList->sizeHintForRow(0));
    const int nRows = qBound(1, m_pMainModel->rowCount(), g_nMaxRows);
    resize(g_nMainWidth + g_nSubWidth, nRows * nRowHeight + g_nFrame);

    const QWidget* pOwner = parentWidget();
    const QRect owner(pOwner->mapToGlobal(QPoint()), pOwner->size());
    const QRect screen = pOwner->screen()->availableGeometry();
    const bool bAbove = owner.bottom() + height() > screen.bottom() && owner.top() - height() >= screen.top();
    const int nTop = bAbove ? owner.top() - height() : owner.bottom() + 1;
    move(qMax(screen.left(), qMin(owner.left(), screen.right() - width())), nTop);
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

bool CAlarmTypeMenu::OnKey(const QObject* pList, int nKey)
{
    const bool bMain = pList == m_pMainList;
    switch (nKey)
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
    if (pEvent->type() == QEvent::KeyPress && OnKey(pWatched, static_cast<QKeyEvent*>(pEvent)->key()))
    {
        return true;
    }
    return QWidget::eventFilter(pWatched, pEvent);
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
