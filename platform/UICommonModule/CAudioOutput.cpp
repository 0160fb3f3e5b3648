#include "CAudioOutput.h"

#include <KvGui/KvMessageNotify.h>

#include <QAudioDeviceInfo>

#include <algorithm>

namespace UICommonMdl
{

bool CAudioOutput::IsAvailable()
{
    // ALSA names what it could open, whether or not there is anything behind it; sound effects go through the sound
    // server, whose device has no name while it does not answer.
    const QList<QAudioDeviceInfo> listDevices = QAudioDeviceInfo::availableDevices(QAudio::AudioOutput);
    return std::any_of(listDevices.begin(), listDevices.end(), [](const QAudioDeviceInfo& device) {
        return !device.deviceName().isEmpty() && device.realm() != QLatin1String("alsa");
    });
}

bool CAudioOutput::IsAvailableOrTell()
{
    static bool g_bTold = false;
    const bool bAvailable = IsAvailable();
    if (!bAvailable && !g_bTold)
    {
        KVGUI::KvSingleton<KVGUI::KvMessageNotify>::Instance()->AddTextNotification(
            tr("Sounds cannot be heard, there is no audio device."));
    }
    g_bTold = !bAvailable;
    return bAvailable;
}

} // namespace UICommonMdl
