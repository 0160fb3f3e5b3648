#include "support/Wheel.h"

#include <LocalConfig/widgets/CCombobox.h>

#include <QAbstractItemView>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>
#include <QtTest>

using LocalConfig::CCombobox;

namespace
{

void Fill(CCombobox& combo)
{
    combo.addItems({"One", "Two", "Three"});
    combo.setCurrentIndex(1);
}

} // namespace

class tst_Combobox : public QObject
{
    Q_OBJECT

private slots:
    void IsTheClientsComboBox();
    void TheWheelScrollsTheAreaAround();
    void TheWheelWithoutAScrollAreaChangesNothing();
    void ArrowKeysSelect();
    void ThePopupSelectsByMouse();
    void TheOpenPopupScrolls();
};

void tst_Combobox::IsTheClientsComboBox()
{
    const CCombobox combo(nullptr);
    QCOMPARE(combo.metaObject()->className(), "LocalConfig::CCombobox");
    QVERIFY(combo.inherits("KVGUI::KvComboBox"));
    QCOMPARE(CCombobox::staticMetaObject.methodCount(), CCombobox::staticMetaObject.methodOffset());
}

void tst_Combobox::TheWheelScrollsTheAreaAround()
{
    QScrollArea area;
    auto* pContents = new QWidget;
    pContents->setFixedSize(200, 2000);
    CCombobox combo(pContents);
    Fill(combo);
    area.setWidget(pContents);
    area.resize(220, 200);
    area.show();
    QVERIFY(QTest::qWaitForWindowExposed(&area));
    combo.setFocus();

    TurnWheel(&combo, QRectF(combo.rect()).center());
    QVERIFY(area.verticalScrollBar()->value() > 0);
    QCOMPARE(combo.currentIndex(), 1);
    area.takeWidget();
    combo.setParent(nullptr);
    delete pContents;
}

void tst_Combobox::TheWheelWithoutAScrollAreaChangesNothing()
{
    CCombobox combo(nullptr);
    Fill(combo);
    combo.show();
    QVERIFY(QTest::qWaitForWindowExposed(&combo));
    combo.setFocus();
    TurnWheel(&combo, QRectF(combo.rect()).center());
    QCOMPARE(combo.currentIndex(), 1);
}

void tst_Combobox::ArrowKeysSelect()
{
    CCombobox combo(nullptr);
    Fill(combo);
    combo.show();
    QVERIFY(QTest::qWaitForWindowExposed(&combo));
    QTest::keyClick(&combo, Qt::Key_Down);
    QCOMPARE(combo.currentIndex(), 2);
    QTest::keyClick(&combo, Qt::Key_Up);
    QTest::keyClick(&combo, Qt::Key_Up);
    QCOMPARE(combo.currentIndex(), 0);
}

void tst_Combobox::ThePopupSelectsByMouse()
{
    CCombobox combo(nullptr);
    Fill(combo);
    combo.show();
    QVERIFY(QTest::qWaitForWindowExposed(&combo));
    QApplication::setDoubleClickInterval(20); // for that long the popup takes a release for the opening click's
    combo.showPopup();
    QAbstractItemView* pView = combo.view();
    QTRY_VERIFY(pView->isVisible());
    QTest::qWait(40);
    const QRect row = pView->visualRect(pView->model()->index(2, 0));
    const QPoint item = row.intersected(pView->viewport()->rect()).center();
    QMouseEvent move(QEvent::MouseMove, item, Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(pView->viewport(), &move);
    QTest::mouseClick(pView->viewport(), Qt::LeftButton, {}, item);
    QTRY_COMPARE(combo.currentIndex(), 2);
}

void tst_Combobox::TheOpenPopupScrolls()
{
    CCombobox combo(nullptr);
    for (int n = 0; n < 200; ++n)
    {
        combo.addItem(QString::number(n));
    }
    combo.show();
    QVERIFY(QTest::qWaitForWindowExposed(&combo));
    combo.showPopup();
    QTRY_VERIFY(combo.view()->isVisible());
    QVERIFY(combo.view()->verticalScrollBar()->maximum() > 0);
    TurnWheel(combo.view()->viewport(), QRectF(combo.view()->viewport()->rect()).center());
    QVERIFY(combo.view()->verticalScrollBar()->value() > 0);
    QCOMPARE(combo.currentIndex(), 0);
}

QTEST_MAIN(tst_Combobox)

#include "tst_Combobox.moc"
