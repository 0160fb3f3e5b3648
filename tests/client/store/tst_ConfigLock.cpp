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
    first.reset();
    SetClientSize(second, 0);
    QCOMPARE(second.SaveAll(), 1);
    QCOMPARE(SavedClientSize(), 0);
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
