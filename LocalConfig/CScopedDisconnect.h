#pragma once

#include <QObject>

namespace LocalConfig
{

/// Takes one connection away for as long as it lives, so that a change made by the program does not come back as if
/// the user had made it. Other receivers of the signal still hear it, unlike with blocked signals.
template <class Sender, class Signal, class Receiver, class Slot>
class CScopedDisconnect
{
public:
    CScopedDisconnect(Sender* pSender, Signal signal, Receiver* pReceiver, Slot slot)
        : m_pSender(pSender)
        , m_signal(signal)
        , m_pReceiver(pReceiver)
        , m_slot(slot)
    {
        QObject::disconnect(m_pSender, m_signal, m_pReceiver, m_slot);
    }

    ~CScopedDisconnect() { QObject::connect(m_pSender, m_signal, m_pReceiver, m_slot); }

    CScopedDisconnect(const CScopedDisconnect&) = delete;
    CScopedDisconnect& operator=(const CScopedDisconnect&) = delete;

private:
    Sender* m_pSender;
    Signal m_signal;
    Receiver* m_pReceiver;
    Slot m_slot;
};

} // namespace LocalConfig
