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
    if (IsHeld())
    {
        m_file.resize(0); // nobody holds it now
    }
}

int CFileLock::Take(const QByteArray& note)
{
    if (IsHeld())
    {
        return CErrorCode::Success;
    }
    const int nResult = OpenLocked(m_strFile, m_file);
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
