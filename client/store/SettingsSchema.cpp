#include "SettingsSchema.h"

#include "RecordJson.h"

namespace LocalConfigClient
{

namespace
{

QVariantMap OfType(const char* pszType)
{
    return {{QStringLiteral("type"), QString::fromLatin1(pszType)}};
}

QVariantMap Object(const QVariantMap& properties)
{
    QVariantMap schema = OfType("object");
    schema.insert(QStringLiteral("properties"), properties);
    return schema;
}

QVariantMap Integer(qlonglong nMin, qlonglong nMax)
{
    QVariantMap schema = OfType("integer");
    schema.insert(QStringLiteral("minimum"), nMin);
    schema.insert(QStringLiteral("maximum"), nMax);
    return schema;
}

/// Text, or bytes that are none.
QVariantMap Bytes()
{
    const QString strBase64 = QString::fromLatin1(g_szBase64);
    QVariantMap encoded = OfType("string");
    encoded.insert(QStringLiteral("contentEncoding"), strBase64);
    encoded.insert(QStringLiteral("pattern"),
                   QStringLiteral("^([A-Za-z0-9+/]{4})*([A-Za-z0-9+/][AQgw]==|[A-Za-z0-9+/]{2}[AEIMQUYcgkosw048]=)?$"));
    QVariantMap bytes = Object({{strBase64, encoded}});
    bytes.insert(QStringLiteral("required"), QVariantList{strBase64});
    return {{QStringLiteral("anyOf"), QVariantList{OfType("string"), bytes}}};
}

/// The schema of a value, which is its default.
template <class Value>
QVariantMap Schema(const Value& value)
{
    if constexpr (g_bRecord<Value>)
    {
        QVariantMap properties;
        VisitFields(value, [&properties](const char* pszName, const auto& field) {
            properties.insert(QString::fromLatin1(pszName), Schema(field));
        });
        return Object(properties);
    }
    else if constexpr (IsMap<Value>::value)
    {
        QVariantMap schema = OfType("object");
        const QVariantMap mapped{{QStringLiteral("^(0|-?[1-9][0-9]{0,8})$"), Schema(typename Value::mapped_type())}};
        schema.insert(QStringLiteral("patternProperties"), mapped);
        return schema;
    }
    else
    {
        const QString strDefault = QStringLiteral("default");
        QVariantMap schema;
        if constexpr (std::is_same_v<Value, bool>)
        {
            schema = OfType("boolean");
            schema.insert(strDefault, value);
        }
        else if constexpr (std::is_integral_v<Value>)
        {
            schema = Integer(std::numeric_limits<Value>::min(), std::numeric_limits<Value>::max());
            schema.insert(strDefault, qlonglong(value));
        }
        else
        {
            schema = Bytes();
            schema.insert(strDefault, QString::fromStdString(value));
        }
        return schema;
    }
}

} // namespace

QByteArray GetSettingsSchema()
{
    QVariantMap rights = OfType("array");
    rights.insert(QStringLiteral("items"), Integer(1, std::numeric_limits<int>::max()));
    rights.insert(QStringLiteral("description"), QStringLiteral("Numbers of the rights that the user lacks."));
    QVariantMap schema = Object({{QStringLiteral("version"), Integer(1, 1)},
                                 {QStringLiteral("sections"), Schema(Settings())},
                                 {QStringLiteral("missingRights"), rights}});
    schema.insert(QStringLiteral("required"), QVariantList{QStringLiteral("version"), QStringLiteral("sections")});
    schema.insert(QStringLiteral("$schema"), QStringLiteral("http://json-schema.org/draft-07/schema#"));
    schema.insert(QStringLiteral("title"), QStringLiteral("Settings of local-config-client"));
    JsonWriter writer;
    writer.Add(schema);
    return writer.GetText();
}

} // namespace LocalConfigClient
