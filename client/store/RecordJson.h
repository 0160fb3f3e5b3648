#pragma once

#include "JsonText.h"
#include "RecordFields.h"

#include <QJsonObject>
#include <QJsonValue>
#include <QString>
#include <QVariant>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <map>
#include <string>
#include <utility>
#include <vector>

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
    /// \return what nobody here knows of it: objects with the keys that are no field, as Write takes them
    template <class Value>
    QVariantMap Read(const QString& strPath, const QJsonValue& json, Value& value)
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
            return ReadMap(strPath, json, value);
        }
        else if (Expect(json.isObject(), strPath))
        {
            return ReadRecord(strPath, json.toObject(), value);
        }
        return {};
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
    QVariantMap ReadMap(const QString& strPath, const QJsonValue& json, Map& map)
    {
        QVariantMap unknown;
        if (!Expect(json.isObject(), strPath))
        {
            return unknown;
        }
        const QJsonObject object = json.toObject();
        map.clear();
        for (auto it = object.constBegin(); it != object.constEnd(); ++it)
        {
            std::int32_t nKey = 0;
            if (ParseKey(it.key(), nKey))
            {
                Keep(unknown, it.key(), Read(strPath + QLatin1Char('.') + it.key(), it.value(), map[nKey]));
            }
            else
            {
                unknown.insert(it.key(), it.value().toVariant());
            }
        }
        return unknown;
    }

    template <class Record>
    QVariantMap ReadRecord(const QString& strPath, const QJsonObject& object, Record& record)
    {
        QVariantMap unknown;
        int nFields = 0;
        VisitFields(record, [&](const char* pszName, auto& field) {
            const auto it = object.constFind(QLatin1String(pszName));
            if (it != object.constEnd())
            {
                const QString strName = QLatin1String(pszName);
                Keep(unknown, strName, Read(strPath + QLatin1Char('.') + strName, *it, field));
                ++nFields;
            }
        });
        for (auto it = object.constBegin(); nFields < object.size() && it != object.constEnd(); ++it)
        {
            if (!IsField(record, it.key()))
            {
                unknown.insert(it.key(), it.value().toVariant());
            }
        }
        return unknown;
    }

    template <class Record>
    static bool IsField(const Record& record, const QString& strKey)
    {
        bool bField = false;
        VisitFields(record, [&](const char* pszName, const auto& /*field*/) {
            bField = bField || strKey == QLatin1String(pszName);
        });
        return bField;
    }

    static void Keep(QVariantMap& unknown, const QString& strKey, const QVariantMap& ofKey)
    {
        if (!ofKey.isEmpty())
        {
            unknown.insert(strKey, ofKey);
        }
    }

    QString m_strWrong;
};

template <class Value>
void Write(JsonWriter& writer, const Value& value, const QVariantMap& unknown = {});

/// Writes an object: the members that it is given, in their order, and between them those that nobody here knows.
class ObjectWriter
{
public:
    ObjectWriter(JsonWriter& writer, const QVariantMap& unknown)
        : m_writer(writer)
        , m_it(unknown.cbegin())
        , m_end(unknown.cend())
    {
        m_writer.OpenObject();
    }

    template <class Value>
    void Add(QLatin1String strKey, const Value& value)
    {
        while (m_it != m_end && m_it.key() < strKey)
        {
            AddUnknown();
        }
        m_writer.AddKey(strKey);
        if (m_it != m_end && m_it.key() == strKey)
        {
            Write(m_writer, value, m_it.value().toMap());
            ++m_it;
        }
        else
        {
            Write(m_writer, value);
        }
    }

    void Close()
    {
        while (m_it != m_end)
        {
            AddUnknown();
        }
        m_writer.CloseObject();
    }

private:
    void AddUnknown()
    {
        m_writer.AddKey(m_it.key());
        m_writer.Add(m_it.value());
        ++m_it;
    }

    JsonWriter& m_writer;
    QVariantMap::const_iterator m_it;
    QVariantMap::const_iterator m_end;
};

inline void WriteString(JsonWriter& writer, const std::string& value)
{
    if (writer.AddPlain(value))
    {
        return;
    }
    const QByteArray bytes = QByteArray::fromStdString(value);
    const QString strText = QString::fromUtf8(bytes);
    if (strText.toUtf8() == bytes)
    {
        writer.Add(strText);
    }
    else
    {
        writer.Add(QVariantMap{{QLatin1String(g_szBase64), QString::fromLatin1(bytes.toBase64())}});
    }
}

/// Gives numbers the order of their texts: by the sign, the digits from the left, and how many there are.
inline std::uint64_t GetTextOrder(std::int32_t nNumber)
{
    constexpr std::uint64_t nTenDigits = 1000000000;
    std::uint64_t nDigits = std::uint64_t(std::abs(std::int64_t(nNumber)));
    std::uint64_t nMissing = 0;
    for (; nDigits < nTenDigits && nDigits > 0; nDigits *= 10)
    {
        ++nMissing;
    }
    return ((nNumber < 0 ? 0 : 10 * nTenDigits) + nDigits) * 16 + 15 - nMissing;
}

/// Without the members that the map no longer has.
template <class Map>
QVariantMap WithoutRemoved(QVariantMap unknown, const Map& map)
{
    for (auto it = unknown.begin(); it != unknown.end();)
    {
        std::int32_t nKey = 0;
        it = ParseKey(it.key(), nKey) && map.count(nKey) == 0 ? unknown.erase(it) : it + 1;
    }
    return unknown;
}

template <class Map>
void WriteMap(JsonWriter& writer, const Map& map, const QVariantMap& unknown)
{
    std::vector<std::pair<std::uint64_t, typename Map::const_iterator>> listMembers;
    listMembers.reserve(map.size());
    for (auto it = map.begin(); it != map.end(); ++it)
    {
        listMembers.emplace_back(GetTextOrder(it->first), it);
    }
    std::sort(listMembers.begin(), listMembers.end(),
              [](const auto& left, const auto& right) { return left.first < right.first; });
    const QVariantMap kept = WithoutRemoved(unknown, map);
    ObjectWriter object(writer, kept);
    for (const auto& member : listMembers)
    {
        const std::string strKey = std::to_string(member.second->first);
        object.Add(QLatin1String(strKey.data(), int(strKey.size())), member.second->second);
    }
    object.Close();
}

/// \param unknown  what Reader has left of what stood there before
template <class Value>
void Write(JsonWriter& writer, const Value& value, const QVariantMap& unknown)
{
    if constexpr (std::is_same_v<Value, bool>)
    {
        writer.Add(value);
    }
    else if constexpr (std::is_integral_v<Value>)
    {
        writer.Add(qlonglong(value));
    }
    else if constexpr (std::is_same_v<Value, std::string>)
    {
        WriteString(writer, value);
    }
    else if constexpr (IsMap<Value>::value)
    {
        WriteMap(writer, value, unknown);
    }
    else
    {
        ObjectWriter object(writer, unknown);
        VisitFields(value,
                    [&object](const char* pszName, const auto& field) { object.Add(QLatin1String(pszName), field); });
        object.Close();
    }
}

/// The JSON of a value that nobody has read.
template <class Value>
QByteArray ToJson(const Value& value)
{
    JsonWriter writer;
    Write(writer, value);
    return writer.GetText();
}

} // namespace LocalConfigClient
