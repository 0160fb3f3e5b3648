#include "JsonText.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>

namespace LocalConfigClient
{

namespace
{

constexpr std::size_t g_nIndent = 4;

/// A text, a number or a literal in Qt's form.
QByteArray ToScalar(const QVariant& value)
{
    const QByteArray array = QJsonDocument(QJsonArray{QJsonValue::fromVariant(value)}).toJson(QJsonDocument::Compact);
    return array.mid(1, array.size() - 2);
}

template <class Text>
bool IsPlain(const Text& text)
{
    return std::all_of(text.begin(), text.end(), [](auto character) {
        const QChar ch(character);
        return ch >= QLatin1Char(' ') && ch <= QLatin1Char('~') && ch != QLatin1Char('"') && ch != QLatin1Char('\\');
    });
}

} // namespace

void JsonWriter::AddKey(QLatin1String strKey)
{
    Next();
    AddQuoted(strKey.data(), std::size_t(strKey.size()));
    m_text += ": ";
}

void JsonWriter::AddKey(const QString& strKey)
{
    Next();
    AddText(strKey);
    m_text += ": ";
}

bool JsonWriter::AddPlain(const std::string& strText)
{
    const bool bPlain = IsPlain(strText);
    if (bPlain)
    {
        AddQuoted(strText.data(), strText.size());
    }
    return bPlain;
}

void JsonWriter::Add(const QVariant& value)
{
    switch (int(value.userType()))
    {
    case QMetaType::QVariantMap: {
        const QVariantMap map = value.toMap();
        OpenObject();
        for (auto it = map.cbegin(); it != map.cend(); ++it)
        {
            AddKey(it.key());
            Add(it.value());
        }
        CloseObject();
        break;
    }
    case QMetaType::QVariantList:
        Open('[');
        for (const QVariant& element : value.toList())
        {
            Next();
            Add(element);
        }
        Close(']');
        break;
    case QMetaType::LongLong:
        Add(value.toLongLong());
        break;
    case QMetaType::QString:
        AddText(value.toString());
        break;
    default:
        m_text += ToScalar(value).constData();
    }
}

void JsonWriter::AddText(const QString& strText)
{
    if (IsPlain(strText))
    {
        const QByteArray text = strText.toLatin1();
        AddQuoted(text.constData(), std::size_t(text.size()));
    }
    else
    {
        m_text += ToScalar(strText).constData();
    }
}

void JsonWriter::AddQuoted(const char* pszText, std::size_t nSize)
{
    m_text += '"';
    m_text.append(pszText, nSize);
    m_text += '"';
}

void JsonWriter::Open(char chBracket)
{
    m_text += chBracket;
    m_strBreak.append(g_nIndent, ' ');
    m_bFirst = true;
}

void JsonWriter::Next()
{
    m_text.append(m_strBreak, m_bFirst ? 1 : 0, std::string::npos);
    m_bFirst = false;
}

void JsonWriter::Close(char chBracket)
{
    m_strBreak.resize(m_strBreak.size() - g_nIndent);
    m_bFirst = true;
    Next();
    m_text += chBracket;
}

} // namespace LocalConfigClient
