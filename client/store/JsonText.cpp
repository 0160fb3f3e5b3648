#include "JsonText.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>

namespace LocalConfigClient
{

namespace
{

constexpr int g_nIndent = 4;

/// A text, a number or a literal in Qt's form.
QByteArray ToScalar(const QVariant& value)
{
    const QByteArray array = QJsonDocument(QJsonArray{QJsonValue::fromVariant(value)}).toJson(QJsonDocument::Compact);
    return array.mid(1, array.size() - 2);
}

/// Most texts are plain, and then this is far quicker.
QByteArray ToText(const QString& strText)
{
    const bool bPlain = std::all_of(strText.begin(), strText.end(), [](QChar ch) {
        return ch.unicode() >= ' ' && ch.unicode() <= '~' && ch != QLatin1Char('"') && ch != QLatin1Char('\\');
    });
    return bPlain ? '"' + strText.toLatin1() + '"' : ToScalar(strText);
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
                m_text += ToText(it.key()) + ": ";
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
            m_text += QByteArray::number(value.toLongLong());
            break;
        case QMetaType::QString:
            m_text += ToText(value.toString());
            break;
        case QMetaType::Bool:
            m_text += value.toBool() ? "true" : "false";
            break;
        default:
            m_text += ToScalar(value);
        }
    }

    const QByteArray& GetText() const { return m_text; }

private:
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
        m_text += QByteArray(g_nIndent * m_nDepth, ' ');
    }

    void Close(char chBracket)
    {
        m_text += m_bFirst ? "" : "\n";
        m_bFirst = false;
        --m_nDepth;
        m_text += QByteArray(g_nIndent * m_nDepth, ' ');
        m_text += chBracket;
    }

    QByteArray m_text;
    int m_nDepth = 0;
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
