#pragma once

#include <QByteArray>
#include <QString>

class QFile;
class QFileDevice;

namespace UICommonMdl
{

/// What the operating systems do differently below CAtomicFile and CGrowingFile. Every int is a CErrorCode. A file that
/// is opened here does not know its name. Where programs can keep a file to themselves, those that do are waited for,
/// but not longer than a second; InUse says that they have not let go of it.

void ClearSystemError();

/// The last failure as a CErrorCode; never Success.
int GetSystemError();

/// Opens a regular file, unbuffered. Never waits: a pipe or a device is not opened.
/// \return Success; FileMissing only where nothing of that name exists; Unreadable for anything that is no regular
///         file, a link to nothing included; else what GetSystemError makes of the failure
int OpenToRead(const QString& strFile, QFile& file);

/// Makes an empty file under a name that nobody has yet, unbuffered; a link of that name is not followed.
/// \return Success, FileExists, or what GetSystemError makes of the failure
int OpenNew(const QString& strFile, QFile& file);

/// Whether what has a name takes bytes one after the other and keeps none to be replaced: a device, a pipe, or what
/// this program's standard output goes to.
bool IsStream(const QString& strFile);

/// Opens a stream to be written, unbuffered. Waits until somebody reads a pipe.
/// \return Success or what GetSystemError makes of the failure
int OpenStream(const QString& strFile, QFile& file);

/// Opens a file, made when it is missing, and takes the system's lock on it, which goes when the file is closed. Where
/// the system has such, its folder is locked, too, and stays open: a file can be removed while somebody holds it.
/// A link or a pipe of that name, on which nobody can hold a lock, and a file of somebody else's that this user cannot
/// write and nobody holds, are replaced.
/// \return Success; Locked when another process, or this one, holds it; else what GetSystemError makes of the failure
int OpenLocked(const QString& strFile, QFile& file, QFile& folder);

/// Whether a name still stands for an open file. Somebody may have removed or replaced it meanwhile.
bool IsNameOf(const QString& strFile, const QFile& file);

/// Finds where a chain of links ends, whether or not something is there; a file that is no link is its own target.
/// \return Success; NotAFile for a chain without an end; else what GetSystemError makes of the failure
int FollowLinks(const QString& strFile, QString& strTarget);

/// The path by which the system itself calls a file, which need not be there: without what it overlooks in a name, and
/// with the long name for a short one.
QString GetRealPath(const QString& strFile);

/// Whether two names stand for one file or folder that is there.
bool IsSameFile(const QString& strOne, const QString& strOther);

/// Whether what has a name may be written over; a link of that name is followed.
/// \return Success, also where nothing has that name; NotAFile; else what GetSystemError makes of the failure
int CheckReplaceable(const QString& strFile, bool& bExists);

/// Gives an open file the mode of another one, and its owner and group as far as the system lets this user; where files
/// have access lists, its list. A model that is missing, or is no regular file, says nothing.
int CopyAttributes(const QString& strModel, QFile& file);

/// Gives a file a name in the same folder, from which an older file of that name goes. A link of that name is replaced
/// and not followed.
int MoveOver(const QString& strFrom, const QString& strTo);

/// Removes a file, or a link and not what it leads to.
int RemoveFile(const QString& strFile);

/// Gives a file's content a second name that nobody has yet.
int Link(const QString& strFile, const QString& strName);

/// Writes all of it to an unbuffered file.
/// \return CErrorCode::Success or what GetSystemError makes of the failure
int WriteAll(QFileDevice& file, const QByteArray& content);

/// Waits until an open file's data is on the disk.
bool FlushFile(int nHandle);

/// Waits until the names in a folder are on the disk.
bool FlushFolder(const QString& strFolder);

} // namespace UICommonMdl
