#include "QCheckableComboBox.h"

#include <KvGui/KvCheckBox.h>
#include <KvGui/KvListWidget.h>

#include <QKeyEvent>

namespace LocalConfig
{

namespace
{

constexpr int g_nMinItems = 2;

bool ClosesTheList(const QKeyEvent& event)
{
    switch (event.key())
    {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Escape:
    case Qt::Key_F4:
        return true;
    case Qt::Key_Up:
    case Qt::Key_Down:
        return event.modifiers() & Qt::AltModifier;
    default:
        return false;
    }
}

bool OpensTheList(const QKeyEvent& event)
{
    switch (event.key())
    {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return true;
    default:
        return false;
    }
}

/// The text of a button that shows this text as it is.
QString WithoutMnemonic(QString strText)
{
    return strText.replace(QLatin1Char('&'), QLatin1String("&&"));
}

} // namespace

QCheckableComboBox::QCheckableComboBox(QWidget* pParent)
    : QSkinCombox(pParent)
{
    auto* pList = new KVGUI::KvListWidget(this);
    setModel(pList->model());
    setView(pList);
    pList->installEventFilter(this);
    insertItem(0, tr("None"));
}

void QCheckableComboBox::SetItems(const QMap<int, QString>& mapItems)
{
    m_mapItems = mapItems;
    m_listChecked.clear();
    clear();
    insertItem(0, tr("None"));
}

void QCheckableComboBox::SetCheckedList(const QList<int>& listChecked)
{
    if (listChecked != m_listChecked)
    {
        m_listChecked = listChecked;
    }
    ShowText();
}

bool QCheckableComboBox::CanOpen() const
{
    return m_mapItems.size() >= g_nMinItems;
}

void QCheckableComboBox::showPopup()
{
    if (CanOpen())
    {
        BuildList();
        QSkinCombox::showPopup();
        GetCheckBox(0)->setFocus(Qt::PopupFocusReason); // keys move and toggle from there
        for (int nRow = 0; nRow < GetList()->count(); ++nRow)
        {
            const bool bCut = GetCheckBox(nRow)->sizeHint().width() > GetCheckBox(nRow)->width();
            GetCheckBox(nRow)->setToolTip(bCut ? m_mapItems.value(GetKey(nRow)) : QString());
        }
    }
}

void QCheckableComboBox::hidePopup()
{
    if (CanOpen())
    {
        if (GetList()->isVisible())
        {
            GetList()->setFocus(Qt::PopupFocusReason); // or it would pass through all the rows while they go
        }
        ShowText();
        QSkinCombox::hidePopup();
    }
}

bool QCheckableComboBox::eventFilter(QObject* pWatched, QEvent* pEvent)
{
    if (pWatched == this)
    {
        return QSkinCombox::eventFilter(pWatched, pEvent);
    }
    const bool bPress = pEvent->type() == QEvent::KeyPress;
    if (bPress || pEvent->type() == QEvent::ShortcutOverride)
    {
        if (!ClosesTheList(*static_cast<QKeyEvent*>(pEvent)))
        {
            return false;
        }
        if (bPress)
        {
            hidePopup();
        }
        pEvent->accept(); // the base would make the row under the cursor the box's current item
        return true;
    }
    return QSkinCombox::eventFilter(pWatched, pEvent);
}

void QCheckableComboBox::keyPressEvent(QKeyEvent* pEvent)
{
    if (OpensTheList(*pEvent) && CanOpen())
    {
        showPopup(); // there is no other item to go to
    }
    else
    {
        QSkinCombox::keyPressEvent(pEvent);
    }
}

KVGUI::KvListWidget* QCheckableComboBox::GetList() const
{
    return static_cast<KVGUI::KvListWidget*>(view());
}

KVGUI::KvCheckBox* QCheckableComboBox::GetCheckBox(int nRow) const
{
    return qobject_cast<KVGUI::KvCheckBox*>(GetList()->itemWidget(GetList()->item(nRow)));
}

int QCheckableComboBox::GetKey(int nRow) const
{
    return GetList()->item(nRow)->data(Qt::UserRole).toInt();
}

void QCheckableComboBox::BuildList()
{
    clear();
    for (auto it = m_mapItems.cbegin(); it != m_mapItems.cend(); ++it)
    {
        auto* pCheckBox = new KVGUI::KvCheckBox(WithoutMnemonic(it.value()), this);
        if (it.key() == m_nAllKey)
        {
            m_pAllCheckBox = pCheckBox;
        }
        pCheckBox->setChecked(m_listChecked.contains(it.key()));
        auto* pItem = new QListWidgetItem(GetList());
        pItem->setFlags(Qt::ItemIsEnabled); // not selectable, so that clicks are the check box's
        pItem->setData(Qt::UserRole, it.key());
        pItem->setData(Qt::AccessibleTextRole, it.value());
        GetList()->setItemWidget(pItem, pCheckBox);
        pCheckBox->installEventFilter(this);
        connect(pCheckBox, &QCheckBox::clicked, this, &QCheckableComboBox::OnChecked);
    }
}

void QCheckableComboBox::OnChecked(bool bChecked)
{
    int nRow = 0;
    while (nRow < GetList()->count() && GetCheckBox(nRow) != sender())
    {
        ++nRow;
    }
    if (nRow == GetList()->count())
    {
        return;
    }
    const int nKey = GetKey(nRow);
    emit sgnItemChanged(nKey, bChecked);

    if (nKey == m_nAllKey)
    {
        m_listChecked = bChecked ? m_mapItems.keys() : QList<int>();
    }
    else if (bChecked)
    {
        m_listChecked.append(nKey);
    }
    else
    {
        m_listChecked.removeAll(nKey);
        m_listChecked.removeAll(m_nAllKey);
    }
    for (int n = 0; n < GetList()->count(); ++n)
    {
        if (KVGUI::KvCheckBox* pCheckBox = GetCheckBox(n))
        {
            pCheckBox->setChecked(m_listChecked.contains(GetKey(n)));
        }
    }
}

void QCheckableComboBox::OnBeginOper()
{
    BuildList();
}

void QCheckableComboBox::OnFinishOper()
{
    ShowText();
}

void QCheckableComboBox::OnListViewHide()
{
    ShowText();
}

void QCheckableComboBox::ShowText()
{
    const QString strText = GetText();
    clear();
    insertItem(0, strText);
}

QString QCheckableComboBox::GetText() const
{
    if (m_listChecked.isEmpty())
    {
        return tr("None");
    }
    if (m_listChecked.size() < m_mapItems.size())
    {
        const QString strFirst = m_mapItems.value(m_listChecked.first());
        return m_listChecked.size() > 1 ? tr("%1 ...").arg(strFirst) : strFirst;
    }
    return m_mapItems.contains(m_nAllKey) ? m_mapItems.value(m_nAllKey) : tr("All");
}

} // namespace LocalConfig
