#include "support/ChangedSettings.h"
#include "support/Documents.h"

#include <client/store/SettingValue.h>

#include <QtTest>

using namespace LocalConfigClient;

class tst_SettingValue : public QObject
{
    Q_OBJECT

private slots:
    void ValuesAreRead_data();
    void ValuesAreRead();
    void ValuesAreSet_data();
    void ValuesAreSet();
    void WhatIsReadCanBeSet();
    void UnknownNamesAreRefused_data();
    void UnknownNamesAreRefused();
    void ImpossibleValuesAreRefused_data();
    void ImpossibleValuesAreRefused();
    void WhatAMapLacksIsAdded();
};

void tst_SettingValue::ValuesAreRead_data()
{
    QTest::addColumn<QString>("strName");
    QTest::addColumn<QByteArray>("value");
    QTest::newRow("number") << "video.nDefaultSplit" << QByteArray("4");
    QTest::newRow("bool") << "video.bProcessDecode" << QByteArray("true");
    QTest::newRow("text") << "record.recordPath" << QByteArray("D:\\record\\");
    QTest::newRow("bytes") << "snapshot.picturePath" << QByteArray("/\xff\n");
    QTest::newRow("entry of a map") << "alarm.flashCategories.-5" << QByteArray("false");
    QTest::newRow("field of an entry") << "alarm.alarmSounds.201.alarmType" << QByteArray("201");
    QTest::newRow("section") << "security" << QByteArray("{\n    \"encryptTransmission\": false\n}");
}

void tst_SettingValue::ValuesAreRead()
{
    QFETCH(QString, strName);
    QFETCH(QByteArray, value);
    Settings settings;
    settings.video.nDefaultSplit = 4;
    settings.video.bProcessDecode = true;
    settings.record.recordPath = "D:\\record\\";
    settings.snapshot.picturePath = "/\xff\n";
    settings.alarm.flashCategories[-5] = false;
    settings.alarm.alarmSounds[201].alarmType = 201;
    settings.security.encryptTransmission = false;
    QCOMPARE(SettingValue::Get(settings, strName).value_or("nothing"), value);
}

void tst_SettingValue::ValuesAreSet_data()
{
    QTest::addColumn<QString>("strName");
    QTest::addColumn<QString>("strValue");
    QTest::addColumn<QByteArray>("expected");
    QTest::newRow("number") << "video.nDefaultSplit"
                            << " 9 " << QByteArray("9");
    QTest::newRow("largest") << "basic.hostOwned1"
                             << "4294967295" << QByteArray("4294967295");
    QTest::newRow("bool") << "basic.autoLogin"
                          << "true" << QByteArray("true");
    QTest::newRow("text") << "record.recordPath"
                          << "\"a\" = {b}" << QByteArray("\"a\" = {b}");
    QTest::newRow("no text") << "record.recordPath"
                             << "" << QByteArray("");
    QTest::newRow("text of digits") << "record.recordPath"
                                    << "7" << QByteArray("7");
    QTest::newRow("section") << "security"
                             << "{\"encryptTransmission\": true}"
                             << QByteArray("{\n    \"encryptTransmission\": true\n}");
}

void tst_SettingValue::ValuesAreSet()
{
    QFETCH(QString, strName);
    QFETCH(QString, strValue);
    QFETCH(QByteArray, expected);
    Settings settings;
    QString strError;
    QVERIFY2(SettingValue::Set(settings, strName, strValue, strError), qPrintable(strError));
    QCOMPARE(SettingValue::Get(settings, strName).value_or("nothing"), expected);
}

void tst_SettingValue::WhatIsReadCanBeSet()
{
    const Settings changed = ChangedSettings();
    Settings settings;
    QString strError;
    for (const char* pszSection :
         {"basic", "video", "playback", "snapshot", "record", "alarm", "shortcutKey", "tvWall", "security"})
    {
        const QByteArray value = SettingValue::Get(changed, pszSection).value_or(QByteArray());
        QVERIFY2(SettingValue::Set(settings, pszSection, value, strError), qPrintable(strError));
    }
    QVERIFY(settings == changed);
}

void tst_SettingValue::UnknownNamesAreRefused_data()
{
    QTest::addColumn<QString>("strName");
    for (const char* pszName :
         {"", ".", "video.", ".video", "sections.video", "video.nothing", "Video", "video.nDefaultSplit.x",
          "record.recordPath.x", "alarm.flashCategories.x", "alarm.flashCategories.01", "alarm.alarmSounds.1.volume"})
    {
        QTest::newRow(pszName) << pszName;
    }
}

void tst_SettingValue::UnknownNamesAreRefused()
{
    QFETCH(QString, strName);
    Settings settings;
    QString strError;
    QVERIFY(!SettingValue::Get(settings, strName));
    QVERIFY(!SettingValue::Set(settings, strName, "1", strError));
    QVERIFY2(strError.contains('\'' + strName + '\''), qPrintable(strError));
}

void tst_SettingValue::ImpossibleValuesAreRefused_data()
{
    QTest::addColumn<QString>("strName");
    QTest::addColumn<QString>("strValue");
    QTest::newRow("fraction") << "video.nDefaultSplit"
                              << "1.5";
    QTest::newRow("too large") << "video.nDefaultSplit"
                               << "2147483648";
    QTest::newRow("text") << "video.nDefaultSplit"
                          << "four";
    QTest::newRow("nothing") << "video.nDefaultSplit"
                             << "";
    QTest::newRow("two values") << "video.nDefaultSplit"
                                << "4,9";
    QTest::newRow("number for a bool") << "basic.autoLogin"
                                       << "1";
    QTest::newRow("word for a bool") << "basic.autoLogin"
                                     << "yes";
    QTest::newRow("text for a section") << "basic"
                                        << "x";
    QTest::newRow("value within a section") << "basic"
                                            << "{\"autoLogin\": 1}";
}

void tst_SettingValue::ImpossibleValuesAreRefused()
{
    QFETCH(QString, strName);
    QFETCH(QString, strValue);
    Settings settings;
    QString strError;
    QVERIFY(!SettingValue::Set(settings, strName, strValue, strError));
    QVERIFY2(strError.contains(strName), qPrintable(strError));
}

void tst_SettingValue::WhatAMapLacksIsAdded()
{
    Settings settings;
    QString strError;
    QVERIFY(SettingValue::Set(settings, "alarm.alarmSounds.967.customSound", "/a.wav", strError));
    QCOMPARE(settings.alarm.alarmSounds.at(967).customSound, std::string("/a.wav"));
}

QTEST_GUILESS_MAIN(tst_SettingValue)

#include "tst_SettingValue.moc"
