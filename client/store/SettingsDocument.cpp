#include "SettingsDocument.h"

#include "JsonText.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>
#include <string>

namespace LocalConfigClient
{

namespace
{

constexpr int g_nVersion = 1;
const QLatin1String g_strVersion("version");
const QLatin1String g_strSections("sections");
const QLatin1String g_strMissingRights("missingRights");
const QLatin1String g_strBase64("base64");

template <class Value>
struct IsMap : std::false_type
{};
template <class Mapped>
struct IsMap<std::map<std::int32_t, Mapped>> : std::true_type
{};

/// A decimal number in the one form that writing gives it.
bool ParseKey(const QString& strKey, std::int32_t& nKey)
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
            const QJsonValue encoded = json.toObject().value(g_strBase64);
            const auto decoded =
                QByteArray::fromBase64Encoding(encoded.toString().toLatin1(), QByteArray::AbortOnBase64DecodingErrors);
            if (Expect(encoded.isString() && decoded.decodingStatus == QByteArray::Base64DecodingStatus::Ok, strPath))
            {
                value = decoded.decoded.toStdString();
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
        return QVariantMap{{g_strBase64, QString::fromLatin1(bytes.toBase64())}};
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
            map.insert(strKey, Write(mapped, before.value(strKey)));
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

bool IsObject(const QVariant& json)
{
    return json.userType() == QMetaType::QVariantMap;
}

/// Objects are united at every level; anything else of \a over takes the place of what is in \a base.
QVariant Merge(const QVariant& base, const QVariant& over)
{
    if (!IsObject(base) || !IsObject(over))
    {
        return over;
    }
    QVariantMap map = base.toMap();
    const QVariantMap other = over.toMap();
    for (auto it = other.cbegin(); it != other.cend(); ++it)
    {
        QVariant& json = map[it.key()];
        json = Merge(json, it.value());
    }
    return map;
}

/// A number from 1 on; no other stands for a right.
bool IsRight(const QVariant& json)
{
    return json.userType() == QMetaType::LongLong && json.toLongLong() > 0 &&
           json.toLongLong() <= std::numeric_limits<int>::max();
}

} // namespace

SettingsDocument::Result SettingsDocument::Parse(const QByteArray& content, QString* pError)
{
    const auto fail = [pError](Result eResult, const QString& strError) {
        if (pError)
        {
            *pError = strError;
        }
        return eResult;
    };

    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(content, &error);
    if (error.error != QJsonParseError::NoError)
    {
        return fail(Damaged, tr("not a JSON document: %1").arg(error.errorString()));
    }
    const QJsonObject root = document.object();
    const QJsonValue version = root.value(g_strVersion);
    const QJsonValue sections = root.value(g_strSections);
    if (!document.isObject() || !version.isDouble() || version.toDouble() != std::floor(version.toDouble()) ||
        version.toDouble() < 1)
    {
        return fail(Damaged, tr("not a settings document"));
    }
    if (version.toDouble() > g_nVersion)
    {
        return fail(Newer, tr("written by a newer version"));
    }

    Settings settings;
    Reader reader;
    reader.Read(g_strSections, sections, settings);
    if (!reader.GetWrong().isEmpty())
    {
        return fail(Damaged, tr("impossible value of %1").arg(reader.GetWrong()));
    }
    m_settings = settings;
    m_root = root.toVariantMap();
    return Good;
}

void SettingsDocument::TakeUnknownKeys(const SettingsDocument& other)
{
    m_root = Merge(m_root, other.m_root).toMap();
}

MissingRights SettingsDocument::GetMissingRights() const
{
    const QVariant rights = m_root.value(g_strMissingRights, QVariantList());
    const QVariantList listRights = rights.toList();
    MissingRights missing;
    missing.bAll =
        rights.userType() != QMetaType::QVariantList || !std::all_of(listRights.begin(), listRights.end(), IsRight);
    for (const QVariant& right : listRights)
    {
        missing.setRights.insert(right.toInt());
    }
    return missing;
}

QByteArray SettingsDocument::Serialize() const
{
    QVariantMap root = m_root;
    root.insert(g_strVersion, qlonglong(g_nVersion));
    root.insert(g_strSections, Write(m_settings, root.value(g_strSections)));
    return ToJsonText(root);
}

bool operator==(const Settings& left, const Settings& right)
{
    return Write(left, QVariant()) == Write(right, QVariant());
}

} // namespace LocalConfigClient
