// A full or failing disk comes from the preloaded library "FaultFs", see support/FaultFs.cpp.

#include "support/ChangedSettings.h"

#include <UICommonModule/CAlarmType.h>
#include <UICommonModule/CErrorCode.h>
#include <client/store/ConfigService.h>

#include <QDir>
#include <QFile>
#include <QLockFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <csignal>

using namespace LocalConfigClient;
using namespace LocalConfigLogical;
using UICommonMdl::CErrorCode;

namespace
{

template <class Section, class Record>
Record Get(ConfigService& service, int nType)
{
    Record record;
    static_cast<Section*>(service.GetSection(nType))->GetConfig(record);
    return record;
}

template <class Section, class Record>
int Set(ConfigService& service, int nType, const Record& record)
{
    return static_cast<Section*>(service.GetSection(nType))->SetConfig(record);
}

BasicConfigInfo GetBasic(ConfigService& service)
{
    return Get<IBasicSection, BasicConfigInfo>(service, SectionBasic);
}

void SetClientSize(ConfigService& service, int nClientSize)
{
    BasicConfigInfo record = GetBasic(service);
    record.clientSize = nClientSize;
    QCOMPARE((Set<IBasicSection>(service, SectionBasic, record)), 0);
}

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

QByteArray Document(int nClientSize)
{
    Settings settings;
    settings.basic.clientSize = nClientSize;
    SettingsDocument document;
    document.SetSettings(settings);
    return document.Serialize();
}

} // namespace

class tst_ConfigService : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { qunsetenv("KV_FAULT"); }

    void StartsWithDefaults();
    void EverySectionIsThere();
    void ASaveOutlivesTheService();
    void SetConfigAloneIsNotPersisted();
    void ASaveWritesOneDocument();
    void TheLastGenerationIsKept();
    void ASaveWithoutAChangeWritesNothing();
    void UnknownKeysSurvive();
    void KeysOfOthersThatComeMeanwhileSurvive();

    void AMissingDocumentStartsFromDefaults();
    void AMissingDocumentWithALastGenerationUsesThat();
    void ADamagedDocumentIsSetAside_data();
    void ADamagedDocumentIsSetAside();
    void ADamagedDocumentWithoutALastGenerationUsesDefaults();
    void SettingAsideTwiceKeepsBoth();
    void ADamagedDocumentIsNeverTheLastGeneration();
    void DamageWhileRunningIsSetAside();
    void ADamagedLastGenerationIsNotUsed();
    void AnUnreadableDocumentIsNotOverwritten_data();
    void AnUnreadableDocumentIsNotOverwritten();
    void ANewerDocumentIsNotOverwritten();

    void AReadOnlyFolder();
    void AFullDisk_data();
    void AFullDisk();
    void AFullDiskForTheLock();
    void ACrashBetweenTheGenerations();

    void ASecondClientCannotSave();
    void ASecondClientSavesOnceTheFirstHasGone();
    void ASecondClientDoesNotOverwriteTheFirst();
    void TheLockOfADeadClientIsTakenOver();
    void LookingOnlyTakesNoLock();

    void AlarmSectionKeepsAWorkingRecord();
    void AlarmDefaultsKeepTheKeys();
    void AutoStartFollowsASave_data();
    void AutoStartFollowsASave();
    void AutoStartFailureIsTold();
    void SavedHandlerHearsOnlySuccess();

    void RevertDropsWhatNobodySaved();
    void AlarmsThatAreToPersistOutsideASaveAreStored();
    void SeedsKeepWhatIsStored();
    void ALockThatCameLateDoesNotOverwrite();

    void ImportReplacesEverything();
    void ImportKeepsUnknownKeys();
    void ImportOfADamagedDocumentChangesNothing();
    void AFailedImportChangesNothing();

private:
    QString Path(const QString& strName) const { return m_pFolder->filePath(strName); }
    void Put(const QByteArray& content, const QString& strName = "settings.json") const
    {
        QFile file(Path(strName));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
    }
    QByteArray GetFile(const QString& strName = "settings.json") const
    {
        QFile file(Path(strName));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(none)");
    }
    QStringList Names() const { return QDir(m_pFolder->path()).entryList(QDir::Files | QDir::Hidden, QDir::Name); }
    QStringList SetAside() const { return QDir(m_pFolder->path()).entryList({"settings.json.damaged-*"}, QDir::Files); }
    int SavedClientSize() const
    {
        ConfigService service(m_pFolder->path(), ConfigService::ReadOnly);
        return GetBasic(service).clientSize;
    }

    QScopedPointer<QTemporaryDir> m_pFolder;
};

void tst_ConfigService::init()
{
    m_pFolder.reset(new QTemporaryDir);
}

void tst_ConfigService::StartsWithDefaults()
{
    ConfigService service(m_pFolder->path(), ConfigService::ReadWrite);
    QVERIFY(service.GetStored() == Settings());
    QCOMPARE(service.GetProblems(), QStringList());
    QVERIFY2(!QFile::exists(Path("settings.json")), "looking writes nothing");
}

void tst_ConfigService::EverySectionIsThere()
{
    ConfigService service(m_pFolder->path(), ConfigService::ReadOnly);
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
        ConfigService service(m_pFolder->path(), ConfigService::ReadWrite);
        SetAll(service, ChangedSettings());
        QCOMPARE(service.SaveAll(), 1);
        QVERIFY(service.GetStored() == ChangedSettings());
    }
    ConfigService service(m_pFolder->path(), ConfigService::ReadWrite);
    QVERIFY(service.GetStored() == ChangedSettings());
    QCOMPARE(GetBasic(service).clientSize, ChangedSettings().basic.clientSize);
    QCOMPARE((Get<IRecordSection, RecordConfigInfo>(service, SectionRecord).recordPath),
             ChangedSettings().record.recordPath);
}

void tst_ConfigService::SetConfigAloneIsNotPersisted()
{
    ConfigService service(m_pFolder->path(), ConfigService::ReadWrite);
    SetClientSize(service, 0);
    QCOMPARE(GetBasic(service).clientSize, 0);
    QCOMPARE(SavedClientSize(), 2);
    QCOMPARE(service.GetStored().basic.clientSize, 2);
}

void tst_ConfigService::ASaveWritesOneDocument()
{
    {
        ConfigService service(m_pFolder->path(), ConfigService::ReadWrite);
        SetClientSize(service, 0);
        QCOMPARE(service.SaveAll(), 1);
    }
    QCOMPARE(Names(), QStringList{"settings.json"});
}

void tst_ConfigService::TheLastGenerationIsKept()
{
    ConfigService service(m_pFolder->path(), ConfigService::ReadWrite);
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
    ConfigService service(m_pFolder->path(), ConfigService::ReadWrite);
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
    ConfigService service(m_pFolder->path(), ConfigService::ReadWrite);
    SetClientSize(service, 3);
    QCOMPARE(service.SaveAll(), 1);
    QVERIFY(GetFile().contains("\"mine\": 42"));
    QVERIFY(GetFile().contains("\"later\": true"));
    QCOMPARE(SavedClientSize(), 3);
}

void tst_ConfigService::KeysOfOthersThatComeMeanwhileSurvive()
{
    ConfigService service(m_pFolder->path(), ConfigService::ReadWrite);
    Put(R"({"version": 1, "theirs": 7, "sections": {}})");
    SetClientSize(service, 3);
    QCOMPARE(service.SaveAll(), 1);
    QVERIFY(GetFile().contains("\"theirs\": 7"));
    QCOMPARE(SavedClientSize(), 3);
}

void tst_ConfigService::AMissingDocumentStartsFromDefaults()
{
    ConfigService service(Path("new"), ConfigService::ReadOnly);
    QVERIFY(service.GetStored() == Settings());
    QCOMPARE(service.GetProblems(), QStringList());
}

void tst_ConfigService::AMissingDocumentWithALastGenerationUsesThat()
{
    Put(Document(1), "settings.json.bak");
    ConfigService service(m_pFolder->path(), ConfigService::ReadWrite);
    QCOMPARE(GetBasic(service).clientSize, 1);
    QCOMPARE(service.GetProblems().size(), 1);
    SetClientSize(service, 3);
    QCOMPARE(service.SaveAll(), 1);
    QCOMPARE(SavedClientSize(), 3);
}

void tst_ConfigService::ADamagedDocumentIsSetAside_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("null bytes") << QByteArray(100, '\0');
    QTest::newRow("cut off") << Document(3).left(100);
    QTest::newRow("impossible value") << QByteArray(R"({"version": 1, "sections": {"basic": {"clientSize": "big"}}})");
}

void tst_ConfigService::ADamagedDocumentIsSetAside()
{
    QFETCH(QByteArray, content);
    Put(content);
    Put(Document(1), "settings.json.bak");
    {
        ConfigService service(m_pFolder->path(), ConfigService::ReadWrite);
        QCOMPARE(GetBasic(service).clientSize, 1);
        QCOMPARE(service.GetProblems().size(), 1);
        QVERIFY(!service.GetProblems().first().contains('\n'));
    }
    QCOMPARE(SetAside().size(), 1);
    QCOMPARE(GetFile(SetAside().first()), content);
    QCOMPARE(GetFile(), Document(1));

    ConfigService service(m_pFolder->path(), ConfigService::ReadWrite);
    QCOMPARE(service.GetProblems(), QStringList());
    QCOMPARE(GetBasic(service).clientSize, 1);
}

void tst_ConfigService::ADamagedDocumentWithoutALastGenerationUsesDefaults()
{
    Put("damaged");
    ConfigService service(m_pFolder->path(), ConfigService::ReadWrite);
    QVERIFY(service.GetStored() == Settings());
    QCOMPARE(service.GetProblems().size(), 1);
    QCOMPARE(GetFile(SetAside().value(0)), QByteArray("damaged"));
    SetClientSize(service, 3);
    QCOMPARE(service.SaveAll(), 1);
    QCOMPARE(SavedClientSize(), 3);
}

void tst_ConfigService::SettingAsideTwiceKeepsBoth()
{
    for (const char* pszContent : {"first", "second"})
    {
        Put(pszContent);
        const ConfigService service(m_pFolder->path(), ConfigService::ReadWrite);
    }
    QSet<QByteArray> setContents;
    for (const QString& strName : SetAside())
    {
        setContents.insert(GetFile(strName));
    }
    QCOMPARE(setContents, (QSet<QByteArray>{"first", "second"}));
}

void tst_ConfigService::ADamagedDocumentIsNeverTheLastGeneration()
{
    Put("damaged");
    Put(Document(1), "settings.json.bak");
    ConfigService service(m_pFolder->path(), ConfigService::ReadWrite);
    SetClientSize(service, 3);
    QCOMPARE(service.SaveAll(), 1);
    QCOMPARE(GetFile("settings.json.bak"), Document(1));
}

void tst_ConfigService::DamageWhileRunningIsSetAside()
{
    Put(Document(1));
    ConfigService service(m_pFolder->path(), ConfigService::ReadWrite);
    SetClientSize(service, 0);
    QCOMPARE(service.SaveAll(), 1); // keeps Document(1) as the last generation
    Put(QByteArray());
    SetClientSize(service, 3);
    QCOMPARE(service.SaveAll(), 1);
    QCOMPARE(SavedClientSize(), 3);
    QCOMPARE(SetAside().size(), 1);
    QCOMPARE(GetFile("settings.json.bak"), Document(1));
    QCOMPARE(service.GetProblems().size(), 1);
}

void tst_ConfigService::ADamagedLastGenerationIsNotUsed()
{
    Put("damaged");
    Put("damaged, too", "settings.json.bak");
    ConfigService service(m_pFolder->path(), ConfigService::ReadWrite);
    QVERIFY(service.GetStored() == Settings());
    QCOMPARE(GetFile("settings.json.bak"), QByteArray("damaged, too"));
}

void tst_ConfigService::AnUnreadableDocumentIsNotOverwritten_data()
{
    QTest::addColumn<bool>("bFolder");
    QTest::newRow("no permission") << false;
    QTest::newRow("a folder in its place") << true;
}

void tst_ConfigService::AnUnreadableDocumentIsNotOverwritten()
{
    QFETCH(bool, bFolder);
    if (bFolder)
    {
        QVERIFY(QDir().mkpath(Path("settings.json")));
    }
    else
    {
        Put(Document(3));
        QVERIFY(QFile::setPermissions(Path("settings.json"), QFile::WriteOwner));
    }
    ConfigService service(m_pFolder->path(), ConfigService::ReadWrite);
    QCOMPARE(service.GetProblems().size(), 1);
    SetClientSize(service, 0);
    QCOMPARE(service.SaveAll(), int(CErrorCode::Unreadable));
    QCOMPARE(GetBasic(service).clientSize, 0);
    if (!bFolder)
    {
        QVERIFY(QFile::setPermissions(Path("settings.json"), QFile::ReadOwner));
        QCOMPARE(GetFile(), Document(3));
    }
}

void tst_ConfigService::ANewerDocumentIsNotOverwritten()
{
    const QByteArray newer = R"({"version": 2, "sections": {"basic": "elsewhere"}})";
    Put(newer);
    ConfigService service(m_pFolder->path(), ConfigService::ReadWrite);
    QCOMPARE(service.GetProblems().size(), 1);
    SetClientSize(service, 0);
    QCOMPARE(service.SaveAll(), int(CErrorCode::Unreadable));
    QCOMPARE(GetFile(), newer);
}

void tst_ConfigService::AReadOnlyFolder()
{
    Put(Document(1));
    QVERIFY(QFile::setPermissions(m_pFolder->path(), QFile::ReadOwner | QFile::ExeOwner));
    int nResult = 0;
    QStringList listProblems;
    int nWorking = 0;
    {
        ConfigService service(m_pFolder->path(), ConfigService::ReadWrite);
        listProblems = service.GetProblems();
        SetClientSize(service, 0);
        nResult = service.SaveAll();
        nWorking = GetBasic(service).clientSize;
    }
    QFile::setPermissions(m_pFolder->path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    QCOMPARE(nResult, int(CErrorCode::NoPermission));
    QCOMPARE(listProblems.size(), 1);
    QCOMPARE(nWorking, 0);
    QCOMPARE(GetFile(), Document(1));
}

void tst_ConfigService::AFullDisk_data()
{
    QTest::addColumn<QByteArray>("fault");
    QTest::addColumn<int>("nResult");
    QTest::newRow("write") << QByteArray("write:ENOSPC:") << int(CErrorCode::DiskFull);
    QTest::newRow("flush") << QByteArray("fsync:ENOSPC:") << int(CErrorCode::DiskFull);
    QTest::newRow("device") << QByteArray("write:EIO:") << int(CErrorCode::IoError);
    QTest::newRow("rename") << QByteArray("rename:EIO:") << int(CErrorCode::IoError);
}

void tst_ConfigService::AFullDisk()
{
    QFETCH(QByteArray, fault);
    QFETCH(int, nResult);
    Put(Document(1));
    ConfigService service(m_pFolder->path(), ConfigService::ReadWrite);
    SetClientSize(service, 0);
    qputenv("KV_FAULT", fault + m_pFolder->path().toLocal8Bit());
    QCOMPARE(service.SaveAll(), nResult);
    qunsetenv("KV_FAULT");
    QCOMPARE(GetFile(), Document(1));
    QCOMPARE(GetBasic(service).clientSize, 0);
    QCOMPARE(service.GetStored().basic.clientSize, 1);

    QCOMPARE(service.SaveAll(), 1);
    QCOMPARE(SavedClientSize(), 0);
}

void tst_ConfigService::AFullDiskForTheLock()
{
    Put(Document(1));
    qputenv("KV_FAULT", "write:ENOSPC:" + m_pFolder->path().toLocal8Bit());
    ConfigService service(m_pFolder->path(), ConfigService::ReadWrite);
    QCOMPARE(service.GetProblems().size(), 1);
    SetClientSize(service, 0);
    QCOMPARE(service.SaveAll(), int(CErrorCode::DiskFull));
    qunsetenv("KV_FAULT");
    QCOMPARE(GetFile(), Document(1));
    QCOMPARE(service.SaveAll(), 1);
    QCOMPARE(SavedClientSize(), 0);
}

void tst_ConfigService::ACrashBetweenTheGenerations()
{
    // The last generation has been written, the document not: both are the old document then.
    Put(Document(1));
    Put(Document(1), "settings.json.bak");
    ConfigService service(m_pFolder->path(), ConfigService::ReadWrite);
    QCOMPARE(service.GetProblems(), QStringList());
    QCOMPARE(GetBasic(service).clientSize, 1);
}

void tst_ConfigService::ASecondClientCannotSave()
{
    ConfigService first(m_pFolder->path(), ConfigService::ReadWrite);
    ConfigService second(m_pFolder->path(), ConfigService::ReadWrite);
    QCOMPARE(first.GetProblems(), QStringList());
    QCOMPARE(second.GetProblems().size(), 1);
    SetClientSize(second, 0);
    QCOMPARE(second.SaveAll(), int(CErrorCode::Locked));
    QCOMPARE(GetBasic(second).clientSize, 0);
    SetClientSize(first, 1);
    QCOMPARE(first.SaveAll(), 1);
    QCOMPARE(SavedClientSize(), 1);
}

void tst_ConfigService::ASecondClientSavesOnceTheFirstHasGone()
{
    QScopedPointer<ConfigService> pFirst(new ConfigService(m_pFolder->path(), ConfigService::ReadWrite));
    ConfigService second(m_pFolder->path(), ConfigService::ReadWrite);
    pFirst.reset();
    SetClientSize(second, 0);
    QCOMPARE(second.SaveAll(), 1);
    QCOMPARE(SavedClientSize(), 0);
}

void tst_ConfigService::ASecondClientDoesNotOverwriteTheFirst()
{
    QScopedPointer<ConfigService> pFirst(new ConfigService(m_pFolder->path(), ConfigService::ReadWrite));
    ConfigService second(m_pFolder->path(), ConfigService::ReadWrite);
    SetClientSize(*pFirst, 1);
    QCOMPARE(pFirst->SaveAll(), 1);
    pFirst.reset();
    SetClientSize(second, 0);
    QCOMPARE(second.SaveAll(), int(CErrorCode::ChangedElsewhere));
    QCOMPARE(SavedClientSize(), 1);
}

void tst_ConfigService::TheLockOfADeadClientIsTakenOver()
{
    // A child that holds the lock is killed, as a client that crashes.
    QProcess child;
    child.start(QCoreApplication::applicationFilePath(), {"--hold", Path("settings.lock")});
    QVERIFY(child.waitForReadyRead());
    {
        const ConfigService service(m_pFolder->path(), ConfigService::ReadWrite);
        QCOMPARE(service.GetProblems().size(), 1);
    }
    child.kill();
    QVERIFY(child.waitForFinished());
    QVERIFY(QFile::exists(Path("settings.lock")));
    ConfigService service(m_pFolder->path(), ConfigService::ReadWrite);
    QCOMPARE(service.GetProblems(), QStringList());
    SetClientSize(service, 0);
    QCOMPARE(service.SaveAll(), 1);
}

void tst_ConfigService::LookingOnlyTakesNoLock()
{
    Put("damaged");
    ConfigService looking(m_pFolder->path(), ConfigService::ReadOnly);
    QCOMPARE(looking.GetProblems().size(), 1);
    QCOMPARE(Names(), QStringList{"settings.json"});
    QCOMPARE(looking.SaveAll(), int(CErrorCode::NoPermission));
    QCOMPARE(GetFile(), QByteArray("damaged"));
    ConfigService service(m_pFolder->path(), ConfigService::ReadWrite);
    QCOMPARE(SetAside().size(), 1);
}

void tst_ConfigService::AlarmSectionKeepsAWorkingRecord()
{
    ConfigService service(m_pFolder->path(), ConfigService::ReadWrite);
    auto* pAlarm = static_cast<IAlarmSection*>(service.GetSection(SectionAlarm));
    const auto loop = [pAlarm] {
        AlarmConfigInfo record;
        pAlarm->GetConfig(record);
        return record.loopSound;
    };
    AlarmConfigInfo record;
    record.loopSound = true;
    QCOMPARE(pAlarm->SetConfig(record, false), 0);
    QVERIFY(loop());
    pAlarm->ResetConfig(false);
    QVERIFY(!loop());
    QCOMPARE(pAlarm->SetConfig(record, true), 0);
    pAlarm->ResetConfig(false);
    QVERIFY(loop());
    pAlarm->PrepareSave();
    QCOMPARE(service.SaveAll(), 1);
    QVERIFY(service.GetStored().alarm.loopSound);
}

void tst_ConfigService::AlarmDefaultsKeepTheKeys()
{
    ConfigService service(m_pFolder->path(), ConfigService::ReadWrite);
    auto* pAlarm = static_cast<IAlarmSection*>(service.GetSection(SectionAlarm));
    const AlarmConfigInfo changed = ChangedSettings().alarm;
    pAlarm->SetConfig(changed, true);
    pAlarm->ResetConfig(true);
    AlarmConfigInfo record;
    pAlarm->GetConfig(record);
    QCOMPARE(record.alarmSound, true);
    QCOMPARE(record.openVideoType, 0);
    QCOMPARE(record.flashCategories.size(), changed.flashCategories.size());
    for (const auto& [nId, bFlash] : record.flashCategories)
    {
        QVERIFY(bFlash && changed.flashCategories.count(nId));
    }
    QCOMPARE(record.alarmSounds.size(), changed.alarmSounds.size());
    for (const auto& [nType, sound] : record.alarmSounds)
    {
        QVERIFY(sound.customSound.empty());
        QCOMPARE(sound.defaultSound, changed.alarmSounds.at(nType).defaultSound);
    }
}

void tst_ConfigService::AutoStartFollowsASave_data()
{
    QTest::addColumn<int>("nEntry"); // -1: the page has not looked
    QTest::addColumn<bool>("bStored");
    QTest::addColumn<bool>("bWanted");
    QTest::addColumn<QString>("strCall");
    QTest::newRow("switched on") << 0 << false << true << "on";
    QTest::newRow("switched off") << 1 << true << false << "off";
    QTest::newRow("stays on") << 1 << true << true << QString();
    QTest::newRow("stays off") << 0 << false << false << QString();
    QTest::newRow("wanted, but the entry was lost") << 0 << true << true << "on";
    QTest::newRow("not wanted, but an entry is there") << 1 << false << false << "off";
    QTest::newRow("not looked, switched on") << -1 << false << true << "on";
    QTest::newRow("not looked, unchanged") << -1 << true << true << QString();
}

void tst_ConfigService::AutoStartFollowsASave()
{
    QFETCH(int, nEntry);
    QFETCH(bool, bStored);
    QFETCH(bool, bWanted);
    QFETCH(QString, strCall);
    Settings settings;
    settings.basic.autoRun = bStored;
    SettingsDocument document;
    document.SetSettings(settings);
    Put(document.Serialize());

    QStringList listCalls;
    ConfigService service(m_pFolder->path(), ConfigService::ReadWrite, [&](bool bEnable) {
        listCalls += bEnable ? "on" : "off";
        return int(CErrorCode::Success);
    });
    auto* pBasic = static_cast<IBasicSection*>(service.GetSection(SectionBasic));
    if (nEntry >= 0)
    {
        pBasic->SetAutoRunState(nEntry == 1);
    }
    QCOMPARE(GetBasic(service).autoRun, bStored);
    settings.basic.autoRun = bWanted;
    pBasic->SetConfig(settings.basic);
    QCOMPARE(listCalls, QStringList());
    QCOMPARE(service.SaveAll(), 1);
    QCOMPARE(listCalls, strCall.isEmpty() ? QStringList() : QStringList{strCall});
    QCOMPARE(service.SaveAll(), 1);
    QCOMPARE(listCalls.size(), strCall.isEmpty() ? 0 : 1);
}

void tst_ConfigService::AutoStartFailureIsTold()
{
    ConfigService service(m_pFolder->path(), ConfigService::ReadWrite,
                          [](bool) { return int(CErrorCode::NoPermission); });
    QStringList listProblems;
    service.SetProblemHandler([&](const QString& strProblem) { listProblems += strProblem; });
    BasicConfigInfo record;
    record.autoRun = true;
    Set<IBasicSection>(service, SectionBasic, record);
    QCOMPARE(service.SaveAll(), 1);
    QCOMPARE(listProblems.size(), 1);
    QVERIFY(service.GetStored().basic.autoRun);
}

void tst_ConfigService::SavedHandlerHearsOnlySuccess()
{
    ConfigService service(m_pFolder->path(), ConfigService::ReadWrite);
    int nSaved = 0;
    service.SetSavedHandler([&] { ++nSaved; });
    SetClientSize(service, 0);
    qputenv("KV_FAULT", "write:ENOSPC:" + m_pFolder->path().toLocal8Bit());
    service.SaveAll();
    qunsetenv("KV_FAULT");
    QCOMPARE(nSaved, 0);
    service.SaveAll();
    QCOMPARE(nSaved, 1);
}

void tst_ConfigService::RevertDropsWhatNobodySaved()
{
    ConfigService service(m_pFolder->path(), ConfigService::ReadWrite);
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

void tst_ConfigService::AlarmsThatAreToPersistOutsideASaveAreStored()
{
    ConfigService service(m_pFolder->path(), ConfigService::ReadWrite);
    auto* pAlarm = static_cast<IAlarmSection*>(service.GetSection(SectionAlarm));
    AlarmConfigInfo record;
    record.alarmSound = false;
    pAlarm->SetConfig(record, true);
    QVERIFY(!service.GetStored().alarm.alarmSound);
    service.Revert();
    pAlarm->GetConfig(record);
    QVERIFY(!record.alarmSound);
    record.loopSound = true;
    pAlarm->SetConfig(record, false);
    QVERIFY2(!service.GetStored().alarm.loopSound, "the working record alone");
}

void tst_ConfigService::SeedsKeepWhatIsStored()
{
    ConfigService service(m_pFolder->path(), ConfigService::ReadWrite);
    auto* pAlarm = static_cast<IAlarmSection*>(service.GetSection(SectionAlarm));
    AlarmConfigInfo record;
    record.flashCategories = {{3, false}, {999, true}};
    record.alarmSounds[200000].customSound = "/own/face.wav";
    pAlarm->PrepareSave();
    pAlarm->SetConfig(record, true);
    QCOMPARE(service.SaveAll(), 1);

    const auto* pCatalogue = UICommonMdl::CAlarmType::Instance();
    service.SeedAlarms(*pCatalogue);
    pAlarm->GetConfig(record);
    QVERIFY(!record.flashCategories.at(3) && record.flashCategories.at(999) && record.flashCategories.at(2));
    QVERIFY(!record.flashCategories.at(1) && !record.flashCategories.at(6)); // not on the map
    QCOMPARE(record.alarmSounds.at(200000).customSound, std::string("/own/face.wav"));
    QCOMPARE(record.alarmSounds.at(302).alarmType, 302);
    QCOMPARE(record.alarmSounds.at(302).defaultSound, std::string("video.wav"));
    QCOMPARE(record.alarmSounds.count(961), std::size_t(0)); // shares the entry 200000
    QCOMPARE(record.alarmSounds.count(967), std::size_t(1));
    QCOMPARE(record.alarmSounds.count(901), std::size_t(0));  // 100000
    QCOMPARE(record.alarmSounds.count(3115), std::size_t(0)); // 2
    QCOMPARE(record.alarmSounds.at(2).defaultSound, std::string("analysis.wav"));
    QCOMPARE(service.SaveAll(), 1);
    const ConfigService later(m_pFolder->path(), ConfigService::ReadOnly);
    QCOMPARE(later.GetStored().alarm.alarmSounds.size(), record.alarmSounds.size());
}

void tst_ConfigService::ALockThatCameLateDoesNotOverwrite()
{
    // The first attempt at the lock fails for another reason than a second client; meanwhile one comes and saves.
    qputenv("KV_FAULT", "write:ENOSPC:" + m_pFolder->path().toLocal8Bit());
    ConfigService late(m_pFolder->path(), ConfigService::ReadWrite);
    qunsetenv("KV_FAULT");
    {
        ConfigService other(m_pFolder->path(), ConfigService::ReadWrite);
        SetClientSize(other, 1);
        QCOMPARE(other.SaveAll(), 1);
    }
    SetClientSize(late, 0);
    QCOMPARE(late.SaveAll(), int(CErrorCode::ChangedElsewhere));
    QCOMPARE(SavedClientSize(), 1);
}

void tst_ConfigService::ImportKeepsUnknownKeys()
{
    Put(R"({"version": 1, "mine": 42, "sections": {"basic": {"later": true}}})");
    ConfigService service(m_pFolder->path(), ConfigService::ReadWrite);
    QCOMPARE(
        service.Import(R"({"version": 1, "theirs": 7, "sections": {"basic": {"newer": 1, "clientSize": 3}}})", nullptr),
        1);
    for (const char* pszKey : {"mine", "later", "theirs", "newer"})
    {
        QVERIFY2(GetFile().contains(pszKey), pszKey);
    }
    QCOMPARE(SavedClientSize(), 3);
}

void tst_ConfigService::ImportReplacesEverything()
{
    SettingsDocument document;
    document.SetSettings(ChangedSettings());
    {
        ConfigService service(m_pFolder->path(), ConfigService::ReadWrite);
        QCOMPARE(service.Import(document.Serialize(), nullptr), 1);
        QVERIFY(service.GetStored() == ChangedSettings());
        QCOMPARE(service.Export(), document.Serialize());
    }
    const ConfigService service(m_pFolder->path(), ConfigService::ReadOnly);
    QVERIFY(service.GetStored() == ChangedSettings());
}

void tst_ConfigService::ImportOfADamagedDocumentChangesNothing()
{
    Put(Document(1));
    ConfigService service(m_pFolder->path(), ConfigService::ReadWrite);
    QString strError;
    QCOMPARE(service.Import("{", &strError), int(CErrorCode::Damaged));
    QVERIFY(!strError.isEmpty());
    QCOMPARE(GetBasic(service).clientSize, 1);
    QCOMPARE(GetFile(), Document(1));
}

void tst_ConfigService::AFailedImportChangesNothing()
{
    Put(Document(1));
    const ConfigService first(m_pFolder->path(), ConfigService::ReadWrite);
    ConfigService second(m_pFolder->path(), ConfigService::ReadWrite);
    QCOMPARE(second.Import(Document(3), nullptr), int(CErrorCode::Locked));
    QCOMPARE(GetBasic(second).clientSize, 1);
    QCOMPARE(GetFile(), Document(1));
}

int main(int argc, char* argv[])
{
    QCoreApplication application(argc, argv);
    const int nHold = application.arguments().indexOf("--hold");
    if (nHold > 0)
    {
        QLockFile lock(application.arguments().value(nHold + 1));
        lock.setStaleLockTime(0);
        QTextStream(stdout) << (lock.tryLock(0) ? "held" : "failed") << Qt::endl;
        return application.exec();
    }
    tst_ConfigService test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_ConfigService.moc"
