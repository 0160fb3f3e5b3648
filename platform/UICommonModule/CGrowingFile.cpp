#include "CGrowingFile.h"

#include "CErrorCode.h"
#include "FileSystem.h"

#include <QDir>
#include <QFileInfo>

namespace UICommonMdl
{

int CGrowingFile::MakeFolder(const QString& strFolder)
{
    const QFileInfo folder(QDir(strFolder).absolutePath());
    if (folder.isDir())
    {
        return CErrorCode::Success;
    }
    // One after the other, so that the system's error is the one of the folder that cannot be made.
    const QString strParent = folder.path();
    const int nParent =
        folder.isRoot() || QFileInfo::exists(strParent) ? int(CErrorCode::Success) : MakeFolder(strParent);
    if (nParent != CErrorCode::Success)
    {
        return nParent;
    }
    ClearSystemError();
    if (QDir().mkdir(folder.filePath()))
    {
        return CErrorCode::Success;
    }
    const int nError = GetSystemError();
    return QFileInfo(folder.filePath()).isDir() ? int(CErrorCode::Success) : nError; // somebody else has made it
}

int CGrowingFile::Create(const QString& strFile)
{
    m_file.close();
    m_nSize = 0;
    const int nResult = OpenNew(strFile, m_file);
    m_strPath = nResult == CErrorCode::Success ? strFile : QString();
    return nResult;
}

int CGrowingFile::RemoveIfEmpty()
{
    const bool bEmpty = m_file.isOpen() && m_nSize == 0;
    m_file.close();
    return !bEmpty || QFile::remove(m_strPath) ? CErrorCode::Success : CErrorCode::IoError;
}

int CGrowingFile::Append(const QByteArray& content)
{
    if (!m_file.isOpen())
    {
        return CErrorCode::IoError;
    }
    const int nResult = WriteAll(m_file, content);
    m_nSize = m_file.pos();
    return nResult;
}

} // namespace UICommonMdl
