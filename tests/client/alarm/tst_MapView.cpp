#include <client/alarm/MapView.h>

#include <QSignalSpy>
#include <QStyle>
#include <QtTest>

using LocalConfigClient::MapView;

class tst_MapView : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_pMap.reset(); }

    void KeysMoveFromMarkerToMarker_data();
    void KeysMoveFromMarkerToMarker();
    void SpacePicksTheMarker();
    void AClickPicksTheMarker();
    void ALowMapHasAllRooms();
    void TheFocusIsSeenAtItsMarker();
    void MarkersStandBeforeTheirTexts_data();
    void MarkersStandBeforeTheirTexts();

private:
    QScopedPointer<MapView> m_pMap;
};

void tst_MapView::init()
{
    m_pMap.reset(new MapView(nullptr));
    m_pMap->SetCategories({{2, "Device"}, {5, "Door"}, {9, "Storage"}});
    m_pMap->resize(m_pMap->sizeHint());
    m_pMap->show();
    QApplication::setActiveWindow(m_pMap.data());
    QVERIFY(QTest::qWaitForWindowActive(m_pMap.data()));
}

void tst_MapView::KeysMoveFromMarkerToMarker_data()
{
    QTest::addColumn<QList<int>>("listKeys");
    QTest::addColumn<QString>("strMarker");
    QTest::newRow("at first") << QList<int>() << "Device";
    QTest::newRow("down") << QList<int>{Qt::Key_Down} << "Door";
    QTest::newRow("down and up") << QList<int>{Qt::Key_Down, Qt::Key_Up} << "Device";
    QTest::newRow("up at the top") << QList<int>{Qt::Key_Up} << "Device";
    QTest::newRow("end") << QList<int>{Qt::Key_End} << "Storage";
    QTest::newRow("down at the end") << QList<int>{Qt::Key_End, Qt::Key_Down} << "Storage";
    QTest::newRow("home") << QList<int>{Qt::Key_End, Qt::Key_Home} << "Device";
}

void tst_MapView::KeysMoveFromMarkerToMarker()
{
    QFETCH(QList<int>, listKeys);
    QFETCH(QString, strMarker);
    QVERIFY(m_pMap->focusPolicy() & Qt::TabFocus);
    for (const int nKey : listKeys)
    {
        QTest::keyClick(m_pMap.data(), Qt::Key(nKey));
    }
    QCOMPARE(m_pMap->accessibleDescription(), strMarker);
}

void tst_MapView::SpacePicksTheMarker()
{
    const QSignalSpy picked(m_pMap.data(), &MapView::SignalCategoryPicked);
    QTest::keyClick(m_pMap.data(), Qt::Key_Down);
    QVERIFY(picked.isEmpty());
    QTest::keyClick(m_pMap.data(), Qt::Key_Space);
    QCOMPARE(picked.size(), 1);
    QCOMPARE(picked.first().first().toInt(), 5);
}

void tst_MapView::AClickPicksTheMarker()
{
    const QSignalSpy picked(m_pMap.data(), &MapView::SignalCategoryPicked);
    QTest::mouseClick(m_pMap.data(), Qt::LeftButton, {}, QPoint(m_pMap->width() / 2, m_pMap->height() - 15));
    QCOMPARE(picked.size(), 1);
    QCOMPARE(picked.first().first().toInt(), 9);
    QCOMPARE(m_pMap->accessibleDescription(), QString("Storage"));
    QTest::mouseClick(m_pMap.data(), Qt::LeftButton, {}, QPoint(m_pMap->width() / 2, 1)); // above them all
    QCOMPARE(picked.size(), 1);
}

void tst_MapView::ALowMapHasAllRooms()
{
    QSignalSpy spy(m_pMap.data(), &MapView::SignalCategoryPicked);
    QTest::keyClick(m_pMap.data(), Qt::Key_End);
    QTest::keyClick(m_pMap.data(), Qt::Key_Space);
    m_pMap->resize(m_pMap->width(), m_pMap->height() * 3 / 4);
    QTest::mouseClick(m_pMap.data(), Qt::LeftButton, {}, QPoint(m_pMap->width() / 2, m_pMap->height() - 15));
    QCOMPARE(spy.size(), 2);
    QCOMPARE(spy[1], spy[0]);
}

void tst_MapView::TheFocusIsSeenAtItsMarker()
{
    m_pMap->setFocus();
    const QImage first = m_pMap->grab().toImage();
    QTest::keyClick(m_pMap.data(), Qt::Key_Down);
    const QImage second = m_pMap->grab().toImage();
    m_pMap->clearFocus();
    const QImage none = m_pMap->grab().toImage();
    QVERIFY(first != second && second != none && first != none);
}

void tst_MapView::MarkersStandBeforeTheirTexts_data()
{
    QTest::addColumn<Qt::LayoutDirection>("eDirection");
    QTest::newRow("from the left") << Qt::LeftToRight;
    QTest::newRow("from the right") << Qt::RightToLeft;
}

void tst_MapView::MarkersStandBeforeTheirTexts()
{
    QFETCH(Qt::LayoutDirection, eDirection);
    m_pMap->clearFocus();
    m_pMap->setLayoutDirection(eDirection);
    m_pMap->setProperty("markerColor", QColor(Qt::red));
    m_pMap->setProperty("textColor", QColor(Qt::blue));
    m_pMap->setProperty("groundColor", QColor(Qt::black));
    m_pMap->setProperty("wallColor", QColor(Qt::black));
    const QImage picture = m_pMap->grab().toImage();
    QRect marker;
    QRect text;
    for (int nPixel = 0; nPixel < picture.width() * picture.height(); ++nPixel)
    {
        const QPoint place(nPixel % picture.width(), nPixel / picture.width());
        const QColor color = picture.pixelColor(place);
        marker |= color.red() > 128 && color.green() < 50 ? QRect(place, QSize(1, 1)) : QRect();
        text |= color.blue() > 128 && color.green() < 50 ? QRect(place, QSize(1, 1)) : QRect();
    }
    if (eDirection == Qt::RightToLeft)
    {
        marker = QStyle::visualRect(eDirection, picture.rect(), marker);
        text = QStyle::visualRect(eDirection, picture.rect(), text);
    }
    QVERIFY(marker.left() > 15 && marker.right() < 35);
    QVERIFY(text.left() > marker.right() && text.left() < 60);
}

QTEST_MAIN(tst_MapView)

#include "tst_MapView.moc"
