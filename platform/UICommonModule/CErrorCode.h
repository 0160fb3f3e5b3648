#pragma once

#include <UICommonModule/UICommonModuleExport.h>

#include <QCoreApplication>
#include <QString>

namespace UICommonMdl
{

/// Result codes of the client's services and their descriptions.
class UICOMMONMODULE_EXPORT CErrorCode
{
    Q_DECLARE_TR_FUNCTIONS(CErrorCode)

public:
    /// The results of everything that touches a disk.
    enum Code : int
    {
        Unknown = 0,          ///< any number that no code has
        Success = 1,          ///< done
        DiskFull = 2,         ///< no space left on the device, or a quota or size limit is used up
        NoPermission = 3,     ///< this user may not read or write the file or folder, or the disk is read-only
        Locked = 4,           ///< another client uses the same data folder
        FolderMissing = 5,    ///< the folder does not exist
        IoError = 6,          ///< the device reported any other failure
        Damaged = 7,          ///< the document cannot be understood
        Unreadable = 8,       ///< the document exists but cannot be read, so it must not be overwritten
        ChangedElsewhere = 9, ///< another program has changed the document since it was read
        FileMissing = 10,     ///< the file does not exist
        NotYetSafe = 11,      ///< the file is written, but a power cut may still undo that
        TooLarge = 12,        ///< the file is larger than any that the client would write
        FileExists = 13,      ///< there is a file of that name already
        NotAFile = 14,        ///< a folder or a device has the name that a file should have
        InUse = 15            ///< another program keeps the file to itself
    };

    /// A text extended by what is known of a code: "Failed to save config: the disk is full (code 2)".
    /// \param bDescription  append the description of the code
    /// \param bCode         append its number
    /// \return the text alone for Success
    static QString GetErroCodeInfor(const QString& strText, int nCode, bool bDescription, bool bCode);

    /// The description alone. Every code has one.
    static QString GetDescription(int nCode);
};

} // namespace UICommonMdl
