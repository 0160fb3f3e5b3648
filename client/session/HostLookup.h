#pragma once

#include <QHostAddress>
#include <QObject>
#include <QVector>

#include <memory>

namespace LocalConfigClient
{

/// Looks up the addresses of a host without anybody ever waiting for the name server: neither the thread that asks nor
/// the end of the program, which leaves a look-up behind that is still under way.
class HostLookup : public QObject
{
    Q_OBJECT

public:
    explicit HostLookup(QObject* pParent = nullptr);
    ~HostLookup() override;

    /// Does nothing while a look-up is under way.
    void Start(const QString& strHost);

signals:
    /// In the order in which they are to be tried; empty when there are none.
    void SignalDone(const QVector<QHostAddress>& listAddresses);

private:
    struct SLink;

    void OnDone(const QVector<QHostAddress>& listAddresses);

    std::shared_ptr<SLink> m_pLink; // shared with the thread that looks up
    bool m_bRunning = false;
};

} // namespace LocalConfigClient
