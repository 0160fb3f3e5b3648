#pragma once

#include <UICommonModule/UICommonModuleExport.h>

#include <QByteArray>
#include <QString>

namespace UICommonMdl
{

/// What a program's user names for its output.
class UICOMMONMODULE_EXPORT COutputFile
{
public:
    /// Replaces a file, see CAtomicFile; a device, a pipe and what the program's standard output goes to get the bytes.
    /// \return as CAtomicFile::Write
    static int Write(const QString& strFile, const QByteArray& content);
};

} // namespace UICommonMdl
