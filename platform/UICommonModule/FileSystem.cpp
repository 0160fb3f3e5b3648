#include "FileSystem.h"

#include "CErrorCode.h"

#include <QFileDevice>

namespace UICommonMdl
{

int WriteAll(QFileDevice& file, const QByteArray& content)
{
    ClearSystemError();
    qint64 nWritten = 0;
    while (nWritten < content.size())
    {
        const qint64 nStep = file.write(content.constData() + nWritten, content.size() - nWritten);
        if (nStep <= 0)
        {
            return GetSystemError();
        }
        nWritten += nStep;
    }
    return CErrorCode::Success;
}

} // namespace UICommonMdl
