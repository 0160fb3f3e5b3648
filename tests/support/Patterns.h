#pragma once

#include <QLineEdit>
#include <QString>
#include <QValidator>

/// What a field's validator makes of a text.
inline QValidator::State Validate(const QLineEdit* pEdit, QString strText)
{
    int nPosition = strText.size();
    return pEdit->validator()->validate(strText, nPosition);
}
