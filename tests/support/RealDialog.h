#pragma once

#include "DialogFixture.h"
#include "FakeSections.h"

#include <LocalConfig/interfaces/IPlaybackSection.h>
#include <LocalConfig/interfaces/IRecordSection.h>
#include <LocalConfig/interfaces/ISecuritySection.h>
#include <LocalConfig/interfaces/IShortcutKeySection.h>
#include <LocalConfig/interfaces/ISnapshotSection.h>
#include <LocalConfig/interfaces/ITvWallSection.h>
#include <LocalConfig/interfaces/IVideoSection.h>

/// A fake host that has all nine sections, each with one record; at first the built-in defaults.
struct SRealHost : SFakeHost
{
    SRealHost()
    {
        using namespace LocalConfigLogical;
        localConfig.m_mapSections = {
            {SectionBasic, &basic},       {SectionVideo, &video},       {SectionPlayback, &playback},
            {SectionSnapshot, &snapshot}, {SectionRecord, &record},     {SectionAlarm, &alarm},
            {SectionTvWall, &tvWall},     {SectionSecurity, &security}, {SectionShortcutKey, &shortcutKey}};
    }

    template <class Interface, class Record>
    using Section = CFakeSection<Interface, Record>;

    CFakeBasicSection basic{journal};
    Section<LocalConfigLogical::IVideoSection, LocalConfigLogical::VideoConfigInfo> video{journal};
    Section<LocalConfigLogical::IPlaybackSection, LocalConfigLogical::PlaybackConfigInfo> playback{journal};
    Section<LocalConfigLogical::ISnapshotSection, LocalConfigLogical::SnapshotConfigInfo> snapshot{journal};
    Section<LocalConfigLogical::IRecordSection, LocalConfigLogical::RecordConfigInfo> record{journal};
    CFakeAlarmSection alarm{journal};
    Section<LocalConfigLogical::ITvWallSection, LocalConfigLogical::TvWallConfigInfo> tvWall{journal};
    Section<LocalConfigLogical::ISecuritySection, LocalConfigLogical::SecurityConfigInfo> security{journal};
    Section<LocalConfigLogical::IShortcutKeySection, LocalConfigLogical::ShortcutKeyConfigInfo> shortcutKey{journal};
};

/// The dialog with its nine real pages. For tests that link LocalConfigPages.
struct SRealDialog : SDialog
{
    explicit SRealDialog(SRealHost& realHost)
        : SDialog(realHost)
    {}

    void Open()
    {
        InitAndShow();
        QApplication::setActiveWindow(&dialog);
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
    }

    /// A control of a page, scrolled into view.
    template <class Control>
    Control* Find(const char* pszName)
    {
        auto* pControl = dialog.findChild<Control*>(QString::fromLatin1(pszName));
        if (pControl)
        {
            ScrollArea()->ensureWidgetVisible(pControl);
        }
        return pControl;
    }
};
