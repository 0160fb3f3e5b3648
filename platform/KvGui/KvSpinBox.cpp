#include "KvSpinBox.h"

namespace KVGUI
{

KvSpinBox::KvSpinBox(QWidget* pParent)
    : QSpinBox(pParent)
{}

} // namespace KVGUI
