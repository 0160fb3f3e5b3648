#pragma once

#include <QObject>

#include <memory>

namespace LocalConfigClient
{

/// The operating system's wish that the client ends: SIGTERM, SIGINT and SIGHUP, or what the console tells on Windows,
/// and the end of the desktop session. While such an object lives, of which there is one at most, the wish is passed on
/// instead of ending the program at once; a second one ends it all the same.
class SystemSignals : public QObject
{
    Q_OBJECT

public:
    SystemSignals();
    ~SystemSignals() override;

    /// Makes a limit of the file size the failure of a write, and not the end of the program.
    static void SurviveFileSizeLimit();

signals:
    /// In the thread that made the object.
    void SignalEnd();

private:
    class Watch;

    std::unique_ptr<Watch> m_pWatch;
};

} // namespace LocalConfigClient
