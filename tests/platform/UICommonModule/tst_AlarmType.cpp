#include "support/Notifications.h"

#include <UICommonModule/CAlarmType.h>
#include <UICommonModule/CErrorCode.h>
#include <UICommonModule/CGlobalInfo.h>

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

using UICommonMdl::CAlarmType;
using UICommonMdl::CErrorCode;
using UICommonMdl::CGlobalInfo;

namespace
{

const QByteArray g_small = R"(<?xml version="1.0" encoding="UTF-8"?>
<AlarmTypes>
    <Category id="7" name="Analysis" name-zh_CN="&#x5206;&#x6790;">
        <Group id="70" name="Behaviour" sound="behaviour.wav">
            <Type id="700" name="Tripwire" name-zh_CN="&#x7eca;&#x7ebf;"/>
            <Type id="600" name="Loitering" sound="own.wav"/>
        </Group>
        <Group id="71" name="Counting">
            <Type id="301" name="Custom"/>
        </Group>
    </Category>
    <Category id="3" name="Video">
        <Group id="30" name="Signal" sound="video.wav">
            <Type id="5" name="Loss"/>
        </Group>
    </Category>
    <Category id="4" name="Empty"/>
</AlarmTypes>
)";

} // namespace

class tst_AlarmType : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_pFolder.reset(new QTemporaryDir);
        CGlobalInfo::SetClientStrLanguage("en");
    }
    void cleanupTestCase() { CGlobalInfo::SetClientStrLanguage("en"); }

    void TheClientsCatalogue();
    void TheTypesThatOthersRelyOn_data();
    void TheTypesThatOthersRelyOn();
    void TheClientsCatalogueIsTranslated();
    void EveryTypeHasASound();

    void IndicesFollowTheFile();
    void Lookups();
    void UnknownIdsGiveNothing_data();
    void UnknownIdsGiveNothing();
    void CategoriesForMenus();
    void TypesLeftOut();
    void TypesKept();
    void NamesFollowTheLanguage();

    void LoadingTellsEverybody();
    void BadFilesGiveAnEmptyCatalogue_data();
    void BadFilesGiveAnEmptyCatalogue();
    void AMissingFileGivesAnEmptyCatalogue();
    void AFolderIsNoCatalogue();
    void TenThousandTypesAreLookedUpQuickly();

private:
    QString Put(const QByteArray& content) const
    {
        QString strPath = m_pFolder->filePath("types.xml");
        QFile file(strPath);
        if (file.open(QIODevice::WriteOnly))
        {
            file.write(content);
        }
        return strPath;
    }
    static CAlarmType& Catalogue() { return *CAlarmType::Instance(); }
    void LoadSmall() const { QCOMPARE(Catalogue().Load(Put(g_small)), int(CErrorCode::Success)); }

    QScopedPointer<QTemporaryDir> m_pFolder;
};

void tst_AlarmType::TheClientsCatalogue()
{
    QCOMPARE(Catalogue().Load(), int(CErrorCode::Success));
    QVERIFY(Catalogue().GetCategoryIds().size() >= 10);
    QVERIFY(Catalogue().GetAlarmTypeCount() >= 150);
    for (int nCategoryId : Catalogue().GetCategoryIds())
    {
        QVERIFY(!Catalogue().GetCategoryInfoByCategoryId(nCategoryId).strName.isEmpty());
    }
    QSet<int> setIds;
    for (int nIndex = 0; nIndex < Catalogue().GetAlarmTypeCount(); ++nIndex)
    {
        const int nId = Catalogue().GetAlarmTypeIdByIndex(nIndex);
        setIds.insert(nId);
        QCOMPARE(Catalogue().GetIndexByAlarmTypeId(nId), nIndex);
        QVERIFY(!Catalogue().CovertAlarmNameByType(nId).isEmpty());
        QVERIFY(Catalogue().GetGroupInfoByAlarmId(nId).nGroupId > 0);
    }
    QCOMPARE(setIds.size(), Catalogue().GetAlarmTypeCount());
    for (int nKey : {2, 100000, 200000}) // keys of sounds that several types share
    {
        QVERIFY(!setIds.contains(nKey));
    }
}

void tst_AlarmType::TheTypesThatOthersRelyOn_data()
{
    QTest::addColumn<int>("nGroupId"); // 0: neither 104 nor 105
    QTest::newRow("301") << 0;
    QTest::newRow("967") << 104;
    QTest::newRow("17020") << 104;
    QTest::newRow("17029") << 104;
    QTest::newRow("961") << 104;
    QTest::newRow("901") << 105;
    QTest::newRow("902") << 105;
    for (const char* pszId : {"3100", "3101", "3102", "3115", "3129", "3130", "3131"})
    {
        QTest::newRow(pszId) << 0;
    }
}

void tst_AlarmType::TheTypesThatOthersRelyOn()
{
    QFETCH(int, nGroupId);
    QCOMPARE(Catalogue().Load(), int(CErrorCode::Success));
    const int nId = QByteArray(QTest::currentDataTag()).toInt();
    QVERIFY(!Catalogue().CovertAlarmNameByType(nId).isEmpty());
    const int nFound = Catalogue().GetGroupInfoByAlarmId(nId).nGroupId;
    QCOMPARE(nFound == 104 || nFound == 105 ? nFound : 0, nGroupId);
    QVERIFY(Catalogue().GetCategoryInfoByCategoryId(1).strName.size() > 0);
    QVERIFY(Catalogue().GetCategoryInfoByCategoryId(6).strName.size() > 0);
}

void tst_AlarmType::TheClientsCatalogueIsTranslated()
{
    QCOMPARE(Catalogue().Load(), int(CErrorCode::Success));
    QStringList listEnglish;
    for (int nIndex = 0; nIndex < Catalogue().GetAlarmTypeCount(); ++nIndex)
    {
        listEnglish += Catalogue().CovertAlarmNameByType(Catalogue().GetAlarmTypeIdByIndex(nIndex));
    }
    CGlobalInfo::SetClientStrLanguage("zh_CN");
    QCOMPARE(Catalogue().Load(), int(CErrorCode::Success));
    for (int nIndex = 0; nIndex < listEnglish.size(); ++nIndex)
    {
        QVERIFY2(Catalogue().CovertAlarmNameByType(Catalogue().GetAlarmTypeIdByIndex(nIndex)) != listEnglish[nIndex],
                 qPrintable(listEnglish[nIndex]));
    }
}

void tst_AlarmType::EveryTypeHasASound()
{
    QCOMPARE(Catalogue().Load(), int(CErrorCode::Success));
    for (int nIndex = 0; nIndex < Catalogue().GetAlarmTypeCount(); ++nIndex)
    {
        const QString strSound = Catalogue().GetDefaultSoundByAlarmId(Catalogue().GetAlarmTypeIdByIndex(nIndex));
        QVERIFY(strSound.endsWith(".wav"));
        for (const char* pszLanguage : {"en", "zh_CN", "es", "ar"})
        {
            const QString strPath =
                QString("%1/Sound/sound_%2/%3").arg(CGlobalInfo::GetResourcePath(), pszLanguage, strSound);
            QVERIFY2(QFileInfo(strPath).isFile(), qPrintable(strPath));
        }
    }
}

void tst_AlarmType::IndicesFollowTheFile()
{
    LoadSmall();
    const QList<int> listIds = {700, 600, 301, 5};
    QCOMPARE(Catalogue().GetAlarmTypeCount(), 4);
    for (int nIndex = 0; nIndex < 4; ++nIndex)
    {
        QCOMPARE(Catalogue().GetAlarmTypeIdByIndex(nIndex), listIds[nIndex]);
        QCOMPARE(Catalogue().GetIndexByAlarmTypeId(listIds[nIndex]), nIndex);
    }
    QCOMPARE(Catalogue().GetCategoryIds(), (QList<int>{3, 4, 7}));
}

void tst_AlarmType::Lookups()
{
    LoadSmall();
    QCOMPARE(Catalogue().CovertAlarmNameByType(600), QString("Loitering"));
    QCOMPARE(Catalogue().GetCategoryInfoByCategoryId(7).nCategoryId, 7);
    QCOMPARE(Catalogue().GetCategoryInfoByCategoryId(7).strName, QString("Analysis"));
    QCOMPARE(Catalogue().GetCategoryInfoByCategoryId(4).strName, QString("Empty"));
    QCOMPARE(Catalogue().GetGroupInfoByAlarmId(301).nGroupId, 71);
    QCOMPARE(Catalogue().GetGroupInfoByAlarmId(301).strName, QString("Counting"));
    QCOMPARE(Catalogue().GetGroupInfoByAlarmId(301).nCategoryId, 7);
    QCOMPARE(Catalogue().GetDefaultSoundByAlarmId(700), QString("behaviour.wav"));
    QCOMPARE(Catalogue().GetDefaultSoundByAlarmId(600), QString("own.wav"));
    QCOMPARE(Catalogue().GetDefaultSoundByAlarmId(301), QString());
}

void tst_AlarmType::UnknownIdsGiveNothing_data()
{
    QTest::addColumn<int>("nId");
    for (int nId : {-1, 0, 4, 70, 1000000, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()})
    {
        QTest::addRow("%d", nId) << nId;
    }
}

void tst_AlarmType::UnknownIdsGiveNothing()
{
    QFETCH(int, nId);
    LoadSmall();
    QCOMPARE(Catalogue().CovertAlarmNameByType(nId), QString());
    QCOMPARE(Catalogue().GetGroupInfoByAlarmId(nId).nGroupId, 0);
    QCOMPARE(Catalogue().GetIndexByAlarmTypeId(nId), -1);
    QCOMPARE(Catalogue().GetDefaultSoundByAlarmId(nId), QString());
    if (nId != 0) // which is an index
    {
        QCOMPARE(Catalogue().GetAlarmTypeIdByIndex(nId), -1);
    }
    if (nId != 4) // which is a category
    {
        QCOMPARE(Catalogue().GetCategoryInfoByCategoryId(nId).strName, QString());
    }
}

void tst_AlarmType::CategoriesForMenus()
{
    LoadSmall();
    QMap<int, QString> mapMain{{99, "from before"}};
    QMap<int, QMap<int, QString>> mapSub{{99, {}}};
    Catalogue().GetAlarmCategory(mapMain, mapSub);
    QCOMPARE(mapMain, (QMap<int, QString>{{3, "Video"}, {7, "Analysis"}}));
    QCOMPARE(mapSub.size(), 2);
    QCOMPARE(mapSub[7], (QMap<int, QString>{{0, "Tripwire"}, {1, "Loitering"}, {2, "Custom"}}));
    QCOMPARE(mapSub[3], (QMap<int, QString>{{3, "Loss"}}));
}

void tst_AlarmType::TypesLeftOut()
{
    LoadSmall();
    QMap<int, QString> mapMain;
    QMap<int, QMap<int, QString>> mapSub;
    const QSet<int> setIds = {301, 5, 12345};
    Catalogue().GetAlarmCategory(mapMain, mapSub, &setIds, true);
    QCOMPARE(mapMain, (QMap<int, QString>{{7, "Analysis"}}));
    QCOMPARE(mapSub, (QMap<int, QMap<int, QString>>{{7, {{0, "Tripwire"}, {1, "Loitering"}}}}));
}

void tst_AlarmType::TypesKept()
{
    LoadSmall();
    QMap<int, QString> mapMain;
    QMap<int, QMap<int, QString>> mapSub;
    const QSet<int> setIds = {301, 5, 12345};
    Catalogue().GetAlarmCategory(mapMain, mapSub, &setIds, false);
    QCOMPARE(mapSub, (QMap<int, QMap<int, QString>>{{3, {{3, "Loss"}}}, {7, {{2, "Custom"}}}}));
    Catalogue().GetAlarmCategory(mapMain, mapSub, nullptr, false);
    QVERIFY(mapMain.isEmpty() && mapSub.isEmpty());
}

void tst_AlarmType::NamesFollowTheLanguage()
{
    CGlobalInfo::SetClientStrLanguage("zh_CN");
    LoadSmall();
    QCOMPARE(Catalogue().CovertAlarmNameByType(700), QString::fromUtf8("\xe7\xbb\x8a\xe7\xba\xbf"));
    QCOMPARE(Catalogue().CovertAlarmNameByType(600), QString("Loitering"));
    QCOMPARE(Catalogue().GetCategoryInfoByCategoryId(7).strName, QString::fromUtf8("\xe5\x88\x86\xe6\x9e\x90"));
}

void tst_AlarmType::LoadingTellsEverybody()
{
    QSignalSpy types(CAlarmType::Instance(), &CAlarmType::SignalUpdateAlarmType);
    QSignalSpy custom(CAlarmType::Instance(), &CAlarmType::SignalUpdateCustomAlarmType);
    LoadSmall();
    QCOMPARE(types.size(), 1);
    QCOMPARE(custom.size(), 1);
    Catalogue().Load(m_pFolder->filePath("none.xml"));
    QCOMPARE(types.size(), 2);
    QCOMPARE(custom.size(), 2);
}

void tst_AlarmType::BadFilesGiveAnEmptyCatalogue_data()
{
    const auto changed = [](const char* pszOld, const char* pszNew) {
        QByteArray content = g_small;
        content.replace(pszOld, pszNew);
        return content;
    };
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("no XML") << QByteArray("alarm types");
    QTest::newRow("cut off") << g_small.left(g_small.size() / 2);
    QTest::newRow("other root") << changed("AlarmTypes", "AlarmLink");
    QTest::newRow("id is no number") << changed("id=\"600\"", "id=\"6oo\"");
    QTest::newRow("no id") << changed("id=\"600\"", "");
    QTest::newRow("id too large") << changed("id=\"600\"", "id=\"99999999999\"");
    QTest::newRow("no name") << changed("name=\"Loitering\"", "");
    QTest::newRow("empty name") << changed("name=\"Loitering\"", "name=\"\"");
    QTest::newRow("type twice") << changed("id=\"600\"", "id=\"700\"");
    QTest::newRow("group twice") << changed("id=\"71\"", "id=\"70\"");
    QTest::newRow("category twice") << changed("id=\"4\"", "id=\"7\"");
    QTest::newRow("category without id") << changed("id=\"7\"", "");
    QTest::newRow("group without id") << changed("id=\"70\"", "");
}

void tst_AlarmType::BadFilesGiveAnEmptyCatalogue()
{
    QFETCH(QByteArray, content);
    LoadSmall();
    CNotificationSpy notifications;
    QCOMPARE(Catalogue().Load(Put(content)), int(CErrorCode::Damaged));
    QCOMPARE(Catalogue().GetAlarmTypeCount(), 0);
    QCOMPARE(Catalogue().GetCategoryIds(), QList<int>());
    QCOMPARE(Catalogue().GetIndexByAlarmTypeId(700), -1);
    QCOMPARE(notifications.size(), 1);
    QCOMPARE(notifications.first().first().toString(),
             QString("No alarm types are known, for '%1' cannot be used: the file is damaged")
                 .arg(QDir::toNativeSeparators(m_pFolder->filePath("types.xml"))));
}

void tst_AlarmType::AMissingFileGivesAnEmptyCatalogue()
{
    LoadSmall();
    CNotificationSpy notifications;
    QCOMPARE(Catalogue().Load(m_pFolder->filePath("none.xml")), int(CErrorCode::FileMissing));
    QCOMPARE(Catalogue().GetAlarmTypeCount(), 0);
    QCOMPARE(notifications.size(), 1);
}

void tst_AlarmType::AFolderIsNoCatalogue()
{
    QCOMPARE(Catalogue().Load(m_pFolder->path()), int(CErrorCode::Unreadable));
    QCOMPARE(Catalogue().GetAlarmTypeCount(), 0);
}

void tst_AlarmType::TenThousandTypesAreLookedUpQuickly()
{
    QByteArray content = "<AlarmTypes><Category id='1' name='c'><Group id='1' name='g'>";
    constexpr int nTypes = 10000;
    for (int n = 0; n < nTypes; ++n)
    {
        content += "<Type id='" + QByteArray::number(7 * n + 1) + "' name='type " + QByteArray::number(n) + "'/>";
    }
    QCOMPARE(Catalogue().Load(Put(content + "</Group></Category></AlarmTypes>")), int(CErrorCode::Success));
    QElapsedTimer clock;
    clock.start();
    for (int n = 0; n < nTypes; ++n)
    {
        QCOMPARE(Catalogue().GetIndexByAlarmTypeId(7 * n + 1), n);
        QCOMPARE(Catalogue().GetGroupInfoByAlarmId(7 * n + 1).nGroupId, 1);
    }
    QVERIFY2(clock.elapsed() < 1000, "each lookup walks through all types"); // 10^8 steps otherwise
}

QTEST_MAIN(tst_AlarmType)

#include "tst_AlarmType.moc"
