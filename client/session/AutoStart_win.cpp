#include "AutoStart.h"

#include <UICommonModule/CErrorCode.h>

#include <QDir>
#include <QSettings>

using UICommonMdl::CErrorCode;

namespace LocalConfigClient
{

int AutoStart::Apply(bool bEnable, const QString& strApplication, const QString& strExecutable)
{
    QSettings run(QStringLiteral("HKEY_CURRENT_USER\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run"),
                  QSettings::NativeFormat);
    if (bEnable)
    {
        run.setValue(strApplication, QStringLiteral("\"%1\"").arg(QDir::toNativeSeparators(strExecutable)));
    }
    else
    {
        run.remove(strApplication);
    }
    run.sync();
    return run.status() == QSettings::NoError ? CErrorCode::Success : CErrorCode::NoPermission;
}

} // namespace LocalConfigClient
