#include "ClientTexts.h"

#include <UICommonModule/CGlobalInfo.h>

#include <QFontInfo>
#include <QGuiApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QStringList>
#include <QTranslator>

#include <iterator>

using UICommonMdl::CGlobalInfo;

namespace LocalConfigClient
{

namespace
{

constexpr int g_nTextSize = 13;    // pixels; what the skins are made for
constexpr int g_nMaxTextSize = 19; // half as large again

// The first that is there has a letter; those that only Windows has stand before what stands in for them elsewhere.
constexpr const char* g_arrFamilies[] = {
    "Inter",       "Segoe UI",        "Noto Sans",        "Noto Sans Arabic",
    "DejaVu Sans", "Microsoft YaHei", "Noto Sans CJK SC", "WenQuanYi Micro Hei",
};

bool Install(const QString& strName, const QString& strFolder)
{
    auto* pTranslator = new QTranslator(QCoreApplication::instance());
    const bool bInstalled = pTranslator->load(strName, strFolder) && QCoreApplication::installTranslator(pTranslator);
    if (!bInstalled)
    {
        delete pTranslator;
    }
    return bInstalled;
}

} // namespace

void ClientTexts::Translate(const QString& strLanguage)
{
    const QString strFolder = CGlobalInfo::GetResourcePath() + QStringLiteral("/translations");
    const auto name = [&strLanguage](const char* pszStem) {
        return QStringLiteral("%1_%2").arg(QString::fromLatin1(pszStem), strLanguage);
    };
    // Where Qt comes along with the client, so do its texts.
    if (!Install(name("qtbase"), QLibraryInfo::location(QLibraryInfo::TranslationsPath)))
    {
        Install(name("qtbase"), strFolder);
    }
    for (const char* pszStem : {"KvGui", "UICommonModule", "LocalConfig", "local-config-client"})
    {
        Install(name(pszStem), strFolder);
    }
    if (qobject_cast<QGuiApplication*>(QCoreApplication::instance()))
    {
        QGuiApplication::setLayoutDirection(QLocale(strLanguage).textDirection());
    }
}

QFont ClientTexts::MakeFont(const QFont& system)
{
    QStringList listFamilies;
    for (const char* pszFamily : g_arrFamilies)
    {
        listFamilies += QString::fromLatin1(pszFamily);
    }
    QFont font = system;
    font.setPixelSize(qBound(g_nTextSize, QFontInfo(system).pixelSize(), g_nMaxTextSize));
    font.setFamilies(listFamilies);
    return font;
}

} // namespace LocalConfigClient
