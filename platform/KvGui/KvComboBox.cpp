#include "KvComboBox.h"

#include <QAbstractItemView>
#include <QEvent>

namespace KVGUI
{

KvComboBox::KvComboBox(QWidget* pParent)
    : QComboBox(pParent)
{}

void KvComboBox::changeEvent(QEvent* pEvent)
{
    // The base would build the list that opens, for a box that has not even been shown and gets its style then.
    const bool bTooEarly = pEvent->type() == QEvent::StyleChange && !testAttribute(Qt::WA_WState_Polished) &&
                           !findChild<QAbstractItemView*>();
    if (!bTooEarly)
    {
        QComboBox::changeEvent(pEvent);
    }
}

} // namespace KVGUI
