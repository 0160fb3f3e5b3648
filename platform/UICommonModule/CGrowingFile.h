#pragma once

#include <UICommonModule/UICommonModuleExport.h>

#include <QByteArray>
#include <QFile>
#include <QString>

namespace UICommonMdl
{

/// A new file that grows piece by piece, such as a recording. What has been appended stays when a later piece fails.
/// For one thread at a time.
class UICOMMONMODULE_EXPORT CGrowingFile
{
public:
    /// Makes a folder and the folders above it where they are missing.
    /// \return CErrorCode::Success, or DiskFull, NoPermission, FolderMissing, IoError
    static int MakeFolder(const QString& strFolder);

    /// Makes the file, and closes the one before. A file of that name is never touched.
    /// \return as MakeFolder; FileExists where there is such a file, or a link of that name
    int Create(const QString& strFile);

    /// \return as MakeFolder; IoError without a file
    int Append(const QByteArray& content);

    /// Closes the file, and removes it when nothing has been appended.
    /// \return CErrorCode::Success or IoError
    int RemoveIfEmpty();

    /// Bytes that have been appended since Create.
    qint64 GetSize() const { return m_nSize; }

    /// Path of the file; empty without one.
    QString GetPath() const { return m_strPath; }

private:
    QFile m_file;
    QString m_strPath;
    qint64 m_nSize = 0;
};

} // namespace UICommonMdl
