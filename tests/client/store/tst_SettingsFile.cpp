// The files of the data folder: what they are, whose they are, and what must never be written through.

#include "support/Permissions.h"
#include "support/StoreFixture.h"

#include <UICommonModule/CErrorCode.h>

using namespace LocalConfigClient;
using UICommonMdl::CErrorCode;

class tst_SettingsFile : public CStoreTest
{
    Q_OBJECT

private slots:
    void init() { Reset(); }

#ifndef Q_OS_WIN // links need a right of their own there, and Wine makes none
    void ADocumentBehindALinkToNothingIsNotMissing();
    void ADocumentInAFolderBehindALinkToNothingIsNotMissing();
#endif
    void ADocumentThatIsMissingWithAnUnusableLastGenerationIsTold();
    void DefaultsThatStandInAreKnown_data();
    void DefaultsThatStandInAreKnown();
    void ASavedDocumentNoLongerStandsIn();
#ifndef Q_OS_WIN // links need a right of their own there, and Wine makes none
    void ADocumentThatIsALinkStaysOne_data();
    void ADocumentThatIsALinkStaysOne();
    void ALinkIsReadFromTheFolderThatItLiesIn_data();
    void ALinkIsReadFromTheFolderThatItLiesIn();
    void ADamagedDocumentBehindALinkIsKept();
#endif
    void ADamagedDocumentThatCannotBeReplacedStays();
#ifndef Q_OS_WIN // there are no modes and no root there
    void GenerationsKeepTheMode();
    void ANewDocumentHasTheModeOfTheLastGeneration();
#endif
#ifndef Q_OS_WIN // links need a right of their own there, and Wine makes none
    void ALinkInPlaceOfTheLastGenerationIsNotWrittenThrough();
#endif
    void AFolderInPlaceOfTheLastGenerationRefusesTheSave();
    void LeftoversOfKilledSavesGoAtTheNextStart();
#ifndef Q_OS_WIN // links need a right of their own there, and Wine makes none
    void LeftoversBehindAPlantedLinkStay();
#endif
    void LeftoversStayWhileAnotherClientMayBeWriting();
#ifndef Q_OS_WIN // links need a right of their own there, and Wine makes none
    void OwnFilesAreKnownBehindLinks_data();
    void OwnFilesAreKnownBehindLinks();
#endif
#ifdef Q_OS_WIN // where a file has many names
    void OwnFilesAreKnownHoweverTheyAreWritten_data();
    void OwnFilesAreKnownHoweverTheyAreWritten();
    void OwnFilesAreKnownByAnotherPath();
#endif

private:
    QFile::Permissions Mode(const QString& strName) const
    {
        return QFile::permissions(Path(strName));
    }
};

#ifndef Q_OS_WIN

void tst_SettingsFile::ADocumentBehindALinkToNothingIsNotMissing()
{
    // The link may lead to a share that is not there now.
    QVERIFY(QFile::link(Path("share/settings.json"), Path("settings.json")));
    Put(Document(1), "settings.json.bak");
    ConfigService service(m_pFolder->path(), SettingsFile::ReadWrite);
    QCOMPARE(service.GetFile().GetProblems().size(), 1);
    QVERIFY(service.GetFile().StandsIn());
    QCOMPARE(GetBasic(service).clientSize, 1);
    SetClientSize(service, 0);
    QCOMPARE(service.SaveAll(), int(CErrorCode::Unreadable));
    QVERIFY(QFileInfo(Path("settings.json")).isSymLink());
    QVERIFY(!QFileInfo::exists(Path("settings.json")));
}

void tst_SettingsFile::ADocumentInAFolderBehindALinkToNothingIsNotMissing()
{
    QVERIFY(QFile::link(Path("unmounted"), Path("share")));
    const ConfigService service(Path("share"), SettingsFile::ReadOnly);
    QCOMPARE(service.GetFile().GetProblems().size(), 1);
    QVERIFY(service.GetFile().StandsIn());
    QVERIFY(!ConfigService(Path("missing/folder"), SettingsFile::ReadOnly).GetFile().StandsIn());
}

#endif

void tst_SettingsFile::ADocumentThatIsMissingWithAnUnusableLastGenerationIsTold()
{
    Put("damaged", "settings.json.bak");
    ConfigService service(m_pFolder->path(), SettingsFile::ReadWrite);
    QCOMPARE(service.GetFile().GetProblems().size(), 1);
    QVERIFY(service.GetFile().GetProblems().first().contains("the last good settings cannot be used"));
}

void tst_SettingsFile::DefaultsThatStandInAreKnown_data()
{
    QTest::addColumn<QByteArray>("document");
    QTest::addColumn<QByteArray>("lastGood");
    QTest::addColumn<bool>("bStandsIn");
    QTest::newRow("a first start") << QByteArray() << QByteArray() << false;
    QTest::newRow("a good document") << Document(1) << QByteArray() << false;
    QTest::newRow("missing, good before") << QByteArray() << Document(1) << false;
    QTest::newRow("missing, damaged before") << QByteArray() << QByteArray("damaged") << true;
    QTest::newRow("damaged, good before") << QByteArray("damaged") << Document(1) << false;
    QTest::newRow("damaged, nothing before") << QByteArray("damaged") << QByteArray() << true;
    QTest::newRow("damaged, damaged before") << QByteArray("damaged") << QByteArray("damaged") << true;
}

void tst_SettingsFile::DefaultsThatStandInAreKnown()
{
    QFETCH(QByteArray, document);
    QFETCH(QByteArray, lastGood);
    QFETCH(bool, bStandsIn);
    if (!document.isEmpty())
    {
        Put(document);
    }
    if (!lastGood.isEmpty())
    {
        Put(lastGood, "settings.json.bak");
    }
    QCOMPARE(ConfigService(m_pFolder->path(), SettingsFile::ReadOnly).GetFile().StandsIn(), bStandsIn);
    QCOMPARE(ConfigService(m_pFolder->path(), SettingsFile::ReadWrite).GetFile().StandsIn(), bStandsIn);
}

void tst_SettingsFile::ASavedDocumentNoLongerStandsIn()
{
    Put("damaged");
    ConfigService service(m_pFolder->path(), SettingsFile::ReadWrite);
    QVERIFY(service.GetFile().StandsIn());
    QCOMPARE(service.SaveAll(), 1);
    QVERIFY(!service.GetFile().StandsIn());
}

#ifndef Q_OS_WIN

void tst_SettingsFile::ADocumentThatIsALinkStaysOne_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("good") << Document(1);
    QTest::newRow("damaged") << QByteArray("damaged");
}

void tst_SettingsFile::ADocumentThatIsALinkStaysOne()
{
    QFETCH(QByteArray, content);
    QVERIFY(QDir().mkpath(Path("elsewhere")));
    Put(content, "elsewhere/real.json");
    QVERIFY(QFile::link("elsewhere/real.json", Path("settings.json")));
    {
        ConfigService service(m_pFolder->path(), SettingsFile::ReadWrite);
        SetClientSize(service, 0);
        QCOMPARE(service.SaveAll(), 1);
    }
    QVERIFY(QFileInfo(Path("settings.json")).isSymLink());
    QCOMPARE(GetFile("elsewhere/real.json"), Document(0));
    QCOMPARE(QDir(Path("elsewhere")).entryList(QDir::Files), QStringList{"real.json"});
}

void tst_SettingsFile::ALinkIsReadFromTheFolderThatItLiesIn_data()
{
    QTest::addColumn<QString>("strFolder");
    QTest::addColumn<QString>("strLink");
    QTest::newRow("the data folder is a link") << "data"
                                               << "../real.json";
    QTest::newRow("a link through a link") << "far/deep"
                                           << "elsewhere/../real.json";
}

void tst_SettingsFile::ALinkIsReadFromTheFolderThatItLiesIn()
{
    QFETCH(QString, strFolder);
    QFETCH(QString, strLink);
    QVERIFY(QDir().mkpath(Path("far/deep")));
    QVERIFY(QDir().mkpath(Path("far/other")));
    QVERIFY(QFile::link(Path("far/deep"), Path("data")));
    QVERIFY(QFile::link(Path("far/other"), Path("far/deep/elsewhere")));
    QVERIFY(QFile::link(strLink, Path("far/deep/settings.json")));
    Put(Document(1), "far/real.json");
    for (const char* pszWrong : {"real.json", "far/deep/real.json"})
    {
        Put("precious", pszWrong);
    }
    ConfigService service(Path(strFolder), SettingsFile::ReadWrite);
    SetClientSize(service, 0);
    QCOMPARE(service.SaveAll(), 1);
    QCOMPARE(GetFile("far/real.json"), Document(0));
    QCOMPARE(GetFile("far/deep/settings.json.bak"), Document(1));
    QCOMPARE(GetFile("real.json"), QByteArray("precious"));
    QCOMPARE(GetFile("far/deep/real.json"), QByteArray("precious"));
}

#endif

void tst_SettingsFile::ADamagedDocumentThatCannotBeReplacedStays()
{
    Put("damaged");
    QVERIFY(QFile::setPermissions(Path("settings.json"), QFile::ReadOwner));
    ConfigService service(m_pFolder->path(), SettingsFile::ReadWrite);
    SetClientSize(service, 0);
    QCOMPARE(service.SaveAll(), int(CErrorCode::NoPermission));
    QCOMPARE(GetFile(), QByteArray("damaged"));
    QCOMPARE(Names(), (QStringList{"settings.json", "settings.lock"}));
}

#ifndef Q_OS_WIN

void tst_SettingsFile::ADamagedDocumentBehindALinkIsKept()
{
    Put("damaged", "real.json");
    QVERIFY(QFile::link("real.json", Path("settings.json")));
    const ConfigService service(m_pFolder->path(), SettingsFile::ReadWrite);
    QCOMPARE(SetAside().size(), 1);
    QCOMPARE(GetFile(SetAside().first()), QByteArray("damaged"));
    QCOMPARE(GetFile("real.json"), Document(Settings()));
}

void tst_SettingsFile::GenerationsKeepTheMode()
{
    for (const QFile::Permissions mode :
         {QFile::ReadOwner | QFile::WriteOwner, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup})
    {
        Reset();
        Put(Document(1));
        QVERIFY(QFile::setPermissions(Path("settings.json"), mode));
        const QFile::Permissions before = Mode("settings.json");
        {
            ConfigService service(m_pFolder->path(), SettingsFile::ReadWrite);
            SetClientSize(service, 0);
            QCOMPARE(service.SaveAll(), 1);
        }
        QCOMPARE(Mode("settings.json"), before);
        QCOMPARE(Mode("settings.json.bak"), before);
        Put("damaged");
        const ConfigService service(m_pFolder->path(), SettingsFile::ReadWrite);
        QCOMPARE(Mode(SetAside().first()), before);
        QCOMPARE(Mode("settings.json"), before);
    }
}

void tst_SettingsFile::ANewDocumentHasTheModeOfTheLastGeneration()
{
    Put(Document(1), "settings.json.bak");
    QVERIFY(QFile::setPermissions(Path("settings.json.bak"), QFile::ReadOwner | QFile::WriteOwner));
    ConfigService service(m_pFolder->path(), SettingsFile::ReadWrite);
    QCOMPARE(service.SaveAll(), 1);
    QCOMPARE(Mode("settings.json"), Mode("settings.json.bak"));
}

void tst_SettingsFile::ALinkInPlaceOfTheLastGenerationIsNotWrittenThrough()
{
    Put(Document(1));
    Put("precious", "victim.txt");
    QVERIFY(QFile::link("victim.txt", Path("settings.json.bak")));
    ConfigService service(m_pFolder->path(), SettingsFile::ReadWrite);
    SetClientSize(service, 0);
    QCOMPARE(service.SaveAll(), 1);
    QCOMPARE(GetFile("victim.txt"), QByteArray("precious"));
    QCOMPARE(GetFile("settings.json.bak"), Document(1));
}

#endif

void tst_SettingsFile::AFolderInPlaceOfTheLastGenerationRefusesTheSave()
{
    Put(Document(1));
    QVERIFY(QDir().mkpath(Path("settings.json.bak")));
    ConfigService service(m_pFolder->path(), SettingsFile::ReadWrite);
    SetClientSize(service, 0);
    QCOMPARE(service.SaveAll(), int(CErrorCode::NotAFile));
    QCOMPARE(GetFile(), Document(1));
}

void tst_SettingsFile::LeftoversOfKilledSavesGoAtTheNextStart()
{
    Put(Document(1));
    for (const char* pszName : {"settings.json.tmp-01234567", "settings.json.bak.tmp-89abcdef",
                                "settings.json.damaged-20200101-000000-2.tmp-01234567", "Localcfg.ini.tmp-00000000"})
    {
        Put("half a", pszName);
    }
    Put("mine", "settings.json.tmp-notes.txt");
    Put("mine", "settings.json.tmp-my-notes");
    const ConfigService service(m_pFolder->path(), SettingsFile::ReadWrite);
    QCOMPARE(Names(), (QStringList{"settings.json", "settings.json.tmp-my-notes", "settings.json.tmp-notes.txt",
                                   "settings.lock"}));
}

#ifndef Q_OS_WIN

void tst_SettingsFile::LeftoversBehindAPlantedLinkStay()
{
    Put(Document(1));
    QVERIFY(QDir().mkpath(Path("elsewhere")));
    Put("precious", "elsewhere/victim.tmp-01234567");
    QVERIFY(QFile::link(Path("elsewhere/victim"), Path("settings.json.bak")));
    Put("half a", "settings.json.bak.tmp-01234567");
    const ConfigService service(m_pFolder->path(), SettingsFile::ReadWrite);
    QCOMPARE(GetFile("elsewhere/victim.tmp-01234567"), QByteArray("precious"));
    QVERIFY(Names().filter(".tmp-").isEmpty());
}

#endif

void tst_SettingsFile::LeftoversStayWhileAnotherClientMayBeWriting()
{
    const ConfigService first(m_pFolder->path(), SettingsFile::ReadWrite);
    Put("half a", "settings.json.tmp-01234567");
    const ConfigService second(m_pFolder->path(), SettingsFile::ReadWrite);
    QVERIFY(Names().contains("settings.json.tmp-01234567"));
}

#ifndef Q_OS_WIN

void tst_SettingsFile::OwnFilesAreKnownBehindLinks_data()
{
    QTest::addColumn<QString>("strTarget");
    QTest::addColumn<bool>("bOwn");
    QTest::newRow("the document") << "settings.json" << true;
    QTest::newRow("a document that is not there yet") << "settings.json.bak" << true;
    QTest::newRow("the lock") << "settings.lock" << true;
    QTest::newRow("a file of the user's") << "notes.json" << false;
}

void tst_SettingsFile::OwnFilesAreKnownBehindLinks()
{
    QFETCH(QString, strTarget);
    QFETCH(bool, bOwn);
    Put(Document(1));
    const ConfigService service(m_pFolder->path(), SettingsFile::ReadOnly);
    QCOMPARE(service.GetFile().IsOwnFile(Path(strTarget)), bOwn);
    QTemporaryDir other;
    QVERIFY(QFile::link(Path(strTarget), other.filePath("one")));
    QVERIFY(QFile::link("one", other.filePath("two")));
    QCOMPARE(service.GetFile().IsOwnFile(other.filePath("two")), bOwn);
}

#endif

#ifdef Q_OS_WIN

void tst_SettingsFile::OwnFilesAreKnownHoweverTheyAreWritten_data()
{
    QTest::addColumn<QString>("strName");
    QTest::addColumn<bool>("bOwn");
    QTest::newRow("letter case") << "SETTINGS.json" << true;
    QTest::newRow("final dot") << "settings.json." << true;
    QTest::newRow("final blank") << "settings.json " << true;
    QTest::newRow("stream") << "settings.json:notes" << true;
    QTest::newRow("the stream") << "settings.json::$DATA" << true;
    QTest::newRow("final dot of a missing file") << "settings.json.bak." << true;
    QTest::newRow("stream of a missing file") << "Localcfg.ini:notes" << true;
    QTest::newRow("set aside") << "SETTINGS.JSON.DAMAGED-20260101-000000." << true;
    QTest::newRow("short name") << QString() << true;
    QTest::newRow("another file") << "settings.json.txt" << false;
    QTest::newRow("a stream of another file") << "notes.txt:settings.json" << false;
}

void tst_SettingsFile::OwnFilesAreKnownHoweverTheyAreWritten()
{
    QFETCH(QString, strName);
    QFETCH(bool, bOwn);
    Put(Document(1));
    if (strName.isEmpty())
    {
        wchar_t szShort[MAX_PATH];
        const std::wstring path = QDir::toNativeSeparators(Path("settings.json")).toStdWString();
        QTRY_VERIFY(::GetShortPathNameW(path.c_str(), szShort, MAX_PATH) > 0); // Wine looks into every folder above
        strName = QFileInfo(QString::fromWCharArray(szShort)).fileName();
        QVERIFY(strName.compare("settings.json", Qt::CaseInsensitive) != 0);
    }
    const ConfigService service(m_pFolder->path(), SettingsFile::ReadOnly);
    QCOMPARE(service.GetFile().IsOwnFile(Path(strName)), bOwn);
}

void tst_SettingsFile::OwnFilesAreKnownByAnotherPath()
{
    Put(Document(1));
    const ConfigService service(m_pFolder->path(), SettingsFile::ReadOnly);
    const QString strFolder = R"(\\?\)" + QDir::toNativeSeparators(m_pFolder->path());
    QVERIFY(service.GetFile().IsOwnFile(strFolder + R"(\settings.json)"));
    QVERIFY(service.GetFile().IsOwnFile(strFolder + R"(\settings.json.bak)"));
    QVERIFY(!service.GetFile().IsOwnFile(strFolder + R"(\notes.txt)"));
}

#endif

QTEST_GUILESS_MAIN(tst_SettingsFile)

#include "tst_SettingsFile.moc"
