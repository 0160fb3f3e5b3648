#include "CCombobox.h"

#include <QWheelEvent>

namespace LocalConfig
{

CCombobox::CCombobox(QWidget* pParent)
    : KvComboBox(pParent)
{}

CCombobox::~CCombobox() = default;

void CCombobox::wheelEvent(QWheelEvent* pEvent)
{
    pEvent->ignore();
}

} // namespace LocalConfig
