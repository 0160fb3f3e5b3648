#include <client/live/SplitView.h>

#include <QStyle>
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
    void ArrowsSelectTheNeighbour_data();
    void ArrowsSelectTheNeighbour();
    void TheFocusIsSeen();
    void TheRecordedPaneIsMarked();
    void TheMarkStandsAtTheLeadingEdge_data();
    void TheMarkStandsAtTheLeadingEdge();
    void TheSelectedPaneIsTold();
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

void tst_SplitView::ArrowsSelectTheNeighbour_data()
{
    QTest::addColumn<int>("nSplit");
    QTest::addColumn<int>("nFrom");
    QTest::addColumn<int>("nKey");
    QTest::addColumn<int>("nTo");
    const auto add = [](int nSplit, int nFrom, Qt::Key eKey, int nTo) {
        QTest::addRow("%d of %d, %s", nFrom, nSplit, qPrintable(QKeySequence(eKey).toString()))
            << nSplit << nFrom << int(eKey) << nTo;
    };
    add(4, 0, Qt::Key_Right, 1);
    add(4, 0, Qt::Key_Down, 2);
    add(4, 3, Qt::Key_Left, 2);
    add(4, 3, Qt::Key_Up, 1);
    add(4, 1, Qt::Key_Right, 1);
    add(4, 2, Qt::Key_Down, 2);
    add(6, 0, Qt::Key_Right, 1); // of two beside the large pane the upper one
    add(6, 5, Qt::Key_Up, 2);
    add(9, 8, Qt::Key_Home, 0);
    add(9, 0, Qt::Key_End, 8);
}

void tst_SplitView::ArrowsSelectTheNeighbour()
{
    QFETCH(int, nSplit);
    QFETCH(int, nFrom);
    QFETCH(int, nKey);
    QFETCH(int, nTo);
    SplitView view(nullptr);
    view.resize(600, 400);
    view.SetSplit(nSplit);
    view.Select(nFrom);
    QVERIFY(view.focusPolicy() & Qt::TabFocus);
    QTest::keyClick(&view, Qt::Key(nKey));
    QCOMPARE(view.GetSelected(), nTo);
}

void tst_SplitView::TheFocusIsSeen()
{
    QWidget window;
    SplitView view(&window);
    view.resize(600, 400);
    window.show();
    QApplication::setActiveWindow(&window);
    QVERIFY(QTest::qWaitForWindowActive(&window));
    view.clearFocus();
    const QImage before = view.grab().toImage();
    view.setFocus();
    QVERIFY(view.grab().toImage() != before);
}

void tst_SplitView::TheRecordedPaneIsMarked()
{
    SplitView view(nullptr);
    view.resize(600, 400);
    view.Select(0);
    const QImage before = view.grab().toImage();
    view.SetRecorded(2);
    const QImage recorded = view.grab().toImage();
    const QRect pane = SplitView::GetPanes(4, view.rect())[2];
    QVERIFY(recorded.copy(pane) != before.copy(pane));
    for (const int nOther : {0, 1, 3})
    {
        const QRect other = SplitView::GetPanes(4, view.rect())[nOther];
        QCOMPARE(recorded.copy(other), before.copy(other));
    }
    view.SetRecorded(-1);
    QCOMPARE(view.grab().toImage(), before);
}

void tst_SplitView::TheMarkStandsAtTheLeadingEdge_data()
{
    QTest::addColumn<Qt::LayoutDirection>("eDirection");
    QTest::newRow("from the left") << Qt::LeftToRight;
    QTest::newRow("from the right") << Qt::RightToLeft;
}

void tst_SplitView::TheMarkStandsAtTheLeadingEdge()
{
    QFETCH(Qt::LayoutDirection, eDirection);
    SplitView view(nullptr);
    view.resize(400, 300);
    view.SetSplit(1);
    view.setLayoutDirection(eDirection);
    view.setProperty("paneColor", QColor(Qt::black));
    view.setProperty("recordedColor", QColor(255, 0, 0));
    view.setProperty("textColor", QColor(0, 255, 0));
    view.SetRecorded(0);
    // The mark, its text and nothing else above the pane's number.
    const QImage picture = view.grab(QRect(0, 0, 400, 60)).toImage();
    QRect mark;
    QRect text;
    for (int nPixel = 0; nPixel < picture.width() * picture.height(); ++nPixel)
    {
        const QPoint place(nPixel % picture.width(), nPixel / picture.width());
        const QColor color = picture.pixelColor(place);
        mark |= color.red() > 200 && color.green() < 50 ? QRect(place, QSize(1, 1)) : QRect();
        text |= color.green() > 200 && color.red() < 50 ? QRect(place, QSize(1, 1)) : QRect();
    }
    if (eDirection == Qt::RightToLeft)
    {
        mark = QStyle::visualRect(eDirection, picture.rect(), mark);
        text = QStyle::visualRect(eDirection, picture.rect(), text);
    }
    QVERIFY(mark.left() > 5 && mark.right() < 30);
    QVERIFY(text.left() > mark.right() && text.right() < 80);
}

void tst_SplitView::TheSelectedPaneIsTold()
{
    SplitView view(nullptr);
    QCOMPARE(view.accessibleDescription(), QString("Camera 01"));
    view.Select(1);
    QCOMPARE(view.accessibleDescription(), QString("Camera 02"));
    view.SetRecorded(1);
    QCOMPARE(view.accessibleDescription(), QString("Camera 02, recorded"));
    view.SetSplit(1);
    QCOMPARE(view.accessibleDescription(), QString("Camera 01"));
}

QTEST_MAIN(tst_SplitView)

#include "tst_SplitView.moc"
