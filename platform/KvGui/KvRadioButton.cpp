#include "KvRadioButton.h"

namespace KVGUI
{

KvRadioButton::KvRadioButton(QWidget* pParent)
    : QRadioButton(pParent)
{}

KvRadioButton::KvRadioButton(const QString& strText, QWidget* pParent)
    : QRadioButton(strText, pParent)
{}

} // namespace KVGUI
