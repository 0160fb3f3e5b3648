#pragma once

#include <UICommonModule/UICommonModuleExport.h>

#include <QHash>
#include <QMap>
#include <QObject>
#include <QSet>
#include <QString>
#include <QVector>

#include <cstdint>

namespace UICommonMdl
{

/// A category of alarms; an empty name: unknown.
struct AlarmCategoryInfo
{
    std::int32_t nCategoryId = 0; ///< of the platform
    QString strName;              ///< in the client's language
};

/// A group of alarm types within a category; id 0: unknown.
struct AlarmGroupInfo
{
    std::int32_t nGroupId = 0;    ///< of the platform
    QString strName;              ///< in the client's language
    std::int32_t nCategoryId = 0; ///< that it lies in
};

/// The catalogue of the client's alarm types: categories, in them groups, in them types, read from "AlarmTypes.xml" in
/// the resource folder (docs/alarm-catalogue.md describes it). Names are those of the client's language. Ids are the
/// platform's; an index is a type's position in the file, from 0. For the GUI thread.
class UICOMMONMODULE_EXPORT CAlarmType : public QObject
{
    Q_OBJECT

public:
    /// The client's catalogue. It is read at the first call; one that is missing or damaged counts as empty, of which
    /// the operator is notified once.
    static CAlarmType* Instance();

    /// Reads a catalogue anew and tells everybody, whatever came of it.
    /// \param strFile  empty: the client's
    /// \return CErrorCode::Success, or FileMissing, NoPermission, Unreadable, Damaged, IoError; the catalogue is then
    ///         empty and the operator is notified
    int Load(const QString& strFile = QString());

    /// Why no types are known; empty when the catalogue could be used.
    QString GetProblem() const { return m_strProblem; }

    /// \param mapMain      category id -> name
    /// \param mapSub       category id -> (index of a type -> name)
    /// \param pSetAlarmId  type ids; null: none
    /// \param bExclude     true leaves the types of the set out, false keeps no others; categories without types are
    ///                     left out
    void GetAlarmCategory(QMap<int, QString>& mapMain, QMap<int, QMap<int, QString>>& mapSub,
                          const QSet<int>* pSetAlarmId = nullptr, bool bExclude = true) const;

    AlarmCategoryInfo GetCategoryInfoByCategoryId(int nCategoryId) const; ///< id 0: unknown
    AlarmGroupInfo GetGroupInfoByAlarmId(int nAlarmId) const;             ///< of a type; id 0: unknown

    /// The name of a type; empty: unknown.
    QString CovertAlarmNameByType(int nAlarmId) const;

    /// \return -1 for any index that no type has
    int GetAlarmTypeIdByIndex(int nIndex) const;

    /// \return -1 for an unknown type
    int GetIndexByAlarmTypeId(int nAlarmId) const;

    /// The file name of a type's built-in sound; empty: unknown, or none.
    QString GetDefaultSoundByAlarmId(int nAlarmId) const;

    int GetAlarmTypeCount() const { return m_listTypes.size(); } ///< of all categories

    /// In ascending order.
    QList<int> GetCategoryIds() const { return m_mapCategories.keys(); }

signals:
    void SignalUpdateCustomAlarmType(); ///< the catalogue was read anew
    void SignalUpdateAlarmType();       ///< the catalogue was read anew

private:
    struct SType
    {
        int nId;
        QString strName;
        QString strSound;
        AlarmGroupInfo group;
    };

    CAlarmType();
    static QString GetClientsFile();
    static void Notify(const QString& strProblem);
    int Read(const QString& strFile);
    int Parse(const QByteArray& content);
    void Clear();
    const SType* Find(int nAlarmId) const;

    QString m_strProblem;
    QVector<SType> m_listTypes;
    QHash<int, int> m_hashIndices; // by type id
    QMap<int, QString> m_mapCategories;
};

} // namespace UICommonMdl
