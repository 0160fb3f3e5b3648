#include "FakePages.h"

#include <LocalConfig/pages/ConfigPages.h>

namespace
{

const char* const g_arrNames[] = {"Basic", "Video",  "Playback", "Snapshot",   "Record",
                                  "Alarm", "TvWall", "Security", "ShortcutKey"};

QString Bool(bool bValue)
{
    return bValue ? QStringLiteral("true") : QStringLiteral("false");
}

} // namespace

SFakePages& SFakePages::Instance()
{
    static SFakePages pages;
    return pages;
}

CFakePage::CFakePage(const QString& strName, QWidget* pParent)
    : QWidget(pParent)
    , m_strName(strName)
{
    QSizePolicy policy = sizePolicy();
    policy.setHeightForWidth(strName == QLatin1String("Video"));
    setSizePolicy(policy);
}

void CFakePage::Note(const QString& strCall)
{
    SFakePages::Instance().pJournal->Note(m_strName + QLatin1Char(' ') + strCall);
}

int CFakePage::SetSection(LocalConfigLogical::IConfigSection* pSection)
{
    Note(QStringLiteral("SetSection"));
    m_pSection = pSection;
    return pSection ? 0 : -1;
}

void CFakePage::LoadConfig(bool bDefault)
{
    Note(QStringLiteral("LoadConfig ") + Bool(bDefault));
}

int CFakePage::SaveConfig()
{
    Note(QStringLiteral("SaveConfig"));
    SFakePages& pages = SFakePages::Instance();
    return pages.mapSaveResults.value(pages.mapPages.key(this));
}

void CFakePage::SetControlsEnabled(bool bEnable)
{
    Note(QStringLiteral("SetControlsEnabled ") + Bool(bEnable));
}

void CFakePage::UnInit()
{
    Note(QStringLiteral("UnInit"));
}

void CFakePage::MarkNoRight45()
{
    Note(QStringLiteral("MarkNoRight45"));
}

int CFakePage::ApplyConfigXml()
{
    Note(QStringLiteral("ApplyConfigXml"));
    return -1;
}

namespace LocalConfig
{

IConfigPage* CreateConfigPage(int nIndex, QWidget* pParent)
{
    SFakePages& pages = SFakePages::Instance();
    if (pages.setAbsent.contains(nIndex))
    {
        return nullptr;
    }
    auto* pPage = new CFakePage(QString::fromLatin1(g_arrNames[nIndex]), pParent);
    pages.mapPages.insert(nIndex, pPage);
    return pPage;
}

} // namespace LocalConfig
