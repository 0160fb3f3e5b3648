#include "support/CapturePage.h"

using LocalConfigLogical::SnapshotConfigInfo;

class tst_CaptureLoad : public CCapturePageTest
{
    Q_OBJECT

private slots:
    void init() { Reset(); }

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
    void UnInitForgetsTheSection();
};

void tst_CaptureLoad::ANullSectionIsRefused()
{
    m_pFixture->Load();
    QCOMPARE(m_pFixture->page.SetConfigSection(nullptr), -1);
    QCOMPARE(m_pFixture->page.SaveConfig(), 0); // the section that it had is still there
}

void tst_CaptureLoad::WithoutASectionNothingIsLoaded()
{
    m_pFixture->page.LoadConfig(true);
    QCOMPARE(Count()->text(), QString());
    QCOMPARE(m_pFixture->page.SaveConfig(), -1);
}

void tst_CaptureLoad::LoadShowsTheRecord()
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

void tst_CaptureLoad::DefaultsDoNotReadTheSection()
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

void tst_CaptureLoad::AnyFormatButBmpIsJpeg_data()
{
    QTest::addColumn<int>("nStored");
    QTest::addColumn<int>("nShown");
    QTest::newRow("0") << 0 << 0;
    QTest::newRow("1") << 1 << 1;
    QTest::newRow("7") << 7 << 1;
    QTest::newRow("-1") << -1 << 1;
}

void tst_CaptureLoad::AnyFormatButBmpIsJpeg()
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

void tst_CaptureLoad::FolderAsShown_data()
{
    QTest::addColumn<QString>("strStored");
    QTest::addColumn<QString>("strShown");
    QTest::newRow("separator is added") << "D:/snap" << Native("D:/snap/");
    QTest::newRow("slash stays") << "/snap/" << Native("/snap/");
    QTest::newRow("backslash stays") << "D:\\snap\\"
                                     << "D:\\snap\\";
    QTest::newRow("share") << "//server/share/snap" << Native("//server/share/snap/");
    QTest::newRow("share with backslashes") << R"(\\server\share\snap\)"
                                            << R"(\\server\share\snap\)";
    QTest::newRow("relative to a drive") << "D:snap" << Native("D:snap/");
    QTest::newRow("any script") << QString::fromUtf8("C:/Users/用户/快照/")
                                << Native(QString::fromUtf8("C:/Users/用户/快照/"));
}

void tst_CaptureLoad::FolderAsShown()
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

void tst_CaptureLoad::AnEmptyFolderIsStoredAtOnce()
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

void tst_CaptureLoad::AnEmptyFolderIsOnlyShownWithDefaults()
{
    m_pFixture->Load();
    m_pFixture->section.m_record.picturePath.clear();
    m_pFixture->page.LoadConfig(true);
    QCOMPARE(Path()->text(), DefaultFolder());
    QCOMPARE(m_pFixture->section.m_record.picturePath, std::string());
}

void tst_CaptureLoad::LoadingTakesHintsAway()
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

void tst_CaptureLoad::AStoredPathThatIsTooLongIsMarkedAgain()
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

void tst_CaptureLoad::AnImpossibleRecordIsShownAsFarAsItGoes()
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

void tst_CaptureLoad::UnInitForgetsTheSection()
{
    m_pFixture->Load();
    m_pFixture->page.UnInit();
    m_pFixture->page.LoadConfig(false);
    QCOMPARE(m_pFixture->page.SaveConfig(), -1);
    QCOMPARE(m_pFixture->journal.Take(), QStringList());
}

QTEST_MAIN(tst_CaptureLoad)

#include "tst_CaptureLoad.moc"
