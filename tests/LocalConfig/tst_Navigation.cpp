#include "support/DialogFixture.h"

#include <KvGui/KvVerScrollBar.h>

#include <QAbstractItemView>

using namespace LocalConfig;
using KVGUI::KvToolListView;

namespace
{

/// How many connections a signal has.
class CReceivers : public QObject
{
public:
    static int Count(const QObject* pSender, const char* pszSignal)
    {
        return (pSender->*(&CReceivers::receivers))(pszSignal);
    }
};

} // namespace

class tst_Navigation : public QObject
{
    Q_OBJECT

private slots:
    void init() { ResetFakePages(); }

    void BasicIsSelectedAtFirst();
    void PickingAnEntryScrollsAndSelects_data();
    void PickingAnEntryScrollsAndSelects();
    void PickingTheCurrentEntryOnlyScrolls();
    void APickBeyondTheScrollRangeStays_data();
    void APickBeyondTheScrollRangeStays();
    void ScrollingBackReachesBasic();
    void WhereBandsOverlapTheFirstBoxCounts();
    void KeysMoveThroughTheSections();
    void ScrollBand_data();
    void ScrollBand();
    void ClickingABoxSelectsWithoutScrolling();
    void ConnectionsStaySingle();
    void HiddenWallBoxKeepsItsIndex();
    void SecurityAndShortcutKeysAreReachedWithoutTheWall();
};

void tst_Navigation::BasicIsSelectedAtFirst()
{
    DIALOG;
    d.Init();
    QCOMPARE(d.List()->GetCurrentIndex(), 0);
    QCOMPARE(d.SelectedBoxes(), QList<int>{0});
    QCOMPARE(d.Box(0)->property("select"), QVariant(true));
}

void tst_Navigation::PickingAnEntryScrollsAndSelects_data()
{
    BoxRows();
}

void tst_Navigation::PickingAnEntryScrollsAndSelects()
{
    QFETCH(int, nIndex);
    DIALOG;
    d.InitAndShow();
    d.List()->setFocus();
    QTest::keyClick(d.List(), Qt::Key_Home);
    for (int n = 0; n < nIndex; ++n)
    {
        QTest::keyClick(d.List(), Qt::Key_Down);
    }
    const int nWanted = d.Box(nIndex)->y() - 20;
    QCOMPARE(d.ScrollBar()->value(), qBound(0, nWanted, d.ScrollBar()->maximum()));
    QCOMPARE(d.List()->GetCurrentIndex(), nIndex);
    QCOMPARE(d.SelectedBoxes(), QList<int>{nIndex});
}

void tst_Navigation::PickingTheCurrentEntryOnlyScrolls()
{
    DIALOG;
    d.InitAndShow();
    d.List()->setFocus();
    QTest::keyClick(d.List(), Qt::Key_Home);
    QTest::keyClick(d.List(), Qt::Key_Down);
    d.ScrollBar()->setValue(d.Box(1)->y() + 200); // outside every band
    QCOMPARE(d.SelectedBoxes(), QList<int>{1});

    auto* pView = qobject_cast<QAbstractItemView*>(d.List());
    QVERIFY(pView);
    QTest::mouseClick(pView->viewport(), Qt::LeftButton, {}, pView->visualRect(pView->currentIndex()).center());
    QCOMPARE(d.ScrollBar()->value(), d.Box(1)->y() - 20);
    QCOMPARE(d.List()->GetCurrentIndex(), 1);
    QCOMPARE(d.SelectedBoxes(), QList<int>{1});
}

void tst_Navigation::APickBeyondTheScrollRangeStays_data()
{
    QTest::addColumn<int>("nEnd"); // of the scroll range; -1: the top of the wall's box
    QTest::newRow("outside every band") << 3000;
    QTest::newRow("inside the band of another box") << -1;
}

void tst_Navigation::APickBeyondTheScrollRangeStays()
{
    QFETCH(int, nEnd);
    DIALOG;
    d.InitAndShow();
    const int nMaximum = nEnd < 0 ? d.Box(6)->y() : nEnd;
    d.ScrollBar()->setMaximum(nMaximum);
    d.List()->setFocus();
    QTest::keyClick(d.List(), Qt::Key_End);
    QCOMPARE(d.ScrollBar()->value(), nMaximum);
    QCOMPARE(d.List()->GetCurrentIndex(), 8);
    QCOMPARE(d.SelectedBoxes(), QList<int>{8});
}

void tst_Navigation::ScrollingBackReachesBasic()
{
    DIALOG;
    d.InitAndShow();
    d.ScrollBar()->setValue(d.Box(1)->y());
    QCOMPARE(d.SelectedBoxes(), QList<int>{1});
    d.ScrollBar()->setValue(d.Box(0)->y() + 41);
    QCOMPARE(d.SelectedBoxes(), QList<int>{1});
    d.ScrollBar()->setValue(d.Box(0)->y() + 40);
    QCOMPARE(d.SelectedBoxes(), QList<int>{0});
}

void tst_Navigation::WhereBandsOverlapTheFirstBoxCounts()
{
    DIALOG;
    host.userRight.m_setMissing = {26};
    d.InitAndShow();
    d.Box(6)->move(0, d.Box(3)->y());
    d.ScrollBar()->setValue(d.Box(3)->y());
    QCOMPARE(d.SelectedBoxes(), QList<int>{3});
}

void tst_Navigation::KeysMoveThroughTheSections()
{
    DIALOG;
    d.InitAndShow();
    d.List()->setFocus();
    QTest::keyClick(d.List(), Qt::Key_End);
    QCOMPARE(d.SelectedBoxes(), QList<int>{8});
    QTest::keyClick(d.List(), Qt::Key_Home);
    QCOMPARE(d.SelectedBoxes(), QList<int>{0});
}

void tst_Navigation::ScrollBand_data()
{
    QTest::addColumn<int>("nIndex");
    QTest::addColumn<int>("nOffset");
    QTest::addColumn<bool>("bSelects");
    for (int nIndex = 1; nIndex < 9; ++nIndex)
    {
        for (int nOffset : {-41, -40, -1, 0, 1, 40, 41})
        {
            QTest::addRow("%s%+d", g_arrBoxes[nIndex].pszBox, nOffset) << nIndex << nOffset << (qAbs(nOffset) <= 40);
        }
    }
}

void tst_Navigation::ScrollBand()
{
    QFETCH(int, nIndex);
    QFETCH(int, nOffset);
    QFETCH(bool, bSelects);
    DIALOG;
    d.InitAndShow();
    // Start between two bands, with Basic selected.
    d.ScrollBar()->setValue(200);
    QCOMPARE(d.SelectedBoxes(), QList<int>{0});

    d.ScrollBar()->setValue(d.Box(nIndex)->y() + nOffset);
    QCOMPARE(d.ScrollBar()->value(), d.Box(nIndex)->y() + nOffset);
    const int nExpected = bSelects ? nIndex : 0;
    QCOMPARE(d.List()->GetCurrentIndex(), nExpected);
    QCOMPARE(d.SelectedBoxes(), QList<int>{nExpected});
}

void tst_Navigation::ClickingABoxSelectsWithoutScrolling()
{
    DIALOG;
    d.InitAndShow();
    d.ScrollBar()->setValue(d.Box(5)->y() - 200);
    const int nValue = d.ScrollBar()->value();
    const QList<int> listBefore = d.SelectedBoxes();
    QVERIFY(listBefore != QList<int>{5});
    // The fake page ignores the press, which therefore reaches the box.
    QTest::mouseClick(SFakePages::Instance().mapPages.value(5), Qt::LeftButton, {}, QPoint(20, 20));
    QCOMPARE(d.List()->GetCurrentIndex(), 5);
    QCOMPARE(d.SelectedBoxes(), QList<int>{5});
    QCOMPARE(d.ScrollBar()->value(), nValue);
}

void tst_Navigation::ConnectionsStaySingle()
{
    DIALOG;
    d.InitAndShow();
    const int nOfScrollBar = CReceivers::Count(d.ScrollBar(), SIGNAL(valueChanged(int)));
    const int nOfList = CReceivers::Count(d.List(), SIGNAL(SignalCurrentIndexChanged(int)));
    QCOMPARE(nOfList, 1);
    QScrollArea other; // whose own connection every scroll bar of an area has
    other.setVerticalScrollBar(new KVGUI::KvVerScrollBar(&other));
    QCOMPARE(nOfScrollBar, CReceivers::Count(other.verticalScrollBar(), SIGNAL(valueChanged(int))) + 1);
    for (const SBox& box : g_arrBoxes)
    {
        QCOMPARE(CReceivers::Count(d.Box(box.nIndex), SIGNAL(SignalGroupBoxClicked(int))), 1);
    }
    d.List()->setFocus();
    for (int n = 0; n < 3; ++n)
    {
        QTest::keyClick(d.List(), Qt::Key_Down);
        d.ScrollBar()->setValue(d.Box(2)->y());
        d.ScrollBar()->setValue(d.Box(2)->y() + 100);
        QTest::mouseClick(SFakePages::Instance().mapPages.value(4), Qt::LeftButton, {}, QPoint(20, 20));
    }
    QCOMPARE(CReceivers::Count(d.ScrollBar(), SIGNAL(valueChanged(int))), nOfScrollBar);
    QCOMPARE(CReceivers::Count(d.List(), SIGNAL(SignalCurrentIndexChanged(int))), nOfList);
}

void tst_Navigation::HiddenWallBoxKeepsItsIndex()
{
    DIALOG;
    host.userRight.m_setMissing = {26};
    d.InitAndShow();
    QCOMPARE(d.Box(6)->GetIndex(), 6);
    // A hidden box keeps its place in the map, so its geometry still answers to a scroll value.
    d.Box(6)->move(0, 250);
    d.ScrollBar()->setValue(250);
    QCOMPARE(d.SelectedBoxes(), QList<int>{6});
}

void tst_Navigation::SecurityAndShortcutKeysAreReachedWithoutTheWall()
{
    DIALOG;
    host.userRight.m_setMissing = {26};
    d.InitAndShow();
    d.List()->setFocus();
    QTest::keyClick(d.List(), Qt::Key_End);
    QCOMPARE(d.SelectedBoxes(), QList<int>{8});
    QTest::keyClick(d.List(), Qt::Key_Up);
    QCOMPARE(d.SelectedBoxes(), QList<int>{7});
    QTest::keyClick(d.List(), Qt::Key_Up);
    QCOMPARE(d.SelectedBoxes(), QList<int>{5});
}

QTEST_MAIN(tst_Navigation)

#include "tst_Navigation.moc"
