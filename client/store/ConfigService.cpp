#include "ConfigService.h"

#include "AlarmRecord.h"

#include <UICommonModule/CErrorCode.h>

#include <QMap>

using UICommonMdl::CErrorCode;

namespace LocalConfigClient
{

ConfigService::ConfigService(const QString& strFolder, SettingsFile::Mode eMode, AutoStartWriter autoStartWriter)
    : m_file(strFolder, eMode)
    , m_autoStartWriter(std::move(autoStartWriter))
    , m_stored(m_file.GetDocument().GetSettings())
{
    Revert();
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

// --- Saving

int ConfigService::SaveAll()
{
    return Save(nullptr);
}

int ConfigService::Save(const SettingsDocument* pImported)
{
    ++m_nSaveAttempts;
    const int nResult = m_file.Save(m_working, pImported);
    if (nResult != CErrorCode::Success && nResult != CErrorCode::NotYetSafe)
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
    return nResult;
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
        m_file.Report(tr("The auto-start entry could not be changed: %1.").arg(CErrorCode::GetDescription(nResult)));
    }
}

int ConfigService::Import(const QByteArray& content, QString* pError)
{
    SettingsDocument document;
    if (document.Parse(content, pError) != SettingsDocument::Good)
    {
        return CErrorCode::Damaged;
    }
    return Replace(document.GetSettings(), &document);
}

int ConfigService::Replace(const Settings& settings, const SettingsDocument* pImported)
{
    const Settings before = m_working;
    m_working = settings;
    const int nResult = Save(pImported);
    if (nResult != CErrorCode::Success && nResult != CErrorCode::NotYetSafe)
    {
        m_working = before;
    }
    return nResult;
}

QByteArray ConfigService::Export() const
{
    return m_file.GetDocument().Serialize(m_working);
}

} // namespace LocalConfigClient
