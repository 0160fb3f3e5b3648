#include <KvGui/KvModal.h>

#include <QApplication>
#include <QDialog>
#include <QTimer>
#include <QtTest>

#include <functional>

using KVGUI::KvModal;

class tst_KvModal : public QObject
{
    Q_OBJECT

private slots:
    void TheResultIsTheDialogs();
    void TheParentMayGoMeanwhile();
    void TheDialogGoesWithItsHolder();

private:
    /// Lets \a act loose on the dialog that is about to open.
    void Meanwhile(const std::function<void(QDialog*)>& act)
    {
        QTimer::singleShot(20, this, [act] { act(qobject_cast<QDialog*>(QApplication::activeModalWidget())); });
    }
};

void tst_KvModal::TheResultIsTheDialogs()
{
    KvModal<QDialog> dialog;
    Meanwhile([](QDialog* pDialog) { pDialog->done(7); });
    QVERIFY(dialog.Exec());
    QCOMPARE(dialog->result(), 7);
}

void tst_KvModal::TheParentMayGoMeanwhile()
{
    auto* pParent = new QWidget;
    KvModal<QDialog> dialog(pParent);
    Meanwhile([pParent](QDialog*) { delete pParent; });
    QVERIFY(!dialog.Exec());
}

void tst_KvModal::TheDialogGoesWithItsHolder()
{
    QWidget parent;
    {
        const KvModal<QDialog> dialog(&parent);
        QVERIFY(parent.findChild<QDialog*>());
    }
    QVERIFY(!parent.findChild<QDialog*>());
}

QTEST_MAIN(tst_KvModal)

#include "tst_KvModal.moc"
