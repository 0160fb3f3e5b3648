// Localcfg.ini: a value goes into whatever file stands there, comes back as it was, and every other line stays.

#include "Fuzz.h"

#include <UICommonModule/CLocalIniFile.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

using UICommonMdl::CLocalIniFile;

namespace
{

const QString g_strFile = QStringLiteral("Localcfg.ini");
const QByteArray g_byteOrderMark = "\xef\xbb\xbf";

/// In the memory where there is a file system for that, since every run flushes a file.
void EnterScratchFolder()
{
    static const QString strMemory = QStringLiteral("/dev/shm");
    static const QTemporaryDir folder((QDir(strMemory).exists() ? strMemory : QDir::tempPath()) + "/fuzz-XXXXXX");
    QDir::setCurrent(folder.path());
}

void Put(const QByteArray& content)
{
    QFile file(g_strFile);
    DEMAND(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
}

QByteArray Get()
{
    QFile file(g_strFile);
    DEMAND(file.open(QIODevice::ReadOnly));
    return file.readAll();
}

QList<QByteArray> Lines(const QByteArray& content)
{
    QList<QByteArray> listLines = content.split('\n');
    for (int n = 0; n + 1 < listLines.size(); ++n)
    {
        listLines[n] += '\n';
    }
    if (listLines.last().isEmpty())
    {
        listLines.removeLast();
    }
    return listLines;
}

bool IsKeyLine(const QByteArray& line)
{
    const int nEqual = line.indexOf('=');
    return nEqual > 0 && line.left(nEqual).trimmed() == "version";
}

/// Whether the lines are those from before, but for such as have the key and were replaced.
bool IsReplaced(const QList<QByteArray>& listBefore, const QList<QByteArray>& listAfter)
{
    for (int n = 0; n < listBefore.size(); ++n)
    {
        if (listBefore[n] != listAfter[n] && !(IsKeyLine(listBefore[n]) && IsKeyLine(listAfter[n])))
        {
            return false;
        }
    }
    return true;
}

/// Whether the lines are those from before, but for some that were put in at one place, the key's the last of them.
bool IsInserted(QList<QByteArray> listBefore, const QList<QByteArray>& listAfter, const char* pszLineEnd)
{
    if (!listBefore.isEmpty() && !listBefore.last().endsWith('\n'))
    {
        listBefore.last() += pszLineEnd;
    }
    const int nMore = listAfter.size() - listBefore.size();
    int nPlace = 0;
    while (nPlace < listBefore.size() && listBefore[nPlace] == listAfter[nPlace])
    {
        ++nPlace;
    }
    return nMore <= 3 && listBefore.mid(nPlace) == listAfter.mid(nPlace + nMore) &&
           IsKeyLine(listAfter[nPlace + nMore - 1]);
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize)
{
    EnterScratchFolder();
    // The file, and behind its last zero the value.
    const QByteArray input = Bytes(pData, nSize);
    const int nZero = input.lastIndexOf('\0');
    const QByteArray before = nZero < 0 ? input : input.left(nZero);
    const QString strValue = nZero < 0 ? QStringLiteral("White") : QString::fromUtf8(input.mid(nZero + 1));

    Put(before);
    CLocalIniFile::ReadValue("Skin", "version", "none", g_strFile);
    DEMAND(CLocalIniFile::WriteValue("Skin", "version", strValue, g_strFile));
    const QByteArray after = Get();
    DEMAND(CLocalIniFile::ReadValue("Skin", "version", "none", g_strFile) == strValue);

    DEMAND(after.startsWith(g_byteOrderMark) == before.startsWith(g_byteOrderMark));
    const int nMark = before.startsWith(g_byteOrderMark) ? g_byteOrderMark.size() : 0;
    const QList<QByteArray> listBefore = Lines(before.mid(nMark));
    const QList<QByteArray> listAfter = Lines(after.mid(nMark));
    DEMAND(listAfter.size() >= listBefore.size());
    DEMAND(listAfter.size() == listBefore.size()
               ? IsReplaced(listBefore, listAfter)
               : IsInserted(listBefore, listAfter, before.contains("\r\n") ? "\r\n" : "\n"));

    DEMAND(CLocalIniFile::WriteValue("Skin", "version", strValue, g_strFile));
    DEMAND(Get() == after);
    return 0;
}
