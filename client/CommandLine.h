#pragma once

#include <QCoreApplication>
#include <QList>
#include <QPair>
#include <QSet>
#include <QString>
#include <QStringList>

namespace LocalConfigClient
{

/// What the command line asks for.
struct CommandLine
{
    Q_DECLARE_TR_FUNCTIONS(CommandLine)

public:
    enum Action
    {
        OpenWindow,
        Screenshot,
        Dump,
        Import,
        Export,
        Get,
        Set,
        ShowSchema,
        ShowHelp,
        ShowVersion
    };

    Action eAction = OpenWindow;
    QString strFile;                            ///< of Screenshot, Import and Export
    QString strSetting;                         ///< of Get: the setting's name
    QList<QPair<QString, QString>> listChanges; ///< of Set: names and values
    int nSection = -1;                          ///< navigation index, 0 to 8; -1 when none is named
    QString strSkin;                            ///< empty: what Localcfg.ini names
    QString strLanguage;                        ///< empty: what Localcfg.ini names
    QSet<int> setMissingRights;
    QString strHost; ///< of the platform server; empty without one
    quint16 nPort = 0;
    QString strDataFolder; ///< empty: the user's own

    /// Understands the arguments that follow the program's name.
    /// \return false with one clear line in \a strError
    static bool Parse(const QStringList& listArguments, CommandLine& result, QString& strError);

    /// The text of --help.
    static QString GetHelp();
};

} // namespace LocalConfigClient
