#pragma once

#include "FolderLock.h"
#include "SettingsDocument.h"

#include <QCoreApplication>
#include <QStringList>

#include <functional>

namespace LocalConfigClient
{

/// The settings document on the disk, with the last good generation beside it.
///
/// A save is all or nothing. The document is replaced as a whole, the one before it is kept as the last good
/// generation, and a lock keeps a second client of the same folder from writing. A damaged document is set aside under
/// another name; one that cannot be read, or whose meaning is not known here, is never overwritten.
class SettingsFile
{
    Q_DECLARE_TR_FUNCTIONS(SettingsFile)

public:
    enum Mode
    {
        ReadOnly, ///< looks only; takes no lock, sets nothing aside, refuses to save
        ReadWrite
    };

    /// Called with every problem that turns up after loading, a translated line each.
    using ProblemHandler = std::function<void(const QString&)>;

    /// Loads the document; GetProblems tells what was wrong with it.
    SettingsFile(const QString& strFolder, Mode eMode);

    /// What was read, or what stands in for it: the last good generation, or the defaults.
    const SettingsDocument& GetDocument() const { return m_document; }

    /// Whether the document only stands in for settings that cannot be had, so that nobody must take it for them.
    bool StandsIn() const { return m_eState != Usable || m_bStandsIn; }

    /// What is wrong with the data folder, one translated line each.
    const QStringList& GetProblems() const { return m_listProblems; }
    void SetProblemHandler(ProblemHandler handler) { m_problemHandler = std::move(handler); }

    /// Adds a problem and tells it.
    void Report(const QString& strProblem);

    /// Stores settings.
    /// \param pImported  where not null, a document whose unknown keys are stored, too
    /// \return CErrorCode::Success; NotYetSafe when they are stored, but a power cut may still undo that; else
    ///         DiskFull, NoPermission, InUse, FolderMissing, IoError, NotAFile, Locked, Unreadable,
    ///         ChangedElsewhere, and nothing is stored
    int Save(const Settings& settings, const SettingsDocument* pImported);

    /// What keeps changes from being saved, as far as it is known; it says more than the code of a save. Empty when
    /// nothing does, or nothing more is known.
    const QString& GetHindrance() const { return m_strHindrance; }

    /// Whether a file is one that the client keeps in the data folder, and so no place for anything else, however it is
    /// written. Links are followed, those to nothing included.
    bool IsOwnFile(const QString& strPath) const;

private:
    enum State
    {
        Usable,
        Unreadable ///< there is a document that must not be overwritten
    };

    enum LastGood
    {
        NoGeneration,
        GoodGeneration,
        UnusableGeneration
    };

    int TakeLock();
    QString DescribeLockFailure(int nCode) const;
    static QString DescribeUnreadable(int nCode);
    static QString DescribeNewer();
    void RemoveLeftovers() const;
    void Load();
    void LoadMissing();
    void LoadDamaged(const QString& strError);
    LastGood LoadLastGood();
    int SetAside(const QByteArray& damaged);
    int PutInPlace(const QByteArray& content);
    QByteArray ReadLastGood() const;
    QString GetFreeDamagedName() const;
    int TakeOverFromDisk(QByteArray& onDisk);
    int WriteGenerations(const QByteArray& onDisk, const QByteArray& content);
    QString GetPath(const char* pszName) const;

    QString m_strFolder;
    Mode m_eMode;
    FolderLock m_lock;
    State m_eState = Usable;
    bool m_bStandsIn = false;
    bool m_bLoadedWithoutLock = false; // so that somebody else may have written since
    bool m_bNotYetSafe = true;         // what is there may be lost with the power, as far as this process knows
    SettingsDocument m_document;
    QByteArray m_onDisk; // the document as it was last read or written
    bool m_bOnDiskGood = false;
    QString m_strLockProblem; // why there was no lock at first; a problem until there is one
    QStringList m_listProblems;
    QString m_strHindrance;
    ProblemHandler m_problemHandler;
};

} // namespace LocalConfigClient
