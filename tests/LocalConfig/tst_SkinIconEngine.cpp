#include <LocalConfig/CSkinIconEngine.h>

#include <QFile>
#include <QIcon>
#include <QPainter>
#include <QPixmapCache>
#include <QTemporaryDir>
#include <QtTest>

using LocalConfig::CSkinIconEngine;

namespace
{

QColor Middle(const QPixmap& pixmap)
{
    return pixmap.toImage().pixelColor(pixmap.width() / 2, pixmap.height() / 2);
}

} // namespace

class tst_SkinIconEngine : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void EachModeShowsItsFile();
    void DisabledShowsTheNormalFile();
    void AMissingFileGivesAnEmptyPixmap();
    void PicturesAreSharpAtEverySize_data();
    void PicturesAreSharpAtEverySize();
    void PaintsAtTheDevicesScale();
    void AFileIsReadOnce();
    void AFileWhoseNameLooksLikeAPlaceholderIsItself();

private:
    QString Svg(const QString& strName, const QString& strColor) const
    {
        QFile file(m_folder.filePath(strName));
        if (file.open(QIODevice::WriteOnly))
        {
            file.write(QStringLiteral("<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 20 20'>"
                                      "<rect width='20' height='20' fill='%1'/></svg>")
                           .arg(strColor)
                           .toUtf8());
        }
        return file.fileName();
    }

    QTemporaryDir m_folder;
};

void tst_SkinIconEngine::init()
{
    QPixmapCache::clear();
}

void tst_SkinIconEngine::EachModeShowsItsFile()
{
    auto* pEngine = new CSkinIconEngine;
    pEngine->AddFile(QIcon::Normal, Svg("n.svg", "#ff0000"));
    pEngine->AddFile(QIcon::Active, Svg("h.svg", "#00ff00"));
    pEngine->AddFile(QIcon::Selected, Svg("p.svg", "#0000ff"));
    const QIcon icon(pEngine);
    QCOMPARE(Middle(icon.pixmap(20, QIcon::Normal)), QColor(Qt::red));
    QCOMPARE(Middle(icon.pixmap(20, QIcon::Active)), QColor(Qt::green));
    QCOMPARE(Middle(icon.pixmap(20, QIcon::Selected)), QColor(Qt::blue));
}

void tst_SkinIconEngine::DisabledShowsTheNormalFile()
{
    auto* pEngine = new CSkinIconEngine;
    pEngine->AddFile(QIcon::Normal, Svg("d.svg", "#ff0000"));
    QCOMPARE(Middle(QIcon(pEngine).pixmap(20, QIcon::Disabled)), QColor(Qt::red));
}

void tst_SkinIconEngine::AMissingFileGivesAnEmptyPixmap()
{
    auto* pEngine = new CSkinIconEngine;
    pEngine->AddFile(QIcon::Normal, Svg("only.svg", "#ff0000"));
    pEngine->AddFile(QIcon::Active, m_folder.filePath("missing.svg"));
    const QIcon icon(pEngine);
    QVERIFY(!icon.pixmap(20, QIcon::Normal).isNull());
    QVERIFY(icon.pixmap(20, QIcon::Active).isNull());
    QVERIFY(icon.pixmap(20, QIcon::Selected).isNull());
}

void tst_SkinIconEngine::PicturesAreSharpAtEverySize_data()
{
    QTest::addColumn<int>("nSize");
    for (int nSize : {16, 20, 30, 40, 64})
    {
        QTest::addRow("%d", nSize) << nSize;
    }
}

void tst_SkinIconEngine::PicturesAreSharpAtEverySize()
{
    QFETCH(int, nSize);
    auto* pEngine = new CSkinIconEngine;
    pEngine->AddFile(QIcon::Normal, Svg("sharp.svg", "#ff0000"));
    QCOMPARE(QIcon(pEngine).pixmap(nSize).size(), QSize(nSize, nSize));
}

void tst_SkinIconEngine::PaintsAtTheDevicesScale()
{
    // One white line in a red field: drawn at twice the scale it is two crisp pixels, enlarged it would be a blur.
    QFile file(m_folder.filePath("line.svg"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 20 20'><rect width='20' height='20' fill='red'/>"
               "<rect x='10' width='0.5' height='20' fill='white'/></svg>");
    file.close();
    CSkinIconEngine engine;
    engine.AddFile(QIcon::Normal, file.fileName());
    QImage image(40, 40, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(2);
    image.fill(Qt::black);
    QPainter painter(&image);
    engine.paint(&painter, QRect(0, 0, 20, 20), QIcon::Normal, QIcon::Off);
    painter.end();
    QCOMPARE(image.pixelColor(19, 20), QColor(Qt::red));
    QCOMPARE(image.pixelColor(20, 20), QColor(Qt::white));
    QCOMPARE(image.pixelColor(21, 20), QColor(Qt::red));
}

void tst_SkinIconEngine::AFileIsReadOnce()
{
    auto* pEngine = new CSkinIconEngine;
    const QString strPath = Svg("once.svg", "#ff0000");
    pEngine->AddFile(QIcon::Normal, strPath);
    const QIcon icon(pEngine);
    QCOMPARE(Middle(icon.pixmap(20)), QColor(Qt::red));
    QVERIFY(QFile::remove(strPath));
    QCOMPARE(Middle(icon.pixmap(20)), QColor(Qt::red));
}

void tst_SkinIconEngine::AFileWhoseNameLooksLikeAPlaceholderIsItself()
{
    auto* pRed = new CSkinIconEngine;
    pRed->AddFile(QIcon::Normal, Svg("%2.svg", "#ff0000"));
    auto* pBlue = new CSkinIconEngine;
    pBlue->AddFile(QIcon::Normal, Svg("20.svg", "#0000ff"));
    QCOMPARE(Middle(QIcon(pRed).pixmap(20)), QColor(Qt::red));
    QCOMPARE(Middle(QIcon(pBlue).pixmap(20)), QColor(Qt::blue));
}

QTEST_MAIN(tst_SkinIconEngine)

#include "tst_SkinIconEngine.moc"
