#include "KvPushButton.h"

namespace KVGUI
{

KvPushButton::KvPushButton(QWidget* pParent)
    : QPushButton(pParent)
{}

KvPushButton::KvPushButton(const QString& strText, QWidget* pParent)
    : QPushButton(strText, pParent)
{}

} // namespace KVGUI
