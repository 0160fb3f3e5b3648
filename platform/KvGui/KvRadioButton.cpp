#include "KvRadioButton.h"

#include "KvAccessibleButton.h"

#include <QButtonGroup>

namespace KVGUI
{

KvRadioButton::KvRadioButton(QWidget* pParent)
    : KvRadioButton(QString(), pParent)
{}

KvRadioButton::KvRadioButton(const QString& strText, QWidget* pParent)
    : QRadioButton(pParent)
{
    PressButtonsByScreenReader();
    setText(strText); // not by the base, as which screen readers would know it from then on
}

// Not by the signal, which may be blocked.
void KvRadioButton::checkStateSet()
{
    QRadioButton::checkStateSet();
    TakeTabStop();
}

void KvRadioButton::nextCheckState()
{
    QRadioButton::nextCheckState();
    TakeTabStop();
}

/// The base does so, too, but not before a button of the group has got the focus.
void KvRadioButton::TakeTabStop()
{
    if (!isChecked())
    {
        return;
    }
    for (QAbstractButton* pButton : GetGroup())
    {
        const Qt::FocusPolicy eOther = pButton == this ? Qt::TabFocus : Qt::NoFocus;
        pButton->setFocusPolicy(Qt::FocusPolicy((pButton->focusPolicy() & ~Qt::TabFocus) | eOther));
    }
}

QList<QAbstractButton*> KvRadioButton::GetGroup() const
{
    if (group())
    {
        return group()->buttons();
    }
    QList<QAbstractButton*> listButtons;
    const QList<KvRadioButton*> listSiblings =
        parentWidget() ? parentWidget()->findChildren<KvRadioButton*>(QString(), Qt::FindDirectChildrenOnly)
                       : QList<KvRadioButton*>();
    for (KvRadioButton* pSibling : listSiblings)
    {
        if (pSibling->autoExclusive() && !pSibling->group())
        {
            listButtons += pSibling;
        }
    }
    return listButtons;
}

} // namespace KVGUI
