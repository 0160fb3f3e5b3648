#include "CAlarmTypeCombox.h"

#include "CAlarmTypeMenu.h"

#include <QKeyEvent>
#include <QStylePainter>
#include <QWheelEvent>

namespace UICommonMdl
{

CAlarmTypeCombox::CAlarmTypeCombox(QWidget* pParent)
    : KvComboBox(pParent)
{}

CAlarmTypeCombox::~CAlarmTypeCombox() = default;

void CAlarmTypeCombox::InitMenu(const QMap<int, QString>& mapMain, const QMap<int, QMap<int, QString>>& mapSub)
{
    m_mapMain = mapMain;
    m_mapSub = mapSub;
    if (m_pMenu)
    {
        m_pMenu->hide();
        m_pMenu->SetItems(m_mapMain, m_mapSub);
    }
    m_bChosen = m_bChosen && HasItem(m_nMainItem, m_nSubItem);
    ShowChoice();
}

void CAlarmTypeCombox::ShowChoice()
{
    setAccessibleDescription(m_bChosen ? GetText(m_nMainItem, m_nSubItem) : QString());
    update();
}

bool CAlarmTypeCombox::HasItem(int nMainItem, int nSubItem) const
{
    return m_mapMain.contains(nMainItem) && m_mapSub.value(nMainItem).contains(nSubItem);
}

QString CAlarmTypeCombox::GetText(int nMainItem, int nSubItem) const
{
    return m_mapSub.value(nMainItem).value(nSubItem);
}

QList<int> CAlarmTypeCombox::GetCurrentChosenItem() const
{
    return m_bChosen ? QList<int>{m_nSubItem} : QList<int>();
}

bool CAlarmTypeCombox::ChooseItem(int nMainItem, int nSubItem)
{
    if (!HasItem(nMainItem, nSubItem))
    {
        return false;
    }
    m_bChosen = true;
    m_nMainItem = nMainItem;
    m_nSubItem = nSubItem;
    ShowChoice();
    emit SignalItemChange(nMainItem, nSubItem);
    return true;
}

void CAlarmTypeCombox::ClearChosenItem()
{
    m_bChosen = false;
    ShowChoice();
}

void CAlarmTypeCombox::showPopup()
{
    if (m_mapMain.isEmpty() || m_mapSub.isEmpty())
    {
        return;
    }
    if (!m_pMenu)
    {
        m_pMenu = new CAlarmTypeMenu(this);
        m_pMenu->SetItems(m_mapMain, m_mapSub);
        connect(m_pMenu, &CAlarmTypeMenu::SignalChosen, this, &CAlarmTypeCombox::ChooseItem);
    }
    m_pMenu->Open(m_bChosen ? m_nMainItem : m_mapMain.firstKey(), m_bChosen ? m_nSubItem : -1);
}

bool CAlarmTypeCombox::IsOpen() const
{
    return m_pMenu && m_pMenu->isVisible();
}

void CAlarmTypeCombox::hidePopup()
{
    if (m_pMenu)
    {
        m_pMenu->hide();
    }
    KvComboBox::hidePopup();
}

void CAlarmTypeCombox::paintEvent(QPaintEvent* /*pEvent*/)
{
    QStylePainter painter(this);
    QStyleOptionComboBox option;
    initStyleOption(&option);
    option.state.setFlag(QStyle::State_On, IsOpen());
    if (m_bChosen)
    {
        const QRect field = style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
        option.currentText = fontMetrics().elidedText(GetText(m_nMainItem, m_nSubItem), Qt::ElideRight, field.width());
    }
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}

void CAlarmTypeCombox::mousePressEvent(QMouseEvent* pEvent)
{
    // The base would look pressed until a list of its own closes, which never opens.
    if (pEvent->button() == Qt::LeftButton)
    {
        showPopup();
    }
}

void CAlarmTypeCombox::keyPressEvent(QKeyEvent* pEvent)
{
    // Whatever would change the current item of a plain box opens the menu, which is where items are chosen.
    const bool bPlain = !(pEvent->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier));
    switch (pEvent->key())
    {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
    case Qt::Key_Home:
    case Qt::Key_End:
        showPopup();
        return;
    case Qt::Key_Space:
    case Qt::Key_F4:
        if (bPlain)
        {
            showPopup();
            return;
        }
        break;
    default:
        break;
    }
    const QString strText = pEvent->text();
    if (bPlain && !strText.isEmpty() && strText[0].isPrint())
    {
        showPopup();
        if (m_pMenu)
        {
            m_pMenu->Search(strText);
        }
        return;
    }
    pEvent->ignore(); // Enter and the rest are the dialog's
}

void CAlarmTypeCombox::wheelEvent(QWheelEvent* pEvent)
{
    pEvent->ignore();
}

} // namespace UICommonMdl
