#pragma once

#include <UICommonModule/UICommonModuleExport.h>

#include <QByteArray>
#include <QString>

namespace UICommonMdl
{

/// Whole files that are either the old or the new one, whatever happens in between.
class UICOMMONMODULE_EXPORT CAtomicFile
{
public:
    /// What a file that is to be written may take the place of.
    enum Target
    {
        FollowLink,  ///< a file, or the file that a link of that name leads to; the link stays
        ReplaceName, ///< whatever has that name, a link itself included
        NewName      ///< nothing
    };

    /// The largest file that Read takes, in bytes.
    static constexpr qint64 g_nMaxSize = qint64(64) * 1024 * 1024;

    /// Replaces a file, or makes a new one: temporary file in the same folder, flush to the disk, rename over the old
    /// file, flush of the folder. An existing file keeps its permissions, and its owner where the system lets this
    /// user. After a failure the old file is as it was and no temporary file is left.
    ///
    /// \param strModel  a file whose permissions and owner a new one gets; that file need not exist
    /// \return CErrorCode::Success, or DiskFull, NoPermission, InUse, FolderMissing, IoError, NotAFile, FileExists (of
    ///         NewName); NotYetSafe when the new file stands there and only its name may not be on the disk yet
    static int Write(const QString& strFile, const QByteArray& content, Target eTarget = FollowLink,
                     const QString& strModel = {});

    /// Write with FollowLink, whereby the file that is replaced stays under a second name. That name loses what it
    /// stood for only when the new file is complete.
    /// \param before  the content that is replaced, see Keep
    /// \return as Write
    static int WriteAndKeep(const QString& strFile, const QByteArray& content, const QString& strName,
                            const QByteArray& before);

    /// Makes a file's content stay under a second name, which loses what it stood for, when the file is replaced by
    /// Write. The content is on the disk then; the name is with the next flush of the folder, such as that of Write.
    /// \param content  the content, for file systems where a file has one name
    /// \return as Write
    static int Keep(const QString& strFile, const QByteArray& content, const QString& strName);

    /// Waits until a file is on the disk, such as one that a Write with NotYetSafe has left.
    /// \return CErrorCode::Success or NotYetSafe
    static int Flush(const QString& strFile);

    /// Reads a regular file; anything else (a folder, a device, a pipe) is not opened.
    /// \return CErrorCode::Success, or NoPermission, InUse, Unreadable, IoError, TooLarge; FileMissing only where
    ///         nothing of that name exists. \a content is then empty
    static int Read(const QString& strFile, QByteArray& content);

    /// Removes a file; a folder stays.
    /// \return CErrorCode::Success, also when there is no such file, or NoPermission, InUse, IoError, NotAFile
    static int Remove(const QString& strFile);

    /// Where a chain of links ends, whether or not something is there, by the name that the system itself uses; a file
    /// that is no link is its own target.
    static QString GetTarget(const QString& strFile);

    /// Whether two names stand for one file or folder that is there.
    static bool IsSame(const QString& strOne, const QString& strOther);

    /// Removes what killed writers of a file have left beside it. For a caller who knows that nobody is writing now.
    static void RemoveLeftovers(const QString& strFile);

    /// The same for all files whose paths begin with a text, such as those that Keep makes of one. Links are not
    /// followed.
    static void RemoveLeftoversOfNames(const QString& strBegin);
};

} // namespace UICommonMdl
