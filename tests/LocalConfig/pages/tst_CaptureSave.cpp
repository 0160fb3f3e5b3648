#include "support/CapturePage.h"

using LocalConfigLogical::SnapshotConfigInfo;

class tst_CaptureSave : public CCapturePageTest
{
    Q_OBJECT

private slots:
    void init() { Reset(); }

    void SaveWritesWhatIsShownAndCarriesTheRest();
    void SaveWithoutAFormatKeepsTheStoredOne();
    void SaveWithoutANameFormatStoresNone();
    void SaveCount_data();
    void SaveCount();
    void TheCountIsCheckedFirst();
    void AnEmptiedIntervalGetsTheToolTip();
    void AnIntervalThatIsNoneStaysUntilSaved_data();
    void AnIntervalThatIsNoneStaysUntilSaved();
    void TheIntervalTakesDigitsOnly();
    void TheIntervalIsReadInItsOwnDigits_data();
    void TheIntervalIsReadInItsOwnDigits();
    void TheIntervalIsCheckedBeforeThePath();
    void SavePath_data() { PathsAroundALimit(180); }
    void SavePath();
    void SaveReturnsTheSectionsResult();
    void SavingWorksWhileLocked();
};

void tst_CaptureSave::SaveWritesWhatIsShownAndCarriesTheRest()
{
    SnapshotConfigInfo record;
    record.reserved = true;
    record.hostString1 = "one \xff";
    record.hostString2 = "two";
    record.hostString3 = "three";
    record.picturePath = "/old/";
    m_pFixture->Load(record);
    QTest::keyClick(Format(), Qt::Key_Up);
    Type(Path(), "/new/place");
    QTest::keyClick(Name(), Qt::Key_Home);
    Interval()->setFocus();
    QTest::keyClick(Interval(), Qt::Key_Up);
    Type(Count(), "10");
    QCOMPARE(m_pFixture->page.SaveConfig(), 0);
    QCOMPARE(m_pFixture->journal.Take(), (QStringList{"GetConfig", "SetConfig"}));
    const SnapshotConfigInfo& saved = m_pFixture->section.m_record;
    QCOMPARE(saved.imageFormat, 0);
    QCOMPARE(saved.continuousCount, 10);
    QCOMPARE(saved.interval, 3);
    QCOMPARE(saved.picturePath, std::string("/new/place"));
    QCOMPARE(saved.nameFormat, 0);
    QVERIFY(saved.reserved);
    QCOMPARE(saved.hostString1, record.hostString1);
    QCOMPARE(saved.hostString2, record.hostString2);
    QCOMPARE(saved.hostString3, record.hostString3);
}

void tst_CaptureSave::SaveWithoutAFormatKeepsTheStoredOne()
{
    SnapshotConfigInfo record;
    record.imageFormat = 7;
    m_pFixture->Load(record);
    Format()->setCurrentIndex(-1);
    QCOMPARE(m_pFixture->page.SaveConfig(), 0);
    QCOMPARE(m_pFixture->section.m_record.imageFormat, 7);
}

void tst_CaptureSave::SaveWithoutANameFormatStoresNone()
{
    m_pFixture->Load();
    Name()->setCurrentIndex(-1);
    QCOMPARE(m_pFixture->page.SaveConfig(), 0);
    QCOMPARE(m_pFixture->section.m_record.nameFormat, -1);
}

void tst_CaptureSave::SaveCount_data()
{
    QTest::addColumn<QString>("strText");
    QTest::addColumn<int>("nResult");
    QTest::newRow("empty") << "" << -2;
    for (int n = 1; n <= 10; ++n)
    {
        QTest::addRow("%d", n) << QString::number(n) << (n >= 2 ? 0 : -2);
    }
}

void tst_CaptureSave::SaveCount()
{
    QFETCH(QString, strText);
    QFETCH(int, nResult);
    m_pFixture->Load();
    Type(Count(), strText);
    QCOMPARE(m_pFixture->page.SaveConfig(), nResult);
    QCOMPARE(Count()->IsErrorHintShown(), nResult != 0);
    QCOMPARE(Count()->GetErrorHintText(), QString());
    QCOMPARE(Count()->text(), strText);
    QCOMPARE(m_pFixture->section.m_record.continuousCount, nResult == 0 ? strText.toInt() : 3);
}

void tst_CaptureSave::TheCountIsCheckedFirst()
{
    m_pFixture->Load();
    Type(Count(), "1");
    Paste(Path(), QString(181, 'p'));
    EmptyTheInterval();
    QCOMPARE(m_pFixture->page.SaveConfig(), -2);
    QCOMPARE(m_pFixture->journal.Take(), QStringList{"GetConfig"});
    QCOMPARE(QToolTip::text(), QString());
    QCOMPARE(Interval()->text(), QString());
}

void tst_CaptureSave::AnEmptiedIntervalGetsTheToolTip()
{
    SnapshotConfigInfo record;
    record.interval = 60;
    m_pFixture->Load(record);
    EmptyTheInterval();
    QCOMPARE(m_pFixture->page.SaveConfig(), -1);
    QCOMPARE(m_pFixture->journal.Take(), QStringList{"GetConfig"});
    QCOMPARE(QToolTip::text(), QString("Continue snapshot time interval must be longer than 1s."));
    QVERIFY(Interval()->hasFocus());
    QCOMPARE(Interval()->text(), QString("60"));
    const auto getTipPlace = [] {
        const QWidgetList listWindows = QApplication::topLevelWidgets();
        const auto tip = std::find_if(listWindows.begin(), listWindows.end(), [](const QWidget* pWindow) {
            return pWindow->inherits("QTipLabel") && pWindow->isVisible();
        });
        return tip != listWindows.end() ? (*tip)->pos() : QPoint(-1, -1);
    };
    const QPoint place = getTipPlace();
    QToolTip::showText(Interval()->mapToGlobal(QPoint(0, 0)), "another", Interval());
    QVERIFY(place != QPoint(-1, -1));
    QCOMPARE(place, getTipPlace());
}

void tst_CaptureSave::AnIntervalThatIsNoneStaysUntilSaved_data()
{
    QTest::addColumn<QString>("strTyped");
    QTest::addColumn<int>("nKey");
    for (const char* pszTyped : {"", "0", "000"})
    {
        QTest::addRow("'%s' left", pszTyped) << pszTyped << int(Qt::Key_Tab);
        QTest::addRow("'%s' entered", pszTyped) << pszTyped << int(Qt::Key_Return);
    }
}

void tst_CaptureSave::AnIntervalThatIsNoneStaysUntilSaved()
{
    QFETCH(QString, strTyped);
    QFETCH(int, nKey);
    SnapshotConfigInfo record;
    record.interval = 60;
    m_pFixture->Load(record);
    TypeInterval(strTyped);
    QTest::keyClick(Interval(), Qt::Key(nKey));
    QCOMPARE(Interval()->text(), strTyped);
    QCOMPARE(m_pFixture->page.SaveConfig(), -1);
    QCOMPARE(QToolTip::text(), QString("Continue snapshot time interval must be longer than 1s."));
    QCOMPARE(Interval()->text(), QString("60"));
    QCOMPARE(m_pFixture->page.SaveConfig(), 0);
    QCOMPARE(m_pFixture->section.m_record.interval, 60);
}

void tst_CaptureSave::TheIntervalTakesDigitsOnly()
{
    m_pFixture->Load();
    Paste(Interval()->findChild<QLineEdit*>(), "1,234");
    QCOMPARE(Interval()->text(), QString("2"));
    TypeInterval("1,234");
    QCOMPARE(Interval()->text(), QString("1234"));
}

void tst_CaptureSave::TheIntervalIsReadInItsOwnDigits_data()
{
    QTest::addColumn<QString>("strLocale");
    for (const char* pszLocale : {"C", "de_DE", "ar_EG", "fa_IR"})
    {
        QTest::newRow(pszLocale) << pszLocale;
    }
}

void tst_CaptureSave::TheIntervalIsReadInItsOwnDigits()
{
    QFETCH(QString, strLocale);
    const QLocale before;
    QLocale::setDefault(QLocale(strLocale));
    Reset();
    SnapshotConfigInfo record;
    record.interval = 1234567;
    m_pFixture->Load(record);
    const int nResult = m_pFixture->page.SaveConfig();
    QLocale::setDefault(before);
    QCOMPARE(nResult, 0);
    QCOMPARE(m_pFixture->section.m_record.interval, 1234567);
}

void tst_CaptureSave::TheIntervalIsCheckedBeforeThePath()
{
    m_pFixture->Load();
    Paste(Path(), QString(181, 'p'));
    EmptyTheInterval();
    QCOMPARE(m_pFixture->page.SaveConfig(), -1);
    QVERIFY(!QToolTip::text().isEmpty());
}

void tst_CaptureSave::SavePath()
{
    QFETCH(QString, strPath);
    QFETCH(bool, bTooLong);
    SnapshotConfigInfo record;
    record.picturePath = "/old/";
    m_pFixture->Load(record);
    Paste(Path(), strPath);
    QCOMPARE(m_pFixture->page.SaveConfig(), bTooLong ? -1 : 0);
    QCOMPARE(m_pFixture->section.m_record.picturePath, bTooLong ? record.picturePath : strPath.toStdString());
    QCOMPARE(QToolTip::text(), QString());
}

void tst_CaptureSave::SaveReturnsTheSectionsResult()
{
    m_pFixture->Load();
    m_pFixture->section.m_nResult = 17;
    QCOMPARE(m_pFixture->page.SaveConfig(), 17);
}

void tst_CaptureSave::SavingWorksWhileLocked()
{
    m_pFixture->Load();
    m_pFixture->page.SetControlsEnabled(false);
    QTest::keyClick(Name(), Qt::Key_Home);
    QCOMPARE(m_pFixture->page.SaveConfig(), 0);
    QCOMPARE(m_pFixture->section.m_record.nameFormat, 0);
}

QTEST_MAIN(tst_CaptureSave)

#include "tst_CaptureSave.moc"
