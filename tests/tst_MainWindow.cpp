#include <LocalConfig/CLocalConfig.h>
#include <client/ConfigService.h>
#include <client/LoginManager.h>
#include <client/MainWindow.h>
#include <client/SplitView.h>
#include <client/UserManager.h>

#include <KvGui/KvCheckBox.h>
#include <KvGui/KvMessageNotify.h>

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QScreen>
#include <QSignalSpy>
#include <QTcpServer>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>

#include <functional>

using namespace LocalConfigClient;

namespace
{

/// Opens the settings dialog from the window and lets \a act loose on it.
void InDialog(MainWindow& window, const std::function<void(QDialog&)>& act)
{
    bool bActed = false;
    QTimer::singleShot(100, &window, [&] {
        auto* pDialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (pDialog)
        {
            bActed = true;
            act(*pDialog);
            pDialog->done(0); // whatever came of it, the test goes on
        }
    });
    QTest::mouseClick(window.findChild<QAbstractButton*>("btnSettings"), Qt::LeftButton);
    QVERIFY(bActed);
}

template <class Control>
Control* Find(QDialog& dialog, const char* pszName)
{
    return dialog.findChild<Control*>(pszName);
}

void Click(QDialog& dialog, const char* pszName)
{
    QTest::mouseClick(Find<QAbstractButton>(dialog, pszName), Qt::LeftButton);
}

} // namespace

class tst_MainWindow : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void SplitsFillTheArea_data();
    void SplitsFillTheArea();
    void AnUnknownSplitChangesNothing();
    void TheDisplayScalePlacesThePicture();
    void SavingShowsSplitAndScaleAtOnce();
    void TheWindowShowsTheSettings();
    void TheTimeZoneIsShownWhenAskedFor_data();
    void TheTimeZoneIsShownWhenAskedFor();

    void EditSaveRestart();
    void PlaybackAndWallOutliveARestart();
    void ARefusedPageKeepsTheDialogOpenAndCancelDropsTheRest();
    void CancelKeepsWhatIsStored();
    void ASecondClientIsToldOnSaving();
    void TheDialogLocksAndUnlocksWithTheConnection();
    void TheDialogOpensLockedWhileDisconnected();
    void WithoutTheWallRight();

private:
    QScopedPointer<QTemporaryDir> m_pFolder;
};

void tst_MainWindow::init()
{
    m_pFolder.reset(new QTemporaryDir);
    QVERIFY(QDir::setCurrent(m_pFolder->path()));
}

void tst_MainWindow::SplitsFillTheArea_data()
{
    QTest::addColumn<int>("nSplit");
    for (int nSplit : {1, 4, 6, 8, 9, 13, 16, 20, 25, 36})
    {
        QTest::addRow("%d", nSplit) << nSplit;
    }
}

void tst_MainWindow::SplitsFillTheArea()
{
    QFETCH(int, nSplit);
    const QRect area(3, 5, 641, 363);
    const QVector<QRect> listPanes = SplitView::GetPanes(nSplit, area);
    QCOMPARE(listPanes.size(), nSplit);
    QRegion covered;
    int nPixels = 0;
    for (const QRect& pane : listPanes)
    {
        QVERIFY(!covered.intersects(pane));
        covered += pane;
        nPixels += pane.width() * pane.height();
    }
    QCOMPARE(covered.boundingRect(), area);
    QCOMPARE(nPixels, area.width() * area.height());
}

void tst_MainWindow::AnUnknownSplitChangesNothing()
{
    SplitView view(nullptr);
    view.SetSplit(9);
    for (int nSplit : {0, -1, 5, 64})
    {
        view.SetSplit(nSplit);
        QCOMPARE(view.GetSplit(), 9);
    }
}

void tst_MainWindow::TheDisplayScalePlacesThePicture()
{
    const QRect pane(10, 10, 400, 200);
    QCOMPARE(SplitView::GetPicturePlace(pane, QSize(100, 80), 1), pane);
    QCOMPARE(SplitView::GetPicturePlace(pane, QSize(100, 80), 0).size(), QSize(100, 80));
    QCOMPARE(SplitView::GetPicturePlace(pane, QSize(100, 80), 0).center(), pane.center());
    SplitView view(nullptr);
    view.SetDisplayScale(0);
    view.SetDisplayScale(7);
    QCOMPARE(view.GetDisplayScale(), 0);
}

void tst_MainWindow::SavingShowsSplitAndScaleAtOnce()
{
    {
        ConfigService service(m_pFolder->path(), ConfigService::ReadWrite);
        UserManager users({}, nullptr);
        MainWindow window(service, users);
        window.show();
        InDialog(window, [](QDialog& dialog) {
            Click(dialog, "btnShowSplitWnd");
            Click(dialog, "btnDiv13");
            QTest::keyClick(Find<QComboBox>(dialog, "pCmbScale"), Qt::Key_Up);
            Click(dialog, "btnOk");
        });
        QCOMPARE(window.findChild<SplitView*>()->GetSplit(), 13);
        QCOMPARE(window.findChild<SplitView*>()->GetDisplayScale(), 0);
    }
    ConfigService service(m_pFolder->path(), ConfigService::ReadWrite);
    UserManager users({}, nullptr);
    const MainWindow window(service, users);
    QCOMPARE(window.findChild<SplitView*>()->GetSplit(), 13);
    QCOMPARE(window.findChild<SplitView*>()->GetDisplayScale(), 0);
}

void tst_MainWindow::TheWindowShowsTheSettings()
{
    ConfigService service(m_pFolder->path(), ConfigService::ReadWrite);
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
    SettingsDocument document;
    Settings settings;
    settings.basic.showTimeZone = bShow;
    document.SetSettings(settings);
    QFile file("settings.json");
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(document.Serialize());
    file.close();
    ConfigService service(m_pFolder->path(), ConfigService::ReadWrite);
    UserManager users({}, nullptr);
    const MainWindow window(service, users);
    QCOMPARE(window.findChild<QLabel*>("timeZone")->text().startsWith("UTC"), bShow);
}

void tst_MainWindow::EditSaveRestart()
{
    {
        ConfigService service(m_pFolder->path(), ConfigService::ReadWrite);
        UserManager users({}, nullptr);
        MainWindow window(service, users);
        window.show();
        InDialog(window, [](QDialog& dialog) {
            auto* pLogin = Find<KVGUI::KvCheckBox>(dialog, "autologinChkBox");
            QTest::mouseClick(pLogin, Qt::LeftButton, {}, QPoint(8, pLogin->height() / 2));
            auto* pSize = Find<QComboBox>(dialog, "screenRatioCmbBox");
            QTest::keyClick(pSize, Qt::Key_Up);
            Click(dialog, "btnOk");
        });
    }
    ConfigService service(m_pFolder->path(), ConfigService::ReadWrite);
    UserManager users({}, nullptr);
    MainWindow window(service, users);
    window.show();
    InDialog(window, [](QDialog& dialog) {
        QVERIFY(Find<KVGUI::KvCheckBox>(dialog, "autologinChkBox")->isChecked());
        QCOMPARE(Find<QComboBox>(dialog, "screenRatioCmbBox")->currentText(), QString("1280*1024"));
    });
}

void tst_MainWindow::PlaybackAndWallOutliveARestart()
{
    {
        ConfigService service(m_pFolder->path(), ConfigService::ReadWrite);
        UserManager users({}, nullptr);
        MainWindow window(service, users);
        window.show();
        InDialog(window, [](QDialog& dialog) {
            QTest::keyClick(Find<QComboBox>(dialog, "devStreamCmbBox"), Qt::Key_Down);
            QTest::keyClick(Find<QComboBox>(dialog, "cmbDefaultStreamType"), Qt::Key_End);
            auto* pStay = Find<QLineEdit>(dialog, "lineeditStayTime");
            pStay->selectAll();
            QTest::keyClicks(pStay, "25");
            auto* pTile = Find<QAbstractButton>(dialog, "rdBtnTile");
            QTest::mouseClick(pTile, Qt::LeftButton, {}, QPoint(8, pTile->height() / 2));
            Click(dialog, "btnOk");
            QVERIFY(!dialog.isVisible());
        });
    }
    ConfigService service(m_pFolder->path(), ConfigService::ReadWrite);
    UserManager users({}, nullptr);
    MainWindow window(service, users);
    window.show();
    InDialog(window, [](QDialog& dialog) {
        QCOMPARE(Find<QComboBox>(dialog, "devStreamCmbBox")->currentText(), QString("Main Stream"));
        QCOMPARE(Find<QComboBox>(dialog, "cmbDefaultStreamType")->currentText(), QString("Local Signal"));
        QCOMPARE(Find<QLineEdit>(dialog, "lineeditStayTime")->text(), QString("25"));
        QVERIFY(Find<QAbstractButton>(dialog, "rdBtnTile")->isChecked());
    });
}

void tst_MainWindow::ARefusedPageKeepsTheDialogOpenAndCancelDropsTheRest()
{
    ConfigService service(m_pFolder->path(), ConfigService::ReadWrite);
    UserManager users({}, nullptr);
    MainWindow window(service, users);
    window.show();
    QSignalSpy spy(KVGUI::KvSingleton<KVGUI::KvMessageNotify>::Instance(),
                   &KVGUI::KvMessageNotify::SignalTextNotificationAdded);
    InDialog(window, [](QDialog& dialog) {
        auto* pLogin = Find<KVGUI::KvCheckBox>(dialog, "autologinChkBox");
        QTest::mouseClick(pLogin, Qt::LeftButton, {}, QPoint(8, pLogin->height() / 2));
        auto* pStay = Find<QLineEdit>(dialog, "lineeditStayTime");
        pStay->selectAll();
        QTest::keyClicks(pStay, "14");
        Click(dialog, "btnOk");
        QVERIFY(dialog.isVisible());
        QVERIFY(pLogin->isChecked());
        QCOMPARE(pStay->text(), QString("15"));
        Click(dialog, "btnCancel");
    });
    QCOMPARE(spy.size(), 1);
    QCOMPARE(spy.first().first().toString(), QString("Failed to save configuration, some values are illegal."));
    QVERIFY(!service.GetStored().basic.autoLogin);
    QCOMPARE(service.SaveAll(), 1);
    QVERIFY2(!service.GetStored().basic.autoLogin, "the cancelled value does not come back");
}

void tst_MainWindow::CancelKeepsWhatIsStored()
{
    ConfigService service(m_pFolder->path(), ConfigService::ReadWrite);
    UserManager users({}, nullptr);
    MainWindow window(service, users);
    window.show();
    InDialog(window, [](QDialog& dialog) {
        auto* pLogin = Find<KVGUI::KvCheckBox>(dialog, "autologinChkBox");
        QTest::mouseClick(pLogin, Qt::LeftButton, {}, QPoint(8, pLogin->height() / 2));
        QVERIFY(pLogin->isChecked());
        Click(dialog, "btnCancel");
        QVERIFY(!dialog.isVisible());
    });
    QVERIFY(!service.GetStored().basic.autoLogin);
    QVERIFY(!QFile::exists("settings.json"));
}

void tst_MainWindow::ASecondClientIsToldOnSaving()
{
    const ConfigService first(m_pFolder->path(), ConfigService::ReadWrite);
    ConfigService second(m_pFolder->path(), ConfigService::ReadWrite);
    UserManager users({}, nullptr);
    MainWindow window(second, users);
    window.show();
    QSignalSpy spy(KVGUI::KvSingleton<KVGUI::KvMessageNotify>::Instance(),
                   &KVGUI::KvMessageNotify::SignalTextNotificationAdded);
    InDialog(window, [](QDialog& dialog) { Click(dialog, "btnOk"); });
    QCOMPARE(spy.size(), 1);
    QCOMPARE(spy.first().first().toString(),
             QString("Failed to save config: another client uses the same data folder (code 4)"));
}

void tst_MainWindow::TheDialogLocksAndUnlocksWithTheConnection()
{
    QTcpServer server;
    QVERIFY(server.listen(QHostAddress::LocalHost));
    const quint16 nPort = server.serverPort();
    LoginManager loginManager("127.0.0.1", nPort, LoginManager::BackOff{10, 40});
    QTRY_VERIFY(server.hasPendingConnections());

    ConfigService service(m_pFolder->path(), ConfigService::ReadWrite);
    UserManager users({}, &loginManager);
    MainWindow window(service, users);
    window.show();
    InDialog(window, [&](QDialog& dialog) {
        auto* pSave = Find<QAbstractButton>(dialog, "btnOk");
        auto* pLogin = Find<KVGUI::KvCheckBox>(dialog, "autologinChkBox");
        QVERIFY(pSave->isEnabled() && pLogin->isEnabled());
        server.nextPendingConnection()->abort();
        server.close();
        QTRY_VERIFY(!pSave->isEnabled() && !pLogin->isEnabled());
        QCOMPARE(window.findChild<QLabel*>("connection")->text(), QString("Disconnected"));
        QVERIFY(server.listen(QHostAddress::LocalHost, nPort));
        QTRY_VERIFY(pSave->isEnabled() && pLogin->isEnabled());
        QCOMPARE(window.findChild<QLabel*>("connection")->text(), QString("Connected"));
    });
}

void tst_MainWindow::TheDialogOpensLockedWhileDisconnected()
{
    QTcpServer server;
    QVERIFY(server.listen(QHostAddress::LocalHost));
    const quint16 nPort = server.serverPort();
    server.close();
    LoginManager loginManager("127.0.0.1", nPort, LoginManager::BackOff{10, 40});
    ConfigService service(m_pFolder->path(), ConfigService::ReadWrite);
    UserManager users({}, &loginManager);
    MainWindow window(service, users);
    window.show();
    QTRY_COMPARE(window.findChild<QLabel*>("connection")->text(), QString("Disconnected"));
    InDialog(window, [](QDialog& dialog) {
        QTRY_VERIFY(!Find<KVGUI::KvCheckBox>(dialog, "autologinChkBox")->isEnabled());
        QVERIFY(!Find<QAbstractButton>(dialog, "btnOk")->isEnabled());
    });
}

void tst_MainWindow::WithoutTheWallRight()
{
    ConfigService service(m_pFolder->path(), ConfigService::ReadWrite);
    UserManager users({26}, nullptr);
    MainWindow window(service, users);
    window.show();
    InDialog(window, [](QDialog& dialog) {
        QVERIFY(!Find<QWidget>(dialog, "m_gBTvwall")->isVisible());
        QVERIFY(!Find<QWidget>(dialog, "m_pTvWall"));
    });
}

QTEST_MAIN(tst_MainWindow)

#include "tst_MainWindow.moc"
