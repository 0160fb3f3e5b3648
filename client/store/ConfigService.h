#pragma once

#include "Sections.h"
#include "SettingsFile.h"

#include <LocalConfig/interfaces/ILocalConfig.h>

#include <QCoreApplication>

#include <functional>

namespace UICommonMdl
{
class CAlarmType;
}

namespace LocalConfigClient
{

/// The client's configuration service: nine sections, kept in one document of the data folder, see SettingsFile. A save
/// is all or nothing.
class ConfigService : public LocalConfigLogical::ILocalConfig
{
    Q_DECLARE_TR_FUNCTIONS(ConfigService)

public:
    /// Writes or removes the system's auto-start entry; returns a CErrorCode.
    using AutoStartWriter = std::function<int(bool bEnable)>;

    /// Loads the document; GetFile tells what was wrong with it.
    ConfigService(const QString& strFolder, SettingsFile::Mode eMode, AutoStartWriter autoStartWriter = {});

    LocalConfigLogical::IConfigSection* GetSection(int nSectionType) override;

    /// \return as SettingsFile::Save; the sections keep their records in any case
    int SaveAll() override;

    /// The document on the disk.
    const SettingsFile& GetFile() const { return m_file; }

    /// Drops what the sections have taken but nobody has saved.
    void Revert();

    /// Adds entries for the alarm categories and types of a catalogue that the records do not know yet. They are
    /// written with the next save.
    void SeedAlarms(const UICommonMdl::CAlarmType& catalogue);

    /// The rights that the document takes from the user.
    MissingRights GetMissingRights() const { return m_file.GetDocument().GetMissingRights(); }

    /// How often a save was tried.
    int GetSaveAttempts() const { return m_nSaveAttempts; }

    /// Replaces all records by those of a document and saves. Keys of either document that this version does not know
    /// survive; where both have one, the imported one counts.
    /// \return as SaveAll, or Damaged when the document cannot be understood, in which case nothing has changed
    int Import(const QByteArray& content, QString* pError);

    /// Replaces all records and saves.
    /// \return as SaveAll; the records stay what they were when nothing is stored
    int Replace(const Settings& settings) { return Replace(settings, nullptr); }

    /// The current records as a document.
    QByteArray Export() const;

    /// What is stored, as far as this process knows.
    const Settings& GetStored() const { return m_stored; }

    /// Called after a successful save, and for every problem that turns up later.
    void SetSavedHandler(std::function<void()> handler) { m_savedHandler = std::move(handler); }
    void SetProblemHandler(SettingsFile::ProblemHandler handler) { m_file.SetProblemHandler(std::move(handler)); }

private:
    int Replace(const Settings& settings, const SettingsDocument* pImported);
    int Save(const SettingsDocument* pImported);
    void ApplyAutoStart(bool bBefore);

    SettingsFile m_file;
    AutoStartWriter m_autoStartWriter;
    int m_nSaveAttempts = 0;
    Settings m_stored;
    Settings m_working;
    std::function<void()> m_savedHandler;

    BasicSection m_basic{m_working.basic};
    RecordSection<LocalConfigLogical::IVideoSection, LocalConfigLogical::VideoConfigInfo> m_video{m_working.video};
    RecordSection<LocalConfigLogical::IPlaybackSection, LocalConfigLogical::PlaybackConfigInfo> m_playback{
        m_working.playback};
    RecordSection<LocalConfigLogical::ISnapshotSection, LocalConfigLogical::SnapshotConfigInfo> m_snapshot{
        m_working.snapshot};
    RecordSection<LocalConfigLogical::IRecordSection, LocalConfigLogical::RecordConfigInfo> m_record{m_working.record};
    AlarmSection m_alarm{m_working.alarm,
                         [this](const LocalConfigLogical::AlarmConfigInfo& record) { m_stored.alarm = record; }};
    RecordSection<LocalConfigLogical::IShortcutKeySection, LocalConfigLogical::ShortcutKeyConfigInfo> m_shortcutKey{
        m_working.shortcutKey};
    RecordSection<LocalConfigLogical::ITvWallSection, LocalConfigLogical::TvWallConfigInfo> m_tvWall{m_working.tvWall};
    RecordSection<LocalConfigLogical::ISecuritySection, LocalConfigLogical::SecurityConfigInfo> m_security{
        m_working.security};
};

} // namespace LocalConfigClient
