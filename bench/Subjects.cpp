#include "Subjects.h"

#include "plain_CAlarmConfig.h"
#include "plain_CBasicConfig.h"
#include "plain_CCaptureConfig.h"
#include "plain_CLocalConfig.h"
#include "plain_CPlaybackConfig.h"
#include "plain_CRecordConfig.h"
#include "plain_CSecurityConfig.h"
#include "plain_CShortcutKeyConfig.h"
#include "plain_CTvWallConfig.h"
#include "plain_CVideoConfig.h"
#include "ui_CAlarmConfig.h"
#include "ui_CBasicConfig.h"
#include "ui_CCaptureConfig.h"
#include "ui_CLocalConfig.h"
#include "ui_CPlaybackConfig.h"
#include "ui_CRecordConfig.h"
#include "ui_CSecurityConfig.h"
#include "ui_CShortcutKeyConfig.h"
#include "ui_CSplitWndNumConfig.h"
#include "ui_CTvWallConfig.h"
#include "ui_CVideoConfig.h"

#include <UICommonModule/Pxa.h>

#include <QDialogButtonBox>
#include <QLibrary>

using LocalConfigClient::ConfigService;
using LocalConfigClient::Settings;
using LocalConfigClient::SettingsDocument;
using LocalConfigClient::SettingsFile;

namespace
{

QString Store(const QString& strFolder, const Settings& settings)
{
    SettingsDocument document;
    document.SetSettings(settings);
    ConfigService service(strFolder, SettingsFile::ReadWrite);
    QString strError;
    if (service.Import(document.Serialize(), &strError) != 1)
    {
        qFatal("the settings cannot be stored: %s", qPrintable(strError));
    }
    return strFolder;
}

QString ReadSheet(const char* pszFile)
{
    QString strSheet;
    Pxa::loadStyleSheet(Pxa::GetSkinPath("LocalConfig", QString::fromLatin1(pszFile)), strSheet);
    return strSheet;
}

QString PeerFile()
{
    return QCoreApplication::applicationDirPath() + "/../lib/libbench-peer.so";
}

template <class Form>
QWidget* BuildForm(QWidget* pBox)
{
    auto* pPage = new QWidget(pBox);
    Form form;
    form.setupUi(pPage);
    pBox->layout()->addWidget(pPage);
    return pPage;
}

/// The module's sheets as one, for Qt's own classes.
QString OneSheet()
{
    QString strSheet = ReadSheet("CLocalConfig.qss") + ReadSheet("CGroupBox.qss") + ReadSheet("CAlarmConfig.qss") +
                       ReadSheet("CShortcutKeyConfig.qss");
    strSheet.replace("LocalConfig--CGroupBox", "QGroupBox");
    return strSheet.replace("LocalConfig--", "QWidget#");
}

/// The picker stays hidden, but Qt polishes it with the page it lies on.
void BuildBarePicker(QWidget* pPage)
{
    auto* pPicker = new QWidget(pPage);
    Ui::CSplitWndNumConfig form;
    form.setupUi(pPicker);
    pPicker->setStyleSheet(ReadSheet("CSplitWndNumConfig.qss"));
    pPicker->hide();
}

/// The dialog is the host's to be told when it goes.
struct SProduct : LocalConfig::CLocalConfig
{
    explicit SProduct(CHost& host)
        : CLocalConfig(nullptr)
    {
        Init(&host, &host.fakes.userManager);
    }
    ~SProduct() override { UnInitUI(); }
};

} // namespace

CHost::CHost(const Settings& settings)
    : m_service(Store(m_folder.path(), settings), SettingsFile::ReadWrite)
{}

const CContents& CHost::GetContents()
{
    if (!m_contents)
    {
        const std::unique_ptr<QDialog> pProduct = MakeProduct(*this);
        pProduct->show();
        m_contents.emplace(*pProduct);
    }
    return *m_contents;
}

std::unique_ptr<QDialog> MakeProduct(CHost& host)
{
    return std::make_unique<SProduct>(host);
}

std::unique_ptr<QDialog> MakeBare(CHost& /*host*/)
{
    using KVGUI::KvCustomDialog;
    auto pDialog = std::make_unique<KvCustomDialog>(KvCustomDialog::Ok | KvCustomDialog::Other | KvCustomDialog::Cancel,
                                                    nullptr, 1);
    pDialog->setObjectName("CLocalConfig");
    pDialog->setStyleSheet(ReadSheet("CLocalConfig.qss"));
    Ui::CLocalConfig shell;
    shell.setupUi(pDialog->GetCentralWidget());
    BuildForm<Ui::CBasicConfig>(shell.m_gBBasic);
    BuildBarePicker(BuildForm<Ui::CVideoConfig>(shell.m_gBVideo));
    BuildForm<Ui::CPlaybackConfig>(shell.m_gBPlayback);
    BuildForm<Ui::CCaptureConfig>(shell.m_gBCapture);
    BuildForm<Ui::CRecordConfig>(shell.m_gBRecord);
    BuildForm<Ui::CAlarmConfig>(shell.m_gBAlarm)->setStyleSheet(ReadSheet("CAlarmConfig.qss"));
    BuildForm<Ui::CTvWallConfig>(shell.m_gBTvwall);
    BuildForm<Ui::CSecurityConfig>(shell.m_gBSecurity);
    BuildForm<Ui::CShortcutKeyConfig>(shell.m_gShortcutKey)->setStyleSheet(ReadSheet("CShortcutKeyConfig.qss"));
    return pDialog;
}

bool SPeer::IsThere()
{
    return QFile::exists(PeerFile());
}

const SPeer& SPeer::Instance()
{
    static QLibrary library(PeerFile());
    static const SPeer peer = {reinterpret_cast<decltype(pMake)>(library.resolve("MakePeer")),
                               reinterpret_cast<decltype(pReload)>(library.resolve("ReloadPeer")),
                               reinterpret_cast<decltype(pSave)>(library.resolve("SavePeer"))};
    return peer;
}

std::unique_ptr<QDialog> MakePeer(CHost& host)
{
    const QString strFile = host.GetPath("peerrc");
    return std::unique_ptr<QDialog>(SPeer::Instance().pMake(&host.GetContents(), &strFile));
}

std::unique_ptr<QDialog> MakePlain(CHost& host)
{
    auto pDialog = std::make_unique<QDialog>();
    pDialog->setStyleSheet(OneSheet());
    auto* pLayout = new QVBoxLayout(pDialog.get());
    auto* pCentre = new QWidget(pDialog.get());
    pLayout->addWidget(pCentre);
    pLayout->addWidget(new QDialogButtonBox(
        QDialogButtonBox::RestoreDefaults | QDialogButtonBox::Save | QDialogButtonBox::Cancel, pDialog.get()));
    Plain::Ui::CLocalConfig shell;
    shell.setupUi(pCentre);
    BuildForm<Plain::Ui::CBasicConfig>(shell.m_gBBasic);
    BuildForm<Plain::Ui::CVideoConfig>(shell.m_gBVideo);
    BuildForm<Plain::Ui::CPlaybackConfig>(shell.m_gBPlayback);
    BuildForm<Plain::Ui::CCaptureConfig>(shell.m_gBCapture);
    BuildForm<Plain::Ui::CRecordConfig>(shell.m_gBRecord);
    BuildForm<Plain::Ui::CAlarmConfig>(shell.m_gBAlarm);
    BuildForm<Plain::Ui::CTvWallConfig>(shell.m_gBTvwall);
    BuildForm<Plain::Ui::CSecurityConfig>(shell.m_gBSecurity);
    BuildForm<Plain::Ui::CShortcutKeyConfig>(shell.m_gShortcutKey);
    shell.m_gBBasic->setProperty("select", true);
    host.GetContents().Fill(*pDialog);
    return pDialog;
}
