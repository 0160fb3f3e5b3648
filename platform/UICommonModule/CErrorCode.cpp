#include "CErrorCode.h"

#include <QCoreApplication>

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
};

QString Tr(const char* pszText)
{
    return QCoreApplication::translate("CErrorCode", pszText);
}

} // namespace

QString CErrorCode::GetErroCodeInfor(const QString& strText, int nCode, bool bDescription, bool bCode)
{
    if (nCode == Success || (!bDescription && !bCode))
    {
        return strText;
    }
    if (bDescription && bCode)
    {
        return Tr(QT_TRANSLATE_NOOP("CErrorCode", "%1: %2 (code %3)"))
            .arg(strText, GetDescription(nCode), QString::number(nCode));
    }
    if (bDescription)
    {
        return Tr(QT_TRANSLATE_NOOP("CErrorCode", "%1: %2")).arg(strText, GetDescription(nCode));
    }
    return Tr(QT_TRANSLATE_NOOP("CErrorCode", "%1 (code %2)")).arg(strText, QString::number(nCode));
}

QString CErrorCode::GetDescription(int nCode)
{
    for (const SDescription& description : g_arrDescriptions)
    {
        if (description.nCode == nCode)
        {
            return Tr(description.pszText);
        }
    }
    return Tr(QT_TRANSLATE_NOOP("CErrorCode", "unknown error"));
}

} // namespace UICommonMdl
