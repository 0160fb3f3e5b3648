#include "KvErrorMark.h"

#include <QPainter>

namespace KVGUI
{

void PaintErrorMark(QPainter& painter, const QRect& rect, const QColor& disc, const QColor& sign)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(disc);
    painter.drawEllipse(rect);
    QFont font = painter.font();
    font.setPixelSize(rect.height() * 3 / 4);
    font.setBold(true);
    painter.setFont(font);
    painter.setPen(sign);
    painter.drawText(rect, Qt::AlignCenter, QStringLiteral("!"));
    painter.restore();
}

} // namespace KVGUI
