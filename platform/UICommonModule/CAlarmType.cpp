#include "CAlarmType.h"

#include "CAtomicFile.h"
#include "CErrorCode.h"
#include "CGlobalInfo.h"

#include <KvGui/KvMessageNotify.h>

#include <QDir>
#include <QTimer>

#include <pugixml.hpp>

namespace UICommonMdl
{

namespace
{

constexpr char g_szFile[] = "AlarmTypes.xml";
constexpr int g_nFirstNotificationDelay = 200; // milliseconds

/// What every element of the catalogue carries.
struct SEntry
{
    int nId = 0;
    QString strName;
    bool bGood = false;
};

SEntry ReadEntry(const pugi::xml_node& node, const QByteArray& localName)
{
    const pugi::xml_attribute local = node.attribute(localName.constData());
    SEntry entry;
    entry.nId = QString::fromLatin1(node.attribute("id").value()).toInt(&entry.bGood);
    entry.strName = QString::fromUtf8((local ? local : node.attribute("name")).value());
    entry.bGood = entry.bGood && !entry.strName.isEmpty();
    return entry;
}

} // namespace

CAlarmType* CAlarmType::Instance()
{
    static CAlarmType catalogue;
    return &catalogue;
}

CAlarmType::CAlarmType()
{
    Read(GetClientsFile());
    if (!m_strProblem.isEmpty())
    {
        // The first use is often the making of a window, so that nothing could be seen yet.
        QTimer::singleShot(g_nFirstNotificationDelay, this, [strProblem = m_strProblem] { Notify(strProblem); });
    }
}

QString CAlarmType::GetClientsFile()
{
    return QDir(CGlobalInfo::GetResourcePath()).filePath(QString::fromLatin1(g_szFile));
}

void CAlarmType::Notify(const QString& strProblem)
{
    KVGUI::KvSingleton<KVGUI::KvMessageNotify>::Instance()->AddTextNotification(strProblem);
}

int CAlarmType::Load(const QString& strFile)
{
    const QString strPath = strFile.isEmpty() ? GetClientsFile() : strFile;
    const int nResult = Read(strPath);
    emit SignalUpdateAlarmType();
    emit SignalUpdateCustomAlarmType();
    if (!m_strProblem.isEmpty())
    {
        Notify(m_strProblem);
    }
    return nResult;
}

int CAlarmType::Read(const QString& strFile)
{
    Clear();
    QByteArray content;
    int nResult = CAtomicFile::Read(strFile, content);
    if (nResult == CErrorCode::Success)
    {
        nResult = Parse(content);
    }
    m_strProblem.clear();
    if (nResult != CErrorCode::Success)
    {
        Clear();
        m_strProblem = CErrorCode::GetErroCodeInfor(
            tr("No alarm types are known, for '%1' cannot be used").arg(QDir::toNativeSeparators(strFile)), nResult,
            true, false);
    }
    return nResult;
}

int CAlarmType::Parse(const QByteArray& content)
{
    pugi::xml_document document;
    if (!document.load_buffer(content.constData(), std::size_t(content.size())))
    {
        return CErrorCode::Damaged;
    }
    const pugi::xml_node root = document.child("AlarmTypes");
    if (!root)
    {
        return CErrorCode::Damaged;
    }
    const QByteArray localName = "name-" + CGlobalInfo::GetClientStrLanguage().toLatin1();
    QSet<int> setGroups;
    for (const pugi::xml_node& categoryNode : root.children("Category"))
    {
        const SEntry category = ReadEntry(categoryNode, localName);
        if (!category.bGood || m_mapCategories.contains(category.nId))
        {
            return CErrorCode::Damaged;
        }
        m_mapCategories.insert(category.nId, category.strName);
        for (const pugi::xml_node& groupNode : categoryNode.children("Group"))
        {
            const SEntry group = ReadEntry(groupNode, localName);
            if (!group.bGood || setGroups.contains(group.nId))
            {
                return CErrorCode::Damaged;
            }
            setGroups.insert(group.nId);
            const QString strGroupSound = QString::fromUtf8(groupNode.attribute("sound").value());
            for (const pugi::xml_node& typeNode : groupNode.children("Type"))
            {
                const SEntry type = ReadEntry(typeNode, localName);
                if (!type.bGood || m_hashIndices.contains(type.nId))
                {
                    return CErrorCode::Damaged;
                }
                const pugi::xml_attribute sound = typeNode.attribute("sound");
                m_hashIndices.insert(type.nId, m_listTypes.size());
                m_listTypes += SType{type.nId, type.strName, sound ? QString::fromUtf8(sound.value()) : strGroupSound,
                                     AlarmGroupInfo{group.nId, group.strName, category.nId}};
            }
        }
    }
    return CErrorCode::Success;
}

void CAlarmType::Clear()
{
    m_listTypes.clear();
    m_hashIndices.clear();
    m_mapCategories.clear();
}

void CAlarmType::GetAlarmCategory(QMap<int, QString>& mapMain, QMap<int, QMap<int, QString>>& mapSub,
                                  const QSet<int>* pSetAlarmId, bool bExclude) const
{
    mapMain.clear();
    mapSub.clear();
    for (int nIndex = 0; nIndex < m_listTypes.size(); ++nIndex)
    {
        const SType& type = m_listTypes[nIndex];
        const bool bInSet = pSetAlarmId && pSetAlarmId->contains(type.nId);
        if (bInSet != bExclude)
        {
            const int nCategory = type.group.nCategoryId;
            QMap<int, QString>& mapTypes = mapSub[nCategory];
            if (mapTypes.isEmpty())
            {
                mapMain.insert(nCategory, m_mapCategories.value(nCategory));
            }
            mapTypes.insert(mapTypes.cend(), nIndex, type.strName);
        }
    }
}

AlarmCategoryInfo CAlarmType::GetCategoryInfoByCategoryId(int nCategoryId) const
{
    const auto it = m_mapCategories.find(nCategoryId);
    return it == m_mapCategories.end() ? AlarmCategoryInfo() : AlarmCategoryInfo{it.key(), it.value()};
}

const CAlarmType::SType* CAlarmType::Find(int nAlarmId) const
{
    const auto it = m_hashIndices.find(nAlarmId);
    return it == m_hashIndices.end() ? nullptr : &m_listTypes[it.value()];
}

AlarmGroupInfo CAlarmType::GetGroupInfoByAlarmId(int nAlarmId) const
{
    const SType* pType = Find(nAlarmId);
    return pType ? pType->group : AlarmGroupInfo();
}

QString CAlarmType::CovertAlarmNameByType(int nAlarmId) const
{
    const SType* pType = Find(nAlarmId);
    return pType ? pType->strName : QString();
}

int CAlarmType::GetAlarmTypeIdByIndex(int nIndex) const
{
    return nIndex >= 0 && nIndex < m_listTypes.size() ? m_listTypes[nIndex].nId : -1;
}

int CAlarmType::GetIndexByAlarmTypeId(int nAlarmId) const
{
    return m_hashIndices.value(nAlarmId, -1);
}

QString CAlarmType::GetDefaultSoundByAlarmId(int nAlarmId) const
{
    const SType* pType = Find(nAlarmId);
    return pType ? pType->strSound : QString();
}

} // namespace UICommonMdl
