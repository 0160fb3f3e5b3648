// A walk by Tab and Shift+Tab through the whole dialog with its real pages.

#include "support/RealDialog.h"
#include "support/Skin.h"

#include <QAbstractItemView>
#include <QAccessible>

using namespace LocalConfig;

namespace
{

constexpr int g_nMaxStops = 100;
constexpr int g_nSeenDifference = 24; // of 255, in one channel

QImage Picture(QWidget* pWidget)
{
    return pWidget->grab().toImage();
}

int CountChangedPixels(const QImage& one, const QImage& other)
{
    int nChanged = 0;
    for (int y = 0; y < one.height(); ++y)
    {
        for (int x = 0; x < one.width(); ++x)
        {
            const QColor a = one.pixelColor(x, y);
            const QColor b = other.pixelColor(x, y);
            nChanged += qAbs(a.red() - b.red()) > g_nSeenDifference ||
                                qAbs(a.green() - b.green()) > g_nSeenDifference ||
                                qAbs(a.blue() - b.blue()) > g_nSeenDifference
                            ? 1
                            : 0;
        }
    }
    return nChanged;
}

/// The part of a stop that the eye looks for.
QRect FocusRect(const QWidget* pStop)
{
    const auto* pView = qobject_cast<const QAbstractItemView*>(pStop);
    return pView ? pView->visualRect(pView->currentIndex())
                       .translated(pView->viewport()->mapTo(pView, QPoint()))
                       .intersected(pView->rect())
                 : pStop->rect();
}

} // namespace

class tst_KeyboardWalk : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { qApp->setStyleSheet(QString()); }

    void EveryStopHasNameAndRole_data() { Sections(); }
    void EveryStopHasNameAndRole();
    void EveryStopLiesInsideTheView_data() { Sections(); }
    void EveryStopLiesInsideTheView();
    void EveryStopChangesPixels_data();
    void EveryStopChangesPixels();
    void TheNavigationMarksTheSectionOfTheStop_data() { Sections(); }
    void TheNavigationMarksTheSectionOfTheStop();
    void ShiftTabGoesTheSameWayBack_data() { Sections(); }
    void ShiftTabGoesTheSameWayBack();
    void TabComesThroughAllSectionsAndButtonsAndBack();
    void TabPassesOverALockedSection();
    void AStopThatIsReachedFromTheButtonsIsSeenAndMarked();
    void EveryCellOfTheKeyTableIsSeen_data();
    void EveryCellOfTheKeyTableIsSeen();
    void EnterInTheKeyTableDoesNothing_data();
    void EnterInTheKeyTableDoesNothing();
    void ARadioGroupIsEnteredAtItsCheckedButton_data();
    void ARadioGroupIsEnteredAtItsCheckedButton();
    void NothingMovesUnderTheMouse();
    void AFocusThatOnlyComesBackMovesNothing();

private:
    static void Sections() { BoxRows(); }

    /// Opens the dialog and picks a section in the navigation list.
    void Enter(SRealDialog& d, int nIndex);
    static QWidget* Press(SRealDialog& d, Qt::Key eKey);
    /// Walks by Tab from the navigation list through the picked section; tells its stops one by one.
    template <class Visit>
    void Walk(SRealDialog& d, int nIndex, Visit visit);
    bool IsInSight(SRealDialog& d, const QWidget* pStop) const;

    SRealHost m_host;
};

void tst_KeyboardWalk::init()
{
    QApplication::desktop()->setGeometry(0, 0, 1920, 1080);
    UseSkin("DustyBlue");
    m_host.shortcutKey.m_record = LocalConfigLogical::ShortcutKeyConfigInfo();
    m_host.tvWall.m_record = LocalConfigLogical::TvWallConfigInfo();
    m_host.alarm.m_record = LocalConfigLogical::AlarmConfigInfo();
    m_host.journal.Take();
}

void tst_KeyboardWalk::Enter(SRealDialog& d, int nIndex)
{
    d.Open();
    d.List()->setFocus();
    QTest::keyClick(d.List(), Qt::Key_Home);
    for (int n = 0; n < nIndex; ++n)
    {
        QTest::keyClick(d.List(), Qt::Key_Down);
    }
}

QWidget* tst_KeyboardWalk::Press(SRealDialog& d, Qt::Key eKey)
{
    QTest::keyClick(d.dialog.focusWidget(), eKey);
    return d.dialog.focusWidget();
}

template <class Visit>
void tst_KeyboardWalk::Walk(SRealDialog& d, int nIndex, Visit visit)
{
    Enter(d, nIndex);
    QWidget* pStop = Press(d, Qt::Key_Tab);
    QVERIFY2(d.Box(nIndex)->isAncestorOf(pStop), qPrintable(pStop->objectName()));
    for (int n = 0; d.Box(nIndex)->isAncestorOf(pStop); ++n)
    {
        QVERIFY(n < g_nMaxStops);
        visit(pStop);
        if (QTest::currentTestFailed())
        {
            qWarning("at %s", qPrintable(pStop->objectName()));
            return;
        }
        pStop = Press(d, Qt::Key_Tab);
    }
}

bool tst_KeyboardWalk::IsInSight(SRealDialog& d, const QWidget* pStop) const
{
    const QWidget* pView = d.ScrollArea()->viewport();
    const QRect rect = FocusRect(pStop);
    return pView->rect().contains(QRect(pStop->mapTo(pView, rect.topLeft()), rect.size()));
}

void tst_KeyboardWalk::EveryStopHasNameAndRole()
{
    QFETCH(int, nIndex);
    SRealDialog d(m_host);
    Walk(d, nIndex, [](QWidget* pStop) {
        QAccessibleInterface* pInterface = QAccessible::queryAccessibleInterface(pStop);
        QVERIFY(!pInterface->text(QAccessible::Name).isEmpty());
        QVERIFY(pInterface->role() != QAccessible::NoRole && pInterface->role() != QAccessible::Client);
    });
}

void tst_KeyboardWalk::EveryStopLiesInsideTheView()
{
    QFETCH(int, nIndex);
    SRealDialog d(m_host);
    Walk(d, nIndex, [&](QWidget* pStop) { QVERIFY(IsInSight(d, pStop)); });
}

void tst_KeyboardWalk::EveryStopChangesPixels_data()
{
    QTest::addColumn<int>("nIndex");
    QTest::addColumn<QString>("strSkin");
    for (const SBox& box : g_arrBoxes)
    {
        for (const char* pszSkin : {"DustyBlue", "White"})
        {
            QTest::addRow("%s %s", box.pszBox, pszSkin) << box.nIndex << pszSkin;
        }
    }
}

void tst_KeyboardWalk::EveryStopChangesPixels()
{
    QFETCH(int, nIndex);
    QFETCH(QString, strSkin);
    UseSkin(strSkin);
    SRealDialog d(m_host);
    QWidget* pLast = nullptr;
    QImage focused;
    const auto compare = [&] {
        // The half of the shorter way around it: more than a text cursor, less than any ring.
        const QSize size = FocusRect(pLast).size();
        const int nChanged = CountChangedPixels(focused, Picture(pLast));
        QVERIFY2(nChanged >= (size.width() + size.height()) / 2,
                 qPrintable(QString("%1: %2").arg(pLast->objectName()).arg(nChanged)));
    };
    Walk(d, nIndex, [&](QWidget* pStop) {
        if (pLast)
        {
            compare();
        }
        pLast = pStop;
        focused = Picture(pStop);
    });
    QVERIFY(pLast);
    compare();
}

void tst_KeyboardWalk::TheNavigationMarksTheSectionOfTheStop()
{
    QFETCH(int, nIndex);
    SRealDialog d(m_host);
    Walk(d, nIndex, [&](QWidget* /*pStop*/) {
        QCOMPARE(d.List()->GetCurrentIndex(), nIndex);
        QCOMPARE(d.SelectedBoxes(), QList<int>{nIndex});
    });
}

void tst_KeyboardWalk::ShiftTabGoesTheSameWayBack()
{
    QFETCH(int, nIndex);
    SRealDialog d(m_host);
    QList<QWidget*> listStops;
    Walk(d, nIndex, [&](QWidget* pStop) { listStops += pStop; });
    listStops.takeLast()->setFocus();
    while (!listStops.isEmpty())
    {
        QWidget* pStop = Press(d, Qt::Key_Backtab);
        QCOMPARE(pStop, listStops.takeLast());
        QVERIFY2(IsInSight(d, pStop), qPrintable(pStop->objectName()));
        QCOMPARE(d.List()->GetCurrentIndex(), nIndex);
        QCOMPARE(d.SelectedBoxes(), QList<int>{nIndex});
    }
    QCOMPARE(Press(d, Qt::Key_Backtab), d.List());
    QCOMPARE(d.List()->GetCurrentIndex(), nIndex);
}

void tst_KeyboardWalk::TabComesThroughAllSectionsAndButtonsAndBack()
{
    SRealDialog d(m_host);
    Enter(d, 0);
    QList<int> listSections;
    QStringList listOutside;
    QSet<QWidget*> setStops;
    for (QWidget* pStop = Press(d, Qt::Key_Tab); pStop != d.List(); pStop = Press(d, Qt::Key_Tab))
    {
        QVERIFY2(!setStops.contains(pStop), qPrintable(pStop->objectName()));
        setStops.insert(pStop);
        if (!d.Contents()->isAncestorOf(pStop))
        {
            listOutside += pStop->objectName();
            continue;
        }
        const int nIndex = d.List()->GetCurrentIndex();
        QVERIFY2(d.Box(nIndex)->isAncestorOf(pStop), qPrintable(pStop->objectName()));
        QCOMPARE(d.SelectedBoxes(), QList<int>{nIndex});
        if (listSections.isEmpty() || listSections.last() != nIndex)
        {
            listSections += nIndex;
        }
    }
    QCOMPARE(listSections, (QList<int>{0, 1, 2, 3, 4, 5, 6, 7, 8}));
    QCOMPARE(listOutside, (QStringList{"btnOther", "btnOk", "btnCancel", "btnClose"}));
}

void tst_KeyboardWalk::TabPassesOverALockedSection()
{
    SRealDialog d(m_host);
    Enter(d, 7); // Security, whose one control goes with the connection
    m_host.loginManager.Notify(3, 0);
    QVERIFY(d.Box(8)->isAncestorOf(Press(d, Qt::Key_Tab)));
    QCOMPARE(d.SelectedBoxes(), QList<int>{8});
}

void tst_KeyboardWalk::AStopThatIsReachedFromTheButtonsIsSeenAndMarked()
{
    SRealDialog d(m_host);
    Enter(d, 0);
    d.Button("btnOther")->setFocus();
    const QWidget* pStop = Press(d, Qt::Key_Backtab);
    QVERIFY(d.Box(8)->isAncestorOf(pStop));
    QVERIFY(IsInSight(d, pStop));
    QCOMPARE(d.List()->GetCurrentIndex(), 8);
    QCOMPARE(d.SelectedBoxes(), QList<int>{8});
}

void tst_KeyboardWalk::EveryCellOfTheKeyTableIsSeen_data()
{
    QTest::addColumn<bool>("bPcKeyboard");
    QTest::addColumn<QString>("strView");
    QTest::newRow("keyboard") << true << "pckeyboardView";
    QTest::newRow("joystick") << false << "nkbView";
}

void tst_KeyboardWalk::EveryCellOfTheKeyTableIsSeen()
{
    QFETCH(bool, bPcKeyboard);
    QFETCH(QString, strView);
    m_host.shortcutKey.m_record.pcKeyboard = bPcKeyboard;
    SRealDialog d(m_host);
    Enter(d, 8);
    auto* pView = d.dialog.findChild<QAbstractItemView*>(strView);
    QCOMPARE(Press(d, Qt::Key_Tab)->parentWidget(), pView->parentWidget());
    QCOMPARE(Press(d, Qt::Key_Tab), pView);
    const int nRows = pView->model()->rowCount();
    for (int n = 0; n < 2 * nRows; ++n) // down and up
    {
        QVERIFY2(IsInSight(d, pView), qPrintable(QString::number(pView->currentIndex().row())));
        QTest::keyClick(pView, n < nRows ? Qt::Key_Down : Qt::Key_Up);
    }
    QCOMPARE(pView->currentIndex().row(), 0);
}

void tst_KeyboardWalk::EnterInTheKeyTableDoesNothing_data()
{
    QTest::addColumn<int>("nKey");
    QTest::newRow("Return") << int(Qt::Key_Return);
    QTest::newRow("Enter") << int(Qt::Key_Enter);
}

void tst_KeyboardWalk::EnterInTheKeyTableDoesNothing()
{
    QFETCH(int, nKey);
    SRealDialog d(m_host);
    d.Open();
    d.Find<QWidget>("pckeyboardView")->setFocus();
    QCOMPARE(Press(d, Qt::Key(nKey))->objectName(), QString("pckeyboardView"));
    QVERIFY(d.dialog.isVisible());
    QCOMPARE(m_host.journal.Take(), QStringList());
}

void tst_KeyboardWalk::ARadioGroupIsEnteredAtItsCheckedButton_data()
{
    QTest::addColumn<int>("nIndex");
    QTest::addColumn<QStringList>("listGroup");
    QTest::addColumn<QString>("strChecked");
    const auto add = [](int nIndex, const QStringList& listGroup) {
        for (const QString& strChecked : listGroup)
        {
            QTest::newRow(qPrintable(strChecked)) << nIndex << listGroup << strChecked;
        }
    };
    add(5, {"radioPopUp", "radioPreview"});
    add(6, {"rdBtnTour", "rdBtnTile", "rdBtnInquiry"});
    add(8, {"pcRadioBtn", "nkbRadioBtn"});
}

void tst_KeyboardWalk::ARadioGroupIsEnteredAtItsCheckedButton()
{
    QFETCH(int, nIndex);
    QFETCH(QStringList, listGroup);
    QFETCH(QString, strChecked);
    m_host.alarm.m_record.openVideoType = listGroup.indexOf(strChecked);
    m_host.tvWall.m_record.nBindMode = listGroup.indexOf(strChecked) + 1;
    m_host.shortcutKey.m_record.pcKeyboard = strChecked == "pcRadioBtn";
    SRealDialog d(m_host);
    QStringList listEntered;
    Walk(d, nIndex, [&](QWidget* pStop) {
        if (listGroup.contains(pStop->objectName()))
        {
            listEntered += pStop->objectName();
        }
    });
    QCOMPARE(listEntered, QStringList{strChecked});
}

void tst_KeyboardWalk::NothingMovesUnderTheMouse()
{
    SRealDialog d(m_host);
    Enter(d, 0);
    auto* pBox = d.Find<QWidget>("chkboxDblk2ChangeStream");
    d.ScrollBar()->setValue(pBox->mapTo(d.Contents(), QPoint()).y() + pBox->height() / 2); // cut by the view's top
    d.Button("btnOk")->setFocus();
    const int nValue = d.ScrollBar()->value();
    const QPoint point = pBox->mapTo(&d.dialog, QPoint(10, pBox->height() - 3));
    QTest::mousePress(d.dialog.windowHandle(), Qt::LeftButton, {}, point);
    QCOMPARE(d.dialog.focusWidget(), pBox);
    QCOMPARE(d.ScrollBar()->value(), nValue);
    QCOMPARE(d.SelectedBoxes(), QList<int>{1});
    QCOMPARE(d.List()->GetCurrentIndex(), 1);
    QTest::mouseRelease(d.dialog.windowHandle(), Qt::LeftButton, {}, point);
    QCOMPARE(d.ScrollBar()->value(), nValue);
}

void tst_KeyboardWalk::AFocusThatOnlyComesBackMovesNothing()
{
    SRealDialog d(m_host);
    Enter(d, 0);
    auto* pField = Press(d, Qt::Key_Tab);
    d.ScrollBar()->setValue(d.ScrollBar()->maximum());
    const int nValue = d.ScrollBar()->value();
    QWidget other;
    other.show();
    QApplication::setActiveWindow(&other);
    QVERIFY(QTest::qWaitForWindowActive(&other));
    QApplication::setActiveWindow(&d.dialog);
    QVERIFY(QTest::qWaitForWindowActive(&d.dialog));
    QCOMPARE(QApplication::focusWidget(), pField);
    QCOMPARE(d.ScrollBar()->value(), nValue);
}

QTEST_MAIN(tst_KeyboardWalk)

#include "tst_KeyboardWalk.moc"
