#include "support/StoreFixture.h"

#include <UICommonModule/CErrorCode.h>

#include <QSysInfo>

#include <optional>

using namespace LocalConfigClient;
using UICommonMdl::CErrorCode;

class tst_ConfigLock : public CStoreTest
{
    Q_OBJECT

private slots:
    void init() { Reset(); }

    void ASecondClientCannotSave();
    void ASecondClientSavesOnceTheFirstHasGone();
    void ASecondClientDoesNotOverwriteTheFirst();
#ifndef Q_OS_WIN // no file is removed there while somebody holds it, nor the folder around it
    void ARemovedLockFileLetsNobodyOverwriteTheFirst();
    void AClientWhoseLockWasLostDoesNotOverwrite();
#endif
    void LookingOnlyTakesNoLock();
};

void tst_ConfigLock::ASecondClientCannotSave()
{
    ConfigService first(m_pFolder->path(), SettingsFile::ReadWrite);
    ConfigService second(m_pFolder->path(), SettingsFile::ReadWrite);
    QCOMPARE(first.GetFile().GetProblems(), QStringList());
    QCOMPARE(second.GetFile().GetProblems(),
             QStringList(QString("Another client (process %1 on %2) uses this data folder; changes cannot be saved "
                                 "meanwhile.")
                             .arg(QString::number(QCoreApplication::applicationPid()), QSysInfo::machineHostName())));
    SetClientSize(second, 0);
    QCOMPARE(second.SaveAll(), int(CErrorCode::Locked));
    QCOMPARE(GetBasic(second).clientSize, 0);
    SetClientSize(first, 1);
    QCOMPARE(first.SaveAll(), 1);
    QCOMPARE(SavedClientSize(), 1);
}

void tst_ConfigLock::ASecondClientSavesOnceTheFirstHasGone()
{
    std::optional<ConfigService> first(std::in_place, m_pFolder->path(), SettingsFile::ReadWrite);
    ConfigService second(m_pFolder->path(), SettingsFile::ReadWrite);
    QCOMPARE(second.GetFile().GetProblems().size(), 1);
    first.reset();
    SetClientSize(second, 0);
    QCOMPARE(second.SaveAll(), 1);
    QCOMPARE(SavedClientSize(), 0);
    QCOMPARE(second.GetFile().GetProblems(), QStringList());
}

void tst_ConfigLock::ASecondClientDoesNotOverwriteTheFirst()
{
    std::optional<ConfigService> first(std::in_place, m_pFolder->path(), SettingsFile::ReadWrite);
    ConfigService second(m_pFolder->path(), SettingsFile::ReadWrite);
    SetClientSize(*first, 1);
    QCOMPARE(first->SaveAll(), 1);
    first.reset();
    SetClientSize(second, 0);
    QCOMPARE(second.SaveAll(), int(CErrorCode::ChangedElsewhere));
    QCOMPARE(SavedClientSize(), 1);
}

#ifndef Q_OS_WIN

void tst_ConfigLock::ARemovedLockFileLetsNobodyOverwriteTheFirst()
{
    ConfigService first(m_pFolder->path(), SettingsFile::ReadWrite);
    QVERIFY(QFile::remove(Path("settings.lock")));
    ConfigService second(m_pFolder->path(), SettingsFile::ReadWrite);
    SetClientSize(second, 0);
    QCOMPARE(second.SaveAll(), int(CErrorCode::Locked));
    SetClientSize(first, 1);
    QCOMPARE(first.SaveAll(), 1);
    QCOMPARE(SavedClientSize(), 1);
    QVERIFY(QFile::exists(Path("settings.lock")));
}

void tst_ConfigLock::AClientWhoseLockWasLostDoesNotOverwrite()
{
    // The whole folder was put back from a copy, and somebody has worked in that.
    QVERIFY(QDir().mkpath(Path("data")));
    ConfigService service(Path("data"), SettingsFile::ReadWrite);
    SetClientSize(service, 0);
    QCOMPARE(service.SaveAll(), 1);
    QVERIFY(QDir().rename(Path("data"), Path("old")));
    QVERIFY(QDir().mkpath(Path("data")));
    {
        ConfigService other(Path("data"), SettingsFile::ReadWrite);
        SetClientSize(other, 1);
        QCOMPARE(other.SaveAll(), 1);
        SetClientSize(service, 3);
        QCOMPARE(service.SaveAll(), int(CErrorCode::Locked));
    }
    QCOMPARE(service.SaveAll(), int(CErrorCode::ChangedElsewhere));
    QCOMPARE(GetFile("data/settings.json"), Document(1));
}

#endif

void tst_ConfigLock::LookingOnlyTakesNoLock()
{
    Put("damaged");
    ConfigService looking(m_pFolder->path(), SettingsFile::ReadOnly);
    QCOMPARE(looking.GetFile().GetProblems().size(), 1);
    QCOMPARE(Names(), QStringList{"settings.json"});
    QCOMPARE(looking.SaveAll(), int(CErrorCode::NoPermission));
    QCOMPARE(GetFile(), QByteArray("damaged"));
    ConfigService service(m_pFolder->path(), SettingsFile::ReadWrite);
    QCOMPARE(SetAside().size(), 1);
}

QTEST_GUILESS_MAIN(tst_ConfigLock)

#include "tst_ConfigLock.moc"
