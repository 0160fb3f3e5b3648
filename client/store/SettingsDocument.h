#pragma once

#include "MissingRights.h"
#include "RecordFields.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QString>
#include <QVariant>

namespace LocalConfigClient
{

/// The nine records as one JSON document: {"version": 1, "sections": {"basic": {...}, ...}}.
///
/// Numbers must be whole and within the field's range. Byte strings are text, or {"base64": "..."} when the bytes are
/// no UTF-8. Maps are objects whose keys are decimal numbers. A missing key stands for the field's default. Keys that
/// this version does not know survive reading and writing, at every level.
class SettingsDocument
{
    Q_DECLARE_TR_FUNCTIONS(SettingsDocument)

public:
    enum Result
    {
        Good,
        Damaged,
        Newer ///< written by a later version, whose meaning this one cannot know
    };

    /// Takes a document over. Nothing changes unless the result is Good.
    /// \param pError  where not null, gets what is wrong and where, for people
    Result Parse(const QByteArray& content, QString* pError = nullptr);

    const Settings& GetSettings() const { return m_settings; }
    void SetSettings(const Settings& settings) { m_settings = settings; }

    /// Adds the keys of another document that this version does not know to those of this one.
    void TakeUnknownKeys(const SettingsDocument& other);

    /// The rights that the document takes from the user: an array of numbers from 1 on under the key "missingRights".
    /// Anything else there takes all of them.
    MissingRights GetMissingRights() const;

    /// The same settings always give the same bytes.
    QByteArray Serialize() const { return Serialize(m_settings); }

    /// The same with other settings in the place of its own.
    QByteArray Serialize(const Settings& settings) const;

private:
    Settings m_settings;
    QVariantMap m_unknown; // of the document, see Reader
};

/// Whether all fields of two sets of settings are equal.
bool operator==(const Settings& left, const Settings& right);
inline bool operator!=(const Settings& left, const Settings& right)
{
    return !(left == right);
}

} // namespace LocalConfigClient
