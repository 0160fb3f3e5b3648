#include "CShortcutKeyConfig.h"
#include "ui_CShortcutKeyConfig.h"

#include "PageHelpers.h"

#include <KvGui/KvTableView.h>
#include <LocalConfig/Direction.h>
#include <LocalConfig/SkinStyle.h>

#include <QAccessibleWidget>
#include <QHeaderView>
#include <QStandardItemModel>

namespace LocalConfig
{

using LocalConfigLogical::ShortcutKeyConfigInfo;

namespace
{

constexpr int g_nColumns = 4; // two pairs of function and key
constexpr int g_nColumnWidth = 160;

/// What screen readers see of the page: a table tells nobody that it is hidden, so the hidden one is left out.
class CAccessiblePage : public QAccessibleWidget
{
public:
    explicit CAccessiblePage(QWidget* pPage)
        : QAccessibleWidget(pPage)
    {}

    int childCount() const override { return GetShown().size(); }
    QAccessibleInterface* child(int nIndex) const override { return GetShown().value(nIndex); }
    int indexOfChild(const QAccessibleInterface* pChild) const override
    {
        return GetShown().indexOf(const_cast<QAccessibleInterface*>(pChild));
    }

private:
    QList<QAccessibleInterface*> GetShown() const
    {
        QList<QAccessibleInterface*> listShown;
        for (int n = 0; n < QAccessibleWidget::childCount(); ++n)
        {
            QAccessibleInterface* pChild = QAccessibleWidget::child(n);
            const auto* pView = pChild ? qobject_cast<const QAbstractItemView*>(pChild->object()) : nullptr;
            if (pChild && !(pView && pView->isHidden()))
            {
                listShown += pChild;
            }
        }
        return listShown;
    }
};

QAccessibleInterface* MakeAccessible(const QString& /*strClass*/, QObject* pObject)
{
    auto* pPage = qobject_cast<CShortcutKeyConfig*>(pObject);
    return pPage ? new CAccessiblePage(pPage) : nullptr;
}

/// The host may unload the module.
struct SAccessibleFactory
{
    SAccessibleFactory() { QAccessible::installFactory(&MakeAccessible); }
    ~SAccessibleFactory() { QAccessible::removeFactory(&MakeAccessible); }
    Q_DISABLE_COPY(SAccessibleFactory)
};

} // namespace

CShortcutKeyConfig::CShortcutKeyConfig(QWidget* pParent)
    : QWidget(pParent)
    , m_pUi(std::make_unique<Ui::CShortcutKeyConfig>())
{
    static const SAccessibleFactory factory;
    PassToolWindow(this);
    m_pUi->setupUi(this);
    setObjectName(QStringLiteral("CShortcutKeyConfig"));
    ApplySkinStyle(this); // first, because a table settles its looks when it measures the headers of its model
    InitControls();
    connect(m_pUi->pcRadioBtn, SIGNAL(clicked()), this, SLOT(SwitchTabelView()));
    connect(m_pUi->nkbRadioBtn, SIGNAL(clicked()), this, SLOT(SwitchTabelView()));
}

CShortcutKeyConfig::~CShortcutKeyConfig() = default;

void CShortcutKeyConfig::InitControls()
{
    Describe(m_pUi->label, {m_pUi->nkbRadioBtn});
    AppendColon(tr(":"), {m_pUi->label});
    m_pUi->pcRadioBtn->setChecked(true);
    ShowTable(true);
    m_listPcKeys = GetPcKeys();
    m_listNkbKeys = GetNkbKeys();
    InitTable(m_pUi->pckeyboardView, m_listPcKeys, true);
    InitTable(m_pUi->nkbView, m_listNkbKeys, false);
}

void CShortcutKeyConfig::InitTable(KVGUI::KvTableView* pView, const QStringList& listTexts, bool bHeaderToolTips)
{
    const QStringList listHeaders = {tr("Function"), tr("Shortcut Keys"), tr("Function"), tr("Shortcut Keys")};
    auto* pModel = new QStandardItemModel(0, g_nColumns, this);
    for (int nColumn = 0; nColumn < g_nColumns; ++nColumn)
    {
        pModel->setHeaderData(nColumn, Qt::Horizontal, listHeaders[nColumn], Qt::DisplayRole);
        pModel->setHeaderData(nColumn, Qt::Horizontal, int(Qt::AlignLeft | Qt::AlignVCenter), Qt::TextAlignmentRole);
        pModel->setHeaderData(nColumn, Qt::Horizontal, g_nColumnWidth, KVGUI::KvTableView::ColumnWidthRole);
        if (bHeaderToolTips)
        {
            pModel->setHeaderData(nColumn, Qt::Horizontal, listHeaders[nColumn], Qt::ToolTipRole);
        }
    }
    for (int n = 0; n < listTexts.size(); ++n)
    {
        const bool bKey = n % 2 != 0;
        pModel->setItem(n / g_nColumns, n % g_nColumns,
                        new QStandardItem(bKey ? KeepOrder(listTexts[n]) : listTexts[n]));
    }
    pView->setModel(pModel);
    pView->setEditTriggers(QAbstractItemView::NoEditTriggers);
    pView->horizontalHeader()->setSectionResizeMode(
        QHeaderView::Fixed); // a wider column would push others out of reach
}

void CShortcutKeyConfig::ShowTable(bool bPcKeyboard)
{
    QWidget* pShown = bPcKeyboard ? m_pUi->pckeyboardView : m_pUi->nkbView;
    QWidget* pHidden = bPcKeyboard ? m_pUi->nkbView : m_pUi->pckeyboardView;
    pHidden->hide();
    pShown->show();
}

void CShortcutKeyConfig::LoadConfig(bool bDefault)
{
    if (!m_pSection)
    {
        return;
    }
    const bool bPcKeyboard = GetRecord(bDefault).pcKeyboard;
    m_pUi->nkbRadioBtn->setChecked(!bPcKeyboard);
    m_pUi->pcRadioBtn->setChecked(bPcKeyboard);
    ShowTable(bPcKeyboard);
}

int CShortcutKeyConfig::SaveConfig()
{
    if (!m_pSection)
    {
        return -1;
    }
    ShortcutKeyConfigInfo record = GetRecord();
    record.pcKeyboard = m_pUi->pcRadioBtn->isChecked();
    return m_pSection->SetConfig(record);
}

void CShortcutKeyConfig::SetControlsEnabled(bool bEnable)
{
    m_pUi->pcRadioBtn->setEnabled(bEnable);
    m_pUi->nkbRadioBtn->setEnabled(bEnable);
}

void CShortcutKeyConfig::SwitchTabelView()
{
    if (sender() == m_pUi->pcRadioBtn)
    {
        ShowTable(true);
    }
    else if (sender() == m_pUi->nkbRadioBtn)
    {
        ShowTable(false);
    }
}

// --- The reference tables: function and key by turns

// clang-format off
QStringList CShortcutKeyConfig::GetPcKeys()
{
    return {
        tr("Move Up"), QStringLiteral("Up"),
        tr("Lock Client"), QStringLiteral("Ctrl+L"),
        tr("Move Down"), QStringLiteral("Down"),
        tr("Snap Single Window"), QStringLiteral("P"),
        tr("Move Left"), QStringLiteral("Left"),
        tr("One-click Snapshot"), QStringLiteral("Ctrl+P"),
        tr("Move Right"), QStringLiteral("Right"),
        tr("Local Record"), QStringLiteral("Ctrl+R"),
        tr("Aperture-"), QStringLiteral("Insert"),
        tr("Preset 1"), QStringLiteral("1"),
        tr("Aperture+"), QStringLiteral("Delete"),
        tr("Preset 2"), QStringLiteral("2"),
        tr("Focus-"), QStringLiteral("Home"),
        tr("Preset 3"), QStringLiteral("3"),
        tr("Focus+"), QStringLiteral("End"),
        tr("Preset 4"), QStringLiteral("4"),
        tr("Zoom-"), QStringLiteral("PgUp"),
        tr("Preset 5"), QStringLiteral("5"),
        tr("Zoom+"), QStringLiteral("PgDn"),
        tr("Preset 6"), QStringLiteral("6"),
        tr("Open Single Window"), QStringLiteral("Enter"),
        tr("Preset 7"), QStringLiteral("7"),
        tr("Close Single Window"), QStringLiteral("Enter"),
        tr("Preset 8"), QStringLiteral("8"),
        tr("Open Full Screen"), QStringLiteral("Ctrl+F"),
        tr("Preset 9"), QStringLiteral("9"),
        tr("Exit Full Screen"), QStringLiteral("Esc"),
        tr("Preset 10"), QStringLiteral("0"),
        tr("Tours Pause/Continue"), QStringLiteral("Ctrl+T"),
    };
}

QStringList CShortcutKeyConfig::GetNkbKeys()
{
    return {
        tr("Move Up"), tr("IRIS- (Oper Mode)"),
        tr("Move Down"), tr("IRIS+ (Oper Mode)"),
        tr("Move Left"), tr("Focus- (Oper Mode)"),
        tr("Move Right"), tr("Focus+ (Oper Mode)"),
        tr("Zoom-"), tr("Zoom- (Oper Mode)"),
        tr("Zoom+"), tr("Zoom+ (Oper Mode)"),
        tr("Aperture-"), tr("IRIS- (Edit Mode)"),
        tr("Aperture+"), tr("IRIS+ (Edit Mode)"),
        tr("Focus-"), tr("Focus- (Edit Mode)"),
        tr("Focus+"), tr("Focus+ (Edit Mode)"),
        tr("Choose Output Screen"), tr("NUM+PLAY"),
        tr("Screen Maximization"), tr("NUM+FN"),
        tr("Choose Number of Windows"), tr("NUM+MULT"),
        tr("Restore Screen"), QStringLiteral("0+FN"),
        tr("Choose Window"), tr("NUM+ID"),
        tr("Call Preset"), tr("NUM+PRESET"),
        tr("Select input source"), tr("NUM+CAM"),
        tr("Hori Pan"), tr("PAN"),
        tr("Previous Video Source"), tr("SHIFT"),
        tr("Scan"), tr("SCAN"),
        tr("Next Video Source"), tr("ENTER"),
        tr("Cruise"), tr("NUM+TOUR"),
        tr("Erase One Bit"), tr("ESC"),
        tr("Pattern"), tr("NUM+PATTERN"),
        tr("Switch Mode"), tr("SETUP"),
        tr("PTZ"), tr("Rocker Control"),
        tr("Main/Sub Stream Setup"), tr("1+SETUP"),
        tr("Save Task"), QStringLiteral("3+AUX"),
        tr("Execute Tour in All Screens"), QStringLiteral("1+AUX"),
        tr("Stop Tour in All Screens"), QStringLiteral("2+AUX"),
        tr("PTZ Menu"), tr("Menu"),
    };
}
// clang-format on

} // namespace LocalConfig
