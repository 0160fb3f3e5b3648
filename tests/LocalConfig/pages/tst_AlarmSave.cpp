#include "support/AlarmPage.h"

using namespace LocalConfig;
using LocalConfigLogical::AlarmConfigInfo;

class tst_AlarmSave : public CAlarmPageTest
{
    Q_OBJECT

private slots:
    void init() { Reset(); }

    void DefaultsComeFromTheRecordsKeys();
    void DefaultsAreSavedWithTheCurrentBoxes();
    void APlainLoadDropsTheDefaults();

    void SaveOrder();
    void SaveWritesTheFlags();
    void SaveReturnsTheSectionsResult();
    void SaveMergesPickedCategories();
    void AllPicksEveryCategoryButTwo();
    void ACategoryThatTheRecordLacksIsDropped();
    void ALoadDropsPickedCategories();
    void PickedCategoriesAreMergedOnce();

private:
    void ToggleCategory(const QString& strName) const
    {
        Categories()->showPopup();
        for (KVGUI::KvCheckBox* pBox : Categories()->view()->findChildren<KVGUI::KvCheckBox*>())
        {
            if (pBox->text() == strName)
            {
                Click(pBox);
            }
        }
        Categories()->hidePopup();
    }
};

void tst_AlarmSave::DefaultsComeFromTheRecordsKeys()
{
    AlarmConfigInfo record = Record();
    record.alarmSound = false;
    record.loopSound = true;
    record.mapFlash = false;
    record.linkVideo = false;
    record.openVideoType = 1;
    record.alarmSounds[2].customSound = "/own/rules.wav";
    Load(record);
    m_pFixture->page.LoadConfig(true);
    QCOMPARE(m_pFixture->journal.Take(), QStringList{"GetConfig"});
    QVERIFY(Check("ckbAlarmSound")->isChecked() && Check("ckbMapFlash")->isChecked());
    QVERIFY(Check("ckbLinkVideo")->isChecked() && !Check("ckbLoop")->isChecked());
    QVERIFY(Radio("radioPopUp")->isChecked());
    QCOMPARE(Path()->text(), g_strDefaultFolder + "rules.wav");
    QCOMPARE(ListedCategories(),
             (QStringList{"All*", CategoryName(2) + "*", CategoryName(3) + "*", CategoryName(9) + "*"}));
    QCOMPARE(Types()->count(), int(record.alarmSounds.size()));
}

void tst_AlarmSave::DefaultsAreSavedWithTheCurrentBoxes()
{
    Load(Record());
    m_pFixture->page.LoadConfig(true);
    m_pFixture->journal.Take();
    Click(Check("ckbLoop"));
    Click(Radio("radioPreview"));
    QCOMPARE(m_pFixture->page.SaveConfig(), 0);
    QCOMPARE(m_pFixture->journal.Take(), (QStringList{"PrepareSave", "SetConfig true"}));
    QVERIFY(Stored().loopSound);
    QCOMPARE(Stored().openVideoType, 1);
    QCOMPARE(Stored().flashCategories,
             (std::map<std::int32_t, bool>{{1, false}, {2, true}, {3, true}, {6, true}, {9, true}, {777, true}}));
    for (const auto& sound : Stored().alarmSounds)
    {
        QCOMPARE(sound.second.customSound, std::string());
        QVERIFY(sound.second.soundChanged);
    }
    QCOMPARE(Stored().alarmSounds.at(201).defaultSound, std::string("device.wav"));
}

void tst_AlarmSave::APlainLoadDropsTheDefaults()
{
    Load(Record());
    m_pFixture->page.LoadConfig(true);
    m_pFixture->page.LoadConfig(false);
    QCOMPARE(m_pFixture->page.SaveConfig(), 0);
    QCOMPARE(Stored().alarmSounds.at(201).customSound, std::string("/own/device.wav"));
    QCOMPARE(Stored().flashCategories, Record().flashCategories);
}

void tst_AlarmSave::SaveOrder()
{
    Load(Record());
    QCOMPARE(m_pFixture->page.SaveConfig(), 0);
    QCOMPARE(m_pFixture->journal.Take(), (QStringList{"PrepareSave", "GetConfig", "SetConfig true"}));
}

void tst_AlarmSave::SaveWritesTheFlags()
{
    AlarmConfigInfo record = Record();
    record.alarmSounds[201].hostOwned4 = 7;
    record.alarmSounds[201].soundChanged = true;
    Load(record);
    for (const char* pszBox : {"ckbAlarmSound", "ckbMapFlash", "ckbLinkVideo"})
    {
        Click(Check(pszBox));
    }
    QCOMPARE(m_pFixture->page.SaveConfig(), 0);
    QVERIFY(!Stored().alarmSound && !Stored().mapFlash && !Stored().linkVideo && !Stored().loopSound);
    QCOMPARE(Stored().openVideoType, 0);
    QCOMPARE(Stored().flashCategories, record.flashCategories);
    QCOMPARE(Stored().alarmSounds.size(), record.alarmSounds.size());
    QCOMPARE(int(Stored().alarmSounds.at(201).hostOwned4), 7);
    QVERIFY(Stored().alarmSounds.at(201).soundChanged);
    QVERIFY(!Stored().alarmSounds.at(302).soundChanged);
}

void tst_AlarmSave::SaveReturnsTheSectionsResult()
{
    Load(Record());
    m_pFixture->section.m_nResult = 17;
    QCOMPARE(m_pFixture->page.SaveConfig(), 17);
}

void tst_AlarmSave::SaveMergesPickedCategories()
{
    Load(Record());
    ToggleCategory(CategoryName(3));
    ToggleCategory(CategoryName(9));
    QCOMPARE(Stored().flashCategories, Record().flashCategories);
    QCOMPARE(m_pFixture->page.SaveConfig(), 0);
    std::map<std::int32_t, bool> mapExpected = Record().flashCategories;
    mapExpected[3] = true;
    mapExpected[9] = false;
    QCOMPARE(Stored().flashCategories, mapExpected);
}

void tst_AlarmSave::AllPicksEveryCategoryButTwo()
{
    Load(Record());
    ToggleCategory("All");
    QCOMPARE(m_pFixture->page.SaveConfig(), 0);
    QCOMPARE(Stored().flashCategories,
             (std::map<std::int32_t, bool>{{1, false}, {2, true}, {3, true}, {6, true}, {9, true}, {777, true}}));
    m_pFixture->page.LoadConfig(false);
    ToggleCategory("All");
    QCOMPARE(m_pFixture->page.SaveConfig(), 0);
    QCOMPARE(Stored().flashCategories,
             (std::map<std::int32_t, bool>{{1, false}, {2, false}, {3, false}, {6, true}, {9, false}, {777, false}}));
}

void tst_AlarmSave::ACategoryThatTheRecordLacksIsDropped()
{
    Load(Record());
    ToggleCategory(CategoryName(3));
    m_pFixture->section.m_record.flashCategories.erase(3);
    QCOMPARE(m_pFixture->page.SaveConfig(), 0);
    QCOMPARE(Stored().flashCategories.count(3), std::size_t(0));
}

void tst_AlarmSave::ALoadDropsPickedCategories()
{
    Load(Record());
    ToggleCategory(CategoryName(3));
    m_pFixture->page.LoadConfig(false);
    QCOMPARE(m_pFixture->page.SaveConfig(), 0);
    QCOMPARE(Stored().flashCategories, Record().flashCategories);
}

void tst_AlarmSave::PickedCategoriesAreMergedOnce()
{
    Load(Record());
    ToggleCategory(CategoryName(3));
    QCOMPARE(m_pFixture->page.SaveConfig(), 0);
    m_pFixture->section.m_record.flashCategories[3] = false; // by somebody else
    QCOMPARE(m_pFixture->page.SaveConfig(), 0);
    QVERIFY(!Stored().flashCategories.at(3));
}

QTEST_MAIN(tst_AlarmSave)

#include "tst_AlarmSave.moc"
