// What the client's controls tell screen readers by themselves.

#include "support/AccessibleEvents.h"

#include <KvGui/KvCustomDialog.h>
#include <KvGui/KvLineEdit.h>
#include <KvGui/KvMessageBox.h>
#include <KvGui/KvMessageNotify.h>
#include <UICommonModule/CAlarmTypeCombox.h>

#include <QApplication>
#include <QTimer>
#include <QtTest>

using KVGUI::KvMessageNotify;
using KVGUI::KvSingleton;
using UICommonMdl::CAlarmTypeCombox;

class tst_ScreenReader : public QObject
{
    Q_OBJECT

private slots:
    void TheAlarmTypeBoxTellsItsChoice();
    void TheAlarmTypeBoxIsCalledWhatItShows();
    void ANotificationIsAnAlert();
    void TheTipOfAFieldIsAnAlert();
    void TheTipOfAHiddenFieldIsAnAlertOnceItIsSeen();
    void AMessageBoxIsAnAlert();
};

void tst_ScreenReader::TheAlarmTypeBoxTellsItsChoice()
{
    CAlarmTypeCombox combo;
    combo.addItem("First of the record");
    combo.InitMenu({{2, "Device"}}, {{2, {{0, "Offline"}, {1, "Online"}}}});
    combo.show();
    QVERIFY(QTest::qWaitForWindowExposed(&combo));
    QStringList listValues;
    const CAccessibleEvents events([&](const QAccessibleEvent& event) {
        if (event.type() == QAccessible::ValueChanged && event.object() == &combo)
        {
            listValues += static_cast<const QAccessibleValueChangeEvent&>(event).value().toString();
        }
    });

    QTest::keyClick(&combo, Qt::Key_Down);
    for (int nKey : {Qt::Key_Right, Qt::Key_Down, Qt::Key_Return})
    {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key(nKey));
    }
    QCOMPARE(listValues, QStringList{"Online"});

    combo.InitMenu({{2, "Device"}}, {{2, {{1, "Back online"}}}});
    combo.InitMenu({{2, "Device"}}, {{2, {{1, "Back online"}}}});
    combo.ClearChosenItem();
    QCOMPARE(listValues, (QStringList{"Online", "Back online", "First of the record"}));
}

void tst_ScreenReader::TheAlarmTypeBoxIsCalledWhatItShows()
{
    // As every combo box is where labels lead to what they name.
    CAlarmTypeCombox combo;
    combo.setAccessibleName("Alarm type");
    combo.addItem("First of the record");
    combo.InitMenu({{2, "Device"}}, {{2, {{0, "Offline"}, {1, "Online"}}}});
    QComboBox plain;
    plain.setAccessibleName("Alarm type");
    plain.addItem("First of the record");
    const auto name = [](QObject* pBox) {
        return QAccessible::queryAccessibleInterface(pBox)->text(QAccessible::Name);
    };
    QCOMPARE(name(&plain), QString("First of the record"));
    QCOMPARE(name(&combo), name(&plain));
    QStringList listNames;
    const CAccessibleEvents events([&](const QAccessibleEvent& event) {
        if (event.type() == QAccessible::NameChanged && event.object() == &combo)
        {
            listNames += name(&combo);
        }
    });
    combo.ChooseItem(2, 1);
    QCOMPARE(listNames, QStringList{"Online"});
}

void tst_ScreenReader::TheTipOfAFieldIsAnAlert()
{
    QWidget window;
    KVGUI::KvLineEdit edit(&window);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QStringList listAlerts;
    const CAccessibleEvents events([&](const QAccessibleEvent& event) {
        if (event.type() == QAccessible::Alert)
        {
            const QAccessibleInterface* pInterface = event.accessibleInterface();
            QCOMPARE(pInterface->role(), QAccessible::AlertMessage);
            QVERIFY(!pInterface->state().invisible);
            listAlerts += pInterface->text(QAccessible::Name);
        }
    });
    for (const char* pszText : {"Too long", "Too long", "Still too long"})
    {
        edit.showErrorHint(&window, true, pszText);
    }
    QCOMPARE(listAlerts, (QStringList{"Too long", "Still too long"}));
}

void tst_ScreenReader::TheTipOfAHiddenFieldIsAnAlertOnceItIsSeen()
{
    QWidget window;
    KVGUI::KvLineEdit edit(&window);
    edit.hide();
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QStringList listAlerts;
    const CAccessibleEvents events([&](const QAccessibleEvent& event) {
        if (event.type() == QAccessible::Alert)
        {
            listAlerts += event.accessibleInterface()->text(QAccessible::Name);
        }
    });
    edit.showErrorHint(&window, true, "Too long");
    QCOMPARE(listAlerts, QStringList());
    edit.show();
    QCOMPARE(listAlerts, QStringList{"Too long"});
}

void tst_ScreenReader::ANotificationIsAnAlert()
{
    QWidget window;
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QStringList listAlerts;
    const CAccessibleEvents events([&](const QAccessibleEvent& event) {
        if (event.type() == QAccessible::Alert)
        {
            const QAccessibleInterface* pInterface = event.accessibleInterface();
            QCOMPARE(pInterface->role(), QAccessible::AlertMessage);
            listAlerts += pInterface->text(QAccessible::Name);
        }
    });
    KvSingleton<KvMessageNotify>::Instance()->AddTextNotification("Saved");
    QCOMPARE(listAlerts, QStringList{"Saved"});
}

void tst_ScreenReader::AMessageBoxIsAnAlert()
{
    QStringList listAlerts;
    const CAccessibleEvents events([&](const QAccessibleEvent& event) {
        if (event.type() == QAccessible::Alert)
        {
            listAlerts += event.accessibleInterface()->text(QAccessible::Description);
        }
    });
    QTimer::singleShot(0, qApp, [] { QApplication::activeModalWidget()->close(); });
    KVGUI::KvMessageBox::ShowInformation(nullptr, "Local Config", "Restart the client", KVGUI::KvCustomDialog::Ok);
    QCOMPARE(listAlerts, QStringList{"Restart the client"});
}

QTEST_MAIN(tst_ScreenReader)

#include "tst_ScreenReader.moc"
