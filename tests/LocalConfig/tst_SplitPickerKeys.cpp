// The split picker in the whole dialog, worked by keyboard.

#include "support/RealDialog.h"

#include <LocalConfig/pages/CSplitWndNumConfig.h>

#include <QPushButton>
#include <QSignalSpy>

using namespace LocalConfig;

namespace
{

struct SPicker : SRealDialog
{
    explicit SPicker(SRealHost& realHost)
        : SRealDialog(realHost)
    {}

    /// Opens the dialog, with the focus on the button that opens the picker.
    void Open()
    {
        SRealDialog::Open();
        pPicker = dialog.findChild<CSplitWndNumConfig*>();
        pOpener = Find<QPushButton>("btnShowSplitWnd");
        pOpener->setFocus();
    }

    void OpenPicker()
    {
        Open();
        QTest::keyClick(pOpener, Qt::Key_Space);
        QVERIFY(pPicker->isVisible());
    }

    void Press(int nKey) { QTest::keyClick(dialog.focusWidget(), Qt::Key(nKey)); }

    QWidget* Split(int nSplit) { return pPicker->findChild<QWidget*>(QStringLiteral("btnDiv%1").arg(nSplit)); }

    CSplitWndNumConfig* pPicker = nullptr;
    QPushButton* pOpener = nullptr;
};

} // namespace

class tst_SplitPickerKeys : public QObject
{
    Q_OBJECT

private slots:
    void init() { QApplication::desktop()->setGeometry(0, 0, 1920, 1080); }

    void TheOpenPickerHasTheFocus_data();
    void TheOpenPickerHasTheFocus();
    void EscapeClosesThePickerAlone();
    void EscapeClosesAPickerThatTheMouseOpened();
    void ArrowsMoveInTheGrid_data();
    void ArrowsMoveInTheGrid();
    void ArrowsScrollNothing();
    void APickGivesTheFocusBack_data();
    void APickGivesTheFocusBack();
    void APickByMouseLeavesTheView();
    void AnOpenPickerIsWhollySeen();
    void TabLeavesAndCloses();
    void ShiftTabLeavesAndCloses();
    void AFocusThatGoesElsewhereCloses_data();
    void AFocusThatGoesElsewhereCloses();
    void AMouseThatLeavesGivesTheFocusBack();
    void EnterSavesAgainAfterThePicker_data();
    void EnterSavesAgainAfterThePicker();

private:
    SRealHost m_host;
};

void tst_SplitPickerKeys::TheOpenPickerHasTheFocus_data()
{
    QTest::addColumn<int>("nKey");
    QTest::newRow("Space") << int(Qt::Key_Space);
    QTest::newRow("Return") << int(Qt::Key_Return);
}

void tst_SplitPickerKeys::TheOpenPickerHasTheFocus()
{
    QFETCH(int, nKey);
    SPicker d(m_host);
    d.Open();
    d.Press(nKey);
    QVERIFY(d.pPicker->isVisible());
    QCOMPARE(d.dialog.focusWidget(), d.Split(1));
}

void tst_SplitPickerKeys::EscapeClosesThePickerAlone()
{
    SPicker d(m_host);
    d.OpenPicker();
    d.Press(Qt::Key_Escape);
    QVERIFY(!d.pPicker->isVisible());
    QVERIFY(d.dialog.isVisible());
    QCOMPARE(d.dialog.focusWidget(), d.pOpener);
    d.Press(Qt::Key_Escape);
    QVERIFY(!d.dialog.isVisible());
}

void tst_SplitPickerKeys::EscapeClosesAPickerThatTheMouseOpened()
{
    SPicker d(m_host);
    d.Open();
    d.List()->setFocus();
    QTest::mouseClick(d.pOpener, Qt::LeftButton);
    QVERIFY(d.pPicker->isVisible());
    d.Press(Qt::Key_Escape);
    QVERIFY(!d.pPicker->isVisible());
    QVERIFY(d.dialog.isVisible());
}

void tst_SplitPickerKeys::ArrowsMoveInTheGrid_data()
{
    QTest::addColumn<int>("nFrom");
    QTest::addColumn<int>("nKey");
    QTest::addColumn<int>("nTo");
    const auto add = [](int nFrom, Qt::Key eKey, int nTo) {
        QTest::addRow("%d %s", nFrom, qPrintable(QKeySequence(eKey).toString())) << nFrom << int(eKey) << nTo;
    };
    add(1, Qt::Key_Right, 4);
    add(1, Qt::Key_Down, 9);
    add(1, Qt::Key_Left, 1);
    add(1, Qt::Key_Up, 1);
    add(8, Qt::Key_Right, 8);
    add(8, Qt::Key_Down, 20);
    add(8, Qt::Key_Left, 6);
    add(13, Qt::Key_Down, 36);
    add(16, Qt::Key_Down, 16);
    add(13, Qt::Key_Up, 4);
    add(9, Qt::Key_Left, 9);
    add(25, Qt::Key_Right, 36);
    add(25, Qt::Key_Down, 25);
    add(36, Qt::Key_Up, 13);
    add(36, Qt::Key_Right, 36);
}

void tst_SplitPickerKeys::ArrowsMoveInTheGrid()
{
    QFETCH(int, nFrom);
    QFETCH(int, nKey);
    QFETCH(int, nTo);
    SPicker d(m_host);
    d.OpenPicker();
    d.Split(nFrom)->setFocus();
    d.Press(nKey);
    QCOMPARE(d.dialog.focusWidget(), d.Split(nTo));
}

void tst_SplitPickerKeys::ArrowsScrollNothing()
{
    SPicker d(m_host);
    d.OpenPicker();
    const int nValue = d.ScrollBar()->value();
    for (int nKey : {Qt::Key_Up, Qt::Key_Left, Qt::Key_Down, Qt::Key_Down, Qt::Key_Down, Qt::Key_Down})
    {
        d.Press(nKey);
        QCOMPARE(d.ScrollBar()->value(), nValue);
    }
}

void tst_SplitPickerKeys::APickGivesTheFocusBack_data()
{
    TheOpenPickerHasTheFocus_data();
}

void tst_SplitPickerKeys::APickGivesTheFocusBack()
{
    QFETCH(int, nKey);
    SPicker d(m_host);
    d.OpenPicker();
    d.Press(Qt::Key_Down);
    d.Press(nKey);
    QVERIFY(!d.pPicker->isVisible());
    QVERIFY(d.pOpener->styleSheet().contains("tip_9-n.svg"));
    QCOMPARE(d.dialog.focusWidget(), d.pOpener);
}

void tst_SplitPickerKeys::APickByMouseLeavesTheView()
{
    SPicker d(m_host);
    d.Open();
    QTest::mouseClick(d.pOpener, Qt::LeftButton);
    const int nValue = d.ScrollBar()->value();
    QTest::mouseClick(d.Split(25), Qt::LeftButton);
    QVERIFY(!d.pPicker->isVisible());
    QCOMPARE(d.ScrollBar()->value(), nValue);
}

void tst_SplitPickerKeys::AnOpenPickerIsWhollySeen()
{
    SPicker d(m_host);
    d.Open();
    const int nBottom = d.pOpener->mapTo(d.Contents(), QPoint(0, d.pOpener->height())).y();
    const QWidget* pView = d.ScrollArea()->viewport();
    d.ScrollBar()->setValue(nBottom - pView->height());
    d.Press(Qt::Key_Space);
    QVERIFY(pView->rect().contains(QRect(d.pPicker->mapTo(pView, QPoint()), d.pPicker->size())));
}

void tst_SplitPickerKeys::TabLeavesAndCloses()
{
    SPicker d(m_host);
    d.OpenPicker();
    d.Press(Qt::Key_Tab);
    QVERIFY(!d.pPicker->isVisible());
    QCOMPARE(d.dialog.focusWidget()->objectName(), QString("pCmbScale"));
}

void tst_SplitPickerKeys::ShiftTabLeavesAndCloses()
{
    SPicker d(m_host);
    d.OpenPicker();
    d.Press(Qt::Key_Backtab);
    QVERIFY(!d.pPicker->isVisible());
    QCOMPARE(d.dialog.focusWidget(), d.pOpener);
}

void tst_SplitPickerKeys::AFocusThatGoesElsewhereCloses_data()
{
    QTest::addColumn<QString>("strControl");
    for (const char* pszControl : {"m_pToolListView", "pCmbScale", "btnOk"})
    {
        QTest::newRow(pszControl) << pszControl;
    }
}

void tst_SplitPickerKeys::AFocusThatGoesElsewhereCloses()
{
    QFETCH(QString, strControl);
    SPicker d(m_host);
    d.OpenPicker();
    auto* pControl = d.dialog.findChild<QWidget*>(strControl);
    pControl->setFocus();
    QVERIFY(!d.pPicker->isVisible());
    QCOMPARE(d.dialog.focusWidget(), pControl);
}

void tst_SplitPickerKeys::AMouseThatLeavesGivesTheFocusBack()
{
    SPicker d(m_host);
    d.OpenPicker();
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(d.pPicker, &leave);
    QVERIFY(!d.pPicker->isVisible());
    QCOMPARE(d.dialog.focusWidget(), d.pOpener);
}

void tst_SplitPickerKeys::EnterSavesAgainAfterThePicker_data()
{
    QTest::addColumn<QList<int>>("listKeys");
    QTest::addColumn<bool>("bClick");
    QTest::newRow("picked by mouse") << QList<int>{} << true;
    QTest::newRow("left by Tab") << QList<int>{Qt::Key_Tab} << false;
    QTest::newRow("closed, then left") << QList<int>{Qt::Key_Escape, Qt::Key_Tab} << false;
    QTest::newRow("closed after arrows, then left") << QList<int>{Qt::Key_Right, Qt::Key_Escape, Qt::Key_Tab} << false;
    QTest::newRow("picked after arrows, then left") << QList<int>{Qt::Key_Right, Qt::Key_Space, Qt::Key_Tab} << false;
    QTest::newRow("left for another control") << QList<int>{} << false;
    QTest::newRow("left after arrows") << QList<int>{Qt::Key_Right} << false;
}

void tst_SplitPickerKeys::EnterSavesAgainAfterThePicker()
{
    QFETCH(QList<int>, listKeys);
    QFETCH(bool, bClick);
    SPicker d(m_host);
    d.OpenPicker();
    for (int nKey : qAsConst(listKeys))
    {
        d.Press(nKey);
    }
    if (bClick)
    {
        QTest::mouseClick(d.Split(9), Qt::LeftButton);
    }
    else
    {
        d.dialog.findChild<QWidget*>("checkEncryption")->setFocus();
    }
    QVERIFY(!d.pPicker->isVisible());
    QSignalSpy saved(&d.dialog, &CLocalConfig::SignalOkButtonClicked);
    d.Press(Qt::Key_Return);
    QCOMPARE(saved.count(), 1);
    QVERIFY(!d.pPicker->isVisible());
}

QTEST_MAIN(tst_SplitPickerKeys)

#include "tst_SplitPickerKeys.moc"
