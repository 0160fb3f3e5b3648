#include "CAtomicFile.h"

#include "CErrorCode.h"
#include "FileSystem.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace UICommonMdl
{

int CAtomicFile::Write(const QString& strFile, const QByteArray& content)
{
    const QFileInfo info(strFile);
    if (info.exists() && !info.isFile())
    {
        return CErrorCode::IoError;
    }

    // Unbuffered, so that the system's error is the one of the call that failed.
    QSaveFile file(strFile);
    ClearSystemError();
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
    {
        return GetSystemError();
    }
    const int nWritten = WriteAll(file, content);
    if (nWritten != CErrorCode::Success)
    {
        file.cancelWriting();
        return nWritten;
    }
    if (!FlushFile(file.handle()))
    {
        const int nError = GetSystemError();
        file.cancelWriting();
        return nError;
    }
    if (!file.commit())
    {
        return GetSystemError();
    }
    // The new file is complete; only its name may not be on the disk yet.
    return FlushFolder(QFileInfo(QFileInfo(strFile).canonicalFilePath()).path()) ? int(CErrorCode::Success)
                                                                                 : GetSystemError();
}

int CAtomicFile::Read(const QString& strFile, QByteArray& content)
{
    content.clear();
    const QFileInfo info(strFile);
    if (!info.exists())
    {
        // A file behind a folder that may not be entered is not a missing one.
        return info.isSymLink() || CanSeeInto(info.absolutePath()) ? CErrorCode::FileMissing : CErrorCode::NoPermission;
    }
    if (!info.isFile())
    {
        return CErrorCode::Unreadable;
    }
    QFile file(strFile);
    ClearSystemError();
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
    {
        const int nError = GetSystemError();
        return nError == CErrorCode::FolderMissing ? int(CErrorCode::FileMissing) : nError; // it has gone meanwhile
    }
    const QByteArray read = file.readAll();
    if (file.error() != QFileDevice::NoError)
    {
        return GetSystemError();
    }
    content = read;
    return CErrorCode::Success;
}

int CAtomicFile::Remove(const QString& strFile)
{
    if (!QFile::exists(strFile))
    {
        return CErrorCode::Success;
    }
    ClearSystemError();
    return QFile::remove(strFile) ? int(CErrorCode::Success) : GetSystemError();
}

} // namespace UICommonMdl
