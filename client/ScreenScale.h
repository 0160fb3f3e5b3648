#pragma once

#include <QApplication>

#include <memory>

namespace LocalConfigClient
{

/// How large the client draws: as large as the system asks for, but sharp, and never so large that the buttons of the
/// settings dialog would be off the screen.
class ScreenScale
{
public:
    /// The factor that Qt draws with.
    /// \param fWanted  what the system asks for
    /// \param nHeight  of the screen, in its own pixels
    static qreal Choose(qreal fWanted, int nHeight);

    /// The application, which draws on each screen with the factor that has been chosen for it.
    static std::unique_ptr<QApplication> MakeApplication(int& nArguments, char** ppszArguments);
};

} // namespace LocalConfigClient
