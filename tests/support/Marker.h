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
