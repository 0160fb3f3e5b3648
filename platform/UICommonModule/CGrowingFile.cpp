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
    m_file.setFileName(strFile);
    m_nSize = 0;
    ClearSystemError();
    return m_file.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered) ? int(CErrorCode::Success)
                                                                                          : GetSystemError();
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
