#pragma once

#include "FakeHost.h"
#include "FakePages.h"
#include "Notifications.h"

#include <KvGui/KvToolListView.h>
#include <LocalConfig/CGroupBox.h>
#include <LocalConfig/CLocalConfig.h>

#include <QAbstractButton>
#include <QApplication>
#include <QDesktopWidget>
#include <QEventLoop>
#include <QScrollArea>
#include <QScrollBar>
#include <QTimer>
#include <QtTest>

struct SBox
{
    int nIndex;
    int nMinimumHeight;
    const char* pszBox;
    const char* pszLayout;
    const char* pszText;
    const char* pszPage;
    int nSectionType;
};

inline const SBox g_arrBoxes[] = {
    {0, 462, "m_gBBasic", "horizontalLayout_2", "Basic", "m_pBasic", 1},
    {1, 841, "m_gBVideo", "horizontalLayout_3", "Video", "m_pVideo", 2},
    {2, 168, "m_gBPlayback", "horizontalLayout_4", "Record Playback", "m_pPlayback", 3},
    {3, 446, "m_gBCapture", "horizontalLayout_5", "Snapshot", "m_pCapture", 4},
    {4, 286, "m_gBRecord", "horizontalLayout_6", "Recording", "m_pRecord", 5},
    {5, 522, "m_gBAlarm", "horizontalLayout_8", "Alarm", "m_pAlarm", 6},
    {6, 390, "m_gBTvwall", "horizontalLayout_9", "Video Wall", "m_pTvWall", 8},
    {7, 84, "m_gBSecurity", "horizontalLayout_10", "Security", "m_pSecurity", 9},
    {8, 790, "m_gShortcutKey", "horizontalLayout_7", "Shortcut Keys", "m_pKey", 7},
};

inline const QStringList g_listPageOrder = {"Basic", "Video",       "Playback", "Snapshot", "Record",
                                            "Alarm", "ShortcutKey", "TvWall",   "Security"};
inline const QStringList g_listRefusedOrder = {"Basic", "Video",  "Playback", "Snapshot",   "Record",
                                               "Alarm", "TvWall", "Security", "ShortcutKey"};

inline QStringList Each(const QStringList& listNames, const QString& strCall)
{
    QStringList listCalls;
    for (const QString& strName : listNames)
    {
        listCalls += strName + QLatin1Char(' ') + strCall;
    }
    return listCalls;
}

inline QStringList Without(QStringList listNames, const QString& strName)
{
    listNames.removeAll(strName);
    return listNames;
}

/// The dialog with its fake host, taken down in the order that a host follows.
struct SDialog
{
    explicit SDialog(SFakeHost& host)
        : host(host)
        , dialog(nullptr)
    {}

    ~SDialog()
    {
        dialog.hide();
        dialog.UnInitUI();
    }

    void Init() { nInitResult = dialog.Init(&host.localConfig, &host.userManager); }

    void InitAndShow()
    {
        Init();
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        WaitForLayout();
        host.journal.Take();
    }

    /// Past the delayed computation of the content's height.
    static void WaitForLayout()
    {
        // A timer that was started later and runs longer comes later, however busy the machine is.
        QEventLoop loop;
        QTimer::singleShot(80, &loop, &QEventLoop::quit);
        loop.exec();
    }

    LocalConfig::CGroupBox* Box(int nIndex)
    {
        return dialog.findChild<LocalConfig::CGroupBox*>(g_arrBoxes[nIndex].pszBox);
    }
    KVGUI::KvToolListView* List() { return dialog.findChild<KVGUI::KvToolListView*>("m_pToolListView"); }
    QScrollArea* ScrollArea() { return dialog.findChild<QScrollArea*>("scrollArea"); }
    QScrollBar* ScrollBar() { return ScrollArea()->verticalScrollBar(); }
    QWidget* Contents() { return dialog.findChild<QWidget*>("scrollAreaWidgetContents"); }
    QAbstractButton* Button(const char* pszName) { return dialog.findChild<QAbstractButton*>(pszName); }
    void Click(const char* pszName) { QTest::mouseClick(Button(pszName), Qt::LeftButton); }

    QList<int> SelectedBoxes()
    {
        QList<int> listIndices;
        for (const SBox& box : g_arrBoxes)
        {
            if (Box(box.nIndex)->IsSelect())
            {
                listIndices += box.nIndex;
            }
        }
        return listIndices;
    }

    SFakeHost& host;
    LocalConfig::CLocalConfig dialog;
    int nInitResult = 0;
};

/// Test rows: one for each section, with its navigation index.
inline void BoxRows()
{
    QTest::addColumn<int>("nIndex");
    for (const SBox& box : g_arrBoxes)
    {
        QTest::newRow(box.pszBox) << box.nIndex;
    }
}

/// A world without pages, on a desktop that is high enough for the natural dialog.
inline void ResetFakePages()
{
    SFakePages::Instance() = SFakePages();
    QApplication::desktop()->setGeometry(0, 0, 1920, 1080);
}

/// A fake host "host" and a dialog "d" that is made for it.
#define DIALOG                                                                                                         \
    SFakeHost host;                                                                                                    \
    SFakePages::Instance().pJournal = &host.journal;                                                                   \
    SDialog d(host)
