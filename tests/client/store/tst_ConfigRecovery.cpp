#include "support/Permissions.h"
#include "support/StoreFixture.h"

#include <UICommonModule/CErrorCode.h>

using namespace LocalConfigClient;
using UICommonMdl::CErrorCode;

class tst_ConfigRecovery : public CStoreTest
{
    Q_OBJECT

private slots:
    void init() { Reset(); }

    void AMissingDocumentStartsFromDefaults();
    void AMissingDocumentWithALastGenerationUsesThat();
    void ADamagedDocumentIsSetAside_data();
    void ADamagedDocumentIsSetAside();
    void ADamagedDocumentWithoutALastGenerationUsesDefaults();
    void SettingAsideTwiceKeepsBoth();
    void ADamagedDocumentIsNeverTheLastGeneration();
    void DamageWhileRunningIsSetAside();
    void ADamagedLastGenerationIsNotUsed();
    void AnUnreadableDocumentIsNotOverwritten();
    void AFolderInPlaceOfTheDocumentIsNotOverwritten();
    void ANewerDocumentIsNotOverwritten();
};

void tst_ConfigRecovery::AMissingDocumentStartsFromDefaults()
{
    ConfigService service(Path("new"), SettingsFile::ReadOnly);
    QVERIFY(service.GetStored() == Settings());
    QCOMPARE(service.GetFile().GetProblems(), QStringList());
}

void tst_ConfigRecovery::AMissingDocumentWithALastGenerationUsesThat()
{
    Put(Document(1), "settings.json.bak");
    ConfigService service(m_pFolder->path(), SettingsFile::ReadWrite);
    QCOMPARE(GetBasic(service).clientSize, 1);
    QCOMPARE(service.GetFile().GetProblems().size(), 1);
    SetClientSize(service, 3);
    QCOMPARE(service.SaveAll(), 1);
    QCOMPARE(SavedClientSize(), 3);
}

void tst_ConfigRecovery::ADamagedDocumentIsSetAside_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("null bytes") << QByteArray(100, '\0');
    QTest::newRow("cut off") << Document(3).left(100);
    QTest::newRow("impossible value") << QByteArray(R"({"version": 1, "sections": {"basic": {"clientSize": "big"}}})");
}

void tst_ConfigRecovery::ADamagedDocumentIsSetAside()
{
    QFETCH(QByteArray, content);
    Put(content);
    Put(Document(1), "settings.json.bak");
    {
        ConfigService service(m_pFolder->path(), SettingsFile::ReadWrite);
        QCOMPARE(GetBasic(service).clientSize, 1);
        QCOMPARE(service.GetFile().GetProblems().size(), 1);
        QVERIFY(!service.GetFile().GetProblems().first().contains('\n'));
    }
    QCOMPARE(SetAside().size(), 1);
    QCOMPARE(GetFile(SetAside().first()), content);
    QCOMPARE(GetFile(), Document(1));

    ConfigService service(m_pFolder->path(), SettingsFile::ReadWrite);
    QCOMPARE(service.GetFile().GetProblems(), QStringList());
    QCOMPARE(GetBasic(service).clientSize, 1);
}

void tst_ConfigRecovery::ADamagedDocumentWithoutALastGenerationUsesDefaults()
{
    Put("damaged");
    ConfigService service(m_pFolder->path(), SettingsFile::ReadWrite);
    QVERIFY(service.GetStored() == Settings());
    QCOMPARE(service.GetFile().GetProblems().size(), 1);
    QCOMPARE(GetFile(SetAside().value(0)), QByteArray("damaged"));
    SetClientSize(service, 3);
    QCOMPARE(service.SaveAll(), 1);
    QCOMPARE(SavedClientSize(), 3);
}

void tst_ConfigRecovery::SettingAsideTwiceKeepsBoth()
{
    for (const char* pszContent : {"first", "second"})
    {
        Put(pszContent);
        const ConfigService service(m_pFolder->path(), SettingsFile::ReadWrite);
    }
    QSet<QByteArray> setContents;
    for (const QString& strName : SetAside())
    {
        setContents.insert(GetFile(strName));
    }
    QCOMPARE(setContents, (QSet<QByteArray>{"first", "second"}));
}

void tst_ConfigRecovery::ADamagedDocumentIsNeverTheLastGeneration()
{
    Put("damaged");
    Put(Document(1), "settings.json.bak");
    ConfigService service(m_pFolder->path(), SettingsFile::ReadWrite);
    SetClientSize(service, 3);
    QCOMPARE(service.SaveAll(), 1);
    QCOMPARE(GetFile("settings.json.bak"), Document(1));
}

void tst_ConfigRecovery::DamageWhileRunningIsSetAside()
{
    Put(Document(1));
    ConfigService service(m_pFolder->path(), SettingsFile::ReadWrite);
    SetClientSize(service, 0);
    QCOMPARE(service.SaveAll(), 1); // keeps Document(1) as the last generation
    Put(QByteArray());
    SetClientSize(service, 3);
    QCOMPARE(service.SaveAll(), 1);
    QCOMPARE(SavedClientSize(), 3);
    QCOMPARE(SetAside().size(), 1);
    QCOMPARE(GetFile("settings.json.bak"), Document(1));
    QCOMPARE(service.GetFile().GetProblems().size(), 1);
}

void tst_ConfigRecovery::ADamagedLastGenerationIsNotUsed()
{
    Put("damaged");
    Put("damaged, too", "settings.json.bak");
    ConfigService service(m_pFolder->path(), SettingsFile::ReadWrite);
    QVERIFY(service.GetStored() == Settings());
    QCOMPARE(GetFile("settings.json.bak"), QByteArray("damaged, too"));
}

void tst_ConfigRecovery::AnUnreadableDocumentIsNotOverwritten()
{
    Put(Document(3));
    {
        const CPermissions unreadable(Path("settings.json"), QFile::WriteOwner);
        ConfigService service(m_pFolder->path(), SettingsFile::ReadWrite);
        QCOMPARE(service.GetFile().GetProblems().size(), 1);
        SetClientSize(service, 0);
        QCOMPARE(service.SaveAll(), int(CErrorCode::Unreadable));
        QCOMPARE(GetBasic(service).clientSize, 0);
    }
    QCOMPARE(GetFile(), Document(3));
}

void tst_ConfigRecovery::AFolderInPlaceOfTheDocumentIsNotOverwritten()
{
    QVERIFY(QDir().mkpath(Path("settings.json")));
    ConfigService service(m_pFolder->path(), SettingsFile::ReadWrite);
    QCOMPARE(service.GetFile().GetProblems().size(), 1);
    SetClientSize(service, 0);
    QCOMPARE(service.SaveAll(), int(CErrorCode::Unreadable));
    QCOMPARE(GetBasic(service).clientSize, 0);
    QVERIFY(QFileInfo(Path("settings.json")).isDir());
}

void tst_ConfigRecovery::ANewerDocumentIsNotOverwritten()
{
    const QByteArray newer = R"({"version": 2, "sections": {"basic": "elsewhere"}})";
    Put(newer);
    ConfigService service(m_pFolder->path(), SettingsFile::ReadWrite);
    QCOMPARE(service.GetFile().GetProblems().size(), 1);
    SetClientSize(service, 0);
    QCOMPARE(service.SaveAll(), int(CErrorCode::Unreadable));
    QCOMPARE(GetFile(), newer);
}

QTEST_GUILESS_MAIN(tst_ConfigRecovery)

#include "tst_ConfigRecovery.moc"
