#include "JsonText.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>
#include <string>

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

bool IsPlain(QChar ch)
{
    return ch.unicode() >= ' ' && ch.unicode() <= '~' && ch != QLatin1Char('"') && ch != QLatin1Char('\\');
}

class Writer
{
public:
    void Add(const QVariant& value)
    {
        switch (int(value.userType()))
        {
        case QMetaType::QVariantMap: {
            const QVariantMap map = value.toMap();
            Open('{');
            for (auto it = map.cbegin(); it != map.cend(); ++it)
            {
                Next();
                AddText(it.key());
                m_text += ": ";
                Add(it.value());
            }
            Close('}');
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
            m_text += std::to_string(value.toLongLong());
            break;
        case QMetaType::QString:
            AddText(value.toString());
            break;
        case QMetaType::Bool:
            m_text += value.toBool() ? "true" : "false";
            break;
        default:
            m_text += ToScalar(value).constData();
        }
    }

    QByteArray GetText() const { return QByteArray::fromStdString(m_text); }

private:
    /// Most texts are plain, and then this is far quicker than Qt's form.
    void AddText(const QString& strText)
    {
        if (!std::all_of(strText.begin(), strText.end(), IsPlain))
        {
            m_text += ToScalar(strText).constData();
            return;
        }
        m_text += '"';
        for (const QChar ch : strText)
        {
            m_text += ch.toLatin1();
        }
        m_text += '"';
    }

    void Open(char chBracket)
    {
        m_text += chBracket;
        m_text += '\n';
        ++m_nDepth;
        m_bFirst = true;
    }

    void Next()
    {
        m_text += m_bFirst ? "" : ",\n";
        m_bFirst = false;
        m_text.append(g_nIndent * m_nDepth, ' ');
    }

    void Close(char chBracket)
    {
        m_text += m_bFirst ? "" : "\n";
        m_bFirst = false;
        --m_nDepth;
        m_text.append(g_nIndent * m_nDepth, ' ');
        m_text += chBracket;
    }

    std::string m_text; // to which characters are added more quickly than to a QByteArray
    std::size_t m_nDepth = 0;
    bool m_bFirst = true;
};

} // namespace

QByteArray ToJsonText(const QVariant& value)
{
    Writer writer;
    writer.Add(value);
    return writer.GetText() + '\n';
}

} // namespace LocalConfigClient
