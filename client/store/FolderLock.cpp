#include "FolderLock.h"

#include <QCoreApplication>
#include <QList>
#include <QSysInfo>

namespace LocalConfigClient
{

namespace
{

constexpr int g_nMaxHost = 255; // letters; what a host's name may have

} // namespace

int FolderLock::Take()
{
    return m_lock.Take(QByteArray::number(QCoreApplication::applicationPid()) + '\n' +
                       QSysInfo::machineHostName().toUtf8() + '\n');
}

QString FolderLock::GetHolder() const
{
    const QList<QByteArray> listLines = m_lock.GetNote().split('\n');
    bool bProcess = false;
    const qlonglong nProcess = listLines[0].toLongLong(&bProcess);
    if (!bProcess || listLines.size() < 2)
    {
        return QString();
    }
    return QCoreApplication::translate("FolderLock", "process %1 on %2")
        .arg(QString::number(nProcess), QString::fromUtf8(listLines[1]).left(g_nMaxHost));
}

} // namespace LocalConfigClient
