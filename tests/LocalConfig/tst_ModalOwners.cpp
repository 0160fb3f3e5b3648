#include "support/RealDialog.h"

#include <QDialog>
#include <QPointer>
#include <QTimer>

#include <memory>

using namespace LocalConfig;

/// A host may delete the dialog while a page of it has a modal dialog of its own open.
class tst_ModalOwners : public QObject
{
    Q_OBJECT

private slots:
    void TheDialogMayGoMeanwhile_data();
    void TheDialogMayGoMeanwhile();
};

void tst_ModalOwners::TheDialogMayGoMeanwhile_data()
{
    QTest::addColumn<QString>("strPage");
    QTest::addColumn<QString>("strButton"); // of the page
    QTest::addColumn<QString>("strModal");  // class of the dialog that it opens
    QTest::newRow("sound file") << "m_pAlarm"
                                << "btnBrowse"
                                << "QFileDialog";
    QTest::newRow("picture folder") << "m_pCapture"
                                    << "btnBrowse"
                                    << "QFileDialog";
    QTest::newRow("record folder") << "m_pRecord"
                                   << "btnBrowse"
                                   << "QFileDialog";
    QTest::newRow("security question") << "m_pSecurity"
                                       << "checkEncryption"
                                       << "KVGUI::KvDialog";
}

void tst_ModalOwners::TheDialogMayGoMeanwhile()
{
    QFETCH(QString, strPage);
    QFETCH(QString, strButton);
    QFETCH(QString, strModal);
    SRealHost host;
    host.security.m_record.encryptTransmission = true;
    auto pDialog = std::make_unique<SRealDialog>(host);
    pDialog->Open();
    auto* pButton = pDialog->Find<QWidget>(qPrintable(strPage))->findChild<QWidget*>(strButton);
    pDialog->ScrollArea()->ensureWidgetVisible(pButton);

    QPointer<QWidget> pModal;
    bool bOpened = false;
    QTimer::singleShot(50, this, [&] {
        pModal = QApplication::activeModalWidget();
        bOpened = pModal && pModal->inherits(qPrintable(strModal));
        pDialog.reset();
    });
    QTest::mouseClick(pButton, Qt::LeftButton, {}, QPoint(8, pButton->height() / 2));
    QVERIFY(bOpened);
    QVERIFY(!pDialog);
    QVERIFY(!pModal);
}

QTEST_MAIN(tst_ModalOwners)

#include "tst_ModalOwners.moc"
