#pragma once

#include <UICommonModule/UICommonModuleExport.h>

#include <QByteArray>
#include <QFile>
#include <QString>

namespace UICommonMdl
{

/// A lock of the operating system's, on an open file: it goes with its process, whatever way that ends. The file itself
/// stays, and what it says is for people alone. A second lock on the same file is refused within one process, too, and
/// where folders can be locked, so is one on another file of that folder: a folder has one lock.
class UICOMMONMODULE_EXPORT CFileLock
{
public:
    /// Touches nothing yet.
    explicit CFileLock(const QString& strFile);
    ~CFileLock();
    CFileLock(const CFileLock&) = delete;
    CFileLock& operator=(const CFileLock&) = delete;

    /// Takes the lock, at once or not at all. Taking it again does nothing.
    /// \param note  what the file shall say while the lock is held
    /// \return CErrorCode::Success, Locked, or what keeps the file from being made: DiskFull, NoPermission,
    ///         FolderMissing, NotAFile, IoError
    int Take(const QByteArray& note);

    /// False, too, when somebody has removed or replaced the file, since that lock keeps nobody out.
    bool IsHeld() const;

    /// What the file says; empty when nobody holds the lock or nothing could be read.
    QByteArray GetNote() const;

private:
    void Release();

    QString m_strFile;
    QFile m_file;   // open while the lock is held
    QFile m_folder; // and its folder, where folders can be locked
};

} // namespace UICommonMdl
