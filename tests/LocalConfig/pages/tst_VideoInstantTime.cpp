#include "support/Patterns.h"
#include "support/VideoPage.h"

#include <QToolTip>

using namespace LocalConfig;
using LocalConfigLogical::VideoConfigInfo;

class tst_VideoInstantTime : public CVideoPageTest
{
    Q_OBJECT

private slots:
    void init() { Reset(); }

    void HourPattern();
    void MinutePattern();
    void SecondPattern();
    void FiveInHoursCannotBeTyped();
    void ChangingTheUnitEmptiesTheField();
    void LoadInstantTime_data();
    void LoadInstantTime();
    void LoadCustomInstantTime_data();
    void LoadCustomInstantTime();
    void SavePresets_data();
    void SavePresets();
    void SaveWithoutAPresetStoresZero();
    void SaveCustomTime_data();
    void SaveCustomTime();
    void ARefusedTimeStoresNothing();
};

void tst_VideoInstantTime::HourPattern()
{
    Combo("timeUnitComboBox")->setCurrentIndex(0);
    CheckEveryNumber(Edit("instantTimeEdit"), [](int n) { return n == 1 || n == 2 || (n >= 10 && n <= 24); });
    for (int n = 3; n <= 9; ++n)
    {
        QCOMPARE(Validate(Edit("instantTimeEdit"), QString::number(n)), QValidator::Invalid);
    }
}

void tst_VideoInstantTime::MinutePattern()
{
    Combo("timeUnitComboBox")->setCurrentIndex(1);
    CheckEveryNumber(Edit("instantTimeEdit"), [](int n) {
        const bool bThousand = n >= 1000 && n <= 1339 && (n / 10) % 10 <= 3;
        return (n >= 1 && n <= 999) || bThousand || n == 1440;
    });
}

void tst_VideoInstantTime::SecondPattern()
{
    CheckEveryNumber(Edit("instantTimeEdit"), [](int n) {
        const bool bEighty = n >= 80000 && n <= 85399 && (n / 1000) % 10 <= 5 && (n / 100) % 10 <= 3;
        return (n >= 1 && n <= 79999) || bEighty || n == 86400;
    });
}

void tst_VideoInstantTime::FiveInHoursCannotBeTyped()
{
    VideoConfigInfo record;
    record.bInstantCustom = true;
    record.nInstantTimeUnit = 0;
    Load(record);
    for (const auto& [pszTyped, pszLeft] :
         {std::pair<const char*, const char*>{"5", ""}, {"24", "24"}, {"2", "2"}, {"25", "2"}, {"0", ""}})
    {
        Type("instantTimeEdit", pszTyped);
        QCOMPARE(Edit("instantTimeEdit")->text(), QString(pszLeft));
    }
}

void tst_VideoInstantTime::ChangingTheUnitEmptiesTheField()
{
    VideoConfigInfo record;
    record.bInstantCustom = true;
    record.nInstantPlaybackTime = 45;
    Load(record);
    QCOMPARE(Edit("instantTimeEdit")->text(), QString("45"));
    QTest::keyClick(Combo("timeUnitComboBox"), Qt::Key_Up);
    QCOMPARE(Combo("timeUnitComboBox")->currentText(), QString("Minute"));
    QVERIFY(Edit("instantTimeEdit")->text().isEmpty());
}

void tst_VideoInstantTime::LoadInstantTime_data()
{
    QTest::addColumn<int>("nSeconds");
    QTest::addColumn<QString>("strText");
    QTest::newRow("30") << 30 << "30s";
    QTest::newRow("60") << 60 << "1Min";
    QTest::newRow("120") << 120 << "2Min";
    QTest::newRow("300") << 300 << "5Min";
    QTest::newRow("600") << 600 << "10Min";
    for (int n : {0, 1, 2, 5, 10, 45, 59, 3600, -30})
    {
        QTest::addRow("%d", n) << n << QString();
    }
}

void tst_VideoInstantTime::LoadInstantTime()
{
    QFETCH(int, nSeconds);
    QFETCH(QString, strText);
    VideoConfigInfo record;
    record.bInstantCustom = true;
    record.nInstantTimeUnit = 1;
    Load(record);
    record.bInstantCustom = false;
    record.nInstantPlaybackTime = nSeconds;
    record.nInstantTimeUnit = 0;
    Load(record);
    QCOMPARE(Combo("instantComboBox")->currentText(), strText);
    QVERIFY(!Enabled("wgtInstantTimeCustomize"));
    QVERIFY(Edit("instantTimeEdit")->text().isEmpty());
    QCOMPARE(Combo("timeUnitComboBox")->currentText(), QString("Second"));
}

void tst_VideoInstantTime::LoadCustomInstantTime_data()
{
    QTest::addColumn<int>("nUnit");
    QTest::addColumn<QString>("strUnit");
    QTest::newRow("hour") << 0 << "Hour";
    QTest::newRow("minute") << 1 << "Minute";
    QTest::newRow("second") << 2 << "Second";
    QTest::newRow("unknown") << 7 << QString();
}

void tst_VideoInstantTime::LoadCustomInstantTime()
{
    QFETCH(int, nUnit);
    QFETCH(QString, strUnit);
    VideoConfigInfo record;
    record.bInstantCustom = true;
    record.nInstantTimeUnit = nUnit;
    record.nInstantPlaybackTime = 12;
    Load(record);
    QVERIFY(Enabled("wgtInstantTimeCustomize"));
    QCOMPARE(Combo("instantComboBox")->currentText(), QString("Custom"));
    QCOMPARE(Combo("timeUnitComboBox")->currentText(), strUnit);
    QCOMPARE(Edit("instantTimeEdit")->text(), QString("12"));
}

void tst_VideoInstantTime::SavePresets_data()
{
    QTest::addColumn<int>("nIndex");
    QTest::addColumn<int>("nSeconds");
    const int arrSeconds[] = {30, 60, 120, 300, 600};
    for (int n = 0; n < 5; ++n)
    {
        QTest::addRow("%d", arrSeconds[n]) << n << arrSeconds[n];
    }
}

void tst_VideoInstantTime::SavePresets()
{
    QFETCH(int, nIndex);
    QFETCH(int, nSeconds);
    VideoConfigInfo record;
    record.bInstantCustom = true;
    Load(record);
    Combo("instantComboBox")->setCurrentIndex(nIndex);
    QVERIFY(!Enabled("wgtInstantTimeCustomize"));
    QCOMPARE(m_pPage->SaveConfig(), 0);
    QCOMPARE(m_pSection->m_record.nInstantPlaybackTime, nSeconds);
    QVERIFY(!m_pSection->m_record.bInstantCustom);
}

void tst_VideoInstantTime::SaveWithoutAPresetStoresZero()
{
    VideoConfigInfo record;
    record.nInstantPlaybackTime = 45;
    Load(record);
    QCOMPARE(Combo("instantComboBox")->currentIndex(), -1);
    QCOMPARE(m_pPage->SaveConfig(), 0);
    QCOMPARE(m_pSection->m_record.nInstantPlaybackTime, 0);
}

void tst_VideoInstantTime::SaveCustomTime_data()
{
    QTest::addColumn<int>("nUnit");
    QTest::addColumn<QString>("strText");
    QTest::addColumn<int>("nResult");
    QTest::addColumn<int>("nSaved");
    QTest::newRow("9 seconds") << 2 << "9" << -1 << 0;
    QTest::newRow("10 seconds") << 2 << "10" << 0 << 10;
    QTest::newRow("86400 seconds") << 2 << "86400" << 0 << 86400;
    QTest::newRow("no seconds") << 2 << "" << -1 << 0;
    QTest::newRow("9 minutes") << 1 << "9" << 0 << 9;
    QTest::newRow("1440 minutes") << 1 << "1440" << 0 << 1440;
    QTest::newRow("no minutes") << 1 << "" << 0 << 0;
    QTest::newRow("24 hours") << 0 << "24" << 0 << 24;
    QTest::newRow("no hours") << 0 << "" << 0 << 0;
}

void tst_VideoInstantTime::SaveCustomTime()
{
    QFETCH(int, nUnit);
    QFETCH(QString, strText);
    QFETCH(int, nResult);
    QFETCH(int, nSaved);
    Load(VideoConfigInfo());
    Combo("instantComboBox")->setCurrentIndex(5);
    QVERIFY(Enabled("wgtInstantTimeCustomize"));
    Combo("timeUnitComboBox")->setCurrentIndex(nUnit);
    Type("instantTimeEdit", strText);
    QCOMPARE(Edit("instantTimeEdit")->text(), strText);
    QCOMPARE(m_pPage->SaveConfig(), nResult);
    if (nResult == 0)
    {
        QCOMPARE(m_pSection->m_record.nInstantPlaybackTime, nSaved);
        QCOMPARE(m_pSection->m_record.nInstantTimeUnit, nUnit);
        QVERIFY(m_pSection->m_record.bInstantCustom);
    }
}

void tst_VideoInstantTime::ARefusedTimeStoresNothing()
{
    Load(VideoConfigInfo());
    Combo("instantComboBox")->setCurrentIndex(5);
    Type("instantTimeEdit", "9");
    QToolTip::hideText();
    QCOMPARE(m_pPage->SaveConfig(), -1);
    QCOMPARE(m_journal.Take(), QStringList{"GetConfig"});
    QVERIFY(!QFile::exists("Localcfg.ini"));
    QCOMPARE(QToolTip::text(), QString());
}

QTEST_MAIN(tst_VideoInstantTime)

#include "tst_VideoInstantTime.moc"
