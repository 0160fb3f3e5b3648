#include "support/Marker.h"
#include "support/PageFixture.h"
#include "support/Patterns.h"

#include <LocalConfig/interfaces/ISnapshotSection.h>
#include <LocalConfig/pages/CCaptureConfig.h>

#include <KvGui/KvSpinBox.h>
#include <LocalConfig/widgets/CCombobox.h>
#include <UICommonModule/CPathEdit.h>

#include <QDir>
#include <QLabel>

using namespace LocalConfig;
using LocalConfigLogical::ISnapshotSection;
using LocalConfigLogical::SnapshotConfigInfo;

class tst_CaptureConfig : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_pFixture.reset(new SPageFixture<CCaptureConfig, ISnapshotSection, SnapshotConfigInfo>); }

    void Captions_data();
    void Captions();
    void Items();
    void WhichTextsAreTranslated();
    void NameFormatsAreLookedUp();
    void IntervalRange();
    void CountPattern();
    void ThePageStaysAChild();

    void ANullSectionIsRefused();
    void WithoutASectionNothingIsLoaded();
    void LoadShowsTheRecord();
    void DefaultsDoNotReadTheSection();
    void AnyFormatButBmpIsJpeg_data();
    void AnyFormatButBmpIsJpeg();
    void FolderAsShown_data();
    void FolderAsShown();
    void AnEmptyFolderIsStoredAtOnce();
    void AnEmptyFolderIsOnlyShownWithDefaults();
    void LoadingTakesHintsAway();
    void AStoredPathThatIsTooLongIsMarkedAgain();
    void AnImpossibleRecordIsShownAsFarAsItGoes();

    void SaveWritesWhatIsShownAndCarriesTheRest();
    void SaveWithoutAFormatKeepsTheStoredOne();
    void SaveWithoutANameFormatStoresNone();
    void SaveCount_data();
    void SaveCount();
    void TheCountIsCheckedFirst();
    void AnEmptiedIntervalGetsTheToolTip();
    void AnEmptiedIntervalStaysEmptyUntilSaved_data();
    void AnEmptiedIntervalStaysEmptyUntilSaved();
    void TheIntervalIsReadInItsOwnDigits_data();
    void TheIntervalIsReadInItsOwnDigits();
    void TheIntervalIsCheckedBeforeThePath();
    void SavePath_data() { PathsAroundALimit(180); }
    void SavePath();
    void ThePathMessageComesWhileEditing_data() { PathsAroundALimit(180); }
    void ThePathMessageComesWhileEditing();
    void SaveReturnsTheSectionsResult();

    void LeavingTheCountJudgesIt_data();
    void LeavingTheCountJudgesIt();
    void ConnectionState();
    void SavingWorksWhileLocked();
    void UnInitForgetsTheSection();

private:
    static QString Native(const QString& strPath) { return QDir::toNativeSeparators(strPath); }
    static QString DefaultFolder() { return Native(QDir::currentPath() + "/Picture/"); }
    CCombobox* Format() const { return m_pFixture->Find<CCombobox>("picFormatComboBox"); }
    UICommonMdl::CPathEdit* Path() const { return m_pFixture->Find<UICommonMdl::CPathEdit>("picPathEdit"); }
    CCombobox* Name() const { return m_pFixture->Find<CCombobox>("picNameFormatCmbBox"); }
    KVGUI::KvSpinBox* Interval() const { return m_pFixture->Find<KVGUI::KvSpinBox>("picTmSpinBox"); }
    KVGUI::KvLineEdit* Count() const { return m_pFixture->Find<KVGUI::KvLineEdit>("picNumEdit"); }
    void EmptyTheInterval() const
    {
        Interval()->setFocus();
        QTest::keyClick(Interval(), Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(Interval(), Qt::Key_Delete);
        QCOMPARE(Interval()->text(), QString());
    }

    QScopedPointer<SPageFixture<CCaptureConfig, ISnapshotSection, SnapshotConfigInfo>> m_pFixture;
};

void tst_CaptureConfig::Captions_data()
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

void tst_CaptureConfig::Captions()
{
    QFETCH(QString, strText);
    QCOMPARE(m_pFixture->Find<QLabel>(QTest::currentDataTag())->text(), strText);
}

void tst_CaptureConfig::Items()
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

void tst_CaptureConfig::WhichTextsAreTranslated()
{
    const CMarker marker;
    init();
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

void tst_CaptureConfig::NameFormatsAreLookedUp()
{
    QCOMPARE(m_pFixture->page.GetNameFormatIndex("Time_ChannelNo"), 0);
    QCOMPARE(m_pFixture->page.GetNameFormatIndex("ChannelName_Time"), 3);
    QCOMPARE(m_pFixture->page.GetNameFormatIndex("channelname_time"), -1);
    QCOMPARE(m_pFixture->page.GetNameFormatIndex(""), -1);
}

void tst_CaptureConfig::IntervalRange()
{
    QCOMPARE(Interval()->minimum(), 1);
    QCOMPARE(Interval()->maximum(), 9999999);
}

void tst_CaptureConfig::CountPattern()
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

void tst_CaptureConfig::ThePageStaysAChild()
{
    QVERIFY(!m_pFixture->page.isWindow());
}

void tst_CaptureConfig::ANullSectionIsRefused()
{
    m_pFixture->Load();
    QCOMPARE(m_pFixture->page.SetConfigSection(nullptr), -1);
    QCOMPARE(m_pFixture->page.SaveConfig(), 0); // the section that it had is still there
}

void tst_CaptureConfig::WithoutASectionNothingIsLoaded()
{
    m_pFixture->page.LoadConfig(true);
    QCOMPARE(Count()->text(), QString());
    QCOMPARE(m_pFixture->page.SaveConfig(), -1);
}

void tst_CaptureConfig::LoadShowsTheRecord()
{
    SnapshotConfigInfo record;
    record.imageFormat = 0;
    record.continuousCount = 7;
    record.interval = 9999999;
    record.picturePath = "/snap/\xe5\x9b\xbe/";
    record.nameFormat = 1;
    m_pFixture->Load(record);
    QCOMPARE(Format()->currentText(), QString("BMP"));
    QCOMPARE(Count()->text(), QString("7"));
    QCOMPARE(Interval()->value(), 9999999);
    QCOMPARE(Path()->text(), Native(QString::fromUtf8("/snap/\xe5\x9b\xbe/")));
    QCOMPARE(Name()->currentText(), QString("Time_ChannelName"));
}

void tst_CaptureConfig::DefaultsDoNotReadTheSection()
{
    SnapshotConfigInfo record;
    record.imageFormat = 0;
    record.continuousCount = 7;
    record.interval = 30;
    record.picturePath = "/snap/";
    record.nameFormat = 1;
    m_pFixture->Load(record);
    m_pFixture->page.LoadConfig(true);
    QCOMPARE(m_pFixture->journal.Take(), QStringList());
    QCOMPARE(Format()->currentText(), QString("JPEG"));
    QCOMPARE(Count()->text(), QString("3"));
    QCOMPARE(Interval()->value(), 2);
    QCOMPARE(Path()->text(), DefaultFolder());
    QCOMPARE(Name()->currentText(), QString("ChannelName_Time"));
}

void tst_CaptureConfig::AnyFormatButBmpIsJpeg_data()
{
    QTest::addColumn<int>("nStored");
    QTest::addColumn<int>("nShown");
    QTest::newRow("0") << 0 << 0;
    QTest::newRow("1") << 1 << 1;
    QTest::newRow("7") << 7 << 1;
    QTest::newRow("-1") << -1 << 1;
}

void tst_CaptureConfig::AnyFormatButBmpIsJpeg()
{
    QFETCH(int, nStored);
    QFETCH(int, nShown);
    SnapshotConfigInfo record;
    record.imageFormat = nStored;
    m_pFixture->Load(record);
    QCOMPARE(Format()->currentIndex(), nShown);
    QCOMPARE(m_pFixture->page.SaveConfig(), 0);
    QCOMPARE(m_pFixture->section.m_record.imageFormat, nShown);
}

void tst_CaptureConfig::FolderAsShown_data()
{
    QTest::addColumn<QString>("strStored");
    QTest::addColumn<QString>("strShown");
    QTest::newRow("separator is added") << "D:/snap" << Native("D:/snap/");
    QTest::newRow("slash stays") << "/snap/" << Native("/snap/");
    QTest::newRow("backslash stays") << "D:\\snap\\"
                                     << "D:\\snap\\";
}

void tst_CaptureConfig::FolderAsShown()
{
    QFETCH(QString, strStored);
    QFETCH(QString, strShown);
    SnapshotConfigInfo record;
    record.picturePath = strStored.toStdString();
    m_pFixture->section.m_record = record;
    QCOMPARE(m_pFixture->page.SetConfigSection(&m_pFixture->section), 0);
    QCOMPARE(m_pFixture->journal.Take(), QStringList{"GetConfig"});
    QCOMPARE(Path()->text(), strShown);
}

void tst_CaptureConfig::AnEmptyFolderIsStoredAtOnce()
{
    SnapshotConfigInfo record;
    record.continuousCount = 5;
    record.hostString2 = "carried";
    m_pFixture->section.m_record = record;
    QCOMPARE(m_pFixture->page.SetConfigSection(&m_pFixture->section), 0);
    QCOMPARE(m_pFixture->journal.Take(), (QStringList{"GetConfig", "SetConfig"}));
    QCOMPARE(Path()->text(), DefaultFolder());
    QCOMPARE(m_pFixture->section.m_record.picturePath, DefaultFolder().toStdString());
    QCOMPARE(m_pFixture->section.m_record.continuousCount, 5);
    QCOMPARE(m_pFixture->section.m_record.hostString2, std::string("carried"));
    m_pFixture->page.LoadConfig(false);
    QCOMPARE(m_pFixture->journal.Take(), QStringList{"GetConfig"});
}

void tst_CaptureConfig::AnEmptyFolderIsOnlyShownWithDefaults()
{
    m_pFixture->Load();
    m_pFixture->section.m_record.picturePath.clear();
    m_pFixture->page.LoadConfig(true);
    QCOMPARE(Path()->text(), DefaultFolder());
    QCOMPARE(m_pFixture->section.m_record.picturePath, std::string());
}

void tst_CaptureConfig::LoadingTakesHintsAway()
{
    m_pFixture->Load();
    Count()->showErrorHint(&m_pFixture->page, true, "wrong");
    Path()->showErrorHint(&m_pFixture->page, true, "wrong");
    m_pFixture->page.LoadConfig(false);
    for (KVGUI::KvLineEdit* pEdit : {Count(), static_cast<KVGUI::KvLineEdit*>(Path())})
    {
        QVERIFY(!pEdit->IsErrorHintShown());
        QCOMPARE(pEdit->GetErrorHintText(), QString());
    }
}

void tst_CaptureConfig::AStoredPathThatIsTooLongIsMarkedAgain()
{
    SnapshotConfigInfo record;
    record.picturePath = std::string(181, 'p');
    for (int nLoad = 0; nLoad < 2; ++nLoad)
    {
        m_pFixture->Load(record);
        QVERIFY(Path()->IsErrorHintShown());
        QVERIFY(!Path()->GetErrorHintText().isEmpty());
    }
}

void tst_CaptureConfig::AnImpossibleRecordIsShownAsFarAsItGoes()
{
    SnapshotConfigInfo record;
    record.continuousCount = -4;
    record.interval = 0;
    record.picturePath = "\xff\xfe/";
    record.nameFormat = 99;
    m_pFixture->Load(record);
    QCOMPARE(Count()->text(), QString("-4"));
    QCOMPARE(Interval()->value(), 1);
    QCOMPARE(Name()->currentIndex(), -1);
    QCOMPARE(m_pFixture->page.SaveConfig(), -2);
    QCOMPARE(m_pFixture->section.m_record.picturePath, record.picturePath);
}

void tst_CaptureConfig::SaveWritesWhatIsShownAndCarriesTheRest()
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

void tst_CaptureConfig::SaveWithoutAFormatKeepsTheStoredOne()
{
    SnapshotConfigInfo record;
    record.imageFormat = 7;
    m_pFixture->Load(record);
    Format()->setCurrentIndex(-1);
    QCOMPARE(m_pFixture->page.SaveConfig(), 0);
    QCOMPARE(m_pFixture->section.m_record.imageFormat, 7);
}

void tst_CaptureConfig::SaveWithoutANameFormatStoresNone()
{
    m_pFixture->Load();
    Name()->setCurrentIndex(-1);
    QCOMPARE(m_pFixture->page.SaveConfig(), 0);
    QCOMPARE(m_pFixture->section.m_record.nameFormat, -1);
}

void tst_CaptureConfig::SaveCount_data()
{
    QTest::addColumn<QString>("strText");
    QTest::addColumn<int>("nResult");
    QTest::newRow("empty") << "" << -2;
    for (int n = 1; n <= 10; ++n)
    {
        QTest::addRow("%d", n) << QString::number(n) << (n >= 2 ? 0 : -2);
    }
}

void tst_CaptureConfig::SaveCount()
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

void tst_CaptureConfig::TheCountIsCheckedFirst()
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

void tst_CaptureConfig::AnEmptiedIntervalGetsTheToolTip()
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

void tst_CaptureConfig::AnEmptiedIntervalStaysEmptyUntilSaved_data()
{
    QTest::addColumn<int>("nKey");
    QTest::newRow("left") << int(Qt::Key_Tab);
    QTest::newRow("entered") << int(Qt::Key_Return);
}

void tst_CaptureConfig::AnEmptiedIntervalStaysEmptyUntilSaved()
{
    QFETCH(int, nKey);
    SnapshotConfigInfo record;
    record.interval = 60;
    m_pFixture->Load(record);
    EmptyTheInterval();
    QTest::keyClick(Interval(), Qt::Key(nKey));
    QCOMPARE(Interval()->text(), QString());
    QCOMPARE(m_pFixture->page.SaveConfig(), -1);
    QCOMPARE(QToolTip::text(), QString("Continue snapshot time interval must be longer than 1s."));
    QCOMPARE(Interval()->text(), QString("60"));
    QCOMPARE(m_pFixture->page.SaveConfig(), 0);
    QCOMPARE(m_pFixture->section.m_record.interval, 60);
}

void tst_CaptureConfig::TheIntervalIsReadInItsOwnDigits_data()
{
    QTest::addColumn<QString>("strLocale");
    for (const char* pszLocale : {"C", "de_DE", "ar_EG", "fa_IR"})
    {
        QTest::newRow(pszLocale) << pszLocale;
    }
}

void tst_CaptureConfig::TheIntervalIsReadInItsOwnDigits()
{
    QFETCH(QString, strLocale);
    const QLocale before;
    QLocale::setDefault(QLocale(strLocale));
    init();
    SnapshotConfigInfo record;
    record.interval = 1234567;
    m_pFixture->Load(record);
    const int nResult = m_pFixture->page.SaveConfig();
    QLocale::setDefault(before);
    QCOMPARE(nResult, 0);
    QCOMPARE(m_pFixture->section.m_record.interval, 1234567);
}

void tst_CaptureConfig::TheIntervalIsCheckedBeforeThePath()
{
    m_pFixture->Load();
    Paste(Path(), QString(181, 'p'));
    EmptyTheInterval();
    QCOMPARE(m_pFixture->page.SaveConfig(), -1);
    QVERIFY(!QToolTip::text().isEmpty());
}

void tst_CaptureConfig::SavePath()
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

void tst_CaptureConfig::ThePathMessageComesWhileEditing()
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

void tst_CaptureConfig::SaveReturnsTheSectionsResult()
{
    m_pFixture->Load();
    m_pFixture->section.m_nResult = 17;
    QCOMPARE(m_pFixture->page.SaveConfig(), 17);
}

void tst_CaptureConfig::LeavingTheCountJudgesIt_data()
{
    QTest::addColumn<QString>("strText");
    QTest::addColumn<bool>("bHint");
    QTest::newRow("empty") << "" << true;
    QTest::newRow("1") << "1" << true;
    QTest::newRow("2") << "2" << false;
    QTest::newRow("10") << "10" << false;
}

void tst_CaptureConfig::LeavingTheCountJudgesIt()
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

void tst_CaptureConfig::ConnectionState()
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

void tst_CaptureConfig::SavingWorksWhileLocked()
{
    m_pFixture->Load();
    m_pFixture->page.SetControlsEnabled(false);
    QTest::keyClick(Name(), Qt::Key_Home);
    QCOMPARE(m_pFixture->page.SaveConfig(), 0);
    QCOMPARE(m_pFixture->section.m_record.nameFormat, 0);
}

void tst_CaptureConfig::UnInitForgetsTheSection()
{
    m_pFixture->Load();
    m_pFixture->page.UnInit();
    m_pFixture->page.LoadConfig(false);
    QCOMPARE(m_pFixture->page.SaveConfig(), -1);
    QCOMPARE(m_pFixture->journal.Take(), QStringList());
}

QTEST_MAIN(tst_CaptureConfig)

#include "tst_CaptureConfig.moc"
