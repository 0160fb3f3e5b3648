#include "CAudioOutput.h"

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

} // namespace UICommonMdl
