#pragma once

class QColor;
class QPainter;
class QRect;

namespace KVGUI
{

constexpr int g_nErrorMarkSize = 16; // pixels

/// Paints what marks an entry or a field as wrong, besides its colours.
void PaintErrorMark(QPainter& painter, const QRect& rect, const QColor& disc, const QColor& sign);

} // namespace KVGUI
