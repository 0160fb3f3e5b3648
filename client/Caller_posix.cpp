#include "Caller.h"

#include <QFile>

#include <cstdio>

namespace LocalConfigClient
{

QStringList GetArguments(int argc, char* argv[])
{
    QStringList listArguments;
    for (int n = 1; n < argc; ++n)
    {
        listArguments += QString::fromLocal8Bit(argv[n]);
    }
    return listArguments;
}

void SetEnvironment(const char* pszName, const QString& strValue)
{
    qputenv(pszName, QFile::encodeName(strValue));
}

bool Print(const QByteArray& content)
{
    const std::size_t nSize = std::size_t(content.size());
    return std::fwrite(content.constData(), 1, nSize, stdout) == nSize && std::fflush(stdout) == 0;
}

void PrintText(const QString& strText)
{
    std::fputs(qUtf8Printable(strText), stdout);
}

void PrintError(const QString& strText)
{
    std::fputs(qUtf8Printable(strText), stderr);
}

} // namespace LocalConfigClient
