#pragma once

#include <QFile>

#ifdef Q_OS_WIN
#include <QDir>

#include <thread>

#include <windows.h>

#include <sddl.h> // needs windows.h
#endif

#ifdef Q_OS_WIN

/// Windows has no modes, but an access list can say the same. The handle needs the right WRITE_DAC.
inline bool SetPermissions(HANDLE hFile, QFile::Permissions permissions)
{
    DWORD nRights = READ_CONTROL | WRITE_DAC | SYNCHRONIZE;
    nRights |= permissions.testFlag(QFile::ReadOwner) ? FILE_GENERIC_READ : 0;
    nRights |= permissions.testFlag(QFile::WriteOwner) ? FILE_GENERIC_WRITE | FILE_DELETE_CHILD | DELETE : 0;
    nRights |= permissions.testFlag(QFile::ExeOwner) ? FILE_GENERIC_EXECUTE : 0;
    const std::wstring list = QStringLiteral("D:P(A;;0x%1;;;WD)").arg(nRights, 0, 16).toStdWString();
    PSECURITY_DESCRIPTOR pDescriptor = nullptr;
    const bool bSet = ::ConvertStringSecurityDescriptorToSecurityDescriptorW(list.c_str(), SDDL_REVISION_1,
                                                                             &pDescriptor, nullptr) != 0 &&
                      ::SetKernelObjectSecurity(hFile, DACL_SECURITY_INFORMATION, pDescriptor) != 0;
    ::LocalFree(pDescriptor);
    return bSet;
}

inline HANDLE OpenForPermissions(const QString& strPath)
{
    return ::CreateFileW(QDir::toNativeSeparators(strPath).toStdWString().c_str(), READ_CONTROL | WRITE_DAC,
                         FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_EXISTING,
                         FILE_FLAG_BACKUP_SEMANTICS, nullptr);
}

#endif

/// What the owner may do with a file or a folder.
inline bool SetPermissions(const QString& strPath, QFile::Permissions permissions)
{
#ifdef Q_OS_WIN
    const HANDLE hFile = OpenForPermissions(strPath);
    const bool bSet = SetPermissions(hFile, permissions);
    ::CloseHandle(hFile);
    return bSet;
#else
    return QFile::setPermissions(strPath, permissions);
#endif
}

/// A file or folder with other permissions while this lives.
class CPermissions
{
public:
    CPermissions(const QString& strPath, QFile::Permissions permissions)
#ifdef Q_OS_WIN
        : m_hFile(OpenForPermissions(strPath)) // Wine opens nothing that may not be read
    {
        SetPermissions(m_hFile, permissions);
    }
    ~CPermissions()
    {
        SetPermissions(m_hFile, g_all);
        ::CloseHandle(m_hFile);
    }
#else
        : m_strPath(strPath)
    {
        SetPermissions(m_strPath, permissions);
    }
    ~CPermissions()
    {
        SetPermissions(m_strPath, g_all);
    }
#endif

private:
    Q_DISABLE_COPY(CPermissions)

    static constexpr QFile::Permissions g_all = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;
#ifdef Q_OS_WIN
    HANDLE m_hFile;
#else
    QString m_strPath;
#endif
};

#ifdef Q_OS_WIN

/// The access list of a file as text.
inline QString GetAccessList(const QString& strPath)
{
    const std::wstring path = QDir::toNativeSeparators(strPath).toStdWString();
    DWORD nSize = 0;
    ::GetFileSecurityW(path.c_str(), DACL_SECURITY_INFORMATION, nullptr, 0, &nSize);
    QByteArray descriptor(int(nSize), '\0');
    LPWSTR pszText = nullptr;
    if (::GetFileSecurityW(path.c_str(), DACL_SECURITY_INFORMATION, descriptor.data(), nSize, &nSize) == 0 ||
        ::ConvertSecurityDescriptorToStringSecurityDescriptorW(descriptor.data(), SDDL_REVISION_1,
                                                               DACL_SECURITY_INFORMATION, &pszText, nullptr) == 0)
    {
        return {};
    }
    const QString strText = QString::fromWCharArray(pszText);
    ::LocalFree(pszText);
    return strText;
}

/// A file that this program keeps to itself, as scanners and backups do; for some milliseconds, or as long as this
/// lives.
class CHeldFile
{
public:
    explicit CHeldFile(const QString& strFile, DWORD nTime = INFINITE)
        : m_hFile(::CreateFileW(QDir::toNativeSeparators(strFile).toStdWString().c_str(), GENERIC_READ, 0, nullptr,
                                OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr))
        , m_hEnd(::CreateEventW(nullptr, TRUE, FALSE, nullptr))
        , m_thread([this, nTime] {
            ::WaitForSingleObject(m_hEnd, nTime);
            ::CloseHandle(m_hFile);
        })
    {}
    ~CHeldFile()
    {
        ::SetEvent(m_hEnd);
        m_thread.join();
        ::CloseHandle(m_hEnd);
    }

private:
    Q_DISABLE_COPY(CHeldFile)

    HANDLE m_hFile;
    HANDLE m_hEnd;
    std::thread m_thread;
};

#endif
