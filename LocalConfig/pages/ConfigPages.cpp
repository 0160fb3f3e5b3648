#include "ConfigPages.h"

#include "CAlarmConfig.h"
#include "CBasicConfig.h"
#include "CCaptureConfig.h"
#include "CPlaybackConfig.h"
#include "CRecordConfig.h"
#include "CSecurityConfig.h"
#include "CShortcutKeyConfig.h"
#include "CTvWallConfig.h"
#include "CVideoConfig.h"

#include <LocalConfig/SectionIndex.h>

namespace LocalConfig
{

namespace
{

template <class Page>
IConfigPage* Create(QWidget* pParent)
{
    return new Page(pParent);
}

struct SPage
{
    ESectionIndex eIndex;
    IConfigPage* (*pfnCreate)(QWidget*);
};

constexpr SPage g_arrPages[] = {
    {IndexBasic, &Create<CBasicConfig>},
    {IndexVideo, &Create<CVideoConfig>},
    {IndexPlayback, &Create<CPlaybackConfig>},
    {IndexCapture, &Create<CCaptureConfig>},
    {IndexRecord, &Create<CRecordConfig>},
    {IndexAlarm, &Create<CAlarmConfig>},
    {IndexTvWall, &Create<CTvWallConfig>},
    {IndexSecurity, &Create<CSecurityConfig>},
    {IndexShortcutKey, &Create<CShortcutKeyConfig>},
};

} // namespace

IConfigPage* CreateConfigPage(int nIndex, QWidget* pParent)
{
    for (const SPage& page : g_arrPages)
    {
        if (page.eIndex == nIndex)
        {
            return page.pfnCreate(pParent);
        }
    }
    return nullptr;
}

} // namespace LocalConfig
