#pragma once

#include <QDateTime>
#include <QString>

namespace LocalConfigClient
{

/// What the name of a picture or recording is made of.
struct MediaName
{
    int nFormat = 3;    ///< 0 time and channel number, 1 time and name, 2 number and time, otherwise name and time
    int nChannel = 1;   ///< counted from 1
    QString strChannel; ///< characters that file systems refuse are replaced
    QDateTime time;

    /// "Camera 01_20261121-140509-123", without suffix.
    QString GetBaseName() const;
};

} // namespace LocalConfigClient
