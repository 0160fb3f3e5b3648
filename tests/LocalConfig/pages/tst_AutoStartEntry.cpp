#include <LocalConfig/pages/AutoStartEntry.h>

#include <QDir>
#include <QStandardPaths>
#include <QtTest>

using namespace LocalConfig;

class tst_AutoStartEntry : public QObject
{
    Q_OBJECT

private slots:
    void CommandIsTheQuotedNativePath_data();
    void CommandIsTheQuotedNativePath();
    void CommandKeepsLetterCase();
    void NoEntryReadsAsEmpty();
#ifndef Q_OS_WIN // an XDG entry; tst_AutoStartRegistry reads the registry
    void ReadsTheEntry_data();
    void ReadsTheEntry();
    void AFolderInPlaceOfTheEntryReadsAsEmpty();
#endif
};

void tst_AutoStartEntry::CommandIsTheQuotedNativePath_data()
{
    QTest::addColumn<QString>("strPath");
    QTest::addColumn<QString>("strCommand");
#ifdef Q_OS_WIN
    QTest::newRow("plain") << "C:/Client/client.exe"
                           << "\"C:\\Client\\client.exe\"";
    QTest::newRow("space") << "C:/Program Files/client.exe"
                           << "\"C:\\Program Files\\client.exe\"";
#else
    QTest::newRow("plain") << "/opt/client/client"
                           << "\"/opt/client/client\"";
    QTest::newRow("space") << "/opt/my client/client"
                           << "\"/opt/my client/client\"";
#endif
    QTest::newRow("empty") << QString() << "\"\"";
    QTest::newRow("per cent") << "a%1b"
                              << "\"a%1b\"";
}

void tst_AutoStartEntry::CommandIsTheQuotedNativePath()
{
    QFETCH(QString, strPath);
    QFETCH(QString, strCommand);
    QCOMPARE(GetAutoStartCommand(strPath), strCommand);
}

void tst_AutoStartEntry::CommandKeepsLetterCase()
{
    QVERIFY(GetAutoStartCommand("/opt/Client") != GetAutoStartCommand("/opt/client"));
}

void tst_AutoStartEntry::NoEntryReadsAsEmpty()
{
    QCOMPARE(ReadAutoStartCommand("no-such-application"), QString());
}

#ifndef Q_OS_WIN

void tst_AutoStartEntry::ReadsTheEntry_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("strCommand");
    const auto entry = [](const char* pszExec) { return QByteArray("[Desktop Entry]\nExec=") + pszExec + "\n"; };
    QTest::newRow("quoted") << entry("\"/opt/client\"") << "\"/opt/client\"";
    QTest::newRow("unquoted") << entry("/opt/client") << "\"/opt/client\"";
    QTest::newRow("space") << entry("\"/opt/my client\"") << "\"/opt/my client\"";
    QTest::newRow("escaped dollar") << entry("\"/opt/\\\\$client\"") << "\"/opt/$client\"";
    QTest::newRow("escaped quote") << entry("\"/opt/\\\\\"x\\\\\"\"") << "\"/opt/\"x\"\"";
    QTest::newRow("escaped backslash") << entry("\"/opt/a\\\\\\\\b\"") << "\"/opt/a\\b\"";
    QTest::newRow("per cent") << entry("\"/opt/100%%\"") << "\"/opt/100%\"";
    QTest::newRow("field code") << entry("\"/opt/client\" %U") << "\"/opt/client\"";
    QTest::newRow("arguments") << entry("\"/opt/client\" --minimised") << "\"/opt/client\" \"--minimised\"";
    QTest::newRow("unicode") << entry("\"/opt/\xe5\xae\xa2\xe6\x88\xb7\"") << QString::fromUtf8("\"/opt/客户\"");
    QTest::newRow("spaces around the key") << QByteArray("[Desktop Entry]\nExec = /opt/client\n") << "\"/opt/client\"";
    QTest::newRow("carriage returns") << QByteArray("[Desktop Entry]\r\nExec=/opt/client\r\n") << "\"/opt/client\"";
    QTest::newRow("hidden") << entry("/opt/client") + "Hidden=true\n" << QString();
    QTest::newRow("not hidden") << entry("/opt/client") + "Hidden=false\n"
                                << "\"/opt/client\"";
    QTest::newRow("switched off by the desktop") << entry("/opt/client") + "X-GNOME-Autostart-enabled=false\n"
                                                 << QString();
    QTest::newRow("switched on by the desktop") << entry("/opt/client") + "X-GNOME-Autostart-enabled=true\n"
                                                << "\"/opt/client\"";
    QTest::newRow("an action that is hidden")
        << entry("/opt/client") + "[Desktop Action X]\nHidden=true\nX-GNOME-Autostart-enabled=false\n"
        << "\"/opt/client\"";
    QTest::newRow("another group") << QByteArray("[Desktop Action X]\nExec=/opt/client\n") << QString();
    QTest::newRow("no group") << QByteArray("Exec=/opt/client\n") << QString();
    QTest::newRow("comment") << QByteArray("[Desktop Entry]\n#Exec=/opt/client\n") << QString();
    QTest::newRow("empty value") << entry("") << QString();
    QTest::newRow("empty file") << QByteArray() << QString();
    QTest::newRow("open quote") << entry("\"/opt/client") << "\"/opt/client\"";
    QTest::newRow("trailing backslash") << entry("\"/opt/client\\") << "\"/opt/client\\\"";
    QTest::newRow("garbage") << QByteArray("\xff\xfe\0[=\n=]", 8) << QString();
}

void tst_AutoStartEntry::ReadsTheEntry()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, strCommand);
    QDir config(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation));
    QVERIFY(config.path().contains("tests/home"));
    QVERIFY(config.mkpath("autostart"));
    QFile file(config.filePath("autostart/some client.desktop"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(content);
    file.close();
    QCOMPARE(ReadAutoStartCommand("some client"), strCommand);
    QVERIFY(file.remove());
}

void tst_AutoStartEntry::AFolderInPlaceOfTheEntryReadsAsEmpty()
{
    QDir config(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation));
    QVERIFY(config.mkpath("autostart/folder.desktop"));
    QCOMPARE(ReadAutoStartCommand("folder"), QString());
}

#endif

QTEST_GUILESS_MAIN(tst_AutoStartEntry)

#include "tst_AutoStartEntry.moc"
