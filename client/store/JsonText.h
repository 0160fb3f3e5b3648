#pragma once

#include <QByteArray>
#include <QVariant>

namespace LocalConfigClient
{

/// The text of a JSON document, as QJsonDocument writes it, but for whole numbers: those that need more than 53 bits
/// keep all of their digits.
/// \param value  as QJsonValue::toVariant makes it
QByteArray ToJsonText(const QVariant& value);

} // namespace LocalConfigClient
