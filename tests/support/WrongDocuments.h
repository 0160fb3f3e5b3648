#pragma once

#include "ChangedSettings.h"
#include "Documents.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMap>

/// Walks a document and lists the path of every field, with the field's JSON.
inline void ListLeaves(const QString& strPath, const QJsonValue& json, QMap<QString, QJsonValue>& mapLeaves)
{
    if (!json.isObject())
    {
        mapLeaves.insert(strPath, json);
        return;
    }
    const QJsonObject object = json.toObject();
    for (auto it = object.constBegin(); it != object.constEnd(); ++it)
    {
        ListLeaves(strPath.isEmpty() ? it.key() : strPath + '/' + it.key(), *it, mapLeaves);
    }
}

inline QJsonValue Replace(const QJsonValue& json, QStringList listPath, const QJsonValue& value)
{
    if (listPath.isEmpty())
    {
        return value;
    }
    QJsonObject object = json.toObject();
    const QString strKey = listPath.takeFirst();
    object.insert(strKey, Replace(object.value(strKey), listPath, value));
    return object;
}

inline QByteArray ToBytes(const QJsonValue& json)
{
    return QJsonDocument(json.toObject()).toJson();
}

inline QJsonObject FromBytes(const QByteArray& content)
{
    return QJsonDocument::fromJson(content).object();
}

/// A settings document with one value that is not of its kind.
struct SWrongDocument
{
    QByteArray name;
    QString strPath; ///< of the value, with slashes
    QByteArray content;
};

/// Each field of the document, with every value that is not of its kind.
inline QList<SWrongDocument> WrongDocuments()
{
    const QJsonObject root = FromBytes(Document(ChangedSettings()));
    QList<SWrongDocument> listWrong;
    const auto add = [&](const QString& strPath, const QString& strWhat, const QJsonValue& json) {
        const QJsonValue document = Replace(root, strPath.split('/'), json);
        listWrong += {QString(strPath + ": " + strWhat).toUtf8(), strPath, ToBytes(document)};
    };
    const QMap<QString, QJsonValue> mapWrong = {{"null", QJsonValue()},
                                                {"true", true},
                                                {"text", "text"},
                                                {"array", QJsonArray()},
                                                {"object", QJsonObject()},
                                                {"fraction", 1.5},
                                                {"too large", 4294967296.0},
                                                {"too small", -2147483649.0},
                                                {"number", 3}};
    QMap<QString, QJsonValue> mapLeaves;
    ListLeaves(QString(), root, mapLeaves);
    for (auto it = mapLeaves.constBegin(); it != mapLeaves.constEnd(); ++it)
    {
        for (auto wrong = mapWrong.constBegin(); wrong != mapWrong.constEnd(); ++wrong)
        {
            const bool bFits = (it->isBool() && wrong.key() == "true") || (it->isString() && wrong.key() == "text") ||
                               (it->isDouble() && wrong.key() == "number");
            if (!bFits)
            {
                add(it.key(), wrong.key(), *wrong);
            }
        }
    }
    for (const char* pszPath : {"sections", "sections/basic", "sections/alarm/flashCategories",
                                "sections/alarm/alarmSounds", "sections/alarm/alarmSounds/3"})
    {
        add(pszPath, "array", QJsonArray());
    }
    add("sections/record/recordPath", "no base64", QJsonObject{{"base64", "%%%"}});
    add("sections/basic/hostOwned1", "negative unsigned", -1);
    add("sections/alarm/alarmSounds/3/hostOwned4", "too large for a byte", 256);
    return listWrong;
}
