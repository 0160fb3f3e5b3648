#include "support/HiddenPage.h"
#include "support/Patterns.h"

#include <LocalConfig/interfaces/ITvWallSection.h>
#include <LocalConfig/pages/CTvWallConfig.h>

#include <KvGui/KvCheckBox.h>
#include <KvGui/KvLineEdit.h>
#include <KvGui/KvRadioButton.h>

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QSignalSpy>
#include <QToolTip>
#include <QtTest>

using namespace LocalConfig;
using LocalConfigLogical::ITvWallSection;
using LocalConfigLogical::TvWallConfigInfo;

class tst_TvWallConfig : public CHiddenPageTest<CTvWallConfig, CFakeSection<ITvWallSection, TvWallConfigInfo>>
{
    Q_OBJECT

private slots:
    void init() { Reset(QSize(662, 390)); }

    void Captions_data();
    void Captions();
    void Items();
    void ThePageIsNoWindow();
    void CheckBoxText();
    void ToolTips();
    void StayTimePattern();

    void ANullSectionIsRefused();
    void DefaultsDoNotReadTheSection();
    void LoadShowsTheRecord();
    void LoadBindMode_data();
    void LoadBindMode();
    void LoadingABindModeIsSilent();
    void UnknownValuesShowNothing();

    void SaveDoesNotReadTheSection();
    void SaveBindMode_data();
    void SaveBindMode();
    void SaveWithoutSelections();
    void SaveStayTime_data();
    void SaveStayTime();
    void SaveReturnsTheSectionsResult();

    void LeavingTheFieldJudgesIt_data();
    void LeavingTheFieldJudgesIt();
    void LoadingTakesTheJudgementAway_data();
    void LoadingTakesTheJudgementAway();
    void ConnectionState();
    void UnInitForgetsTheSection();

private:
    QComboBox* Combo(const char* pszName) const { return Find<QComboBox>(pszName); }
    KVGUI::KvLineEdit* Stay() const { return Find<KVGUI::KvLineEdit>("lineeditStayTime"); }
    KVGUI::KvRadioButton* Radio(const char* pszName) const { return Find<KVGUI::KvRadioButton>(pszName); }
    KVGUI::KvCheckBox* Check() const { return Find<KVGUI::KvCheckBox>("chkboxChangeStreamType"); }
    QLabel* Error() const { return Find<QLabel>("labelError"); }
    QString CheckedRadio() const
    {
        QStringList listChecked;
        for (const char* pszName : {"rdBtnTour", "rdBtnTile", "rdBtnInquiry"})
        {
            if (Radio(pszName)->isChecked())
            {
                listChecked += pszName;
            }
        }
        return listChecked.join(' ');
    }
};

void tst_TvWallConfig::Captions_data()
{
    QTest::addColumn<QString>("strName");
    QTest::addColumn<QString>("strText");
    QTest::newRow("label_2") << "label_2"
                             << "Default Stream Type:";
    QTest::newRow("label_3") << "label_3"
                             << "Stay Time(s):";
    QTest::newRow("maxRecSizeRgLabel_2") << "maxRecSizeRgLabel_2"
                                         << "(15-65535s)";
    QTest::newRow("labelError") << "labelError" << QString();
    QTest::newRow("streamLabel") << "streamLabel"
                                 << "Stream Type:";
    QTest::newRow("label_5") << "label_5"
                             << "When split exceeds threshold, sub stream is opened";
    QTest::newRow("label") << "label"
                           << "Binding Mode:";
}

void tst_TvWallConfig::Captions()
{
    QFETCH(QString, strName);
    QFETCH(QString, strText);
    QCOMPARE(m_pPage->findChild<QLabel*>(strName)->text(), strText);
}

void tst_TvWallConfig::Items()
{
    QStringList listSplits;
    for (int n = 0; n < Combo("cmbTvWallWndSplitNum")->count(); ++n)
    {
        listSplits += Combo("cmbTvWallWndSplitNum")->itemText(n);
    }
    QCOMPARE(listSplits, (QStringList{"1", "4", "6", "8", "9", "13", "16", "20", "25", "36", "64", "128"}));
    const QComboBox* pStream = Combo("cmbDefaultStreamType");
    const QStringList listTexts = {"Main Stream", "Sub Stream 1", "Sub Stream 2", "Local Signal"};
    const QList<int> listData = {1, 2, 3, 5};
    QCOMPARE(pStream->count(), 4);
    for (int n = 0; n < 4; ++n)
    {
        QCOMPARE(pStream->itemText(n), listTexts[n]);
        QCOMPARE(pStream->itemData(n).toInt(), listData[n]);
    }
}

void tst_TvWallConfig::ThePageIsNoWindow()
{
    QWidget parent;
    const CTvWallConfig page(&parent);
    QVERIFY(!page.isWindow());
}

void tst_TvWallConfig::CheckBoxText()
{
    QCOMPARE(Check()->text(), QString("Double click on the video to maximize the window and switch to main stream"));
}

void tst_TvWallConfig::ToolTips()
{
    for (const char* pszName : {"rdBtnTour", "rdBtnTile", "rdBtnInquiry"})
    {
        QCOMPARE(Radio(pszName)->toolTip(), Radio(pszName)->text());
    }
    QCOMPARE(Radio("rdBtnTour")->text(), QString("Tour"));
    QCOMPARE(Radio("rdBtnTile")->text(), QString("Tile"));
    QCOMPARE(Radio("rdBtnInquiry")->text(), QString("Inquiry"));
    QCOMPARE(Check()->toolTip(), Check()->text());
    const auto* pHint = m_pPage->findChild<QLabel*>("label_5"); // wider than a label that has no layout yet
    QCOMPARE(pHint->toolTip(), pHint->text());
}

void tst_TvWallConfig::StayTimePattern()
{
    CheckEveryNumber(Stay(), [](int n) {
        const auto digit = [n](int nUnit) { return (n / nUnit) % 10; };
        const bool bSixty =
            n >= 60000 && n <= 69999 && digit(1000) <= 5 && digit(100) <= 5 && digit(10) <= 3 && digit(1) <= 5;
        return (n >= 16 && n <= 19) || (n >= 100 && n <= 59999) || bSixty;
    });
    for (const char* pszText : {"15", "20", "99"}) // no numbers of their own, but beginnings of others
    {
        QCOMPARE(Validate(Stay(), pszText), QValidator::Intermediate);
    }
    QCOMPARE(Validate(Stay(), "60006"), QValidator::Invalid);
    QCOMPARE(Validate(Stay(), "65536"), QValidator::Invalid);
}

void tst_TvWallConfig::ANullSectionIsRefused()
{
    QCOMPARE(m_pPage->SetConfigSection(nullptr), -1);
    QCOMPARE(m_pPage->SaveConfig(), -1);
    m_pPage->LoadConfig(true);
    QCOMPARE(m_journal.Take(), QStringList());
}

void tst_TvWallConfig::DefaultsDoNotReadTheSection()
{
    TvWallConfigInfo record;
    record.nSubStreamSplitThreshold = 64;
    record.nBindMode = 3;
    record.bDblClickMainStream = true;
    record.nDefaultStreamType = 5;
    record.nStayTime = 99;
    Load(record);
    m_pPage->LoadConfig(true);
    QCOMPARE(m_journal.Take(), QStringList());
    QCOMPARE(Combo("cmbTvWallWndSplitNum")->currentText(), QString("9"));
    QCOMPARE(CheckedRadio(), QString("rdBtnTour"));
    QVERIFY(!Check()->isChecked());
    QCOMPARE(Combo("cmbDefaultStreamType")->currentText(), QString("Main Stream"));
    QCOMPARE(Stay()->text(), QString("15"));
}

void tst_TvWallConfig::LoadShowsTheRecord()
{
    TvWallConfigInfo record;
    record.nSubStreamSplitThreshold = 128;
    record.bDblClickMainStream = true;
    record.nDefaultStreamType = 5;
    record.nStayTime = 65535;
    Load(record);
    QCOMPARE(Combo("cmbTvWallWndSplitNum")->currentText(), QString("128"));
    QVERIFY(Check()->isChecked());
    QCOMPARE(Combo("cmbDefaultStreamType")->currentText(), QString("Local Signal"));
    QCOMPARE(Stay()->text(), QString("65535"));
}

void tst_TvWallConfig::LoadBindMode_data()
{
    QTest::addColumn<int>("nBindMode");
    QTest::addColumn<QString>("strChecked");
    QTest::newRow("1") << 1 << "rdBtnTour";
    QTest::newRow("2") << 2 << "rdBtnTile";
    QTest::newRow("3") << 3 << "rdBtnInquiry";
    QTest::newRow("0") << 0 << "rdBtnTour";
    QTest::newRow("7") << 7 << "rdBtnTour";
    QTest::newRow("-1") << -1 << "rdBtnTour";
}

void tst_TvWallConfig::LoadBindMode()
{
    QFETCH(int, nBindMode);
    QFETCH(QString, strChecked);
    TvWallConfigInfo record;
    record.nBindMode = nBindMode == 2 ? 3 : 2;
    Load(record);
    record.nBindMode = nBindMode;
    Load(record);
    QCOMPARE(CheckedRadio(), strChecked);
}

void tst_TvWallConfig::LoadingABindModeIsSilent()
{
    Load(TvWallConfigInfo());
    QSignalSpy spy(Radio("rdBtnTile"), &QRadioButton::toggled);
    TvWallConfigInfo record;
    record.nBindMode = 2;
    Load(record);
    QCOMPARE(spy.size(), 0);
}

void tst_TvWallConfig::UnknownValuesShowNothing()
{
    TvWallConfigInfo record;
    record.nSubStreamSplitThreshold = 10;
    record.nDefaultStreamType = 4;
    Load(record);
    QCOMPARE(Combo("cmbTvWallWndSplitNum")->currentIndex(), -1);
    QCOMPARE(Combo("cmbDefaultStreamType")->currentIndex(), -1);
}

void tst_TvWallConfig::SaveDoesNotReadTheSection()
{
    Load(TvWallConfigInfo());
    QCOMPARE(m_pPage->SaveConfig(), 0);
    QCOMPARE(m_journal.Take(), QStringList{"SetConfig"});
}

void tst_TvWallConfig::SaveBindMode_data()
{
    QTest::addColumn<QString>("strButton");
    QTest::addColumn<int>("nBindMode");
    QTest::newRow("tour") << "rdBtnTour" << 1;
    QTest::newRow("tile") << "rdBtnTile" << 2;
    QTest::newRow("inquiry") << "rdBtnInquiry" << 3;
}

void tst_TvWallConfig::SaveBindMode()
{
    QFETCH(QString, strButton);
    QFETCH(int, nBindMode);
    TvWallConfigInfo record;
    record.nBindMode = nBindMode == 1 ? 2 : 7;
    record.nSubStreamSplitThreshold = 25;
    record.nDefaultStreamType = 3;
    record.bDblClickMainStream = true;
    record.nStayTime = 300;
    Load(record);
    Show();
    KVGUI::KvRadioButton* pButton = Radio(qPrintable(strButton));
    QTest::mouseClick(pButton, Qt::LeftButton, {}, QPoint(8, pButton->height() / 2));
    QCOMPARE(m_pPage->SaveConfig(), 0);
    const TvWallConfigInfo& saved = m_pSection->m_record;
    QCOMPARE(saved.nBindMode, nBindMode);
    QCOMPARE(saved.nSubStreamSplitThreshold, 25);
    QCOMPARE(saved.nDefaultStreamType, 3);
    QVERIFY(saved.bDblClickMainStream);
    QCOMPARE(saved.nStayTime, 300);
}

void tst_TvWallConfig::SaveWithoutSelections()
{
    TvWallConfigInfo record;
    record.nSubStreamSplitThreshold = 10;
    record.nDefaultStreamType = 4;
    record.nBindMode = 0;
    Load(record);
    QCOMPARE(m_pPage->SaveConfig(), 0);
    QCOMPARE(m_pSection->m_record.nSubStreamSplitThreshold, 0);
    QCOMPARE(m_pSection->m_record.nDefaultStreamType, 0);
    QCOMPARE(m_pSection->m_record.nBindMode, 1);
}

void tst_TvWallConfig::SaveStayTime_data()
{
    QTest::addColumn<QString>("strTyped");
    QTest::addColumn<int>("nSaved"); // -1: refused
    QTest::newRow("15") << "15" << 15;
    QTest::newRow("25") << "25" << 25;
    QTest::newRow("100") << "100" << 100;
    QTest::newRow("65535") << "65535" << 65535;
    QTest::newRow("14") << "14" << -1;
    QTest::newRow("1") << "1" << -1;
    QTest::newRow("empty") << "" << -1;
}

void tst_TvWallConfig::SaveStayTime()
{
    QFETCH(QString, strTyped);
    QFETCH(int, nSaved);
    TvWallConfigInfo record;
    record.nStayTime = 777;
    Load(record);
    Show();
    QToolTip::hideText();
    Stay()->clear();
    QTest::keyClicks(Stay(), strTyped);
    QCOMPARE(Stay()->text(), strTyped);
    if (nSaved >= 0)
    {
        QCOMPARE(m_pPage->SaveConfig(), 0);
        QCOMPARE(m_pSection->m_record.nStayTime, nSaved);
        return;
    }
    QCOMPARE(m_pPage->SaveConfig(), -1);
    QCOMPARE(m_journal.Take(), QStringList());
    QCOMPARE(QToolTip::text(), QString("Stay time must be within 15-65535s."));
    QCOMPARE(Stay()->text(), QString("15"));
    QCOMPARE(m_pPage->focusWidget(), Stay());
}

void tst_TvWallConfig::SaveReturnsTheSectionsResult()
{
    Load(TvWallConfigInfo());
    m_pSection->m_nResult = 4;
    QCOMPARE(m_pPage->SaveConfig(), 4);
}

void tst_TvWallConfig::LeavingTheFieldJudgesIt_data()
{
    QTest::addColumn<QString>("strTyped");
    QTest::addColumn<bool>("bWrong");
    QTest::newRow("14") << "14" << true;
    QTest::newRow("empty") << "" << true;
    QTest::newRow("15") << "15" << false;
    QTest::newRow("25") << "25" << false;
    QTest::newRow("65535") << "65535" << false;
}

void tst_TvWallConfig::LeavingTheFieldJudgesIt()
{
    QFETCH(QString, strTyped);
    QFETCH(bool, bWrong);
    Load(TvWallConfigInfo());
    Show();
    Stay()->setFocus();
    Stay()->clear();
    QTest::keyClicks(Stay(), strTyped);
    QTest::keyClick(Stay(), Qt::Key_Tab);
    QCOMPARE(Error()->text(), bWrong ? QString("Stay time must be within 15-65535s.") : QString());
    QCOMPARE(Stay()->IsErrorHintShown(), bWrong);
    QCOMPARE(Stay()->GetErrorHintText(), QString());
    QCOMPARE(Stay()->text(), strTyped);
    Stay()->setFocus();
    QVERIFY(Error()->text().isEmpty());
    QVERIFY(!Stay()->IsErrorHintShown());
}

void tst_TvWallConfig::LoadingTakesTheJudgementAway_data()
{
    QTest::addColumn<bool>("bDefault");
    QTest::newRow("stored values") << false;
    QTest::newRow("defaults") << true;
}

void tst_TvWallConfig::LoadingTakesTheJudgementAway()
{
    QFETCH(bool, bDefault);
    Load(TvWallConfigInfo());
    Show();
    Stay()->setFocus();
    QTest::keyClick(Stay(), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(Stay(), "14");
    QTest::keyClick(Stay(), Qt::Key_Tab);
    QVERIFY(Stay()->IsErrorHintShown());
    m_pPage->LoadConfig(bDefault);
    QCOMPARE(Stay()->text(), QString("15"));
    QCOMPARE(Error()->text(), QString());
    QVERIFY(!Stay()->IsErrorHintShown());
}

void tst_TvWallConfig::ConnectionState()
{
    for (bool bEnable : {false, true})
    {
        m_pPage->SetControlsEnabled(bEnable);
        for (const char* pszName :
             {"cmbTvWallWndSplitNum", "rdBtnTour", "rdBtnTile", "rdBtnInquiry", "chkboxChangeStreamType"})
        {
            QCOMPARE(m_pPage->findChild<QWidget*>(pszName)->isEnabled(), bEnable);
        }
        QVERIFY(Combo("cmbDefaultStreamType")->isEnabled());
        QVERIFY(Stay()->isEnabled());
    }
}

void tst_TvWallConfig::UnInitForgetsTheSection()
{
    Load(TvWallConfigInfo());
    m_pPage->UnInit();
    m_pPage->UnInit();
    QCOMPARE(m_pPage->SaveConfig(), -1);
    QCOMPARE(m_journal.Take(), QStringList());
}

QTEST_MAIN(tst_TvWallConfig)

#include "tst_TvWallConfig.moc"
