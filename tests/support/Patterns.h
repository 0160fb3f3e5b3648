#pragma once

#include <QLineEdit>
#include <QSet>
#include <QString>
#include <QValidator>
#include <QtTest>

#include <functional>

/// What a field's validator makes of a text.
inline QValidator::State Validate(const QLineEdit* pEdit, QString strText)
{
    int nPosition = strText.size();
    return pEdit->validator()->validate(strText, nPosition);
}

/// Holds a field against every number from 0 to 100000: a number is complete when \a complete says so, can be left in
/// the field unfinished when it begins a complete one, and cannot be typed otherwise.
inline void CheckEveryNumber(const QLineEdit* pEdit, const std::function<bool(int)>& complete)
{
    constexpr int nLast = 100000;
    QSet<QString> setBeginnings;
    for (int n = 0; n <= nLast; ++n)
    {
        if (complete(n))
        {
            const QString strNumber = QString::number(n);
            for (int nLength = 1; nLength <= strNumber.size(); ++nLength)
            {
                setBeginnings.insert(strNumber.left(nLength));
            }
        }
    }
    for (int n = 0; n <= nLast; ++n)
    {
        const QString strNumber = QString::number(n);
        const QValidator::State eExpected = complete(n)                         ? QValidator::Acceptable
                                            : setBeginnings.contains(strNumber) ? QValidator::Intermediate
                                                                                : QValidator::Invalid;
        QVERIFY2(Validate(pEdit, strNumber) == eExpected, qPrintable(strNumber));
    }
}
