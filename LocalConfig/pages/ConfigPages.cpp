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

IConfigPage* CreateConfigPage(int nIndex, QWidget* pParent)
{
    switch (nIndex)
    {
#define SECTION(name, pageClass, ...)                                                                                  \
    case Index##name:                                                                                                  \
        return new pageClass(pParent);
#include <LocalConfig/SectionList.h>
    default:
        return nullptr;
    }
}

} // namespace LocalConfig
