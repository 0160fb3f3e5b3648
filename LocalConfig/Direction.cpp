#include "Direction.h"

#include <QGuiApplication>
#include <QLayout>
#include <QWidget>

namespace LocalConfig
{

void MirrorMargins(QWidget* pForm)
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
}

QString KeepOrder(const QString& strText)
{
    const QChar chLeftToRight(0x200E); // as if a letter of such a language stood before the text
    return QGuiApplication::isRightToLeft() ? chLeftToRight + strText : strText;
}

} // namespace LocalConfig
