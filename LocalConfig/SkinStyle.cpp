#include "SkinStyle.h"

#include <UICommonModule/Pxa.h>

#include <QWidget>

namespace LocalConfig
{

void ApplySkinStyle(QWidget* pWidget)
{
    const QString strPath =
        Pxa::GetSkinPath(QStringLiteral("LocalConfig"), pWidget->objectName() + QStringLiteral(".qss"));
    QString strStyleSheet;
    if (Pxa::loadStyleSheet(strPath, strStyleSheet))
    {
        pWidget->setStyleSheet(strStyleSheet);
    }
}

} // namespace LocalConfig
