// The dialog with its real pages on a host that has every section.

#include "support/RealDialog.h"
#include "support/Wheel.h"

#include <LocalConfig/pages/IConfigPage.h>

#include <QAbstractSpinBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>

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
    void NotificationsCoverNothingOfTheDialog_data();
    void NotificationsCoverNothingOfTheDialog();
    void ErrorTipsCoverNothingOfTheirPage_data();
    void ErrorTipsCoverNothingOfTheirPage();
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

void tst_RealDialog::NotificationsCoverNothingOfTheDialog_data()
{
    QTest::addColumn<int>("nDesktopHeight");
    QTest::newRow("ordinary desktop") << 1080;
    QTest::newRow("low desktop") << 768;
}

void tst_RealDialog::NotificationsCoverNothingOfTheDialog()
{
    QFETCH(int, nDesktopHeight);
    QApplication::desktop()->setGeometry(0, 0, 1920, nDesktopHeight);
    SRealHost host;
    SRealDialog d(host);
    d.Open();
    auto* pEdit = d.Find<QLineEdit>("picNumEdit");
    pEdit->clear();
    d.Click("btnOk");
    const auto* pBar = d.dialog.findChild<QWidget*>("notifyBar");
    QVERIFY(pBar && pBar->isVisible());
    const auto place = [&d](const QWidget* pWidget) {
        return QRect(pWidget->mapTo(&d.dialog, QPoint()), pWidget->size());
    };
    QVERIFY(d.dialog.rect().contains(place(pBar)));
    for (const QWidget* pOther : std::initializer_list<const QWidget*>{d.ScrollArea(), d.List(), d.Button("btnOk"),
                                                                       d.Button("btnOther"), d.Button("btnCancel")})
    {
        QVERIFY2(!place(pBar).intersects(place(pOther)), qPrintable(pOther->objectName()));
    }
}

void tst_RealDialog::ErrorTipsCoverNothingOfTheirPage_data()
{
    QTest::addColumn<QString>("strPage");
    QTest::addColumn<QString>("strField");
    QTest::addColumn<QString>("strText");
    QTest::newRow("picture path") << "m_pCapture"
                                  << "picPathEdit" << QString(200, 'a');
    QTest::newRow("number of pictures") << "m_pCapture"
                                        << "picNumEdit"
                                        << "";
    QTest::newRow("record path") << "m_pRecord"
                                 << "recPathEdit" << QString(200, 'a');
    QTest::newRow("size of a file") << "m_pRecord"
                                    << "maxRecSizeEdit"
                                    << "9";
}

void tst_RealDialog::ErrorTipsCoverNothingOfTheirPage()
{
    QFETCH(QString, strPage);
    QFETCH(QString, strField);
    QFETCH(QString, strText);
    SRealHost host;
    SRealDialog d(host);
    d.Open();
    auto* pPage = d.Find<QWidget>(qPrintable(strPage));
    auto* pField = d.Find<QLineEdit>(qPrintable(strField));
    QVERIFY(pPage && pField);
    pField->setFocus();
    pField->selectAll();
    QTest::keyClick(pField, Qt::Key_Delete);
    QTest::keyClicks(pField, strText);
    d.List()->setFocus();
    const auto* pTip = pPage->findChild<QLabel*>("errorTip");
    QVERIFY(pTip && pTip->isVisible());
    for (const QWidget* pOther : pPage->findChildren<QWidget*>())
    {
        const auto* pLabel = qobject_cast<const QLabel*>(pOther);
        const bool bCounts = (pLabel && pLabel != pTip) || (pOther->focusPolicy() & Qt::TabFocus);
        if (bCounts && pOther->isVisible())
        {
            const QSize shown = pLabel ? pLabel->sizeHint().boundedTo(pLabel->size()) : pOther->size();
            const QRect place(pOther->mapTo(pPage, QPoint()), QSize(shown.width(), pOther->height()));
            QVERIFY2(!place.intersects(pTip->geometry()), qPrintable(pOther->objectName()));
        }
    }
}

QTEST_MAIN(tst_RealDialog)

#include "tst_RealDialog.moc"
