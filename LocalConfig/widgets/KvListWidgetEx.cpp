#include "KvListWidgetEx.h"

namespace LocalConfig
{

KvListWidgetEx::KvListWidgetEx(QWidget* pParent)
    : KvListWidget(pParent)
{}

void KvListWidgetEx::hideEvent(QHideEvent* pEvent)
{
    emit sgnHide();
    KvListWidget::hideEvent(pEvent);
}

} // namespace LocalConfig
