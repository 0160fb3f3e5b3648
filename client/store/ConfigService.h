#pragma once

#include "Sections.h"
#include "SettingsDocument.h"

#include <LocalConfig/interfaces/ILocalConfig.h>

#include <QCoreApplication>
#include <QLockFile>
#include <QStringList>

#include <functional>

namespace UICommonMdl
{
class CAlarmType;
}

namespace LocalConfigClient
{

/// The client's configuration service: nine sections, kept in one document of the data folder.
///
/// A save is all or nothing. The document is replaced as a whole, the one before it is kept beside it as the last good
/// generation, and a lock keeps a second client of the same folder from writing. A damaged document is set aside under
/// another name; one that cannot be read is never overwritten.
class ConfigService : public LocalConfigLogical::ILocalConfig
{
    Q_DECLARE_TR_FUNCTIONS(ConfigService)

public:
    /// Writes or removes the system's auto-start entry; returns a CErrorCode.
    using AutoStartWriter = std::function<int(bool bEnable)>;

    enum Mode
    {
        ReadOnly, ///< looks only; takes no lock, sets nothing aside, refuses to save
        ReadWrite
    };

    /// Loads the document; GetProblems tells what was wrong with it.
    ConfigService(const QString& strFolder, Mode eMode, AutoStartWriter autoStartWriter = {});
    ~ConfigService();

    LocalConfigLogical::IConfigSection* GetSection(int nSectionType) override;

    /// \return CErrorCode::Success, or DiskFull, NoPermission, FolderMissing, IoError, Locked, Unreadable,
    ///         ChangedElsewhere; the sections keep their records in any case
    int SaveAll() override;

    /// Whether the records are those of the document, and not only stand in for one that cannot be read.
    bool IsReadable() const { return m_eState == Usable; }

    /// Whether a file is one that the client keeps in the data folder, and so no place for anything else.
    bool IsOwnFile(const QString& strPath) const;

    /// Drops what the sections have taken but nobody has saved.
    void Revert();

    /// Adds entries for the alarm categories and types of a catalogue that the records do not know yet. They are
    /// written with the next save.
    void SeedAlarms(const UICommonMdl::CAlarmType& catalogue);

    /// The rights that the document takes from the user.
    QSet<int> GetMissingRights() const { return m_document.GetMissingRights(); }

    /// How often a save was tried.
    int GetSaveAttempts() const { return m_nSaveAttempts; }

    /// Replaces all records by those of a document and saves. Keys of either document that this version does not know
    /// survive; where both have one, the imported one counts.
    /// \return as SaveAll, or Damaged when the document cannot be understood, in which case nothing has changed
    int Import(const QByteArray& content, QString* pError);

    /// The current records as a document.
    QByteArray Export() const;

    /// What is stored, as far as this process knows.
    const Settings& GetStored() const { return m_stored; }

    /// What is wrong with the data folder, one translated line each.
    const QStringList& GetProblems() const { return m_listProblems; }

    /// Called after a successful save, and for every problem that turns up later.
    void SetSavedHandler(std::function<void()> handler) { m_savedHandler = std::move(handler); }
    void SetProblemHandler(std::function<void(const QString&)> handler) { m_problemHandler = std::move(handler); }

private:
    enum State
    {
        Usable,
        Unreadable ///< there is a document that must not be overwritten
    };

    void Load();
    bool LoadLastGood();
    bool SetAside();
    int TakeLock();
    int Save(const SettingsDocument* pImported);
    int WriteGenerations(const SettingsDocument* pImported);
    int TakeOverFromDisk(QByteArray& onDisk);
    QByteArray Compose(const SettingsDocument* pImported);
    void ApplyAutoStart(bool bBefore);
    void Report(const QString& strProblem);
    QString GetPath(const char* pszName) const;

    QString m_strFolder;
    Mode m_eMode;
    AutoStartWriter m_autoStartWriter;
    QLockFile m_lock;
    State m_eState = Usable;
    bool m_bLoadedWithoutLock = false; // so that somebody else may have written since
    int m_nSaveAttempts = 0;
    SettingsDocument m_document;
    QByteArray m_onDisk; // the document as it was last read or written
    Settings m_stored;
    Settings m_working;
    QStringList m_listProblems;
    std::function<void()> m_savedHandler;
    std::function<void(const QString&)> m_problemHandler;

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
