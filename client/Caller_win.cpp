#include "Caller.h"

#include <cstdlib>
#include <string>

#include <windows.h>

#include <shellapi.h> // needs windows.h

namespace LocalConfigClient
{

namespace
{

/// One of the two outputs. A program with windows has no console of its own; it borrows that of whoever has started it
/// while it writes.
class Output
{
public:
    explicit Output(DWORD nStandard)
        : m_hOutput(::GetStdHandle(nStandard))
        , m_bBorrowed(::AttachConsole(ATTACH_PARENT_PROCESS) != 0)
    {
        if (!IsUsable())
        {
            m_hScreen = ::CreateFileW(L"CONOUT$", GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                      nullptr, OPEN_EXISTING, 0, nullptr);
            m_hOutput = m_hScreen;
        }
    }
    ~Output()
    {
        if (m_hScreen != INVALID_HANDLE_VALUE)
        {
            ::CloseHandle(m_hScreen);
        }
        if (m_bBorrowed)
        {
            ::FreeConsole();
        }
    }

    Output(const Output&) = delete;
    Output& operator=(const Output&) = delete;

    bool IsConsole() const
    {
        DWORD nMode = 0;
        return ::GetConsoleMode(m_hOutput, &nMode) != 0;
    }

    bool Write(const QByteArray& content) const
    {
        DWORD nWritten = 0;
        for (int nStart = 0; nStart < content.size(); nStart += int(nWritten))
        {
            const DWORD nRest = DWORD(content.size() - nStart);
            if (::WriteFile(m_hOutput, content.constData() + nStart, nRest, &nWritten, nullptr) == 0 || nWritten == 0)
            {
                return false;
            }
        }
        return true;
    }

    bool WriteText(const QString& strText) const
    {
        const std::wstring text = QString(strText).replace('\n', QLatin1String("\r\n")).toStdWString();
        if (IsConsole())
        {
            DWORD nWritten = 0;
            return ::WriteConsoleW(m_hOutput, text.data(), DWORD(text.size()), &nWritten, nullptr) != 0;
        }
        const UINT nConsole = ::GetConsoleOutputCP();
        const UINT nEncoding = nConsole == 0 ? UINT(CP_UTF8) : nConsole;
        const int nLength = int(text.size());
        const int nSize = ::WideCharToMultiByte(nEncoding, 0, text.data(), nLength, nullptr, 0, nullptr, nullptr);
        QByteArray content(nSize, '\0');
        ::WideCharToMultiByte(nEncoding, 0, text.data(), nLength, content.data(), nSize, nullptr, nullptr);
        return Write(content);
    }

private:
    /// A device may be a console that this program has nothing to do with.
    bool IsUsable() const
    {
        DWORD nWritten = 0;
        const DWORD nType = m_hOutput == nullptr ? DWORD(FILE_TYPE_UNKNOWN) : ::GetFileType(m_hOutput);
        return nType == FILE_TYPE_DISK || nType == FILE_TYPE_PIPE ||
               (nType == FILE_TYPE_CHAR && ::WriteFile(m_hOutput, "", 0, &nWritten, nullptr) != 0);
    }

    HANDLE m_hOutput;
    HANDLE m_hScreen = INVALID_HANDLE_VALUE;
    bool m_bBorrowed;
};

} // namespace

QStringList GetArguments(int /*argc*/, char* /*argv*/[])
{
    // Those of the C library have lost what is not in the code page.
    QStringList listArguments;
    int nCount = 0;
    LPWSTR* ppArguments = ::CommandLineToArgvW(::GetCommandLineW(), &nCount);
    for (int n = 1; n < nCount; ++n)
    {
        listArguments += QString::fromWCharArray(ppArguments[n]);
    }
    ::LocalFree(ppArguments);
    return listArguments;
}

void SetEnvironment(const char* pszName, const QString& strValue)
{
    ::_wputenv_s(QString::fromLatin1(pszName).toStdWString().c_str(), strValue.toStdWString().c_str());
}

bool Print(const QByteArray& content)
{
    const Output output(STD_OUTPUT_HANDLE);
    return output.IsConsole() ? output.WriteText(QString::fromUtf8(content)) : output.Write(content);
}

void PrintText(const QString& strText)
{
    Output(STD_OUTPUT_HANDLE).WriteText(strText);
}

void PrintError(const QString& strText)
{
    Output(STD_ERROR_HANDLE).WriteText(strText);
}

} // namespace LocalConfigClient
