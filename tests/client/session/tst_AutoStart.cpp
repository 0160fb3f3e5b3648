// What the client writes is what the Basic page reads.

#include <LocalConfig/pages/AutoStartEntry.h>
#include <UICommonModule/CErrorCode.h>
#include <client/session/AutoStart.h>

#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <QTemporaryFile>
#include <QtTest>

using LocalConfigClient::AutoStart;
using UICommonMdl::CErrorCode;

namespace
{

const QString g_strName = QStringLiteral("auto start test");

QString EntryPath()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + "/autostart/" + g_strName +
           ".desktop";
}

QByteArray Content()
{
    QFile file(EntryPath());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(none)");
}

void Append(const QByteArray& line)
{
    QFile file(EntryPath());
    QVERIFY(file.open(QIODevice::Append));
    file.write(line + '\n');
}

} // namespace

class tst_AutoStart : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init() { QFile::remove(EntryPath()); }

    void ThePageReadsWhatWasWritten_data();
    void ThePageReadsWhatWasWritten();
    void WritesACompleteEntry();
    void SwitchingOffRemovesTheEntry();
    void SwitchingOffTwiceIsNoError();
    void OtherKeysStay();
    void AnEntrySwitchedOffComesBack_data();
    void AnEntrySwitchedOffComesBack();
    void SwitchesOfOtherGroupsStay();
    void AnEntryWithCarriageReturnsIsTakenOver();
    void TheNameIsEscaped();
    void AnotherPathReplacesTheOld();
    void AReadOnlyFolderIsReported();
    void AFileInPlaceOfTheFolderIsReported();
    void AFolderInPlaceOfTheEntryIsReported();
};

void tst_AutoStart::initTestCase()
{
    QVERIFY2(EntryPath().contains("tests/home"), "this test must not write into a user's home");
}

void tst_AutoStart::ThePageReadsWhatWasWritten_data()
{
    QTest::addColumn<QString>("strPath");
    for (const QString& strPath :
         {QString("/opt/client/client"), QString("/opt/my client/client"), QString("/opt/\"quoted\"/client"),
          QString("/opt/$HOME/client"), QString("/opt/`x`/client"), QString("/opt/back\\slash/client"),
          QString("/opt/100%/client"), QString("/opt/%U/client"), QString::fromUtf8("/opt/客户端/client"),
          QString("/opt/a;b#c=d/client"), QString("/opt/'single'/client"), QString("/opt/\\\\s/client")})
    {
        QTest::newRow(qPrintable(strPath)) << strPath;
    }
}

void tst_AutoStart::ThePageReadsWhatWasWritten()
{
    QFETCH(QString, strPath);
    QCOMPARE(AutoStart::Apply(true, g_strName, strPath), int(CErrorCode::Success));
    QCOMPARE(LocalConfig::ReadAutoStartCommand(g_strName), LocalConfig::GetAutoStartCommand(strPath));
}

void tst_AutoStart::WritesACompleteEntry()
{
    QCOMPARE(AutoStart::Apply(true, g_strName, "/opt/client"), int(CErrorCode::Success));
    QCOMPARE(Content(), QByteArray("[Desktop Entry]\nType=Application\nName=auto start test\nExec=\"/opt/client\"\n"));
}

void tst_AutoStart::SwitchingOffRemovesTheEntry()
{
    AutoStart::Apply(true, g_strName, "/opt/client");
    QCOMPARE(AutoStart::Apply(false, g_strName, "/opt/client"), int(CErrorCode::Success));
    QVERIFY(!QFile::exists(EntryPath()));
    QCOMPARE(LocalConfig::ReadAutoStartCommand(g_strName), QString());
}

void tst_AutoStart::SwitchingOffTwiceIsNoError()
{
    QCOMPARE(AutoStart::Apply(false, g_strName, "/opt/client"), int(CErrorCode::Success));
}

void tst_AutoStart::OtherKeysStay()
{
    AutoStart::Apply(true, g_strName, "/opt/client");
    QFile file(EntryPath());
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("# mine\n[Desktop Entry]\nIcon=camera\nExec=/old\n\n[Desktop Action X]\nExec=/x\n");
    file.close();
    QCOMPARE(AutoStart::Apply(true, g_strName, "/opt/client"), int(CErrorCode::Success));
    QCOMPARE(Content(), QByteArray("# mine\n[Desktop Entry]\nIcon=camera\nExec=\"/opt/client\"\nType=Application\n"
                                   "Name=auto start test\n\n[Desktop Action X]\nExec=/x\n"));
}

void tst_AutoStart::AnEntrySwitchedOffComesBack_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::newRow("hidden") << QByteArray("Hidden=true");
    QTest::newRow("hidden, spaces") << QByteArray("Hidden = true");
    QTest::newRow("desktop's own key") << QByteArray("X-GNOME-Autostart-enabled=false");
}

void tst_AutoStart::AnEntrySwitchedOffComesBack()
{
    QFETCH(QByteArray, line);
    AutoStart::Apply(true, g_strName, "/opt/client");
    const QByteArray before = Content();
    Append(line);
    QCOMPARE(LocalConfig::ReadAutoStartCommand(g_strName), QString());
    QCOMPARE(AutoStart::Apply(true, g_strName, "/opt/client"), int(CErrorCode::Success));
    QCOMPARE(LocalConfig::ReadAutoStartCommand(g_strName), QString("\"/opt/client\""));
    QCOMPARE(Content(), before);
}

void tst_AutoStart::SwitchesOfOtherGroupsStay()
{
    AutoStart::Apply(true, g_strName, "/opt/client");
    Append("\n[Desktop Action X]\nHidden=true\nX-GNOME-Autostart-enabled=false");
    const QByteArray before = Content();
    QCOMPARE(LocalConfig::ReadAutoStartCommand(g_strName), QString("\"/opt/client\""));
    QCOMPARE(AutoStart::Apply(true, g_strName, "/opt/client"), int(CErrorCode::Success));
    QCOMPARE(Content(), before);
}

void tst_AutoStart::AnEntryWithCarriageReturnsIsTakenOver()
{
    AutoStart::Apply(true, g_strName, "/opt/client");
    QFile file(EntryPath());
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("[Desktop Entry]\r\nIcon=camera\r\nExec=/old\r\n");
    file.close();
    QCOMPARE(AutoStart::Apply(true, g_strName, "/opt/client"), int(CErrorCode::Success));
    QCOMPARE(Content(), QByteArray("[Desktop Entry]\nIcon=camera\nExec=\"/opt/client\"\nType=Application\n"
                                   "Name=auto start test\n"));
}

void tst_AutoStart::TheNameIsEscaped()
{
    const QString strName = "auto\\start\nHidden=true";
    QCOMPARE(AutoStart::Apply(true, strName, "/opt/client"), int(CErrorCode::Success));
    QFile file(QFileInfo(EntryPath()).path() + '/' + strName + ".desktop");
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(file.readAll().contains("\nName=auto\\\\start\\nHidden=true\n"));
    QCOMPARE(AutoStart::Apply(false, strName, "/opt/client"), int(CErrorCode::Success));
    QVERIFY(!file.exists());
}

void tst_AutoStart::AnotherPathReplacesTheOld()
{
    AutoStart::Apply(true, g_strName, "/opt/old");
    AutoStart::Apply(true, g_strName, "/opt/new");
    QCOMPARE(LocalConfig::ReadAutoStartCommand(g_strName), QString("\"/opt/new\""));
}

void tst_AutoStart::AReadOnlyFolderIsReported()
{
    AutoStart::Apply(true, g_strName, "/opt/old");
    const QString strFolder = QFileInfo(EntryPath()).path();
    QVERIFY(QFile::setPermissions(strFolder, QFile::ReadOwner | QFile::ExeOwner));
    const int nWritten = AutoStart::Apply(true, g_strName, "/opt/new");
    const int nRemoved = AutoStart::Apply(false, g_strName, "/opt/new");
    QFile::setPermissions(strFolder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    QCOMPARE(nWritten, int(CErrorCode::NoPermission));
    QCOMPARE(nRemoved, int(CErrorCode::NoPermission));
    QCOMPARE(LocalConfig::ReadAutoStartCommand(g_strName), QString("\"/opt/old\""));
}

void tst_AutoStart::AFileInPlaceOfTheFolderIsReported()
{
    const QByteArray before = qgetenv("XDG_CONFIG_HOME");
    QTemporaryFile file;
    QVERIFY(file.open());
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(file.fileName()));
    const int nResult = AutoStart::Apply(true, g_strName, "/opt/client");
    qputenv("XDG_CONFIG_HOME", before);
    QCOMPARE(nResult, int(CErrorCode::FolderMissing));
}

void tst_AutoStart::AFolderInPlaceOfTheEntryIsReported()
{
    QVERIFY(QDir().mkpath(EntryPath()));
    const int nResult = AutoStart::Apply(false, g_strName, "/opt/client");
    QVERIFY(QDir().rmdir(EntryPath()));
    QCOMPARE(nResult, int(CErrorCode::NotAFile));
}

QTEST_GUILESS_MAIN(tst_AutoStart)

#include "tst_AutoStart.moc"
