#include <LocalConfig/pages/CSplitWndNumConfig.h>

#include <QGridLayout>
#include <QImageReader>
#include <QPushButton>
#include <QRegularExpression>
#include <QSet>
#include <QSignalSpy>
#include <QtTest>

using LocalConfig::CSplitWndNumConfig;

namespace
{

struct SButton
{
    int nSplit;
    const char* pszToolTip;
    int nRow;
    int nColumn;
};

const SButton g_arrButtons[] = {{1, "1 Window", 0, 0},    {4, "4 Windows", 0, 1},   {6, "6 Windows", 0, 2},
                                {8, "8 Windows", 0, 3},   {9, "9 Windows", 1, 0},   {13, "13 Windows", 1, 1},
                                {16, "16 Windows", 1, 2}, {20, "20 Windows", 1, 3}, {25, "25 Windows", 2, 0},
                                {36, "36 Windows", 2, 1}};

QPushButton* Button(const QWidget& picker, int nSplit)
{
    return picker.findChild<QPushButton*>(QStringLiteral("btnDiv%1").arg(nSplit));
}

/// How many separate panes a picture shows: areas of drawn pixels that touch each other.
int CountPanes(QImage image)
{
    int nPanes = 0;
    for (int y = 0; y < image.height(); ++y)
    {
        for (int x = 0; x < image.width(); ++x)
        {
            if (qAlpha(image.pixel(x, y)) < 20)
            {
                continue;
            }
            ++nPanes;
            QVector<QPoint> listOpen = {QPoint(x, y)};
            while (!listOpen.isEmpty())
            {
                const QPoint point = listOpen.takeLast();
                if (!image.rect().contains(point) || qAlpha(image.pixel(point)) < 20)
                {
                    continue;
                }
                image.setPixel(point, 0);
                for (const QPoint& step : {QPoint(1, 0), QPoint(-1, 0), QPoint(0, 1), QPoint(0, -1)})
                {
                    listOpen += point + step;
                }
            }
        }
    }
    return nPanes;
}

/// Whether a button shows anything on its ground.
bool HasPicture(const QWidget& picker, int nSplit)
{
    QImage image(Button(picker, nSplit)->size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    Button(picker, nSplit)->render(&image, {}, {}, QWidget::RenderFlags());
    return CountPanes(image) > 0;
}

void ButtonRows()
{
    QTest::addColumn<int>("nIndex");
    for (int n = 0; n < int(std::size(g_arrButtons)); ++n)
    {
        QTest::addRow("%d", g_arrButtons[n].nSplit) << n;
    }
}

} // namespace

class tst_SplitPicker : public QObject
{
    Q_OBJECT

private slots:
    void Form();
    void Buttons_data() { ButtonRows(); }
    void Buttons();
    void CreationOrder();
    void AClickReportsTheCount_data() { ButtonRows(); }
    void AClickReportsTheCount();
    void KeysPickToo();
    void AnUnknownSenderReportsNothing();
    void AnOpenPickerShowsThePictures_data() { ButtonRows(); }
    void AnOpenPickerShowsThePictures();
    void APickerThatWasNeverOpenedHasLoadedNoPicture();
    void PicturesDrawTheSplit_data();
    void PicturesDrawTheSplit();
    void StatesDiffer_data() { ButtonRows(); }
    void StatesDiffer();
};

void tst_SplitPicker::Form()
{
    const CSplitWndNumConfig picker(nullptr);
    QCOMPARE(picker.objectName(), QString("CSplitWndNumConfig"));
    QCOMPARE(picker.windowTitle(), QString("List"));
    QCOMPARE(picker.size(), QSize(136, 103));
    QVERIFY(picker.testAttribute(Qt::WA_StyledBackground));
    QVERIFY(!picker.styleSheet().isEmpty());
    QVERIFY(picker.findChild<QVBoxLayout*>("verticalLayout"));
    QVERIFY(picker.findChild<QGridLayout*>("gridLayout"));
    QCOMPARE(picker.findChildren<QPushButton*>().size(), 10);
}

void tst_SplitPicker::Buttons()
{
    QFETCH(int, nIndex);
    const SButton& expected = g_arrButtons[nIndex];
    const CSplitWndNumConfig picker(nullptr);
    QPushButton* pButton = Button(picker, expected.nSplit);
    QVERIFY(pButton);
    QVERIFY(pButton->text().isEmpty());
    QCOMPARE(pButton->toolTip(), QString(expected.pszToolTip));
    QCOMPARE(pButton->minimumSize(), QSize(21, 17));
    QCOMPARE(pButton->maximumSize(), QSize(21, 17));
    const auto* pGrid = picker.findChild<QGridLayout*>("gridLayout");
    QCOMPARE(pGrid->itemAtPosition(expected.nRow, expected.nColumn)->widget(), pButton);
}

void tst_SplitPicker::CreationOrder()
{
    const CSplitWndNumConfig picker(nullptr);
    QStringList listNames;
    for (const QPushButton* pButton : picker.findChildren<QPushButton*>())
    {
        listNames += pButton->objectName();
    }
    QCOMPARE(listNames, (QStringList{"btnDiv8", "btnDiv1", "btnDiv4", "btnDiv6", "btnDiv13", "btnDiv9", "btnDiv16",
                                     "btnDiv20", "btnDiv36", "btnDiv25"}));
}

void tst_SplitPicker::AClickReportsTheCount()
{
    QFETCH(int, nIndex);
    const CSplitWndNumConfig picker(nullptr);
    QSignalSpy spy(&picker, &CSplitWndNumConfig::sgnSplitChanged);
    QTest::mouseClick(Button(picker, g_arrButtons[nIndex].nSplit), Qt::LeftButton);
    QCOMPARE(spy.size(), 1);
    QCOMPARE(spy.first().first().toInt(), g_arrButtons[nIndex].nSplit);
}

void tst_SplitPicker::KeysPickToo()
{
    CSplitWndNumConfig picker(nullptr);
    picker.show();
    QSignalSpy spy(&picker, &CSplitWndNumConfig::sgnSplitChanged);
    QTest::keyClick(Button(picker, 20), Qt::Key_Space);
    QCOMPARE(spy.size(), 1);
    QCOMPARE(spy.first().first().toInt(), 20);
}

void tst_SplitPicker::AnUnknownSenderReportsNothing()
{
    CSplitWndNumConfig picker(nullptr);
    QSignalSpy spy(&picker, &CSplitWndNumConfig::sgnSplitChanged);
    QVERIFY(QMetaObject::invokeMethod(&picker, "OnNormalClicked"));
    QPushButton other;
    connect(&other, SIGNAL(clicked()), &picker, SLOT(OnNormalClicked()));
    other.click();
    QCOMPARE(spy.size(), 0);
}

void tst_SplitPicker::AnOpenPickerShowsThePictures()
{
    QFETCH(int, nIndex);
    CSplitWndNumConfig picker(nullptr);
    picker.show();
    QVERIFY(QTest::qWaitForWindowExposed(&picker));
    QVERIFY(HasPicture(picker, g_arrButtons[nIndex].nSplit));
    picker.hide();
    picker.show();
    QVERIFY(HasPicture(picker, g_arrButtons[nIndex].nSplit));
}

void tst_SplitPicker::APickerThatWasNeverOpenedHasLoadedNoPicture()
{
    CSplitWndNumConfig picker(nullptr);
    picker.ensurePolished(); // as the page does it to all that stands on it
    for (const SButton& button : g_arrButtons)
    {
        QVERIFY(!HasPicture(picker, button.nSplit));
    }
}

void tst_SplitPicker::PicturesDrawTheSplit_data()
{
    QTest::addColumn<int>("nSplit");
    QTest::addColumn<QString>("strState");
    for (const SButton& button : g_arrButtons)
    {
        for (const char* pszState : {"n", "h", "p", "d"})
        {
            QTest::addRow("%d-%s", button.nSplit, pszState) << button.nSplit << pszState;
        }
    }
}

void tst_SplitPicker::PicturesDrawTheSplit()
{
    QFETCH(int, nSplit);
    QFETCH(QString, strState);
    for (int nScale : {1, 2})
    {
        QImageReader reader(QStringLiteral(":/LocalConfig/tip_%1-%2.svg").arg(nSplit).arg(strState));
        QCOMPARE(reader.size(), QSize(21, 17));
        reader.setScaledSize(QSize(21, 17) * nScale);
        const QImage image = reader.read().convertToFormat(QImage::Format_ARGB32);
        QVERIFY(!image.isNull());
        QCOMPARE(CountPanes(image), nSplit);
        // Whole pixels only: every pixel is drawn in the one colour or not at all.
        QSet<QRgb> setColors;
        for (int y = 0; y < image.height(); ++y)
        {
            for (int x = 0; x < image.width(); ++x)
            {
                setColors.insert(qAlpha(image.pixel(x, y)) == 0 ? 0 : image.pixel(x, y));
            }
        }
        QVERIFY(setColors.size() <= 2);
    }
}

void tst_SplitPicker::StatesDiffer()
{
    QFETCH(int, nIndex);
    QSet<QByteArray> setContents;
    for (const char* pszState : {"n", "h", "p", "d"})
    {
        QFile file(QStringLiteral(":/LocalConfig/tip_%1-%2.svg").arg(g_arrButtons[nIndex].nSplit).arg(pszState));
        QVERIFY(file.open(QIODevice::ReadOnly));
        setContents.insert(file.readAll());
    }
    QCOMPARE(setContents.size(), 4);
}

QTEST_MAIN(tst_SplitPicker)

#include "tst_SplitPicker.moc"
