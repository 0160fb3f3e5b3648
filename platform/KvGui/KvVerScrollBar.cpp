#include "KvVerScrollBar.h"

namespace KVGUI
{

KvVerScrollBar::KvVerScrollBar(QWidget* pParent)
    : QScrollBar(Qt::Vertical, pParent)
{}

} // namespace KVGUI
