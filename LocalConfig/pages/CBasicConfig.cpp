#include "CBasicConfig.h"
#include "ui_CBasicConfig.h"

#include "AutoStartEntry.h"
#include "PageHelpers.h"

#include <LocalConfig/Direction.h>
#include <UICommonModule/CLocalIniFile.h>
#include <UICommonModule/Pxa.h>

namespace LocalConfig
{

using LocalConfigLogical::BasicConfigInfo;

namespace
{

constexpr int g_nSkinDark = 1;
constexpr int g_nSkinWhite = 2;

// By index; the record keeps the index.
constexpr const char* g_arrClientSizes[] = {"1280*800", "1280*1024", "1440*900", "1680*1050"};

struct SFlag
{
    KVGUI::KvCheckBox* Ui::CBasicConfig::*pCheckBox;
    bool BasicConfigInfo::*pField;
};

using Form = Ui::CBasicConfig;

constexpr SFlag g_arrFlags[] = {
    {&Form::timeChkBox, &BasicConfigInfo::timeSync},
    {&Form::autologinChkBox, &BasicConfigInfo::autoLogin},
    {&Form::adjustTalkChkBox, &BasicConfigInfo::adaptiveTalk},
    {&Form::autoRunChkBox, &BasicConfigInfo::autoRun},
    {&Form::liveStartAtBeginChkBox, &BasicConfigInfo::restoreLiveView},
    {&Form::previewSnapshotChkBox, &BasicConfigInfo::liveThumbnail},
    {&Form::ShowZoneInfoChkBox, &BasicConfigInfo::showTimeZone},
};

/// The form's context, which has no namespace; the page's own texts stand in it too.
class CFormText
{
    Q_DECLARE_TR_FUNCTIONS(CBasicConfig)
};

void WriteIniValue(const char* pszGroup, const char* pszKey, const QVariant& value)
{
    UICommonMdl::CLocalIniFile::WriteValue(QString::fromLatin1(pszGroup), QString::fromLatin1(pszKey), value,
                                           QStringLiteral("Localcfg.ini"));
}

} // namespace

CBasicConfig::CBasicConfig(QWidget* pParent)
    : QWidget(pParent)
    , m_pUi(std::make_unique<Ui::CBasicConfig>())
{
    PassToolWindow(this);
    m_pUi->setupUi(this);
    InitControls();
}

CBasicConfig::~CBasicConfig() = default;

void CBasicConfig::InitControls()
{
    m_pUi->label->setText(m_pUi->label->text() + CFormText::tr(":"));

    m_pUi->cmbSkinSet->insertItem(0, QIcon(), CFormText::tr("Dark"));
    m_pUi->cmbSkinSet->insertItem(1, QIcon(), CFormText::tr("White"));
    m_pUi->lblSkinSet->hide();
    m_pUi->lblSkinNotify->hide();
    m_pUi->cmbSkinSet->hide();

    for (const char* pszClientSize : g_arrClientSizes)
    {
        m_pUi->screenRatioCmbBox->addItem(KeepOrder(QString::fromLatin1(pszClientSize)));
    }
    m_pUi->AutohidetaskbarChkBox->hide();
    Pxa::QCommon::AddToolTipByControlWidth(m_pUi->timeChkBox);
}

void CBasicConfig::LoadConfig(bool bDefault)
{
    if (!m_pSection)
    {
        return;
    }
    m_pSection->SetAutoRunState(ReadAutoStartCommand(QCoreApplication::applicationName()) ==
                                GetAutoStartCommand(QCoreApplication::applicationFilePath()));
    Show(GetRecord(bDefault));
}

void CBasicConfig::Show(const BasicConfigInfo& record)
{
    m_pUi->cmbSkinSet->setCurrentIndex(record.skin == g_nSkinDark ? 0 : 1);
    for (const SFlag& flag : g_arrFlags)
    {
        ((*m_pUi).*flag.pCheckBox)->setChecked(record.*flag.pField);
    }
    m_pUi->screenRatioCmbBox->setCurrentIndex(record.clientSize);
    m_pUi->ShowDevChkBox->setChecked(record.showDeviceNode == 1);
}

int CBasicConfig::SaveConfig()
{
    if (!m_pSection)
    {
        return -1;
    }
    BasicConfigInfo record = GetRecord();

    record.skin = m_pUi->cmbSkinSet->currentIndex() != 0 ? g_nSkinWhite : g_nSkinDark;
    WriteSkinName(record.skin);
    for (const SFlag& flag : g_arrFlags)
    {
        record.*flag.pField = ((*m_pUi).*flag.pCheckBox)->isChecked();
    }
    record.clientSize = m_pUi->screenRatioCmbBox->currentIndex();
    record.showDeviceNode = m_pUi->ShowDevChkBox->isChecked() ? 1 : 0;
    return m_pSection->SetConfig(record);
}

void CBasicConfig::SetControlsEnabled(bool bEnable)
{
    // screenRatioCmbBox stays usable: the client's size does not depend on the platform.
    const std::initializer_list<QWidget*> listControls = {
        m_pUi->autologinChkBox, m_pUi->adjustTalkChkBox,      m_pUi->timeChkBox,
        m_pUi->cmbSkinSet,      m_pUi->autoRunChkBox,         m_pUi->liveStartAtBeginChkBox,
        m_pUi->ShowDevChkBox,   m_pUi->previewSnapshotChkBox, m_pUi->ShowZoneInfoChkBox};
    for (QWidget* pControl : listControls)
    {
        pControl->setEnabled(bEnable);
    }
}

void CBasicConfig::WriteSkinName(int nSkin)
{
    WriteIniValue("Skin", "version", nSkin == g_nSkinWhite ? QStringLiteral("White") : QStringLiteral("DustyBlue"));
}

void CBasicConfig::WriteLanguageType(int nLanguage)
{
    WriteIniValue("Language", "type", nLanguage);
}

} // namespace LocalConfig
