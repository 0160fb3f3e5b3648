#include "support/DialogFixture.h"
#include "support/Marker.h"

#include <QMetaMethod>

using namespace LocalConfig;

class tst_DialogHost : public QObject
{
    Q_OBJECT

private slots:
    void init() { ResetFakePages(); }

    void MetaObjectOrder();
    void InitWithoutAServiceRefuses_data();
    void InitWithoutAServiceRefuses();
    void InitAsksForTheWallRightAndRegistersTheObserver();
    void TheObserverIsTheSubObject();
    void WithoutARightsObjectThereIsNoWall();
    void WithoutALoginManagerTheDialogWorks();
    void UnInitReleasesThePagesInOrder();
    void UnInitTwiceRemovesTheObserverOnce();
    void TranslationContext();
};

void tst_DialogHost::MetaObjectOrder()
{
    const QMetaObject& meta = CLocalConfig::staticMetaObject;
    QCOMPARE(QByteArray(meta.className()), QByteArray("LocalConfig::CLocalConfig"));
    QList<QByteArray> listMethods;
    for (int n = meta.methodOffset(); n < meta.methodCount(); ++n)
    {
        listMethods += meta.method(n).methodSignature();
    }
    const QList<QByteArray> listExpected = {"SignalDisconnect()",
                                            "SignalReconnect()",
                                            "OnGroupBoxClicked(int)",
                                            "OnToolListCurrentIndexChanged(int)",
                                            "OnVerticalScrollBarChanged(int)",
                                            "OnSaveBtnClicked()",
                                            "OnResumeClicked()",
                                            "OnBtnCancelClicked()",
                                            "OnDisconnect()",
                                            "OnReconnect()",
                                            "OnAdjustVerticalScrollBar()",
                                            "OnVideoConfigChangeSize()"};
    QCOMPARE(listMethods, listExpected);
}

void tst_DialogHost::InitWithoutAServiceRefuses_data()
{
    QTest::addColumn<bool>("bLocalConfig");
    QTest::addColumn<bool>("bUserManager");
    QTest::newRow("no configuration service") << false << true;
    QTest::newRow("no user manager") << true << false;
    QTest::newRow("neither") << false << false;
}

void tst_DialogHost::InitWithoutAServiceRefuses()
{
    QFETCH(bool, bLocalConfig);
    QFETCH(bool, bUserManager);
    DIALOG;
    QCOMPARE(d.dialog.Init(bLocalConfig ? &host.localConfig : nullptr, bUserManager ? &host.userManager : nullptr), -1);
    d.dialog.show();
    SDialog::WaitForLayout();
    QCOMPARE(host.journal.Take(), QStringList());
    QVERIFY(host.loginManager.m_listObservers.isEmpty());
    QVERIFY(SFakePages::Instance().mapPages.isEmpty());
    QCOMPARE(d.List()->GetCurrentIndex(), -1);
}

void tst_DialogHost::InitAsksForTheWallRightAndRegistersTheObserver()
{
    DIALOG;
    d.Init();
    QCOMPARE(d.nInitResult, 0);
    QCOMPARE(host.journal.Take(), (QStringList{"GetUserRight", "HasRight 26", "GetLoginManager", "AddObserver"}));
    QVERIFY2(host.userManager.m_listReleased.isEmpty(), "Init keeps the rights object");
}

void tst_DialogHost::TheObserverIsTheSubObject()
{
    DIALOG;
    d.Init();
    KvPluginAPI::IObserver* pObserver = &d.dialog;
    QCOMPARE(host.loginManager.m_listObservers, QList<KvPluginAPI::IObserver*>{pObserver});
    QVERIFY(static_cast<void*>(pObserver) != static_cast<void*>(&d.dialog));
}

void tst_DialogHost::WithoutARightsObjectThereIsNoWall()
{
    DIALOG;
    host.userManager.m_pUserRight = nullptr;
    d.InitAndShow();
    QVERIFY(!d.Box(6)->isVisible());
    QVERIFY(!SFakePages::Instance().mapPages.contains(6));
}

void tst_DialogHost::WithoutALoginManagerTheDialogWorks()
{
    DIALOG;
    host.userManager.m_pLoginManager = nullptr;
    d.InitAndShow();
    QCOMPARE(d.nInitResult, 0);
    d.Click("btnOk");
    QVERIFY(host.journal.Take().contains("SaveAll"));
    QVERIFY(!d.dialog.isVisible());
}

void tst_DialogHost::UnInitReleasesThePagesInOrder()
{
    DIALOG;
    d.InitAndShow();
    d.dialog.hide();
    d.dialog.UnInitUI();
    QCOMPARE(host.journal.Take(), QStringList{"RemoveObserver"} + Each(g_listPageOrder, "UnInit"));
    QVERIFY(host.loginManager.m_listObservers.isEmpty());
}

void tst_DialogHost::UnInitTwiceRemovesTheObserverOnce()
{
    DIALOG;
    d.InitAndShow();
    d.dialog.hide();
    d.dialog.UnInitUI();
    host.journal.Take();
    d.dialog.UnInitUI();
    QCOMPARE(host.journal.Take(), Each(g_listPageOrder, "UnInit"));
}

void tst_DialogHost::TranslationContext()
{
    const CContextMarker marker("CLocalConfig");
    DIALOG;
    d.Init();
    QCOMPARE(d.dialog.windowTitle(), QString("<Local Config>"));
    QCOMPARE(d.Button("btnOk")->text(), QString("<Save>"));
    QCOMPARE(d.Button("btnOther")->text(), QString("<Default>"));
    QCOMPARE(d.Button("btnCancel")->text(), QString("<Cancel>"));
    CNotificationSpy notifications;
    SFakePages::Instance().mapSaveResults[0] = -1;
    d.dialog.show();
    d.Click("btnOk");
    QCOMPARE(notifications.takeFirst().first().toString(),
             QString("<Failed to save configuration, some values are illegal.>"));
    SFakePages::Instance().mapSaveResults.clear();
    host.localConfig.m_nSaveResult = 0;
    d.Click("btnOk");
    QVERIFY(notifications.takeFirst().first().toString().startsWith("<Failed to save config>"));
    for (const SBox& box : g_arrBoxes)
    {
        QCOMPARE(d.Box(box.nIndex)->title(), QStringLiteral("<%1>").arg(box.pszText));
    }
}

QTEST_MAIN(tst_DialogHost)

#include "tst_DialogHost.moc"
