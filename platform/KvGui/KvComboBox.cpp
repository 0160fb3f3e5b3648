#include "KvComboBox.h"

#include <QAbstractItemView>
#include <QCoreApplication>
#include <QCursor>
#include <QHoverEvent>
#include <QStyledItemDelegate>

namespace KVGUI
{

namespace
{

/// The list that opens takes what tells the box that the mouse has gone.
void TellWhereTheMouseIs(QWidget* pBox)
{
    const QPoint pos = pBox->mapFromGlobal(QCursor::pos());
    if (pBox->underMouse() && !pBox->rect().contains(pos))
    {
        QEvent leave(QEvent::Leave);
        QCoreApplication::sendEvent(pBox, &leave);
        QHoverEvent hoverLeave(QEvent::HoverLeave, QPoint(-1, -1), pos);
        QCoreApplication::sendEvent(pBox, &hoverLeave);
    }
}

} // namespace

KvComboBox::KvComboBox(QWidget* pParent)
    : QComboBox(pParent)
{
    setFocusPolicy(Qt::StrongFocus); // the wheel does not bring the focus
}

void KvComboBox::showPopup()
{
    if (view()->itemDelegate()->inherits("QComboBoxDelegate"))
    {
        setItemDelegate(new QStyledItemDelegate(this)); // the base's knows no style sheet
    }
    QComboBox::showPopup();
}

void KvComboBox::hidePopup()
{
    QComboBox::hidePopup();
    TellWhereTheMouseIs(this);
}

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
