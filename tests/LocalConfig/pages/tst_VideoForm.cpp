#include "support/VideoPage.h"

#include <QLabel>
#include <QPushButton>

using namespace LocalConfig;
using LocalConfigLogical::VideoConfigInfo;

class tst_VideoForm : public CVideoPageTest
{
    Q_OBJECT

private slots:
    void init() { Reset(); }

    void MetaObjectOrder();
    void Captions_data();
    void Captions();
    void Items_data();
    void Items();
    void ScaleItemsHaveData();
    void CheckBoxTexts();
    void ToolTipOfTheDoubleClickBox();
    void NarrowCheckBoxesTellTheirText();

    void ConnectionState_data();
    void ConnectionState();
    void SilentBoxEnablesItsWidget();
    void OnlyCustomPlayModeEnablesItsWidget();
};

void tst_VideoForm::MetaObjectOrder()
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

void tst_VideoForm::Captions_data()
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

void tst_VideoForm::Captions()
{
    QFETCH(QString, strName);
    QFETCH(QString, strText);
    QCOMPARE(m_pPage->findChild<QLabel*>(strName)->text(), strText);
}

void tst_VideoForm::Items_data()
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

void tst_VideoForm::Items()
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

void tst_VideoForm::ScaleItemsHaveData()
{
    QCOMPARE(Combo("pCmbScale")->itemData(0).toInt(), 0);
    QCOMPARE(Combo("pCmbScale")->itemData(1).toInt(), 1);
}

void tst_VideoForm::CheckBoxTexts()
{
    QCOMPARE(Check("chkboxGpuDecode")->text(),
             QString("Enable hardware acceleration(Takes effect after reopening video)"));
    QCOMPARE(Check("chkboxDblk2ChangeStream")->text(),
             QString("Double click on the video to maximize the window and switch to main stream"));
    QCOMPARE(Check("silenceChkBox")->text(), QString("Close videos being played after long-time inactivity"));
}

void tst_VideoForm::NarrowCheckBoxesTellTheirText()
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

void tst_VideoForm::ToolTipOfTheDoubleClickBox()
{
    QCOMPARE(Check("chkboxDblk2ChangeStream")->toolTip(), Check("chkboxDblk2ChangeStream")->text());
    Check("chkboxDblk2ChangeStream")->resize(5000, 20); // where the text fits, the tip stays all the same
    Load(VideoConfigInfo());
    QCOMPARE(Check("chkboxDblk2ChangeStream")->toolTip(), Check("chkboxDblk2ChangeStream")->text());
}

void tst_VideoForm::ConnectionState_data()
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

void tst_VideoForm::ConnectionState()
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

void tst_VideoForm::SilentBoxEnablesItsWidget()
{
    Load(VideoConfigInfo());
    Show();
    QTest::mouseClick(Check("silenceChkBox"), Qt::LeftButton, {}, QPoint(8, Check("silenceChkBox")->height() / 2));
    QVERIFY(Enabled("silenceWidget"));
    QTest::mouseClick(Check("silenceChkBox"), Qt::LeftButton, {}, QPoint(8, Check("silenceChkBox")->height() / 2));
    QVERIFY(!Enabled("silenceWidget"));
}

void tst_VideoForm::OnlyCustomPlayModeEnablesItsWidget()
{
    Load(VideoConfigInfo());
    QTest::keyClick(Combo("playmodeComboBox"), Qt::Key_Down);
    QCOMPARE(Combo("playmodeComboBox")->currentText(), QString("Custom"));
    QVERIFY(Enabled("wgtPlayModeCustomize") && Enabled("playmodelabel_2"));
    QTest::keyClick(Combo("playmodeComboBox"), Qt::Key_Up);
    QVERIFY(!Enabled("wgtPlayModeCustomize") && !Enabled("playmodelabel_2"));
}

QTEST_MAIN(tst_VideoForm)

#include "tst_VideoForm.moc"
