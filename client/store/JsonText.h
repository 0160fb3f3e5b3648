#pragma once

#include <QByteArray>
#include <QVariant>

namespace LocalConfigClient
{

/// The text of a JSON document, as QJsonDocument writes it, but for whole numbers: those that need more than 53 bits
/// keep all of their digits.
/// \param document  as QJsonObject::toVariantMap makes it
QByteArray ToJsonText(const QVariantMap& document);

} // namespace LocalConfigClient
