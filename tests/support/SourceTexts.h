#pragma once

#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>
#include <QXmlStreamReader>

/// The files of translations as they stand in the tree. For tests that define SOURCE_DIR.
namespace SourceTexts
{

struct SMessage
{
    QString strContext;
    QString strSource;
    QStringList listTranslations; // more than one where the language's plural has more than one form
    bool bNumerus = false;
    bool bFinished = false;
};

inline QStringList Folders()
{
    return {"LocalConfig", "platform/KvGui", "platform/UICommonModule", "client"};
}

inline QStringList Files()
{
    QStringList listFiles;
    for (const QString& strFolder : Folders())
    {
        QDirIterator it(QStringLiteral(SOURCE_DIR "/%1/translations").arg(strFolder), {"*.ts"}, QDir::Files);
        while (it.hasNext())
        {
            listFiles += it.next();
        }
    }
    listFiles.sort();
    return listFiles;
}

/// "zh_CN" of ".../LocalConfig_zh_CN.ts".
inline QString Language(const QString& strFile)
{
    return QFileInfo(strFile).completeBaseName().section('_', 1);
}

inline QStringList Languages()
{
    QStringList listLanguages;
    for (const QString& strFile : Files())
    {
        listLanguages += Language(strFile);
    }
    listLanguages.removeDuplicates();
    return listLanguages;
}

inline QList<SMessage> Read(const QString& strFile)
{
    QList<SMessage> listMessages;
    QFile file(strFile);
    if (!file.open(QIODevice::ReadOnly))
    {
        return listMessages;
    }
    QXmlStreamReader xml(&file);
    QString strContext;
    while (!xml.atEnd())
    {
        xml.readNext();
        if (!xml.isStartElement())
        {
            continue;
        }
        if (xml.name() == QLatin1String("name"))
        {
            strContext = xml.readElementText();
        }
        else if (xml.name() == QLatin1String("message"))
        {
            SMessage message;
            message.strContext = strContext;
            message.bNumerus = xml.attributes().value("numerus") == QLatin1String("yes");
            listMessages += message;
        }
        else if (xml.name() == QLatin1String("source"))
        {
            listMessages.last().strSource = xml.readElementText();
        }
        else if (xml.name() == QLatin1String("translation"))
        {
            listMessages.last().bFinished = !xml.attributes().hasAttribute("type");
            if (!listMessages.last().bNumerus)
            {
                listMessages.last().listTranslations += xml.readElementText();
            }
        }
        else if (xml.name() == QLatin1String("numerusform"))
        {
            listMessages.last().listTranslations += xml.readElementText();
        }
    }
    return listMessages;
}

/// Of a category, a group or a type of alarms, by attribute: "name", "name-zh_CN" and so on.
using Names = QMap<QString, QString>;

inline QList<Names> ReadAlarmNames()
{
    QList<Names> listNames;
    QFile file(QStringLiteral(SOURCE_DIR "/platform/skin/AlarmTypes.xml"));
    if (!file.open(QIODevice::ReadOnly))
    {
        return listNames;
    }
    QXmlStreamReader xml(&file);
    while (!xml.atEnd())
    {
        xml.readNext();
        Names names;
        for (const QXmlStreamAttribute& attribute : xml.attributes())
        {
            const QString strAttribute = attribute.name().toString();
            if (strAttribute.startsWith(QLatin1String("name")))
            {
                names.insert(strAttribute, attribute.value().toString());
            }
        }
        if (!names.isEmpty())
        {
            listNames += names;
        }
    }
    return listNames;
}

} // namespace SourceTexts
