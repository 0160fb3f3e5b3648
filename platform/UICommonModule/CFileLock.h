#pragma once

#include <UICommonModule/UICommonModuleExport.h>

#include <QByteArray>
#include <QFile>
#include <QString>

namespace UICommonMdl
{

/// A lock of the operating system's, on an open file: it goes with its process, whatever way that ends. The file itself
/// stays, and what it says is for people alone. A second lock on the same file is refused within one process, too.
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

    bool IsHeld() const { return m_file.isOpen(); }

    /// What the file says; empty when nobody holds the lock or nothing could be read.
    QByteArray GetNote() const;

private:
    QString m_strFile;
    QFile m_file; // open while the lock is held
};

} // namespace UICommonMdl
