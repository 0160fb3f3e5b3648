#include "KvCheckBox.h"

namespace KVGUI
{

KvCheckBox::KvCheckBox(QWidget* pParent)
    : QCheckBox(pParent)
{}

KvCheckBox::KvCheckBox(const QString& strText, QWidget* pParent)
    : QCheckBox(strText, pParent)
{}

} // namespace KVGUI
