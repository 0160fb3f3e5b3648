#include "COutputFile.h"

#include "CAtomicFile.h"
#include "CErrorCode.h"
#include "FileSystem.h"

#include <QFile>

namespace UICommonMdl
{

int COutputFile::Write(const QString& strFile, const QByteArray& content)
{
    if (!IsStream(strFile))
    {
        return CAtomicFile::Write(strFile, content);
    }
    QFile file;
    const int nOpened = OpenStream(strFile, file);
    return nOpened == CErrorCode::Success ? WriteAll(file, content) : nOpened;
}

} // namespace UICommonMdl
