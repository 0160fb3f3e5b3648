#include "support/RealDialog.h"
#include "support/Skin.h"

#include <QLabel>
#include <QTranslator>

#include <numeric>

using namespace LocalConfig;

namespace
{

QRect GlobalRect(const QWidget* pWidget)
{
    return {pWidget->mapToGlobal(QPoint()), pWidget->size()};
}

} // namespace

/// The heights of the real pages' cards, and of the content that they stand in.
class tst_CardHeights : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void NoCardGrowsBeyondItsPage_data() { Rights(); }
    void NoCardGrowsBeyondItsPage();
    void TheContentCountsEveryCard_data() { Rights(); }
    void TheContentCountsEveryCard();
    void HeightsStay_data();
    void HeightsStay();
    void ACardGrowsToItsPage_data();
    void ACardGrowsToItsPage();
    void TheTitleIsLargerThanTheText_data();
    void TheTitleIsLargerThanTheText();

private:
    static void Rights();
    /// Of the cards by index, then of the content.
    static QList<int> Heights(SRealDialog& d);
    static void Resize(SRealDialog& d);
    static void HideAndShow(SRealDialog& d);

    void Dress(int nTextSize, const QString& strLanguage);

    SRealHost m_host;
    QTranslator m_translator;
};

void tst_CardHeights::init()
{
    QApplication::desktop()->setGeometry(0, 0, 1920, 1080);
    m_host.userRight.m_setMissing.clear();
    Dress(13, QString());
}

/// As a client does that speaks a language, with letters of its own where it has such.
void tst_CardHeights::Dress(int nTextSize, const QString& strLanguage)
{
    UseSkin("DustyBlue");
    QFont font = QApplication::font();
    font.setFamilies({"Inter", "DejaVu Sans", "WenQuanYi Micro Hei"});
    font.setPixelSize(nTextSize);
    QApplication::setFont(font);
    QCoreApplication::removeTranslator(&m_translator);
    if (!strLanguage.isEmpty())
    {
        QVERIFY(m_translator.load("LocalConfig_" + strLanguage,
                                  qEnvironmentVariable("KV_CLIENT_RESOURCES") + "/translations"));
        QCoreApplication::installTranslator(&m_translator);
    }
}

void tst_CardHeights::Rights()
{
    QTest::addColumn<QSet<int>>("setMissing");
    QTest::newRow("with the wall") << QSet<int>();
    QTest::newRow("without the wall") << QSet<int>{26};
}

QList<int> tst_CardHeights::Heights(SRealDialog& d)
{
    QList<int> listHeights;
    for (const SBox& box : g_arrBoxes)
    {
        listHeights += d.Box(box.nIndex)->height();
    }
    return listHeights << d.Contents()->height();
}

void tst_CardHeights::NoCardGrowsBeyondItsPage()
{
    QFETCH(QSet<int>, setMissing);
    m_host.userRight.m_setMissing = setMissing;
    SRealDialog d(m_host);
    d.Open();
    for (const SBox& box : g_arrBoxes)
    {
        const CGroupBox* pBox = d.Box(box.nIndex);
        QVERIFY(pBox->height() >= box.nMinimumHeight);
        QVERIFY2(pBox->height() <= qMax(box.nMinimumHeight, pBox->sizeHint().height()), box.pszBox);
    }
}

void tst_CardHeights::TheContentCountsEveryCard()
{
    QFETCH(QSet<int>, setMissing);
    m_host.userRight.m_setMissing = setMissing;
    SRealDialog d(m_host);
    d.Open();
    QList<int> listHeights = Heights(d);
    const int nContent = listHeights.takeLast();
    QCOMPARE(nContent, std::accumulate(listHeights.begin(), listHeights.end(), 8 * 19 + 12 + 12));
}

void tst_CardHeights::Resize(SRealDialog& d)
{
    for (int n = 1; n <= 10; ++n)
    {
        d.dialog.resize(d.dialog.width(), d.dialog.height() + (n % 2 ? -n : n));
        QCoreApplication::processEvents();
    }
}

void tst_CardHeights::HideAndShow(SRealDialog& d)
{
    d.Click("btnCancel");
    QVERIFY(!d.dialog.isVisible());
    d.dialog.show();
    SRealDialog::WaitForLayout();
}

void tst_CardHeights::HeightsStay_data()
{
    QTest::addColumn<QSet<int>>("setMissing");
    QTest::addColumn<bool>("bResize");
    QTest::newRow("with the wall, resized") << QSet<int>() << true;
    QTest::newRow("with the wall, shown again") << QSet<int>() << false;
    QTest::newRow("without the wall, resized") << QSet<int>{26} << true;
    QTest::newRow("without the wall, shown again") << QSet<int>{26} << false;
}

void tst_CardHeights::HeightsStay()
{
    QFETCH(QSet<int>, setMissing);
    QFETCH(bool, bResize);
    m_host.userRight.m_setMissing = setMissing;
    SRealDialog d(m_host);
    d.Open();
    const QList<int> listBefore = Heights(d);
    (bResize ? &Resize : &HideAndShow)(d);
    QCOMPARE(Heights(d), listBefore);
}

void tst_CardHeights::ACardGrowsToItsPage_data()
{
    QTest::addColumn<int>("nTextSize");
    QTest::addColumn<QString>("strLanguage");
    for (const char* pszLanguage : {"", "zh_CN", "ar"})
    {
        for (const int nTextSize : {13, 16, 19})
        {
            QTest::addRow("%s, %d px", *pszLanguage ? pszLanguage : "en", nTextSize) << nTextSize << pszLanguage;
        }
    }
}

void tst_CardHeights::ACardGrowsToItsPage()
{
    QFETCH(int, nTextSize);
    QFETCH(QString, strLanguage);
    Dress(nTextSize, strLanguage);
    SRealDialog d(m_host);
    d.Open();
    for (const SBox& box : g_arrBoxes)
    {
        const auto* pPage = d.dialog.findChild<QWidget*>(box.pszPage);
        QVERIFY2(pPage->height() >= pPage->minimumSizeHint().height(), box.pszPage);
        for (const QWidget* pControl : pPage->findChildren<QWidget*>())
        {
            // What a layout squeezes is lower than it wishes; the gaps of a form go first.
            const auto* pLabel = qobject_cast<const QLabel*>(pControl);
            QVERIFY2(!pLabel || !pLabel->isVisible() || pLabel->height() >= pLabel->sizeHint().height(),
                     qPrintable(pControl->objectName()));
        }
    }
    QCOMPARE(d.Find<QWidget>("btnShowSplitWnd")->height(), 26); // a picture
    d.ScrollBar()->setValue(0);
    const QRect sizes = GlobalRect(d.Find<QWidget>("screenRatioCmbBox"));
    const QRect zone = GlobalRect(d.Find<QWidget>("ShowZoneInfoChkBox"));
    QCOMPARE(zone.top() - sizes.bottom() - 1, 20);
}

void tst_CardHeights::TheTitleIsLargerThanTheText_data()
{
    QTest::addColumn<int>("nTextSize");
    QTest::addColumn<int>("nTitleSize");
    QTest::newRow("the skin's") << 13 << 15;
    QTest::newRow("smaller") << 11 << 15;
    QTest::newRow("larger") << 19 << 22;
}

void tst_CardHeights::TheTitleIsLargerThanTheText()
{
    QFETCH(int, nTextSize);
    QFETCH(int, nTitleSize);
    Dress(nTextSize, QString());
    SRealDialog d(m_host);
    d.Open();
    QCOMPARE(d.Box(0)->font().pixelSize(), nTitleSize);
}

QTEST_MAIN(tst_CardHeights)

#include "tst_CardHeights.moc"
