#include "AutoStartEntry.h"

#include <QSettings>

namespace LocalConfig
{

QString ReadAutoStartCommand(const QString& strApplication)
{
    const QSettings run(QStringLiteral("HKEY_CURRENT_USER\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run"),
                        QSettings::NativeFormat);
    return run.value(strApplication).toString();
}

} // namespace LocalConfig
