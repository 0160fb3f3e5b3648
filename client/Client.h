#pragma once

#include "CommandLine.h"

#include <QCoreApplication>

class QApplication;

namespace LocalConfigClient
{

class ConfigService;
struct Settings;

/// The client as a program: carries out a command line that has been understood.
class Client
{
    Q_DECLARE_TR_FUNCTIONS(Client)

public:
    explicit Client(const CommandLine& commandLine);

    /// Carries out an action that needs no display: Dump, Import, Export, Get, Set, ShowSchema.
    /// \return the program's exit code
    int RunWithoutDisplay();

    /// Opens the window, or renders the dialog.
    /// \return the program's exit code
    int Run(QApplication& application);

    /// Whether an action needs a display of some kind.
    static bool NeedsDisplay(CommandLine::Action eAction);

    /// One line on the standard error output.
    static void Complain(const QString& strText);

private:
    bool EnterDataFolder();
    bool MakeDataFolder() const;
    bool MayWriteFile(const ConfigService& service) const;
    int ImportSettings() const;
    int WriteSettings() const;
    int PrintSetting(const ConfigService& service) const;
    bool ApplyChanges(Settings& settings) const;
    int ChangeSettings() const;
    int WriteFile(const QByteArray& content) const;
    void SettleSkinAndLanguage() const;
    static void ApplyLook(QApplication& application);
    int OpenWindow();
    int TakeScreenshot();

    CommandLine m_commandLine;
};

} // namespace LocalConfigClient
