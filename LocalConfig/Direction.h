#pragma once

#include <QString>

class QWidget;

namespace LocalConfig
{

/// Where the application is laid out from right to left: what Qt leaves as it is.

/// Exchanges left and right margins in a form, which are given for the other direction, and puts numbers where texts
/// start.
void MirrorForm(QWidget* pForm);

/// A text of numbers and signs, such as "1280*800", that reads from left to right in every language.
QString KeepOrder(const QString& strText);

} // namespace LocalConfig
