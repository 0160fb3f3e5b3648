#include <client/CommandLine.h>

#include <QtTest>

using LocalConfigClient::CommandLine;

class tst_CommandLine : public QObject
{
    Q_OBJECT

private slots:
    void NothingOpensTheWindow();
    void Actions_data();
    void Actions();
    void OneSettingIsRead();
    void SettingsAreChanged();
    void Options();
    void Servers_data();
    void Servers();
    void BadInputGetsOneLine_data();
    void BadInputGetsOneLine();
    void HelpNamesEveryOption();
    void HelpTellsDefaultsSectionsAndEnvironment();
    void SectionsHaveNames_data();
    void SectionsHaveNames();
};

void tst_CommandLine::NothingOpensTheWindow()
{
    CommandLine result;
    QString strError;
    QVERIFY(CommandLine::Parse({}, result, strError));
    QCOMPARE(result.eAction, CommandLine::OpenWindow);
    QCOMPARE(result.nSection, -1);
    QVERIFY(result.strHost.isEmpty() && result.strSkin.isEmpty() && result.strLanguage.isEmpty());
    QVERIFY(result.setMissingRights.isEmpty());
}

void tst_CommandLine::Actions_data()
{
    QTest::addColumn<QStringList>("listArguments");
    QTest::addColumn<int>("nAction");
    QTest::addColumn<QString>("strFile");
    QTest::newRow("screenshot") << QStringList{"--screenshot", "a.png"} << int(CommandLine::Screenshot) << "a.png";
    QTest::newRow("equals") << QStringList{"--screenshot=a.png"} << int(CommandLine::Screenshot) << "a.png";
    QTest::newRow("dump") << QStringList{"--dump"} << int(CommandLine::Dump) << QString();
    QTest::newRow("import") << QStringList{"--import", "a b.json"} << int(CommandLine::Import) << "a b.json";
    QTest::newRow("export") << QStringList{"--export", "b.json"} << int(CommandLine::Export) << "b.json";
    QTest::newRow("schema") << QStringList{"--schema"} << int(CommandLine::ShowSchema) << QString();
    QTest::newRow("help") << QStringList{"--help"} << int(CommandLine::ShowHelp) << QString();
    QTest::newRow("version") << QStringList{"--version"} << int(CommandLine::ShowVersion) << QString();
    QTest::newRow("h") << QStringList{"-h"} << int(CommandLine::ShowHelp) << QString();
    QTest::newRow("v") << QStringList{"-v"} << int(CommandLine::ShowVersion) << QString();
}

void tst_CommandLine::Actions()
{
    QFETCH(QStringList, listArguments);
    QFETCH(int, nAction);
    QFETCH(QString, strFile);
    CommandLine result;
    QString strError;
    QVERIFY2(CommandLine::Parse(listArguments, result, strError), qPrintable(strError));
    QCOMPARE(int(result.eAction), nAction);
    QCOMPARE(result.strFile, strFile);
}

void tst_CommandLine::OneSettingIsRead()
{
    CommandLine result;
    QString strError;
    QVERIFY2(CommandLine::Parse({"--get", "video.nDefaultSplit"}, result, strError), qPrintable(strError));
    QCOMPARE(result.eAction, CommandLine::Get);
    QCOMPARE(result.strSetting, QString("video.nDefaultSplit"));
}

void tst_CommandLine::SettingsAreChanged()
{
    CommandLine result;
    QString strError;
    QVERIFY2(CommandLine::Parse({"--set", "a.b=1=2", "--set=c="}, result, strError), qPrintable(strError));
    QCOMPARE(result.eAction, CommandLine::Set);
    QCOMPARE(result.listChanges, (QList<QPair<QString, QString>>{{"a.b", "1=2"}, {"c", ""}}));
    QVERIFY(result.strFile.isEmpty());
}

void tst_CommandLine::Options()
{
    CommandLine result;
    QString strError;
    QVERIFY(CommandLine::Parse({"--screenshot", "a.png", "--section", "8", "--skin", "White", "--language", "zh_CN",
                                "--without-right", "26", "--without-right", "45", "--platform", "server:80",
                                "--data-dir", "/data"},
                               result, strError));
    QCOMPARE(result.nSection, 8);
    QCOMPARE(result.strSkin, QString("White"));
    QCOMPARE(result.strLanguage, QString("zh_CN"));
    QCOMPARE(result.setMissingRights, (QSet<int>{26, 45}));
    QCOMPARE(result.strHost, QString("server"));
    QCOMPARE(int(result.nPort), 80);
    QCOMPARE(result.strDataFolder, QString("/data"));
}

void tst_CommandLine::Servers_data()
{
    QTest::addColumn<QString>("strText");
    QTest::addColumn<QString>("strHost");
    QTest::addColumn<int>("nPort");
    QTest::newRow("name") << "server:1"
                          << "server" << 1;
    QTest::newRow("IPv4") << "127.0.0.1:65535"
                          << "127.0.0.1" << 65535;
    QTest::newRow("IPv6") << "[::1]:9000"
                          << "::1" << 9000;
    QTest::newRow("name with punctuation") << "cam_srv-1.example:1"
                                           << "cam_srv-1.example" << 1;
    for (const char* pszBad : {"server", "server:", ":80", "server:0", "server:65536", "server:http", "::1:80", "[]:80",
                               "server:-1", "server: 80x", "a b:80", "]:80", "[]]:80", "[server]:80", "[::1:80"})
    {
        QTest::newRow(pszBad) << pszBad << QString() << 0;
    }
}

void tst_CommandLine::Servers()
{
    QFETCH(QString, strText);
    QFETCH(QString, strHost);
    QFETCH(int, nPort);
    CommandLine result;
    QString strError;
    QCOMPARE(CommandLine::Parse({"--platform", strText}, result, strError), nPort > 0);
    if (nPort > 0)
    {
        QCOMPARE(result.strHost, strHost);
        QCOMPARE(int(result.nPort), nPort);
    }
}

void tst_CommandLine::BadInputGetsOneLine_data()
{
    QTest::addColumn<QStringList>("listArguments");
    QTest::addColumn<QString>("strNamed");
    QTest::newRow("unknown option") << QStringList{"--colour"} << "colour";
    QTest::newRow("unknown short option") << QStringList{"-x"} << "x";
    QTest::newRow("argument") << QStringList{"file.json"} << "file.json";
    QTest::newRow("missing value") << QStringList{"--screenshot"} << "screenshot";
    QTest::newRow("empty value") << QStringList{"--import", ""} << "import";
    QTest::newRow("value for a flag") << QStringList{"--dump=1"} << "dump";
    QTest::newRow("two actions") << QStringList{"--dump", "--export", "x"} << "export";
    QTest::newRow("option twice") << QStringList{"--skin", "White", "--skin", "White"} << "skin";
    QTest::newRow("change without a value") << QStringList{"--set", "video.nDefaultSplit"} << "NAME=VALUE";
    QTest::newRow("change without a name") << QStringList{"--set", "=4"} << "NAME=VALUE";
    QTest::newRow("second change without a value") << QStringList{"--set", "a=1", "--set", "b"} << "'b'";
    QTest::newRow("two settings to read") << QStringList{"--get", "a", "--get", "b"} << "get";
    QTest::newRow("reading and changing") << QStringList{"--get", "a", "--set", "b=1"} << "set";
    QTest::newRow("section text") << QStringList{"--screenshot", "x", "--section", "one"} << "one";
    QTest::newRow("section -1") << QStringList{"--screenshot", "x", "--section", "-1"} << "-1";
    QTest::newRow("section 9") << QStringList{"--screenshot", "x", "--section", "9"} << "9";
    QTest::newRow("section without a dialog") << QStringList{"--dump", "--section", "1"} << "section";
    QTest::newRow("no wall") << QStringList{"--screenshot", "x", "--section", "6", "--without-right", "26"} << "26";
    QTest::newRow("skin") << QStringList{"--skin", "white"} << "white";
    QTest::newRow("language") << QStringList{"--language", "de"} << "de";
    QTest::newRow("right 0") << QStringList{"--without-right", "0"} << "without-right";
    QTest::newRow("right text") << QStringList{"--without-right", "wall"} << "without-right";
    QTest::newRow("right too large") << QStringList{"--without-right", "99999999999"} << "without-right";
    QTest::newRow("line feed") << QStringList{"--skin", "a\nb"} << "a b";
}

void tst_CommandLine::BadInputGetsOneLine()
{
    QFETCH(QStringList, listArguments);
    QFETCH(QString, strNamed);
    CommandLine result;
    QString strError;
    QVERIFY(!CommandLine::Parse(listArguments, result, strError));
    QVERIFY2(strError.contains(strNamed), qPrintable(strError));
    QVERIFY(!strError.contains('\n'));
}

void tst_CommandLine::HelpNamesEveryOption()
{
    const QString strHelp = CommandLine::GetHelp();
    for (const char* pszOption : {"--screenshot", "--section", "--skin", "--language", "--without-right", "--platform",
                                  "--data-dir", "--dump", "--import", "--export", "--help", "--version"})
    {
        QVERIFY2(strHelp.contains(pszOption), pszOption);
    }
}

void tst_CommandLine::HelpTellsDefaultsSectionsAndEnvironment()
{
    const QString strHelp = CommandLine::GetHelp().simplified();
    for (const char* pszWord : {"default", "Record Playback", "Shortcut Keys", "KV_CLIENT_RESOURCES", "QT_SCALE_FACTOR",
                                "DISPLAY", "-h, --help", "-v, --version"})
    {
        QVERIFY2(strHelp.contains(pszWord), pszWord);
    }
}

void tst_CommandLine::SectionsHaveNames_data()
{
    QTest::addColumn<QString>("strName");
    QTest::addColumn<int>("nSection");
    const QStringList listNames = {"Basic", "Video",      "Record Playback", "Snapshot",     "Recording",
                                   "Alarm", "Video Wall", "Security",        "Shortcut Keys"};
    for (int n = 0; n < listNames.size(); ++n)
    {
        QTest::newRow(qPrintable(listNames[n])) << listNames[n] << n;
        QTest::newRow(qPrintable(listNames[n].toLower())) << listNames[n].toLower() << n;
    }
}

void tst_CommandLine::SectionsHaveNames()
{
    QFETCH(QString, strName);
    QFETCH(int, nSection);
    CommandLine result;
    QString strError;
    QVERIFY2(CommandLine::Parse({"--section", strName}, result, strError), qPrintable(strError));
    QCOMPARE(result.nSection, nSection);
}

QTEST_GUILESS_MAIN(tst_CommandLine)

#include "tst_CommandLine.moc"
