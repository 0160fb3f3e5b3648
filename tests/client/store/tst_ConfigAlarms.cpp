#include "support/ChangedSettings.h"
#include "support/StoreFixture.h"

#include <UICommonModule/CAlarmType.h>

using namespace LocalConfigClient;
using namespace LocalConfigLogical;

class tst_ConfigAlarms : public CStoreTest
{
    Q_OBJECT

private slots:
    void init() { Reset(); }

    void AlarmSectionKeepsAWorkingRecord();
    void AlarmDefaultsKeepTheKeys();
    void AlarmsThatAreToPersistOutsideASaveAreStored();
    void SeedsKeepWhatIsStored();
};

void tst_ConfigAlarms::AlarmSectionKeepsAWorkingRecord()
{
    ConfigService service(m_pFolder->path(), SettingsFile::ReadWrite);
    auto* pAlarm = static_cast<IAlarmSection*>(service.GetSection(SectionAlarm));
    const auto loop = [pAlarm] {
        AlarmConfigInfo record;
        pAlarm->GetConfig(record);
        return record.loopSound;
    };
    AlarmConfigInfo record;
    record.loopSound = true;
    QCOMPARE(pAlarm->SetConfig(record, false), 0);
    QVERIFY(loop());
    pAlarm->ResetConfig(false);
    QVERIFY(!loop());
    QCOMPARE(pAlarm->SetConfig(record, true), 0);
    pAlarm->ResetConfig(false);
    QVERIFY(loop());
    pAlarm->PrepareSave();
    QCOMPARE(service.SaveAll(), 1);
    QVERIFY(service.GetStored().alarm.loopSound);
}

void tst_ConfigAlarms::AlarmDefaultsKeepTheKeys()
{
    ConfigService service(m_pFolder->path(), SettingsFile::ReadWrite);
    auto* pAlarm = static_cast<IAlarmSection*>(service.GetSection(SectionAlarm));
    AlarmConfigInfo changed = ChangedSettings().alarm;
    changed.flashCategories[1] = false; // no place on the map, and no control to switch them off again
    changed.flashCategories[6] = true;
    changed.flashCategories[7] = false;
    pAlarm->SetConfig(changed, true);
    pAlarm->ResetConfig(true);
    AlarmConfigInfo record;
    pAlarm->GetConfig(record);
    QCOMPARE(record.alarmSound, true);
    QCOMPARE(record.openVideoType, 0);
    QCOMPARE(record.flashCategories.size(), changed.flashCategories.size());
    for (const auto& [nId, bFlash] : record.flashCategories)
    {
        QCOMPARE(bFlash, nId != 1);
        QVERIFY(changed.flashCategories.count(nId));
    }
    QCOMPARE(record.alarmSounds.size(), changed.alarmSounds.size());
    for (const auto& [nType, sound] : record.alarmSounds)
    {
        QVERIFY(sound.customSound.empty());
        QCOMPARE(sound.defaultSound, changed.alarmSounds.at(nType).defaultSound);
    }
}

void tst_ConfigAlarms::AlarmsThatAreToPersistOutsideASaveAreStored()
{
    ConfigService service(m_pFolder->path(), SettingsFile::ReadWrite);
    auto* pAlarm = static_cast<IAlarmSection*>(service.GetSection(SectionAlarm));
    AlarmConfigInfo record;
    record.alarmSound = false;
    pAlarm->SetConfig(record, true);
    QVERIFY(!service.GetStored().alarm.alarmSound);
    service.Revert();
    pAlarm->GetConfig(record);
    QVERIFY(!record.alarmSound);
    record.loopSound = true;
    pAlarm->SetConfig(record, false);
    QVERIFY2(!service.GetStored().alarm.loopSound, "the working record alone");
}

void tst_ConfigAlarms::SeedsKeepWhatIsStored()
{
    ConfigService service(m_pFolder->path(), SettingsFile::ReadWrite);
    auto* pAlarm = static_cast<IAlarmSection*>(service.GetSection(SectionAlarm));
    AlarmConfigInfo record;
    record.flashCategories = {{3, false}, {999, true}};
    record.alarmSounds[200000].customSound = "/own/face.wav";
    pAlarm->PrepareSave();
    pAlarm->SetConfig(record, true);
    QCOMPARE(service.SaveAll(), 1);

    const auto* pCatalogue = UICommonMdl::CAlarmType::Instance();
    service.SeedAlarms(*pCatalogue);
    pAlarm->GetConfig(record);
    QVERIFY(!record.flashCategories.at(3) && record.flashCategories.at(999) && record.flashCategories.at(2));
    QVERIFY(!record.flashCategories.at(1) && !record.flashCategories.at(6)); // not on the map
    QCOMPARE(record.alarmSounds.at(200000).customSound, std::string("/own/face.wav"));
    QCOMPARE(record.alarmSounds.at(302).alarmType, 302);
    QCOMPARE(record.alarmSounds.at(302).defaultSound, std::string("video.wav"));
    QCOMPARE(record.alarmSounds.count(961), std::size_t(0)); // shares the entry 200000
    QCOMPARE(record.alarmSounds.count(967), std::size_t(1));
    QCOMPARE(record.alarmSounds.count(901), std::size_t(0));  // 100000
    QCOMPARE(record.alarmSounds.count(3115), std::size_t(0)); // 2
    QCOMPARE(record.alarmSounds.at(2).defaultSound, std::string("analysis.wav"));
    QCOMPARE(service.SaveAll(), 1);
    const ConfigService later(m_pFolder->path(), SettingsFile::ReadOnly);
    QCOMPARE(later.GetStored().alarm.alarmSounds.size(), record.alarmSounds.size());
}

QTEST_GUILESS_MAIN(tst_ConfigAlarms)

#include "tst_ConfigAlarms.moc"
