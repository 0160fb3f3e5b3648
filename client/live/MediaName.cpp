#include "MediaName.h"

namespace LocalConfigClient
{

namespace
{

enum ENameFormat
{
    TimeChannelNo,
    TimeChannelName,
    ChannelNoTime,
    ChannelNameTime
};

constexpr int g_nMaxChannelLength = 64; // characters; the whole name must stay within what file systems take

QString MakeSafe(const QString& strName)
{
    QString strSafe = strName.left(g_nMaxChannelLength).trimmed();
    for (QChar& ch : strSafe)
    {
        if (ch.category() == QChar::Other_Control || QStringLiteral("\\/:*?\"<>|").contains(ch))
        {
            ch = QLatin1Char('_');
        }
    }
    return strSafe;
}

} // namespace

QString MediaName::GetBaseName() const
{
    const QString strTime = time.toString(QStringLiteral("yyyyMMdd-HHmmss-zzz"));
    const QString strNumber = QStringLiteral("%1").arg(nChannel, 2, 10, QLatin1Char('0'));
    switch (nFormat)
    {
    case TimeChannelNo:
        return QStringLiteral("%1_%2").arg(strTime, strNumber);
    case TimeChannelName:
        return QStringLiteral("%1_%2").arg(strTime, MakeSafe(strChannel));
    case ChannelNoTime:
        return QStringLiteral("%1_%2").arg(strNumber, strTime);
    case ChannelNameTime:
    default:
        return QStringLiteral("%1_%2").arg(MakeSafe(strChannel), strTime);
    }
}

} // namespace LocalConfigClient
