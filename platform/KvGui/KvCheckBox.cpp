#include "KvCheckBox.h"

#include "KvAccessibleButton.h"

namespace KVGUI
{

KvCheckBox::KvCheckBox(QWidget* pParent)
    : KvCheckBox(QString(), pParent)
{}

KvCheckBox::KvCheckBox(const QString& strText, QWidget* pParent)
    : QCheckBox(pParent)
{
    PressButtonsByScreenReader();
    setText(strText); // not by the base, as which screen readers would know it from then on
}

} // namespace KVGUI
