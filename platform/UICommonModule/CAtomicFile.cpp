#include "CAtomicFile.h"

#include "CErrorCode.h"
#include "FileSystem.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QRegularExpression>

namespace UICommonMdl
{

namespace
{

constexpr char g_szTemporary[] = ".tmp-";
constexpr int g_nNumberWidth = 8;

QString GetTemporaryName(const QString& strFile)
{
    const quint32 nNumber = QRandomGenerator::global()->generate();
    return strFile + QLatin1String(g_szTemporary) +
           QStringLiteral("%1").arg(nNumber, g_nNumberWidth, 16, QLatin1Char('0'));
}

/// A complete and flushed file under a name of its own beside the target, with the attributes of a model that need not
/// exist.
int WriteTemporary(const QString& strTarget, const QString& strModel, const QByteArray& content, QString& strTemporary)
{
    QFile file;
    int nResult = CErrorCode::FileExists;
    while (nResult == CErrorCode::FileExists)
    {
        strTemporary = GetTemporaryName(strTarget);
        nResult = OpenNew(strTemporary, file);
    }
    if (nResult != CErrorCode::Success)
    {
        return nResult;
    }
    if (!strModel.isEmpty())
    {
        nResult = CopyAttributes(strModel, file);
    }
    if (nResult == CErrorCode::Success)
    {
        nResult = WriteAll(file, content);
    }
    if (nResult == CErrorCode::Success && !FlushFile(file.handle()))
    {
        nResult = GetSystemError();
    }
    if (nResult != CErrorCode::Success)
    {
        file.close();
        RemoveFile(strTemporary);
    }
    return nResult;
}

/// Takes a name that nobody has, so that it may be written over.
int ReserveName(const QString& strName)
{
    QFile file;
    return OpenNew(strName, file);
}

int MoveToTarget(const QString& strTemporary, const QString& strTarget, CAtomicFile::Target eTarget)
{
    const bool bReserve = eTarget == CAtomicFile::NewName;
    int nResult = bReserve ? ReserveName(strTarget) : int(CErrorCode::Success);
    if (nResult == CErrorCode::Success)
    {
        nResult = MoveOver(strTemporary, strTarget);
        if (nResult != CErrorCode::Success && bReserve)
        {
            RemoveFile(strTarget);
        }
    }
    if (nResult != CErrorCode::Success)
    {
        RemoveFile(strTemporary);
    }
    return nResult;
}

int Place(const QString& strTarget, const QString& strModel, const QByteArray& content, CAtomicFile::Target eTarget)
{
    QString strTemporary;
    const int nResult = WriteTemporary(strTarget, strModel, content, strTemporary);
    return nResult == CErrorCode::Success ? MoveToTarget(strTemporary, strTarget, eTarget) : nResult;
}

int FindTarget(const QString& strFile, QString& strTarget, bool& bExists)
{
    const int nResult = FollowLinks(strFile, strTarget);
    return nResult == CErrorCode::Success ? CheckReplaceable(strTarget, bExists) : nResult;
}

int FlushContent(const QString& strFile)
{
    QFile file;
    const int nResult = OpenToRead(strFile, file);
    if (nResult != CErrorCode::Success)
    {
        return nResult;
    }
    return FlushFile(file.handle()) ? int(CErrorCode::Success) : GetSystemError();
}

int FlushName(const QString& strFile)
{
    return FlushFolder(QFileInfo(strFile).absolutePath()) ? CErrorCode::Success : CErrorCode::NotYetSafe;
}

/// Removes the temporary files in a folder whose names begin in a way; strBegin is a regular expression.
void RemoveTemporaries(const QDir& folder, const QString& strBegin)
{
    const QRegularExpression pattern(
        QStringLiteral("^%1%2[0-9a-f]{%3}$")
            .arg(strBegin, QRegularExpression::escape(QLatin1String(g_szTemporary)), QString::number(g_nNumberWidth)));
    for (const QString& strName : folder.entryList(QDir::Files | QDir::Hidden | QDir::System))
    {
        if (pattern.match(strName).hasMatch())
        {
            RemoveFile(folder.filePath(strName));
        }
    }
}

} // namespace

int CAtomicFile::Write(const QString& strFile, const QByteArray& content, Target eTarget, const QString& strModel)
{
    QString strTarget = strFile;
    bool bExists = false;
    int nResult = CErrorCode::Success;
    if (eTarget == FollowLink)
    {
        nResult = FindTarget(strFile, strTarget, bExists);
    }
    if (nResult == CErrorCode::Success)
    {
        // A link that is to go says nothing of what comes in its place.
        nResult = Place(strTarget, bExists ? strTarget : strModel, content, eTarget);
    }
    return nResult == CErrorCode::Success ? FlushName(strTarget) : nResult;
}

int CAtomicFile::WriteAndKeep(const QString& strFile, const QByteArray& content, const QString& strName,
                              const QByteArray& before)
{
    // The step that a full disk refuses comes first, so that a refused write leaves both files as they were.
    QString strTarget;
    bool bExists = false;
    int nResult = FindTarget(strFile, strTarget, bExists);
    QString strTemporary;
    if (nResult == CErrorCode::Success)
    {
        nResult = WriteTemporary(strTarget, strTarget, content, strTemporary);
    }
    if (nResult != CErrorCode::Success)
    {
        return nResult;
    }
    nResult = Keep(strTarget, before, strName);
    if (nResult != CErrorCode::Success)
    {
        RemoveFile(strTemporary);
        return nResult;
    }
    nResult = MoveToTarget(strTemporary, strTarget, FollowLink);
    return nResult == CErrorCode::Success ? FlushName(strTarget) : nResult;
}

int CAtomicFile::Keep(const QString& strFile, const QByteArray& content, const QString& strName)
{
    QString strTarget;
    const int nFound = FollowLinks(strFile, strTarget);
    const int nFlushed = nFound == CErrorCode::Success ? FlushContent(strTarget) : nFound;
    if (nFlushed != CErrorCode::Success)
    {
        return nFlushed;
    }
    const QString strTemporary = GetTemporaryName(strName);
    if (Link(strTarget, strTemporary) != CErrorCode::Success)
    {
        return Place(strName, strTarget, content, ReplaceName);
    }
    const int nResult = MoveOver(strTemporary, strName);
    RemoveFile(strTemporary); // which is still there, too, where both names stand for one file already
    return nResult;
}

int CAtomicFile::Flush(const QString& strFile)
{
    QString strTarget;
    const bool bFlushed =
        FollowLinks(strFile, strTarget) == CErrorCode::Success && FlushContent(strTarget) == CErrorCode::Success;
    return bFlushed ? FlushName(strTarget) : int(CErrorCode::NotYetSafe);
}

QString CAtomicFile::GetTarget(const QString& strFile)
{
    QString strTarget;
    FollowLinks(strFile, strTarget);
    return GetRealPath(strTarget);
}

bool CAtomicFile::IsSame(const QString& strOne, const QString& strOther)
{
    return IsSameFile(strOne, strOther);
}

int CAtomicFile::Read(const QString& strFile, QByteArray& content)
{
    content.clear();
    QFile file;
    const int nOpened = OpenToRead(strFile, file);
    if (nOpened != CErrorCode::Success)
    {
        return nOpened;
    }
    if (file.size() > g_nMaxSize)
    {
        return CErrorCode::TooLarge;
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
    const QFileInfo info(strFile);
    if (info.isDir() && !info.isSymLink())
    {
        return CErrorCode::NotAFile;
    }
    return RemoveFile(strFile);
}

void CAtomicFile::RemoveLeftovers(const QString& strFile)
{
    const QFileInfo info(GetTarget(strFile));
    RemoveTemporaries(info.absoluteDir(), QRegularExpression::escape(info.fileName()));
}

void CAtomicFile::RemoveLeftoversOfNames(const QString& strBegin)
{
    const QFileInfo info(strBegin);
    RemoveTemporaries(info.absoluteDir(), QRegularExpression::escape(info.fileName()) + QStringLiteral(".*"));
}

} // namespace UICommonMdl
