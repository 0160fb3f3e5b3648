#include <client/live/SplitView.h>

#include <QtTest>

using namespace LocalConfigClient;

class tst_SplitView : public QObject
{
    Q_OBJECT

private slots:
    void SplitsFillTheArea_data();
    void SplitsFillTheArea();
    void AnUnknownSplitChangesNothing();
    void TheDisplayScalePlacesThePicture();
};

void tst_SplitView::SplitsFillTheArea_data()
{
    QTest::addColumn<int>("nSplit");
    for (int nSplit : {1, 4, 6, 8, 9, 13, 16, 20, 25, 36})
    {
        QTest::addRow("%d", nSplit) << nSplit;
    }
}

void tst_SplitView::SplitsFillTheArea()
{
    QFETCH(int, nSplit);
    const QRect area(3, 5, 641, 363);
    const QVector<QRect> listPanes = SplitView::GetPanes(nSplit, area);
    QCOMPARE(listPanes.size(), nSplit);
    QRegion covered;
    int nPixels = 0;
    for (const QRect& pane : listPanes)
    {
        QVERIFY(!covered.intersects(pane));
        covered += pane;
        nPixels += pane.width() * pane.height();
    }
    QCOMPARE(covered.boundingRect(), area);
    QCOMPARE(nPixels, area.width() * area.height());
}

void tst_SplitView::AnUnknownSplitChangesNothing()
{
    SplitView view(nullptr);
    view.SetSplit(9);
    for (int nSplit : {0, -1, 5, 64})
    {
        view.SetSplit(nSplit);
        QCOMPARE(view.GetSplit(), 9);
    }
}

void tst_SplitView::TheDisplayScalePlacesThePicture()
{
    const QRect pane(10, 10, 400, 200);
    QCOMPARE(SplitView::GetPicturePlace(pane, QSize(100, 80), 1), pane);
    QCOMPARE(SplitView::GetPicturePlace(pane, QSize(100, 80), 0).size(), QSize(100, 80));
    QCOMPARE(SplitView::GetPicturePlace(pane, QSize(100, 80), 0).center(), pane.center());
    SplitView view(nullptr);
    view.SetDisplayScale(0);
    view.SetDisplayScale(7);
    QCOMPARE(view.GetDisplayScale(), 0);
}

QTEST_MAIN(tst_SplitView)

#include "tst_SplitView.moc"
