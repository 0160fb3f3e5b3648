#pragma once

#include "HiddenPage.h"

#include <LocalConfig/pages/CBasicConfig.h>
#include <LocalConfig/widgets/CCombobox.h>

#include <KvGui/KvCheckBox.h>

/// A check box of the Basic page.
struct SCheckBox
{
    const char* pszName;
    const char* pszText;
    bool LocalConfigLogical::BasicConfigInfo::*pField; ///< null where the record keeps something else than a bool
    bool bDefault;
};

/// All of them, top to bottom.
inline const SCheckBox g_arrCheckBoxes[] = {
    {"ShowZoneInfoChkBox", "Show time zone(Takes effect after restart)",
     &LocalConfigLogical::BasicConfigInfo::showTimeZone, false},
    {"timeChkBox", "Enable time sync with platform server", &LocalConfigLogical::BasicConfigInfo::timeSync, false},
    {"autologinChkBox", "Auto Login", &LocalConfigLogical::BasicConfigInfo::autoLogin, false},
    {"autoRunChkBox", "Auto restart after reboot", &LocalConfigLogical::BasicConfigInfo::autoRun, false},
    {"liveStartAtBeginChkBox", "Display previous live view after restart",
     &LocalConfigLogical::BasicConfigInfo::restoreLiveView, false},
    {"adjustTalkChkBox", "Self-adaptive audio talk parameter", &LocalConfigLogical::BasicConfigInfo::adaptiveTalk,
     true},
    {"ShowDevChkBox", "Show device node", nullptr, true},
    {"previewSnapshotChkBox", "Display live view thumbnail", &LocalConfigLogical::BasicConfigInfo::liveThumbnail, true},
};

/// The base of the Basic page's tests.
class CBasicPageTest : public CHiddenPageTest<LocalConfig::CBasicConfig, CFakeBasicSection>
{
protected:
    void Reset() { CHiddenPageTest::Reset(QSize(662, 462)); }

    /// A record in which no field has its default value.
    static LocalConfigLogical::BasicConfigInfo Changed()
    {
        LocalConfigLogical::BasicConfigInfo record;
        record.hostOwned1 = 5;
        record.hostOwned2 = 1001;
        record.hostOwned3 = 13;
        record.skin = 2;
        record.hostOwned5 = true;
        record.hostOwned6 = 6;
        record.hostOwned7 = false;
        record.timeSync = true;
        record.hostOwned9 = true;
        record.hostOwned10 = true;
        record.autoLogin = true;
        record.hostOwned12 = true;
        record.adaptiveTalk = false;
        record.hostOwned14 = true;
        record.hostOwned15 = 7;
        record.autoRun = true;
        record.hostOwned17 = false;
        record.hostOwned18 = true;
        record.hostOwned19 = 8;
        record.hostOwned20 = true;
        record.showDeviceNode = 0;
        record.hostOwned22 = false;
        record.clientSize = 3;
        record.restoreLiveView = true;
        record.hostOwned25 = true;
        record.liveThumbnail = false;
        record.showTimeZone = true;
        record.hostOwned28 = 9;
        return record;
    }

    KVGUI::KvCheckBox* Check(const char* pszName) const { return Find<KVGUI::KvCheckBox>(pszName); }
    LocalConfig::CCombobox* Combo(const char* pszName) const { return Find<LocalConfig::CCombobox>(pszName); }
};
