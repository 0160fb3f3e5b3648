#include "support/ChangedSettings.h"
#include "support/StoreFixture.h"

using namespace LocalConfigClient;
using namespace LocalConfigLogical;

namespace
{

void SetAll(ConfigService& service, const Settings& settings)
{
    Set<IBasicSection>(service, SectionBasic, settings.basic);
    Set<IVideoSection>(service, SectionVideo, settings.video);
    Set<IPlaybackSection>(service, SectionPlayback, settings.playback);
    Set<ISnapshotSection>(service, SectionSnapshot, settings.snapshot);
    Set<IRecordSection>(service, SectionRecord, settings.record);
    static_cast<IAlarmSection*>(service.GetSection(SectionAlarm))->SetConfig(settings.alarm, true);
    Set<IShortcutKeySection>(service, SectionShortcutKey, settings.shortcutKey);
    Set<ITvWallSection>(service, SectionTvWall, settings.tvWall);
    Set<ISecuritySection>(service, SectionSecurity, settings.security);
}

} // namespace

class tst_ConfigService : public CStoreTest
{
    Q_OBJECT

private slots:
    void init() { Reset(); }

    void StartsWithDefaults();
    void EverySectionIsThere();
    void ASaveOutlivesTheService();
    void SetConfigAloneIsNotPersisted();
    void ASaveWritesOneDocument();
    void TheLastGenerationIsKept();
    void ASaveWithoutAChangeWritesNothing();
    void UnknownKeysSurvive();
    void KeysOfOthersThatComeMeanwhileSurvive();

    void RevertDropsWhatNobodySaved();
};

void tst_ConfigService::StartsWithDefaults()
{
    ConfigService service(m_pFolder->path(), SettingsFile::ReadWrite);
    QVERIFY(service.GetStored() == Settings());
    QCOMPARE(service.GetFile().GetProblems(), QStringList());
    QVERIFY2(!QFile::exists(Path("settings.json")), "looking writes nothing");
}

void tst_ConfigService::EverySectionIsThere()
{
    ConfigService service(m_pFolder->path(), SettingsFile::ReadOnly);
    QSet<IConfigSection*> setSections;
    for (int nType = SectionBasic; nType <= SectionSecurity; ++nType)
    {
        QVERIFY(service.GetSection(nType));
        setSections.insert(service.GetSection(nType));
    }
    QCOMPARE(setSections.size(), 9);
    for (int nType : {0, 10, -1, 1000})
    {
        QVERIFY(!service.GetSection(nType));
    }
}

void tst_ConfigService::ASaveOutlivesTheService()
{
    {
        ConfigService service(m_pFolder->path(), SettingsFile::ReadWrite);
        SetAll(service, ChangedSettings());
        QCOMPARE(service.SaveAll(), 1);
        QVERIFY(service.GetStored() == ChangedSettings());
    }
    ConfigService service(m_pFolder->path(), SettingsFile::ReadWrite);
    QVERIFY(service.GetStored() == ChangedSettings());
    QCOMPARE(GetBasic(service).clientSize, ChangedSettings().basic.clientSize);
    QCOMPARE((Get<IRecordSection, RecordConfigInfo>(service, SectionRecord).recordPath),
             ChangedSettings().record.recordPath);
}

void tst_ConfigService::SetConfigAloneIsNotPersisted()
{
    ConfigService service(m_pFolder->path(), SettingsFile::ReadWrite);
    SetClientSize(service, 0);
    QCOMPARE(GetBasic(service).clientSize, 0);
    QCOMPARE(SavedClientSize(), 2);
    QCOMPARE(service.GetStored().basic.clientSize, 2);
}

void tst_ConfigService::ASaveWritesOneDocument()
{
    {
        ConfigService service(m_pFolder->path(), SettingsFile::ReadWrite);
        SetClientSize(service, 0);
        QCOMPARE(service.SaveAll(), 1);
    }
    QCOMPARE(Names(), (QStringList{"settings.json", "settings.lock"}));
}

void tst_ConfigService::TheLastGenerationIsKept()
{
    ConfigService service(m_pFolder->path(), SettingsFile::ReadWrite);
    SetClientSize(service, 0);
    service.SaveAll();
    const QByteArray first = GetFile();
    SetClientSize(service, 1);
    service.SaveAll();
    QCOMPARE(GetFile("settings.json.bak"), first);
    QVERIFY(GetFile() != first);
}

void tst_ConfigService::ASaveWithoutAChangeWritesNothing()
{
    ConfigService service(m_pFolder->path(), SettingsFile::ReadWrite);
    SetClientSize(service, 0);
    service.SaveAll();
    SetClientSize(service, 1);
    service.SaveAll();
    const QByteArray lastGood = GetFile("settings.json.bak");
    QCOMPARE(service.SaveAll(), 1);
    QCOMPARE(GetFile("settings.json.bak"), lastGood);
}

void tst_ConfigService::UnknownKeysSurvive()
{
    Put(R"({"version": 1, "mine": 42, "sections": {"basic": {"clientSize": 1, "later": true}}})");
    ConfigService service(m_pFolder->path(), SettingsFile::ReadWrite);
    SetClientSize(service, 3);
    QCOMPARE(service.SaveAll(), 1);
    QVERIFY(GetFile().contains("\"mine\": 42"));
    QVERIFY(GetFile().contains("\"later\": true"));
    QCOMPARE(SavedClientSize(), 3);
}

void tst_ConfigService::KeysOfOthersThatComeMeanwhileSurvive()
{
    ConfigService service(m_pFolder->path(), SettingsFile::ReadWrite);
    Put(R"({"version": 1, "theirs": 7, "sections": {}})");
    SetClientSize(service, 3);
    QCOMPARE(service.SaveAll(), 1);
    QVERIFY(GetFile().contains("\"theirs\": 7"));
    QCOMPARE(SavedClientSize(), 3);
}

void tst_ConfigService::RevertDropsWhatNobodySaved()
{
    ConfigService service(m_pFolder->path(), SettingsFile::ReadWrite);
    auto* pAlarm = static_cast<IAlarmSection*>(service.GetSection(SectionAlarm));
    AlarmConfigInfo record;
    record.loopSound = true;
    pAlarm->PrepareSave();
    pAlarm->SetConfig(record, true);
    SetClientSize(service, 0);
    QVERIFY2(!service.GetStored().alarm.loopSound, "nothing is stored before a save");
    service.Revert();
    QCOMPARE(GetBasic(service).clientSize, 2);
    pAlarm->ResetConfig(false);
    pAlarm->GetConfig(record);
    QVERIFY(!record.loopSound);
}

QTEST_GUILESS_MAIN(tst_ConfigService)

#include "tst_ConfigService.moc"
