#include "CAlarmTypeCombox.h"

#include "CAlarmType.h"
#include "CAlarmTypeMenu.h"

#include <QAccessibleWidget>
#include <QKeyEvent>
#include <QStylePainter>
#include <QWheelEvent>

namespace UICommonMdl
{

namespace
{

#ifdef Q_OS_UNIX
constexpr bool g_bNameIsValue = true; // of any combo box there: its label leads to it, and no value has a text
#else
constexpr bool g_bNameIsValue = false;
#endif

/// What screen readers see: the base's would tell the current item and open the list that the box does not have.
class CAccessibleCombox : public QAccessibleWidget
{
public:
    explicit CAccessibleCombox(CAlarmTypeCombox* pCombox)
        : QAccessibleWidget(pCombox, QAccessible::ComboBox)
        , m_pCombox(pCombox)
    {}

    QString text(QAccessible::Text eText) const override
    {
        const QString strShown = m_pCombox->GetShownText();
        const bool bNamed = g_bNameIsValue && eText == QAccessible::Name && !strShown.isEmpty();
        return bNamed || eText == QAccessible::Value ? strShown : QAccessibleWidget::text(eText);
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.expandable = true;
        state.expanded = m_pCombox->IsOpen();
        return state;
    }

    QStringList actionNames() const override
    {
        return QStringList{showMenuAction()} + QAccessibleWidget::actionNames();
    }

    void doAction(const QString& strAction) override
    {
        if (strAction != showMenuAction())
        {
            QAccessibleWidget::doAction(strAction);
        }
        else if (m_pCombox->IsOpen())
        {
            m_pCombox->hidePopup();
        }
        else
        {
            m_pCombox->showPopup();
        }
    }

private:
    CAlarmTypeCombox* m_pCombox;
};

QAccessibleInterface* MakeAccessible(const QString& /*strClass*/, QObject* pObject)
{
    auto* pCombox = qobject_cast<CAlarmTypeCombox*>(pObject);
    return pCombox ? new CAccessibleCombox(pCombox) : nullptr;
}

} // namespace

CAlarmTypeCombox::CAlarmTypeCombox(QWidget* pParent)
    : KvComboBox(pParent)
{
    QAccessible::installFactory(&MakeAccessible); // installs it once
}

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
    SetChoice(m_choice ? FindType(m_choice->nAlarmType) : std::nullopt); // indices may mean other types now
}

std::optional<CAlarmTypeCombox::SChoice> CAlarmTypeCombox::Find(int nMainItem, int nSubItem) const
{
    const QMap<int, QString> mapTypes = m_mapSub.value(nMainItem);
    if (!m_mapMain.contains(nMainItem) || !mapTypes.contains(nSubItem))
    {
        return std::nullopt;
    }
    return SChoice{nMainItem, nSubItem, CAlarmType::Instance()->GetAlarmTypeIdByIndex(nSubItem),
                   mapTypes.value(nSubItem)};
}

std::optional<CAlarmTypeCombox::SChoice> CAlarmTypeCombox::FindType(int nAlarmType) const
{
    const int nSubItem = CAlarmType::Instance()->GetIndexByAlarmTypeId(nAlarmType);
    for (auto it = m_mapMain.cbegin(); it != m_mapMain.cend(); ++it)
    {
        if (std::optional<SChoice> choice = Find(it.key(), nSubItem))
        {
            return choice;
        }
    }
    return std::nullopt;
}

void CAlarmTypeCombox::SetChoice(const std::optional<SChoice>& choice)
{
    const QString strBefore = GetShownText();
    m_choice = choice;
    update();
    if (GetShownText() != strBefore)
    {
        updateGeometry();
        QAccessibleValueChangeEvent event(this, GetShownText());
        QAccessible::updateAccessibility(&event);
        if (g_bNameIsValue)
        {
            QAccessibleEvent nameEvent(this, QAccessible::NameChanged);
            QAccessible::updateAccessibility(&nameEvent);
        }
    }
}

QString CAlarmTypeCombox::GetShownText() const
{
    return m_choice ? m_choice->strText : currentText();
}

QList<int> CAlarmTypeCombox::GetCurrentChosenItem() const
{
    return m_choice ? QList<int>{m_choice->nSubItem} : QList<int>();
}

bool CAlarmTypeCombox::ChooseItem(int nMainItem, int nSubItem)
{
    const std::optional<SChoice> choice = Find(nMainItem, nSubItem);
    if (!choice)
    {
        return false;
    }
    SetChoice(choice);
    emit SignalItemChange(nMainItem, nSubItem);
    return true;
}

void CAlarmTypeCombox::ClearChosenItem()
{
    SetChoice(std::nullopt);
}

QSize CAlarmTypeCombox::sizeHint() const
{
    QStyleOptionComboBox option;
    initStyleOption(&option);
    const QFontMetrics metrics = fontMetrics();
    const QSize contents(metrics.horizontalAdvance(GetShownText()), metrics.height() + 2); // 2: as the base has it
    return style()->sizeFromContents(QStyle::CT_ComboBox, &option, contents, this);
}

QSize CAlarmTypeCombox::minimumSizeHint() const
{
    return sizeHint();
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
        connect(m_pMenu, &CAlarmTypeMenu::SignalClosed, this, [this] { KvComboBox::hidePopup(); });
    }
    m_pMenu->Open(m_choice ? m_choice->nMainItem : m_mapMain.firstKey(), m_choice ? m_choice->nSubItem : -1);
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
    const QRect field = style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
    option.currentText = fontMetrics().elidedText(GetShownText(), Qt::ElideRight, field.width());
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
