#include "KvListWidget.h"

namespace KVGUI
{

KvListWidget::KvListWidget(QWidget* pParent)
    : QListWidget(pParent)
{}

} // namespace KVGUI
