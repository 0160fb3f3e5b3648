#include "KvComboBox.h"

namespace KVGUI
{

KvComboBox::KvComboBox(QWidget* pParent)
    : QComboBox(pParent)
{}

} // namespace KVGUI
