#include "support/Wheel.h"

#include <LocalConfig/CLocalConfig.h>
#include <client/MainWindow.h>
#include <client/live/SplitView.h>
#include <client/session/LoginManager.h>
#include <client/session/UserManager.h>
#include <client/store/ConfigService.h>

#include <KvGui/KvCheckBox.h>
#include <KvGui/KvLineEdit.h>
#include <KvGui/KvMessageNotify.h>

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTcpServer>
#include <QTemporaryDir>
#include <QTimer>
#include <QToolTip>
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
    void ARefusedSnapshotOrRecordPageKeepsTheDialogOpen_data();
    void ARefusedSnapshotOrRecordPageKeepsTheDialogOpen();
    void ARefusalPointsAtItsField_data();
    void ARefusalPointsAtItsField();
    void TheWheelOverANumberScrollsTheDialog();
    void CancelKeepsWhatIsStored();
    void ASecondClientIsToldOnSaving();
    void TheDialogLocksAndUnlocksWithTheConnection();
    void TheDialogOpensLockedWhileDisconnected();
    void WithoutTheWallRight();

    void TheSelectedPaneIsTheOneClicked();
    void EnterAndDoubleClickShowOneWindow();
    void AKeySnapsTheSelectedWindow();
    void AKeySnapsEveryWindow();
    void ContinuousSnapshotsHonourCountAndInterval();
    void AKeyRecordsTheSelectedWindow();
    void SnapshotsGoToTheClientsFolderByDefault();
    void AFolderThatCannotBeWrittenIsReported_data();
    void AFolderThatCannotBeWrittenIsReported();
    void TheNetworkKeyboardSwitchesTheKeysOff();
    void SavingTheKeyboardTakesEffectAtOnce();
    void KeysLeadIntoAndOutOfFullScreen();
    void ALockedClientHearsNoKeys();

private:
    /// The settings that the next client finds.
    void Store(const Settings& settings) const
    {
        SettingsDocument document;
        document.SetSettings(settings);
        QFile file("settings.json");
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(document.Serialize());
    }
    QStringList Files(const QString& strFolder) const
    {
        return QDir(m_pFolder->filePath(strFolder)).entryList(QDir::Files, QDir::Name);
    }

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
    Settings settings;
    settings.basic.showTimeZone = bShow;
    Store(settings);
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

void tst_MainWindow::ARefusedSnapshotOrRecordPageKeepsTheDialogOpen_data()
{
    QTest::addColumn<QString>("strField");
    QTest::addColumn<QString>("strText");
    QTest::addColumn<bool>("bKept");
    QTest::newRow("snapshots: count") << "picNumEdit"
                                      << "1" << true;
    QTest::newRow("snapshots: path") << "picPathEdit" << QString(181, 'p') << false;
    QTest::newRow("recordings: path") << "recPathEdit" << QString(169, 'p') << false;
    QTest::newRow("recordings: size") << "maxRecSizeEdit"
                                      << "9" << true;
}

void tst_MainWindow::ARefusedSnapshotOrRecordPageKeepsTheDialogOpen()
{
    QFETCH(QString, strField);
    QFETCH(QString, strText);
    QFETCH(bool, bKept);
    ConfigService service(m_pFolder->path(), ConfigService::ReadWrite);
    UserManager users({}, nullptr);
    MainWindow window(service, users);
    window.show();
    QSignalSpy spy(KVGUI::KvSingleton<KVGUI::KvMessageNotify>::Instance(),
                   &KVGUI::KvMessageNotify::SignalTextNotificationAdded);
    InDialog(window, [&](QDialog& dialog) {
        auto* pField = Find<KVGUI::KvLineEdit>(dialog, qPrintable(strField));
        pField->setFocus();
        pField->selectAll();
        QTest::keyClicks(pField, strText);
        Click(dialog, "btnOk");
        QVERIFY(dialog.isVisible());
        QCOMPARE(pField->text() == strText, bKept);
        QCOMPARE(pField->IsErrorHintShown(), bKept);
        Click(dialog, "btnCancel");
    });
    QCOMPARE(spy.size(), 1);
    QVERIFY(!QFile::exists("settings.json"));
}

void tst_MainWindow::ARefusalPointsAtItsField_data()
{
    QTest::addColumn<QString>("strField");
    QTest::addColumn<QString>("strText");
    QTest::addColumn<bool>("bByKey");
    QTest::addColumn<QString>("strTip");
    QTest::newRow("stay time") << "lineeditStayTime"
                               << "14" << false << "Stay time must be within 15-65535s.";
    const QString strInterval = "Continue snapshot time interval must be longer than 1s.";
    QTest::newRow("emptied interval") << "picTmSpinBox"
                                      << "" << false << strInterval;
    QTest::newRow("emptied interval, by key") << "picTmSpinBox"
                                              << "" << true << strInterval;
}

void tst_MainWindow::ARefusalPointsAtItsField()
{
    QFETCH(QString, strField);
    QFETCH(QString, strText);
    QFETCH(bool, bByKey);
    QFETCH(QString, strTip);
    ConfigService service(m_pFolder->path(), ConfigService::ReadWrite);
    UserManager users({}, nullptr);
    MainWindow window(service, users);
    window.show();
    InDialog(window, [&](QDialog& dialog) {
        auto* pField = Find<QWidget>(dialog, qPrintable(strField));
        auto* pScrollArea = Find<QScrollArea>(dialog, "scrollArea");
        pField->setFocus();
        QTest::keyClick(pField, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(pField, Qt::Key_Delete);
        QTest::keyClicks(pField, strText);
        if (bByKey)
        {
            QTest::keyClick(pField, Qt::Key_Return);
        }
        else
        {
            Click(dialog, "btnOk");
        }
        QVERIFY(dialog.isVisible());
        QTRY_VERIFY(pField->hasFocus());
        QVERIFY(QToolTip::isVisible());
        QCOMPARE(QToolTip::text(), strTip);
        const QPoint corner = pField->mapTo(pScrollArea->viewport(), QPoint());
        QVERIFY(pScrollArea->viewport()->rect().contains(QRect(corner, pField->size())));
        Click(dialog, "btnOk"); // the field has an acceptable value again
        QVERIFY(!dialog.isVisible());
    });
    QCOMPARE(service.GetStored().snapshot.interval, 2);
}

void tst_MainWindow::TheWheelOverANumberScrollsTheDialog()
{
    ConfigService service(m_pFolder->path(), ConfigService::ReadWrite);
    UserManager users({}, nullptr);
    MainWindow window(service, users);
    window.show();
    InDialog(window, [](QDialog& dialog) {
        auto* pInterval = Find<QSpinBox>(dialog, "picTmSpinBox");
        auto* pScrollBar = Find<QScrollArea>(dialog, "scrollArea")->verticalScrollBar();
        const int nBefore = pScrollBar->value();
        TurnWheel(pInterval, QRectF(pInterval->rect()).center());
        QCOMPARE(pInterval->value(), 2);
        QVERIFY(pScrollBar->value() > nBefore);
    });
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

/// A client with a window that is shown and active.
#define CLIENT                                                                                                         \
    ConfigService service(m_pFolder->path(), ConfigService::ReadWrite);                                                \
    UserManager users({}, nullptr);                                                                                    \
    MainWindow window(service, users);                                                                                 \
    window.show();                                                                                                     \
    QApplication::setActiveWindow(&window);                                                                            \
    QVERIFY(QTest::qWaitForWindowActive(&window))

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

void tst_MainWindow::AKeySnapsTheSelectedWindow()
{
    Settings settings;
    settings.snapshot.picturePath = m_pFolder->filePath("snaps/").toStdString();
    settings.snapshot.imageFormat = 0;
    settings.snapshot.nameFormat = 2;
    Store(settings);
    CLIENT;
    QSignalSpy spy(KVGUI::KvSingleton<KVGUI::KvMessageNotify>::Instance(),
                   &KVGUI::KvMessageNotify::SignalTextNotificationAdded);
    window.findChild<SplitView*>()->Select(2);
    QTest::keyClick(&window, Qt::Key_P);
    QTRY_COMPARE(spy.size(), 1);
    QCOMPARE(Files("snaps").size(), 1);
    QVERIFY(QRegularExpression("^03_\\d{8}-\\d{6}-\\d{3}\\.bmp$").match(Files("snaps").first()).hasMatch());
    QCOMPARE(QImage(m_pFolder->filePath("snaps/" + Files("snaps").first())).size(), QSize(352, 288));
    QVERIFY(spy.first().first().toString().contains("snaps"));
}

void tst_MainWindow::AKeySnapsEveryWindow()
{
    Settings settings;
    settings.snapshot.picturePath = m_pFolder->filePath("snaps/").toStdString();
    settings.video.nDefaultSplit = 9;
    Store(settings);
    CLIENT;
    QTest::keyClick(&window, Qt::Key_P, Qt::ControlModifier);
    QTRY_COMPARE(Files("snaps").size(), 9);
    QVERIFY(Files("snaps").first().startsWith("Camera 01_"));
    QVERIFY(Files("snaps").last().startsWith("Camera 09_"));
    QVERIFY(Files("snaps").last().endsWith(".jpg"));
}

void tst_MainWindow::ContinuousSnapshotsHonourCountAndInterval()
{
    Settings settings;
    settings.snapshot.picturePath = m_pFolder->filePath("snaps/").toStdString();
    settings.snapshot.continuousCount = 3;
    settings.snapshot.interval = 1;
    settings.snapshot.nameFormat = 0;
    Store(settings);
    CLIENT;
    QElapsedTimer clock;
    clock.start();
    QTest::mouseClick(window.findChild<QAbstractButton*>("btnContinuous"), Qt::LeftButton);
    window.findChild<SplitView*>()->Select(3); // the window that it began with stays the one
    QTRY_COMPARE(Files("snaps").size(), 3);
    QVERIFY2(clock.elapsed() >= 1900, qPrintable(QString::number(clock.elapsed())));
    QTest::qWait(1300);
    QCOMPARE(Files("snaps").size(), 3);
    for (const QString& strFile : Files("snaps"))
    {
        QVERIFY(strFile.endsWith("_01.jpg"));
    }
}

void tst_MainWindow::AKeyRecordsTheSelectedWindow()
{
    Settings settings;
    settings.record.recordPath = m_pFolder->filePath("recs/").toStdString();
    settings.record.nameFormat = 1;
    Store(settings);
    CLIENT;
    const auto* pButton = window.findChild<QAbstractButton*>("btnRecord");
    QCOMPARE(pButton->text(), QString("Record"));
    QTest::keyClick(&window, Qt::Key_R, Qt::ControlModifier);
    QCOMPARE(pButton->text(), QString("Stop Recording"));
    QTest::qWait(500);
    QTest::keyClick(&window, Qt::Key_R, Qt::ControlModifier);
    QCOMPARE(pButton->text(), QString("Record"));
    QTRY_COMPARE(Files("recs").size(), 1);
    QVERIFY(Files("recs").first().endsWith("_Camera 01.mjpeg"));
    QVERIFY(QFileInfo(m_pFolder->filePath("recs/" + Files("recs").first())).size() > 1000);
}

void tst_MainWindow::SnapshotsGoToTheClientsFolderByDefault()
{
    CLIENT;
    QTest::mouseClick(window.findChild<QAbstractButton*>("btnSnapshot"), Qt::LeftButton);
    QTRY_COMPARE(Files("Picture").size(), 1);
}

void tst_MainWindow::AFolderThatCannotBeWrittenIsReported_data()
{
    QTest::addColumn<int>("nKey");
    QTest::addColumn<QString>("strFolder");
    QTest::newRow("snapshot") << int(Qt::CTRL + Qt::Key_P) << "snaps";
    QTest::newRow("recording") << int(Qt::CTRL + Qt::Key_R) << "recs";
}

void tst_MainWindow::AFolderThatCannotBeWrittenIsReported()
{
    QFETCH(int, nKey);
    QFETCH(QString, strFolder);
    QFile file(strFolder); // a file where the folder should be made
    QVERIFY(file.open(QIODevice::WriteOnly));
    Settings settings;
    settings.snapshot.picturePath = m_pFolder->filePath("snaps/").toStdString();
    settings.record.recordPath = m_pFolder->filePath("recs/").toStdString();
    Store(settings);
    CLIENT;
    QSignalSpy spy(KVGUI::KvSingleton<KVGUI::KvMessageNotify>::Instance(),
                   &KVGUI::KvMessageNotify::SignalTextNotificationAdded);
    QTest::keySequence(&window, QKeySequence(nKey));
    QTRY_COMPARE(spy.size(), 1);
    const QString strText = spy.first().first().toString();
    QVERIFY2(strText.startsWith("Cannot write to " + QDir::toNativeSeparators(m_pFolder->filePath(strFolder))),
             qPrintable(strText));
    QVERIFY2(strText.contains(": "), qPrintable(strText));
    QCOMPARE(window.findChild<QAbstractButton*>("btnRecord")->text(), QString("Record"));
    QTest::qWait(300);
    QCOMPARE(spy.size(), 1);
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

QTEST_MAIN(tst_MainWindow)

#include "tst_MainWindow.moc"
