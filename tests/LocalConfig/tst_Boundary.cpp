#include <LocalConfig/interfaces/IAlarmSection.h>
#include <LocalConfig/interfaces/IBasicSection.h>
#include <LocalConfig/interfaces/ILocalConfig.h>
#include <LocalConfig/interfaces/IPlaybackSection.h>
#include <LocalConfig/interfaces/IRecordSection.h>
#include <LocalConfig/interfaces/ISecuritySection.h>
#include <LocalConfig/interfaces/IShortcutKeySection.h>
#include <LocalConfig/interfaces/ISnapshotSection.h>
#include <LocalConfig/interfaces/ITvWallSection.h>
#include <LocalConfig/interfaces/IUserManager.h>
#include <LocalConfig/interfaces/IVideoSection.h>

#include <QtTest>

#include <algorithm>
#include <functional>
#include <type_traits>

using namespace LocalConfigLogical;
using namespace UserLogical;

namespace
{

/// Calls an operation as a caller from another compiler does: by its position in the object's table alone.
template <class Result, class... Arguments>
Result CallSlot(void* pObject, int nSlot, Arguments... arguments)
{
    using Operation = Result (*)(void*, Arguments...);
    void** pTable = *static_cast<void***>(pObject);
    return reinterpret_cast<Operation>(pTable[nSlot])(pObject, arguments...);
}

class CHostConfig final : public ILocalConfig
{
public:
    IConfigSection* GetSection(int nSectionType) override
    {
        m_nAsked = nSectionType;
        return nullptr;
    }
    int SaveAll() override { return 77; }

    int m_nAsked = 0;
};

class CHostRight final : public IUserRight
{
public:
    bool HasRight(int nRight) override { return nRight == 26; }
};

class CHostLogin final : public ILoginManager
{
public:
    void AddObserver(KvPluginAPI::IObserver* pObserver) override { m_pAdded = pObserver; }
    void RemoveObserver(KvPluginAPI::IObserver* pObserver) override { m_pRemoved = pObserver; }

    KvPluginAPI::IObserver* m_pAdded = nullptr;
    KvPluginAPI::IObserver* m_pRemoved = nullptr;
};

class CHostUsers final : public IUserManager
{
public:
    ILoginManager* GetLoginManager() override { return &m_login; }
    IUserRight* GetUserRight() override { return &m_right; }
    void ReleaseUserRight(IUserRight* pUserRight) override { m_pReleased = pUserRight; }

    CHostLogin m_login;
    CHostRight m_right;
    IUserRight* m_pReleased = nullptr;
};

template <class Interface, class Record>
class CHostSection final : public Interface
{
public:
    int SetConfig(const Record& record) override
    {
        m_pSet = &record;
        return 11;
    }
    void GetConfig(Record& record) override { m_pGot = &record; }

    const Record* m_pSet = nullptr;
    const Record* m_pGot = nullptr;
};

class CHostBasic final : public IBasicSection
{
public:
    void SetAutoRunState(bool bAutoRun) override { m_bAutoRun = bAutoRun; }
    int SetConfig(const BasicConfigInfo& record) override
    {
        m_pSet = &record;
        return 12;
    }
    void GetConfig(BasicConfigInfo& record) override { m_pGot = &record; }

    bool m_bAutoRun = false;
    const BasicConfigInfo* m_pSet = nullptr;
    const BasicConfigInfo* m_pGot = nullptr;
};

class CHostAlarm final : public IAlarmSection
{
public:
    int SetConfig(const AlarmConfigInfo& record, bool bPersist) override
    {
        m_pSet = &record;
        m_bPersist = bPersist;
        return 13;
    }
    void GetConfig(AlarmConfigInfo& record) override { m_pGot = &record; }
    void ResetConfig(bool bUseDefaults) override { m_bReset = bUseDefaults; }
    void PrepareSave() override { m_bPrepared = true; }

    const AlarmConfigInfo* m_pSet = nullptr;
    const AlarmConfigInfo* m_pGot = nullptr;
    bool m_bPersist = false;
    bool m_bReset = false;
    bool m_bPrepared = false;
};

/// Slots 3 and 4 of the sections that share one shape.
template <class Interface, class Record>
void CheckSection()
{
    CHostSection<Interface, Record> section;
    Record record;
    QCOMPARE((CallSlot<int, const Record&>(&section, 3, record)), 11);
    QCOMPARE(section.m_pSet, &record);
    CallSlot<void, Record&>(&section, 4, record);
    QCOMPARE(section.m_pGot, &record);
}

template <class Interface>
constexpr bool IsSlotInterface()
{
    return std::is_polymorphic<Interface>::value && !std::has_virtual_destructor<Interface>::value;
}

} // namespace

class tst_Boundary : public QObject
{
    Q_OBJECT

private slots:
    void ConfigServiceSlots();
    void UserManagerSlots();
    void UserRightSlot();
    void LoginManagerSlots();
    void ReservedSlotsAreHarmless();
    void RecordSectionSlots();
    void BasicSectionSlots();
    void AlarmSectionSlots();
    void SlotInterfacesHaveNoVirtualDestructor();
    void ObserverHasAVirtualDestructor();
    void SectionCodes();
    void LoginParamStartsWithTwoInts();

    void FieldsStandInTheirOrder();
    void BasicDefaults();
    void VideoDefaults();
    void PlaybackDefaults();
    void SnapshotDefaults();
    void RecordDefaults();
    void AlarmDefaults();
    void OtherDefaults();
};

void tst_Boundary::ConfigServiceSlots()
{
    CHostConfig config;
    QVERIFY(!CallSlot<IConfigSection*>(&config, 2, 8));
    QCOMPARE(config.m_nAsked, 8);
    QCOMPARE(CallSlot<int>(&config, 5), 77);
}

void tst_Boundary::UserManagerSlots()
{
    CHostUsers users;
    QCOMPARE(CallSlot<ILoginManager*>(&users, 4), &users.m_login);
    QCOMPARE(CallSlot<IUserRight*>(&users, 22), &users.m_right);
    CallSlot<void, IUserRight*>(&users, 23, &users.m_right);
    QCOMPARE(users.m_pReleased, &users.m_right);
}

void tst_Boundary::UserRightSlot()
{
    CHostRight right;
    QVERIFY(CallSlot<bool>(&right, 2, 26));
    QVERIFY(!CallSlot<bool>(&right, 2, 45));
}

void tst_Boundary::LoginManagerSlots()
{
    CHostLogin login;
    KvPluginAPI::IObserver observer;
    CallSlot<void, KvPluginAPI::IObserver*>(&login, 34, &observer);
    QCOMPARE(login.m_pAdded, &observer);
    QVERIFY(!login.m_pRemoved);
    CallSlot<void, KvPluginAPI::IObserver*>(&login, 35, &observer);
    QCOMPARE(login.m_pRemoved, &observer);
}

void tst_Boundary::ReservedSlotsAreHarmless()
{
    CHostLogin login;
    for (int nSlot = 0; nSlot < 34; ++nSlot)
    {
        CallSlot<void>(&login, nSlot);
    }
    QVERIFY(!login.m_pAdded && !login.m_pRemoved);

    CHostUsers users;
    for (int nSlot : {0, 1, 2, 3, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 20, 21})
    {
        CallSlot<void>(&users, nSlot);
    }
    QVERIFY(!users.m_pReleased);

    CHostRight right;
    CHostBasic basic;
    CHostAlarm alarm;
    CHostSection<IVideoSection, VideoConfigInfo> video;
    for (int nSlot : {0, 1})
    {
        CallSlot<void>(&right, nSlot);
    }
    for (int nSlot : {0, 1, 2})
    {
        CallSlot<void>(&basic, nSlot);
        CallSlot<void>(&alarm, nSlot);
        CallSlot<void>(&video, nSlot);
    }
    QVERIFY(!basic.m_bAutoRun && !basic.m_pSet && !alarm.m_pSet && !video.m_pSet);

    CHostConfig config;
    for (int nSlot : {0, 1, 3, 4})
    {
        CallSlot<void>(&config, nSlot);
    }
    QCOMPARE(config.m_nAsked, 0);
}

void tst_Boundary::RecordSectionSlots()
{
    CheckSection<IVideoSection, VideoConfigInfo>();
    CheckSection<IPlaybackSection, PlaybackConfigInfo>();
    CheckSection<ISnapshotSection, SnapshotConfigInfo>();
    CheckSection<IRecordSection, RecordConfigInfo>();
    CheckSection<IShortcutKeySection, ShortcutKeyConfigInfo>();
    CheckSection<ITvWallSection, TvWallConfigInfo>();
    CheckSection<ISecuritySection, SecurityConfigInfo>();
}

void tst_Boundary::BasicSectionSlots()
{
    CHostBasic section;
    BasicConfigInfo record;
    CallSlot<void>(&section, 3, true);
    QVERIFY(section.m_bAutoRun);
    QCOMPARE((CallSlot<int, const BasicConfigInfo&>(&section, 4, record)), 12);
    QCOMPARE(section.m_pSet, &record);
    CallSlot<void, BasicConfigInfo&>(&section, 5, record);
    QCOMPARE(section.m_pGot, &record);
}

void tst_Boundary::AlarmSectionSlots()
{
    CHostAlarm section;
    AlarmConfigInfo record;
    QCOMPARE((CallSlot<int, const AlarmConfigInfo&, bool>(&section, 3, record, true)), 13);
    QCOMPARE(section.m_pSet, &record);
    QVERIFY(section.m_bPersist);
    CallSlot<void, AlarmConfigInfo&>(&section, 4, record);
    QCOMPARE(section.m_pGot, &record);
    CallSlot<void>(&section, 5, true);
    QVERIFY(section.m_bReset);
    CallSlot<void>(&section, 6);
    QVERIFY(section.m_bPrepared);
}

void tst_Boundary::SlotInterfacesHaveNoVirtualDestructor()
{
    QVERIFY(IsSlotInterface<ILocalConfig>());
    QVERIFY(IsSlotInterface<IUserManager>());
    QVERIFY(IsSlotInterface<IUserRight>());
    QVERIFY(IsSlotInterface<ILoginManager>());
    QVERIFY(IsSlotInterface<IConfigSection>());
    QVERIFY(IsSlotInterface<IBasicSection>());
    QVERIFY(IsSlotInterface<IVideoSection>());
    QVERIFY(IsSlotInterface<IPlaybackSection>());
    QVERIFY(IsSlotInterface<ISnapshotSection>());
    QVERIFY(IsSlotInterface<IRecordSection>());
    QVERIFY(IsSlotInterface<IAlarmSection>());
    QVERIFY(IsSlotInterface<IShortcutKeySection>());
    QVERIFY(IsSlotInterface<ITvWallSection>());
    QVERIFY(IsSlotInterface<ISecuritySection>());
}

void tst_Boundary::ObserverHasAVirtualDestructor()
{
    QVERIFY(std::has_virtual_destructor<KvPluginAPI::IObserver>::value);
    QVERIFY((std::is_base_of<KvPluginAPI::IObserver, ILoginManagerObserver>::value));
}

void tst_Boundary::SectionCodes()
{
    const QList<int> listCodes = {SectionBasic, SectionVideo,       SectionPlayback, SectionSnapshot, SectionRecord,
                                  SectionAlarm, SectionShortcutKey, SectionTvWall,   SectionSecurity};
    QCOMPARE(listCodes, (QList<int>{1, 2, 3, 4, 5, 6, 7, 8, 9}));
}

void tst_Boundary::LoginParamStartsWithTwoInts()
{
    using Param = ILoginManagerObserver::Param;
    QCOMPARE(offsetof(Param, nState), std::size_t(0));
    QCOMPARE(offsetof(Param, nSubState), std::size_t(4));
    QVERIFY((std::is_same<decltype(Param::nState), std::int32_t>::value));
    QVERIFY((std::is_same<decltype(Param::nSubState), std::int32_t>::value));
}

void tst_Boundary::FieldsStandInTheirOrder()
{
    const auto ascending = [](std::initializer_list<std::size_t> offsets) {
        return std::adjacent_find(offsets.begin(), offsets.end(), std::greater_equal<>()) == offsets.end();
    };
#define AT(field) std::size_t(reinterpret_cast<const char*>(&record.field) - reinterpret_cast<const char*>(&record))
    {
        const BasicConfigInfo record{};
        QVERIFY(ascending({AT(hostOwned1),     AT(hostOwned2),    AT(hostOwned3),   AT(skin),
                           AT(hostOwned5),     AT(hostOwned6),    AT(hostOwned7),   AT(timeSync),
                           AT(hostOwned9),     AT(hostOwned10),   AT(autoLogin),    AT(hostOwned12),
                           AT(adaptiveTalk),   AT(hostOwned14),   AT(hostOwned15),  AT(autoRun),
                           AT(hostOwned17),    AT(hostOwned18),   AT(hostOwned19),  AT(hostOwned20),
                           AT(showDeviceNode), AT(hostOwned22),   AT(clientSize),   AT(restoreLiveView),
                           AT(hostOwned25),    AT(liveThumbnail), AT(showTimeZone), AT(hostOwned28)}));
    }
    {
        const VideoConfigInfo record{};
        QVERIFY(ascending({AT(nReserved0),           AT(bReserved1),          AT(nReserved2),
                           AT(bReserved3),           AT(nPlayMode),           AT(nVideoBufferTime),
                           AT(bDblClickMainStream),  AT(bReserved4),          AT(bReserved5),
                           AT(nDecodeMode),          AT(nDefaultSplit),       AT(nSubStreamSplitThreshold),
                           AT(nInstantPlaybackTime), AT(bInstantCustom),      AT(nInstantTimeUnit),
                           AT(bProcessDecode),       AT(bGpuDecodeSupported), AT(nSilentTime),
                           AT(nCpuPromptThreshold),  AT(nDisplayScale)}));
    }
    {
        const PlaybackConfigInfo record{};
        QVERIFY(ascending({AT(bReserved0), AT(nReserved1), AT(bReserved2), AT(bLargePicAdjustment), AT(strReserved3),
                           AT(nDevRecordStream)}));
    }
    {
        const SnapshotConfigInfo record{};
        QVERIFY(ascending({AT(reserved), AT(imageFormat), AT(continuousCount), AT(interval), AT(picturePath),
                           AT(hostString1), AT(hostString2), AT(hostString3), AT(nameFormat)}));
    }
    {
        const RecordConfigInfo record{};
        QVERIFY(
            ascending({AT(hostOwned1), AT(maxFileSize), AT(recordPath), AT(hostOwned4), AT(hostOwned5), AT(nameFormat),
                       AT(hostOwned7), AT(hostOwned8), AT(hostOwned9), AT(hostOwned10), AT(hostOwned11)}));
    }
    {
        const AlarmConfigInfo record{};
        QVERIFY(ascending({AT(alarmSound), AT(loopSound), AT(mapFlash), AT(linkVideo), AT(openVideoType),
                           AT(flashCategories), AT(alarmSounds)}));
    }
    {
        const AlarmSoundInfo record{};
        QVERIFY(ascending({AT(alarmType), AT(defaultSound), AT(customSound), AT(hostOwned4), AT(soundChanged)}));
    }
#undef AT
}

void tst_Boundary::BasicDefaults()
{
    const BasicConfigInfo record;
    QCOMPARE(record.hostOwned1, 4u);
    QCOMPARE(record.hostOwned2, 1000u);
    QCOMPARE(record.hostOwned3, 12u);
    QCOMPARE(record.skin, 1);
    QCOMPARE(record.hostOwned5, false);
    QCOMPARE(record.hostOwned6, 4u);
    QCOMPARE(record.hostOwned7, true);
    QCOMPARE(record.timeSync, false);
    QCOMPARE(record.hostOwned9, false);
    QCOMPARE(record.hostOwned10, false);
    QCOMPARE(record.autoLogin, false);
    QCOMPARE(record.hostOwned12, false);
    QCOMPARE(record.adaptiveTalk, true);
    QCOMPARE(record.hostOwned14, false);
    QCOMPARE(record.hostOwned15, 0u);
    QCOMPARE(record.autoRun, false);
    QCOMPARE(record.hostOwned17, true);
    QCOMPARE(record.hostOwned18, false);
    QCOMPARE(record.hostOwned19, 1u);
    QCOMPARE(record.hostOwned20, false);
    QCOMPARE(record.showDeviceNode, 1);
    QCOMPARE(record.hostOwned22, true);
    QCOMPARE(record.clientSize, 2);
    QCOMPARE(record.restoreLiveView, false);
    QCOMPARE(record.hostOwned25, false);
    QCOMPARE(record.liveThumbnail, true);
    QCOMPARE(record.showTimeZone, false);
    QCOMPARE(record.hostOwned28, -1);
}

void tst_Boundary::VideoDefaults()
{
    const VideoConfigInfo record;
    QCOMPARE(record.nReserved0, 1);
    QCOMPARE(record.bReserved1, false);
    QCOMPARE(record.nReserved2, 1);
    QCOMPARE(record.bReserved3, true);
    QCOMPARE(record.nPlayMode, 3);
    QCOMPARE(record.nVideoBufferTime, 1500);
    QCOMPARE(record.bDblClickMainStream, false);
    QCOMPARE(record.bReserved4, true);
    QCOMPARE(record.bReserved5, true);
    QCOMPARE(record.nDecodeMode, 0);
    QCOMPARE(record.nDefaultSplit, 4);
    QCOMPARE(record.nSubStreamSplitThreshold, 9);
    QCOMPARE(record.nInstantPlaybackTime, 30);
    QCOMPARE(record.bInstantCustom, false);
    QCOMPARE(record.nInstantTimeUnit, 2);
    QCOMPARE(record.bProcessDecode, true);
    QCOMPARE(record.bGpuDecodeSupported, true);
    QCOMPARE(record.nSilentTime, 0);
    QCOMPARE(record.nCpuPromptThreshold, 80);
    QCOMPARE(record.nDisplayScale, 1);
}

void tst_Boundary::PlaybackDefaults()
{
    const PlaybackConfigInfo record;
    QCOMPARE(record.bReserved0, false);
    QCOMPARE(record.nReserved1, 15);
    QCOMPARE(record.bReserved2, false);
    QCOMPARE(record.bLargePicAdjustment, false);
    QVERIFY(record.strReserved3.empty());
    QCOMPARE(record.nDevRecordStream, 0);
}

void tst_Boundary::SnapshotDefaults()
{
    const SnapshotConfigInfo record;
    QCOMPARE(record.reserved, false);
    QCOMPARE(record.imageFormat, 1);
    QCOMPARE(record.continuousCount, 3);
    QCOMPARE(record.interval, 2);
    QVERIFY(record.picturePath.empty());
    QVERIFY(record.hostString1.empty() && record.hostString2.empty() && record.hostString3.empty());
    QCOMPARE(record.nameFormat, 3);
}

void tst_Boundary::RecordDefaults()
{
    const RecordConfigInfo record;
    QCOMPARE(record.hostOwned1, 30);
    QCOMPARE(record.maxFileSize, 1024);
    QVERIFY(record.recordPath.empty());
    QCOMPARE(record.hostOwned4, 20);
    QCOMPARE(record.hostOwned5, 0);
    QCOMPARE(record.nameFormat, 3);
    QCOMPARE(record.hostOwned7, true);
    QCOMPARE(record.hostOwned8, 12);
    QCOMPARE(record.hostOwned9, 12);
    QCOMPARE(record.hostOwned10, 6);
    QCOMPARE(record.hostOwned11, 3);
}

void tst_Boundary::AlarmDefaults()
{
    const AlarmConfigInfo record;
    QCOMPARE(record.alarmSound, true);
    QCOMPARE(record.loopSound, false);
    QCOMPARE(record.mapFlash, true);
    QCOMPARE(record.linkVideo, true);
    QCOMPARE(record.openVideoType, 0);
    QVERIFY(record.flashCategories.empty());
    QVERIFY(record.alarmSounds.empty());

    const AlarmSoundInfo sound;
    QCOMPARE(sound.alarmType, 0);
    QVERIFY(sound.defaultSound.empty() && sound.customSound.empty());
    QCOMPARE(int(sound.hostOwned4), 0);
    QCOMPARE(sound.soundChanged, false);
}

void tst_Boundary::OtherDefaults()
{
    QCOMPARE(ShortcutKeyConfigInfo().pcKeyboard, true);
    QCOMPARE(SecurityConfigInfo().encryptTransmission, false);
    const TvWallConfigInfo wall;
    QCOMPARE(wall.nSubStreamSplitThreshold, 9);
    QCOMPARE(wall.nBindMode, 1);
    QCOMPARE(wall.bDblClickMainStream, false);
    QCOMPARE(wall.nDefaultStreamType, 1);
    QCOMPARE(wall.nStayTime, 15);
}

QTEST_APPLESS_MAIN(tst_Boundary)

#include "tst_Boundary.moc"
