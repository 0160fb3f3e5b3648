#include "support/Wheel.h"

#include <LocalConfig/widgets/KvListWidgetEx.h>
#include <LocalConfig/widgets/QSkinCombox.h>

#include <QAbstractItemView>
#include <QLineEdit>
#include <QPainter>
#include <QScrollBar>
#include <QSignalSpy>
#include <QtTest>

using LocalConfig::KvListWidgetEx;
using LocalConfig::QSkinCombox;

namespace
{

/// Opens what the members hold.
class CComboUnderTest : public QSkinCombox
{
public:
    using QSkinCombox::eventFilter;
    using QSkinCombox::m_nMargin;
    using QSkinCombox::m_nState;
    using QSkinCombox::m_pixDisable;
    using QSkinCombox::m_pixHover;
    using QSkinCombox::m_pixNormal;
    using QSkinCombox::m_pixPressed;
    using QSkinCombox::m_pixText;
    using QSkinCombox::m_textColor;
    using QSkinCombox::QSkinCombox;

    int m_nPaints = 0;

protected:
    void paintEvent(QPaintEvent* pEvent) override
    {
        ++m_nPaints;
        QSkinCombox::paintEvent(pEvent);
    }
};

QPixmap Pixmap(const QSize& size, const QColor& color)
{
    QPixmap pixmap(size);
    pixmap.fill(color);
    return pixmap;
}

QColor ColorOf(const QPixmap& pixmap)
{
    return pixmap.toImage().pixelColor(0, 0);
}

} // namespace

class tst_SkinCombox : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void InitialValues();
    void StatePixmaps();
    void AStripIsCutIntoFrames();
    void ANullStripChangesNothing();
    void TheMouseSetsTheState();
    void APressThatOpensNothingCountsToo();
    void AnOpenPopupKeepsTheState();
    void PressingAndClosingGoesBackToNormal();
    void ClosingByTheWindowSystemGoesBackToNormal();
    void AStateChangeRepaints();
    void ALongItemWidensThePopup_data();
    void ALongItemWidensThePopup();
    void ShortItemsLeaveThePopupAlone();
    void KeysOverTheBox_data();
    void KeysOverTheBox();
    void KeysOverTheList_data() { KeysOverTheBox_data(); }
    void KeysOverTheList();
    void TabLeavesTheBox();
    void TheWheelChangesNothing();
    void AHiddenListTells();

private:
    QScopedPointer<QWidget> m_pWindow;
    CComboUnderTest* m_pCombo = nullptr;
};

void tst_SkinCombox::init()
{
    m_pWindow.reset(new QWidget);
    m_pWindow->resize(400, 200);
    m_pCombo = new CComboUnderTest(m_pWindow.data());
    m_pCombo->setGeometry(10, 10, 120, 30);
    m_pCombo->addItems({"One", "Two", "Three"});
    m_pCombo->setCurrentIndex(1);
    m_pWindow->show();
    QApplication::setActiveWindow(m_pWindow.data());
    QVERIFY(QTest::qWaitForWindowActive(m_pWindow.data()));
}

void tst_SkinCombox::InitialValues()
{
    QCOMPARE(m_pCombo->m_nState, 0);
    QVERIFY(m_pCombo->m_pixNormal.isNull() && m_pCombo->m_pixHover.isNull() && m_pCombo->m_pixPressed.isNull());
    QVERIFY(m_pCombo->m_pixDisable.isNull() && m_pCombo->m_pixText.isNull());
    QCOMPARE(m_pCombo->m_textColor, QColor(Qt::white));
    QCOMPARE(m_pCombo->m_nMargin, 6);
    QVERIFY(m_pCombo->inherits("LocalConfig::CCombobox"));
}

void tst_SkinCombox::StatePixmaps()
{
    const QSize size(4, 4);
    m_pCombo->SetStatePixmaps(Pixmap(size, Qt::red), Pixmap(size, Qt::green), Pixmap(size, Qt::blue),
                              Pixmap(size, Qt::black));
    m_pCombo->SetTextPixmap(Pixmap(size, Qt::yellow));
    QCOMPARE(ColorOf(m_pCombo->m_pixNormal), QColor(Qt::red));
    QCOMPARE(ColorOf(m_pCombo->m_pixHover), QColor(Qt::green));
    QCOMPARE(ColorOf(m_pCombo->m_pixPressed), QColor(Qt::blue));
    QCOMPARE(ColorOf(m_pCombo->m_pixDisable), QColor(Qt::black));
    QCOMPARE(ColorOf(m_pCombo->m_pixText), QColor(Qt::yellow));
}

void tst_SkinCombox::AStripIsCutIntoFrames()
{
    QPixmap strip(52, 9); // does not divide by five
    QPainter painter(&strip);
    const QColor arrColors[] = {Qt::red, Qt::green, Qt::blue, Qt::black, Qt::white};
    for (int n = 0; n < 5; ++n)
    {
        painter.fillRect(n * 10, 0, 12, 9, arrColors[n]);
    }
    painter.end();
    m_pCombo->SetStatePixmap(strip);
    const QPixmap* arrPixmaps[] = {&m_pCombo->m_pixNormal, &m_pCombo->m_pixHover, &m_pCombo->m_pixPressed,
                                   &m_pCombo->m_pixDisable};
    for (int n = 0; n < 4; ++n)
    {
        QCOMPARE(arrPixmaps[n]->size(), QSize(10, 9));
        QCOMPARE(ColorOf(*arrPixmaps[n]), arrColors[n]);
    }
}

void tst_SkinCombox::ANullStripChangesNothing()
{
    m_pCombo->SetStatePixmap(Pixmap({50, 9}, Qt::red));
    m_pCombo->SetStatePixmap(QPixmap());
    QCOMPARE(m_pCombo->m_pixNormal.size(), QSize(10, 9));
}

void tst_SkinCombox::TheMouseSetsTheState()
{
    QEvent enter(QEvent::Enter);
    QApplication::sendEvent(m_pCombo, &enter);
    QCOMPARE(m_pCombo->m_nState, 1);
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(m_pCombo, &leave);
    QCOMPARE(m_pCombo->m_nState, 0);
}

void tst_SkinCombox::APressThatOpensNothingCountsToo()
{
    QTest::mousePress(m_pCombo, Qt::RightButton);
    QVERIFY(!m_pCombo->view()->isVisible());
    QCOMPARE(m_pCombo->m_nState, 2);
}

void tst_SkinCombox::AnOpenPopupKeepsTheState()
{
    m_pCombo->showPopup();
    QApplication::setActiveWindow(m_pCombo->view()->window());
    QVERIFY(m_pCombo->view()->isActiveWindow());
    QCOMPARE(m_pCombo->m_nState, 2);
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(m_pCombo, &leave);
    QEvent enter(QEvent::Enter);
    QApplication::sendEvent(m_pCombo, &enter);
    QCOMPARE(m_pCombo->m_nState, 2);
}

void tst_SkinCombox::PressingAndClosingGoesBackToNormal()
{
    QTest::mousePress(m_pCombo, Qt::LeftButton);
    QCOMPARE(m_pCombo->m_nState, 2);
    QVERIFY(m_pCombo->view()->isVisible());
    m_pCombo->hidePopup();
    QCOMPARE(m_pCombo->m_nState, 0);
    QVERIFY(!m_pCombo->view()->isVisible());
    QCOMPARE(m_pCombo->currentIndex(), 1);
}

void tst_SkinCombox::ClosingByTheWindowSystemGoesBackToNormal()
{
    QTest::mousePress(m_pCombo, Qt::LeftButton);
    QCOMPARE(m_pCombo->m_nState, 2);
    m_pCombo->view()->window()->close();
    QVERIFY(!m_pCombo->view()->isVisible());
    QCOMPARE(m_pCombo->m_nState, 0);
}

void tst_SkinCombox::AStateChangeRepaints()
{
    QCoreApplication::processEvents();
    m_pCombo->m_nPaints = 0;
    m_pCombo->hidePopup(); // the state is normal already
    QCoreApplication::processEvents();
    QCOMPARE(m_pCombo->m_nPaints, 0);
    m_pCombo->m_nState = 2;
    m_pCombo->hidePopup();
    QCoreApplication::processEvents();
    QVERIFY(m_pCombo->m_nPaints > 0);
}

void tst_SkinCombox::ALongItemWidensThePopup_data()
{
    QTest::addColumn<int>("nItems");
    QTest::addColumn<int>("nPolicy");
    QTest::addColumn<bool>("bScrolls");
    QTest::newRow("all visible") << 4 << int(Qt::ScrollBarAsNeeded) << false;
    QTest::newRow("scrolling") << 30 << int(Qt::ScrollBarAsNeeded) << true;
    QTest::newRow("always a scroll bar") << 30 << int(Qt::ScrollBarAlwaysOn) << true;
    QTest::newRow("never a scroll bar") << 30 << int(Qt::ScrollBarAlwaysOff) << false;
}

void tst_SkinCombox::ALongItemWidensThePopup()
{
    QFETCH(int, nItems);
    QFETCH(int, nPolicy);
    QFETCH(bool, bScrolls);
    const QString strLong = "an item that is much longer than the box is wide";
    m_pCombo->addItem(strLong);
    while (m_pCombo->count() < nItems)
    {
        m_pCombo->addItem("short");
    }
    m_pCombo->view()->setVerticalScrollBarPolicy(Qt::ScrollBarPolicy(nPolicy));
    m_pCombo->showPopup();
    const int nText = m_pCombo->fontMetrics().horizontalAdvance(strLong) + 10;
    QVERIFY(nText > m_pCombo->width());
    const int nScrollBar = bScrolls ? m_pCombo->view()->verticalScrollBar()->sizeHint().width() : 0;
    QCOMPARE(m_pCombo->view()->width(), nText + nScrollBar);
}

void tst_SkinCombox::ShortItemsLeaveThePopupAlone()
{
    m_pCombo->showPopup();
    QVERIFY(m_pCombo->view()->minimumWidth() < m_pCombo->width());
    QVERIFY(m_pCombo->view()->maximumWidth() > m_pCombo->width());
}

void tst_SkinCombox::KeysOverTheBox_data()
{
    QTest::addColumn<int>("nKey");
    QTest::addColumn<bool>("bPasses");
    for (int nKey : {Qt::Key_Left, Qt::Key_Up, Qt::Key_Right, Qt::Key_Down, Qt::Key_Return, Qt::Key_Enter})
    {
        QTest::newRow(qPrintable(QKeySequence(nKey).toString())) << nKey << true;
    }
    for (int nKey :
         {Qt::Key_T, Qt::Key_1, Qt::Key_Escape, Qt::Key_Space, Qt::Key_F4, Qt::Key_Home, Qt::Key_End, Qt::Key_PageDown})
    {
        QTest::newRow(qPrintable(QKeySequence(nKey).toString())) << nKey << false;
    }
}

void tst_SkinCombox::KeysOverTheBox()
{
    QFETCH(int, nKey);
    QFETCH(bool, bPasses);
    QLineEdit other(m_pWindow.data()); // what the focus could go to
    other.show();
    m_pCombo->setFocus();
    m_pCombo->setCurrentIndex(1);
    QKeyEvent event(QEvent::KeyPress, nKey, Qt::NoModifier, QString(QChar(nKey < 128 ? nKey : 0)));
    QCOMPARE(m_pCombo->eventFilter(m_pCombo, &event), !bPasses);
    QVERIFY(m_pCombo->hasFocus());
    QTest::keyClick(m_pCombo, Qt::Key(nKey));
    const bool bMoves = nKey == Qt::Key_Up || nKey == Qt::Key_Down;
    QCOMPARE(m_pCombo->currentIndex() != 1, bMoves);
    QVERIFY(m_pCombo->hasFocus());
    QVERIFY(!m_pCombo->view()->isVisible());
}

void tst_SkinCombox::KeysOverTheList()
{
    QFETCH(int, nKey);
    QFETCH(bool, bPasses);
    m_pCombo->showPopup();
    QKeyEvent event(QEvent::KeyPress, nKey, Qt::NoModifier, QString(QChar(nKey < 128 ? nKey : 0)));
    QCOMPARE(m_pCombo->eventFilter(m_pCombo->view(), &event), !bPasses);
    if (!bPasses)
    {
        QTest::keyClick(m_pCombo->view(), Qt::Key(nKey));
        QCOMPARE(m_pCombo->view()->currentIndex().row(), 1);
        QCOMPARE(m_pCombo->currentIndex(), 1);
    }
    m_pCombo->hidePopup();
}

void tst_SkinCombox::TabLeavesTheBox()
{
    auto* pNext = new QLineEdit(m_pWindow.data());
    pNext->show();
    QWidget::setTabOrder(m_pCombo, pNext);
    m_pCombo->setFocus();
    QTest::keyClick(m_pCombo, Qt::Key_Tab);
    QVERIFY(pNext->hasFocus());
    QTest::keyClick(pNext, Qt::Key_Backtab);
    QVERIFY(m_pCombo->hasFocus());
    QTest::keyClick(m_pCombo, Qt::Key_Backtab);
    QVERIFY(pNext->hasFocus());
}

void tst_SkinCombox::TheWheelChangesNothing()
{
    QVERIFY(!TurnWheel(m_pCombo, QRectF(m_pCombo->rect()).center()));
    QCOMPARE(m_pCombo->currentIndex(), 1);
}

void tst_SkinCombox::AHiddenListTells()
{
    KvListWidgetEx list;
    QSignalSpy spy(&list, &KvListWidgetEx::sgnHide);
    list.show();
    QCOMPARE(spy.size(), 0);
    list.hide();
    QCOMPARE(spy.size(), 1);
    QVERIFY(list.inherits("KVGUI::KvListWidget"));
}

QTEST_MAIN(tst_SkinCombox)

#include "tst_SkinCombox.moc"
