#include "SettingsDocument.h"

#include "RecordJson.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <cmath>
#include <limits>

namespace LocalConfigClient
{

namespace
{

constexpr int g_nVersion = 1;
const QLatin1String g_strVersion("version");
const QLatin1String g_strSections("sections");
const QLatin1String g_strMissingRights("missingRights");

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
    QJsonObject root = document.object();
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
    const QVariantMap unknownOfSections = reader.Read(g_strSections, sections, settings);
    if (!reader.GetWrong().isEmpty())
    {
        return fail(Damaged, tr("impossible value of %1").arg(reader.GetWrong()));
    }
    m_settings = settings;
    root.remove(g_strVersion);
    root.remove(g_strSections);
    m_unknown = root.toVariantMap();
    m_unknown.insert(g_strSections, unknownOfSections);
    return Good;
}

void SettingsDocument::TakeUnknownKeys(const SettingsDocument& other)
{
    m_unknown = Merge(m_unknown, other.m_unknown).toMap();
}

MissingRights SettingsDocument::GetMissingRights() const
{
    const QVariant rights = m_unknown.value(g_strMissingRights, QVariantList());
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

QByteArray SettingsDocument::Serialize(const Settings& settings) const
{
    JsonWriter writer;
    ObjectWriter root(writer, m_unknown);
    root.Add(g_strSections, settings);
    root.Add(g_strVersion, g_nVersion);
    root.Close();
    return writer.GetText();
}

bool operator==(const Settings& left, const Settings& right)
{
    return ToJson(left) == ToJson(right);
}

} // namespace LocalConfigClient
