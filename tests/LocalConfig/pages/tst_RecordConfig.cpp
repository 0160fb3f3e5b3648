#include "support/Marker.h"
#include "support/PageFixture.h"
#include "support/Patterns.h"

#include <LocalConfig/interfaces/IRecordSection.h>
#include <LocalConfig/pages/CRecordConfig.h>

#include <LocalConfig/widgets/CCombobox.h>
#include <UICommonModule/CPathEdit.h>

#include <QDir>
#include <QLabel>

using namespace LocalConfig;
using LocalConfigLogical::IRecordSection;
using LocalConfigLogical::RecordConfigInfo;

class tst_RecordConfig : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_pFixture.reset(new SPageFixture<CRecordConfig, IRecordSection, RecordConfigInfo>); }

    void Captions_data();
    void Captions();
    void Items();
    void WhichTextsAreTranslated();
    void FileSizePattern();

    void ANullSectionIsRefused();
    void LoadShowsTheRecord();
    void DefaultsDoNotReadTheSection();
    void FolderAsShown_data();
    void FolderAsShown();
    void AnEmptyFolderIsStoredBySavingOnly();
    void LoadingTakesHintsAway();

    void SaveWritesWhatIsShownAndCarriesTheRest();
    void SaveFileSize_data();
    void SaveFileSize();
    void SavePath_data() { PathsAroundALimit(168); }
    void SavePath();
    void ThePathMessageComesWhileEditing_data() { PathsAroundALimit(168); }
    void ThePathMessageComesWhileEditing();
    void ThePathIsCheckedFirst();
    void SaveReturnsTheSectionsResult();

    void LeavingTheFileSizeJudgesIt_data();
    void LeavingTheFileSizeJudgesIt();
    void ConnectionState();
    void UnInitForgetsTheSection();

private:
    static QString Native(const QString& strPath) { return QDir::toNativeSeparators(strPath); }
    static QString DefaultFolder() { return Native(QDir::currentPath() + "/Record/"); }
    UICommonMdl::CPathEdit* Path() const { return m_pFixture->Find<UICommonMdl::CPathEdit>("recPathEdit"); }
    CCombobox* Name() const { return m_pFixture->Find<CCombobox>("nameFormatCmbBox"); }
    KVGUI::KvLineEdit* FileSize() const { return m_pFixture->Find<KVGUI::KvLineEdit>("maxRecSizeEdit"); }
    QLabel* HostText() const { return m_pFixture->Find<QLabel>("m_maxRecSizeLabel"); }

    QScopedPointer<SPageFixture<CRecordConfig, IRecordSection, RecordConfigInfo>> m_pFixture;
};

void tst_RecordConfig::Captions_data()
{
    QTest::addColumn<QString>("strText");
    QTest::newRow("recPathLabel") << "Record Path:";
    QTest::newRow("label") << "Record Name:";
    QTest::newRow("maxRecSizeLabel") << "Max Size of Record:";
    QTest::newRow("maxRecSizeRgLabel") << "(10-1500M)";
    QTest::newRow("m_maxRecSizeLabel") << "";
}

void tst_RecordConfig::Captions()
{
    QFETCH(QString, strText);
    QCOMPARE(m_pFixture->Find<QLabel>(QTest::currentDataTag())->text(), strText);
}

void tst_RecordConfig::Items()
{
    const QStringList listNames = {"Time_ChannelNo", "Time_ChannelName", "ChannelNo_Time", "ChannelName_Time"};
    QCOMPARE(Name()->count(), 4);
    for (int n = 0; n < 4; ++n)
    {
        QCOMPARE(Name()->itemText(n), listNames[n]);
    }
}

void tst_RecordConfig::WhichTextsAreTranslated()
{
    const CMarker marker;
    init();
    QCOMPARE(Name()->itemText(3), QString("LocalConfig::CRecordConfig|ChannelName_Time"));
    QCOMPARE(m_pFixture->Find<QLabel>("recPathLabel")->text(),
             QString("CRecordConfig|Record PathLocalConfig::CRecordConfig|:"));
    QCOMPARE(m_pFixture->Find<QLabel>("maxRecSizeRgLabel")->text(), QString("LocalConfig::CRecordConfig|(10-1500M)"));
    Type(FileSize(), "");
    Paste(Path(), QString(169, 'p'));
    QCOMPARE(FileSize()->GetErrorHintText(),
             QString("LocalConfig::CRecordConfig|Max size of a file must be within 10-1500."));
    QCOMPARE(Path()->GetErrorHintText(),
             QString("LocalConfig::CRecordConfig|The Path length of Record should not longer than 168"));
}

void tst_RecordConfig::FileSizePattern()
{
    QCOMPARE(FileSize()->validator()->parent(), &m_pFixture->page);
    CheckEveryNumber(FileSize(), [](int n) { return n >= 1 && n <= 1500; });
    QCOMPARE(Validate(FileSize(), ""), QValidator::Acceptable);
    QCOMPARE(Validate(FileSize(), "010"), QValidator::Invalid);
    Type(FileSize(), "1501");
    QCOMPARE(FileSize()->text(), QString("150"));
    Type(FileSize(), "0");
    QCOMPARE(FileSize()->text(), QString());
}

void tst_RecordConfig::ANullSectionIsRefused()
{
    QCOMPARE(m_pFixture->page.SetConfigSection(nullptr), -1);
    m_pFixture->page.LoadConfig(true);
    QCOMPARE(FileSize()->text(), QString());
    QCOMPARE(m_pFixture->page.SaveConfig(), -1);
}

void tst_RecordConfig::LoadShowsTheRecord()
{
    RecordConfigInfo record;
    record.maxFileSize = 10;
    record.recordPath = "/rec/";
    record.nameFormat = 2;
    m_pFixture->Load(record);
    QCOMPARE(FileSize()->text(), QString("10"));
    QCOMPARE(Path()->text(), Native("/rec/"));
    QCOMPARE(Name()->currentText(), QString("ChannelNo_Time"));
}

void tst_RecordConfig::DefaultsDoNotReadTheSection()
{
    RecordConfigInfo record;
    record.maxFileSize = 10;
    record.recordPath = "/rec/";
    record.nameFormat = 2;
    m_pFixture->Load(record);
    m_pFixture->page.LoadConfig(true);
    QCOMPARE(m_pFixture->journal.Take(), QStringList());
    QCOMPARE(FileSize()->text(), QString("1024"));
    QCOMPARE(Path()->text(), DefaultFolder());
    QCOMPARE(Name()->currentText(), QString("ChannelName_Time"));
}

void tst_RecordConfig::FolderAsShown_data()
{
    QTest::addColumn<QString>("strStored");
    QTest::addColumn<QString>("strShown");
    QTest::newRow("separator is added") << "E:/rec" << Native("E:/rec/");
    QTest::newRow("slash stays") << "/rec/" << Native("/rec/");
    QTest::newRow("backslash stays") << "E:\\rec\\"
                                     << "E:\\rec\\";
    QTest::newRow("share") << "//server/share/rec" << Native("//server/share/rec/");
    QTest::newRow("share with backslashes") << R"(\\server\share\rec\)"
                                            << R"(\\server\share\rec\)";
    QTest::newRow("relative to a drive") << "E:rec" << Native("E:rec/");
    QTest::newRow("any script") << QString::fromUtf8("C:/Users/用户/快照/")
                                << Native(QString::fromUtf8("C:/Users/用户/快照/"));
}

void tst_RecordConfig::FolderAsShown()
{
    QFETCH(QString, strStored);
    QFETCH(QString, strShown);
    RecordConfigInfo record;
    record.recordPath = strStored.toStdString();
    m_pFixture->Load(record);
    QCOMPARE(Path()->text(), strShown);
}

void tst_RecordConfig::AnEmptyFolderIsStoredBySavingOnly()
{
    m_pFixture->section.m_record = RecordConfigInfo();
    QCOMPARE(m_pFixture->page.SetConfigSection(&m_pFixture->section), 0);
    QCOMPARE(m_pFixture->journal.Take(), QStringList{"GetConfig"});
    QCOMPARE(Path()->text(), DefaultFolder());
    QCOMPARE(m_pFixture->section.m_record.recordPath, std::string());
    QCOMPARE(m_pFixture->page.SaveConfig(), 0);
    QCOMPARE(m_pFixture->section.m_record.recordPath, DefaultFolder().toStdString());
}

void tst_RecordConfig::LoadingTakesHintsAway()
{
    m_pFixture->Load();
    FileSize()->showErrorHint(&m_pFixture->page, true, "wrong");
    Path()->showErrorHint(&m_pFixture->page, true, "wrong");
    HostText()->setText("about 7 minutes");
    m_pFixture->page.LoadConfig(false);
    for (KVGUI::KvLineEdit* pEdit : {FileSize(), static_cast<KVGUI::KvLineEdit*>(Path())})
    {
        QVERIFY(!pEdit->IsErrorHintShown());
        QCOMPARE(pEdit->GetErrorHintText(), QString());
    }
    QCOMPARE(HostText()->text(), QString());
}

void tst_RecordConfig::SaveWritesWhatIsShownAndCarriesTheRest()
{
    RecordConfigInfo record;
    record.hostOwned1 = 31;
    record.hostOwned4 = 21;
    record.hostOwned5 = 1;
    record.hostOwned7 = false;
    record.hostOwned8 = 13;
    record.hostOwned9 = 14;
    record.hostOwned10 = 7;
    record.hostOwned11 = 4;
    m_pFixture->Load(record);
    Type(Path(), "/new/place");
    QTest::keyClick(Name(), Qt::Key_Home);
    Type(FileSize(), "1500");
    QCOMPARE(m_pFixture->page.SaveConfig(), 0);
    QCOMPARE(m_pFixture->journal.Take(), (QStringList{"GetConfig", "SetConfig"}));
    const RecordConfigInfo& saved = m_pFixture->section.m_record;
    QCOMPARE(saved.maxFileSize, 1500);
    QCOMPARE(saved.recordPath, std::string("/new/place"));
    QCOMPARE(saved.nameFormat, 0);
    QCOMPARE(saved.hostOwned1, 31);
    QCOMPARE(saved.hostOwned4, 21);
    QCOMPARE(saved.hostOwned5, 1);
    QVERIFY(!saved.hostOwned7);
    QCOMPARE(saved.hostOwned8, 13);
    QCOMPARE(saved.hostOwned9, 14);
    QCOMPARE(saved.hostOwned10, 7);
    QCOMPARE(saved.hostOwned11, 4);
}

void tst_RecordConfig::SaveFileSize_data()
{
    QTest::addColumn<QString>("strText");
    QTest::addColumn<int>("nResult");
    QTest::newRow("empty") << "" << -2;
    QTest::newRow("5") << "5" << -2;
    QTest::newRow("9") << "9" << -2;
    QTest::newRow("10") << "10" << 0;
    QTest::newRow("999") << "999" << 0;
    QTest::newRow("1500") << "1500" << 0;
}

void tst_RecordConfig::SaveFileSize()
{
    QFETCH(QString, strText);
    QFETCH(int, nResult);
    m_pFixture->Load();
    Type(FileSize(), strText);
    QCOMPARE(m_pFixture->page.SaveConfig(), nResult);
    QCOMPARE(FileSize()->IsErrorHintShown(), nResult != 0);
    QCOMPARE(FileSize()->GetErrorHintText(), QString());
    QCOMPARE(FileSize()->text(), strText);
    QCOMPARE(m_pFixture->section.m_record.maxFileSize, nResult == 0 ? strText.toInt() : 1024);
}

void tst_RecordConfig::SavePath()
{
    QFETCH(QString, strPath);
    QFETCH(bool, bTooLong);
    RecordConfigInfo record;
    record.recordPath = "/old/";
    m_pFixture->Load(record);
    Paste(Path(), strPath);
    QCOMPARE(m_pFixture->page.SaveConfig(), bTooLong ? -1 : 0);
    QCOMPARE(m_pFixture->section.m_record.recordPath, bTooLong ? record.recordPath : strPath.toStdString());
    QCOMPARE(QToolTip::text(), QString());
}

void tst_RecordConfig::ThePathMessageComesWhileEditing()
{
    QFETCH(QString, strPath);
    QFETCH(bool, bTooLong);
    m_pFixture->Load();
    Paste(Path(), strPath);
    QCOMPARE(Path()->text(), strPath);
    QCOMPARE(Path()->GetErrorHintText(),
             bTooLong ? QString("The Path length of Record should not longer than 168") : QString());
    QCOMPARE(m_pFixture->page.findChild<QLabel*>("errorTip") != nullptr, bTooLong);
}

void tst_RecordConfig::ThePathIsCheckedFirst()
{
    m_pFixture->Load();
    Type(FileSize(), "5");
    Paste(Path(), QString(169, 'p'));
    FileSize()->showErrorHintNoTip(false);
    QCOMPARE(m_pFixture->page.SaveConfig(), -1);
    QVERIFY(!FileSize()->IsErrorHintShown());
    QCOMPARE(m_pFixture->journal.Take(), QStringList{"GetConfig"});
}

void tst_RecordConfig::SaveReturnsTheSectionsResult()
{
    m_pFixture->Load();
    m_pFixture->section.m_nResult = 17;
    QCOMPARE(m_pFixture->page.SaveConfig(), 17);
}

void tst_RecordConfig::LeavingTheFileSizeJudgesIt_data()
{
    QTest::addColumn<QString>("strText");
    QTest::addColumn<bool>("bHint");
    QTest::newRow("empty") << "" << true;
    QTest::newRow("5") << "5" << true;
    QTest::newRow("10") << "10" << false;
    QTest::newRow("1500") << "1500" << false;
}

void tst_RecordConfig::LeavingTheFileSizeJudgesIt()
{
    QFETCH(QString, strText);
    QFETCH(bool, bHint);
    m_pFixture->Load();
    Type(FileSize(), strText);
    Path()->setFocus();
    QCOMPARE(FileSize()->IsErrorHintShown(), bHint);
    QCOMPARE(FileSize()->GetErrorHintText(), bHint ? QString("Max size of a file must be within 10-1500.") : QString());
    HostText()->setText("about 7 minutes");
    FileSize()->setFocus();
    QVERIFY(!FileSize()->IsErrorHintShown());
    QCOMPARE(HostText()->text(), QString());
    QCOMPARE(FileSize()->text(), strText);
}

void tst_RecordConfig::ConnectionState()
{
    for (bool bEnable : {false, true})
    {
        m_pFixture->page.SetControlsEnabled(bEnable);
        QCOMPARE(Path()->isEnabled(), bEnable);
        QCOMPARE(FileSize()->isEnabled(), bEnable);
        QVERIFY(Name()->isEnabled());
    }
}

void tst_RecordConfig::UnInitForgetsTheSection()
{
    m_pFixture->Load();
    m_pFixture->page.UnInit();
    m_pFixture->page.LoadConfig(false);
    QCOMPARE(m_pFixture->page.SaveConfig(), -1);
    QCOMPARE(m_pFixture->journal.Take(), QStringList());
}

QTEST_MAIN(tst_RecordConfig)

#include "tst_RecordConfig.moc"
