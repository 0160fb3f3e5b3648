#include "CSkinIconEngine.h"

#include <QImageReader>
#include <QPainter>
#include <QPixmapCache>

namespace LocalConfig
{

void CSkinIconEngine::AddFile(QIcon::Mode eMode, const QString& strPath)
{
    m_mapFiles.insert(eMode, strPath);
}

void CSkinIconEngine::paint(QPainter* pPainter, const QRect& rect, QIcon::Mode eMode, QIcon::State eState)
{
    const qreal dScale = pPainter->device()->devicePixelRatioF();
    pPainter->drawPixmap(rect, pixmap(rect.size() * dScale, eMode, eState));
}

QPixmap CSkinIconEngine::pixmap(const QSize& size, QIcon::Mode eMode, QIcon::State /*eState*/)
{
    const QString strPath = m_mapFiles.value(eMode == QIcon::Disabled ? QIcon::Normal : eMode);
    const QString strKey =
        QStringLiteral("%1@%2x%3").arg(strPath, QString::number(size.width()), QString::number(size.height()));
    QPixmap pixmap;
    if (!QPixmapCache::find(strKey, &pixmap))
    {
        QImageReader reader(strPath);
        reader.setScaledSize(size); // asking for the file's own size would read it twice
        pixmap = QPixmap::fromImageReader(&reader);
        if (!pixmap.isNull())
        {
            QPixmapCache::insert(strKey, pixmap);
        }
    }
    return pixmap;
}

QIconEngine* CSkinIconEngine::clone() const
{
    return new CSkinIconEngine(*this);
}

} // namespace LocalConfig
