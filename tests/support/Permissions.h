#pragma once

#include <QFile>

#ifdef Q_OS_WIN
#include <QDir>

#include <windows.h>

#include <sddl.h> // needs windows.h
#endif

/// What the owner may do with a file or a folder. Windows has no modes, but an access list can say the same.
inline bool SetPermissions(const QString& strPath, QFile::Permissions permissions)
{
#ifdef Q_OS_WIN
    DWORD nRights = READ_CONTROL | WRITE_DAC | SYNCHRONIZE;
    nRights |= permissions.testFlag(QFile::ReadOwner) ? FILE_GENERIC_READ : 0;
    nRights |= permissions.testFlag(QFile::WriteOwner) ? FILE_GENERIC_WRITE | FILE_DELETE_CHILD | DELETE : 0;
    nRights |= permissions.testFlag(QFile::ExeOwner) ? FILE_GENERIC_EXECUTE : 0;
    const std::wstring list = QStringLiteral("D:P(A;;0x%1;;;WD)").arg(nRights, 0, 16).toStdWString();
    PSECURITY_DESCRIPTOR pDescriptor = nullptr;
    const bool bSet = ::ConvertStringSecurityDescriptorToSecurityDescriptorW(list.c_str(), SDDL_REVISION_1,
                                                                             &pDescriptor, nullptr) != 0 &&
                      ::SetFileSecurityW(QDir::toNativeSeparators(strPath).toStdWString().c_str(),
                                         DACL_SECURITY_INFORMATION, pDescriptor) != 0;
    ::LocalFree(pDescriptor);
    return bSet;
#else
    return QFile::setPermissions(strPath, permissions);
#endif
}

/// A file that nobody can read while this lives: by its mode, on Windows because a program keeps it to itself.
class CUnreadable
{
public:
    explicit CUnreadable(const QString& strFile)
#ifdef Q_OS_WIN
        : m_hFile(::CreateFileW(QDir::toNativeSeparators(strFile).toStdWString().c_str(), GENERIC_READ, 0, nullptr,
                                OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr))
    {}
    ~CUnreadable()
    {
        ::CloseHandle(m_hFile);
    }
#else
        : m_strFile(strFile)
        , m_before(QFile::permissions(strFile))
    {
        QFile::setPermissions(m_strFile, QFile::WriteOwner);
    }
    ~CUnreadable()
    {
        QFile::setPermissions(m_strFile, m_before);
    }
#endif

private:
    Q_DISABLE_COPY(CUnreadable)

#ifdef Q_OS_WIN
    HANDLE m_hFile;
#else
    QString m_strFile;
    QFile::Permissions m_before;
#endif
};
