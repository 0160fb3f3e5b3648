#pragma once

#include <QByteArray>
#include <QLatin1String>
#include <QString>
#include <QVariant>

#include <string>

namespace LocalConfigClient
{

/// Writes the text of a JSON document, as QJsonDocument writes it, but for whole numbers: those that need more than 53
/// bits keep all of their digits. The keys of an object must come in the order of their UTF-16 code units.
class JsonWriter
{
public:
    void OpenObject() { Open('{'); }
    void CloseObject() { Close('}'); }

    /// The key of the value that comes next; \a strKey needs no escape.
    void AddKey(QLatin1String strKey);
    void AddKey(const QString& strKey);

    void Add(bool bValue) { m_text += bValue ? "true" : "false"; }
    void Add(qlonglong nValue) { m_text += std::to_string(nValue); }

    /// Adds a text of which all characters stand for themselves. Most texts are such, and this is far quicker than Qt's
    /// form.
    /// \return whether it is one; else nothing is added
    bool AddPlain(const std::string& strText);

    /// \param value  as QJsonValue::toVariant makes it
    void Add(const QVariant& value);

    /// The document of all that was added.
    QByteArray GetText() const { return QByteArray::fromStdString(m_text) + '\n'; }

private:
    void AddText(const QString& strText);
    void AddQuoted(const char* pszText, std::size_t nSize);
    void Open(char chBracket);
    void Next();
    void Close(char chBracket);

    std::string m_text;             // to which characters are added more quickly than to a QByteArray
    std::string m_strBreak = ",\n"; // what lies before an element, without the comma before the first
    bool m_bFirst = true;
};

} // namespace LocalConfigClient
