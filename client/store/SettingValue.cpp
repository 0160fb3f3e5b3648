#include "SettingValue.h"

#include "RecordJson.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QStringList>

#include <algorithm>

namespace LocalConfigClient
{

namespace
{

/// Calls visit with the value of a name that lies below this one.
/// \return whether there is such a value
template <class Value, class Visitor>
bool Descend(Value& value, const QStringList& listNames, Visitor&& visit)
{
    using Plain = std::remove_const_t<Value>;
    if (listNames.isEmpty())
    {
        visit(value);
        return true;
    }
    const QString& strName = listNames.first();
    bool bFound = false;
    if constexpr (g_bRecord<Plain>)
    {
        VisitFields(value, [&](const char* pszName, auto& field) {
            bFound = bFound || (strName == QLatin1String(pszName) && Descend(field, listNames.mid(1), visit));
        });
    }
    else if constexpr (IsMap<Plain>::value)
    {
        std::int32_t nKey = 0;
        const bool bKey = ParseKey(strName, nKey);
        if constexpr (std::is_const_v<Value>)
        {
            const auto it = value.find(nKey);
            bFound = bKey && it != value.end() && Descend(it->second, listNames.mid(1), visit);
        }
        else
        {
            bFound = bKey && Descend(value[nKey], listNames.mid(1), visit);
        }
    }
    return bFound;
}

/// \return undefined when the text is not the JSON of one value
QJsonValue ParseJson(const QString& strText)
{
    const QJsonArray array = QJsonDocument::fromJson('[' + strText.toUtf8() + ']').array();
    return array.size() == 1 ? array.first() : QJsonValue(QJsonValue::Undefined);
}

} // namespace

std::optional<QByteArray> SettingValue::Get(const Settings& settings, const QString& strName)
{
    std::optional<QByteArray> result;
    Descend(settings, strName.split(QLatin1Char('.')), [&result](const auto& value) {
        if constexpr (std::is_same_v<std::decay_t<decltype(value)>, std::string>)
        {
            result = QByteArray::fromStdString(value);
        }
        else
        {
            result = ToJson(value).trimmed();
        }
    });
    return result;
}

QString SettingValue::DescribeMissing(const QString& strName)
{
    return tr("There is no setting '%1'.").arg(strName);
}

bool SettingValue::Set(Settings& settings, const QString& strName, const QString& strValue, QString& strError)
{
    Reader reader;
    const bool bFound = Descend(settings, strName.split(QLatin1Char('.')), [&](auto& value) {
        const bool bText = std::is_same_v<std::decay_t<decltype(value)>, std::string>;
        reader.Read(strName, bText ? QJsonValue(strValue) : ParseJson(strValue), value);
    });
    if (!bFound)
    {
        strError = DescribeMissing(strName);
    }
    else if (!reader.GetWrong().isEmpty())
    {
        strError = tr("Impossible value of '%1': '%2'.").arg(reader.GetWrong(), strValue);
    }
    return strError.isEmpty();
}

} // namespace LocalConfigClient
