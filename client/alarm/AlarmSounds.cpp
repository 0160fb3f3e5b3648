#include "AlarmSounds.h"

#include <UICommonModule/CGlobalInfo.h>
#include <client/store/AlarmRecord.h>

#include <QDir>
#include <QFile>

using LocalConfigLogical::AlarmConfigInfo;
using UICommonMdl::CAlarmType;
using UICommonMdl::CGlobalInfo;

namespace LocalConfigClient
{

namespace
{

constexpr char g_szSounds[] = "Sound";

} // namespace

QString GetSoundFile(const CAlarmType& catalogue, const AlarmConfigInfo& record, int nAlarmType)
{
    const auto sound = record.alarmSounds.find(GetSoundKey(catalogue, nAlarmType));
    if (sound == record.alarmSounds.end())
    {
        return QString();
    }
    const QString strCustom = QString::fromStdString(sound->second.customSound);
    return QDir::current().absoluteFilePath(
        strCustom.isEmpty() ? QStringLiteral("%1/sound_%2/%3")
                                  .arg(QString::fromLatin1(g_szSounds), CGlobalInfo::GetClientStrLanguage(),
                                       QString::fromStdString(sound->second.defaultSound))
                            : strCustom);
}

bool ProvideSounds()
{
    bool bGood = true;
    const QDir source(QDir(CGlobalInfo::GetResourcePath()).filePath(QString::fromLatin1(g_szSounds)));
    const QDir target(QDir::current().filePath(QString::fromLatin1(g_szSounds)));
    for (const QString& strFolder : source.entryList(QDir::Dirs | QDir::NoDotAndDotDot))
    {
        bGood = QDir().mkpath(target.filePath(strFolder)) && bGood;
        const QDir folder(source.filePath(strFolder));
        for (const QString& strFile : folder.entryList(QDir::Files))
        {
            const QString strTarget = QDir(target.filePath(strFolder)).filePath(strFile);
            bGood = (QFile::exists(strTarget) || QFile::copy(folder.filePath(strFile), strTarget)) && bGood;
        }
    }
    return bGood;
}

} // namespace LocalConfigClient
