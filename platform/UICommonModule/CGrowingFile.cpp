#include "CGrowingFile.h"

#include "CErrorCode.h"
#include "FileSystem.h"

#include <QDir>

namespace UICommonMdl
{

int CGrowingFile::MakeFolder(const QString& strFolder)
{
    ClearSystemError();
    return QDir().mkpath(strFolder) ? int(CErrorCode::Success) : GetSystemError();
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
