#include "support/DialogFixture.h"

#include <UICommonModule/CErrorCode.h>

#include <thread>

using namespace LocalConfig;

class tst_SaveAndLock : public QObject
{
    Q_OBJECT

private slots:
    void init() { ResetFakePages(); }

    // Save, defaults, cancel
    void SaveStoresEveryPageThenAll();
    void SaveErrorIsShownAndTheDialogCloses();
    void ARefusedPageKeepsTheDialogOpen();
    void KeptInput_data();
    void KeptInput();
    void OnlySnapshotAndRecordMayKeepTheirInput();
    void DefaultReloadsWithDefaults();
    void EveryWayToCloseReloads_data();
    void EveryWayToCloseReloads();
    void AfterUnInitNothingCloses();
    void PagesKeepTheirStateForTheNextShowing();

    // Connection state
    void LoginStates_data();
    void LoginStates();
    void ReconnectReloadsNothing();
    void WhileDisconnectedNavigationAndCloseStayUsable();
    void NotificationFromAnotherThread();
    void DisconnectBeforeTheFirstShow();
    void WithoutWallEveryOperationSkipsIt();
};

// --- Save, defaults, cancel

void tst_SaveAndLock::SaveStoresEveryPageThenAll()
{
    DIALOG;
    d.InitAndShow();
    CNotificationSpy notifications;
    d.Click("btnOk");
    QCOMPARE(host.journal.Take(), Each(g_listPageOrder, "SaveConfig") + QStringList{"SaveAll"});
    QVERIFY(!d.dialog.isVisible());
    QCOMPARE(notifications.size(), 0);
}

void tst_SaveAndLock::SaveErrorIsShownAndTheDialogCloses()
{
    for (int nResult : {0, 2, -1, 12345})
    {
        DIALOG;
        host.localConfig.m_nSaveResult = nResult;
        d.InitAndShow();
        CNotificationSpy notifications;
        d.Click("btnOk");
        QVERIFY(!d.dialog.isVisible());
        QCOMPARE(host.journal.Take(), Each(g_listPageOrder, "SaveConfig") + QStringList{"SaveAll"});
        QCOMPARE(notifications.size(), 1);
        const QString strText = notifications.first().first().toString();
        QCOMPARE(strText, UICommonMdl::CErrorCode::GetErroCodeInfor("Failed to save config", nResult, true, true));
        QVERIFY(strText.startsWith("Failed to save config"));
        QVERIFY(strText.size() > QString("Failed to save config").size());
    }
}

void tst_SaveAndLock::ARefusedPageKeepsTheDialogOpen()
{
    DIALOG;
    SFakePages::Instance().mapSaveResults[0] = -1;
    d.InitAndShow();
    CNotificationSpy notifications;
    d.Click("btnOk");
    QCOMPARE(host.journal.Take(), Each(g_listPageOrder, "SaveConfig") + Each(g_listRefusedOrder, "LoadConfig false"));
    QVERIFY(d.dialog.isVisible());
    QCOMPARE(notifications.size(), 1);
    QCOMPARE(notifications.first().first().toString(),
             QString("Failed to save configuration, some values are illegal."));
}

void tst_SaveAndLock::KeptInput_data()
{
    QTest::addColumn<int>("nSnapshot");
    QTest::addColumn<int>("nRecord");
    QTest::addColumn<bool>("bSnapshotReloaded");
    QTest::addColumn<bool>("bRecordReloaded");
    QTest::newRow("both refused") << -1 << -1 << true << true;
    QTest::newRow("snapshot kept") << -2 << -1 << false << true;
    QTest::newRow("record kept") << -1 << -2 << true << false;
    QTest::newRow("both kept") << -2 << -2 << false << false;
    QTest::newRow("snapshot kept, record stored") << -2 << 0 << false << true;
    QTest::newRow("a positive result refuses, too") << 0 << 1 << true << true;
}

void tst_SaveAndLock::KeptInput()
{
    QFETCH(int, nSnapshot);
    QFETCH(int, nRecord);
    QFETCH(bool, bSnapshotReloaded);
    QFETCH(bool, bRecordReloaded);
    DIALOG;
    SFakePages::Instance().mapSaveResults = {{3, nSnapshot}, {4, nRecord}};
    d.InitAndShow();
    CNotificationSpy notifications;
    d.Click("btnOk");
    QVERIFY(d.dialog.isVisible());
    QCOMPARE(notifications.size(), 1);
    QStringList listReloaded = g_listRefusedOrder;
    if (!bSnapshotReloaded)
    {
        listReloaded = Without(listReloaded, "Snapshot");
    }
    if (!bRecordReloaded)
    {
        listReloaded = Without(listReloaded, "Record");
    }
    QCOMPARE(host.journal.Take(), Each(g_listPageOrder, "SaveConfig") + Each(listReloaded, "LoadConfig false"));
}

void tst_SaveAndLock::OnlySnapshotAndRecordMayKeepTheirInput()
{
    for (int nIndex : {0, 1, 2, 5, 6, 7, 8})
    {
        ResetFakePages();
        DIALOG;
        SFakePages::Instance().mapSaveResults[nIndex] = -2;
        d.InitAndShow();
        d.Click("btnOk");
        QCOMPARE(host.journal.Take(),
                 Each(g_listPageOrder, "SaveConfig") + Each(g_listRefusedOrder, "LoadConfig false"));
    }
}

void tst_SaveAndLock::DefaultReloadsWithDefaults()
{
    DIALOG;
    d.InitAndShow();
    CNotificationSpy notifications;
    d.Click("btnOther");
    QCOMPARE(host.journal.Take(), Each(g_listPageOrder, "LoadConfig true"));
    QVERIFY(d.dialog.isVisible());
    QCOMPARE(notifications.size(), 0);
}

void tst_SaveAndLock::EveryWayToCloseReloads_data()
{
    QTest::addColumn<QString>("strWay");
    for (const char* pszWay : {"btnCancel", "btnClose", "Escape", "window manager"})
    {
        QTest::newRow(pszWay) << pszWay;
    }
}

void tst_SaveAndLock::EveryWayToCloseReloads()
{
    QFETCH(QString, strWay);
    DIALOG;
    d.InitAndShow();
    if (strWay == "Escape")
    {
        QTest::keyClick(&d.dialog, Qt::Key_Escape);
    }
    else if (strWay == "window manager")
    {
        d.dialog.close();
    }
    else
    {
        d.Click(qPrintable(strWay));
    }
    QCOMPARE(host.journal.Take(), Each(g_listPageOrder, "LoadConfig false"));
    QVERIFY(!d.dialog.isVisible());
}

void tst_SaveAndLock::AfterUnInitNothingCloses()
{
    DIALOG;
    d.InitAndShow();
    d.dialog.UnInitUI();
    host.journal.Take();
    d.Click("btnCancel");
    d.Click("btnClose");
    d.Click("btnOk");
    QTest::keyClick(&d.dialog, Qt::Key_Escape);
    QCOMPARE(host.journal.Take(), QStringList());
    QVERIFY(d.dialog.isVisible());
}

void tst_SaveAndLock::PagesKeepTheirStateForTheNextShowing()
{
    DIALOG;
    d.InitAndShow();
    d.Click("btnOk");
    host.journal.Take();
    d.dialog.show();
    QCOMPARE(host.journal.Take(), QStringList());
    d.Click("btnOk");
    QCOMPARE(host.journal.Take(), Each(g_listPageOrder, "SaveConfig") + QStringList{"SaveAll"});
}

// --- Connection state

void tst_SaveAndLock::LoginStates_data()
{
    QTest::addColumn<int>("nState");
    QTest::addColumn<int>("nSubState");
    QTest::addColumn<QString>("strReaction");
    for (int nSubState : {-1, 0, 1, 7})
    {
        QTest::addRow("3/%d", nSubState) << 3 << nSubState << "false";
    }
    QTest::newRow("2/0") << 2 << 0 << "true";
    for (int nSubState : {-1, 1, 3})
    {
        QTest::addRow("2/%d", nSubState) << 2 << nSubState << QString();
    }
    for (int nState : {-1, 0, 1, 4, 100})
    {
        QTest::addRow("%d/0", nState) << nState << 0 << QString();
    }
}

void tst_SaveAndLock::LoginStates()
{
    QFETCH(int, nState);
    QFETCH(int, nSubState);
    QFETCH(QString, strReaction);
    DIALOG;
    d.InitAndShow();
    if (strReaction == "true")
    {
        host.loginManager.Notify(3, 0);
        host.journal.Take();
    }
    QSignalSpy disconnects(&d.dialog, &CLocalConfig::SignalDisconnect);
    QSignalSpy reconnects(&d.dialog, &CLocalConfig::SignalReconnect);
    host.loginManager.Notify(nState, nSubState);
    QCOMPARE(disconnects.size(), strReaction == "false" ? 1 : 0);
    QCOMPARE(reconnects.size(), strReaction == "true" ? 1 : 0);
    QCOMPARE(host.journal.Take(),
             strReaction.isEmpty() ? QStringList() : Each(g_listPageOrder, "SetControlsEnabled " + strReaction));
    for (const char* pszButton : {"btnOk", "btnOther", "btnCancel"})
    {
        QCOMPARE(d.Button(pszButton)->isEnabled(), strReaction != "false");
    }
}

void tst_SaveAndLock::ReconnectReloadsNothing()
{
    DIALOG;
    d.InitAndShow();
    host.loginManager.Notify(3, 0);
    host.loginManager.Notify(2, 0);
    for (const QString& strCall : host.journal.Take())
    {
        QVERIFY2(strCall.contains("SetControlsEnabled"), qPrintable(strCall));
    }
    QVERIFY(d.Button("btnOk")->isEnabled());
}

void tst_SaveAndLock::WhileDisconnectedNavigationAndCloseStayUsable()
{
    DIALOG;
    d.InitAndShow();
    host.loginManager.Notify(3, 0);
    QVERIFY(d.List()->isEnabled());
    QVERIFY(d.ScrollArea()->isEnabled());
    QVERIFY(d.Button("btnClose")->isEnabled());
    d.Click("btnOk");
    d.Click("btnCancel");
    QVERIFY(d.dialog.isVisible());
    d.List()->setFocus();
    QTest::keyClick(d.List(), Qt::Key_End);
    QCOMPARE(d.SelectedBoxes(), QList<int>{8});
    d.Click("btnClose");
    QVERIFY(!d.dialog.isVisible());
}

void tst_SaveAndLock::NotificationFromAnotherThread()
{
    DIALOG;
    d.InitAndShow();
    std::thread thread([&host] { host.loginManager.Notify(3, 0); });
    thread.join();
    QVERIFY2(d.Button("btnOk")->isEnabled(), "nothing happens before the GUI thread's event loop runs");
    QCOMPARE(host.journal.Take(), QStringList());
    QTRY_VERIFY(!d.Button("btnOk")->isEnabled());
    QCOMPARE(host.journal.Take(), Each(g_listPageOrder, "SetControlsEnabled false"));
}

void tst_SaveAndLock::DisconnectBeforeTheFirstShow()
{
    DIALOG;
    d.Init();
    host.journal.Take();
    host.loginManager.Notify(3, 0);
    QCOMPARE(host.journal.Take(), QStringList());
    QVERIFY(!d.Button("btnOk")->isEnabled());
}

void tst_SaveAndLock::WithoutWallEveryOperationSkipsIt()
{
    DIALOG;
    host.userRight.m_setMissing = {26};
    const QStringList listPages = Without(g_listPageOrder, "TvWall");
    d.InitAndShow();
    d.Click("btnOther");
    QCOMPARE(host.journal.Take(), Each(listPages, "LoadConfig true"));
    host.loginManager.Notify(3, 0);
    QCOMPARE(host.journal.Take(), Each(listPages, "SetControlsEnabled false"));
    host.loginManager.Notify(2, 0);
    host.journal.Take();
    d.Click("btnOk");
    QCOMPARE(host.journal.Take(), Each(listPages, "SaveConfig") + QStringList{"SaveAll"});
}

QTEST_MAIN(tst_SaveAndLock)

#include "tst_SaveAndLock.moc"
