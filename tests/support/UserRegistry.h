#pragma once

#include <QCoreApplication>

#include <windows.h>

/// While it lives, a key of the test's own stands for the user's part of the registry.
class CUserRegistry
{
public:
    CUserRegistry()
        : m_path((QStringLiteral("Software\\LocalConfigTests\\") + QCoreApplication::applicationName()).toStdWString())
    {
        HKEY hOwn = nullptr;
        ::RegCreateKeyExW(HKEY_CURRENT_USER, m_path.c_str(), 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &hOwn, nullptr);
        ::RegOverridePredefKey(HKEY_CURRENT_USER, hOwn);
        ::RegCloseKey(hOwn);
    }
    ~CUserRegistry()
    {
        ::RegOverridePredefKey(HKEY_CURRENT_USER, nullptr);
        ::RegDeleteTreeW(HKEY_CURRENT_USER, m_path.c_str());
    }

private:
    Q_DISABLE_COPY(CUserRegistry)

    std::wstring m_path;
};
