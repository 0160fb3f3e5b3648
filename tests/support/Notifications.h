#pragma once

#include <KvGui/KvMessageNotify.h>

#include <QSignalSpy>

/// A spy on the client's notification bar.
class CNotificationSpy : public QSignalSpy
{
public:
    CNotificationSpy()
        : QSignalSpy(KVGUI::KvSingleton<KVGUI::KvMessageNotify>::Instance(),
                     &KVGUI::KvMessageNotify::SignalTextNotificationAdded)
    {}
};
