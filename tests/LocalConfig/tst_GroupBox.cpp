#include <LocalConfig/CGroupBox.h>

#include <UICommonModule/Pxa.h>

#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QVBoxLayout>
#include <QtTest>

using LocalConfig::CGroupBox;

class tst_GroupBox : public QObject
{
    Q_OBJECT

private slots:
    void InitialState();
    void IndexIsKept();
    void SelectSetsTheProperty();
    void SelectPolishesOnlyOnChange();
    void TheEdgesOfASelectedCardAreOn();
    void PressEmitsTheIndex_data();
    void PressEmitsTheIndex();
    void PressOnALabelSelects();
    void PressOnAButtonIsTheButtons();
    void StyleSheetSurvivesRenaming();
};

void tst_GroupBox::InitialState()
{
    const CGroupBox box(nullptr);
    QCOMPARE(box.GetIndex(), -1);
    QVERIFY(!box.IsSelect());
    QCOMPARE(box.objectName(), QString("CGroupBox"));
    QVERIFY(!box.property("select").isValid());
}

void tst_GroupBox::IndexIsKept()
{
    CGroupBox box(nullptr);
    box.SetIndex(8);
    QCOMPARE(box.GetIndex(), 8);
}

void tst_GroupBox::SelectSetsTheProperty()
{
    CGroupBox box(nullptr);
    box.SetSelect(true);
    QVERIFY(box.IsSelect());
    QCOMPARE(box.property("select"), QVariant(true));
    box.SetSelect(false);
    QVERIFY(!box.IsSelect());
    QCOMPARE(box.property("select"), QVariant(false));
}

void tst_GroupBox::SelectPolishesOnlyOnChange()
{
    CGroupBox box(nullptr);
    box.setStyleSheet("QGroupBox { color: rgb(0, 0, 0); } QGroupBox[select=\"true\"] { color: rgb(1, 2, 3); }");
    box.ensurePolished();
    box.SetSelect(false);
    QVERIFY2(!box.property("select").isValid(), "an unchanged value does nothing");
    box.SetSelect(true);
    QCOMPARE(box.palette().color(QPalette::WindowText), QColor(1, 2, 3));
    box.SetSelect(false);
    QCOMPARE(box.palette().color(QPalette::WindowText), QColor(0, 0, 0));
}

void tst_GroupBox::TheEdgesOfASelectedCardAreOn()
{
    CGroupBox box(nullptr);
    box.setStyleSheet("LocalConfig--CGroupBox { background: #0000ff; border: none; }"
                      "LocalConfig--CGroupBox[select=\"true\"]:on { background: #ff0000; }");
    box.resize(200, 100);
    const QColor off(Qt::blue);
    const QColor on(Qt::red);
    QCOMPARE(box.grab().toImage().pixelColor(0, 50), off);
    box.SetSelect(true);
    const QImage image = box.grab().toImage();
    for (int x : {0, 7, 192, 199})
    {
        QCOMPARE(image.pixelColor(x, 50), on);
    }
    for (int x : {8, 100, 191})
    {
        QCOMPARE(image.pixelColor(x, 50), off);
    }
}

void tst_GroupBox::PressEmitsTheIndex_data()
{
    QTest::addColumn<int>("nButton");
    QTest::newRow("left") << int(Qt::LeftButton);
    QTest::newRow("right") << int(Qt::RightButton);
}

void tst_GroupBox::PressEmitsTheIndex()
{
    QFETCH(int, nButton);
    CGroupBox box(nullptr);
    box.SetIndex(5);
    box.resize(200, 200);
    QSignalSpy spy(&box, &CGroupBox::SignalGroupBoxClicked);
    QTest::mousePress(&box, Qt::MouseButton(nButton));
    QCOMPARE(spy.size(), 1);
    QCOMPARE(spy.first().first().toInt(), 5);
    QTest::mouseRelease(&box, Qt::MouseButton(nButton));
    QCOMPARE(spy.size(), 1);
}

void tst_GroupBox::PressOnALabelSelects()
{
    CGroupBox box(nullptr);
    box.SetIndex(2);
    auto* pLayout = new QVBoxLayout(&box);
    auto* pLabel = new QLabel("Text", &box);
    pLayout->addWidget(pLabel);
    box.show();
    QVERIFY(QTest::qWaitForWindowExposed(&box));
    QSignalSpy spy(&box, &CGroupBox::SignalGroupBoxClicked);
    QTest::mousePress(pLabel, Qt::LeftButton);
    QCOMPARE(spy.size(), 1);
}

void tst_GroupBox::PressOnAButtonIsTheButtons()
{
    CGroupBox box(nullptr);
    auto* pLayout = new QVBoxLayout(&box);
    auto* pButton = new QPushButton("Text", &box);
    pLayout->addWidget(pButton);
    box.show();
    QVERIFY(QTest::qWaitForWindowExposed(&box));
    QSignalSpy spy(&box, &CGroupBox::SignalGroupBoxClicked);
    QTest::mousePress(pButton, Qt::LeftButton);
    QCOMPARE(spy.size(), 0);
}

void tst_GroupBox::StyleSheetSurvivesRenaming()
{
    QFont font = QApplication::font();
    font.setPixelSize(13); // larger text would change the sheet
    QApplication::setFont(font);
    QString strExpected;
    QVERIFY(Pxa::loadStyleSheet(Pxa::GetSkinPath("LocalConfig", "CGroupBox.qss"), strExpected));
    CGroupBox box(nullptr);
    QCOMPARE(box.styleSheet(), strExpected);
    box.setObjectName("m_gBBasic");
    QCOMPARE(box.styleSheet(), strExpected);
}

QTEST_MAIN(tst_GroupBox)

#include "tst_GroupBox.moc"
