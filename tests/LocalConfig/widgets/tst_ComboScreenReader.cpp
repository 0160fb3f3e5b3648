// What the module's boxes tell screen readers.

#include "support/AccessibleEvents.h"

#include <KvGui/KvListWidget.h>
#include <LocalConfig/widgets/QCheckableComboBox.h>

#include <QApplication>
#include <QCheckBox>
#include <QtTest>

using LocalConfig::QCheckableComboBox;

class tst_ComboScreenReader : public QObject
{
    Q_OBJECT

private slots:
    void TheCheckableBoxTellsItsRowsAndItsSummary();
    void TheRowsOfTheCheckableBoxHaveTheirNames();
};

void tst_ComboScreenReader::TheCheckableBoxTellsItsRowsAndItsSummary()
{
    QWidget window;
    QCheckableComboBox combo(&window);
    combo.SetItems({{1, "One"}, {2, "Two"}, {3, "Three"}});
    window.show();
    QApplication::setActiveWindow(&window);
    QVERIFY(QTest::qWaitForWindowActive(&window));
    QString strValue;
    QStringList listFocused;
    const CAccessibleEvents events([&](const QAccessibleEvent& event) {
        if (event.object() == &combo && event.type() == QAccessible::ValueChanged)
        {
            strValue = static_cast<const QAccessibleValueChangeEvent&>(event).value().toString();
        }
        else if (event.type() == QAccessible::Focus && qobject_cast<const QCheckBox*>(event.object()))
        {
            listFocused += event.accessibleInterface()->text(QAccessible::Name);
        }
    });
    combo.setFocus();
    QTest::keyClick(&combo, Qt::Key_Down, Qt::AltModifier);
    for (int nKey : {Qt::Key_Down, Qt::Key_Space, Qt::Key_Return})
    {
        QTest::keyClick(combo.view()->window()->windowHandle(), Qt::Key(nKey));
    }
    QCOMPARE(listFocused, (QStringList{"One", "Two"}));
    QCOMPARE(strValue, QString("Two"));
    QCOMPARE(QAccessible::queryAccessibleInterface(&combo)->text(QAccessible::Value), QString("Two"));
}

void tst_ComboScreenReader::TheRowsOfTheCheckableBoxHaveTheirNames()
{
    QCheckableComboBox combo(nullptr);
    combo.SetItems({{1, "One"}, {2, "R&D"}});
    combo.show();
    QVERIFY(QTest::qWaitForWindowExposed(&combo));
    combo.showPopup();
    QAccessibleInterface* pList = QAccessible::queryAccessibleInterface(combo.view());
    QStringList listNames;
    for (int n = 0; n < pList->childCount(); ++n)
    {
        listNames += pList->child(n)->text(QAccessible::Name);
    }
    QCOMPARE(listNames, (QStringList{"One", "R&D"}));
}

QTEST_MAIN(tst_ComboScreenReader)

#include "tst_ComboScreenReader.moc"
