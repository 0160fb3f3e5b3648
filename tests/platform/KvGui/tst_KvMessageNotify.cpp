#include <KvGui/KvCustomDialog.h>
#include <KvGui/KvMessageNotify.h>

#include <QApplication>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QtTest>

#include <thread>

using KVGUI::KvMessageNotify;
using KVGUI::KvSingleton;

namespace
{

KvMessageNotify* Notify()
{
    return KvSingleton<KvMessageNotify>::Instance();
}

QList<QFrame*> Bars(const QWidget& window)
{
    QList<QFrame*> listBars;
    for (QFrame* pBar : window.findChildren<QFrame*>("notifyBar"))
    {
        if (pBar->isVisible())
        {
            listBars += pBar;
        }
    }
    return listBars;
}

QString Text(const QFrame* pBar)
{
    return pBar->findChild<QLabel*>("notifyText")->text();
}

void Show(QWidget& window)
{
    if (!qobject_cast<KVGUI::KvCustomDialog*>(&window))
    {
        window.resize(600, 400);
    }
    window.show();
    QApplication::setActiveWindow(&window);
    QVERIFY(QTest::qWaitForWindowActive(&window));
}

/// A dialog with the buttons of the settings dialog.
struct SButtonDialog : KVGUI::KvCustomDialog
{
    explicit SButtonDialog(int nWidth)
        : KvCustomDialog(Ok | Other | Cancel, nullptr, 1)
    {
        GetCentralWidget()->setFixedSize(nWidth, 300);
        SetButtonText(Ok, "Save");
        SetButtonText(Other, "Default");
        SetButtonText(Cancel, "Cancel");
    }

    QRect PlaceOf(const QWidget* pWidget) const { return {pWidget->mapTo(this, QPoint()), pWidget->size()}; }
};

} // namespace

class tst_KvMessageNotify : public QObject
{
    Q_OBJECT

private slots:
    void init() { Notify()->SetDuration(5000); }

    void ThereIsOneForTheWholeClient();
    void ShowsTheTextOverTheActiveWindow();
    void EmitsTheText();
    void AnEmptyTextIsIgnored();
    void WithoutAWindowOnlyTheSignalIsEmitted();
    void AnEqualTextRenewsTheBarThatStands();
    void AnEqualTextBringsTheBarToTheActiveWindow();
    void ASuccessDoesNotRenewAFailure();
    void ABarWaitsWhileTheMouseIsOverIt();
    void FailuresStayLonger();
    void StyleSheetsTellFailuresFromSuccesses();
    void InADialogTheBarStandsBetweenTheButtons_data();
    void InADialogTheBarStandsBetweenTheButtons();
    void InADialogTheOthersWaitForTheNewest();
    void ATextThatIsNotTrueAnyMoreIsTakenBack();
    void WhereTheButtonsLeaveNoRoomTheBarStandsAtTheTop();
    void SeveralStack();
    void EachGoesByItself();
    void AClickDismissesAndTheRestMovesUp();
    void TakesNoFocus();
    void LongTextsStayWithinTheWindow();
    void FollowsTheWindowsSize();
    void MovesToAnotherWindowWhenItsOwnCloses();
    void DiesWithTheLastWindow();
    void AMinimizedWindowShowsTheTextWhenItIsBack();
    void ATextIsNotLostToAWindowThatIsMinimized();
    void AWindowThatIsSeenComesBeforeAMinimizedOne();
    void MovesToAMinimizedWindowWhenThereIsNoOther();
    void MayBeCalledFromAnyThread();
};

void tst_KvMessageNotify::ThereIsOneForTheWholeClient()
{
    QVERIFY(Notify());
    QCOMPARE(Notify(), KvSingleton<KvMessageNotify>::Instance());
    QCOMPARE(Notify()->GetDuration(), 5000);
}

void tst_KvMessageNotify::ShowsTheTextOverTheActiveWindow()
{
    QWidget other;
    Show(other);
    QWidget window;
    Show(window);
    Notify()->AddTextNotification("Saved");
    QCOMPARE(Bars(window).size(), 1);
    QCOMPARE(Text(Bars(window).first()), QString("Saved"));
    QVERIFY(Bars(other).isEmpty());
    const QRect bar = Bars(window).first()->geometry();
    QVERIFY(qAbs(bar.center().x() - window.rect().center().x()) <= 1);
    QVERIFY(bar.top() < 100);
}

void tst_KvMessageNotify::EmitsTheText()
{
    QWidget window;
    Show(window);
    QSignalSpy spy(Notify(), &KvMessageNotify::SignalTextNotificationAdded);
    Notify()->AddTextNotification("Saved");
    QCOMPARE(spy.size(), 1);
    QCOMPARE(spy.first().first().toString(), QString("Saved"));
}

void tst_KvMessageNotify::AnEmptyTextIsIgnored()
{
    QWidget window;
    Show(window);
    QSignalSpy spy(Notify(), &KvMessageNotify::SignalTextNotificationAdded);
    Notify()->AddTextNotification(QString());
    QCOMPARE(spy.size(), 0);
    QVERIFY(Bars(window).isEmpty());
}

void tst_KvMessageNotify::WithoutAWindowOnlyTheSignalIsEmitted()
{
    QSignalSpy spy(Notify(), &KvMessageNotify::SignalTextNotificationAdded);
    Notify()->AddTextNotification("Saved");
    QCOMPARE(spy.size(), 1);
}

void tst_KvMessageNotify::AnEqualTextRenewsTheBarThatStands()
{
    QWidget window;
    Show(window);
    Notify()->SetDuration(200);
    Notify()->AddSuccessNotification("Saved");
    QTest::qWait(120);
    QSignalSpy spy(Notify(), &KvMessageNotify::SignalTextNotificationAdded);
    Notify()->AddSuccessNotification("Saved");
    QCOMPARE(Bars(window).size(), 1);
    QCOMPARE(spy.size(), 1);
    QTest::qWait(120);
    QCOMPARE(Bars(window).size(), 1);
    QTRY_VERIFY(Bars(window).isEmpty());
}

void tst_KvMessageNotify::AnEqualTextBringsTheBarToTheActiveWindow()
{
    QWidget main;
    Show(main);
    Notify()->AddTextNotification("Lost the server");
    QWidget dialog(&main, Qt::Dialog);
    Show(dialog);
    Notify()->AddTextNotification("Lost the server");
    QCOMPARE(Bars(dialog).size(), 1);
    QCOMPARE(Bars(main).size(), 1); // which has the dialog's among its own
}

void tst_KvMessageNotify::ASuccessDoesNotRenewAFailure()
{
    QWidget window;
    Show(window);
    Notify()->AddTextNotification("Disk");
    Notify()->AddSuccessNotification("Disk");
    QCOMPARE(Bars(window).size(), 2);
}

void tst_KvMessageNotify::ABarWaitsWhileTheMouseIsOverIt()
{
    QWidget window;
    Show(window);
    Notify()->SetDuration(100);
    Notify()->AddSuccessNotification("Saved");
    QFrame* pBar = Bars(window).first();
    QCursor::setPos(window.mapToGlobal({1, 1}));
    QTest::mouseMove(pBar);
    QTRY_VERIFY(pBar->underMouse());
    QTest::qWait(250);
    QCOMPARE(Bars(window).size(), 1);
    QTest::mouseMove(&window, {1, 1});
    QTRY_VERIFY(!pBar->underMouse());
    QCOMPARE(Bars(window).size(), 1);
    QTRY_VERIFY(Bars(window).isEmpty());
}

void tst_KvMessageNotify::FailuresStayLonger()
{
    QWidget window;
    Show(window);
    Notify()->SetDuration(200);
    Notify()->AddTextNotification("Failed");
    Notify()->AddSuccessNotification("Saved");
    QTRY_COMPARE(Bars(window).size(), 1);
    QCOMPARE(Text(Bars(window).first()), QString("Failed"));
    QTRY_VERIFY(Bars(window).isEmpty());
}

void tst_KvMessageNotify::StyleSheetsTellFailuresFromSuccesses()
{
    QWidget window;
    window.setStyleSheet("QFrame#notifyBar[failure=\"true\"] QLabel { color: rgb(1, 2, 3); }");
    Show(window);
    Notify()->AddTextNotification("Failed");
    Notify()->AddSuccessNotification("Saved");
    const auto colour = [&window](int nBar) {
        return Bars(window)[nBar]->findChild<QLabel*>("notifyText")->palette().color(QPalette::WindowText);
    };
    QCOMPARE(colour(0), QColor(1, 2, 3));
    QVERIFY(colour(1) != QColor(1, 2, 3));
}

void tst_KvMessageNotify::InADialogTheBarStandsBetweenTheButtons_data()
{
    QTest::addColumn<Qt::LayoutDirection>("eDirection");
    QTest::newRow("left to right") << Qt::LeftToRight;
    QTest::newRow("right to left") << Qt::RightToLeft;
}

void tst_KvMessageNotify::InADialogTheBarStandsBetweenTheButtons()
{
    QFETCH(Qt::LayoutDirection, eDirection);
    SButtonDialog dialog(900);
    dialog.setLayoutDirection(eDirection);
    Show(dialog);
    Notify()->AddTextNotification(QString("words and words ").repeated(6));
    const QFrame* pBar = Bars(dialog).first();
    const QRect bar(pBar->mapTo(&dialog, QPoint()), pBar->size());
    QVERIFY(dialog.rect().contains(bar));
    QVERIFY(!bar.intersects(dialog.PlaceOf(dialog.GetCentralWidget())));
    for (const QPushButton* pButton : dialog.findChildren<QPushButton*>())
    {
        QVERIFY(!bar.intersects(dialog.PlaceOf(pButton)));
    }
}

void tst_KvMessageNotify::InADialogTheOthersWaitForTheNewest()
{
    SButtonDialog dialog(900);
    Show(dialog);
    Notify()->SetDuration(60);
    Notify()->AddTextNotification("First");
    Notify()->SetDuration(200);
    Notify()->AddTextNotification("Second");
    QCOMPARE(Bars(dialog).size(), 1);
    QCOMPARE(Text(Bars(dialog).first()), QString("Second"));
    QTRY_COMPARE(Text(Bars(dialog).first()), QString("First"));
    QCOMPARE(Bars(dialog).size(), 1);
    QTRY_VERIFY(Bars(dialog).isEmpty());
}

void tst_KvMessageNotify::ATextThatIsNotTrueAnyMoreIsTakenBack()
{
    QWidget window;
    Show(window);
    Notify()->AddTextNotification("Lost");
    Notify()->AddTextNotification("Other");
    Notify()->TakeBack("Lost");
    QCOMPARE(Bars(window).size(), 1);
    QCOMPARE(Text(Bars(window).first()), QString("Other"));
    Notify()->TakeBack("Unknown");
    QCOMPARE(Bars(window).size(), 1);
}

void tst_KvMessageNotify::WhereTheButtonsLeaveNoRoomTheBarStandsAtTheTop()
{
    SButtonDialog dialog(400);
    Show(dialog);
    Notify()->AddTextNotification("Failed");
    QVERIFY(Bars(dialog).first()->y() < 100);
}

void tst_KvMessageNotify::SeveralStack()
{
    QWidget window;
    Show(window);
    for (const char* pszText : {"One", "Two", "Three"})
    {
        Notify()->AddTextNotification(pszText);
    }
    const QList<QFrame*> listBars = Bars(window);
    QCOMPARE(listBars.size(), 3);
    for (int n = 1; n < 3; ++n)
    {
        QVERIFY(listBars[n]->geometry().top() > listBars[n - 1]->geometry().bottom());
    }
}

void tst_KvMessageNotify::EachGoesByItself()
{
    QWidget window;
    Show(window);
    Notify()->SetDuration(150);
    Notify()->AddTextNotification("Short");
    Notify()->SetDuration(60000);
    Notify()->AddTextNotification("Long");
    QCOMPARE(Bars(window).size(), 2);
    QTRY_COMPARE(Bars(window).size(), 1);
    QCOMPARE(Text(Bars(window).first()), QString("Long"));
}

void tst_KvMessageNotify::AClickDismissesAndTheRestMovesUp()
{
    QWidget window;
    Show(window);
    Notify()->AddTextNotification("One");
    Notify()->AddTextNotification("Two");
    const QList<QFrame*> listBars = Bars(window);
    const int nTop = listBars[0]->y();
    QTest::mouseClick(listBars[0], Qt::LeftButton);
    QCOMPARE(Bars(window).size(), 1);
    QCOMPARE(Text(Bars(window).first()), QString("Two"));
    QCOMPARE(Bars(window).first()->y(), nTop);
}

void tst_KvMessageNotify::TakesNoFocus()
{
    QWidget window;
    QLineEdit edit(&window);
    Show(window);
    edit.setFocus();
    Notify()->AddTextNotification("Saved");
    QCOMPARE(window.focusWidget(), &edit);
    QCOMPARE(QApplication::activeWindow(), &window);
}

void tst_KvMessageNotify::LongTextsStayWithinTheWindow()
{
    QWidget window;
    Show(window);
    Notify()->AddTextNotification(QString("words and words ").repeated(20));
    const QFrame* pBar = Bars(window).first();
    QVERIFY(window.rect().contains(pBar->geometry()));
    const auto* pText = pBar->findChild<QLabel*>("notifyText");
    QVERIFY(pText->height() >= pText->heightForWidth(pText->width()));
}

void tst_KvMessageNotify::FollowsTheWindowsSize()
{
    QWidget window;
    Show(window);
    Notify()->AddTextNotification("Saved");
    window.resize(900, 400);
    QVERIFY(qAbs(Bars(window).first()->geometry().center().x() - window.rect().center().x()) <= 1);
}

void tst_KvMessageNotify::MovesToAnotherWindowWhenItsOwnCloses()
{
    QWidget main;
    Show(main);
    auto* pDialog = new QWidget(&main, Qt::Dialog);
    Show(*pDialog);
    Notify()->AddTextNotification("Failed to save");
    QCOMPARE(Bars(*pDialog).size(), 1);
    pDialog->hide();
    QCOMPARE(Bars(main).size(), 1);
    delete pDialog;
    QCOMPARE(Text(Bars(main).first()), QString("Failed to save"));
}

void tst_KvMessageNotify::DiesWithTheLastWindow()
{
    Notify()->SetDuration(30);
    {
        QWidget window;
        Show(window);
        Notify()->AddTextNotification("One");
        Notify()->AddTextNotification("Two");
    }
    QTest::qWait(80);
    QWidget window;
    Show(window);
    Notify()->SetDuration(5000);
    Notify()->AddTextNotification("Three");
    QCOMPARE(Bars(window).size(), 1);
}

void tst_KvMessageNotify::AMinimizedWindowShowsTheTextWhenItIsBack()
{
    QWidget window;
    Show(window);
    window.showMinimized();
    Notify()->SetDuration(100);
    QSignalSpy spy(Notify(), &KvMessageNotify::SignalTextNotificationAdded);
    Notify()->AddTextNotification("Lost the server");
    QCOMPARE(spy.size(), 1);
    QTest::qWait(250);
    window.showNormal();
    QCOMPARE(Bars(window).size(), 1);
    QCOMPARE(Text(Bars(window).first()), QString("Lost the server"));
    QTRY_VERIFY(Bars(window).isEmpty());
}

void tst_KvMessageNotify::ATextIsNotLostToAWindowThatIsMinimized()
{
    QWidget window;
    Show(window);
    Notify()->SetDuration(100);
    Notify()->AddTextNotification("Lost the server");
    window.showMinimized();
    QTest::qWait(250);
    window.showNormal();
    QCOMPARE(Bars(window).size(), 1);
    window.showMaximized(); // gives it no second time
    QTRY_VERIFY_WITH_TIMEOUT(Bars(window).isEmpty(), 1000);
}

void tst_KvMessageNotify::AWindowThatIsSeenComesBeforeAMinimizedOne()
{
    QWidget other;
    Show(other);
    QWidget window;
    Show(window);
    window.showMinimized();
    QCOMPARE(QApplication::activeWindow(), &window);
    Notify()->AddTextNotification("Saved");
    QCOMPARE(Bars(other).size(), 1);
    QVERIFY(Bars(window).isEmpty());
}

void tst_KvMessageNotify::MovesToAMinimizedWindowWhenThereIsNoOther()
{
    QWidget main;
    Show(main);
    QWidget dialog;
    Show(dialog);
    Notify()->SetDuration(100);
    Notify()->AddTextNotification("Failed to save");
    main.showMinimized();
    dialog.hide();
    QTest::qWait(250);
    main.showNormal();
    QCOMPARE(Bars(main).size(), 1);
    QTRY_VERIFY(Bars(main).isEmpty());
}

void tst_KvMessageNotify::MayBeCalledFromAnyThread()
{
    QWidget window;
    Show(window);
    std::thread thread([] { Notify()->AddTextNotification("From elsewhere"); });
    thread.join();
    QVERIFY(Bars(window).isEmpty());
    QTRY_COMPARE(Bars(window).size(), 1);
}

QTEST_MAIN(tst_KvMessageNotify)

#include "tst_KvMessageNotify.moc"
