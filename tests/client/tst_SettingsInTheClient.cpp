#include "support/ClientWindow.h"
#include "support/FakeHost.h"
#include "support/Permissions.h"
#include "support/Wheel.h"

#include <KvGui/KvCheckBox.h>
#include <KvGui/KvLineEdit.h>
#include <UICommonModule/CAtomicFile.h>
#include <client/session/LoginManager.h>

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QScrollBar>
#include <QSpinBox>
#include <QTcpServer>
#include <QTcpSocket>
#include <QToolTip>

#include <memory>

using namespace LocalConfigClient;

class tst_SettingsInTheClient : public CClientTest
{
    Q_OBJECT

private slots:
    void init() { Reset(); }

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
#ifdef Q_OS_WIN // where programs keep files to themselves
    void AHeldDocumentIsToldOnSaving();
#endif
    void ASaveWithoutTheIniFileSucceedsAndTellsOnce();
    void TheDialogLocksAndUnlocksWithTheConnection();
    void TheDialogOpensLockedWhileDisconnected();
    void WithoutTheWallRight();
    void TheWindowMayGoWhileTheDialogIsOpen();
};

void tst_SettingsInTheClient::EditSaveRestart()
{
    {
        SHOWN_CLIENT;
        InDialog(window, [](QDialog& dialog) {
            auto* pLogin = Find<KVGUI::KvCheckBox>(dialog, "autologinChkBox");
            QTest::mouseClick(pLogin, Qt::LeftButton, {}, QPoint(8, pLogin->height() / 2));
            auto* pSize = Find<QComboBox>(dialog, "screenRatioCmbBox");
            QTest::keyClick(pSize, Qt::Key_Up);
            Click(dialog, "btnOk");
        });
    }
    SHOWN_CLIENT;
    InDialog(window, [](QDialog& dialog) {
        QVERIFY(Find<KVGUI::KvCheckBox>(dialog, "autologinChkBox")->isChecked());
        QCOMPARE(Find<QComboBox>(dialog, "screenRatioCmbBox")->currentText(), QString("1280*1024"));
    });
}

void tst_SettingsInTheClient::PlaybackAndWallOutliveARestart()
{
    {
        SHOWN_CLIENT;
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
    SHOWN_CLIENT;
    InDialog(window, [](QDialog& dialog) {
        QCOMPARE(Find<QComboBox>(dialog, "devStreamCmbBox")->currentText(), QString("Main Stream"));
        QCOMPARE(Find<QComboBox>(dialog, "cmbDefaultStreamType")->currentText(), QString("Local Signal"));
        QCOMPARE(Find<QLineEdit>(dialog, "lineeditStayTime")->text(), QString("25"));
        QVERIFY(Find<QAbstractButton>(dialog, "rdBtnTile")->isChecked());
    });
}

void tst_SettingsInTheClient::ARefusedPageKeepsTheDialogOpenAndCancelDropsTheRest()
{
    SHOWN_CLIENT;
    CNotificationSpy spy;
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

void tst_SettingsInTheClient::ARefusedSnapshotOrRecordPageKeepsTheDialogOpen_data()
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

void tst_SettingsInTheClient::ARefusedSnapshotOrRecordPageKeepsTheDialogOpen()
{
    QFETCH(QString, strField);
    QFETCH(QString, strText);
    QFETCH(bool, bKept);
    SHOWN_CLIENT;
    CNotificationSpy spy;
    InDialog(window, [&](QDialog& dialog) {
        auto* pField = Find<KVGUI::KvLineEdit>(dialog, qPrintable(strField));
        pField->setFocus();
        pField->selectAll();
        QTest::keyClicks(pField, strText);
        Click(dialog, "btnOk");
        QVERIFY(dialog.isVisible());
        QCOMPARE(pField->text() == strText, bKept);
        QTRY_COMPARE(pField->IsErrorHintShown(), bKept);
        Click(dialog, "btnCancel");
    });
    QCOMPARE(spy.size(), 1);
    QVERIFY(!QFile::exists("settings.json"));
}

void tst_SettingsInTheClient::ARefusalPointsAtItsField_data()
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
    QTest::newRow("no interval") << "picTmSpinBox"
                                 << "0" << false << strInterval;
    QTest::newRow("no interval, by key") << "picTmSpinBox"
                                         << "0" << true << strInterval;
}

void tst_SettingsInTheClient::ARefusalPointsAtItsField()
{
    QFETCH(QString, strField);
    QFETCH(QString, strText);
    QFETCH(bool, bByKey);
    QFETCH(QString, strTip);
    SHOWN_CLIENT;
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
        QTRY_VERIFY(QToolTip::isVisible());
        QCOMPARE(QToolTip::text(), strTip);
        const QPoint corner = pField->mapTo(pScrollArea->viewport(), QPoint());
        QVERIFY(pScrollArea->viewport()->rect().contains(QRect(corner, pField->size())));
        Click(dialog, "btnOk"); // the field has an acceptable value again
        QVERIFY(!dialog.isVisible());
    });
    QCOMPARE(service.GetStored().snapshot.interval, 2);
}

void tst_SettingsInTheClient::TheWheelOverANumberScrollsTheDialog()
{
    SHOWN_CLIENT;
    InDialog(window, [](QDialog& dialog) {
        auto* pInterval = Find<QSpinBox>(dialog, "picTmSpinBox");
        auto* pScrollBar = Find<QScrollArea>(dialog, "scrollArea")->verticalScrollBar();
        const int nBefore = pScrollBar->value();
        TurnWheel(pInterval, QRectF(pInterval->rect()).center());
        QCOMPARE(pInterval->value(), 2);
        QVERIFY(pScrollBar->value() > nBefore);
    });
}

void tst_SettingsInTheClient::CancelKeepsWhatIsStored()
{
    SHOWN_CLIENT;
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

void tst_SettingsInTheClient::ASecondClientIsToldOnSaving()
{
    const ConfigService first(m_pFolder->path(), SettingsFile::ReadWrite);
    ConfigService second(m_pFolder->path(), SettingsFile::ReadWrite);
    UserManager users({}, nullptr);
    MainWindow window(second, users);
    window.show();
    CNotificationSpy spy;
    InDialog(window, [](QDialog& dialog) { Click(dialog, "btnOk"); });
    QCOMPARE(spy.size(), 1);
    QCOMPARE(spy.first().first().toString(),
             QString("Failed to save config: another client uses the same data folder (code 4)"));
}

#ifdef Q_OS_WIN

void tst_SettingsInTheClient::AHeldDocumentIsToldOnSaving()
{
    Store(Settings());
    SHOWN_CLIENT;
    const auto stored = [] {
        QByteArray content;
        UICommonMdl::CAtomicFile::Read("settings.json", content);
        return content;
    };
    const auto save = [&window] {
        CNotificationSpy spy;
        InDialog(window, [](QDialog& dialog) {
            auto* pLogin = Find<KVGUI::KvCheckBox>(dialog, "autologinChkBox");
            QTest::mouseClick(pLogin, Qt::LeftButton, {}, QPoint(8, pLogin->height() / 2));
            Click(dialog, "btnOk");
        });
        return spy.isEmpty() ? QString() : spy.first().first().toString();
    };
    {
        const CHeldFile held("settings.json");
        QCOMPARE(save(), QString("Failed to save config: another program is using the file (code 15)"));
    }
    QCOMPARE(stored(), Document(Settings()));
    QCOMPARE(QDir().entryList({"settings.json*"}, QDir::Files), QStringList{"settings.json"});
    QCOMPARE(save(), QString());
    QVERIFY(stored() != Document(Settings()));
}

#endif

void tst_SettingsInTheClient::ASaveWithoutTheIniFileSucceedsAndTellsOnce()
{
    QVERIFY(QDir().mkdir("Localcfg.ini")); // two pages write to it
    SHOWN_CLIENT;
    CNotificationSpy spy;
    InDialog(window, [](QDialog& dialog) {
        auto* pLogin = Find<KVGUI::KvCheckBox>(dialog, "autologinChkBox");
        QTest::mouseClick(pLogin, Qt::LeftButton, {}, QPoint(8, pLogin->height() / 2));
        Click(dialog, "btnOk");
        QVERIFY(!dialog.isVisible());
    });
    QVERIFY(service.GetStored().basic.autoLogin);
    QTRY_COMPARE(spy.size(), 1);
    QTest::qWait(20);
    QCOMPARE(spy.size(), 1);
    QVERIFY(spy.first().first().toString().contains("Localcfg.ini"));
}

void tst_SettingsInTheClient::TheDialogLocksAndUnlocksWithTheConnection()
{
    QTcpServer server;
    QVERIFY(server.listen(QHostAddress::LocalHost));
    const quint16 nPort = server.serverPort();
    LoginManager loginManager("127.0.0.1", nPort, LoginManager::BackOff{10, 40});
    QTRY_VERIFY(server.hasPendingConnections());

    ConfigService service(m_pFolder->path(), SettingsFile::ReadWrite);
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

void tst_SettingsInTheClient::TheDialogOpensLockedWhileDisconnected()
{
    QTcpServer server;
    QVERIFY(server.listen(QHostAddress::LocalHost));
    const quint16 nPort = server.serverPort();
    server.close();
    LoginManager loginManager("127.0.0.1", nPort, LoginManager::BackOff{10, 40});
    ConfigService service(m_pFolder->path(), SettingsFile::ReadWrite);
    UserManager users({}, &loginManager);
    MainWindow window(service, users);
    window.show();
    QTRY_COMPARE(window.findChild<QLabel*>("connection")->text(), QString("Disconnected"));
    InDialog(window, [](QDialog& dialog) {
        QTRY_VERIFY(!Find<KVGUI::KvCheckBox>(dialog, "autologinChkBox")->isEnabled());
        QVERIFY(!Find<QAbstractButton>(dialog, "btnOk")->isEnabled());
    });
}

void tst_SettingsInTheClient::WithoutTheWallRight()
{
    ConfigService service(m_pFolder->path(), SettingsFile::ReadWrite);
    UserManager users({{26}}, nullptr);
    MainWindow window(service, users);
    window.show();
    InDialog(window, [](QDialog& dialog) {
        QVERIFY(!Find<QWidget>(dialog, "m_gBTvwall")->isVisible());
        QVERIFY(!Find<QWidget>(dialog, "m_pTvWall"));
    });
}

void tst_SettingsInTheClient::TheWindowMayGoWhileTheDialogIsOpen()
{
    CJournal journal;
    CFakeLoginManager loginManager(journal);
    ConfigService service(m_pFolder->path(), SettingsFile::ReadWrite);
    UserManager users({}, &loginManager);
    auto pWindow = std::make_unique<MainWindow>(service, users);
    pWindow->show();
    bool bOpen = false;
    QTimer::singleShot(100, this, [&] {
        bOpen = QApplication::activeModalWidget();
        pWindow.reset();
    });
    QTest::mouseClick(pWindow->findChild<QAbstractButton*>("btnSettings"), Qt::LeftButton);
    QVERIFY(bOpen);
    QVERIFY(!pWindow);
    QVERIFY(loginManager.m_listObservers.isEmpty());
}

QTEST_MAIN(tst_SettingsInTheClient)

#include "tst_SettingsInTheClient.moc"
