#include "support/Notifications.h"
#include "support/Permissions.h"

#include <UICommonModule/CErrorCode.h>
#include <UICommonModule/CLocalIniFile.h>

#include <QDir>
#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

using UICommonMdl::CErrorCode;
using UICommonMdl::CLocalIniFile;

class tst_LocalIniFile : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup()
    {
        QCoreApplication::sendPostedEvents(); // what a failed write still has to tell
        QDir::setCurrent(QDir::rootPath());
    }

    void ABareNameLiesInTheWorkingFolder();
    void AnAbsoluteNameIsTaken();
    void EveryOtherByteStays_data();
    void EveryOtherByteStays();
    void ValuesComeBackThroughQSettings_data();
    void ValuesComeBackThroughQSettings();
    void ValuesComeBackFromAnyFile_data();
    void ValuesComeBackFromAnyFile();
    void ValuesOfOthersAreRead_data();
    void ValuesOfOthersAreRead();
    void BoolsAndNumbers();
    void AByteOrderMarkStaysInFront();
    void NamesThatAreNoneAreRefused_data();
    void NamesThatAreNoneAreRefused();
    void ValuesThatAreNoTextAreRefused_data();
    void ValuesThatAreNoTextAreRefused();
    void NothingIsWrittenWhenNothingChanges();
    void AnUnreadableFileIsNotOverwritten();
    void AReadOnlyFolderIsRefused();
    void ReadsWithDefault();
    void WhatIsNoFileIsNotWaitedFor_data();
    void WhatIsNoFileIsNotWaitedFor();
    void AFailedWriteIsToldOnce();
    void AnotherFailureIsToldAnew();
    void AWriteThatSucceedsIsNoNews();

private:
    void Put(const QByteArray& content)
    {
        QFile file("test.ini");
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
    }
    static QByteArray Get(const QString& strName = "test.ini")
    {
        QFile file(strName);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(none)");
    }

    QScopedPointer<QTemporaryDir> m_pFolder;
};

void tst_LocalIniFile::init()
{
    m_pFolder.reset(new QTemporaryDir);
    QVERIFY(QDir::setCurrent(m_pFolder->path()));
}

void tst_LocalIniFile::ABareNameLiesInTheWorkingFolder()
{
    QVERIFY(CLocalIniFile::WriteValue("Skin", "version", "White", "Localcfg.ini"));
    QCOMPARE(Get(m_pFolder->filePath("Localcfg.ini")), QByteArray("[Skin]\nversion=White\n"));
}

void tst_LocalIniFile::AnAbsoluteNameIsTaken()
{
    const QTemporaryDir other;
    QVERIFY(CLocalIniFile::WriteValue("Skin", "version", "White", other.filePath("other.ini")));
    QVERIFY(QFile::exists(other.filePath("other.ini")));
    QVERIFY(QDir(m_pFolder->path()).isEmpty());
}

void tst_LocalIniFile::EveryOtherByteStays_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");
    QTest::newRow("empty") << QByteArray("") << QByteArray("[G]\nk=v\n");
    QTest::newRow("replaced") << QByteArray("[G]\nk=old\n") << QByteArray("[G]\nk=v\n");
    QTest::newRow("neighbours") << QByteArray("; c\n[G]\na=1\nk=old\nb=2\n") << QByteArray("; c\n[G]\na=1\nk=v\nb=2\n");
    QTest::newRow("added to its group") << QByteArray("[G]\na=1\n\n[H]\nk=h\n")
                                        << QByteArray("[G]\na=1\nk=v\n\n[H]\nk=h\n");
    QTest::newRow("empty group") << QByteArray("[G]\n[H]\nk=h\n") << QByteArray("[G]\nk=v\n[H]\nk=h\n");
    QTest::newRow("new group") << QByteArray("[H]\nk=h\n") << QByteArray("[H]\nk=h\n\n[G]\nk=v\n");
    QTest::newRow("no line end") << QByteArray("[H]\nk=h") << QByteArray("[H]\nk=h\n\n[G]\nk=v\n");
    QTest::newRow("no line end in its group") << QByteArray("[G]\na=1") << QByteArray("[G]\na=1\nk=v\n");
    QTest::newRow("carriage returns") << QByteArray("[G]\r\na=1\r\nk=old\r\n") << QByteArray("[G]\r\na=1\r\nk=v\r\n");
    QTest::newRow("comments") << QByteArray("[G]\n;k=1\n#k=2\n") << QByteArray("[G]\n;k=1\n#k=2\nk=v\n");
    QTest::newRow("spaces") << QByteArray("[G]\n k = old \n") << QByteArray("[G]\nk=v\n");
    QTest::newRow("letter case") << QByteArray("[g]\nk=1\n[G]\nK=2\n") << QByteArray("[g]\nk=1\n[G]\nK=2\nk=v\n");
    QTest::newRow("a group twice") << QByteArray("[G]\nk=1\n[H]\n[G]\nk=2\n")
                                   << QByteArray("[G]\nk=v\n[H]\n[G]\nk=v\n");
    QTest::newRow("longer key") << QByteArray("[G]\nkk=1\n") << QByteArray("[G]\nkk=1\nk=v\n");
    QTest::newRow("line ends of two kinds")
        << QByteArray("[G]\r\na=1\r\nk=old\n[H]\r\n") << QByteArray("[G]\r\na=1\r\nk=v\n[H]\r\n");
    QTest::newRow("replaced without a line end") << QByteArray("[G]\nk=old") << QByteArray("[G]\nk=v");
    QTest::newRow("a carriage return at the end") << QByteArray("[H]\nx\r") << QByteArray("[H]\nx\r\n\n[G]\nk=v\n");
    QTest::newRow("bytes that are no text")
        << QByteArray("[H]\nx=\xff\xfe\n[G]\nk=o\n") << QByteArray("[H]\nx=\xff\xfe\n[G]\nk=v\n");
}

void tst_LocalIniFile::EveryOtherByteStays()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, after);
    Put(before);
    QVERIFY(CLocalIniFile::WriteValue("G", "k", "v", "test.ini"));
    QCOMPARE(Get(), after);
    QVERIFY(CLocalIniFile::WriteValue("G", "k", "v", "test.ini"));
    QCOMPARE(Get(), after);
}

void tst_LocalIniFile::ValuesComeBackThroughQSettings_data()
{
    QTest::addColumn<QString>("strValue");
    for (const QString& strValue : {QString("plain"),
                                    QString(""),
                                    QString(" both ends "),
                                    QString("a;b"),
                                    QString("a#b"),
                                    QString("a=b"),
                                    QString("a,b"),
                                    QString("\"quoted\""),
                                    QString("C:\\folder\\new"),
                                    QString("line\nbreak"),
                                    QString("tab\there"),
                                    QString("@home"),
                                    QString("@Variant(x)"),
                                    QString("%1"),
                                    QString("[x]"),
                                    QString::fromUtf8("客户端"),
                                    QString::fromUtf8("é1"),
                                    QString::fromUtf8("ab\xf0\x9f\x8e\xa5"
                                                      "cd"),
                                    QString(QChar(1)) + "2",
                                    QString("x").repeated(5000)})
    {
        QTest::newRow(qPrintable(strValue.left(20).simplified())) << strValue;
    }
}

void tst_LocalIniFile::ValuesComeBackThroughQSettings()
{
    QFETCH(QString, strValue);
    QVERIFY(CLocalIniFile::WriteValue("Group", "key", strValue, "test.ini"));
    QVERIFY(CLocalIniFile::WriteValue("Group", "other", "stays", "test.ini"));
    const QSettings settings("test.ini", QSettings::IniFormat);
    QCOMPARE(settings.value("Group/key").toString(), strValue);
    QCOMPARE(settings.value("Group/other").toString(), QString("stays"));
    QCOMPARE(CLocalIniFile::ReadValue("Group", "key", "default", "test.ini"), strValue);
}

void tst_LocalIniFile::ValuesComeBackFromAnyFile_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::newRow("a quotation mark left open in front") << QByteArray("[H]\na=\"open\n[Skin]\nb=2\n");
    QTest::newRow("a quotation mark left open in a comment") << QByteArray("# 24\" screens\n[Skin]\nversion=1\n");
    QTest::newRow("a quotation mark left open in the value") << QByteArray("[Skin]\nversion=\"1\n");
    QTest::newRow("a backslash at the end of a line") << QByteArray("[Skin]\npath=C:\\\nversion=1\n");
    QTest::newRow("a line that is none") << QByteArray("[Ckin]\nversi\nve\0@x\\\\\"\n;#=,on=2\n[Skin]\nve", 39);
    QTest::newRow("the key in another spelling behind") << QByteArray("[Skin]\nversion=1\n%76ersion=2\n");
    QTest::newRow("the key in other letters behind") << QByteArray("[Skin]\nversion=1\n[skin]\nVERSION=2\n");
}

void tst_LocalIniFile::ValuesComeBackFromAnyFile()
{
    QFETCH(QByteArray, before);
    Put(before);
    QVERIFY(CLocalIniFile::WriteValue("Skin", "version", "White", "test.ini"));
    QCOMPARE(CLocalIniFile::ReadValue("Skin", "version", "none", "test.ini"), QString("White"));
}

void tst_LocalIniFile::ValuesOfOthersAreRead_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<QString>("strValue");
    QTest::newRow("plain") << QByteArray("White") << "White";
    QTest::newRow("nothing") << QByteArray("") << "";
    QTest::newRow("spaces") << QByteArray("  Two Words\t") << "Two Words";
    QTest::newRow("comment") << QByteArray("White ; or DustyBlue") << "White";
    QTest::newRow("quoted") << QByteArray("\" a;b \" ; c") << " a;b ";
    QTest::newRow("a quoted part") << QByteArray("a\"b c\"d") << "ab cd";
    QTest::newRow("escapes") << QByteArray("a\\tb\\n\\\"\\\\") << "a\tb\n\"\\";
    QTest::newRow("hexadecimal") << QByteArray("\\x41\\x5ba2g") << QString::fromUtf8("A\xe5\xae\xa2g");
    QTest::newRow("octal") << QByteArray("\\101\\0") << QString("A") + QChar(0);
    QTest::newRow("no escape") << QByteArray("C:\\Qt") << "C:Qt";
    QTest::newRow("a backslash at the end") << QByteArray("a\\") << "a";
    QTest::newRow("letters of other languages") << QByteArray("\xc3\xa9\xe5\x9b\xbe") << QString::fromUtf8("é图");
    QTest::newRow("at sign") << QByteArray("@@home") << "@home";
}

/// Values as other programs write them, by hand or through QSettings.
void tst_LocalIniFile::ValuesOfOthersAreRead()
{
    QFETCH(QByteArray, value);
    QFETCH(QString, strValue);
    Put("[G]\r\nk=" + value + "\r\n");
    QCOMPARE(CLocalIniFile::ReadValue("G", "k", "none", "test.ini"), strValue);
}

void tst_LocalIniFile::BoolsAndNumbers()
{
    QVERIFY(CLocalIniFile::WriteValue("ProcessDecode", "enable", true, "test.ini"));
    QVERIFY(CLocalIniFile::WriteValue("Language", "type", -7, "test.ini"));
    QCOMPARE(Get(), QByteArray("[ProcessDecode]\nenable=true\n\n[Language]\ntype=-7\n"));
    QVERIFY(CLocalIniFile::WriteValue("ProcessDecode", "enable", false, "test.ini"));
    QVERIFY(Get().contains("enable=false"));
}

void tst_LocalIniFile::AByteOrderMarkStaysInFront()
{
    Put("\xef\xbb\xbf[G]\r\nk=old\r\n");
    QVERIFY(CLocalIniFile::WriteValue("G", "k", "v", "test.ini"));
    QCOMPARE(Get(), QByteArray("\xef\xbb\xbf[G]\r\nk=v\r\n"));
}

void tst_LocalIniFile::NamesThatAreNoneAreRefused_data()
{
    QTest::addColumn<QString>("strGroup");
    QTest::addColumn<QString>("strKey");
    QTest::newRow("no group") << ""
                              << "k";
    QTest::newRow("no key") << "G"
                            << "";
    QTest::newRow("group with a line end") << "G]\n[H"
                                           << "k";
    QTest::newRow("key with a line end") << "G"
                                         << "k\nother";
    QTest::newRow("key with a value") << "G"
                                      << "k=1;";
    QTest::newRow("key that is a comment") << "G"
                                           << ";k";
    QTest::newRow("key that is a group") << "G"
                                         << "[k";
    QTest::newRow("key with a path") << "G"
                                     << "sub/k";
}

void tst_LocalIniFile::NamesThatAreNoneAreRefused()
{
    QFETCH(QString, strGroup);
    QFETCH(QString, strKey);
    Put("[H]\nprecious=1\n");
    QVERIFY(!CLocalIniFile::WriteValue(strGroup, strKey, "v", "test.ini"));
    QCOMPARE(Get(), QByteArray("[H]\nprecious=1\n"));
}

void tst_LocalIniFile::ValuesThatAreNoTextAreRefused_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::newRow("none") << QVariant();
    QTest::newRow("list") << QVariant(QStringList{"a", "b"});
    QTest::newRow("size") << QVariant(QSize(1, 2));
}

void tst_LocalIniFile::ValuesThatAreNoTextAreRefused()
{
    QFETCH(QVariant, value);
    Put("[G]\nk=precious\n");
    QVERIFY(!CLocalIniFile::WriteValue("G", "k", value, "test.ini"));
    QCOMPARE(Get(), QByteArray("[G]\nk=precious\n"));
}

void tst_LocalIniFile::NothingIsWrittenWhenNothingChanges()
{
    Put("[G]\nk=v\n");
    QVERIFY(SetPermissions(m_pFolder->path(), QFile::ReadOwner | QFile::ExeOwner));
    const bool bOk = CLocalIniFile::WriteValue("G", "k", "v", "test.ini");
    SetPermissions(m_pFolder->path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    QVERIFY2(bOk, "in a folder that cannot be written");
}

void tst_LocalIniFile::AnUnreadableFileIsNotOverwritten()
{
    Put("[H]\nprecious=1\n");
    {
        const CPermissions unreadable("test.ini", QFile::WriteOwner);
        QVERIFY(!CLocalIniFile::WriteValue("G", "k", "v", "test.ini"));
    }
    QCOMPARE(Get(), QByteArray("[H]\nprecious=1\n"));
}

void tst_LocalIniFile::AReadOnlyFolderIsRefused()
{
    Put("[G]\nk=old\n");
    QVERIFY(SetPermissions(m_pFolder->path(), QFile::ReadOwner | QFile::ExeOwner));
    const bool bOk = CLocalIniFile::WriteValue("G", "k", "v", "test.ini");
    SetPermissions(m_pFolder->path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    QVERIFY(!bOk);
    QCOMPARE(Get(), QByteArray("[G]\nk=old\n"));
}

void tst_LocalIniFile::ReadsWithDefault()
{
    QCOMPARE(CLocalIniFile::ReadValue("G", "k", "default", "none.ini"), QString("default"));
    Put("[G]\nk=v\n");
    QCOMPARE(CLocalIniFile::ReadValue("G", "k", "default", "test.ini"), QString("v"));
    QCOMPARE(CLocalIniFile::ReadValue("G", "other", "default", "test.ini"), QString("default"));
    QCOMPARE(CLocalIniFile::ReadValue("H", "k", "default", "test.ini"), QString("default"));
}

void tst_LocalIniFile::WhatIsNoFileIsNotWaitedFor_data()
{
    QTest::addColumn<QString>("strFile");
    QTest::newRow("folder") << QString("folder.ini");
#ifdef Q_OS_UNIX
    QTest::newRow("pipe") << QString("pipe.ini");
    QTest::newRow("device without an end") << QString("/dev/zero");
#endif
}

void tst_LocalIniFile::WhatIsNoFileIsNotWaitedFor()
{
    QFETCH(QString, strFile);
    QVERIFY(QDir().mkdir("folder.ini"));
#ifdef Q_OS_UNIX
    QCOMPARE(::mkfifo("pipe.ini", 0600), 0);
#endif
    QCOMPARE(CLocalIniFile::ReadValue("G", "k", "default", strFile), QString("default"));
    QVERIFY(!CLocalIniFile::WriteValue("G", "k", "v", strFile));
}

void tst_LocalIniFile::AFailedWriteIsToldOnce()
{
    QVERIFY(QDir().mkdir("test.ini"));
    CNotificationSpy spy;
    QVERIFY(!CLocalIniFile::WriteValue("G", "k", "v", "test.ini"));
    QVERIFY(!CLocalIniFile::WriteValue("H", "k", "v", "test.ini"));
    QTRY_COMPARE(spy.count(), 1);
    QTest::qWait(20);
    QCOMPARE(spy.count(), 1);
    const QString strText = spy.first().first().toString();
    QVERIFY2(strText.contains(QDir::toNativeSeparators(m_pFolder->filePath("test.ini"))), qPrintable(strText));
    QVERIFY2(strText.endsWith(CErrorCode::GetDescription(CErrorCode::Unreadable)), qPrintable(strText));
}

void tst_LocalIniFile::AnotherFailureIsToldAnew()
{
    QVERIFY(QDir().mkdir("test.ini"));
    CNotificationSpy spy;
    CLocalIniFile::WriteValue("G", "k", "v", "test.ini");
    QTRY_COMPARE(spy.count(), 1);
    CLocalIniFile::WriteValue("G", "k", "v", "test.ini");
    QTRY_COMPARE(spy.count(), 2);
}

void tst_LocalIniFile::AWriteThatSucceedsIsNoNews()
{
    CNotificationSpy spy;
    QVERIFY(CLocalIniFile::WriteValue("G", "k", "v", "test.ini"));
    QVERIFY(CLocalIniFile::WriteValue("G", "k", "v", "test.ini"));
    QTest::qWait(20);
    QCOMPARE(spy.count(), 0);
}

QTEST_GUILESS_MAIN(tst_LocalIniFile)

#include "tst_LocalIniFile.moc"
