#include "support/VideoPage.h"

#include <LocalConfig/pages/CSplitWndNumConfig.h>

#include <QAccessible>
#include <QPushButton>

using namespace LocalConfig;
using LocalConfigLogical::VideoConfigInfo;

class tst_VideoSplit : public CVideoPageTest
{
    Q_OBJECT

private slots:
    void init() { Reset(); }

    void SplitButtonStyle_data();
    void SplitButtonStyle();
    void TheSplitButtonTellsItsValue_data();
    void TheSplitButtonTellsItsValue();
    void TheSameSplitStylesNothingAnew();
    void ThePickerIsHiddenAtFirst();
    void PickerTogglesAndStandsBelowTheButton();
    void PickingHidesThePicker();
    void LeavingHidesThePicker();
};

void tst_VideoSplit::SplitButtonStyle_data()
{
    QTest::addColumn<int>("nSplit");
    for (int n : {1, 4, 6, 8, 9, 13, 16, 20, 25, 36})
    {
        QTest::addRow("%d", n) << n;
    }
}

void tst_VideoSplit::SplitButtonStyle()
{
    QFETCH(int, nSplit);
    VideoConfigInfo record;
    record.nDefaultSplit = nSplit;
    Load(record);
    const QString strN = QString::number(nSplit);
    const QString strGap = " \t\t\t\t\t\t";
    QCOMPARE(Find<QPushButton>("btnShowSplitWnd")->styleSheet(),
             "QPushButton#btnShowSplitWnd{image: url(:/LocalConfig/tip_" + strN + "-n.svg);border:none;}" + strGap +
                 "QPushButton#btnShowSplitWnd:hover{image: url(:/LocalConfig/tip_" + strN + "-h.svg);}" + strGap +
                 "QPushButton#btnShowSplitWnd:pressed{image: url(:/LocalConfig/tip_" + strN + "-p.svg);}" + strGap +
                 "QPushButton#btnShowSplitWnd:disabled{image: url(:/LocalConfig/tip_" + strN + "-d.svg);}");
}

void tst_VideoSplit::TheSplitButtonTellsItsValue_data()
{
    QTest::addColumn<int>("nSplit");
    QTest::addColumn<QString>("strTold");
    QTest::newRow("1") << 1 << "1 Window";
    QTest::newRow("4") << 4 << "4 Windows";
    QTest::newRow("36") << 36 << "36 Windows";
}

void tst_VideoSplit::TheSplitButtonTellsItsValue()
{
    QFETCH(int, nSplit);
    QFETCH(QString, strTold);
    Load({});
    auto* pButton = Find<QPushButton>("btnShowSplitWnd");
    QTest::mouseClick(pButton, Qt::LeftButton);
    QTest::mouseClick(Find<QPushButton>(qPrintable(QString("btnDiv%1").arg(nSplit))), Qt::LeftButton);
    QCOMPARE(pButton->toolTip(), strTold);
    const QAccessibleInterface* pAccessible = QAccessible::queryAccessibleInterface(pButton);
    QCOMPARE(pAccessible->text(QAccessible::Name), QString("Default Split"));
    QCOMPARE(pAccessible->text(QAccessible::Description), strTold);
}

void tst_VideoSplit::TheSameSplitStylesNothingAnew()
{
    class CStyleWatch : public QObject
    {
    public:
        bool eventFilter(QObject* /*pWatched*/, QEvent* pEvent) override
        {
            m_nChanges += pEvent->type() == QEvent::StyleChange ? 1 : 0;
            return false;
        }

        int m_nChanges = 0;
    };

    VideoConfigInfo record;
    record.nDefaultSplit = 9;
    Load(record);
    Show();
    CStyleWatch watch;
    Find<QPushButton>("btnShowSplitWnd")->installEventFilter(&watch);
    m_pPage->LoadConfig(false);
    QCOMPARE(watch.m_nChanges, 0);
    m_pPage->LoadConfig(true);
    QVERIFY(watch.m_nChanges > 0);
}

void tst_VideoSplit::ThePickerIsHiddenAtFirst()
{
    Show();
    QVERIFY(!Find<CSplitWndNumConfig>("CSplitWndNumConfig")->isVisible());
}

void tst_VideoSplit::PickerTogglesAndStandsBelowTheButton()
{
    Load(VideoConfigInfo());
    Show();
    auto* pPicker = Find<CSplitWndNumConfig>("CSplitWndNumConfig");
    auto* pButton = Find<QPushButton>("btnShowSplitWnd");
    QVERIFY(!pPicker->isVisible());
    QTest::mouseClick(pButton, Qt::LeftButton);
    QVERIFY(pPicker->isVisible());
    const QPoint button = pButton->mapTo(m_pPage.data(), QPoint());
    QCOMPARE(pPicker->pos(), QPoint(button.x() - pButton->width(), button.y() + pButton->height() + 10));
    QTest::mouseClick(pButton, Qt::LeftButton);
    QVERIFY(!pPicker->isVisible());
}

void tst_VideoSplit::PickingHidesThePicker()
{
    Load(VideoConfigInfo());
    Show();
    auto* pPicker = Find<CSplitWndNumConfig>("CSplitWndNumConfig");
    QTest::mouseClick(Find<QPushButton>("btnShowSplitWnd"), Qt::LeftButton);
    QTest::mouseClick(Find<QPushButton>("btnDiv25"), Qt::LeftButton);
    QVERIFY(!pPicker->isVisible());
    QVERIFY(Find<QPushButton>("btnShowSplitWnd")->styleSheet().contains("tip_25-n.svg"));
    QCOMPARE(m_parent.focusWidget(), m_pPage.data());
    QCOMPARE(m_pPage->SaveConfig(), 0);
    QCOMPARE(m_pSection->m_record.nDefaultSplit, 25);
}

void tst_VideoSplit::LeavingHidesThePicker()
{
    Load(VideoConfigInfo());
    Show();
    auto* pPicker = Find<CSplitWndNumConfig>("CSplitWndNumConfig");
    for (QWidget* pLeft : {static_cast<QWidget*>(pPicker), static_cast<QWidget*>(Edit("videoCushionEdit"))})
    {
        QTest::mouseClick(Find<QPushButton>("btnShowSplitWnd"), Qt::LeftButton);
        QVERIFY(pPicker->isVisible());
        QEvent leave(QEvent::Leave);
        QApplication::sendEvent(pLeft, &leave);
        QVERIFY(!pPicker->isVisible());
    }
}

QTEST_MAIN(tst_VideoSplit)

#include "tst_VideoSplit.moc"
