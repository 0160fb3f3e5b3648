#pragma once

#include <QFont>
#include <QString>

namespace LocalConfigClient
{

/// How the client's texts come to be read: their language, their direction and their letters.
class ClientTexts
{
public:
    /// Translates the client, the libraries that it is built on, and Qt's own menus and dialogs from now on; what has
    /// no translation stays English. What is laid out starts at the side where the language does.
    static void Translate(const QString& strLanguage);

    /// A font with the letters of all languages of the client, as large as the operator wants it: from the size that
    /// the skins are made for to half as much again. \param system  what the operator's system would take
    static QFont MakeFont(const QFont& system);
};

} // namespace LocalConfigClient
