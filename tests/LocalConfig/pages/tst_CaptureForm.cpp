#include "support/CapturePage.h"
#include "support/Marker.h"
#include "support/Patterns.h"

#include <QLabel>

class tst_CaptureForm : public CCapturePageTest
{
    Q_OBJECT

private slots:
    void init() { Reset(); }

    void Captions_data();
    void Captions();
    void Items();
    void WhichTextsAreTranslated();
    void NameFormatsAreLookedUp();
    void IntervalRange();
    void CountPattern();
    void ThePageStaysAChild();
    void ThePathMessageComesWhileEditing_data() { PathsAroundALimit(180); }
    void ThePathMessageComesWhileEditing();

    void LeavingTheCountJudgesIt_data();
    void LeavingTheCountJudgesIt();
    void ConnectionState();
};

void tst_CaptureForm::Captions_data()
{
    QTest::addColumn<QString>("strText");
    QTest::newRow("picFormatLabel") << "Image Format:";
    QTest::newRow("picPathLabel") << "Picture Path:";
    QTest::newRow("picNameFormatLab") << "Picture Name:";
    QTest::newRow("picTmLabel") << "Snapshot Interval:";
    QTest::newRow("picTmRgLabel") << "(Not less than 1s)";
    QTest::newRow("picNumLabel") << "Continuous Snapshot Times:";
    QTest::newRow("picNumRgLabel") << "(2-10)";
}

void tst_CaptureForm::Captions()
{
    QFETCH(QString, strText);
    QCOMPARE(m_pFixture->Find<QLabel>(QTest::currentDataTag())->text(), strText);
}

void tst_CaptureForm::Items()
{
    QCOMPARE(Format()->count(), 2);
    QCOMPARE(Format()->itemText(0), QString("BMP"));
    QCOMPARE(Format()->itemText(1), QString("JPEG"));
    QVERIFY(!Format()->itemData(0).isValid() && !Format()->itemData(1).isValid());
    const QStringList listNames = {"Time_ChannelNo", "Time_ChannelName", "ChannelNo_Time", "ChannelName_Time"};
    QCOMPARE(Name()->count(), 4);
    for (int n = 0; n < 4; ++n)
    {
        QCOMPARE(Name()->itemText(n), listNames[n]);
    }
}

void tst_CaptureForm::WhichTextsAreTranslated()
{
    const CMarker marker;
    Reset();
    QCOMPARE(Format()->itemText(0), QString("BMP"));
    QCOMPARE(Format()->itemText(1), QString("JPEG"));
    QCOMPARE(Name()->itemText(2), QString("LocalConfig::CCaptureConfig|ChannelNo_Time"));
    QCOMPARE(m_pFixture->page.GetNameFormatIndex("LocalConfig::CCaptureConfig|ChannelNo_Time"), 2);
    QCOMPARE(m_pFixture->Find<QLabel>("picPathLabel")->text(),
             QString("CCaptureConfig|Picture PathLocalConfig::CCaptureConfig|:"));
    QCOMPARE(m_pFixture->Find<QLabel>("picTmRgLabel")->text(), QString("CCaptureConfig|(Not less than 1s)"));

    m_pFixture->Load();
    EmptyTheInterval();
    QCOMPARE(m_pFixture->page.SaveConfig(), -1);
    QCOMPARE(QToolTip::text(),
             QString("LocalConfig::CCaptureConfig|Continue snapshot time interval must be longer than 1s."));
    Type(Count(), "");
    Paste(Path(), QString(181, 'p'));
    QCOMPARE(Count()->GetErrorHintText(), QString("LocalConfig::CCaptureConfig|Continuously snapshot 2-10 pic."));
    QCOMPARE(Path()->GetErrorHintText(),
             QString("LocalConfig::CCaptureConfig|The Path length of Picture should not longer than 180"));
}

void tst_CaptureForm::NameFormatsAreLookedUp()
{
    QCOMPARE(m_pFixture->page.GetNameFormatIndex("Time_ChannelNo"), 0);
    QCOMPARE(m_pFixture->page.GetNameFormatIndex("ChannelName_Time"), 3);
    QCOMPARE(m_pFixture->page.GetNameFormatIndex("channelname_time"), -1);
    QCOMPARE(m_pFixture->page.GetNameFormatIndex(""), -1);
}

void tst_CaptureForm::IntervalRange()
{
    QCOMPARE(Interval()->minimum(), 1);
    QCOMPARE(Interval()->maximum(), 9999999);
}

void tst_CaptureForm::CountPattern()
{
    QCOMPARE(Count()->validator()->parent(), &m_pFixture->page);
    CheckEveryNumber(Count(), [](int n) { return n >= 2 && n <= 10; });
    QCOMPARE(Validate(Count(), ""), QValidator::Intermediate);
    Type(Count(), "1");
    QCOMPARE(Count()->text(), QString("1"));
    Type(Count(), "11");
    QCOMPARE(Count()->text(), QString("1"));
    Type(Count(), "10");
    QCOMPARE(Count()->text(), QString("10"));
}

void tst_CaptureForm::ThePageStaysAChild()
{
    QVERIFY(!m_pFixture->page.isWindow());
}

void tst_CaptureForm::ThePathMessageComesWhileEditing()
{
    QFETCH(QString, strPath);
    QFETCH(bool, bTooLong);
    m_pFixture->Load();
    Paste(Path(), strPath);
    QCOMPARE(Path()->text(), strPath);
    QCOMPARE(Path()->GetErrorHintText(),
             bTooLong ? QString("The Path length of Picture should not longer than 180") : QString());
    const QLabel* pTip = m_pFixture->page.findChild<QLabel*>("errorTip");
    QCOMPARE(pTip && pTip->isVisible(), bTooLong);
}

void tst_CaptureForm::LeavingTheCountJudgesIt_data()
{
    QTest::addColumn<QString>("strText");
    QTest::addColumn<bool>("bHint");
    QTest::newRow("empty") << "" << true;
    QTest::newRow("1") << "1" << true;
    QTest::newRow("2") << "2" << false;
    QTest::newRow("10") << "10" << false;
}

void tst_CaptureForm::LeavingTheCountJudgesIt()
{
    QFETCH(QString, strText);
    QFETCH(bool, bHint);
    m_pFixture->Load();
    Type(Count(), strText);
    Path()->setFocus();
    QCOMPARE(Count()->IsErrorHintShown(), bHint);
    QCOMPARE(Count()->GetErrorHintText(), bHint ? QString("Continuously snapshot 2-10 pic.") : QString());
    Count()->setFocus();
    QVERIFY(!Count()->IsErrorHintShown());
    QCOMPARE(Count()->text(), strText);
}

void tst_CaptureForm::ConnectionState()
{
    for (bool bEnable : {false, true})
    {
        m_pFixture->page.SetControlsEnabled(bEnable);
        for (QWidget* pControl : {static_cast<QWidget*>(Format()), static_cast<QWidget*>(Count()),
                                  static_cast<QWidget*>(Interval()), static_cast<QWidget*>(Path())})
        {
            QCOMPARE(pControl->isEnabled(), bEnable);
        }
        QVERIFY(Name()->isEnabled());
    }
}

QTEST_MAIN(tst_CaptureForm)

#include "tst_CaptureForm.moc"
