#include "Direction.h"

#include <QGuiApplication>
#include <QLayout>
#include <QLineEdit>
#include <QWidget>

namespace LocalConfig
{

void MirrorForm(QWidget* pForm)
{
    if (!QGuiApplication::isRightToLeft())
    {
        return;
    }
    for (QLayout* pLayout : pForm->findChildren<QLayout*>())
    {
        const QMargins margins = pLayout->contentsMargins();
        pLayout->setContentsMargins(margins.right(), margins.top(), margins.left(), margins.bottom());
    }
    for (QLineEdit* pEdit : pForm->findChildren<QLineEdit*>())
    {
        if (pEdit->validator())
        {
            pEdit->setAlignment(Qt::AlignRight | Qt::AlignAbsolute | Qt::AlignVCenter); // unlike paths
        }
    }
}

QString KeepOrder(const QString& strText)
{
    const QChar chLeftToRight(0x200E); // as if a letter of such a language stood before the text
    return QGuiApplication::isRightToLeft() ? chLeftToRight + strText : strText;
}

} // namespace LocalConfig
