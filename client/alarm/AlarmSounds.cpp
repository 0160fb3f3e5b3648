#include "AlarmSounds.h"

#include <UICommonModule/CAtomicFile.h>
#include <UICommonModule/CErrorCode.h>
#include <UICommonModule/CGlobalInfo.h>
#include <client/store/AlarmRecord.h>

#include <QDir>
#include <QFileInfo>

using LocalConfigLogical::AlarmConfigInfo;
using UICommonMdl::CAlarmType;
using UICommonMdl::CAtomicFile;
using UICommonMdl::CErrorCode;
using UICommonMdl::CGlobalInfo;

namespace LocalConfigClient
{

namespace
{

constexpr char g_szSounds[] = "Sound";

/// A power cut, or a client that was killed, may have left the beginning of a file; what is no beginning is the
/// operator's own.
bool IsCut(const QString& strFile, const QByteArray& whole)
{
    QByteArray content;
    return CAtomicFile::Read(strFile, content) == CErrorCode::Success && whole.startsWith(content);
}

bool ProvideSound(const QString& strSource, const QString& strTarget)
{
    const bool bExists = QFileInfo::exists(strTarget);
    if (bExists && QFileInfo(strTarget).size() >= QFileInfo(strSource).size())
    {
        return true;
    }
    QByteArray whole;
    if (CAtomicFile::Read(strSource, whole) != CErrorCode::Success)
    {
        return false;
    }
    if (bExists && !IsCut(strTarget, whole))
    {
        return true;
    }
    const int nResult = CAtomicFile::Write(strTarget, whole);
    return nResult == CErrorCode::Success || nResult == CErrorCode::NotYetSafe;
}

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
            bGood = ProvideSound(folder.filePath(strFile), strTarget) && bGood;
        }
    }
    return bGood;
}

} // namespace LocalConfigClient
