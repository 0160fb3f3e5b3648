// Draws the pictures from which skins may paint combo boxes: make-combo-pictures <palette.json> <folder>.
// cmb_text.png is the text field, cmb_dropdown.png the drop-down button in five states, side by side.

#include <QDir>
#include <QFile>
#include <QImage>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPainter>

#include <cstdio>

namespace
{

constexpr QSize g_fieldSize(32, 32);
constexpr QSize g_frameSize(24, 32);
constexpr const char* g_arrFrameTokens[] = {"secondaryText", "text", "accent", "disabledText", "secondaryText"};

QImage MakeImage(const QSize& size)
{
    QImage image(size, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    return image;
}

QImage DrawField(const QJsonObject& palette)
{
    QImage image = MakeImage(g_fieldSize);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QColor(palette["outline"].toString()));
    painter.setBrush(QColor(palette["field"].toString()));
    painter.drawRoundedRect(QRectF(image.rect()).adjusted(0.5, 0.5, -0.5, -0.5), 4, 4);
    return image;
}

QImage DrawButton(const QJsonObject& palette)
{
    const int nFrames = int(std::size(g_arrFrameTokens));
    QImage image = MakeImage({nFrames * g_frameSize.width(), g_frameSize.height()});
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    for (int n = 0; n < nFrames; ++n)
    {
        const QPointF middle((n + 0.5) * g_frameSize.width(), g_frameSize.height() / 2.0);
        painter.setPen(
            QPen(QColor(palette[g_arrFrameTokens[n]].toString()), 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.drawPolyline(QPolygonF({middle + QPointF(-4, -2), middle + QPointF(0, 2), middle + QPointF(4, -2)}));
    }
    return image;
}

} // namespace

int main(int argc, char* argv[])
{
    if (argc != 3)
    {
        std::fputs("usage: make-combo-pictures <palette.json> <folder>\n", stderr);
        return 2;
    }
    QFile file(QString::fromLocal8Bit(argv[1]));
    const QJsonObject palette =
        file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll()).object() : QJsonObject();
    const QDir folder(QString::fromLocal8Bit(argv[2]));
    if (palette.isEmpty() || !DrawField(palette).save(folder.filePath(QStringLiteral("cmb_text.png"))) ||
        !DrawButton(palette).save(folder.filePath(QStringLiteral("cmb_dropdown.png"))))
    {
        std::fprintf(stderr, "make-combo-pictures: cannot make the pictures of %s\n", argv[1]);
        return 1;
    }
    return 0;
}
