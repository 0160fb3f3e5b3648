#include "support/VideoPage.h"

#include <KvGui/KvSpinBox.h>

#include <QPushButton>

using namespace LocalConfig;
using LocalConfigLogical::VideoConfigInfo;

class tst_VideoLoad : public CVideoPageTest
{
    Q_OBJECT

private slots:
    void init() { Reset(); }

    void ANullSectionIsRefused();
    void LoadReadsTheSectionOnce();
    void LoadScale_data();
    void LoadScale();
    void LoadPlayMode_data();
    void LoadPlayMode();
    void LoadThresholds_data();
    void LoadThresholds();
    void LoadFlags();
    void LoadGpu_data();
    void LoadGpu();
    void LoadSilentTime_data();
    void LoadSilentTime();
    void DefaultsReadOnlyTheMachinesAbility();
    void UnInitForgetsTheSection();
};

void tst_VideoLoad::ANullSectionIsRefused()
{
    QCOMPARE(m_pPage->SetConfigSection(nullptr), -1);
    QCOMPARE(m_pPage->SaveConfig(), -1);
    m_pPage->LoadConfig(false);
    QCOMPARE(m_journal.Take(), QStringList());
    QVERIFY(!QFile::exists("Localcfg.ini"));
}

void tst_VideoLoad::LoadReadsTheSectionOnce()
{
    QCOMPARE(m_pPage->SetConfigSection(m_pSection.data()), 0);
    QCOMPARE(m_journal.Take(), QStringList{"GetConfig"});
}

void tst_VideoLoad::LoadScale_data()
{
    QTest::addColumn<int>("nScale");
    QTest::addColumn<QString>("strText");
    QTest::newRow("0") << 0 << "Original Scale";
    QTest::newRow("1") << 1 << "Full Screen";
    QTest::newRow("2") << 2 << "Original Scale"; // what stood there before
    QTest::newRow("-1") << -1 << "Original Scale";
}

void tst_VideoLoad::LoadScale()
{
    QFETCH(int, nScale);
    QFETCH(QString, strText);
    VideoConfigInfo record;
    record.nDisplayScale = 0;
    Load(record);
    record.nDisplayScale = nScale;
    Load(record);
    QCOMPARE(Combo("pCmbScale")->currentText(), strText);
}

void tst_VideoLoad::LoadPlayMode_data()
{
    QTest::addColumn<int>("nPlayMode");
    QTest::addColumn<int>("nIndex");
    QTest::addColumn<bool>("bCustom");
    QTest::newRow("1") << 1 << 0 << false;
    QTest::newRow("2") << 2 << 1 << false;
    QTest::newRow("3") << 3 << 2 << false;
    QTest::newRow("4") << 4 << 3 << true;
    QTest::newRow("5") << 5 << -1 << false;
    QTest::newRow("0 leaves what was there") << 0 << 3 << true;
    QTest::newRow("-1 leaves what was there") << -1 << 3 << true;
}

void tst_VideoLoad::LoadPlayMode()
{
    QFETCH(int, nPlayMode);
    QFETCH(int, nIndex);
    QFETCH(bool, bCustom);
    VideoConfigInfo record;
    record.nPlayMode = 4;
    Load(record);
    record.nPlayMode = nPlayMode;
    Load(record);
    QCOMPARE(Combo("playmodeComboBox")->currentIndex(), nIndex);
    QCOMPARE(Enabled("wgtPlayModeCustomize"), bCustom);
    QCOMPARE(Enabled("playmodelabel_2"), bCustom);
}

void tst_VideoLoad::LoadThresholds_data()
{
    QTest::addColumn<int>("nSplit");
    QTest::addColumn<QString>("strSplit");
    QTest::addColumn<int>("nCpu");
    QTest::addColumn<QString>("strCpu");
    QTest::newRow("known") << 16 << "16" << 100 << "100%";
    QTest::newRow("first") << 1 << "1" << 50 << "50%";
    QTest::newRow("unknown") << 10 << QString() << 85 << QString();
}

void tst_VideoLoad::LoadThresholds()
{
    QFETCH(int, nSplit);
    QFETCH(QString, strSplit);
    QFETCH(int, nCpu);
    QFETCH(QString, strCpu);
    VideoConfigInfo record;
    record.nSubStreamSplitThreshold = nSplit;
    record.nCpuPromptThreshold = nCpu;
    Load(record);
    QCOMPARE(Combo("wndSplitCmbBox")->currentText(), strSplit);
    QCOMPARE(Combo("cpuOccupycomboBox")->currentText(), strCpu);
}

void tst_VideoLoad::LoadFlags()
{
    VideoConfigInfo record;
    record.bDblClickMainStream = true;
    record.nVideoBufferTime = 321;
    Load(record);
    QVERIFY(Check("chkboxDblk2ChangeStream")->isChecked());
    QCOMPARE(Edit("videoCushionEdit")->text(), QString("321"));
}

void tst_VideoLoad::LoadGpu_data()
{
    QTest::addColumn<bool>("bSupported");
    QTest::addColumn<int>("nDecodeMode");
    QTest::addColumn<bool>("bChecked");
    QTest::newRow("hardware") << true << 2 << true;
    QTest::newRow("another mode") << true << 1 << true;
    QTest::newRow("software") << true << 0 << false;
    QTest::newRow("not supported") << false << 2 << false;
}

void tst_VideoLoad::LoadGpu()
{
    QFETCH(bool, bSupported);
    QFETCH(int, nDecodeMode);
    QFETCH(bool, bChecked);
    VideoConfigInfo record;
    record.bGpuDecodeSupported = bSupported;
    record.nDecodeMode = nDecodeMode;
    Load(record);
    QCOMPARE(Check("chkboxGpuDecode")->isChecked(), bChecked);
}

void tst_VideoLoad::LoadSilentTime_data()
{
    QTest::addColumn<int>("nTime");
    QTest::addColumn<bool>("bOn");
    QTest::addColumn<int>("nShown");
    QTest::newRow("0") << 0 << false << 1;
    QTest::newRow("-3") << -3 << false << 1;
    QTest::newRow("1") << 1 << true << 1;
    QTest::newRow("30") << 30 << true << 30;
    QTest::newRow("31") << 31 << true << 30;
}

void tst_VideoLoad::LoadSilentTime()
{
    QFETCH(int, nTime);
    QFETCH(bool, bOn);
    QFETCH(int, nShown);
    VideoConfigInfo record;
    record.nSilentTime = nTime;
    Load(record);
    QCOMPARE(Check("silenceChkBox")->isChecked(), bOn);
    QCOMPARE(Enabled("silenceWidget"), bOn);
    QCOMPARE(Find<KVGUI::KvSpinBox>("silenceTimeSpinBox")->value(), nShown);
}

void tst_VideoLoad::DefaultsReadOnlyTheMachinesAbility()
{
    VideoConfigInfo record;
    record.nPlayMode = 4;
    record.nVideoBufferTime = 7;
    record.nDecodeMode = 2;
    record.nDefaultSplit = 36;
    record.nSubStreamSplitThreshold = 1;
    record.bInstantCustom = true;
    record.nSilentTime = 9;
    record.nCpuPromptThreshold = 50;
    record.nDisplayScale = 0;
    record.bDblClickMainStream = true;
    Load(record);
    m_pPage->LoadConfig(true);
    QCOMPARE(m_journal.Take(), QStringList{"GetConfig"});
    QCOMPARE(Combo("playmodeComboBox")->currentText(), QString("Balance Priority"));
    QCOMPARE(Edit("videoCushionEdit")->text(), QString("1500"));
    QVERIFY(!Check("chkboxGpuDecode")->isChecked());
    QVERIFY(Find<QPushButton>("btnShowSplitWnd")->styleSheet().contains("tip_4-n.svg"));
    QCOMPARE(Combo("wndSplitCmbBox")->currentText(), QString("9"));
    QCOMPARE(Combo("instantComboBox")->currentText(), QString("30s"));
    QVERIFY(!Check("silenceChkBox")->isChecked());
    QCOMPARE(Combo("cpuOccupycomboBox")->currentText(), QString("80%"));
    QCOMPARE(Combo("pCmbScale")->currentText(), QString("Full Screen"));
    QVERIFY(!Check("chkboxDblk2ChangeStream")->isChecked());
}

void tst_VideoLoad::UnInitForgetsTheSection()
{
    Load(VideoConfigInfo());
    m_pPage->UnInit();
    m_pPage->UnInit();
    QCOMPARE(m_pPage->SaveConfig(), -1);
    m_pPage->LoadConfig(true);
    m_pPage->SetControlsEnabled(true);
    QCOMPARE(m_journal.Take(), QStringList());
}

QTEST_MAIN(tst_VideoLoad)

#include "tst_VideoLoad.moc"
