#include "CGlobalInfo.h"

#include "CLocalIniFile.h"

#include <QCoreApplication>
#include <QDir>

namespace UICommonMdl
{

namespace
{

constexpr const char* g_arrLanguages[] = {"en", "zh_CN", "es", "ar"}; // by the code in Localcfg.ini

QString g_strLanguage;

QString ReadLanguage()
{
    const QString strType = CLocalIniFile::ReadValue(QStringLiteral("Language"), QStringLiteral("type"), QString(),
                                                     QStringLiteral("Localcfg.ini"));
    bool bOk = false;
    const int nType = strType.toInt(&bOk);
    const bool bKnown = bOk && nType >= 0 && nType < int(std::size(g_arrLanguages));
    return QString::fromLatin1(g_arrLanguages[bKnown ? nType : 0]);
}

} // namespace

QString CGlobalInfo::GetClientStrLanguage()
{
    if (g_strLanguage.isEmpty())
    {
        g_strLanguage = ReadLanguage();
    }
    return g_strLanguage;
}

void CGlobalInfo::SetClientStrLanguage(const QString& strLanguage)
{
    g_strLanguage = strLanguage;
}

QString CGlobalInfo::GetResourcePath()
{
    const QString strChosen = qEnvironmentVariable("KV_CLIENT_RESOURCES");
    if (!strChosen.isEmpty())
    {
        return QDir::cleanPath(strChosen);
    }
    const QDir application(QCoreApplication::applicationDirPath());
    const QString strShared = QDir::cleanPath(application.filePath(QStringLiteral("../share/local-config-client")));
    return QDir(strShared).exists() ? strShared : application.path();
}

} // namespace UICommonMdl
