#include "CFileLock.h"

#include "CAtomicFile.h"
#include "CErrorCode.h"
#include "FileSystem.h"

namespace UICommonMdl
{

CFileLock::CFileLock(const QString& strFile)
    : m_strFile(strFile)
{}

CFileLock::~CFileLock()
{
    Release();
}

bool CFileLock::IsHeld() const
{
    return m_file.isOpen() && IsNameOf(m_strFile, m_file);
}

void CFileLock::Release()
{
    if (m_file.isOpen())
    {
        m_file.resize(0); // nobody holds it now
    }
    m_file.close();
    m_folder.close();
}

int CFileLock::Take(const QByteArray& note)
{
    if (IsHeld())
    {
        return CErrorCode::Success;
    }
    Release();
    const int nResult = OpenLocked(m_strFile, m_file, m_folder);
    if (nResult == CErrorCode::Success)
    {
        // On a full disk nobody learns who holds the lock; it holds all the same.
        m_file.resize(0);
        m_file.write(note);
    }
    return nResult;
}

QByteArray CFileLock::GetNote() const
{
    QByteArray note;
    CAtomicFile::Read(m_strFile, note);
    return note;
}

} // namespace UICommonMdl
