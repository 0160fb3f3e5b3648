#include "support/DialogFixture.h"

#include <QLayout>

class tst_DialogPages : public QObject
{
    Q_OBJECT

private slots:
    void init() { ResetFakePages(); }

    void PagesAreCreatedAtTheFirstShowInOrder();
    void ShowingAgainCreatesNothing();
    void PagesStandInTheirBoxes_data();
    void PagesStandInTheirBoxes();
    void EachPageGetsItsSection();
    void ANullSectionIsHandedOver();
    void AbsentPagesAreSkipped();
    void AlarmRight45_data();
    void AlarmRight45();
    void NoServiceNoPages();
};

void tst_DialogPages::PagesAreCreatedAtTheFirstShowInOrder()
{
    DIALOG;
    d.Init();
    QVERIFY(SFakePages::Instance().mapPages.isEmpty());
    host.journal.Take();
    d.dialog.show();
    QCOMPARE(host.journal.Take(),
             (QStringList{"GetSection 1",     "Basic SetSection",      "GetSection 2",     "Video SetSection",
                          "GetSection 3",     "Playback SetSection",   "GetSection 4",     "Snapshot SetSection",
                          "GetSection 5",     "Record SetSection",     "GetUserRight",     "HasRight 45",
                          "ReleaseUserRight", "GetSection 6",          "Alarm SetSection", "Alarm ApplyConfigXml",
                          "GetSection 8",     "TvWall SetSection",     "GetSection 9",     "Security SetSection",
                          "GetSection 7",     "ShortcutKey SetSection"}));
}

void tst_DialogPages::ShowingAgainCreatesNothing()
{
    DIALOG;
    d.InitAndShow();
    const QMap<int, CFakePage*> mapPages = SFakePages::Instance().mapPages;
    d.dialog.hide();
    d.dialog.show();
    QCOMPARE(host.journal.Take(), QStringList());
    QCOMPARE(SFakePages::Instance().mapPages, mapPages);
    QCOMPARE(d.dialog.findChildren<CFakePage*>().size(), 9);
}

void tst_DialogPages::PagesStandInTheirBoxes_data()
{
    BoxRows();
}

void tst_DialogPages::PagesStandInTheirBoxes()
{
    QFETCH(int, nIndex);
    DIALOG;
    d.InitAndShow();
    CFakePage* pPage = SFakePages::Instance().mapPages.value(nIndex);
    QVERIFY(pPage);
    QCOMPARE(pPage->objectName(), QString(g_arrBoxes[nIndex].pszPage));
    QCOMPARE(pPage->parentWidget(), d.Box(nIndex));
    QCOMPARE(d.Box(nIndex)->layout()->indexOf(pPage), 0);
    QCOMPARE(pPage->minimumSize(), QSize(0, 0));
    const QSizePolicy policy = pPage->sizePolicy();
    QCOMPARE(policy.horizontalPolicy(), QSizePolicy::Preferred);
    QCOMPARE(policy.verticalPolicy(), QSizePolicy::Preferred);
    QCOMPARE(policy.horizontalStretch(), 0);
    QCOMPARE(policy.verticalStretch(), 0);
    QCOMPARE(policy.hasHeightForWidth(), nIndex == 1); // as the page itself had it
    QVERIFY(pPage->isVisible());
}

void tst_DialogPages::EachPageGetsItsSection()
{
    class CSection : public LocalConfigLogical::IConfigSection
    {};
    CSection arrSections[9];
    DIALOG;
    for (const SBox& box : g_arrBoxes)
    {
        host.localConfig.m_mapSections.insert(box.nSectionType, &arrSections[box.nIndex]);
    }
    d.InitAndShow();
    for (const SBox& box : g_arrBoxes)
    {
        QCOMPARE(SFakePages::Instance().mapPages.value(box.nIndex)->m_pSection, &arrSections[box.nIndex]);
    }
}

void tst_DialogPages::ANullSectionIsHandedOver()
{
    DIALOG;
    d.Init();
    host.journal.Take();
    d.dialog.show();
    QVERIFY(host.journal.Take().contains("Basic SetSection"));
    for (CFakePage* pPage : qAsConst(SFakePages::Instance().mapPages))
    {
        QVERIFY(!pPage->m_pSection);
    }
}

void tst_DialogPages::AbsentPagesAreSkipped()
{
    DIALOG;
    SFakePages::Instance().setAbsent = {1, 2, 3, 4, 5, 6, 7, 8};
    d.InitAndShow();
    d.Click("btnOther");
    QCOMPARE(host.journal.Take(), QStringList{"Basic LoadConfig true"});
    host.loginManager.Notify(3, 0);
    QCOMPARE(host.journal.Take(), QStringList{"Basic SetControlsEnabled false"});
    host.loginManager.Notify(2, 0);
    host.journal.Take();
    d.Click("btnOk");
    QCOMPARE(host.journal.Take(), (QStringList{"Basic SaveConfig", "SaveAll"}));
}

void tst_DialogPages::AlarmRight45_data()
{
    QTest::addColumn<bool>("bRightsObject");
    QTest::addColumn<bool>("bRight");
    QTest::addColumn<QStringList>("listCalls");
    QTest::newRow("held") << true << true << QStringList{"GetUserRight", "HasRight 45",      "ReleaseUserRight",
                                                         "GetSection 6", "Alarm SetSection", "Alarm ApplyConfigXml"};
    QTest::newRow("missing") << true << false
                             << QStringList{"GetUserRight",        "HasRight 45",  "Alarm MarkNoRight45",
                                            "ReleaseUserRight",    "GetSection 6", "Alarm SetSection",
                                            "Alarm ApplyConfigXml"};
    QTest::newRow("no rights object") << false << true
                                      << QStringList{"GetUserRight", "Alarm MarkNoRight45", "GetSection 6",
                                                     "Alarm SetSection", "Alarm ApplyConfigXml"};
}

void tst_DialogPages::AlarmRight45()
{
    QFETCH(bool, bRightsObject);
    QFETCH(bool, bRight);
    QFETCH(QStringList, listCalls);
    DIALOG;
    SFakePages::Instance().setAbsent = {0, 1, 2, 3, 4, 6, 7, 8};
    if (!bRight)
    {
        host.userRight.m_setMissing = {45};
    }
    host.userManager.m_pUserRight = bRightsObject ? &host.userRight : nullptr;
    d.Init();
    host.journal.Take();
    d.dialog.show();
    QCOMPARE(host.journal.Take(), listCalls);
    const QList<UserLogical::IUserRight*> listHandedBack = {&host.userRight};
    QCOMPARE(host.userManager.m_listReleased, bRightsObject ? listHandedBack : QList<UserLogical::IUserRight*>());
}

void tst_DialogPages::NoServiceNoPages()
{
    DIALOG;
    d.Init();
    d.dialog.UnInitUI();
    d.dialog.show();
    QVERIFY(SFakePages::Instance().mapPages.isEmpty());
}

QTEST_MAIN(tst_DialogPages)

#include "tst_DialogPages.moc"
