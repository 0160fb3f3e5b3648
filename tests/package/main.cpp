// The least that a host has to do: show the dialog once with services that know nothing.

#include <KvGui/KvMessageBox.h>
#include <LocalConfig/CLocalConfig.h>
#include <LocalConfig/interfaces/IAlarmSection.h>
#include <LocalConfig/interfaces/IBasicSection.h>
#include <LocalConfig/interfaces/ILocalConfig.h>
#include <LocalConfig/interfaces/IPlaybackSection.h>
#include <LocalConfig/interfaces/IRecordSection.h>
#include <LocalConfig/interfaces/ISecuritySection.h>
#include <LocalConfig/interfaces/IShortcutKeySection.h>
#include <LocalConfig/interfaces/ISnapshotSection.h>
#include <LocalConfig/interfaces/ITvWallSection.h>
#include <LocalConfig/interfaces/IVideoSection.h>
#include <UICommonModule/CErrorCode.h>

#include <QApplication>
#include <QTextStream>

namespace
{

class CConfig : public LocalConfigLogical::ILocalConfig
{
public:
    LocalConfigLogical::IConfigSection* GetSection(int /*nSectionType*/) override { return nullptr; }
    int SaveAll() override { return 1; }
};

class CUsers : public UserLogical::IUserManager
{
public:
    UserLogical::ILoginManager* GetLoginManager() override { return nullptr; }
    UserLogical::IUserRight* GetUserRight() override { return nullptr; }
    void ReleaseUserRight(UserLogical::IUserRight* /*pUserRight*/) override {}
};

} // namespace

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    CConfig config;
    CUsers users;
    LocalConfig::CLocalConfig dialog(nullptr);
    if (dialog.Init(nullptr, &users) != -1 || dialog.Init(&config, &users) != 0)
    {
        return 1;
    }
    dialog.show();
    const bool bPage = dialog.findChild<QWidget*>(QStringLiteral("m_pBasic")) != nullptr;
    dialog.hide();
    dialog.UnInitUI();
    QTextStream(stdout) << dialog.windowTitle() << (bPage ? ": shown\n" : ": no page\n");
    return bPage ? 0 : 1;
}
