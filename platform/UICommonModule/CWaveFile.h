#pragma once

#include <UICommonModule/UICommonModuleExport.h>

#include <QByteArray>
#include <QString>

namespace UICommonMdl
{

/// WAV files. To be asked before a QSound is made, whose reader believes whatever sizes a file names: it asks for that
/// much memory, and a damaged file ends the client.
class UICOMMONMODULE_EXPORT CWaveFile
{
public:
    /// Whether a regular file holds a complete sound of a size that may be kept in memory.
    static bool IsPlayableFile(const QString& strFile);

    /// Whether a file's content is a complete sound: uncompressed samples, all of them there.
    static bool IsPlayable(const QByteArray& content);
};

} // namespace UICommonMdl
