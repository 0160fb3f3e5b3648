#pragma once

#include <UICommonModule/CFileLock.h>

namespace LocalConfigClient
{

/// Keeps a second client of the same data folder from writing, and tells who the first one is.
class FolderLock
{
public:
    /// \param strFile  the file in the data folder that carries the lock
    explicit FolderLock(const QString& strFile)
        : m_lock(strFile)
    {}

    /// Takes the lock, at once or not at all. Taking it again does nothing.
    /// \return as UICommonMdl::CFileLock::Take
    int Take();

    bool IsHeld() const { return m_lock.IsHeld(); }

    /// "process 4711 on workstation-3", translated, for people; empty when the holder has not said so.
    QString GetHolder() const;

private:
    UICommonMdl::CFileLock m_lock;
};

} // namespace LocalConfigClient
