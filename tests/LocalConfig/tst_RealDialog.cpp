// The dialog with its real pages on a host that has every section.

#include "support/RealDialog.h"
#include "support/Wheel.h"

#include <LocalConfig/pages/IConfigPage.h>

#include <QAbstractSpinBox>
#include <QComboBox>

using namespace LocalConfig;

class tst_RealDialog : public QObject
{
    Q_OBJECT

private slots:
    void EverySectionHasItsPage_data() { BoxRows(); }
    void EverySectionHasItsPage();
    void SavingAsksEverySection();
    void ScrollingSelectsAShownSection_data();
    void ScrollingSelectsAShownSection();
    void TheWheelTakesTheFocusNowhere();
};

void tst_RealDialog::EverySectionHasItsPage()
{
    QFETCH(int, nIndex);
    SRealHost host;
    SRealDialog d(host);
    d.Open();
    auto* pPage = d.Find<QWidget>(g_arrBoxes[nIndex].pszPage);
    QVERIFY(dynamic_cast<IConfigPage*>(pPage));
    QVERIFY(d.Box(nIndex)->isAncestorOf(pPage));
    QVERIFY(pPage->isVisible());
}

void tst_RealDialog::SavingAsksEverySection()
{
    SRealHost host;
    SRealDialog d(host);
    d.Open();
    d.Click("btnOk");
    const QStringList listCalls = host.journal.Take();
    QCOMPARE(listCalls.filter(QRegularExpression("^SetConfig")).size(), 9);
    QCOMPARE(listCalls.last(), QString("SaveAll"));
    QVERIFY(!d.dialog.isVisible());
}

void tst_RealDialog::ScrollingSelectsAShownSection_data()
{
    QTest::addColumn<QSet<int>>("setMissing");
    QTest::newRow("with the wall") << QSet<int>();
    QTest::newRow("without the wall") << QSet<int>{26};
}

void tst_RealDialog::ScrollingSelectsAShownSection()
{
    QFETCH(QSet<int>, setMissing);
    SRealHost host;
    host.userRight.m_setMissing = setMissing;
    SRealDialog d(host);
    d.Open();
    const int nEnd = d.ScrollBar()->maximum();
    for (int n = 0; n <= 2 * nEnd; ++n) // down and up
    {
        d.ScrollBar()->setValue(nEnd - qAbs(nEnd - n));
        const QList<int> listSelected = d.SelectedBoxes();
        QCOMPARE(listSelected, QList<int>{d.List()->GetCurrentIndex()});
        QVERIFY(d.Box(listSelected.first())->isVisible());
    }
}

void tst_RealDialog::TheWheelTakesTheFocusNowhere()
{
    SRealHost host;
    SRealDialog d(host);
    d.Open();
    QWidget* pHolder = d.dialog.focusWidget();
    int nFields = 0;
    for (QWidget* pWidget : d.dialog.findChildren<QWidget*>())
    {
        if ((qobject_cast<QComboBox*>(pWidget) || qobject_cast<QAbstractSpinBox*>(pWidget)) && pWidget->isVisible())
        {
            TurnWheel(pWidget, QRectF(pWidget->rect()).center());
            QVERIFY2(d.dialog.focusWidget() == pHolder, qPrintable(pWidget->objectName()));
            ++nFields;
        }
    }
    QVERIFY(nFields > 12);
}

QTEST_MAIN(tst_RealDialog)

#include "tst_RealDialog.moc"
