#include "support/RealDialog.h"

#include <numeric>

using namespace LocalConfig;

/// The heights of the real pages' cards, and of the content that they stand in.
class tst_CardHeights : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void NoCardGrowsBeyondItsPage_data() { Rights(); }
    void NoCardGrowsBeyondItsPage();
    void TheContentCountsEveryCard_data() { Rights(); }
    void TheContentCountsEveryCard();
    void HeightsStay_data();
    void HeightsStay();

private:
    static void Rights();
    /// Of the cards by index, then of the content.
    static QList<int> Heights(SRealDialog& d);
    static void Resize(SRealDialog& d);
    static void HideAndShow(SRealDialog& d);

    SRealHost m_host;
};

void tst_CardHeights::init()
{
    QApplication::desktop()->setGeometry(0, 0, 1920, 1080);
    m_host.userRight.m_setMissing.clear();
}

void tst_CardHeights::Rights()
{
    QTest::addColumn<QSet<int>>("setMissing");
    QTest::newRow("with the wall") << QSet<int>();
    QTest::newRow("without the wall") << QSet<int>{26};
}

QList<int> tst_CardHeights::Heights(SRealDialog& d)
{
    QList<int> listHeights;
    for (const SBox& box : g_arrBoxes)
    {
        listHeights += d.Box(box.nIndex)->height();
    }
    return listHeights << d.Contents()->height();
}

void tst_CardHeights::NoCardGrowsBeyondItsPage()
{
    QFETCH(QSet<int>, setMissing);
    m_host.userRight.m_setMissing = setMissing;
    SRealDialog d(m_host);
    d.Open();
    for (const SBox& box : g_arrBoxes)
    {
        const CGroupBox* pBox = d.Box(box.nIndex);
        QVERIFY(pBox->height() >= box.nMinimumHeight);
        QVERIFY2(pBox->height() <= qMax(box.nMinimumHeight, pBox->sizeHint().height()), box.pszBox);
    }
}

void tst_CardHeights::TheContentCountsEveryCard()
{
    QFETCH(QSet<int>, setMissing);
    m_host.userRight.m_setMissing = setMissing;
    SRealDialog d(m_host);
    d.Open();
    QList<int> listHeights = Heights(d);
    const int nContent = listHeights.takeLast();
    QCOMPARE(nContent, std::accumulate(listHeights.begin(), listHeights.end(), 8 * 19 + 12 + 12));
}

void tst_CardHeights::Resize(SRealDialog& d)
{
    for (int n = 1; n <= 10; ++n)
    {
        d.dialog.resize(d.dialog.width(), d.dialog.height() + (n % 2 ? -n : n));
        QCoreApplication::processEvents();
    }
}

void tst_CardHeights::HideAndShow(SRealDialog& d)
{
    d.Click("btnCancel");
    QVERIFY(!d.dialog.isVisible());
    d.dialog.show();
    SRealDialog::WaitForLayout();
}

void tst_CardHeights::HeightsStay_data()
{
    QTest::addColumn<QSet<int>>("setMissing");
    QTest::addColumn<bool>("bResize");
    QTest::newRow("with the wall, resized") << QSet<int>() << true;
    QTest::newRow("with the wall, shown again") << QSet<int>() << false;
    QTest::newRow("without the wall, resized") << QSet<int>{26} << true;
    QTest::newRow("without the wall, shown again") << QSet<int>{26} << false;
}

void tst_CardHeights::HeightsStay()
{
    QFETCH(QSet<int>, setMissing);
    QFETCH(bool, bResize);
    m_host.userRight.m_setMissing = setMissing;
    SRealDialog d(m_host);
    d.Open();
    const QList<int> listBefore = Heights(d);
    (bResize ? &Resize : &HideAndShow)(d);
    QCOMPARE(Heights(d), listBefore);
}

QTEST_MAIN(tst_CardHeights)

#include "tst_CardHeights.moc"
