// Any record a host may hold goes through each page: what the page does not edit comes back as it was.

#include "support/PageFixture.h"
#include "support/RandomRecords.h"

#include <LocalConfig/pages/CAlarmConfig.h>
#include <LocalConfig/pages/CBasicConfig.h>
#include <LocalConfig/pages/CCaptureConfig.h>
#include <LocalConfig/pages/CPlaybackConfig.h>
#include <LocalConfig/pages/CRecordConfig.h>
#include <LocalConfig/pages/CSecurityConfig.h>
#include <LocalConfig/pages/CShortcutKeyConfig.h>
#include <LocalConfig/pages/CTvWallConfig.h>
#include <LocalConfig/pages/CVideoConfig.h>

#include <QLoggingCategory>
#include <QTemporaryDir>

#include <vector>

using namespace LocalConfigLogical;

namespace
{

constexpr int g_nRoundsToPicture = 20;

template <class Record>
QStringList ChangedFields(const Record& before, const Record& after);

template <class Value>
bool IsEqual(const Value& left, const Value& right)
{
    return left == right;
}

bool IsEqual(const AlarmSoundInfo& left, const AlarmSoundInfo& right)
{
    return ChangedFields(left, right).isEmpty();
}

template <class Mapped>
bool IsEqual(const std::map<std::int32_t, Mapped>& left, const std::map<std::int32_t, Mapped>& right)
{
    return left.size() == right.size() &&
           std::equal(left.begin(), left.end(), right.begin(), [](const auto& one, const auto& other) {
               return one.first == other.first && IsEqual(one.second, other.second);
           });
}

/// The names of the fields in which two records differ.
template <class Record>
QStringList ChangedFields(const Record& before, const Record& after)
{
    std::vector<const void*> vecBefore;
    LocalConfigClient::VisitFields(before,
                                   [&](const char* /*pszName*/, const auto& field) { vecBefore.push_back(&field); });
    QStringList listNames;
    auto it = vecBefore.cbegin();
    LocalConfigClient::VisitFields(after, [&](const char* pszName, const auto& field) {
        if (!IsEqual(*static_cast<decltype(&field)>(*it++), field))
        {
            listNames += QString::fromLatin1(pszName);
        }
    });
    return listNames;
}

QStringList Without(QStringList listNames, const QStringList& listTaken)
{
    for (const QString& strName : listTaken)
    {
        listNames.removeAll(strName);
    }
    return listNames;
}

/// What the page may have done to the maps of sounds and categories: nothing, or restored their defaults.
bool HasDefaultMaps(const AlarmConfigInfo& before, const AlarmConfigInfo& after)
{
    AlarmConfigInfo expected = before;
    for (auto& sound : expected.alarmSounds)
    {
        sound.second.customSound.clear();
        sound.second.soundChanged = true;
    }
    for (auto& category : expected.flashCategories)
    {
        category.second = category.second || (category.first != 1 && category.first != 6);
    }
    return IsEqual(expected.alarmSounds, after.alarmSounds) && IsEqual(expected.flashCategories, after.flashCategories);
}

} // namespace

class tst_PagesRandom : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();

    void Basic();
    void Video();
    void Playback();
    void Snapshot();
    void Record();
    void Alarm();
    void ShortcutKey();
    void TvWall();
    void Security();

private:
    /// \param listEdited  the fields that the page edits
    /// \param listLoaded  those that it may write on loading already
    template <class Fixture>
    void Rounds(const QStringList& listEdited, const QStringList& listLoaded = {});
    template <class Fixture>
    void Round(Fixture& fixture, const QStringList& listEdited, const QStringList& listLoaded);

    CChance m_chance;
    CRandomRecords m_records{m_chance};
    QTemporaryDir m_folder;
    int m_nSaved = 0;
};

void tst_PagesRandom::initTestCase()
{
    QLoggingCategory::setFilterRules("qt.svg=false"); // there are no pictures for most numbers of windows
    QVERIFY(QDir::setCurrent(m_folder.path()));
}

void tst_PagesRandom::cleanupTestCase()
{
    QVERIFY(QDir::setCurrent("/"));
}

template <class Fixture>
void tst_PagesRandom::Rounds(const QStringList& listEdited, const QStringList& listLoaded)
{
    Fixture fixture;
    fixture.Load();
    m_nSaved = 0;
    const int nRounds = Repetitions(300, 30000);
    for (int nRound = 0; nRound < nRounds && !QTest::currentTestFailed(); ++nRound)
    {
        Round(fixture, listEdited, listLoaded);
        if (nRound % g_nRoundsToPicture == 0)
        {
            fixture.page.grab();
            QCoreApplication::processEvents();
        }
        fixture.journal.Take();
    }
    Tell(QString("%1: %2 records, %3 saved, the others refused")
             .arg(QTest::currentTestFunction())
             .arg(nRounds)
             .arg(m_nSaved));
    QVERIFY(m_nSaved > 0);
}

template <class Fixture>
void tst_PagesRandom::Round(Fixture& fixture, const QStringList& listEdited, const QStringList& listLoaded)
{
    LocalConfig::IConfigPage& page = fixture.page;
    auto& stored = fixture.section.m_record;
    using Record = std::decay_t<decltype(stored)>;

    const auto before = m_records.Make<Record>();
    stored = before;
    page.ReloadConfig(false);
    bool bDefaults = false;
    for (int n = m_chance.Below(4); n > 0; --n)
    {
        if (m_chance.OneIn(2))
        {
            page.SetControlsEnabled(m_chance.OneIn(2));
        }
        else
        {
            bDefaults = m_chance.OneIn(2);
            page.ReloadConfig(bDefaults);
        }
    }
    QCOMPARE(Without(ChangedFields(before, stored), listLoaded).join(' '), QString());

    const auto loaded = stored;
    const bool bSaved = page.SaveConfig() == 0;
    m_nSaved += bSaved ? 1 : 0;
    if constexpr (std::is_same_v<Record, AlarmConfigInfo>)
    {
        QVERIFY(bDefaults ? HasDefaultMaps(before, stored)
                          : IsEqual(before.alarmSounds, stored.alarmSounds) &&
                                IsEqual(before.flashCategories, stored.flashCategories));
    }
    QCOMPARE(Without(ChangedFields(loaded, stored), bSaved ? listEdited : QStringList()).join(' '), QString());

    // What has been saved once is shown as it is, so that saving it again changes nothing.
    if (bSaved)
    {
        const auto saved = stored;
        page.ReloadConfig(false);
        page.SaveConfig();
        QCOMPARE(ChangedFields(saved, stored).join(' '), QString());
    }
}

void tst_PagesRandom::Basic()
{
    Rounds<SPageFixture<LocalConfig::CBasicConfig, IBasicSection, BasicConfigInfo, CFakeBasicSection>>(
        {"skin", "timeSync", "autoLogin", "adaptiveTalk", "autoRun", "showDeviceNode", "clientSize", "restoreLiveView",
         "liveThumbnail", "showTimeZone"});
}

void tst_PagesRandom::Video()
{
    Rounds<SPageFixture<LocalConfig::CVideoConfig, IVideoSection, VideoConfigInfo>>(
        {"nPlayMode", "nVideoBufferTime", "bDblClickMainStream", "nDecodeMode", "nDefaultSplit",
         "nSubStreamSplitThreshold", "nInstantPlaybackTime", "bInstantCustom", "nInstantTimeUnit", "nSilentTime",
         "nCpuPromptThreshold", "nDisplayScale"});
}

void tst_PagesRandom::Playback()
{
    Rounds<SPageFixture<LocalConfig::CPlaybackConfig, IPlaybackSection, PlaybackConfigInfo>>(
        {"bLargePicAdjustment", "nDevRecordStream"});
}

void tst_PagesRandom::Snapshot()
{
    Rounds<SPageFixture<LocalConfig::CCaptureConfig, ISnapshotSection, SnapshotConfigInfo>>(
        {"imageFormat", "continuousCount", "interval", "picturePath", "nameFormat"}, {"picturePath"});
}

void tst_PagesRandom::Record()
{
    Rounds<SPageFixture<LocalConfig::CRecordConfig, IRecordSection, RecordConfigInfo>>(
        {"maxFileSize", "recordPath", "nameFormat"});
}

void tst_PagesRandom::Alarm()
{
    Rounds<SPageFixture<LocalConfig::CAlarmConfig, IAlarmSection, AlarmConfigInfo, CFakeAlarmSection>>(
        {"alarmSound", "loopSound", "mapFlash", "linkVideo", "openVideoType", "flashCategories", "alarmSounds"});
}

void tst_PagesRandom::ShortcutKey()
{
    Rounds<SPageFixture<LocalConfig::CShortcutKeyConfig, IShortcutKeySection, ShortcutKeyConfigInfo>>({"pcKeyboard"});
}

void tst_PagesRandom::TvWall()
{
    Rounds<SPageFixture<LocalConfig::CTvWallConfig, ITvWallSection, TvWallConfigInfo>>(
        {"nSubStreamSplitThreshold", "nBindMode", "bDblClickMainStream", "nDefaultStreamType", "nStayTime"});
}

void tst_PagesRandom::Security()
{
    Rounds<SPageFixture<LocalConfig::CSecurityConfig, ISecuritySection, SecurityConfigInfo>>({"encryptTransmission"});
}

PROOF_MAIN(tst_PagesRandom)

#include "tst_PagesRandom.moc"
