#include "KvDir.h"

#include <QDir>

namespace KVGUI
{

QString KvDir::GetCurrentPath()
{
    return QDir::currentPath();
}

} // namespace KVGUI
