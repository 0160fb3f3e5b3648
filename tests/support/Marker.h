#pragma once

#include <QCoreApplication>
#include <QTranslator>

/// While it lives, marks every text that is translated with its context: "context|text".
class CMarker : public QTranslator
{
public:
    CMarker() { QCoreApplication::installTranslator(this); }
    ~CMarker() override { QCoreApplication::removeTranslator(this); }

    bool isEmpty() const override { return false; }
    QString translate(const char* pszContext, const char* pszText, const char*, int) const override
    {
        return QString::fromLatin1(pszContext) + "|" + QString::fromLatin1(pszText);
    }
};

/// While it lives, marks every text of one context: "<text>".
class CContextMarker : public QTranslator
{
public:
    explicit CContextMarker(const char* pszContext)
        : m_pszContext(pszContext)
    {
        QCoreApplication::installTranslator(this);
    }
    ~CContextMarker() override { QCoreApplication::removeTranslator(this); }

    bool isEmpty() const override { return false; }
    QString translate(const char* pszContext, const char* pszText, const char*, int) const override
    {
        return qstrcmp(pszContext, m_pszContext) == 0 ? QStringLiteral("<%1>").arg(pszText) : QString();
    }

private:
    const char* m_pszContext;
};
