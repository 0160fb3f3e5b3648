#pragma once

#include <QIconEngine>
#include <QMap>

namespace LocalConfig
{

/// Draws one SVG file per icon mode. A file is read when its picture is first painted, at the size and scale that the
/// painter needs, and kept in the application's pixmap cache. A mode without a readable file is empty; the disabled
/// mode, which has no file of its own, shows the normal one.
class CSkinIconEngine : public QIconEngine
{
public:
    void AddFile(QIcon::Mode eMode, const QString& strPath);

    void paint(QPainter* pPainter, const QRect& rect, QIcon::Mode eMode, QIcon::State eState) override;
    QPixmap pixmap(const QSize& size, QIcon::Mode eMode, QIcon::State eState) override;
    QIconEngine* clone() const override;

private:
    QMap<QIcon::Mode, QString> m_mapFiles;
};

} // namespace LocalConfig
