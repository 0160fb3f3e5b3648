#pragma once

#include "RecordFields.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QString>

#include <optional>

namespace LocalConfigClient
{

/// Single settings by their names: the keys of the settings document below "sections", as in "video.nDefaultSplit" or
/// "alarm.alarmSounds.201.customSound".
class SettingValue
{
    Q_DECLARE_TR_FUNCTIONS(SettingValue)

public:
    /// \return the value, a text as it is and anything else as JSON; nothing when there is no such setting
    static std::optional<QByteArray> Get(const Settings& settings, const QString& strName);

    /// What Get says to people by returning nothing.
    static QString DescribeMissing(const QString& strName);

    /// Sets a value under the rules of the settings document. What a map lacks is added to it.
    /// \param strValue  a text as it is, anything else as JSON
    /// \return whether it could be set; else \a settings may have changed in part, and \a strError tells why, for
    /// people
    static bool Set(Settings& settings, const QString& strName, const QString& strValue, QString& strError);
};

} // namespace LocalConfigClient
