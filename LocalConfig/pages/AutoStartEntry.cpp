#include "AutoStartEntry.h"

#include <QDir>

namespace LocalConfig
{

QString GetAutoStartCommand(const QString& strExecutable)
{
    return QStringLiteral("\"%1\"").arg(QDir::toNativeSeparators(strExecutable));
}

} // namespace LocalConfig
