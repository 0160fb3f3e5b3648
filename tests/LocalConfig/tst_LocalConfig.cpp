#include "support/DialogFixture.h"

#include <KvGui/KvHorScrollBar.h>
#include <KvGui/KvVerScrollBar.h>
#include <UICommonModule/Pxa.h>

#include <QAbstractItemView>
#include <QLayout>
#include <QMetaMethod>
#include <QTemporaryDir>
#include <QTranslator>

using namespace LocalConfig;
using KVGUI::KvToolListView;

class tst_LocalConfig : public QObject
{
    Q_OBJECT

private slots:
    void init() { ResetFakePages(); }

    // Host boundary
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

    // Dialog
    void FormTree();
    void GroupBoxes_data();
    void GroupBoxes();
    void GroupBoxTitlesAreEmptyBeforeInit();
    void NavigationEntries();
    void NavigationIconsComeFromTheirFolders_data();
    void NavigationIconsComeFromTheirFolders();
    void ButtonTexts();
    void ScrollBarsAreTheClients();
    void WithoutTheWallRight();
    void PagesAreCreatedAtTheFirstShowInOrder();
    void ShowingAgainCreatesNothing();
    void PagesStandInTheirBoxes_data();
    void PagesStandInTheirBoxes();
    void EachPageGetsItsSection();
    void ANullSectionIsHandedOver();
    void ContentHeightIsComputedInInit();
    void ContentHeightIsComputedAfterTheFirstShow();
    void ContentHeightIsComputedOnResize();
    void AbsentPagesAreSkipped();
    void AlarmRight45_data();
    void AlarmRight45();
    void NoServiceNoPages();
    void ContentHeightCountsEveryBox_data();
    void ContentHeightCountsEveryBox();
    void ContentHeightIsStable();
    void VideoPageGrows();
    void DesktopHeightRule_data();
    void DesktopHeightRule();
    void InitDialogSizeAppliesTheRuleAgain();
    void StyleSheetsComeFromTheSkin();
};

// --- Host boundary

void tst_LocalConfig::MetaObjectOrder()
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

void tst_LocalConfig::InitWithoutAServiceRefuses_data()
{
    QTest::addColumn<bool>("bLocalConfig");
    QTest::addColumn<bool>("bUserManager");
    QTest::newRow("no configuration service") << false << true;
    QTest::newRow("no user manager") << true << false;
    QTest::newRow("neither") << false << false;
}

void tst_LocalConfig::InitWithoutAServiceRefuses()
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

void tst_LocalConfig::InitAsksForTheWallRightAndRegistersTheObserver()
{
    DIALOG;
    d.Init();
    QCOMPARE(d.nInitResult, 0);
    QCOMPARE(host.journal.Take(), (QStringList{"GetUserRight", "HasRight 26", "GetLoginManager", "AddObserver"}));
    QVERIFY2(host.userManager.m_listReleased.isEmpty(), "Init keeps the rights object");
}

void tst_LocalConfig::TheObserverIsTheSubObject()
{
    DIALOG;
    d.Init();
    KvPluginAPI::IObserver* pObserver = &d.dialog;
    QCOMPARE(host.loginManager.m_listObservers, QList<KvPluginAPI::IObserver*>{pObserver});
    QVERIFY(static_cast<void*>(pObserver) != static_cast<void*>(&d.dialog));
}

void tst_LocalConfig::WithoutARightsObjectThereIsNoWall()
{
    DIALOG;
    host.userManager.m_pUserRight = nullptr;
    d.InitAndShow();
    QVERIFY(!d.Box(6)->isVisible());
    QVERIFY(!SFakePages::Instance().mapPages.contains(6));
}

void tst_LocalConfig::WithoutALoginManagerTheDialogWorks()
{
    DIALOG;
    host.userManager.m_pLoginManager = nullptr;
    d.InitAndShow();
    QCOMPARE(d.nInitResult, 0);
    d.Click("btnOk");
    QVERIFY(host.journal.Take().contains("SaveAll"));
    QVERIFY(!d.dialog.isVisible());
}

void tst_LocalConfig::UnInitReleasesThePagesInOrder()
{
    DIALOG;
    d.InitAndShow();
    d.dialog.hide();
    d.dialog.UnInitUI();
    QCOMPARE(host.journal.Take(), QStringList{"RemoveObserver"} + Each(g_listPageOrder, "UnInit"));
    QVERIFY(host.loginManager.m_listObservers.isEmpty());
}

void tst_LocalConfig::UnInitTwiceRemovesTheObserverOnce()
{
    DIALOG;
    d.InitAndShow();
    d.dialog.hide();
    d.dialog.UnInitUI();
    host.journal.Take();
    d.dialog.UnInitUI();
    QCOMPARE(host.journal.Take(), Each(g_listPageOrder, "UnInit"));
}

void tst_LocalConfig::TranslationContext()
{
    class CTranslator : public QTranslator
    {
    public:
        QString translate(const char* pszContext, const char* pszText, const char*, int) const override
        {
            return qstrcmp(pszContext, "CLocalConfig") == 0 ? QStringLiteral("<%1>").arg(pszText) : QString();
        }
        bool isEmpty() const override { return false; }
    } translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    DIALOG;
    d.Init();
    QCOMPARE(d.dialog.windowTitle(), QString("<Local Config>"));
    QCOMPARE(d.Button("btnOk")->text(), QString("<Save>"));
    QCOMPARE(d.Button("btnOther")->text(), QString("<Default>"));
    QCOMPARE(d.Button("btnCancel")->text(), QString("<Cancel>"));
    NOTIFICATIONS;
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

// --- Dialog

void tst_LocalConfig::FormTree()
{
    DIALOG;
    QWidget* pCentral = d.dialog.GetCentralWidget();
    QCOMPARE(pCentral->objectName(), QString("CLocalConfig"));
    QCOMPARE(d.dialog.objectName(), QString("CLocalConfig"));
    QCOMPARE(pCentral->minimumSize(), QSize(943, 607));
    QCOMPARE(pCentral->maximumSize(), QSize(943, 607));

    const auto layout = [&d](const char* pszName) { return d.dialog.findChild<QBoxLayout*>(pszName); };
    const auto check = [&](const char* pszName, QBoxLayout::Direction eDirection, int nSpacing, QMargins margins) {
        QBoxLayout* pLayout = layout(pszName);
        QVERIFY2(pLayout, pszName);
        QCOMPARE(pLayout->direction(), eDirection);
        QCOMPARE(pLayout->spacing(), nSpacing);
        QCOMPARE(pLayout->contentsMargins(), margins);
    };
    check("verticalLayout_2", QBoxLayout::TopToBottom, 0, QMargins(1, 0, 1, 1));
    check("horizontalLayout", QBoxLayout::LeftToRight, 0, QMargins(0, 0, 0, 1));
    check("verticalLayout_3", QBoxLayout::TopToBottom, 0, QMargins(12, 12, 12, 12));
    check("verticalLayout", QBoxLayout::TopToBottom, 19, QMargins(12, 12, 0, 12));
    QCOMPARE(pCentral->layout(), layout("verticalLayout_2"));

    auto* pCenter = d.dialog.findChild<QWidget*>("centerWidget");
    QCOMPARE(pCenter->parentWidget(), pCentral);
    QCOMPARE(pCenter->layout(), layout("horizontalLayout"));
    auto* pPane = d.dialog.findChild<QWidget*>("widget");
    QCOMPARE(layout("horizontalLayout")->indexOf(pPane), 0);
    QCOMPARE(layout("horizontalLayout")->indexOf(d.ScrollArea()), 1);
    QCOMPARE(pPane->parentWidget(), pCenter);
    QCOMPARE(pPane->minimumSize(), QSize(254, 0));
    QCOMPARE(pPane->maximumSize(), QSize(254, QWIDGETSIZE_MAX));
    QCOMPARE(pPane->layout(), layout("verticalLayout_3"));

    QCOMPARE(d.List()->parentWidget(), pPane);
    QCOMPARE(d.List()->frameShape(), QFrame::StyledPanel);
    QCOMPARE(d.List()->frameShadow(), QFrame::Raised);

    QScrollArea* pArea = d.ScrollArea();
    QCOMPARE(pArea->parentWidget(), pCenter);
    QCOMPARE(pArea->frameShape(), QFrame::NoFrame);
    QCOMPARE(pArea->horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
    QVERIFY(pArea->widgetResizable());
    QCOMPARE(pArea->widget(), d.Contents());
    QCOMPARE(d.Contents()->sizePolicy().horizontalPolicy(), QSizePolicy::Preferred);
    QCOMPARE(d.Contents()->sizePolicy().verticalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(d.Contents()->layout(), layout("verticalLayout"));
    QCOMPARE(layout("verticalLayout")->count(), 9);
}

void tst_LocalConfig::GroupBoxes_data()
{
    BoxRows();
}

void tst_LocalConfig::GroupBoxes()
{
    QFETCH(int, nIndex);
    const SBox& expected = g_arrBoxes[nIndex];
    DIALOG;
    d.Init();
    CGroupBox* pBox = d.Box(nIndex);
    QVERIFY(pBox);
    QCOMPARE(d.Contents()->layout()->indexOf(pBox), nIndex);
    QCOMPARE(pBox->minimumSize(), QSize(662, expected.nMinimumHeight));
    QCOMPARE(pBox->maximumSize(), QSize(662, QWIDGETSIZE_MAX));
    QCOMPARE(pBox->GetIndex(), nIndex);
    QCOMPARE(pBox->title(), QString(expected.pszText));
    auto* pLayout = qobject_cast<QHBoxLayout*>(pBox->layout());
    QVERIFY(pLayout);
    QCOMPARE(pLayout->objectName(), QString(expected.pszLayout));
    QCOMPARE(pLayout->spacing(), 0);
    QCOMPARE(pLayout->contentsMargins(), QMargins());
}

void tst_LocalConfig::GroupBoxTitlesAreEmptyBeforeInit()
{
    DIALOG;
    for (const SBox& box : g_arrBoxes)
    {
        QVERIFY(d.Box(box.nIndex)->title().isEmpty());
        QCOMPARE(d.Box(box.nIndex)->GetIndex(), -1);
    }
}

void tst_LocalConfig::NavigationEntries()
{
    DIALOG;
    d.InitAndShow();
    const auto* pView = qobject_cast<QAbstractItemView*>(d.List());
    QCOMPARE(pView->model()->rowCount(), 9);
    for (const SBox& box : g_arrBoxes)
    {
        QCOMPARE(pView->model()->index(box.nIndex, 0).data().toString(), QString(box.pszText));
    }
    d.List()->setFocus();
    QTest::keyClick(d.List(), Qt::Key_Home);
    for (int n = 1; n < 9; ++n)
    {
        QTest::keyClick(d.List(), Qt::Key_Down);
        QCOMPARE(d.List()->GetCurrentIndex(), n);
    }
    QTest::keyClick(d.List(), Qt::Key_Down);
    QCOMPARE(d.List()->GetCurrentIndex(), 8);
}

void tst_LocalConfig::NavigationIconsComeFromTheirFolders_data()
{
    QTest::addColumn<int>("nIndex");
    QTest::addColumn<int>("nMode");
    QTest::addColumn<QString>("strFolder");
    QTest::addColumn<QString>("strFile");
    struct SIcon
    {
        const char* pszName;
        const char* arrFolders[3];
    };
    constexpr const char* P = "public";
    constexpr const char* L = "LocalConfig";
    const SIcon arrIcons[] = {{"general", {P, P, P}},   {"video", {L, L, L}},          {"playback", {P, P, L}},
                              {"capture", {P, L, L}},   {"videorecord", {P, P, P}},    {"alert", {L, L, L}},
                              {"settvwall", {L, L, L}}, {"SecurityConfig", {L, L, L}}, {"shortcut", {L, L, L}}};
    const char* const arrSuffixes[] = {"-n.svg", "-h.svg", "-p.svg"};
    const QIcon::Mode arrModes[] = {QIcon::Normal, QIcon::Active, QIcon::Selected};
    for (int nIndex = 0; nIndex < 9; ++nIndex)
    {
        for (int n = 0; n < 3; ++n)
        {
            const QString strFile = QString(arrIcons[nIndex].pszName) + arrSuffixes[n];
            QTest::newRow(qPrintable(strFile))
                << nIndex << int(arrModes[n]) << arrIcons[nIndex].arrFolders[n] << strFile;
        }
    }
}

void tst_LocalConfig::NavigationIconsComeFromTheirFolders()
{
    // A resource folder with one file in it: the icon of one mode of one entry is not empty, all others are.
    QFETCH(int, nIndex);
    QFETCH(int, nMode);
    QFETCH(QString, strFolder);
    QFETCH(QString, strFile);

    const QByteArray strResources = qgetenv("KV_CLIENT_RESOURCES");
    QTemporaryDir folder;
    qputenv("KV_CLIENT_RESOURCES", folder.path().toLocal8Bit());
    const QString strPath = Pxa::GetSkinPath(strFolder, QString());
    QVERIFY(strPath.startsWith(folder.path()));
    QVERIFY(QDir().mkpath(strPath));
    QFile file(strPath + strFile);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 20 20'><rect width='20' height='20'/></svg>");
    file.close();

    DIALOG;
    d.Init();
    qputenv("KV_CLIENT_RESOURCES", strResources);
    auto* pView = qobject_cast<QAbstractItemView*>(d.List());
    if (!pView)
    {
        pView = d.List()->findChild<QAbstractItemView*>();
    }
    QVERIFY(pView);
    QCOMPARE(pView->model()->rowCount(), 9);
    for (int nRow = 0; nRow < 9; ++nRow)
    {
        const QIcon icon = pView->model()->index(nRow, 0).data(Qt::DecorationRole).value<QIcon>();
        for (int nOther : {int(QIcon::Normal), int(QIcon::Active), int(QIcon::Selected)})
        {
            const QPixmap pixmap = icon.pixmap(QSize(20, 20), QIcon::Mode(nOther), QIcon::Off);
            QCOMPARE(!pixmap.isNull(), nRow == nIndex && nOther == nMode);
        }
    }
}

void tst_LocalConfig::ButtonTexts()
{
    DIALOG;
    d.Init();
    QCOMPARE(d.Button("btnOk")->text(), QString("Save"));
    QCOMPARE(d.Button("btnOther")->text(), QString("Default"));
    QCOMPARE(d.Button("btnCancel")->text(), QString("Cancel"));
    QCOMPARE(d.dialog.windowTitle(), QString("Local Config"));
}

void tst_LocalConfig::ScrollBarsAreTheClients()
{
    DIALOG;
    d.Init();
    QVERIFY(qobject_cast<KVGUI::KvHorScrollBar*>(d.ScrollArea()->horizontalScrollBar()));
    QVERIFY(qobject_cast<KVGUI::KvVerScrollBar*>(d.ScrollArea()->verticalScrollBar()));
    QCOMPARE(d.ScrollArea()->horizontalScrollBar()->contextMenuPolicy(), Qt::NoContextMenu);
    QCOMPARE(d.ScrollArea()->verticalScrollBar()->contextMenuPolicy(), Qt::NoContextMenu);
}

void tst_LocalConfig::WithoutTheWallRight()
{
    DIALOG;
    host.userRight.m_setMissing = {26};
    d.InitAndShow();
    QVERIFY(!d.Box(6)->isVisible());
    QVERIFY(d.Box(6)->title().isEmpty());
    QCOMPARE(d.Box(6)->GetIndex(), 6);
    QVERIFY(!SFakePages::Instance().mapPages.contains(6));
    QCOMPARE(SFakePages::Instance().mapPages.size(), 8);
    QCOMPARE(qobject_cast<QAbstractItemView*>(d.List())->model()->rowCount(), 8);

    d.List()->setFocus();
    QTest::keyClick(d.List(), Qt::Key_Home);
    QList<int> listIndices = {d.List()->GetCurrentIndex()};
    for (int n = 1; n < 8; ++n)
    {
        QTest::keyClick(d.List(), Qt::Key_Down);
        listIndices += d.List()->GetCurrentIndex();
    }
    QCOMPARE(listIndices, (QList<int>{0, 1, 2, 3, 4, 5, 7, 8}));
}

void tst_LocalConfig::PagesAreCreatedAtTheFirstShowInOrder()
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

void tst_LocalConfig::ShowingAgainCreatesNothing()
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

void tst_LocalConfig::PagesStandInTheirBoxes_data()
{
    BoxRows();
}

void tst_LocalConfig::PagesStandInTheirBoxes()
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

void tst_LocalConfig::EachPageGetsItsSection()
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

void tst_LocalConfig::ContentHeightIsComputedInInit()
{
    DIALOG;
    d.Init();
    QCOMPARE(d.Contents()->minimumHeight(), 4165);
    QCOMPARE(d.Contents()->maximumHeight(), 4165);
}

void tst_LocalConfig::ContentHeightIsComputedAfterTheFirstShow()
{
    DIALOG;
    d.Init();
    d.dialog.show();
    d.Contents()->setFixedHeight(1000);
    SDialog::WaitForLayout();
    QCOMPARE(d.Contents()->minimumHeight(), 4165);
}

void tst_LocalConfig::ContentHeightIsComputedOnResize()
{
    DIALOG;
    d.InitAndShow();
    d.Contents()->setFixedHeight(1000);
    QResizeEvent event(d.dialog.size(), d.dialog.size());
    QApplication::sendEvent(&d.dialog, &event);
    QCOMPARE(d.Contents()->minimumHeight(), 4165);
    QCOMPARE(d.Contents()->maximumHeight(), 4165);
}

void tst_LocalConfig::ANullSectionIsHandedOver()
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

void tst_LocalConfig::AbsentPagesAreSkipped()
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

void tst_LocalConfig::AlarmRight45_data()
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

void tst_LocalConfig::AlarmRight45()
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

void tst_LocalConfig::NoServiceNoPages()
{
    DIALOG;
    d.Init();
    d.dialog.UnInitUI();
    d.dialog.show();
    QVERIFY(SFakePages::Instance().mapPages.isEmpty());
}

void tst_LocalConfig::ContentHeightCountsEveryBox_data()
{
    QTest::addColumn<bool>("bWall");
    QTest::newRow("with the wall") << true;
    QTest::newRow("the hidden wall box counts, too") << false;
}

void tst_LocalConfig::ContentHeightCountsEveryBox()
{
    QFETCH(bool, bWall);
    DIALOG;
    if (!bWall)
    {
        host.userRight.m_setMissing = {26};
    }
    d.InitAndShow();
    int nHeight = 8 * 19 + 12 + 12;
    for (const SBox& box : g_arrBoxes)
    {
        nHeight += box.nMinimumHeight;
        QCOMPARE(d.Box(box.nIndex)->height(), box.nMinimumHeight);
    }
    QCOMPARE(d.Contents()->minimumHeight(), nHeight);
    QCOMPARE(d.Contents()->maximumHeight(), nHeight);
    QCOMPARE(d.Contents()->height(), nHeight);
}

void tst_LocalConfig::ContentHeightIsStable()
{
    DIALOG;
    host.userRight.m_setMissing = {26};
    d.InitAndShow();
    const int nHeight = d.Contents()->height();
    for (int n = 0; n < 3; ++n)
    {
        QVERIFY(QMetaObject::invokeMethod(&d.dialog, "OnAdjustVerticalScrollBar"));
        SDialog::WaitForLayout();
    }
    QCOMPARE(d.Contents()->height(), nHeight);
}

void tst_LocalConfig::VideoPageGrows()
{
    DIALOG;
    d.InitAndShow();
    const int nHeight = d.Contents()->height();
    CFakePage* pVideo = SFakePages::Instance().mapPages.value(1);
    pVideo->setMinimumHeight(1000);
    emit pVideo->SignalChangeSize();
    QVERIFY(d.Box(1)->height() >= 1000);
    QCOMPARE(d.Contents()->height(), nHeight + d.Box(1)->height() - 841);
    QCOMPARE(d.Contents()->minimumHeight(), d.Contents()->maximumHeight());
    QCOMPARE(d.ScrollBar()->maximum(), d.Contents()->height() - d.ScrollArea()->viewport()->height());
    const int nGrown = d.Contents()->height();
    SDialog::WaitForLayout();
    QCOMPARE(d.Contents()->height(), nGrown);
    QVERIFY(d.Box(1)->height() >= 1000);
}

void tst_LocalConfig::DesktopHeightRule_data()
{
    QTest::addColumn<int>("nDesktop");
    QTest::addColumn<bool>("bLow");
    QTest::newRow("768") << 768 << true;
    QTest::newRow("769") << 769 << false;
    QTest::newRow("1080") << 1080 << false;
}

void tst_LocalConfig::DesktopHeightRule()
{
    QFETCH(int, nDesktop);
    QFETCH(bool, bLow);
    const QRect desktop = QApplication::desktop()->geometry();
    QApplication::desktop()->setGeometry(0, 0, 1366, nDesktop);
    DIALOG;
    QApplication::desktop()->setGeometry(desktop);
    d.InitAndShow();
    if (bLow)
    {
        QCOMPARE(d.dialog.height(), 680);
    }
    else
    {
        QVERIFY(d.dialog.height() > 680);
    }
    QCOMPARE(d.dialog.GetCentralWidget()->size(), QSize(943, 607));
    for (const char* pszButton : {"btnOk", "btnOther", "btnCancel"})
    {
        const QAbstractButton* pButton = d.Button(pszButton);
        const QRect button(pButton->mapTo(&d.dialog, QPoint()), pButton->size());
        const QRect central(d.dialog.GetCentralWidget()->mapTo(&d.dialog, QPoint()),
                            d.dialog.GetCentralWidget()->size());
        QVERIFY(d.dialog.rect().contains(button));
        QVERIFY(!central.intersects(button));
        QVERIFY(pButton->height() >= pButton->sizeHint().height());
    }
}

void tst_LocalConfig::InitDialogSizeAppliesTheRuleAgain()
{
    DIALOG;
    d.InitAndShow();
    d.dialog.InitDialogSize();
    QVERIFY(d.dialog.height() > 680);
    const QRect desktop = QApplication::desktop()->geometry();
    QApplication::desktop()->setGeometry(0, 0, 1366, 768);
    d.dialog.InitDialogSize();
    QApplication::desktop()->setGeometry(desktop);
    QCOMPARE(d.dialog.height(), 680);
}

void tst_LocalConfig::StyleSheetsComeFromTheSkin()
{
    const QByteArray strResources = qgetenv("KV_CLIENT_RESOURCES");
    QTemporaryDir folder;
    qputenv("KV_CLIENT_RESOURCES", folder.path().toLocal8Bit());
    {
        DIALOG;
        QVERIFY2(d.dialog.styleSheet().isEmpty() && d.Box(0)->styleSheet().isEmpty(), "no file, no sheet");
    }
    const QString strPath = Pxa::GetSkinPath("LocalConfig", QString());
    QVERIFY(QDir().mkpath(strPath));
    for (const char* pszName : {"CLocalConfig", "CGroupBox"})
    {
        QFile file(strPath + pszName + ".qss");
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(QByteArray("QLabel { color: red } /*") + pszName + "*/");
    }
    DIALOG;
    qputenv("KV_CLIENT_RESOURCES", strResources);
    QCOMPARE(d.dialog.styleSheet(), QString("QLabel { color: red } /*CLocalConfig*/"));
    for (const SBox& box : g_arrBoxes)
    {
        QCOMPARE(d.Box(box.nIndex)->styleSheet(), QString("QLabel { color: red } /*CGroupBox*/"));
    }
}

QTEST_MAIN(tst_LocalConfig)

#include "tst_LocalConfig.moc"
