#include "support/FakeSections.h"
#include "support/Patterns.h"

#include <LocalConfig/interfaces/IVideoSection.h>
#include <LocalConfig/pages/CSplitWndNumConfig.h>
#include <LocalConfig/pages/CVideoConfig.h>

#include <KvGui/KvCheckBox.h>
#include <KvGui/KvLineEdit.h>
#include <KvGui/KvSpinBox.h>

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QMetaMethod>
#include <QPushButton>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QToolTip>
#include <QtTest>

using namespace LocalConfig;
using LocalConfigLogical::IVideoSection;
using LocalConfigLogical::VideoConfigInfo;

class tst_VideoConfig : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(QDir::setCurrent(m_folder.path())); }
    void init();

    void MetaObjectOrder();
    void Captions_data();
    void Captions();
    void Items_data();
    void Items();
    void ScaleItemsHaveData();
    void CheckBoxTexts();
    void ToolTipOfTheDoubleClickBox();
    void NarrowCheckBoxesTellTheirText();

    void BufferPattern();
    void HourPattern();
    void MinutePattern();
    void SecondPattern();
    void FiveInHoursCannotBeTyped();
    void ChangingTheUnitEmptiesTheField();

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
    void LoadInstantTime_data();
    void LoadInstantTime();
    void LoadCustomInstantTime_data();
    void LoadCustomInstantTime();
    void DefaultsReadOnlyTheMachinesAbility();

    void SplitButtonStyle_data();
    void SplitButtonStyle();
    void ThePickerIsHiddenAtFirst();
    void PickerTogglesAndStandsBelowTheButton();
    void PickingHidesThePicker();
    void LeavingHidesThePicker();

    void EverySettingRoundTrips();
    void ReservedFieldsAreCarried();
    void SavePlayModeWithoutASelection();
    void SaveBufferTime_data();
    void SaveBufferTime();
    void EmptyBufferIsRefilledOnFocusOut();
    void EmptyBufferThatHasTheFocusIsStoredAsZero();
    void SavePresets_data();
    void SavePresets();
    void SaveWithoutAPresetStoresZero();
    void SaveCustomTime_data();
    void SaveCustomTime();
    void ARefusedTimeStoresNothing();
    void SaveMirrorsProcessDecode();
    void SaveSilentTime();
    void SaveReturnsTheSectionsResult();

    void ConnectionState_data();
    void ConnectionState();
    void SilentBoxEnablesItsWidget();
    void OnlyCustomPlayModeEnablesItsWidget();
    void UnInitForgetsTheSection();

private:
    template <class Control>
    Control* Find(const char* pszName) const
    {
        return m_pPage->findChild<Control*>(pszName);
    }
    QComboBox* Combo(const char* pszName) const { return Find<QComboBox>(pszName); }
    KVGUI::KvLineEdit* Edit(const char* pszName) const { return Find<KVGUI::KvLineEdit>(pszName); }
    KVGUI::KvCheckBox* Check(const char* pszName) const { return Find<KVGUI::KvCheckBox>(pszName); }
    bool Enabled(const char* pszName) const { return Find<QWidget>(pszName)->isEnabled(); }
    void Load(const VideoConfigInfo& record)
    {
        m_pSection->m_record = record;
        QCOMPARE(m_pPage->SetConfigSection(m_pSection.data()), 0);
        m_journal.Take();
    }
    void Show()
    {
        m_parent.show();
        m_pPage->show();
        QApplication::setActiveWindow(&m_parent);
        QVERIFY(QTest::qWaitForWindowActive(&m_parent));
    }
    void Type(const char* pszName, const QString& strText) const
    {
        Edit(pszName)->clear();
        QTest::keyClicks(Edit(pszName), strText);
    }

    QTemporaryDir m_folder;
    CJournal m_journal;
    QScopedPointer<CFakeSection<IVideoSection, VideoConfigInfo>> m_pSection;
    QWidget m_parent;
    QScopedPointer<CVideoConfig> m_pPage;
};

void tst_VideoConfig::init()
{
    QFile::remove("Localcfg.ini");
    m_pPage.reset();
    m_parent.resize(662, 841);
    m_pSection.reset(new CFakeSection<IVideoSection, VideoConfigInfo>(m_journal));
    m_pPage.reset(new CVideoConfig(&m_parent));
    m_pPage->resize(662, 841);
    m_journal.Take();
}

void tst_VideoConfig::MetaObjectOrder()
{
    const QMetaObject& meta = CVideoConfig::staticMetaObject;
    QList<QByteArray> listMethods;
    for (int n = meta.methodOffset(); n < meta.methodCount(); ++n)
    {
        listMethods += meta.method(n).methodSignature();
    }
    QCOMPARE(listMethods, (QList<QByteArray>{"SignalChangeSize()", "OnDefStreamClicked()", "OnAdaptStreamClicked()",
                                             "OnCurrentIndexChangedPlayModeType(int)", "OnShowSplitWndCfg()",
                                             "OnSplitWndChange(int)", "OnCurrentIndexChangedInstantType(int)",
                                             "OnCurrentIndexChangedTimeUnit(int)", "OnSilentStateChanged(int)"}));
}

void tst_VideoConfig::Captions_data()
{
    QTest::addColumn<QString>("strName");
    QTest::addColumn<QString>("strText");
    QTest::newRow("splitLabel") << "splitLabel"
                                << "Default Split:";
    QTest::newRow("VideoWndDisplayLabel") << "VideoWndDisplayLabel"
                                          << "Window Display:";
    QTest::newRow("streamLabel") << "streamLabel"
                                 << "Stream Type:";
    QTest::newRow("label_5") << "label_5"
                             << "When split exceeds threshold, sub stream is opened";
    QTest::newRow("playmodelabel") << "playmodelabel"
                                   << "Play Mode:";
    QTest::newRow("playmodelabel_2") << "playmodelabel_2"
                                     << "Video Buffer Time:";
    QTest::newRow("videoLabel") << "videoLabel"
                                << "0-1500 ms";
    QTest::newRow("label_3") << "label_3"
                             << "CPU Usage Prompt Threshold:";
    QTest::newRow("label_2") << "label_2"
                             << "Instant Playback Time:";
    QTest::newRow("label") << "label"
                           << "10s-24h";
    QTest::newRow("silentTimeLabel") << "silentTimeLabel"
                                     << "Silent Time:";
    QTest::newRow("silenceTimeRgLabel") << "silenceTimeRgLabel"
                                        << "(1-30 min)";
}

void tst_VideoConfig::Captions()
{
    QFETCH(QString, strName);
    QFETCH(QString, strText);
    QCOMPARE(m_pPage->findChild<QLabel*>(strName)->text(), strText);
}

void tst_VideoConfig::Items_data()
{
    QTest::addColumn<QString>("strName");
    QTest::addColumn<QStringList>("listItems");
    QTest::newRow("scale") << "pCmbScale" << QStringList{"Original Scale", "Full Screen"};
    QTest::newRow("split") << "wndSplitCmbBox" << QStringList{"1", "4", "6", "8", "9", "13", "16", "20", "25", "36"};
    QTest::newRow("play mode") << "playmodeComboBox"
                               << QStringList{"Real-time Priority", "Fluency Priority", "Balance Priority", "Custom"};
    QTest::newRow("cpu") << "cpuOccupycomboBox" << QStringList{"50%", "60%", "70%", "80%", "90%", "100%"};
    QTest::newRow("instant") << "instantComboBox" << QStringList{"30s", "1Min", "2Min", "5Min", "10Min", "Custom"};
    QTest::newRow("unit") << "timeUnitComboBox" << QStringList{"Hour", "Minute", "Second"};
}

void tst_VideoConfig::Items()
{
    QFETCH(QString, strName);
    QFETCH(QStringList, listItems);
    const auto* pCombo = m_pPage->findChild<QComboBox*>(strName);
    QStringList listTexts;
    for (int n = 0; n < pCombo->count(); ++n)
    {
        listTexts += pCombo->itemText(n);
    }
    QCOMPARE(listTexts, listItems);
}

void tst_VideoConfig::ScaleItemsHaveData()
{
    QCOMPARE(Combo("pCmbScale")->itemData(0).toInt(), 0);
    QCOMPARE(Combo("pCmbScale")->itemData(1).toInt(), 1);
}

void tst_VideoConfig::CheckBoxTexts()
{
    QCOMPARE(Check("chkboxGpuDecode")->text(),
             QString("Enable hardware acceleration(Takes effect after reopening video)"));
    QCOMPARE(Check("chkboxDblk2ChangeStream")->text(),
             QString("Double click on the video to maximize the window and switch to main stream"));
    QCOMPARE(Check("silenceChkBox")->text(), QString("Close videos being played after long-time inactivity"));
}

void tst_VideoConfig::NarrowCheckBoxesTellTheirText()
{
    const char* const arrNames[] = {"chkboxGpuDecode", "chkboxDblk2ChangeStream", "silenceChkBox"};
    for (const char* pszName : arrNames)
    {
        Check(pszName)->resize(40, 20);
    }
    Load(VideoConfigInfo());
    for (const char* pszName : arrNames)
    {
        QCOMPARE(Check(pszName)->toolTip(), Check(pszName)->text());
    }
}

void tst_VideoConfig::ToolTipOfTheDoubleClickBox()
{
    QCOMPARE(Check("chkboxDblk2ChangeStream")->toolTip(), Check("chkboxDblk2ChangeStream")->text());
    Check("chkboxDblk2ChangeStream")->resize(5000, 20); // where the text fits, the tip stays all the same
    Load(VideoConfigInfo());
    QCOMPARE(Check("chkboxDblk2ChangeStream")->toolTip(), Check("chkboxDblk2ChangeStream")->text());
}

void tst_VideoConfig::BufferPattern()
{
    CheckEveryNumber(Edit("videoCushionEdit"), [](int n) { return n <= 1500; });
    QCOMPARE(Validate(Edit("videoCushionEdit"), ""), QValidator::Acceptable);
    for (const char* pszText : {"01", "-1", "1501", "2000", "15000", "a"})
    {
        QCOMPARE(Validate(Edit("videoCushionEdit"), pszText), QValidator::Invalid);
    }
}

void tst_VideoConfig::HourPattern()
{
    Combo("timeUnitComboBox")->setCurrentIndex(0);
    CheckEveryNumber(Edit("instantTimeEdit"), [](int n) { return n == 1 || n == 2 || (n >= 10 && n <= 24); });
    for (int n = 3; n <= 9; ++n)
    {
        QCOMPARE(Validate(Edit("instantTimeEdit"), QString::number(n)), QValidator::Invalid);
    }
}

void tst_VideoConfig::MinutePattern()
{
    Combo("timeUnitComboBox")->setCurrentIndex(1);
    CheckEveryNumber(Edit("instantTimeEdit"), [](int n) {
        const bool bThousand = n >= 1000 && n <= 1339 && (n / 10) % 10 <= 3;
        return (n >= 1 && n <= 999) || bThousand || n == 1440;
    });
}

void tst_VideoConfig::SecondPattern()
{
    CheckEveryNumber(Edit("instantTimeEdit"), [](int n) {
        const bool bEighty = n >= 80000 && n <= 85399 && (n / 1000) % 10 <= 5 && (n / 100) % 10 <= 3;
        return (n >= 1 && n <= 79999) || bEighty || n == 86400;
    });
}

void tst_VideoConfig::FiveInHoursCannotBeTyped()
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

void tst_VideoConfig::ChangingTheUnitEmptiesTheField()
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

void tst_VideoConfig::ANullSectionIsRefused()
{
    QCOMPARE(m_pPage->SetConfigSection(nullptr), -1);
    QCOMPARE(m_pPage->SaveConfig(), -1);
    m_pPage->LoadConfig(false);
    QCOMPARE(m_journal.Take(), QStringList());
    QVERIFY(!QFile::exists("Localcfg.ini"));
}

void tst_VideoConfig::LoadReadsTheSectionOnce()
{
    QCOMPARE(m_pPage->SetConfigSection(m_pSection.data()), 0);
    QCOMPARE(m_journal.Take(), QStringList{"GetConfig"});
}

void tst_VideoConfig::LoadScale_data()
{
    QTest::addColumn<int>("nScale");
    QTest::addColumn<QString>("strText");
    QTest::newRow("0") << 0 << "Original Scale";
    QTest::newRow("1") << 1 << "Full Screen";
    QTest::newRow("2") << 2 << "Original Scale"; // what stood there before
    QTest::newRow("-1") << -1 << "Original Scale";
}

void tst_VideoConfig::LoadScale()
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

void tst_VideoConfig::LoadPlayMode_data()
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

void tst_VideoConfig::LoadPlayMode()
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

void tst_VideoConfig::LoadThresholds_data()
{
    QTest::addColumn<int>("nSplit");
    QTest::addColumn<QString>("strSplit");
    QTest::addColumn<int>("nCpu");
    QTest::addColumn<QString>("strCpu");
    QTest::newRow("known") << 16 << "16" << 100 << "100%";
    QTest::newRow("first") << 1 << "1" << 50 << "50%";
    QTest::newRow("unknown") << 10 << QString() << 85 << QString();
}

void tst_VideoConfig::LoadThresholds()
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

void tst_VideoConfig::LoadFlags()
{
    VideoConfigInfo record;
    record.bDblClickMainStream = true;
    record.nVideoBufferTime = 321;
    Load(record);
    QVERIFY(Check("chkboxDblk2ChangeStream")->isChecked());
    QCOMPARE(Edit("videoCushionEdit")->text(), QString("321"));
}

void tst_VideoConfig::LoadGpu_data()
{
    QTest::addColumn<bool>("bSupported");
    QTest::addColumn<int>("nDecodeMode");
    QTest::addColumn<bool>("bChecked");
    QTest::newRow("hardware") << true << 2 << true;
    QTest::newRow("another mode") << true << 1 << true;
    QTest::newRow("software") << true << 0 << false;
    QTest::newRow("not supported") << false << 2 << false;
}

void tst_VideoConfig::LoadGpu()
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

void tst_VideoConfig::LoadSilentTime_data()
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

void tst_VideoConfig::LoadSilentTime()
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

void tst_VideoConfig::LoadInstantTime_data()
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

void tst_VideoConfig::LoadInstantTime()
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

void tst_VideoConfig::LoadCustomInstantTime_data()
{
    QTest::addColumn<int>("nUnit");
    QTest::addColumn<QString>("strUnit");
    QTest::newRow("hour") << 0 << "Hour";
    QTest::newRow("minute") << 1 << "Minute";
    QTest::newRow("second") << 2 << "Second";
    QTest::newRow("unknown") << 7 << QString();
}

void tst_VideoConfig::LoadCustomInstantTime()
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

void tst_VideoConfig::DefaultsReadOnlyTheMachinesAbility()
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

void tst_VideoConfig::SplitButtonStyle_data()
{
    QTest::addColumn<int>("nSplit");
    for (int n : {1, 4, 6, 8, 9, 13, 16, 20, 25, 36})
    {
        QTest::addRow("%d", n) << n;
    }
}

void tst_VideoConfig::SplitButtonStyle()
{
    QFETCH(int, nSplit);
    VideoConfigInfo record;
    record.nDefaultSplit = nSplit;
    Load(record);
    const QString strN = QString::number(nSplit);
    const QString strGap = " \t\t\t\t\t\t";
    QCOMPARE(Find<QPushButton>("btnShowSplitWnd")->styleSheet(),
             "QPushButton#btnShowSplitWnd{image: url(:/LocalConfig/tip_" + strN + "-n.svg);border:none;}" + strGap +
                 "QPushButton#btnShowSplitWnd:hover{image: url(:/LocalConfig/tip_" + strN + "-h.svg);}" + strGap +
                 "QPushButton#btnShowSplitWnd:pressed{image: url(:/LocalConfig/tip_" + strN + "-p.svg);}" + strGap +
                 "QPushButton#btnShowSplitWnd:disabled{image: url(:/LocalConfig/tip_" + strN + "-d.svg);}");
}

void tst_VideoConfig::ThePickerIsHiddenAtFirst()
{
    Show();
    QVERIFY(!Find<CSplitWndNumConfig>("CSplitWndNumConfig")->isVisible());
}

void tst_VideoConfig::PickerTogglesAndStandsBelowTheButton()
{
    Load(VideoConfigInfo());
    Show();
    auto* pPicker = Find<CSplitWndNumConfig>("CSplitWndNumConfig");
    auto* pButton = Find<QPushButton>("btnShowSplitWnd");
    QVERIFY(!pPicker->isVisible());
    QTest::mouseClick(pButton, Qt::LeftButton);
    QVERIFY(pPicker->isVisible());
    const QPoint button = pButton->mapTo(m_pPage.data(), QPoint());
    QCOMPARE(pPicker->pos(), QPoint(button.x() - pButton->width(), button.y() + pButton->height() + 10));
    QTest::mouseClick(pButton, Qt::LeftButton);
    QVERIFY(!pPicker->isVisible());
}

void tst_VideoConfig::PickingHidesThePicker()
{
    Load(VideoConfigInfo());
    Show();
    auto* pPicker = Find<CSplitWndNumConfig>("CSplitWndNumConfig");
    QTest::mouseClick(Find<QPushButton>("btnShowSplitWnd"), Qt::LeftButton);
    QTest::mouseClick(Find<QPushButton>("btnDiv25"), Qt::LeftButton);
    QVERIFY(!pPicker->isVisible());
    QVERIFY(Find<QPushButton>("btnShowSplitWnd")->styleSheet().contains("tip_25-n.svg"));
    QCOMPARE(m_parent.focusWidget(), m_pPage.data());
    QCOMPARE(m_pPage->SaveConfig(), 0);
    QCOMPARE(m_pSection->m_record.nDefaultSplit, 25);
}

void tst_VideoConfig::LeavingHidesThePicker()
{
    Load(VideoConfigInfo());
    Show();
    auto* pPicker = Find<CSplitWndNumConfig>("CSplitWndNumConfig");
    for (QWidget* pLeft : {static_cast<QWidget*>(pPicker), static_cast<QWidget*>(Edit("videoCushionEdit"))})
    {
        QTest::mouseClick(Find<QPushButton>("btnShowSplitWnd"), Qt::LeftButton);
        QVERIFY(pPicker->isVisible());
        QEvent leave(QEvent::Leave);
        QApplication::sendEvent(pLeft, &leave);
        QVERIFY(!pPicker->isVisible());
    }
}

void tst_VideoConfig::EverySettingRoundTrips()
{
    VideoConfigInfo record;
    record.nPlayMode = 4;
    record.nVideoBufferTime = 321;
    record.bDblClickMainStream = true;
    record.nDecodeMode = 2;
    record.nDefaultSplit = 13;
    record.nSubStreamSplitThreshold = 25;
    record.nInstantPlaybackTime = 12;
    record.bInstantCustom = true;
    record.nInstantTimeUnit = 0;
    record.nSilentTime = 7;
    record.nCpuPromptThreshold = 60;
    record.nDisplayScale = 0;
    Load(record);
    m_pSection->m_record = VideoConfigInfo();
    QCOMPARE(m_pPage->SaveConfig(), 0);
    const VideoConfigInfo& saved = m_pSection->m_record;
    QCOMPARE(saved.nPlayMode, 4);
    QCOMPARE(saved.nVideoBufferTime, 321);
    QVERIFY(saved.bDblClickMainStream);
    QCOMPARE(saved.nDecodeMode, 2);
    QCOMPARE(saved.nDefaultSplit, 13);
    QCOMPARE(saved.nSubStreamSplitThreshold, 25);
    QCOMPARE(saved.nInstantPlaybackTime, 12);
    QVERIFY(saved.bInstantCustom);
    QCOMPARE(saved.nInstantTimeUnit, 0);
    QCOMPARE(saved.nSilentTime, 7);
    QCOMPARE(saved.nCpuPromptThreshold, 60);
    QCOMPARE(saved.nDisplayScale, 0);
}

void tst_VideoConfig::ReservedFieldsAreCarried()
{
    VideoConfigInfo record;
    record.nReserved0 = 11;
    record.bReserved1 = true;
    record.nReserved2 = 12;
    record.bReserved3 = false;
    record.bReserved4 = false;
    record.bReserved5 = false;
    record.bProcessDecode = false;
    record.bGpuDecodeSupported = false;
    record.nInstantTimeUnit = 1; // kept while a preset is chosen
    Load(record);
    m_pPage->LoadConfig(true);
    m_journal.Take();
    QCOMPARE(m_pPage->SaveConfig(), 0);
    QCOMPARE(m_journal.Take(), (QStringList{"GetConfig", "SetConfig"}));
    const VideoConfigInfo& saved = m_pSection->m_record;
    QCOMPARE(saved.nReserved0, 11);
    QCOMPARE(saved.bReserved1, true);
    QCOMPARE(saved.nReserved2, 12);
    QCOMPARE(saved.bReserved3, false);
    QCOMPARE(saved.bReserved4, false);
    QCOMPARE(saved.bReserved5, false);
    QCOMPARE(saved.bProcessDecode, false);
    QCOMPARE(saved.bGpuDecodeSupported, false);
    QCOMPARE(saved.nInstantTimeUnit, 1);
}

void tst_VideoConfig::SavePlayModeWithoutASelection()
{
    VideoConfigInfo record;
    record.nPlayMode = 9;
    Load(record);
    QCOMPARE(m_pPage->SaveConfig(), 0);
    QCOMPARE(m_pSection->m_record.nPlayMode, 9);
}

void tst_VideoConfig::SaveBufferTime_data()
{
    QTest::addColumn<QString>("strText");
    QTest::addColumn<int>("nSaved");
    QTest::addColumn<bool>("bRefused");
    QTest::newRow("0") << "0" << 0 << false;
    QTest::newRow("1500") << "1500" << 1500 << false;
    QTest::newRow("1501") << "1501" << 777 << true;
    QTest::newRow("negative") << "-1" << 777 << true;
}

void tst_VideoConfig::SaveBufferTime()
{
    QFETCH(QString, strText);
    QFETCH(int, nSaved);
    QFETCH(bool, bRefused);
    VideoConfigInfo record;
    record.nPlayMode = 4;
    record.nVideoBufferTime = 777;
    Load(record);
    Show();
    QToolTip::hideText();
    Edit("videoCushionEdit")->setText(strText); // also what cannot be typed
    QCOMPARE(m_pPage->SaveConfig(), 0);
    QCOMPARE(m_pSection->m_record.nVideoBufferTime, nSaved);
    QCOMPARE(Edit("videoCushionEdit")->text(), QString::number(nSaved));
    QCOMPARE(QToolTip::text(), bRefused ? QString("Video buffer time range must be within 0-1500 ms.") : QString());
    QCOMPARE(m_parent.focusWidget() == Edit("videoCushionEdit"), bRefused);
}

void tst_VideoConfig::EmptyBufferIsRefilledOnFocusOut()
{
    VideoConfigInfo record;
    record.nPlayMode = 4;
    record.nVideoBufferTime = 777;
    Load(record);
    Show();
    Edit("videoCushionEdit")->setFocus();
    Edit("videoCushionEdit")->selectAll();
    QTest::keyClick(Edit("videoCushionEdit"), Qt::Key_Delete);
    QVERIFY(Edit("videoCushionEdit")->text().isEmpty());
    Combo("pCmbScale")->setFocus();
    QCOMPARE(Edit("videoCushionEdit")->text(), QString("777"));

    m_pPage->UnInit();
    Edit("videoCushionEdit")->setFocus();
    Edit("videoCushionEdit")->clear();
    Combo("pCmbScale")->setFocus();
    QCOMPARE(Edit("videoCushionEdit")->text(), QString("1500"));
}

void tst_VideoConfig::EmptyBufferThatHasTheFocusIsStoredAsZero()
{
    VideoConfigInfo record;
    record.nPlayMode = 4;
    Load(record);
    Show();
    Edit("videoCushionEdit")->setFocus();
    Edit("videoCushionEdit")->clear();
    QCOMPARE(m_pPage->SaveConfig(), 0);
    QCOMPARE(m_pSection->m_record.nVideoBufferTime, 0);
}

void tst_VideoConfig::SavePresets_data()
{
    QTest::addColumn<int>("nIndex");
    QTest::addColumn<int>("nSeconds");
    const int arrSeconds[] = {30, 60, 120, 300, 600};
    for (int n = 0; n < 5; ++n)
    {
        QTest::addRow("%d", arrSeconds[n]) << n << arrSeconds[n];
    }
}

void tst_VideoConfig::SavePresets()
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

void tst_VideoConfig::SaveWithoutAPresetStoresZero()
{
    VideoConfigInfo record;
    record.nInstantPlaybackTime = 45;
    Load(record);
    QCOMPARE(Combo("instantComboBox")->currentIndex(), -1);
    QCOMPARE(m_pPage->SaveConfig(), 0);
    QCOMPARE(m_pSection->m_record.nInstantPlaybackTime, 0);
}

void tst_VideoConfig::SaveCustomTime_data()
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

void tst_VideoConfig::SaveCustomTime()
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

void tst_VideoConfig::ARefusedTimeStoresNothing()
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

void tst_VideoConfig::SaveMirrorsProcessDecode()
{
    for (bool bProcessDecode : {true, false})
    {
        VideoConfigInfo record;
        record.bProcessDecode = bProcessDecode;
        Load(record);
        QCOMPARE(m_pPage->SaveConfig(), 0);
        const QSettings ini(QDir::current().filePath("Localcfg.ini"), QSettings::IniFormat);
        QCOMPARE(ini.value("ProcessDecode/enable").toString(), QString(bProcessDecode ? "true" : "false"));
    }
}

void tst_VideoConfig::SaveSilentTime()
{
    VideoConfigInfo record;
    record.nSilentTime = 9;
    Load(record);
    Find<KVGUI::KvSpinBox>("silenceTimeSpinBox")->setValue(12);
    QCOMPARE(m_pPage->SaveConfig(), 0);
    QCOMPARE(m_pSection->m_record.nSilentTime, 12);
    Check("silenceChkBox")->setChecked(false);
    QCOMPARE(m_pPage->SaveConfig(), 0);
    QCOMPARE(m_pSection->m_record.nSilentTime, 0);
}

void tst_VideoConfig::SaveReturnsTheSectionsResult()
{
    Load(VideoConfigInfo());
    for (int nResult : {0, -1, 5})
    {
        m_pSection->m_nResult = nResult;
        QCOMPARE(m_pPage->SaveConfig(), nResult);
    }
}

void tst_VideoConfig::ConnectionState_data()
{
    QTest::addColumn<bool>("bEnable");
    QTest::addColumn<bool>("bSupported");
    for (bool bEnable : {true, false})
    {
        for (bool bSupported : {true, false})
        {
            QTest::addRow("%d %d", bEnable, bSupported) << bEnable << bSupported;
        }
    }
}

void tst_VideoConfig::ConnectionState()
{
    QFETCH(bool, bEnable);
    QFETCH(bool, bSupported);
    VideoConfigInfo record;
    record.bGpuDecodeSupported = bSupported;
    record.nDefaultSplit = 16;
    record.nSilentTime = 3;
    record.nPlayMode = 4;
    record.bInstantCustom = true;
    Load(record);
    QVERIFY(QMetaObject::invokeMethod(m_pPage.data(), "OnSplitWndChange", Q_ARG(int, 9)));
    m_pPage->SetControlsEnabled(bEnable);
    QCOMPARE(m_journal.Take(), QStringList{"GetConfig"});
    for (const char* pszName : {"playmodeComboBox", "chkboxDblk2ChangeStream", "silenceChkBox", "silenceTimeSpinBox"})
    {
        QCOMPARE(Enabled(pszName), bEnable);
    }
    QCOMPARE(Enabled("chkboxGpuDecode"), bEnable && bSupported);
    for (const char* pszName : {"pCmbScale", "wndSplitCmbBox", "videoCushionEdit", "cpuOccupycomboBox",
                                "instantComboBox", "instantTimeEdit", "btnShowSplitWnd"})
    {
        QVERIFY2(Enabled(pszName), pszName);
    }
    QVERIFY(Find<QPushButton>("btnShowSplitWnd")->styleSheet().contains("tip_16-n.svg"));
}

void tst_VideoConfig::SilentBoxEnablesItsWidget()
{
    Load(VideoConfigInfo());
    Show();
    QTest::mouseClick(Check("silenceChkBox"), Qt::LeftButton, {}, QPoint(8, Check("silenceChkBox")->height() / 2));
    QVERIFY(Enabled("silenceWidget"));
    QTest::mouseClick(Check("silenceChkBox"), Qt::LeftButton, {}, QPoint(8, Check("silenceChkBox")->height() / 2));
    QVERIFY(!Enabled("silenceWidget"));
}

void tst_VideoConfig::OnlyCustomPlayModeEnablesItsWidget()
{
    Load(VideoConfigInfo());
    QTest::keyClick(Combo("playmodeComboBox"), Qt::Key_Down);
    QCOMPARE(Combo("playmodeComboBox")->currentText(), QString("Custom"));
    QVERIFY(Enabled("wgtPlayModeCustomize") && Enabled("playmodelabel_2"));
    QTest::keyClick(Combo("playmodeComboBox"), Qt::Key_Up);
    QVERIFY(!Enabled("wgtPlayModeCustomize") && !Enabled("playmodelabel_2"));
}

void tst_VideoConfig::UnInitForgetsTheSection()
{
    Load(VideoConfigInfo());
    m_pPage->UnInit();
    m_pPage->UnInit();
    QCOMPARE(m_pPage->SaveConfig(), -1);
    m_pPage->LoadConfig(true);
    m_pPage->SetControlsEnabled(true);
    QCOMPARE(m_journal.Take(), QStringList());
}

QTEST_MAIN(tst_VideoConfig)

#include "tst_VideoConfig.moc"
