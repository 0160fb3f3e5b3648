#include "support/ChangedSettings.h"
#include "support/ClientProcess.h"

#include <QImage>

using namespace LocalConfigClient;

namespace
{

int Colors(const QString& strPicture)
{
    const QImage image(strPicture);
    QSet<QRgb> setColors;
    for (int y = 0; y < image.height(); y += 2)
    {
        for (int x = 0; x < image.width(); x += 2)
        {
            setColors.insert(image.pixel(x, y));
        }
    }
    return setColors.size();
}

} // namespace

class tst_Client : public CClientProcessTest
{
    Q_OBJECT

private slots:
    void init() { Reset(); }

#ifdef Q_OS_UNIX
    void AWindowThatOpensSaysNothing();
#endif
    void PathsAreThoseOfTheCaller();
    void ScreenshotShowsTheDialog_data();
    void ScreenshotShowsTheDialog();
    void ScreenshotOfASection();
    void ScreenshotWithoutADisplay_data();
    void ScreenshotWithoutADisplay();
    void TheSkinOfTheIniFileIsUsed();
    void TheLanguageIsUsed();
    void HelpAndVersion();

    void BadInput_data();
    void BadInput();
    void MessagesAreInTheLanguageOfTheIniFile();
    void MessagesAreInTheEncodingOfTheOutput();
    void NamesOfManyScriptsAreUnderstood();
    void RightsOfTheDocument();
    void RightsThatCannotBeUnderstoodAreMissing_data();
    void RightsThatCannotBeUnderstoodAreMissing();
#ifndef Q_OS_WIN // links need a right of their own there, and Wine makes none
    void AnUnusableCatalogueIsTold();
#endif
#ifndef Q_OS_WIN // there is always a display there
    void WithoutADisplayTheWindowSaysSo_data();
    void WithoutADisplayTheWindowSaysSo();
#endif
    void TheResourceFolderIsThatOfTheCaller();
#ifndef Q_OS_WIN // where every name is text
    void ANameThatIsNoTextIsRefused_data();
    void ANameThatIsNoTextIsRefused();
#endif
};

#ifdef Q_OS_UNIX

void tst_Client::AWindowThatOpensSaysNothing()
{
    m_environment.remove("QT_LOGGING_RULES");
    m_environment.remove("XDG_RUNTIME_DIR");
    m_environment.insert("QT_QPA_PLATFORM", "offscreen");
    QProcess process;
    process.setProcessEnvironment(m_environment);
    process.start(QString::fromLocal8Bit(qgetenv("KV_CLIENT")), {"--data-dir", m_pFolder->path()});
    QVERIFY(process.waitForStarted());
    QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(Path("Sound/sound_en/video.wav")), 20000);
    QTest::qWait(1000); // for the dialog over the window
    process.terminate();
    QVERIFY(process.waitForFinished(20000));
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.readAllStandardError(), QByteArray());
}

#endif

void tst_Client::PathsAreThoseOfTheCaller()
{
    QVERIFY(QDir(m_pOther->path()).mkdir("data"));
    Put(m_pOther->filePath("data/settings.json"), Document(ChangedSettings()));
    const SRun run = Run({"--export", "out.json", "--data-dir", "data"}, m_environment, m_pOther->path());
    QCOMPARE(run.listErrors, QStringList());
    QCOMPARE(Snapshot(m_pOther->path()).value("out.json"), Document(ChangedSettings()));
}

void tst_Client::ScreenshotShowsTheDialog_data()
{
    QTest::addColumn<QString>("strSkin");
    QTest::addColumn<QByteArray>("scale");
    for (const char* pszSkin : {"DustyBlue", "White"})
    {
        for (const char* pszScale : {"1", "1.5", "2"})
        {
            QTest::addRow("%s at %s", pszSkin, pszScale) << pszSkin << QByteArray(pszScale);
        }
    }
}

void tst_Client::ScreenshotShowsTheDialog()
{
    QFETCH(QString, strSkin);
    QFETCH(QByteArray, scale);
    m_environment.insert("QT_SCALE_FACTOR", QString::fromLatin1(scale));
    const SRun run = Client({"--screenshot", m_pOther->filePath("a.png"), "--skin", strSkin});
    QCOMPARE(run.listErrors, QStringList());
    QCOMPARE(run.nExitCode, 0);
    const QImage image(m_pOther->filePath("a.png"));
    QVERIFY(qAbs(image.width() - 945 * scale.toDouble()) <= 2);
    QVERIFY(image.height() > 680 * scale.toDouble());
    QVERIFY(Colors(m_pOther->filePath("a.png")) > 50);
    const int nBackground = qGray(image.pixel(image.width() / 2, image.height() - 30));
    QVERIFY(strSkin == "White" ? nBackground > 200 : nBackground < 60);
}

void tst_Client::ScreenshotOfASection()
{
    Client({"--screenshot", m_pOther->filePath("first.png")});
    Client({"--screenshot", m_pOther->filePath("last.png"), "--section", "8"});
    const QImage first(m_pOther->filePath("first.png"));
    const QImage last(m_pOther->filePath("last.png"));
    QCOMPARE(first.size(), last.size());
    QVERIFY(first != last);
}

void tst_Client::ScreenshotWithoutADisplay_data()
{
    QTest::addColumn<QString>("strDisplay");
    QTest::newRow("none") << QString();
    QTest::newRow("one that is not there") << ":4242";
}

void tst_Client::ScreenshotWithoutADisplay()
{
    QFETCH(QString, strDisplay);
    for (const char* pszName : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "QT_LOGGING_RULES"})
    {
        m_environment.remove(pszName);
    }
    if (!strDisplay.isEmpty())
    {
        m_environment.insert("DISPLAY", strDisplay);
    }
    const SRun run = Client({"--screenshot", m_pOther->filePath("a.png")});
    QCOMPARE(run.listErrors, QStringList());
    QCOMPARE(run.nExitCode, 0);
    QVERIFY(!QImage(m_pOther->filePath("a.png")).isNull());
}

void tst_Client::TheSkinOfTheIniFileIsUsed()
{
    Client({"--screenshot", m_pOther->filePath("dark.png")});
    Put(Path("Localcfg.ini"), "[Skin]\nversion=White\n");
    Client({"--screenshot", m_pOther->filePath("white.png")});
    const QImage dark(m_pOther->filePath("dark.png"));
    const QImage white(m_pOther->filePath("white.png"));
    QVERIFY(qGray(dark.pixel(400, 690)) < 60);
    QVERIFY(qGray(white.pixel(400, 690)) > 200);
}

void tst_Client::TheLanguageIsUsed()
{
    QList<QImage> listPictures;
    for (const char* pszLanguage : {"en", "zh_CN", "es", "ar"})
    {
        const QString strFile = m_pOther->filePath(QString(pszLanguage) + ".png");
        QCOMPARE(Client({"--screenshot", strFile, "--language", pszLanguage}).nExitCode, 0);
        const QImage picture(strFile);
        QVERIFY(!picture.isNull());
        QVERIFY2(!listPictures.contains(picture), pszLanguage);
        listPictures += picture;
        QCOMPARE(picture.size(), listPictures.first().size());
    }
}

void tst_Client::HelpAndVersion()
{
    QVERIFY(Client({"--help"}).output.contains("--without-right"));
    QCOMPARE(Client({"--version"}).output.trimmed(), QByteArray("local-config-client 1.0.0"));
}

void tst_Client::BadInput_data()
{
    QTest::addColumn<QStringList>("listArguments");
    QTest::addColumn<int>("nExitCode");
    QTest::newRow("unknown option") << QStringList{"--colour"} << 2;
    QTest::newRow("two actions") << QStringList{"--dump", "--import", "x"} << 2;
    QTest::newRow("section out of range") << QStringList{"--screenshot", "x.png", "--section", "9"} << 2;
    QTest::newRow("import of nothing") << QStringList{"--import", "/no/such/file"} << 1;
    QTest::newRow("import of a folder") << QStringList{"--import", "/tmp"} << 1;
    QTest::newRow("import of a device") << QStringList{"--import", "/dev/zero"} << 1;
    QTest::newRow("export over its own document") << QStringList{"--export", "settings.json"} << 1;
    QTest::newRow("export over its lock") << QStringList{"--export", "settings.lock"} << 1;
    QTest::newRow("export over what was set aside") << QStringList{"--export", "settings.json.damaged-1"} << 1;
    QTest::newRow("export over its ini file") << QStringList{"--export", "Localcfg.ini"} << 1;
    QTest::newRow("screenshot over its own document") << QStringList{"--screenshot", "settings.json"} << 1;
    QTest::newRow("import of a name with a line feed") << QStringList{"--import", "no\nfile"} << 1;
    QTest::newRow("export to a name with a line feed") << QStringList{"--export", "no\nfolder/file"} << 1;
    QTest::newRow("export to nowhere") << QStringList{"--export", "/no/such/folder/file"} << 1;
    QTest::newRow("screenshot to nowhere") << QStringList{"--screenshot", "/no/such/folder/file.png"} << 1;
}

void tst_Client::BadInput()
{
    QFETCH(QStringList, listArguments);
    QFETCH(int, nExitCode);
    Put(Path("settings.json"), Document(ChangedSettings()));
    const QMap<QString, QByteArray> mapBefore = Snapshot(m_pFolder->path());
    const SRun run = Run(listArguments << "--data-dir" << m_pFolder->path(), m_environment, m_pFolder->path());
    QCOMPARE(run.nExitCode, nExitCode);
    QCOMPARE(run.listErrors.size(), 1);
    QVERIFY2(run.listErrors.first().startsWith("local-config-client: "), qPrintable(run.listErrors.first()));
    QVERIFY(run.output.isEmpty());
    QCOMPARE(Snapshot(m_pFolder->path()), mapBefore);
}

void tst_Client::MessagesAreInTheLanguageOfTheIniFile()
{
    const QStringList listBad{"--export", "/no/such/folder/file"};
    const QStringList listEnglish = Client(listBad).listErrors;
    Put(Path("Localcfg.ini"), "[Language]\ntype=1\n");
    const QStringList listChinese = Client(listBad).listErrors;
    QVERIFY2(listEnglish.value(0).contains("the folder does not exist"), qPrintable(listEnglish.value(0)));
    QCOMPARE(listChinese.size(), 1);
    QVERIFY(listChinese != listEnglish);
}

void tst_Client::MessagesAreInTheEncodingOfTheOutput()
{
    const QString strFile = Path(QString::fromUtf8("客户-клиент.json"));
    const SRun run = Client({"--language", "zh_CN", "--import", strFile});
    QCOMPARE(run.listErrors.size(), 1);
    QVERIFY2(run.listErrors.first().contains(QString::fromUtf8("无法读取“%1”").arg(strFile)),
             qPrintable(run.listErrors.first()));
}

void tst_Client::NamesOfManyScriptsAreUnderstood()
{
    const QString strFolder = m_pOther->filePath(QString::fromUtf8("客户 клиент été"));
    const QByteArray document = Document(ChangedSettings());
    Put(m_pOther->filePath("in.json"), document);
    QCOMPARE(Run({"--import", m_pOther->filePath("in.json"), "--data-dir", strFolder}, m_environment).nExitCode, 0);
    QCOMPARE(Snapshot(strFolder).value("settings.json"), document);
    QCOMPARE(Run({"--dump", "--data-dir", strFolder}, m_environment).output, document);
    const QString strCopy = QDir(strFolder).filePath(QString::fromUtf8("ελληνικά.json"));
    QCOMPARE(Run({"--export", strCopy, "--data-dir", strFolder}, m_environment).nExitCode, 0);
    QCOMPARE(Snapshot(strFolder).value(QFileInfo(strCopy).fileName()), document);
}

void tst_Client::RightsOfTheDocument()
{
    Put(Path("settings.json"), R"({"version": 1, "missingRights": [26], "sections": {}})");
    Client({"--screenshot", m_pOther->filePath("without.png")});
    Put(Path("settings.json"), R"({"version": 1, "sections": {}})");
    Client({"--screenshot", m_pOther->filePath("with.png")});
    const QImage with(m_pOther->filePath("with.png"));
    const QImage without(m_pOther->filePath("without.png"));
    QVERIFY(!with.isNull());
    QCOMPARE(without.size(), with.size());
    QVERIFY(without != with);
}

void tst_Client::RightsThatCannotBeUnderstoodAreMissing_data()
{
    QTest::addColumn<QByteArray>("rights");
    QTest::newRow("a text") << QByteArray(R"("26, 45")");
    QTest::newRow("texts") << QByteArray(R"(["26"])");
    QTest::newRow("a number") << QByteArray("26");
}

void tst_Client::RightsThatCannotBeUnderstoodAreMissing()
{
    QFETCH(QByteArray, rights);
    Put(Path("settings.json"), R"({"version": 1, "missingRights": [26, 45], "sections": {}})");
    Client({"--screenshot", m_pOther->filePath("without.png")});
    Put(Path("settings.json"), R"({"version": 1, "missingRights": )" + rights + R"(, "sections": {}})");
    const SRun run = Client({"--screenshot", m_pOther->filePath("unknown.png")});
    QCOMPARE(run.nExitCode, 0);
    QCOMPARE(run.listErrors.size(), 1);
    QVERIFY2(run.listErrors.first().contains("rights"), qPrintable(run.listErrors.first()));
    const QImage without(m_pOther->filePath("without.png"));
    QVERIFY(!without.isNull());
    QCOMPARE(QImage(m_pOther->filePath("unknown.png")), without);
}

#ifndef Q_OS_WIN

void tst_Client::AnUnusableCatalogueIsTold()
{
    QVERIFY(QDir(m_pOther->path()).mkdir("resources"));
    const QDir shipped(QString::fromLocal8Bit(qgetenv("KV_CLIENT_RESOURCES")));
    const QString strFolder = m_pOther->filePath("resources");
    QVERIFY(QFile::link(shipped.filePath("skin"), strFolder + "/skin"));
    Put(strFolder + "/AlarmTypes.xml", "<AlarmTypes><Cate");
    m_environment.insert("KV_CLIENT_RESOURCES", strFolder);
    const SRun run = Client({"--screenshot", m_pOther->filePath("a.png")});
    QCOMPARE(run.nExitCode, 0); // the picture shows what the operator sees
    QVERIFY(!QImage(m_pOther->filePath("a.png")).isNull());
    QCOMPARE(run.listErrors.size(), 1);
    QVERIFY2(run.listErrors.first().contains("AlarmTypes.xml"), qPrintable(run.listErrors.first()));
}

#endif

void tst_Client::TheResourceFolderIsThatOfTheCaller()
{
    const QDir shipped(QString::fromLocal8Bit(qgetenv("KV_CLIENT_RESOURCES")));
    m_environment.insert("KV_CLIENT_RESOURCES", shipped.dirName());
    const SRun run = Run({"--screenshot", m_pOther->filePath("a.png"), "--data-dir", m_pFolder->path()}, m_environment,
                         QFileInfo(shipped.path()).path());
    QCOMPARE(run.listErrors, QStringList());
    QCOMPARE(run.nExitCode, 0);
    QVERIFY(Colors(m_pOther->filePath("a.png")) > 50);
}

#ifndef Q_OS_WIN

void tst_Client::ANameThatIsNoTextIsRefused_data()
{
    QTest::addColumn<QString>("strCommand");
    QTest::newRow("data folder") << QString(R"("$KV_CLIENT" --import in.json --data-dir "$NAME")");
    QTest::newRow("exported file") << QString(R"("$KV_CLIENT" --data-dir . --export "$NAME")");
    QTest::newRow("own folder") << QString(R"(XDG_DATA_HOME="$PWD/$NAME" "$KV_CLIENT" --screenshot a.png)");
    QTest::newRow("folder that it is started in")
        << QString(R"(mkdir "$NAME" && cd "$NAME" && "$KV_CLIENT" --data-dir . --import ../in.json; s=$?;
                      cd .. && rmdir "$NAME" && exit $s)");
}

void tst_Client::ANameThatIsNoTextIsRefused()
{
    QFETCH(QString, strCommand);
    Put(m_pOther->filePath("in.json"), Document(ChangedSettings()));
    const QStringList listBefore = QDir(m_pOther->path()).entryList(QDir::AllEntries | QDir::Hidden);
    QProcess process;
    process.setProcessEnvironment(m_environment);
    process.setWorkingDirectory(m_pOther->path());
    process.start("sh", {"-c", R"(NAME=$(printf 'caf\351'); )" + strCommand});
    QVERIFY(process.waitForFinished(30000));
    QCOMPARE(process.exitCode(), 1);
    QCOMPARE(process.readAllStandardError().count('\n'), 1);
    QCOMPARE(QDir(m_pOther->path()).entryList(QDir::AllEntries | QDir::Hidden), listBefore);
}

#endif

#ifndef Q_OS_WIN

void tst_Client::WithoutADisplayTheWindowSaysSo_data()
{
    QTest::addColumn<QString>("strName");
    QTest::addColumn<QString>("strValue");
    QTest::newRow("none") << QString() << QString();
    QTest::newRow("one that is not there") << "DISPLAY"
                                           << ":4242";
    QTest::newRow("an unknown kind") << "QT_QPA_PLATFORM"
                                     << "none";
}

void tst_Client::WithoutADisplayTheWindowSaysSo()
{
    QFETCH(QString, strName);
    QFETCH(QString, strValue);
    for (const char* pszName : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "QT_LOGGING_RULES"})
    {
        m_environment.remove(pszName);
    }
    if (!strName.isEmpty())
    {
        m_environment.insert(strName, strValue);
    }
    const SRun run = Client({});
    QCOMPARE(run.nExitCode, 1);
    QCOMPARE(run.listErrors.size(), 1);
    QVERIFY(run.listErrors.first().contains("--screenshot"));
}

#endif

QTEST_GUILESS_MAIN(tst_Client)

#include "tst_Client.moc"
