#pragma once

#include "RecordFields.h"

#include <QJsonObject>
#include <QJsonValue>
#include <QString>
#include <QVariant>

#include <cmath>
#include <limits>
#include <map>
#include <string>

namespace LocalConfigClient
{

// How the values of records and their JSON become each other, see SettingsDocument.

template <class Value>
struct IsMap : std::false_type
{};
template <class Mapped>
struct IsMap<std::map<std::int32_t, Mapped>> : std::true_type
{};

/// What has a list of its fields.
template <class Value>
inline constexpr bool g_bRecord = std::is_class_v<Value> && !std::is_same_v<Value, std::string> && !IsMap<Value>::value;

/// The key of bytes that are no text.
inline constexpr char g_szBase64[] = "base64";

/// A decimal number in the one form that writing gives it.
inline bool ParseKey(const QString& strKey, std::int32_t& nKey)
{
    bool bOk = false;
    nKey = strKey.toInt(&bOk);
    return bOk && QString::number(nKey) == strKey;
}

/// Fills a value from JSON; the first thing that is wrong ends it.
class Reader
{
public:
    template <class Value>
    void Read(const QString& strPath, const QJsonValue& json, Value& value)
    {
        if constexpr (std::is_same_v<Value, bool>)
        {
            if (Expect(json.isBool(), strPath))
            {
                value = json.toBool();
            }
        }
        else if constexpr (std::is_integral_v<Value>)
        {
            const double dNumber = json.toDouble(std::numeric_limits<double>::quiet_NaN());
            const bool bInRange = dNumber >= double(std::numeric_limits<Value>::min()) &&
                                  dNumber <= double(std::numeric_limits<Value>::max());
            if (Expect(json.isDouble() && bInRange && dNumber == std::floor(dNumber), strPath))
            {
                value = static_cast<Value>(dNumber);
            }
        }
        else if constexpr (std::is_same_v<Value, std::string>)
        {
            ReadString(strPath, json, value);
        }
        else if constexpr (IsMap<Value>::value)
        {
            ReadMap(strPath, json, value);
        }
        else if (Expect(json.isObject(), strPath))
        {
            const QJsonObject object = json.toObject();
            VisitFields(value, [&](const char* pszName, auto& field) {
                const auto it = object.constFind(QLatin1String(pszName));
                if (it != object.constEnd())
                {
                    Read(strPath + QLatin1Char('.') + QLatin1String(pszName), *it, field);
                }
            });
        }
    }

    const QString& GetWrong() const { return m_strWrong; }

private:
    bool Expect(bool bGood, const QString& strPath)
    {
        if (!bGood && m_strWrong.isEmpty())
        {
            m_strWrong = strPath;
        }
        return bGood;
    }

    void ReadString(const QString& strPath, const QJsonValue& json, std::string& value)
    {
        if (json.isObject())
        {
            const QJsonValue encoded = json.toObject().value(QLatin1String(g_szBase64));
            const QByteArray bytes = QByteArray::fromBase64(encoded.toString().toLatin1());
            // Qt takes bits that are no whole byte without a word.
            if (Expect(encoded.isString() && QString::fromLatin1(bytes.toBase64()) == encoded.toString(), strPath))
            {
                value = bytes.toStdString();
            }
        }
        else if (Expect(json.isString(), strPath))
        {
            value = json.toString().toStdString();
        }
    }

    template <class Map>
    void ReadMap(const QString& strPath, const QJsonValue& json, Map& map)
    {
        if (!Expect(json.isObject(), strPath))
        {
            return;
        }
        const QJsonObject object = json.toObject();
        map.clear();
        for (auto it = object.constBegin(); it != object.constEnd(); ++it)
        {
            std::int32_t nKey = 0;
            if (ParseKey(it.key(), nKey)) // any other key is one that this version does not know
            {
                Read(strPath + QLatin1Char('.') + it.key(), it.value(), map[nKey]);
            }
        }
    }

    QString m_strWrong;
};

/// The JSON of a value. \a old is what stood there before, for the keys that nobody here knows.
template <class Value>
QVariant Write(const Value& value, const QVariant& old)
{
    if constexpr (std::is_same_v<Value, bool>)
    {
        return value;
    }
    else if constexpr (std::is_integral_v<Value>)
    {
        return qlonglong(value);
    }
    else if constexpr (std::is_same_v<Value, std::string>)
    {
        const QByteArray bytes = QByteArray::fromStdString(value);
        const QString strText = QString::fromUtf8(bytes);
        if (strText.toUtf8() == bytes)
        {
            return strText;
        }
        return QVariantMap{{QLatin1String(g_szBase64), QString::fromLatin1(bytes.toBase64())}};
    }
    else if constexpr (IsMap<Value>::value)
    {
        const QVariantMap before = old.toMap();
        QVariantMap map;
        for (auto it = before.cbegin(); it != before.cend(); ++it)
        {
            std::int32_t nKey = 0;
            if (!ParseKey(it.key(), nKey))
            {
                map.insert(it.key(), it.value());
            }
        }
        for (const auto& [nKey, mapped] : value)
        {
            const QString strKey = QString::number(nKey);
            map.insert(map.cend(), strKey, Write(mapped, before.value(strKey))); // most often that is its place
        }
        return map;
    }
    else
    {
        QVariantMap map = old.toMap();
        VisitFields(value, [&map](const char* pszName, const auto& field) {
            QVariant& json = map[QString::fromLatin1(pszName)];
            json = Write(field, json);
        });
        return map;
    }
}

} // namespace LocalConfigClient
