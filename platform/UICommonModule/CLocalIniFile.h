#pragma once

#include <UICommonModule/UICommonModuleExport.h>

#include <QCoreApplication>
#include <QString>
#include <QVariant>

namespace UICommonMdl
{

/// The client's ini files. A bare file name lies in the client's working folder. For the GUI thread.
class UICOMMONMODULE_EXPORT CLocalIniFile
{
    Q_DECLARE_TR_FUNCTIONS(CLocalIniFile)

public:
    /// Sets one key and leaves every other byte of the file as it is: keys, comments, order, line ends. The file is
    /// replaced as a whole (see CAtomicFile), made when it is missing, and not touched when the value stands there
    /// already. Group and key are case-sensitive. QSettings reads the value back as it was given; a bool is written
    /// as "true" or "false". Group and key consist of ASCII letters, digits, '_', '-' and '.'; the value is one that
    /// QVariant turns into a text.
    /// \return false when a name or the value is none, or the file cannot be read or written; it is then as it was, and
    ///         the operator is notified of the file
    static bool WriteValue(const QString& strGroup, const QString& strKey, const QVariant& value,
                           const QString& strFileName);

    /// The text of a key; \a strDefault when file, group or key is missing, or what has the file's name is no file.
    static QString ReadValue(const QString& strGroup, const QString& strKey, const QString& strDefault,
                             const QString& strFileName);
};

} // namespace UICommonMdl
