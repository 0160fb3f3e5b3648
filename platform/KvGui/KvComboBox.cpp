#include "KvComboBox.h"

#include <QStyledItemDelegate>

namespace KVGUI
{

KvComboBox::KvComboBox(QWidget* pParent)
    : QComboBox(pParent)
{}

} // namespace KVGUI
