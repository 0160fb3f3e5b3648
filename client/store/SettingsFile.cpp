#include "SettingsFile.h"

#include <UICommonModule/CAtomicFile.h>
#include <UICommonModule/CErrorCode.h>

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>

using UICommonMdl::CAtomicFile;
using UICommonMdl::CErrorCode;

namespace LocalConfigClient
{

namespace
{

constexpr char g_szDocument[] = "settings.json";
constexpr char g_szLastGood[] = "settings.json.bak";
constexpr char g_szDamaged[] = "settings.json.damaged-";
constexpr char g_szLock[] = "settings.lock";
constexpr char g_szIniFile[] = "Localcfg.ini"; // written by the pages

bool IsStored(int nResult)
{
    return nResult == CErrorCode::Success || nResult == CErrorCode::NotYetSafe;
}

} // namespace

SettingsFile::SettingsFile(const QString& strFolder, Mode eMode)
    : m_strFolder(QDir(strFolder).absolutePath())
    , m_eMode(eMode)
    , m_lock(GetPath(g_szLock))
{
    if (m_eMode == ReadWrite)
    {
        const int nLock = TakeLock();
        m_bLoadedWithoutLock = nLock != CErrorCode::Success;
        if (m_bLoadedWithoutLock)
        {
            m_strHindrance = m_strLockProblem = DescribeLockFailure(nLock);
            m_listProblems += m_strLockProblem;
        }
    }
    Load();
    if (m_document.GetMissingRights().bAll)
    {
        m_listProblems +=
            tr("The missing rights in the settings file cannot be understood; the user is taken to have no rights.");
    }
}

QString SettingsFile::GetPath(const char* pszName) const
{
    return QDir(m_strFolder).filePath(QString::fromLatin1(pszName));
}

void SettingsFile::Report(const QString& strProblem)
{
    m_listProblems += strProblem;
    if (m_problemHandler)
    {
        m_problemHandler(strProblem);
    }
}

int SettingsFile::TakeLock()
{
    if (m_lock.IsHeld())
    {
        return CErrorCode::Success;
    }
    const int nResult = m_lock.Take();
    if (nResult == CErrorCode::Success)
    {
        m_listProblems.removeAll(m_strLockProblem);
        RemoveLeftovers();
    }
    return nResult;
}

QString SettingsFile::DescribeLockFailure(int nCode) const
{
    if (nCode != CErrorCode::Locked)
    {
        return tr("The data folder cannot be written: %1. Changes cannot be saved.")
            .arg(CErrorCode::GetDescription(nCode));
    }
    const QString strHolder = m_lock.GetHolder();
    return strHolder.isEmpty()
               ? tr("Another client uses this data folder; changes cannot be saved meanwhile.")
               : tr("Another client (%1) uses this data folder; changes cannot be saved meanwhile.").arg(strHolder);
}

QString SettingsFile::DescribeUnreadable(int nCode)
{
    return tr("The settings file cannot be read: %1. Changes cannot be saved.").arg(CErrorCode::GetDescription(nCode));
}

QString SettingsFile::DescribeNewer()
{
    return tr("The settings file is from a newer version. Changes cannot be saved.");
}

/// What clients that were killed in a save have left. Under the lock nobody else is writing.
void SettingsFile::RemoveLeftovers() const
{
    CAtomicFile::RemoveLeftovers(GetPath(g_szDocument));
    CAtomicFile::RemoveLeftovers(GetPath(g_szIniFile));
    CAtomicFile::RemoveLeftoversOfNames(GetPath(g_szDocument)); // the last good generation, and what was set aside
}

// --- Loading

void SettingsFile::Load()
{
    const int nRead = CAtomicFile::Read(GetPath(g_szDocument), m_onDisk);
    if (nRead == CErrorCode::FileMissing)
    {
        LoadMissing();
        return;
    }
    if (nRead != CErrorCode::Success)
    {
        m_eState = Unreadable;
        LoadLastGood();
        m_strHindrance = DescribeUnreadable(nRead);
        m_listProblems += m_strHindrance;
        return;
    }
    QString strError;
    switch (m_document.Parse(m_onDisk, &strError))
    {
    case SettingsDocument::Good:
        m_bOnDiskGood = true;
        break;
    case SettingsDocument::Newer:
        m_eState = Unreadable;
        m_strHindrance = DescribeNewer();
        m_listProblems += m_strHindrance;
        break;
    case SettingsDocument::Damaged:
        LoadDamaged(strError);
        break;
    }
}

void SettingsFile::LoadMissing()
{
    switch (LoadLastGood())
    {
    case NoGeneration:
        break;
    case GoodGeneration:
        m_listProblems += tr("The settings file is missing; the last good settings are used.");
        break;
    case UnusableGeneration:
        m_bStandsIn = true;
        m_listProblems += tr(
            "The settings file is missing and the last good settings cannot be used; the default settings are used.");
        break;
    }
}

void SettingsFile::LoadDamaged(const QString& strError)
{
    m_bStandsIn = LoadLastGood() != GoodGeneration;
    const bool bAside = m_lock.IsHeld() && IsStored(SetAside(m_onDisk));
    const QString strText = m_bStandsIn ? tr("The settings file is damaged (%1); the default settings are used. %2")
                                        : tr("The settings file is damaged (%1); the last good settings are used. %2");
    m_listProblems += strText.arg(strError, bAside ? tr("It was set aside.") : QString()).trimmed();
}

SettingsFile::LastGood SettingsFile::LoadLastGood()
{
    QByteArray content;
    const int nRead = CAtomicFile::Read(GetPath(g_szLastGood), content);
    if (nRead == CErrorCode::FileMissing)
    {
        return NoGeneration;
    }
    const bool bGood = nRead == CErrorCode::Success && m_document.Parse(content) == SettingsDocument::Good;
    return bGood ? GoodGeneration : UnusableGeneration;
}

// --- Setting aside

QString SettingsFile::GetFreeDamagedName() const
{
    const QString strStamp = QDateTime::currentDateTimeUtc().toString(QStringLiteral("yyyyMMdd-hhmmss"));
    const QString strBase = GetPath(g_szDamaged) + strStamp;
    QString strName = strBase;
    for (int n = 2; QFileInfo::exists(strName) || QFileInfo(strName).isSymLink(); ++n)
    {
        strName = QStringLiteral("%1-%2").arg(strBase, QString::number(n));
    }
    return strName;
}

/// The last good generation; empty when there is none or it cannot be used.
QByteArray SettingsFile::ReadLastGood() const
{
    QByteArray content;
    const bool bGood = CAtomicFile::Read(GetPath(g_szLastGood), content) == CErrorCode::Success &&
                       SettingsDocument().Parse(content) == SettingsDocument::Good;
    return bGood ? content : QByteArray();
}

/// Keeps the damaged document under another name, never over another one, and puts the last good generation in its
/// place, or what is used instead. So a document is there at any time, and its mode, its owner and a link stay.
int SettingsFile::SetAside(const QByteArray& damaged)
{
    const QString strDamaged = GetFreeDamagedName();
    const int nKept = CAtomicFile::Keep(GetPath(g_szDocument), damaged, strDamaged);
    if (nKept != CErrorCode::Success)
    {
        return nKept;
    }
    const QByteArray lastGood = ReadLastGood();
    const int nPut = PutInPlace(lastGood.isEmpty() ? m_document.Serialize() : lastGood);
    if (!IsStored(nPut))
    {
        CAtomicFile::Remove(strDamaged);
    }
    return nPut;
}

int SettingsFile::PutInPlace(const QByteArray& content)
{
    const int nResult = CAtomicFile::Write(GetPath(g_szDocument), content);
    if (IsStored(nResult))
    {
        m_onDisk = content;
        m_bOnDiskGood = true;
        m_bNotYetSafe = nResult == CErrorCode::NotYetSafe;
    }
    return nResult;
}

// --- Saving

int SettingsFile::Save(const Settings& settings, const SettingsDocument* pImported)
{
    if (m_eState == Unreadable)
    {
        return CErrorCode::Unreadable;
    }
    if (m_eMode == ReadOnly)
    {
        return CErrorCode::NoPermission;
    }
    m_strHindrance.clear();
    m_bLoadedWithoutLock = m_bLoadedWithoutLock || !m_lock.IsHeld();
    int nResult = TakeLock();
    if (nResult != CErrorCode::Success)
    {
        m_strHindrance = DescribeLockFailure(nResult);
        return nResult;
    }
    QByteArray onDisk;
    nResult = TakeOverFromDisk(onDisk);
    if (nResult != CErrorCode::Success)
    {
        return nResult;
    }
    SettingsDocument unknownKeys;
    unknownKeys.TakeUnknownKeys(m_document);
    if (pImported)
    {
        unknownKeys.TakeUnknownKeys(*pImported);
    }
    nResult = WriteGenerations(onDisk, unknownKeys.Serialize(settings));
    if (nResult == CErrorCode::NotAFile)
    {
        const bool bLastGood = QFileInfo(GetPath(g_szDocument)).isFile();
        m_strHindrance = tr("A folder or a device stands in the place of '%1'. Changes cannot be saved.")
                             .arg(QDir::toNativeSeparators(GetPath(bLastGood ? g_szLastGood : g_szDocument)));
        Report(m_strHindrance);
    }
    if (IsStored(nResult))
    {
        m_document.TakeUnknownKeys(unknownKeys);
        m_document.SetSettings(settings);
        m_bNotYetSafe = nResult == CErrorCode::NotYetSafe;
        m_bLoadedWithoutLock = false;
        m_bStandsIn = false;
    }
    return nResult;
}

/// Reads the document again, for what others have added to it since. One that is damaged by now is set aside.
int SettingsFile::TakeOverFromDisk(QByteArray& onDisk)
{
    const int nRead = CAtomicFile::Read(GetPath(g_szDocument), onDisk);
    if (nRead != CErrorCode::Success && nRead != CErrorCode::FileMissing)
    {
        m_strHindrance = DescribeUnreadable(nRead);
        return nRead == CErrorCode::InUse ? CErrorCode::InUse : CErrorCode::Unreadable;
    }
    const bool bChanged = onDisk != m_onDisk;
    m_bNotYetSafe = m_bNotYetSafe || bChanged;
    if (bChanged && m_bLoadedWithoutLock)
    {
        return CErrorCode::ChangedElsewhere; // by a client whose values are not known here
    }
    if (!bChanged && m_bOnDiskGood)
    {
        return CErrorCode::Success;
    }
    const SettingsDocument::Result eResult =
        nRead == CErrorCode::Success ? m_document.Parse(onDisk) : SettingsDocument::Good;
    if (eResult == SettingsDocument::Newer)
    {
        m_strHindrance = DescribeNewer();
        return CErrorCode::Unreadable;
    }
    if (eResult == SettingsDocument::Damaged)
    {
        const int nAside = SetAside(onDisk);
        if (!IsStored(nAside))
        {
            return nAside;
        }
        onDisk = m_onDisk;
        Report(tr("The settings file was damaged meanwhile and was set aside."));
    }
    return CErrorCode::Success;
}

/// The document on disk becomes the last good generation, the content the document.
int SettingsFile::WriteGenerations(const QByteArray& onDisk, const QByteArray& content)
{
    const QString strDocument = GetPath(g_szDocument);
    if (content == onDisk)
    {
        return m_bNotYetSafe ? CAtomicFile::Flush(strDocument) : int(CErrorCode::Success);
    }
    const QString strLastGood = GetPath(g_szLastGood);
    const int nWritten = onDisk.isEmpty()
                             ? CAtomicFile::Write(strDocument, content, CAtomicFile::FollowLink, strLastGood)
                             : CAtomicFile::WriteAndKeep(strDocument, content, strLastGood, onDisk);
    if (IsStored(nWritten))
    {
        m_onDisk = content;
        m_bOnDiskGood = true;
    }
    return nWritten;
}

// --- Names

bool SettingsFile::IsOwnFile(const QString& strPath) const
{
    const QFileInfo target(CAtomicFile::GetTarget(strPath));
    if (!CAtomicFile::IsSame(target.path(), m_strFolder))
    {
        return false;
    }
    const QString strName = target.fileName();
    for (const char* pszName : {g_szDocument, g_szLastGood, g_szLock, g_szIniFile})
    {
        if (strName.compare(QLatin1String(pszName), Qt::CaseInsensitive) == 0)
        {
            return true;
        }
    }
    return strName.startsWith(QLatin1String(g_szDamaged), Qt::CaseInsensitive);
}

} // namespace LocalConfigClient
