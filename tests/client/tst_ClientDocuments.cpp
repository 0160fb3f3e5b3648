// What the client does with whole documents and single settings from its command line, without a display.

#include "support/ChangedSettings.h"
#include "support/ClientProcess.h"

#include <client/store/ConfigService.h>
#include <client/store/SettingsSchema.h>

using namespace LocalConfigClient;

class tst_ClientDocuments : public CClientProcessTest
{
    Q_OBJECT

private slots:
    void init() { Reset(); }

    void DumpShowsDefaultsAtFirst();
    void ImportDumpExport();
    void SettingsAreChangedAndRead();
    void AWrongChangeChangesNothing_data();
    void AWrongChangeChangesNothing();
    void NothingIsChangedBesideAnotherClient();
    void NothingIsChangedWhereDefaultsStandIn();
    void TheSchemaIsPrinted();
    void ImportKeepsTheLastGeneration();

    void ADamagedDocumentIsReportedAndLeftAlone();
    void ImportOfADamagedDocumentLosesNothing();
    void ARefusedImportTellsWhatRefusesIt_data();
    void ARefusedImportTellsWhatRefusesIt();
    void ADocumentThatCannotBeReadIsNotExported_data();
    void ADocumentThatCannotBeReadIsNotExported();
#ifndef Q_OS_WIN // links need a right of their own there, and Wine makes none
    void AnOwnFileIsKnownBehindALink();
#endif
#ifndef Q_OS_WIN // pipes and devices stand in no folder there
    void AnExportToAStreamGoesThere_data();
    void AnExportToAStreamGoesThere();
    void AnExportToTheOutputAppendsWhereTheShellDoes();
    void AnExportToAFullDeviceFails();
#endif
    void AMissingFolderIsNotMade_data();
    void AMissingFolderIsNotMade();
    void AnImportMakesTheFolder();
#ifndef Q_OS_WIN // pipes and devices stand in no folder there
    void ADumpThatCannotBePrintedFails();
#endif
};

void tst_ClientDocuments::DumpShowsDefaultsAtFirst()
{
    const SRun run = Client({"--dump"});
    QCOMPARE(run.nExitCode, 0);
    QCOMPARE(run.listErrors, QStringList());
    QCOMPARE(run.output, Document(Settings()));
    QVERIFY2(Snapshot(m_pFolder->path()).isEmpty(), "looking writes nothing");
}

void tst_ClientDocuments::ImportDumpExport()
{
    const QByteArray document = Document(ChangedSettings());
    Put(m_pOther->filePath("in.json"), document);
    SRun run = Client({"--import", m_pOther->filePath("in.json")});
    QCOMPARE(run.listErrors, QStringList());
    QCOMPARE(run.nExitCode, 0);
    QCOMPARE(Client({"--dump"}).output, document);
    run = Client({"--export", m_pOther->filePath("out.json")});
    QCOMPARE(run.nExitCode, 0);
    QCOMPARE(Snapshot(m_pOther->path()).value("out.json"), document);
}

void tst_ClientDocuments::SettingsAreChangedAndRead()
{
    Put(Path("settings.json"), Document(ChangedSettings()));
    SRun run = Client({"--set", "video.nDefaultSplit=9", "--set", u8"snapshot.picturePath=/a b/\u5ba2"});
    QCOMPARE(run.listErrors, QStringList());
    QCOMPARE(run.nExitCode, 0);
    Settings expected = ChangedSettings();
    expected.video.nDefaultSplit = 9;
    expected.snapshot.picturePath = u8"/a b/\u5ba2";
    QCOMPARE(Snapshot(m_pFolder->path()).value("settings.json"), Document(expected));
    QCOMPARE(Client({"--get", "video.nDefaultSplit"}).output, QByteArray("9\n"));
    run = Client({"--get", "snapshot.picturePath"});
    QCOMPARE(run.output, QByteArray(u8"/a b/\u5ba2\n"));
    QCOMPARE(run.listErrors, QStringList());
}

void tst_ClientDocuments::AWrongChangeChangesNothing_data()
{
    QTest::addColumn<QStringList>("listArguments");
    QTest::addColumn<QString>("strNamed");
    QTest::newRow("read an unknown name") << QStringList{"--get", "video.n"} << "video.n";
    QTest::newRow("unknown name") << QStringList{"--set", "video.n=1"} << "video.n";
    QTest::newRow("impossible value") << QStringList{"--set", "video.nDefaultSplit=x"} << "video.nDefaultSplit";
    QTest::newRow("a good one and a wrong one")
        << QStringList{"--set", "video.nDefaultSplit=9", "--set", "video.n=1"} << "video.n";
}

void tst_ClientDocuments::AWrongChangeChangesNothing()
{
    QFETCH(QStringList, listArguments);
    QFETCH(QString, strNamed);
    const SRun run = Client(listArguments);
    QCOMPARE(run.nExitCode, 1);
    QCOMPARE(run.listErrors.size(), 1);
    QVERIFY2(run.listErrors.first().contains(strNamed), qPrintable(run.listErrors.first()));
    QCOMPARE(run.output, QByteArray());
    QVERIFY(Snapshot(m_pFolder->path()).isEmpty());
}

void tst_ClientDocuments::NothingIsChangedBesideAnotherClient()
{
    const ConfigService other(m_pFolder->path(), SettingsFile::ReadWrite);
    const SRun run = Client({"--set", "video.nDefaultSplit=9"});
    QCOMPARE(run.nExitCode, 1);
    QCOMPARE(run.listErrors.size(), 1);
    QVERIFY2(run.listErrors.first().contains("nother client"), qPrintable(run.listErrors.first()));
    QVERIFY(!QFile::exists(Path("settings.json")));
}

void tst_ClientDocuments::NothingIsChangedWhereDefaultsStandIn()
{
    Put(Path("settings.json"), "damaged");
    for (const QStringList& listArguments :
         {QStringList{"--set", "video.nDefaultSplit=9"}, QStringList{"--get", "video.nDefaultSplit"}})
    {
        const SRun run = Client(listArguments);
        QCOMPARE(run.nExitCode, 1);
        QCOMPARE(run.output, QByteArray());
        QCOMPARE(run.listErrors.size(), 1);
        QVERIFY2(run.listErrors.first().contains("damaged"), qPrintable(run.listErrors.first()));
        QCOMPARE(Snapshot(m_pFolder->path()).value("settings.json"), QByteArray("damaged"));
    }
}

void tst_ClientDocuments::TheSchemaIsPrinted()
{
    const SRun run = Client({"--schema"});
    QCOMPARE(run.nExitCode, 0);
    QCOMPARE(run.output, GetSettingsSchema());
    QVERIFY(Snapshot(m_pFolder->path()).isEmpty());
}

void tst_ClientDocuments::ImportKeepsTheLastGeneration()
{
    Put(Path("settings.json"), Document(Settings()));
    Put(m_pOther->filePath("in.json"), Document(ChangedSettings()));
    QCOMPARE(Client({"--import", m_pOther->filePath("in.json")}).nExitCode, 0);
    QCOMPARE(Snapshot(m_pFolder->path()).value("settings.json.bak"), Document(Settings()));
}

void tst_ClientDocuments::ADamagedDocumentIsReportedAndLeftAlone()
{
    Put(Path("settings.json"), "{\"version\": 1, \"sec");
    Put(Path("settings.json.bak"), Document(ChangedSettings()));
    const QMap<QString, QByteArray> mapBefore = Snapshot(m_pFolder->path());
    const SRun run = Client({"--dump"});
    QCOMPARE(run.nExitCode, 0);
    QCOMPARE(run.listErrors.size(), 1);
    QCOMPARE(run.output, Document(ChangedSettings()));
    QCOMPARE(Snapshot(m_pFolder->path()), mapBefore);
}

void tst_ClientDocuments::ImportOfADamagedDocumentLosesNothing()
{
    Put(Path("settings.json"), Document(ChangedSettings()));
    Put(m_pOther->filePath("in.json"), R"({"version": 1, "sections": {"basic": {"skin": []}}})");
    const QMap<QString, QByteArray> mapBefore = Snapshot(m_pFolder->path());
    const SRun run = Client({"--import", m_pOther->filePath("in.json")});
    QCOMPARE(run.nExitCode, 1);
    QCOMPARE(run.listErrors.size(), 1);
    QVERIFY(run.listErrors.first().contains("sections.basic.skin"));
    QCOMPARE(Snapshot(m_pFolder->path()), mapBefore);
}

void tst_ClientDocuments::ARefusedImportTellsWhatRefusesIt_data()
{
    QTest::addColumn<QByteArray>("document"); // empty: a folder
    QTest::addColumn<QString>("strFolder");
    QTest::addColumn<QString>("strReason");
    QTest::newRow("a newer document") << QByteArray(R"({"version": 2, "sections": {}})") << QString()
                                      << "newer version";
    QTest::newRow("a folder in place of the document") << QByteArray() << "settings.json"
                                                       << "settings file cannot be read";
    QTest::newRow("a folder in place of the last good one") << Document(Settings()) << "settings.json.bak"
                                                            << "settings.json.bak";
    QTest::newRow("and rights that cannot be understood")
        << QByteArray(R"({"version": 1, "missingRights": 1, "sections": {}})") << "settings.json.bak"
        << "settings.json.bak";
}

void tst_ClientDocuments::ARefusedImportTellsWhatRefusesIt()
{
    QFETCH(QByteArray, document);
    QFETCH(QString, strFolder);
    QFETCH(QString, strReason);
    if (!document.isEmpty())
    {
        Put(Path("settings.json"), document);
    }
    QVERIFY(strFolder.isEmpty() || QDir().mkdir(Path(strFolder)));
    Put(m_pOther->filePath("in.json"), Document(ChangedSettings()));
    const SRun run = Client({"--import", m_pOther->filePath("in.json")});
    QCOMPARE(run.nExitCode, 1);
    QCOMPARE(run.listErrors.size(), 1);
    QVERIFY2(run.listErrors.first().contains(strReason), qPrintable(run.listErrors.first()));
}

void tst_ClientDocuments::ADocumentThatCannotBeReadIsNotExported_data()
{
    QTest::addColumn<bool>("bNewer");
    QTest::newRow("newer") << true;
    QTest::newRow("a folder in its place") << false;
}

void tst_ClientDocuments::ADocumentThatCannotBeReadIsNotExported()
{
    QFETCH(bool, bNewer);
    if (bNewer)
    {
        Put(Path("settings.json"), R"({"version": 2, "sections": {}})");
    }
    else
    {
        QVERIFY(QDir(m_pFolder->path()).mkdir("settings.json"));
    }
    Put(m_pOther->filePath("out.json"), "an older export");
    for (const QStringList& listAction :
         {QStringList{"--dump"}, QStringList{"--export", m_pOther->filePath("out.json")}})
    {
        const SRun run = Client(listAction);
        QCOMPARE(run.nExitCode, 1);
        QCOMPARE(run.listErrors.size(), 1);
        QVERIFY(run.output.isEmpty());
    }
    QCOMPARE(Snapshot(m_pOther->path()).value("out.json"), QByteArray("an older export"));
}

#ifndef Q_OS_WIN

void tst_ClientDocuments::AnOwnFileIsKnownBehindALink()
{
    Put(Path("settings.json"), Document(ChangedSettings()));
    QVERIFY(QFile::link(m_pFolder->path(), m_pOther->filePath("folder")));
    QVERIFY(QFile::link(Path("settings.json"), m_pOther->filePath("file.json")));
    const QMap<QString, QByteArray> mapBefore = Snapshot(m_pFolder->path());
    for (const char* pszName : {"folder/settings.json", "folder/settings.json.bak", "file.json"})
    {
        const SRun run = Client({"--export", m_pOther->filePath(pszName)});
        QCOMPARE(run.nExitCode, 1);
        QCOMPARE(run.listErrors.size(), 1);
        QCOMPARE(Snapshot(m_pFolder->path()), mapBefore);
    }
    QCOMPARE(Client({"--export", Path("copy.json")}).nExitCode, 0);
}

void tst_ClientDocuments::AnExportToAStreamGoesThere_data()
{
    QTest::addColumn<QString>("strCommand");
    QTest::newRow("output") << QString("\"$0\" --data-dir \"$1\" --export /dev/stdout");
    QTest::newRow("error output") << QString("\"$0\" --data-dir \"$1\" --export /dev/stderr 2>&1");
    QTest::newRow("file descriptor") << QString("\"$0\" --data-dir \"$1\" --export /dev/fd/3 3>&1");
    QTest::newRow("pipe with a name") << QString(
        "mkfifo \"$1/p\" && (cat \"$1/p\" & \"$0\" --data-dir \"$1\" --export \"$1/p\" && wait)");
}

void tst_ClientDocuments::AnExportToAStreamGoesThere()
{
    QFETCH(QString, strCommand);
    Put(Path("settings.json"), Document(ChangedSettings()));
    QProcess process;
    process.setProcessEnvironment(m_environment);
    process.start("sh", {"-c", strCommand, QString::fromLocal8Bit(qgetenv("KV_CLIENT")), m_pFolder->path()});
    QVERIFY(process.waitForFinished(30000));
    QCOMPARE(process.readAllStandardError(), QByteArray());
    QCOMPARE(process.exitCode(), 0);
    QCOMPARE(process.readAllStandardOutput(), Document(ChangedSettings()));
}

void tst_ClientDocuments::AnExportToTheOutputAppendsWhereTheShellDoes()
{
    Put(Path("settings.json"), Document(ChangedSettings()));
    Put(m_pOther->filePath("log"), "before\n");
    QProcess process;
    process.setProcessEnvironment(m_environment);
    process.setStandardOutputFile(m_pOther->filePath("log"), QIODevice::Append);
    process.start(QString::fromLocal8Bit(qgetenv("KV_CLIENT")),
                  {"--export", "/dev/stdout", "--data-dir", m_pFolder->path()});
    QVERIFY(process.waitForFinished(30000));
    QCOMPARE(process.exitCode(), 0);
    QCOMPARE(Snapshot(m_pOther->path()).value("log"), "before\n" + Document(ChangedSettings()));
}

void tst_ClientDocuments::AnExportToAFullDeviceFails()
{
    const SRun run = Client({"--export", "/dev/full"});
    QCOMPARE(run.nExitCode, 1);
    QCOMPARE(run.listErrors.size(), 1);
    QVERIFY2(run.listErrors.first().contains("/dev/full"), qPrintable(run.listErrors.first()));
    QVERIFY2(run.listErrors.first().contains("the disk is full"), qPrintable(run.listErrors.first()));
}

#endif

void tst_ClientDocuments::AMissingFolderIsNotMade_data()
{
    QTest::addColumn<QStringList>("listAction");
    QTest::newRow("dump") << QStringList{"--dump"};
    QTest::newRow("export") << QStringList{"--export", "out.json"};
    QTest::newRow("import of nothing") << QStringList{"--import", "/no/such/file"};
}

void tst_ClientDocuments::AMissingFolderIsNotMade()
{
    QFETCH(QStringList, listAction);
    const SRun run = Run(listAction << "--data-dir" << Path("mistyped"), m_environment, m_pOther->path());
    QCOMPARE(run.nExitCode, 1);
    QCOMPARE(run.listErrors.size(), 1);
    QVERIFY(!QFile::exists(Path("mistyped")));
}

void tst_ClientDocuments::AnImportMakesTheFolder()
{
    Put(m_pOther->filePath("in.json"), Document(ChangedSettings()));
    const QStringList listFolder{"--data-dir", Path("new/folder")};
    const SRun run = Run(QStringList{"--import", m_pOther->filePath("in.json")} + listFolder, m_environment);
    QCOMPARE(run.listErrors, QStringList());
    QCOMPARE(run.nExitCode, 0);
    QCOMPARE(Run(QStringList{"--dump"} + listFolder, m_environment).output, Document(ChangedSettings()));
}

#ifndef Q_OS_WIN

void tst_ClientDocuments::ADumpThatCannotBePrintedFails()
{
    QProcess process;
    process.setProcessEnvironment(m_environment);
    process.setStandardOutputFile("/dev/full");
    process.start(QString::fromLocal8Bit(qgetenv("KV_CLIENT")), {"--dump", "--data-dir", m_pFolder->path()});
    QVERIFY(process.waitForFinished(100000));
    QCOMPARE(process.exitCode(), 1);
}

#endif

QTEST_GUILESS_MAIN(tst_ClientDocuments)

#include "tst_ClientDocuments.moc"
