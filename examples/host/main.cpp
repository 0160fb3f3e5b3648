// The smallest complete host: it keeps the settings while it runs, and its user may do everything.
// With the name of a picture it draws the dialog into that and ends.

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

#include <UICommonModule/Pxa.h>

#include <QApplication>
#include <QTimer>

using namespace LocalConfigLogical;

template <class Interface, class Record>
struct MySection : Interface
{
    Record record;

    int SetConfig(const Record& newRecord) override
    {
        record = newRecord;
        return 0;
    }
    void GetConfig(Record& current) override { current = record; }
};

struct MyBasicSection : MySection<IBasicSection, BasicConfigInfo>
{
    void SetAutoRunState(bool bAutoRun) override { record.autoRun = bAutoRun; }
};

struct MyAlarmSection : IAlarmSection
{
    AlarmConfigInfo working;
    AlarmConfigInfo stored;

    int SetConfig(const AlarmConfigInfo& record, bool bPersist) override
    {
        working = record;
        stored = bPersist ? record : stored;
        return 0;
    }
    void GetConfig(AlarmConfigInfo& record) override { record = working; }
    void ResetConfig(bool bUseDefaults) override { working = bUseDefaults ? AlarmConfigInfo() : stored; }
    void PrepareSave() override {}
};

struct MyConfigService : ILocalConfig
{
    MyBasicSection basic;
    MySection<IVideoSection, VideoConfigInfo> video;
    MySection<IPlaybackSection, PlaybackConfigInfo> playback;
    MySection<ISnapshotSection, SnapshotConfigInfo> snapshot;
    MySection<IRecordSection, RecordConfigInfo> recording;
    MyAlarmSection alarm;
    MySection<IShortcutKeySection, ShortcutKeyConfigInfo> keys;
    MySection<ITvWallSection, TvWallConfigInfo> wall;
    MySection<ISecuritySection, SecurityConfigInfo> security;

    IConfigSection* GetSection(int nSectionType) override
    {
        IConfigSection* const sections[] = {nullptr,    &basic, &video, &playback, &snapshot,
                                            &recording, &alarm, &keys,  &wall,     &security};
        return nSectionType < 1 || nSectionType > 9 ? nullptr : sections[nSectionType];
    }
    int SaveAll() override { return 1; } // a real host writes the records to the disk here
};

struct MyUserManager : UserLogical::IUserManager, UserLogical::IUserRight
{
    UserLogical::ILoginManager* GetLoginManager() override { return nullptr; }
    UserLogical::IUserRight* GetUserRight() override { return this; }
    void ReleaseUserRight(UserLogical::IUserRight* /*pUserRight*/) override {}
    bool HasRight(int /*nRight*/) override { return true; }
};

void OpenSettings(QWidget* pMainWindow, MyConfigService& config, MyUserManager& users)
{
    LocalConfig::CLocalConfig dialog(pMainWindow);
    if (dialog.Init(&config, &users) != 0)
        return;
    dialog.exec();
    dialog.UnInitUI();
}

/// The client's skin, which the controls are made for.
void ApplySkin(QApplication& application)
{
    QFont font(QStringLiteral("Inter"));
    font.setPixelSize(13);
    application.setFont(font);
    QString strSheet;
    Pxa::loadStyleSheet(Pxa::GetSkinPath(QStringLiteral("public"), QStringLiteral("KvGui.qss")), strSheet);
    application.setStyleSheet(strSheet);
}

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    ApplySkin(application);
    const QString strPicture = application.arguments().value(1);
    bool bDrawn = false;
    if (!strPicture.isEmpty())
    {
        QTimer::singleShot(500, [&] {
            QWidget* pDialog = QApplication::activeModalWidget();
            bDrawn = pDialog->grab().save(strPicture);
            pDialog->close();
        });
    }
    MyConfigService config;
    MyUserManager users;
    OpenSettings(nullptr, config, users);
    return strPicture.isEmpty() || bDrawn ? 0 : 1;
}
