#include "CErrorCode.h"

namespace UICommonMdl
{

namespace
{

struct SDescription
{
    int nCode;
    const char* pszText;
};

constexpr SDescription g_arrDescriptions[] = {
    {CErrorCode::Success, QT_TRANSLATE_NOOP("CErrorCode", "success")},
    {CErrorCode::DiskFull, QT_TRANSLATE_NOOP("CErrorCode", "the disk is full")},
    {CErrorCode::NoPermission, QT_TRANSLATE_NOOP("CErrorCode", "no permission to use the file or its folder")},
    {CErrorCode::Locked, QT_TRANSLATE_NOOP("CErrorCode", "another client uses the same data folder")},
    {CErrorCode::FolderMissing, QT_TRANSLATE_NOOP("CErrorCode", "the folder does not exist")},
    {CErrorCode::IoError, QT_TRANSLATE_NOOP("CErrorCode", "the device reported an error")},
    {CErrorCode::Damaged, QT_TRANSLATE_NOOP("CErrorCode", "the file is damaged")},
    {CErrorCode::Unreadable, QT_TRANSLATE_NOOP("CErrorCode", "the file cannot be read and is left as it is")},
    {CErrorCode::ChangedElsewhere, QT_TRANSLATE_NOOP("CErrorCode", "the file was changed by another program")},
    {CErrorCode::FileMissing, QT_TRANSLATE_NOOP("CErrorCode", "the file does not exist")},
    {CErrorCode::NotYetSafe, QT_TRANSLATE_NOOP("CErrorCode", "written, but not yet safe from a power cut")},
    {CErrorCode::TooLarge, QT_TRANSLATE_NOOP("CErrorCode", "the file is too large")},
    {CErrorCode::FileExists, QT_TRANSLATE_NOOP("CErrorCode", "there is a file of that name already")},
    {CErrorCode::NotAFile, QT_TRANSLATE_NOOP("CErrorCode", "a folder or device has the name of the file")},
    {CErrorCode::InUse, QT_TRANSLATE_NOOP("CErrorCode", "another program is using the file")},
};

} // namespace

QString CErrorCode::GetErroCodeInfor(const QString& strText, int nCode, bool bDescription, bool bCode)
{
    if (nCode == Success || (!bDescription && !bCode))
    {
        return strText;
    }
    if (bDescription && bCode)
    {
        return tr("%1: %2 (code %3)").arg(strText, GetDescription(nCode), QString::number(nCode));
    }
    if (bDescription)
    {
        return tr("%1: %2").arg(strText, GetDescription(nCode));
    }
    return tr("%1 (code %2)").arg(strText, QString::number(nCode));
}

QString CErrorCode::GetDescription(int nCode)
{
    for (const SDescription& description : g_arrDescriptions)
    {
        if (description.nCode == nCode)
        {
            return tr(description.pszText);
        }
    }
    return tr("unknown error");
}

} // namespace UICommonMdl
