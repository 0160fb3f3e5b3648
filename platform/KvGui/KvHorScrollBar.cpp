#include "KvHorScrollBar.h"

namespace KVGUI
{

KvHorScrollBar::KvHorScrollBar(QWidget* pParent)
    : QScrollBar(Qt::Horizontal, pParent)
{}

} // namespace KVGUI
