#include "support/ChangedSettings.h"
#include "support/Permissions.h"
#include "support/StoreFixture.h"

#include <UICommonModule/CErrorCode.h>

using namespace LocalConfigClient;
using UICommonMdl::CErrorCode;

class tst_ConfigImport : public CStoreTest
{
    Q_OBJECT

private slots:
    void init() { Reset(); }

    void ImportReplacesEverything();
    void ImportKeepsUnknownKeys();
    void ImportOfADamagedDocumentChangesNothing();
    void AFailedImportChangesNothing();
    void AFailedImportSaysWhatKeptItAndNothingElse();
};

void tst_ConfigImport::ImportKeepsUnknownKeys()
{
    Put(R"({"version": 1, "mine": 42, "sections": {"basic": {"later": true}}})");
    ConfigService service(m_pFolder->path(), SettingsFile::ReadWrite);
    QCOMPARE(
        service.Import(R"({"version": 1, "theirs": 7, "sections": {"basic": {"newer": 1, "clientSize": 3}}})", nullptr),
        1);
    for (const char* pszKey : {"mine", "later", "theirs", "newer"})
    {
        QVERIFY2(GetFile().contains(pszKey), pszKey);
    }
    QCOMPARE(SavedClientSize(), 3);
}

void tst_ConfigImport::ImportReplacesEverything()
{
    const QByteArray document = Document(ChangedSettings());
    {
        ConfigService service(m_pFolder->path(), SettingsFile::ReadWrite);
        QCOMPARE(service.Import(document, nullptr), 1);
        QVERIFY(service.GetStored() == ChangedSettings());
        QCOMPARE(service.Export(), document);
    }
    const ConfigService service(m_pFolder->path(), SettingsFile::ReadOnly);
    QVERIFY(service.GetStored() == ChangedSettings());
}

void tst_ConfigImport::ImportOfADamagedDocumentChangesNothing()
{
    Put(Document(1));
    ConfigService service(m_pFolder->path(), SettingsFile::ReadWrite);
    QString strError;
    QCOMPARE(service.Import("{", &strError), int(CErrorCode::Damaged));
    QVERIFY(!strError.isEmpty());
    QCOMPARE(GetBasic(service).clientSize, 1);
    QCOMPARE(GetFile(), Document(1));
}

void tst_ConfigImport::AFailedImportChangesNothing()
{
    Put(Document(1));
    const ConfigService first(m_pFolder->path(), SettingsFile::ReadWrite);
    ConfigService second(m_pFolder->path(), SettingsFile::ReadWrite);
    QCOMPARE(second.Import(Document(3), nullptr), int(CErrorCode::Locked));
    QCOMPARE(GetBasic(second).clientSize, 1);
    QCOMPARE(GetFile(), Document(1));
}

void tst_ConfigImport::AFailedImportSaysWhatKeptItAndNothingElse()
{
    // There is another problem, which would not have kept it.
    Put(Document(1), "settings.json.bak");
    {
        const ConfigService first(m_pFolder->path(), SettingsFile::ReadWrite);
        ConfigService second(m_pFolder->path(), SettingsFile::ReadWrite);
        QVERIFY(second.GetFile().GetProblems().last().contains("is missing"));
        QCOMPARE(second.Import(Document(0), nullptr), int(CErrorCode::Locked));
        QVERIFY(second.GetFile().GetHindrance().contains("nother client"));
    }
    ConfigService service(m_pFolder->path(), SettingsFile::ReadWrite);
    QVERIFY(SetPermissions(m_pFolder->path(), QFile::ReadOwner | QFile::ExeOwner));
    const int nResult = service.Import(Document(0), nullptr);
    SetPermissions(m_pFolder->path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    QCOMPARE(nResult, int(CErrorCode::NoPermission));
    QCOMPARE(service.GetFile().GetHindrance(), QString()); // the code says all
}

QTEST_GUILESS_MAIN(tst_ConfigImport)

#include "tst_ConfigImport.moc"
