#include "support/ClientWindow.h"
#include "support/FakeHost.h"

#include <client/alarm/AlarmSounds.h>
#include <client/alarm/MapView.h>
#include <client/live/SplitView.h>

#include <UICommonModule/CAlarmType.h>

#include <QComboBox>
#include <QLabel>
#include <QScreen>

#include <algorithm>

using namespace LocalConfigClient;

class tst_MainWindow : public CClientTest
{
    Q_OBJECT

private slots:
    void init() { Reset(); }

    void SavingShowsSplitAndScaleAtOnce();
    void TheWindowShowsTheSettings();
    void TheTimeZoneIsShownWhenAskedFor_data();
    void TheTimeZoneIsShownWhenAskedFor();

    void TheSelectedPaneIsTheOneClicked();
    void TheRecordedPaneIsMarked();
    void EnterAndDoubleClickShowOneWindow();
    void TheNetworkKeyboardSwitchesTheKeysOff();
    void SavingTheKeyboardTakesEffectAtOnce();
    void KeysLeadIntoAndOutOfFullScreen();
    void ALockedClientHearsNoKeys();

    void TheTestAlarmStartsAtATypeThatFlashes_data();
    void TheTestAlarmStartsAtATypeThatFlashes();
    void LossAndReturnOfTheConnectionAreTold();
    void TheLossIsToldAgainInADialogThatOpensLocked();
    void TheWindowFitsTheScreenWithItsFrame_data();
    void TheWindowFitsTheScreenWithItsFrame();
    void TheSettingsOpenOnceTheWindowIsSeen();

    void AMarkerOfTheMapChoosesAnAlarmType();
    void ATestAlarmThatNobodyCanHearSaysSoOnce();
};

void tst_MainWindow::SavingShowsSplitAndScaleAtOnce()
{
    {
        SHOWN_CLIENT;
        InDialog(window, [](QDialog& dialog) {
            Click(dialog, "btnShowSplitWnd");
            Click(dialog, "btnDiv13");
            QTest::keyClick(Find<QComboBox>(dialog, "pCmbScale"), Qt::Key_Up);
            Click(dialog, "btnOk");
        });
        QCOMPARE(window.findChild<SplitView*>()->GetSplit(), 13);
        QCOMPARE(window.findChild<SplitView*>()->GetDisplayScale(), 0);
    }
    ConfigService service(m_pFolder->path(), SettingsFile::ReadWrite);
    UserManager users({}, nullptr);
    const MainWindow window(service, users);
    QCOMPARE(window.findChild<SplitView*>()->GetSplit(), 13);
    QCOMPARE(window.findChild<SplitView*>()->GetDisplayScale(), 0);
}

void tst_MainWindow::TheWindowShowsTheSettings()
{
    ConfigService service(m_pFolder->path(), SettingsFile::ReadWrite);
    UserManager users({}, nullptr);
    MainWindow window(service, users);
    QCOMPARE(window.findChild<SplitView*>()->GetSplit(), 4);
    QCOMPARE(window.size(), QSize(1440, 900).boundedTo(window.screen()->availableSize()));
    QCOMPARE(window.findChild<QLabel*>("connection")->text(), QString("Connected"));
}

void tst_MainWindow::TheTimeZoneIsShownWhenAskedFor_data()
{
    QTest::addColumn<bool>("bShow");
    QTest::newRow("off") << false;
    QTest::newRow("on") << true;
}

void tst_MainWindow::TheTimeZoneIsShownWhenAskedFor()
{
    QFETCH(bool, bShow);
    Settings settings;
    settings.basic.showTimeZone = bShow;
    Store(settings);
    ConfigService service(m_pFolder->path(), SettingsFile::ReadWrite);
    UserManager users({}, nullptr);
    const MainWindow window(service, users);
    QCOMPARE(window.findChild<QLabel*>("timeZone")->text().startsWith("UTC"), bShow);
}

void tst_MainWindow::TheSelectedPaneIsTheOneClicked()
{
    CLIENT;
    auto* pView = window.findChild<SplitView*>();
    QCOMPARE(pView->GetSelected(), 0);
    QTest::mouseClick(pView, Qt::LeftButton, {}, SplitView::GetPanes(4, pView->rect())[2].center());
    QCOMPARE(pView->GetSelected(), 2);
    pView->SetSplit(1);
    QCOMPARE(pView->GetSelected(), 0);
    pView->Select(1);
    QCOMPARE(pView->GetSelected(), 0);
}

void tst_MainWindow::TheRecordedPaneIsMarked()
{
    SHOWN_CLIENT;
    auto* pView = window.findChild<SplitView*>();
    pView->Select(2);
    for (const char* pszDescription : {"Camera 03, recorded", "Camera 03"})
    {
        QTest::mouseClick(window.findChild<QAbstractButton*>("btnRecord"), Qt::LeftButton);
        QTRY_COMPARE(pView->accessibleDescription(), QString(pszDescription));
    }
}

void tst_MainWindow::EnterAndDoubleClickShowOneWindow()
{
    CLIENT;
    auto* pView = window.findChild<SplitView*>();
    QTest::keyClick(&window, Qt::Key_Return);
    QVERIFY(pView->IsSingleWindow());
    QTest::keyClick(&window, Qt::Key_Enter);
    QVERIFY(!pView->IsSingleWindow());
    QTest::mouseDClick(pView, Qt::LeftButton, {}, SplitView::GetPanes(4, pView->rect())[3].center());
    QVERIFY(pView->IsSingleWindow());
    QCOMPARE(pView->GetSelected(), 3);
}

void tst_MainWindow::TheNetworkKeyboardSwitchesTheKeysOff()
{
    Settings settings;
    settings.shortcutKey.pcKeyboard = false;
    Store(settings);
    CLIENT;
    QTest::keyClick(&window, Qt::Key_P);
    QTest::keyClick(&window, Qt::Key_P, Qt::ControlModifier);
    QTest::keyClick(&window, Qt::Key_F, Qt::ControlModifier);
    QTest::keyClick(&window, Qt::Key_L, Qt::ControlModifier);
    QVERIFY(!window.isFullScreen());
    QVERIFY(window.findChild<SplitView*>()->isVisible());
    QTest::qWait(200);
    QVERIFY(!QFileInfo::exists("Picture"));
}

void tst_MainWindow::SavingTheKeyboardTakesEffectAtOnce()
{
    CLIENT;
    QTest::keyClick(&window, Qt::Key_F, Qt::ControlModifier);
    QVERIFY(window.isFullScreen());
    window.SetFullScreen(false);
    InDialog(window, [](QDialog& dialog) {
        auto* pNetwork = Find<QAbstractButton>(dialog, "nkbRadioBtn");
        QTest::mouseClick(pNetwork, Qt::LeftButton, {}, QPoint(8, pNetwork->height() / 2));
        Click(dialog, "btnOk");
    });
    QApplication::setActiveWindow(&window);
    QTest::keyClick(&window, Qt::Key_F, Qt::ControlModifier);
    QVERIFY(!window.isFullScreen());
}

void tst_MainWindow::KeysLeadIntoAndOutOfFullScreen()
{
    CLIENT;
    const auto* pButton = window.findChild<QAbstractButton*>("btnSettings");
    QTest::keyClick(&window, Qt::Key_F, Qt::ControlModifier);
    QVERIFY(window.isFullScreen());
    QVERIFY(!pButton->isVisible());
    QTest::keyClick(&window, Qt::Key_Escape);
    QVERIFY(!window.isFullScreen());
    QVERIFY(pButton->isVisible());
}

void tst_MainWindow::ALockedClientHearsNoKeys()
{
    CLIENT;
    QTest::keyClick(&window, Qt::Key_L, Qt::ControlModifier);
    auto* pUnlock = window.findChild<QAbstractButton*>("btnUnlock");
    QVERIFY(pUnlock->isVisible());
    QVERIFY(pUnlock->hasFocus());
    QVERIFY(!window.findChild<SplitView*>()->isVisible());
    QTest::keyClick(&window, Qt::Key_P);
    QTest::keyClick(&window, Qt::Key_F, Qt::ControlModifier);
    QTest::keyClick(&window, Qt::Key_Comma, Qt::ControlModifier);
    QVERIFY(!window.isFullScreen());
    QVERIFY(!QApplication::activeModalWidget());
    QTest::qWait(200);
    QVERIFY(!QFileInfo::exists("Picture"));
    QTest::keyClick(pUnlock, Qt::Key_Return);
    QVERIFY(window.findChild<SplitView*>()->isVisible());
    QTest::keyClick(&window, Qt::Key_P);
    QTRY_COMPARE(Files("Picture").size(), 1);
}

void tst_MainWindow::TheTestAlarmStartsAtATypeThatFlashes_data()
{
    QTest::addColumn<QList<int>>("listStill"); // categories that do not flash
    QTest::addColumn<int>("nCategory");
    QTest::newRow("as delivered") << QList<int>() << 2;
    QTest::newRow("others chosen") << QList<int>{2, 3} << 4;
}

void tst_MainWindow::TheTestAlarmStartsAtATypeThatFlashes()
{
    QFETCH(QList<int>, listStill);
    QFETCH(int, nCategory);
    Settings settings;
    for (const int nStill : listStill)
    {
        settings.alarm.flashCategories[nStill] = false;
    }
    Store(settings);
    ConfigService service(m_pFolder->path(), SettingsFile::ReadWrite);
    service.SeedAlarms(*UICommonMdl::CAlarmType::Instance());
    UserManager users({}, nullptr);
    MainWindow window(service, users);
    window.show();
    QTest::mouseClick(window.findChild<QAbstractButton*>("btnTestAlarm"), Qt::LeftButton);
    QVERIFY(window.findChild<MapView*>()->IsFlashing());
    QCOMPARE(window.findChild<MapView*>()->GetFlashingCategory(), nCategory);
}

void tst_MainWindow::LossAndReturnOfTheConnectionAreTold()
{
    SFakeHost host;
    ConfigService service(m_pFolder->path(), SettingsFile::ReadWrite);
    MainWindow window(service, host.userManager);
    window.show();
    QApplication::setActiveWindow(&window);
    CNotificationSpy spy;
    host.loginManager.Notify(3, 0);
    host.loginManager.Notify(3, 1); // the same again
    QTRY_COMPARE(window.findChild<QLabel*>("connection")->text(), QString("Disconnected"));
    QCOMPARE(spy.size(), 1);
    QVERIFY(spy[0][0].toString().contains("lost"));
    host.loginManager.Notify(2, 0);
    QTRY_COMPARE(spy.size(), 2);
    QVERIFY(spy[1][0].toString().contains("back"));
    const QList<QLabel*> listTexts = window.findChildren<QLabel*>("notifyText");
    const auto nShown =
        std::count_if(listTexts.begin(), listTexts.end(), [](QLabel* pText) { return pText->isVisible(); });
    QCOMPARE(int(nShown), 1); // the loss is not true any more
}

void tst_MainWindow::TheLossIsToldAgainInADialogThatOpensLocked()
{
    SFakeHost host;
    ConfigService service(m_pFolder->path(), SettingsFile::ReadWrite);
    MainWindow window(service, host.userManager);
    window.show();
    QApplication::setActiveWindow(&window);
    CNotificationSpy spy;
    host.loginManager.Notify(3, 0);
    QTRY_COMPARE(spy.size(), 1);
    QTimer::singleShot(300, &window, [&] {
        const auto* pBar = QApplication::activeModalWidget()->findChild<QWidget*>("notifyBar");
        QVERIFY(pBar && pBar->isVisible());
        static_cast<QDialog*>(QApplication::activeModalWidget())->done(0);
    });
    window.OpenSettings();
    QCOMPARE(spy.size(), 2);
}

void tst_MainWindow::TheWindowFitsTheScreenWithItsFrame_data()
{
    QTest::addColumn<int>("nClientSize");
    for (int nClientSize = 0; nClientSize < 4; ++nClientSize)
    {
        QTest::addRow("size %d", nClientSize) << nClientSize;
    }
}

void tst_MainWindow::TheWindowFitsTheScreenWithItsFrame()
{
    QFETCH(int, nClientSize);
    Settings settings;
    settings.basic.clientSize = nClientSize;
    Store(settings);
    SHOWN_CLIENT;
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QTRY_VERIFY(window.frameGeometry().size() != window.size()); // this platform has frames
    const QRect available = window.screen()->availableGeometry();
    QTRY_VERIFY2(
        available.contains(window.frameGeometry()),
        qPrintable(QString("%1 x %2").arg(window.frameGeometry().width()).arg(window.frameGeometry().height())));
}

void tst_MainWindow::TheSettingsOpenOnceTheWindowIsSeen()
{
    ConfigService service(m_pFolder->path(), SettingsFile::ReadWrite);
    UserManager users({}, nullptr);
    MainWindow window(service, users);
    window.OpenSettingsOnceSeen(6);
    bool bOpened = false;
    bool bSeenBefore = false;
    QTimer timer;
    connect(&timer, &QTimer::timeout, &window, [&] {
        if (auto* pDialog = qobject_cast<QDialog*>(QApplication::activeModalWidget()))
        {
            bOpened = true;
            bSeenBefore = window.isVisible();
            pDialog->done(0);
        }
    });
    timer.start(10);
    QTest::qWait(100);
    QVERIFY(!bOpened);
    window.show();
    QTRY_VERIFY(bOpened);
    QVERIFY(bSeenBefore);
}

void tst_MainWindow::AMarkerOfTheMapChoosesAnAlarmType()
{
    ConfigService service(m_pFolder->path(), SettingsFile::ReadWrite);
    service.SeedAlarms(*UICommonMdl::CAlarmType::Instance());
    UserManager users({}, nullptr);
    MainWindow window(service, users);
    window.show();
    auto* pMap = window.findChild<MapView*>();
    for (const int nKey : {Qt::Key_Home, Qt::Key_Down, Qt::Key_Down, Qt::Key_Space})
    {
        QTest::keyClick(pMap, Qt::Key(nKey));
    }
    QTest::mouseClick(window.findChild<QAbstractButton*>("btnTestAlarm"), Qt::LeftButton);
    QCOMPARE(pMap->GetFlashingCategory(), 3);
}

void tst_MainWindow::ATestAlarmThatNobodyCanHearSaysSoOnce()
{
    QVERIFY(ProvideSounds());
    SHOWN_CLIENT;
    service.SeedAlarms(*UICommonMdl::CAlarmType::Instance());
    const CNotificationSpy notifications;
    for (int n = 0; n < 2; ++n)
    {
        QTest::mouseClick(window.findChild<QAbstractButton*>("btnTestAlarm"), Qt::LeftButton);
        QCOMPARE(notifications.size(), 1);
    }
}

QTEST_MAIN(tst_MainWindow)

#include "tst_MainWindow.moc"
