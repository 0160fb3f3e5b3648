#include "ConfigService.h"

#include "AlarmRecord.h"

#include <UICommonModule/CAtomicFile.h>
#include <UICommonModule/CErrorCode.h>

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMap>

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

} // namespace

ConfigService::ConfigService(const QString& strFolder, Mode eMode, AutoStartWriter autoStartWriter)
    : m_strFolder(QDir(strFolder).absolutePath())
    , m_eMode(eMode)
    , m_autoStartWriter(std::move(autoStartWriter))
    , m_lock(GetPath(g_szLock))
{
    m_lock.setStaleLockTime(0); // however long a client runs; the lock of a dead one is taken over all the same
    if (m_eMode == ReadWrite)
    {
        const int nLock = TakeLock();
        m_bLoadedWithoutLock = nLock != CErrorCode::Success;
        if (nLock == CErrorCode::Locked)
        {
            m_listProblems += tr("Another client uses this data folder; changes cannot be saved meanwhile.");
        }
        else if (nLock != CErrorCode::Success)
        {
            m_listProblems += tr("The data folder cannot be written: %1. Changes cannot be saved.")
                                  .arg(CErrorCode::GetDescription(nLock));
        }
    }
    Load();
}

ConfigService::~ConfigService() = default;

QString ConfigService::GetPath(const char* pszName) const
{
    return QDir(m_strFolder).filePath(QString::fromLatin1(pszName));
}

LocalConfigLogical::IConfigSection* ConfigService::GetSection(int nSectionType)
{
    using namespace LocalConfigLogical;
    const QMap<int, IConfigSection*> mapSections = {
        {SectionBasic, &m_basic},
        {SectionVideo, &m_video},
        {SectionPlayback, &m_playback},
        {SectionSnapshot, &m_snapshot},
        {SectionRecord, &m_record},
        {SectionAlarm, &m_alarm},
        {SectionShortcutKey, &m_shortcutKey},
        {SectionTvWall, &m_tvWall},
        {SectionSecurity, &m_security},
    };
    return mapSections.value(nSectionType);
}

// --- Loading

void ConfigService::Load()
{
    const int nRead = CAtomicFile::Read(GetPath(g_szDocument), m_onDisk);
    if (nRead == CErrorCode::FileMissing)
    {
        if (LoadLastGood())
        {
            m_listProblems += tr("The settings file is missing; the last good settings are used.");
        }
    }
    else if (nRead != CErrorCode::Success)
    {
        m_eState = Unreadable;
        LoadLastGood();
        m_listProblems +=
            tr("The settings file cannot be read: %1. Changes cannot be saved.").arg(CErrorCode::GetDescription(nRead));
    }
    else
    {
        QString strError;
        const SettingsDocument::Result eResult = m_document.Parse(m_onDisk, &strError);
        if (eResult == SettingsDocument::Newer)
        {
            m_eState = Unreadable;
            m_listProblems += tr("The settings file is from a newer version. Changes cannot be saved.");
        }
        else if (eResult == SettingsDocument::Damaged)
        {
            const bool bLastGood = LoadLastGood();
            const bool bAside = m_lock.isLocked() && SetAside();
            const char* pszText =
                bLastGood ? QT_TRANSLATE_NOOP("ConfigService",
                                              "The settings file is damaged (%1); the last good settings are used. %2")
                          : QT_TRANSLATE_NOOP("ConfigService",
                                              "The settings file is damaged (%1); the default settings are used. %2");
            m_listProblems += tr(pszText).arg(strError, bAside ? tr("It was set aside.") : QString()).trimmed();
        }
    }
    m_stored = m_document.GetSettings();
    Revert();
}

void ConfigService::Revert()
{
    m_working = m_stored;
    m_alarm.Accept(m_stored.alarm);
}

void ConfigService::SeedAlarms(const UICommonMdl::CAlarmType& catalogue)
{
    LocalConfigClient::SeedAlarms(catalogue, m_stored.alarm);
    Revert();
}

bool ConfigService::IsOwnFile(const QString& strPath) const
{
    // Links are followed, those of the folder even when the file is yet to be made.
    const QFileInfo file(strPath);
    const QFileInfo target(file.exists() ? file.canonicalFilePath()
                                         : QDir(file.dir().canonicalPath()).filePath(file.fileName()));
    if (target.path() != QDir(m_strFolder).canonicalPath())
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

bool ConfigService::LoadLastGood()
{
    QByteArray content;
    return CAtomicFile::Read(GetPath(g_szLastGood), content) == CErrorCode::Success &&
           m_document.Parse(content) == SettingsDocument::Good;
}

/// Moves the damaged document out of the way, never over another one.
bool ConfigService::SetAside()
{
    const QString strStamp = QDateTime::currentDateTimeUtc().toString(QStringLiteral("yyyyMMdd-hhmmss"));
    const QString strBase = GetPath(g_szDamaged) + strStamp;
    QString strTarget = strBase;
    for (int n = 2; QFileInfo::exists(strTarget); ++n)
    {
        strTarget = QStringLiteral("%1-%2").arg(strBase).arg(n);
    }
    if (!QFile::rename(GetPath(g_szDocument), strTarget))
    {
        return false;
    }
    m_onDisk.clear();
    QByteArray lastGood;
    if (CAtomicFile::Read(GetPath(g_szLastGood), lastGood) == CErrorCode::Success &&
        SettingsDocument().Parse(lastGood) == SettingsDocument::Good &&
        CAtomicFile::Write(GetPath(g_szDocument), lastGood) == CErrorCode::Success)
    {
        m_onDisk = lastGood;
    }
    return true;
}

int ConfigService::TakeLock()
{
    if (m_lock.isLocked() || m_lock.tryLock(0))
    {
        return CErrorCode::Success;
    }
    if (m_lock.error() == QLockFile::LockFailedError)
    {
        return CErrorCode::Locked;
    }
    // The lock does not say what is wrong with the folder, a file beside it does.
    const QString strProbe =
        QStringLiteral("%1.probe-%2").arg(GetPath(g_szLock)).arg(QCoreApplication::applicationPid());
    const int nProbe = CAtomicFile::Write(strProbe, QByteArray("probe"));
    QFile::remove(strProbe);
    return nProbe == CErrorCode::Success ? int(CErrorCode::IoError) : nProbe;
}

// --- Saving

int ConfigService::SaveAll()
{
    return Save(nullptr);
}

int ConfigService::Save(const SettingsDocument* pImported)
{
    ++m_nSaveAttempts;
    if (m_eState == Unreadable)
    {
        return CErrorCode::Unreadable;
    }
    if (m_eMode == ReadOnly)
    {
        return CErrorCode::NoPermission;
    }
    const int nLock = TakeLock();
    if (nLock != CErrorCode::Success)
    {
        return nLock;
    }
    const int nResult = WriteGenerations(pImported);
    if (nResult != CErrorCode::Success)
    {
        return nResult;
    }
    const bool bAutoRunBefore = m_stored.basic.autoRun;
    m_stored = m_working;
    ApplyAutoStart(bAutoRunBefore);
    if (m_savedHandler)
    {
        m_savedHandler();
    }
    return CErrorCode::Success;
}

/// The document on disk becomes the last good generation, the working records the document.
int ConfigService::WriteGenerations(const SettingsDocument* pImported)
{
    QByteArray onDisk;
    const int nTaken = TakeOverFromDisk(onDisk);
    if (nTaken != CErrorCode::Success)
    {
        return nTaken;
    }
    const QByteArray content = Compose(pImported);
    if (content == onDisk)
    {
        return CErrorCode::Success;
    }
    const int nKept = onDisk.isEmpty() ? int(CErrorCode::Success) : CAtomicFile::Write(GetPath(g_szLastGood), onDisk);
    if (nKept != CErrorCode::Success)
    {
        return nKept;
    }
    const int nWritten = CAtomicFile::Write(GetPath(g_szDocument), content);
    if (nWritten == CErrorCode::Success)
    {
        m_onDisk = content;
        m_bLoadedWithoutLock = false;
    }
    return nWritten;
}

/// Reads the document again, for what others have added to it since. One that is damaged by now is set aside.
int ConfigService::TakeOverFromDisk(QByteArray& onDisk)
{
    const int nRead = CAtomicFile::Read(GetPath(g_szDocument), onDisk);
    if (nRead != CErrorCode::Success && nRead != CErrorCode::FileMissing)
    {
        return CErrorCode::Unreadable;
    }
    if (onDisk != m_onDisk && m_bLoadedWithoutLock)
    {
        return CErrorCode::ChangedElsewhere; // by a client whose values are not known here
    }
    const SettingsDocument::Result eResult =
        nRead == CErrorCode::Success ? m_document.Parse(onDisk) : SettingsDocument::Good;
    if (eResult == SettingsDocument::Newer)
    {
        return CErrorCode::Unreadable;
    }
    if (eResult == SettingsDocument::Damaged)
    {
        if (!SetAside())
        {
            return CErrorCode::Damaged;
        }
        onDisk = m_onDisk;
        Report(tr("The settings file was damaged meanwhile and was set aside."));
    }
    return CErrorCode::Success;
}

/// The working records, with the unknown keys of the document and those of an imported one.
QByteArray ConfigService::Compose(const SettingsDocument* pImported)
{
    if (pImported)
    {
        m_document.TakeUnknownKeys(*pImported);
    }
    m_document.SetSettings(m_working);
    return m_document.Serialize();
}

void ConfigService::ApplyAutoStart(bool bBefore)
{
    const bool bWanted = m_stored.basic.autoRun;
    if (!m_autoStartWriter || m_basic.GetAutoRunEntry().value_or(bBefore) == bWanted)
    {
        return;
    }
    const int nResult = m_autoStartWriter(bWanted);
    if (nResult == CErrorCode::Success)
    {
        m_basic.SetAutoRunState(bWanted);
    }
    else
    {
        Report(tr("The auto-start entry could not be changed: %1.").arg(CErrorCode::GetDescription(nResult)));
    }
}

void ConfigService::Report(const QString& strProblem)
{
    m_listProblems += strProblem;
    if (m_problemHandler)
    {
        m_problemHandler(strProblem);
    }
}

int ConfigService::Import(const QByteArray& content, QString* pError)
{
    SettingsDocument document;
    if (document.Parse(content, pError) != SettingsDocument::Good)
    {
        return CErrorCode::Damaged;
    }
    const Settings before = m_working;
    m_working = document.GetSettings();
    const int nResult = Save(&document);
    if (nResult != CErrorCode::Success)
    {
        m_working = before;
    }
    return nResult;
}

QByteArray ConfigService::Export() const
{
    SettingsDocument document = m_document;
    document.SetSettings(m_working);
    return document.Serialize();
}

} // namespace LocalConfigClient
