#include "CLocalConfig.h"
#include "ui_CLocalConfig.h"

#include "CKeyboardTravel.h"
#include "CScopedDisconnect.h"
#include "CSkinIconEngine.h"
#include "Direction.h"
#include "SectionIndex.h"
#include "SkinStyle.h"
#include "pages/ConfigPages.h"
#include "pages/IConfigPage.h"

#include <KvGui/KvHorScrollBar.h>
#include <KvGui/KvMessageNotify.h>
#include <KvGui/KvVerScrollBar.h>
#include <LocalConfig/interfaces/ILocalConfig.h>
#include <UICommonModule/CErrorCode.h>
#include <UICommonModule/Pxa.h>

#include <QApplication>
#include <QDesktopWidget>
#include <QScrollBar>
#include <QStyle>
#include <QTimer>

#include <algorithm>
#include <array>
#include <functional>

namespace LocalConfig
{

using namespace LocalConfigLogical;

namespace
{

constexpr int g_nLowDesktopHeight = 769; // pixels; below it the natural dialog would not fit
constexpr int g_nLowDialogHeight = 680;
constexpr int g_nScrollBand = 40;   // pixels either side of a box's top in which scrolling selects the box
constexpr int g_nScrollMargin = 20; // pixels above a box that the navigation list has scrolled to
constexpr int g_nAdjustDelay = 50;  // milliseconds
constexpr int g_nRightTvWall = 26;
constexpr int g_nRightAlarm = 45;
constexpr int g_nSaved = 1;
constexpr int g_nKeepInput = -2;

struct SSection
{
    CGroupBox* Ui::CLocalConfig::*pBox;
    QHBoxLayout* Ui::CLocalConfig::*pLayout;
    const char* pszText;
    const char* pszIcon;
    const char* pszNormalFolder;
    const char* pszHoverFolder;
    const char* pszPressedFolder;
    const char* pszPage;
    SectionType eType;
};

using Form = Ui::CLocalConfig;

// By navigation index.
constexpr SSection g_arrSections[] = {
#define SECTION(name, pageClass, page, create, box, layout, text, icon, normalFolder, hoverFolder, pressedFolder)      \
    {&Form::box, &Form::layout, text, icon, normalFolder, hoverFolder, pressedFolder, page, Section##name},
#include "SectionList.h"
};

/// Navigation indices by section code: the order in which pages are saved, defaulted, reloaded on closing, locked and
/// released.
constexpr std::array<int, SectionCount> PageOrder()
{
    std::array<int, SectionCount> arrOrder{};
    for (int nIndex = 0; nIndex < SectionCount; ++nIndex)
    {
        int nRank = 0;
        for (const SSection& other : g_arrSections)
        {
            nRank += other.eType < g_arrSections[nIndex].eType ? 1 : 0;
        }
        arrOrder[nRank] = nIndex;
    }
    return arrOrder;
}

constexpr std::array<int, SectionCount> g_arrPageOrder = PageOrder();

/// The form's context, which has no namespace; the dialog's own texts stand in it too.
class CFormText
{
    Q_DECLARE_TR_FUNCTIONS(CLocalConfig)
};

QIcon SectionIcon(const SSection& section)
{
    const auto path = [&section](const char* pszFolder, const char* pszSuffix) {
        return Pxa::GetSkinPath(QString::fromLatin1(pszFolder), QString()) + QString::fromLatin1(section.pszIcon) +
               QString::fromLatin1(pszSuffix);
    };
    auto* pEngine = new CSkinIconEngine;
    pEngine->AddFile(QIcon::Normal, path(section.pszNormalFolder, "-n.svg"));
    pEngine->AddFile(QIcon::Active, path(section.pszHoverFolder, "-h.svg"));
    pEngine->AddFile(QIcon::Selected, path(section.pszPressedFolder, "-p.svg"));
    return QIcon(pEngine);
}

/// A card is as high as its form says, unless the letters of a language or of the operator's choice need more.
void GrowToPage(CGroupBox* pBox)
{
    const int nNeeded = pBox->minimumSizeHint().height();
    if (nNeeded > pBox->minimumHeight())
    {
        pBox->setMinimumHeight(nNeeded);
    }
}

void Notify(const QString& strText)
{
    KVGUI::KvSingleton<KVGUI::KvMessageNotify>::Instance()->AddTextNotification(strText);
}

} // namespace

CLocalConfig::CLocalConfig(QWidget* pParent)
    : KvCustomDialog(Ok | Other | Cancel, pParent, 1)
    , m_pUi(std::make_unique<Ui::CLocalConfig>())
    , m_vecPages(SectionCount)
{
    setObjectName(QStringLiteral("CLocalConfig"));
    ApplySkinStyle(this); // before there are children that would be styled anew
    m_pUi->setupUi(GetCentralWidget());
    MirrorForm(GetCentralWidget());
    // The content's height counts the hidden box, too; what the shown ones leave of it stays empty below them. Qt keeps
    // to this only because no box stretches.
    m_pUi->verticalLayout->setAlignment(Qt::AlignTop);
    m_pTravel = new CKeyboardTravel(this, m_pUi->m_pToolListView, m_pUi->scrollArea);
    InitDialogSize();
    SetTitle(CFormText::tr("Local Config"));
    ConnectSlots();
}

CLocalConfig::~CLocalConfig()
{
    delete m_pTravel; // the focus moves once more while the controls go
}

int CLocalConfig::Init(ILocalConfig* pLocalConfig, UserLogical::IUserManager* pUserManager)
{
    if (!pLocalConfig || !pUserManager)
    {
        return -1;
    }
    m_pLocalConfig = pLocalConfig;
    m_pUserManager = pUserManager;

    // This rights object is not handed back, unlike the one that CreateAlarmConfig asks for: hosts rely on it.
    UserLogical::IUserRight* pUserRight = m_pUserManager->GetUserRight();
    m_bTvWallRight = pUserRight && pUserRight->HasRight(g_nRightTvWall);

    m_pLoginManager = m_pUserManager->GetLoginManager();
    if (m_pLoginManager)
    {
        m_pLoginManager->AddObserver(this);
    }
    InitUI();
    return 0;
}

void CLocalConfig::InitDialogSize()
{
    if (QApplication::desktop()->geometry().height() < g_nLowDesktopHeight)
    {
        setFixedHeight(g_nLowDialogHeight);
    }
}

void CLocalConfig::UnInitUI()
{
    if (m_pUserManager)
    {
        if (m_pLoginManager)
        {
            m_pLoginManager->RemoveObserver(this);
        }
        m_pLoginManager = nullptr;
        m_pUserManager = nullptr;
    }
    ForEachPage([](IConfigPage& page) { page.UnInit(); });
    m_pLocalConfig = nullptr;
}

void CLocalConfig::NotifyLoginState(const UserLogical::ILoginManagerObserver::Param& param)
{
    constexpr int nConnected = 2;
    constexpr int nLost = 3;
    if (param.nState == nLost)
    {
        emit SignalDisconnect();
    }
    else if (param.nState == nConnected && param.nSubState == 0)
    {
        emit SignalReconnect();
    }
}

// --- Construction

void CLocalConfig::ConnectSlots()
{
    for (const SSection& section : g_arrSections)
    {
        connect((*m_pUi).*section.pBox, &CGroupBox::SignalGroupBoxClicked, this, &CLocalConfig::OnGroupBoxClicked);
    }
    connect(m_pUi->m_pToolListView, &KVGUI::KvToolListView::SignalCurrentIndexChanged, this,
            &CLocalConfig::OnToolListCurrentIndexChanged);
    connect(m_pTravel, &CKeyboardTravel::SignalSectionEntered, this, &CLocalConfig::OnGroupBoxClicked);
    connect(this, &CLocalConfig::SignalOtherButtonClicked, this, &CLocalConfig::OnResumeClicked);
    connect(this, &CLocalConfig::SignalOkButtonClicked, this, &CLocalConfig::OnSaveBtnClicked);
    connect(this, &CLocalConfig::SignalCancelButtonClicked, this, &CLocalConfig::OnBtnCancelClicked);
    connect(this, &CLocalConfig::SignalDisconnect, this, &CLocalConfig::OnDisconnect);
    connect(this, &CLocalConfig::SignalReconnect, this, &CLocalConfig::OnReconnect);
}

void CLocalConfig::InitUI()
{
    for (int nIndex = 0; nIndex < SectionCount; ++nIndex)
    {
        AddSection(nIndex);
    }

    SetButtonText(Other, CFormText::tr("Default"));
    SetButtonText(Ok, CFormText::tr("Save"));
    SetButtonText(Cancel, CFormText::tr("Cancel"));

    m_pUi->scrollArea->setHorizontalScrollBar(new KVGUI::KvHorScrollBar(m_pUi->scrollArea));
    m_pUi->scrollArea->setVerticalScrollBar(new KVGUI::KvVerScrollBar(m_pUi->scrollArea));
    for (QScrollBar* pScrollBar : {m_pUi->scrollArea->horizontalScrollBar(), m_pUi->scrollArea->verticalScrollBar()})
    {
        pScrollBar->setContextMenuPolicy(Qt::NoContextMenu);
        pScrollBar->style()->polish(pScrollBar);
    }
    OnAdjustVerticalScrollBar();

    QScrollBar* pScrollBar = m_pUi->scrollArea->verticalScrollBar();
    disconnect(pScrollBar, &QScrollBar::valueChanged, this, &CLocalConfig::OnVerticalScrollBarChanged);
    connect(pScrollBar, &QScrollBar::valueChanged, this, &CLocalConfig::OnVerticalScrollBarChanged);
}

void CLocalConfig::AddSection(int nIndex)
{
    const SSection& section = g_arrSections[nIndex];
    CGroupBox* pBox = (*m_pUi).*section.pBox;

    m_pUi->m_pToolListView->AddItem(SectionIcon(section), CFormText::tr(section.pszText));
    if (nIndex == IndexBasic)
    {
        m_pUi->m_pToolListView->SetCurrentIndex(nIndex);
        pBox->SetSelect(true);
    }
    pBox->SetIndex(nIndex);
    if (!HasRightTo(nIndex))
    {
        // Added and taken out again, so that the entries after it keep their indices.
        pBox->hide();
        pBox->move(pBox->x(), -2 * g_nScrollBand); // where no scrolling gets to
        m_mapGroupBox.insert(nIndex, pBox);
        m_pUi->m_pToolListView->RemoveItem(nIndex);
        return;
    }
    pBox->setTitle(CFormText::tr(section.pszText));
    m_mapGroupBox.insert(nIndex, pBox);
}

bool CLocalConfig::HasRightTo(int nIndex) const
{
    return nIndex != IndexTvWall || m_bTvWallRight;
}

// --- Pages

void CLocalConfig::showEvent(QShowEvent* pEvent)
{
    KvCustomDialog::showEvent(pEvent);
    if (!m_bFirstShow)
    {
        return;
    }
    m_bFirstShow = false;
    QTimer::singleShot(g_nAdjustDelay, this, &CLocalConfig::OnAdjustVerticalScrollBar);
#define SECTION(name, pageClass, page, create, ...)                                                                    \
    if (HasRightTo(Index##name))                                                                                       \
    {                                                                                                                  \
        create;                                                                                                        \
    }
#include "SectionList.h"
    m_pUi->m_pToolListView->setFocus(); // which a page may have taken while it was filled
}

void CLocalConfig::CreateBasicConfig()
{
    CreatePage(IndexBasic);
}

void CLocalConfig::CreateVideoConfig()
{
    if (IConfigPage* pPage = NewPage(IndexVideo))
    {
        HandSectionTo(IndexVideo);
        connect(pPage->GetWidget(), SIGNAL(SignalChangeSize()), this, SLOT(OnVideoConfigChangeSize()));
    }
}

void CLocalConfig::CreatePlaybackConfig()
{
    CreatePage(IndexPlayback);
}

void CLocalConfig::CreateCaptureConfig()
{
    CreatePage(IndexSnapshot);
}

void CLocalConfig::CreateRecordConfig()
{
    CreatePage(IndexRecord);
}

void CLocalConfig::CreateAlarmConfig()
{
    IConfigPage* pPage = NewPage(IndexAlarm);
    if (!pPage)
    {
        return;
    }
    UserLogical::IUserRight* pUserRight = m_pUserManager ? m_pUserManager->GetUserRight() : nullptr;
    if (!pUserRight || !pUserRight->HasRight(g_nRightAlarm))
    {
        pPage->MarkNoRight45();
    }
    if (pUserRight)
    {
        m_pUserManager->ReleaseUserRight(pUserRight);
    }
    HandSectionTo(IndexAlarm);
    pPage->ApplyConfigXml();
}

void CLocalConfig::CreateTVWallConfig()
{
    CreatePage(IndexTvWall);
}

void CLocalConfig::CreateSrcurityConfig()
{
    CreatePage(IndexSecurity);
}

void CLocalConfig::CreateShortcurKeyConfig()
{
    CreatePage(IndexShortcutKey);
}

void CLocalConfig::CreatePage(int nIndex)
{
    if (NewPage(nIndex))
    {
        HandSectionTo(nIndex);
    }
}

/// The page in its group box, still without its section; null when there is nothing to create.
IConfigPage* CLocalConfig::NewPage(int nIndex)
{
    if (m_vecPages[nIndex] || !m_pLocalConfig)
    {
        return nullptr;
    }
    const SSection& section = g_arrSections[nIndex];
    IConfigPage* pPage = CreateConfigPage(nIndex, (*m_pUi).*section.pBox);
    if (!pPage)
    {
        return nullptr;
    }
    m_vecPages[nIndex] = pPage;

    QWidget* pWidget = pPage->GetWidget();
    MirrorForm(pWidget);
    pWidget->setObjectName(QString::fromLatin1(section.pszPage));
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    policy.setHeightForWidth(pWidget->sizePolicy().hasHeightForWidth());
    pWidget->setSizePolicy(policy);
    pWidget->setMinimumSize(0, 0);
    ((*m_pUi).*section.pLayout)->addWidget(pWidget);
    pWidget->show(); // the layout would show it only after the dialog's first picture
    return pPage;
}

void CLocalConfig::HandSectionTo(int nIndex)
{
    const SSection& section = g_arrSections[nIndex];
    m_vecPages[nIndex]->SetSection(m_pLocalConfig->GetSection(section.eType));
    GrowToPage((*m_pUi).*section.pBox);
}

template <class Action>
void CLocalConfig::ForEachPage(Action action)
{
    for (int nIndex : g_arrPageOrder)
    {
        if (m_vecPages[nIndex])
        {
            action(*m_vecPages[nIndex]);
        }
    }
}

// --- Size

void CLocalConfig::resizeEvent(QResizeEvent* pEvent)
{
    KvCustomDialog::resizeEvent(pEvent);
    OnAdjustVerticalScrollBar();
}

void CLocalConfig::OnAdjustVerticalScrollBar()
{
    int nHeight = 0;
    if (const QLayout* pLayout = m_pUi->scrollAreaWidgetContents->layout())
    {
        const QMargins margins = pLayout->contentsMargins();
        nHeight = pLayout->spacing() * (m_mapGroupBox.size() - 1) + margins.top() + margins.bottom();
    }
    for (const CGroupBox* pBox : qAsConst(m_mapGroupBox))
    {
        nHeight += pBox->height();
    }
    m_pUi->scrollAreaWidgetContents->setFixedHeight(nHeight);
}

void CLocalConfig::OnVideoConfigChangeSize()
{
    m_pUi->m_gBVideo->adjustSize();
    if (IConfigPage* pPage = m_vecPages[IndexVideo])
    {
        pPage->GetWidget()->adjustSize();
    }
    OnAdjustVerticalScrollBar();
}

// --- Navigation

void CLocalConfig::OnToolListCurrentIndexChanged(int iIndex)
{
    m_pLockedHolder = nullptr;
    {
        QScrollBar* pScrollBar = m_pUi->scrollArea->verticalScrollBar();
        const CScopedDisconnect quiet(pScrollBar, &QScrollBar::valueChanged, this,
                                      &CLocalConfig::OnVerticalScrollBarChanged);
        if (const CGroupBox* pBox = GetGroupBoxByIndex(iIndex))
        {
            pScrollBar->setValue(pBox->y() - g_nScrollMargin);
        }
    }
    ChangeSelectGroupBox(iIndex);
}

void CLocalConfig::OnVerticalScrollBarChanged(int iValue)
{
    const CScopedDisconnect quiet(m_pUi->m_pToolListView, &KVGUI::KvToolListView::SignalCurrentIndexChanged, this,
                                  &CLocalConfig::OnToolListCurrentIndexChanged);
    if (const CGroupBox* pBox = GetGroupBoxByVerticalScrollBarValue(iValue))
    {
        m_pUi->m_pToolListView->SetCurrentIndex(pBox->GetIndex());
        ChangeSelectGroupBox(pBox->GetIndex());
    }
}

void CLocalConfig::OnGroupBoxClicked(int iIndex)
{
    {
        const CScopedDisconnect quiet(m_pUi->m_pToolListView, &KVGUI::KvToolListView::SignalCurrentIndexChanged, this,
                                      &CLocalConfig::OnToolListCurrentIndexChanged);
        m_pUi->m_pToolListView->SetCurrentIndex(iIndex);
    }
    ChangeSelectGroupBox(iIndex);
}

bool CLocalConfig::focusNextPrevChild(bool bNext)
{
    return m_pTravel->MoveFocus(bNext) || KvCustomDialog::focusNextPrevChild(bNext);
}

CGroupBox* CLocalConfig::GetGroupBoxByIndex(int iIndex) const
{
    return m_mapGroupBox.value(iIndex);
}

CGroupBox* CLocalConfig::GetGroupBoxByVerticalScrollBarValue(int iValue) const
{
    const auto it = std::find_if(m_mapGroupBox.begin(), m_mapGroupBox.end(), [iValue](const CGroupBox* pBox) {
        return pBox && qAbs(iValue - pBox->geometry().top()) <= g_nScrollBand;
    });
    return it == m_mapGroupBox.end() ? nullptr : *it;
}

CGroupBox* CLocalConfig::GetSelectGroupBox() const
{
    const auto it = std::find_if(m_mapGroupBox.begin(), m_mapGroupBox.end(),
                                 [](const CGroupBox* pBox) { return pBox && pBox->IsSelect(); });
    return it == m_mapGroupBox.end() ? nullptr : *it;
}

void CLocalConfig::ChangeSelectGroupBox(int iIndex)
{
    CGroupBox* pSelected = GetSelectGroupBox();
    if (pSelected && pSelected->GetIndex() == iIndex)
    {
        return;
    }
    if (pSelected)
    {
        pSelected->SetSelect(false);
    }
    if (CGroupBox* pBox = GetGroupBoxByIndex(iIndex))
    {
        pBox->SetSelect(true);
    }
}

bool CLocalConfig::IsContains(int iValue, const QWidget* pWidget)
{
    return pWidget && pWidget->geometry().top() <= iValue && iValue <= pWidget->geometry().bottom();
}

// --- Save, defaults, cancel

void CLocalConfig::OnSaveBtnClicked()
{
    if (!m_pLocalConfig)
    {
        return;
    }
    QWidget* pHolder = focusWidget(); // a page takes the focus to what it refuses
    QMap<const IConfigPage*, int> mapResults;
    bool bAllSaved = true;
    ForEachPage([&](IConfigPage& page) {
        const int nResult = page.SaveConfig();
        mapResults.insert(&page, nResult);
        bAllSaved = bAllSaved && nResult == 0;
    });
    MarkSections(mapResults);

    if (bAllSaved)
    {
        const int nResult = m_pLocalConfig->SaveAll();
        if (nResult != g_nSaved)
        {
            Notify(
                UICommonMdl::CErrorCode::GetErroCodeInfor(CFormText::tr("Failed to save config"), nResult, true, true));
        }
        // The base closes without the reload that this dialog's own closing does.
        KvDialog::OnCloseBtmClicked();
        return;
    }

    KeepFocusOn(pHolder, [&] { ReloadRefused(mapResults); });
    ShowFirstRefused(mapResults);
    Notify(CFormText::tr("Failed to save configuration, some values are illegal."));
}

void CLocalConfig::ReloadRefused(const QMap<const IConfigPage*, int>& mapResults)
{
    for (int nIndex = 0; nIndex < SectionCount; ++nIndex) // in navigation order, unlike the save
    {
        IConfigPage* pPage = m_vecPages[nIndex];
        const bool bMayKeep = nIndex == IndexSnapshot || nIndex == IndexRecord;
        if (pPage && !(bMayKeep && mapResults.value(pPage) == g_nKeepInput))
        {
            pPage->ReloadConfig(false);
        }
    }
}

/// In the navigation list, those whose page has refused.
void CLocalConfig::MarkSections(const QMap<const IConfigPage*, int>& mapResults)
{
    for (int nIndex = 0; nIndex < SectionCount; ++nIndex)
    {
        const bool bRefused = mapResults.value(m_vecPages[nIndex]) != 0;
        m_pUi->m_pToolListView->SetItemError(nIndex, bRefused ? CFormText::tr("Not saved, some values are illegal.")
                                                              : QString());
    }
}

/// The field, or the section where no field is to blame.
void CLocalConfig::ShowFirstRefused(const QMap<const IConfigPage*, int>& mapResults)
{
    std::function<void()> show;
    for (int nIndex = 0; nIndex < SectionCount; ++nIndex)
    {
        IConfigPage* pPage = m_vecPages[nIndex];
        if (mapResults.value(pPage) == 0)
        {
            continue;
        }
        const std::function<void()> leadToField = pPage->TakeRefusal(); // each gives its own up
        const auto showSection = [this, nIndex] {
            OnGroupBoxClicked(nIndex);
            OnToolListCurrentIndexChanged(nIndex);
        };
        if (!show)
        {
            show = leadToField ? leadToField : showSection;
        }
    }
    show();
}

void CLocalConfig::OnResumeClicked()
{
    ReloadPages(true);
}

void CLocalConfig::OnBtnCancelClicked()
{
    OnCloseBtmClicked();
}

void CLocalConfig::OnCloseBtmClicked()
{
    if (!m_pLocalConfig)
    {
        return;
    }
    ReloadPages(false);
    MarkSections({});
    KvDialog::OnCloseBtmClicked();
}

void CLocalConfig::ReloadPages(bool bDefault)
{
    KeepFocusOn(focusWidget(), [&] { ForEachPage([bDefault](IConfigPage& page) { page.ReloadConfig(bDefault); }); });
}

/// Does what takes the focus, and gives it to its holder again; to the navigation list when that is locked or hidden.
template <class Action>
void CLocalConfig::KeepFocusOn(QWidget* pHolder, Action action)
{
    m_pTravel->SetPaused(true);
    action();
    m_pTravel->SetPaused(false);
    if (focusWidget() != pHolder)
    {
        const bool bCanTakeIt = pHolder && pHolder->isEnabled() && pHolder->isVisibleTo(this);
        (bCanTakeIt ? pHolder : m_pUi->m_pToolListView)->setFocus();
    }
}

// --- Connection state

void CLocalConfig::OnDisconnect()
{
    SetConnected(false);
}

void CLocalConfig::OnReconnect()
{
    SetConnected(true);
}

void CLocalConfig::SetConnected(bool bConnected)
{
    // Whom the lock has taken the focus from gets it back, unless the user has gone elsewhere meanwhile.
    const bool bGiveBack = bConnected && m_pLockedHolder && focusWidget() == m_pUi->m_pToolListView;
    QWidget* pHolder = bGiveBack ? m_pLockedHolder.data() : focusWidget();
    KeepFocusOn(pHolder, [&] {
        SetButtonEnable(Other, bConnected);
        SetButtonEnable(Ok, bConnected);
        SetButtonEnable(Cancel, bConnected);
        ForEachPage([bConnected](IConfigPage& page) { page.SetControlsEnabled(bConnected); });
    });
    if (bConnected)
    {
        m_pLockedHolder.clear();
    }
    else if (focusWidget() != pHolder)
    {
        m_pLockedHolder = pHolder;
    }
}

} // namespace LocalConfig
