// The alarm catalogue: a file is taken as a whole or not at all, and what is taken fits together.

#include "Fuzz.h"

#include <UICommonModule/CAlarmType.h>
#include <UICommonModule/CErrorCode.h>

#include <QApplication>

#include <sys/mman.h>
#include <unistd.h>

using UICommonMdl::CAlarmType;

int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize)
{
    static const int nFile = memfd_create("catalogue", 0);
    static const QString strFile = QStringLiteral("/proc/self/fd/%1").arg(nFile);
    DEMAND(ftruncate(nFile, 0) == 0 && pwrite(nFile, pData, nSize, 0) == ssize_t(nSize));

    static int nArguments = 0;
    static const QApplication application(nArguments, nullptr); // for the notification of a file that cannot be used
    CAlarmType* pCatalogue = CAlarmType::Instance();
    const bool bLoaded = pCatalogue->Load(strFile) == UICommonMdl::CErrorCode::Success;
    const int nTypes = pCatalogue->GetAlarmTypeCount();
    DEMAND(bLoaded || (nTypes == 0 && pCatalogue->GetCategoryIds().isEmpty()));
    for (int nIndex = 0; nIndex < nTypes; ++nIndex)
    {
        const int nType = pCatalogue->GetAlarmTypeIdByIndex(nIndex);
        DEMAND(pCatalogue->GetIndexByAlarmTypeId(nType) == nIndex);
        DEMAND(!pCatalogue->CovertAlarmNameByType(nType).isEmpty());
        const UICommonMdl::AlarmGroupInfo group = pCatalogue->GetGroupInfoByAlarmId(nType);
        DEMAND(!group.strName.isEmpty());
        DEMAND(!pCatalogue->GetCategoryInfoByCategoryId(group.nCategoryId).strName.isEmpty());
        pCatalogue->GetDefaultSoundByAlarmId(nType);
    }
    DEMAND(pCatalogue->GetAlarmTypeIdByIndex(nTypes) == -1);

    QMap<int, QString> mapMain;
    QMap<int, QMap<int, QString>> mapSub;
    pCatalogue->GetAlarmCategory(mapMain, mapSub);
    DEMAND(mapMain.keys() == mapSub.keys());
    int nListed = 0;
    for (const QMap<int, QString>& mapTypes : mapSub)
    {
        nListed += mapTypes.size();
    }
    DEMAND(nListed == nTypes);
    return 0;
}
