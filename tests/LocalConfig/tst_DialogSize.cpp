#include "support/DialogFixture.h"

class tst_DialogSize : public QObject
{
    Q_OBJECT

private slots:
    void init() { ResetFakePages(); }

    void ContentHeightIsComputedInInit();
    void ContentHeightIsComputedAfterTheFirstShow();
    void ContentHeightIsComputedOnResize();
    void ContentHeightCountsEveryBox_data();
    void ContentHeightCountsEveryBox();
    void ContentHeightIsStable();
    void VideoPageGrows();
    void DesktopHeightRule_data();
    void DesktopHeightRule();
    void InitDialogSizeAppliesTheRuleAgain();
};

void tst_DialogSize::ContentHeightIsComputedInInit()
{
    DIALOG;
    d.Init();
    QCOMPARE(d.Contents()->minimumHeight(), 4165);
    QCOMPARE(d.Contents()->maximumHeight(), 4165);
}

void tst_DialogSize::ContentHeightIsComputedAfterTheFirstShow()
{
    DIALOG;
    d.Init();
    d.dialog.show();
    d.Contents()->setFixedHeight(1000);
    SDialog::WaitForLayout();
    QCOMPARE(d.Contents()->minimumHeight(), 4165);
}

void tst_DialogSize::ContentHeightIsComputedOnResize()
{
    DIALOG;
    d.InitAndShow();
    d.Contents()->setFixedHeight(1000);
    QResizeEvent event(d.dialog.size(), d.dialog.size());
    QApplication::sendEvent(&d.dialog, &event);
    QCOMPARE(d.Contents()->minimumHeight(), 4165);
    QCOMPARE(d.Contents()->maximumHeight(), 4165);
}

void tst_DialogSize::ContentHeightCountsEveryBox_data()
{
    QTest::addColumn<bool>("bWall");
    QTest::newRow("with the wall") << true;
    QTest::newRow("the hidden wall box counts, too") << false;
}

void tst_DialogSize::ContentHeightCountsEveryBox()
{
    QFETCH(bool, bWall);
    DIALOG;
    if (!bWall)
    {
        host.userRight.m_setMissing = {26};
    }
    d.InitAndShow();
    int nHeight = 8 * 19 + 12 + 12;
    for (const SBox& box : g_arrBoxes)
    {
        nHeight += box.nMinimumHeight;
        QCOMPARE(d.Box(box.nIndex)->height(), box.nMinimumHeight);
    }
    QCOMPARE(d.Contents()->minimumHeight(), nHeight);
    QCOMPARE(d.Contents()->maximumHeight(), nHeight);
    QCOMPARE(d.Contents()->height(), nHeight);
}

void tst_DialogSize::ContentHeightIsStable()
{
    DIALOG;
    host.userRight.m_setMissing = {26};
    d.InitAndShow();
    const int nHeight = d.Contents()->height();
    for (int n = 0; n < 3; ++n)
    {
        QVERIFY(QMetaObject::invokeMethod(&d.dialog, "OnAdjustVerticalScrollBar"));
        SDialog::WaitForLayout();
    }
    QCOMPARE(d.Contents()->height(), nHeight);
}

void tst_DialogSize::VideoPageGrows()
{
    DIALOG;
    d.InitAndShow();
    const int nHeight = d.Contents()->height();
    CFakePage* pVideo = SFakePages::Instance().mapPages.value(1);
    pVideo->setMinimumHeight(1000);
    emit pVideo->SignalChangeSize();
    QVERIFY(d.Box(1)->height() >= 1000);
    QCOMPARE(d.Contents()->height(), nHeight + d.Box(1)->height() - 841);
    QCOMPARE(d.Contents()->minimumHeight(), d.Contents()->maximumHeight());
    QCOMPARE(d.ScrollBar()->maximum(), d.Contents()->height() - d.ScrollArea()->viewport()->height());
    const int nGrown = d.Contents()->height();
    SDialog::WaitForLayout();
    QCOMPARE(d.Contents()->height(), nGrown);
    QVERIFY(d.Box(1)->height() >= 1000);
}

void tst_DialogSize::DesktopHeightRule_data()
{
    QTest::addColumn<int>("nDesktop");
    QTest::addColumn<bool>("bLow");
    QTest::newRow("768") << 768 << true;
    QTest::newRow("769") << 769 << false;
    QTest::newRow("1080") << 1080 << false;
}

void tst_DialogSize::DesktopHeightRule()
{
    QFETCH(int, nDesktop);
    QFETCH(bool, bLow);
    const QRect desktop = QApplication::desktop()->geometry();
    QApplication::desktop()->setGeometry(0, 0, 1366, nDesktop);
    DIALOG;
    QApplication::desktop()->setGeometry(desktop);
    d.InitAndShow();
    if (bLow)
    {
        QCOMPARE(d.dialog.height(), 680);
    }
    else
    {
        QVERIFY(d.dialog.height() > 680);
    }
    QCOMPARE(d.dialog.GetCentralWidget()->size(), QSize(943, 607));
    for (const char* pszButton : {"btnOk", "btnOther", "btnCancel"})
    {
        const QAbstractButton* pButton = d.Button(pszButton);
        const QRect button(pButton->mapTo(&d.dialog, QPoint()), pButton->size());
        const QRect central(d.dialog.GetCentralWidget()->mapTo(&d.dialog, QPoint()),
                            d.dialog.GetCentralWidget()->size());
        QVERIFY(d.dialog.rect().contains(button));
        QVERIFY(!central.intersects(button));
        QVERIFY(pButton->height() >= pButton->sizeHint().height());
    }
}

void tst_DialogSize::InitDialogSizeAppliesTheRuleAgain()
{
    DIALOG;
    d.InitAndShow();
    d.dialog.InitDialogSize();
    QVERIFY(d.dialog.height() > 680);
    const QRect desktop = QApplication::desktop()->geometry();
    QApplication::desktop()->setGeometry(0, 0, 1366, 768);
    d.dialog.InitDialogSize();
    QApplication::desktop()->setGeometry(desktop);
    QCOMPARE(d.dialog.height(), 680);
}

QTEST_MAIN(tst_DialogSize)

#include "tst_DialogSize.moc"
