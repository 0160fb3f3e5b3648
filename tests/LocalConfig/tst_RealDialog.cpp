// The dialog with its real pages on a host that has every section.

#include "support/RealDialog.h"

#include <LocalConfig/pages/IConfigPage.h>

using namespace LocalConfig;

class tst_RealDialog : public QObject
{
    Q_OBJECT

private slots:
    void EverySectionHasItsPage_data() { BoxRows(); }
    void EverySectionHasItsPage();
    void SavingAsksEverySection();
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

QTEST_MAIN(tst_RealDialog)

#include "tst_RealDialog.moc"
