#include "support/AlarmPage.h"

using namespace LocalConfig;
using LocalConfigLogical::AlarmConfigInfo;
using UICommonMdl::CAlarmType;

class tst_AlarmLoad : public CAlarmPageTest
{
    Q_OBJECT

private slots:
    void init() { Reset(); }

    void ANullSectionIsRefused();
    void LoadOrder();
    void LoadShowsTheFlags_data();
    void LoadShowsTheFlags();
    void LoadListsTheSounds();
    void LoadShowsTheFirstSound_data();
    void LoadShowsTheFirstSound();
    void LoadListsTheCategories();
    void AllIsCheckedWhenEveryListedCategoryIs();
    void LoadingTheSameAgainGoesBackToTheFirstSound();
    void TheListFollowsTheRecord();
    void TheListFollowsTheCatalogue();
    void AnEmptyRecordIsShown();
    void UnknownTypesAreListedWithoutAName();
    void ReloadTellsTheSectionFirst_data();
    void ReloadTellsTheSectionFirst();
    void UnInitForgetsTheSection();
};

void tst_AlarmLoad::ANullSectionIsRefused()
{
    QCOMPARE(m_pFixture->page.SetConfigSection(nullptr), -1);
    QCOMPARE(m_pFixture->page.SaveConfig(), -1);
    m_pFixture->page.LoadConfig(true);
    m_pFixture->page.ReloadConfig(true);
    m_pFixture->page.UpdateControlState(false);
    QCOMPARE(Types()->count(), 0);
}

void tst_AlarmLoad::LoadOrder()
{
    QCOMPARE(m_pFixture->page.SetConfigSection(&m_pFixture->section), 0);
    const QStringList listCalls = m_pFixture->journal.Take();
    QVERIFY(!listCalls.isEmpty());
    QCOMPARE(listCalls.count("GetConfig"), listCalls.size()); // reading only
}

void tst_AlarmLoad::LoadShowsTheFlags_data()
{
    QTest::addColumn<bool>("bSound");
    QTest::addColumn<bool>("bLoop");
    QTest::addColumn<bool>("bFlash");
    QTest::addColumn<bool>("bVideo");
    QTest::addColumn<int>("nOpenType");
    QTest::newRow("all off") << false << false << false << false << 0;
    QTest::newRow("sound") << true << false << false << false << 1;
    QTest::newRow("loop") << false << true << false << false << 0;
    QTest::newRow("flash") << false << false << true << false << -1;
    QTest::newRow("video") << false << false << false << true << 99;
}

void tst_AlarmLoad::LoadShowsTheFlags()
{
    QFETCH(bool, bSound);
    QFETCH(bool, bLoop);
    QFETCH(bool, bFlash);
    QFETCH(bool, bVideo);
    QFETCH(int, nOpenType);
    AlarmConfigInfo record = Record();
    record.alarmSound = bSound;
    record.loopSound = bLoop;
    record.mapFlash = bFlash;
    record.linkVideo = bVideo;
    record.openVideoType = nOpenType;
    Load(record);
    QCOMPARE(Check("ckbAlarmSound")->isChecked(), bSound);
    QCOMPARE(Check("ckbLoop")->isChecked(), bLoop);
    QCOMPARE(Check("ckbMapFlash")->isChecked(), bFlash);
    QCOMPARE(Check("ckbLinkVideo")->isChecked(), bVideo);
    QCOMPARE(Radio("radioPopUp")->isChecked(), nOpenType == 0);
    QCOMPARE(Radio("radioPreview")->isChecked(), nOpenType != 0);
}

void tst_AlarmLoad::LoadListsTheSounds()
{
    Load(Record());
    PickType(302);
    m_pFixture->page.LoadConfig(false);
    QStringList listNames;
    for (int n = 0; n < Types()->count(); ++n)
    {
        listNames += Types()->itemText(n);
    }
    QStringList listExpected;
    for (int nType : {3101, 201, 302, 967, 3100, 3131, 901, 961})
    {
        listExpected += CAlarmType::Instance()->CovertAlarmNameByType(nType);
    }
    QCOMPARE(listNames, listExpected);
    QCOMPARE(Types()->currentIndex(), 0);
    QCOMPARE(Types()->GetCurrentChosenItem(), QList<int>());
}

void tst_AlarmLoad::LoadShowsTheFirstSound_data()
{
    QTest::addColumn<QString>("strCustom");
    QTest::addColumn<QString>("strLanguage");
    QTest::addColumn<QString>("strShown");
    QTest::newRow("built-in") << ""
                              << "en"
                              << "./Sound/sound_en/rules.wav";
    QTest::newRow("built-in, other language") << ""
                                              << "zh_CN"
                                              << "./Sound/sound_zh_CN/rules.wav";
    QTest::newRow("custom") << "/own/rules.wav"
                            << "en" << QDir::toNativeSeparators("/own/rules.wav");
    QTest::newRow("custom, any script") << QString::fromUtf8("/\xe5\xa3\xb0.wav") << "en"
                                        << QDir::toNativeSeparators(QString::fromUtf8("/\xe5\xa3\xb0.wav"));
}

void tst_AlarmLoad::LoadShowsTheFirstSound()
{
    QFETCH(QString, strCustom);
    QFETCH(QString, strLanguage);
    QFETCH(QString, strShown);
    UICommonMdl::CGlobalInfo::SetClientStrLanguage(strLanguage);
    AlarmConfigInfo record = Record();
    record.alarmSounds[2].customSound = strCustom.toStdString();
    Load(record);
    QCOMPARE(Path()->text(), strShown);
}

void tst_AlarmLoad::LoadListsTheCategories()
{
    Load(Record());
    // 1 and 6 are never offered, 777 has no name.
    QCOMPARE(ListedCategories(), (QStringList{"All", CategoryName(2) + "*", CategoryName(3), CategoryName(9) + "*"}));
    QCOMPARE(Categories()->currentText(), CategoryName(2) + " ...");
}

void tst_AlarmLoad::AllIsCheckedWhenEveryListedCategoryIs()
{
    AlarmConfigInfo record = Record();
    record.flashCategories[3] = true;
    Load(record);
    QCOMPARE(ListedCategories(),
             (QStringList{"All*", CategoryName(2) + "*", CategoryName(3) + "*", CategoryName(9) + "*"}));
    QCOMPARE(Categories()->currentText(), QString("All"));
}

void tst_AlarmLoad::LoadingTheSameAgainGoesBackToTheFirstSound()
{
    Load(Record());
    const int nCount = Types()->count();
    const QString strFirst = Types()->currentText();
    Types()->setCurrentIndex(3);
    m_pFixture->page.LoadConfig(false);
    QCOMPARE(Types()->count(), nCount);
    QCOMPARE(Types()->currentIndex(), 0);
    QCOMPARE(Types()->currentText(), strFirst);
}

void tst_AlarmLoad::TheListFollowsTheRecord()
{
    const auto load = [this](int nFirst, int nSecond) {
        AlarmConfigInfo record;
        record.alarmSounds = {{nFirst, Sound(nFirst, "a.wav")}, {nSecond, Sound(nSecond, "b.wav")}};
        Load(record);
    };
    load(201, 302);
    load(201, 967);
    QCOMPARE(Types()->count(), 2);
    QCOMPARE(Types()->itemText(1), CAlarmType::Instance()->CovertAlarmNameByType(967));
    QCOMPARE(Types()->findText(CAlarmType::Instance()->CovertAlarmNameByType(967)), 1);
}

void tst_AlarmLoad::TheListFollowsTheCatalogue()
{
    Load(Record());
    const QStringList listBefore = {Types()->itemText(0), Types()->itemText(1)};
    UICommonMdl::CGlobalInfo::SetClientStrLanguage("zh_CN");
    CAlarmType::Instance()->Load(QString());
    m_pFixture->page.LoadConfig(false);
    QVERIFY(Types()->itemText(0) != listBefore[0]);
    QVERIFY(Types()->itemText(1) != listBefore[1]);
    UICommonMdl::CGlobalInfo::SetClientStrLanguage("en");
    CAlarmType::Instance()->Load(QString());
    m_pFixture->page.LoadConfig(false);
    QCOMPARE(Types()->itemText(0), listBefore[0]);
}

void tst_AlarmLoad::AnEmptyRecordIsShown()
{
    Load(Record());
    Load(AlarmConfigInfo());
    QCOMPARE(Types()->count(), 0);
    QCOMPARE(Path()->text(), QString());
    QCOMPARE(Categories()->currentText(), QString("All"));
    QCOMPARE(m_pFixture->page.SaveConfig(), 0);
}

void tst_AlarmLoad::UnknownTypesAreListedWithoutAName()
{
    AlarmConfigInfo record;
    record.alarmSounds = {{-3, Sound(123456, "x.wav")}};
    Load(record);
    QCOMPARE(Types()->count(), 1);
    QCOMPARE(Types()->itemText(0), QString());
    QCOMPARE(Path()->text(), g_strDefaultFolder + "x.wav");
}

void tst_AlarmLoad::ReloadTellsTheSectionFirst_data()
{
    QTest::addColumn<bool>("bDefault");
    QTest::newRow("stored") << false;
    QTest::newRow("defaults") << true;
}

void tst_AlarmLoad::ReloadTellsTheSectionFirst()
{
    QFETCH(bool, bDefault);
    AlarmConfigInfo record = Record();
    record.loopSound = bDefault;
    Load(record);
    m_pFixture->section.m_record.loopSound = !bDefault;
    m_pFixture->page.ReloadConfig(bDefault);
    const QStringList listCalls = m_pFixture->journal.Take();
    QCOMPARE(listCalls.first(), QString("ResetConfig ") + (bDefault ? "true" : "false"));
    QCOMPARE(listCalls.count("GetConfig"), listCalls.size() - 1);
    QCOMPARE(Check("ckbLoop")->isChecked(), !bDefault);
}

void tst_AlarmLoad::UnInitForgetsTheSection()
{
    Load(Record());
    m_pFixture->page.UnInit();
    m_pFixture->page.LoadConfig(false);
    m_pFixture->page.ReloadConfig(false);
    PickType(302);
    QCOMPARE(m_pFixture->page.SaveConfig(), -1);
    QCOMPARE(m_pFixture->journal.Take(), QStringList());
}

QTEST_MAIN(tst_AlarmLoad)

#include "tst_AlarmLoad.moc"
