#include "support/WorkFolder.h"

#include <client/alarm/AlarmSounds.h>
#include <client/store/AlarmRecord.h>

#include <UICommonModule/CAlarmType.h>

#include <QTemporaryDir>
#include <QtTest>

using namespace LocalConfigClient;
using UICommonMdl::CAlarmType;

class tst_AlarmSounds : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_pFolder.reset(new CWorkFolder); }
    void SoundsAreProvided();
    void AChangedSoundStays();
    void ACutSoundIsReplaced_data();
    void ACutSoundIsReplaced();
    void ASoundIsOnTheDiskOrNotThere();
    void AFolderThatCannotBeWrittenIsReported();

private:
    static QByteArray Get(const QString& strName)
    {
        QFile file(strName);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(none)");
    }
    static void Put(const QString& strName, const QByteArray& content)
    {
        QFile file(strName);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
    }

    QScopedPointer<CWorkFolder> m_pFolder;
};

void tst_AlarmSounds::SoundsAreProvided()
{
    QVERIFY(ProvideSounds());
    const CAlarmType* pCatalogue = CAlarmType::Instance();
    LocalConfigLogical::AlarmConfigInfo record;
    SeedAlarms(*pCatalogue, record);
    for (int nIndex = 0; nIndex < pCatalogue->GetAlarmTypeCount(); ++nIndex)
    {
        const QString strFile = GetSoundFile(*pCatalogue, record, pCatalogue->GetAlarmTypeIdByIndex(nIndex));
        QVERIFY2(QFileInfo(strFile).isFile(), qPrintable(strFile));
        QVERIFY(strFile.startsWith(QDir::currentPath() + "/Sound/sound_en/"));
    }
}

void tst_AlarmSounds::AChangedSoundStays()
{
    QVERIFY(QDir().mkpath("Sound/sound_en"));
    Put("Sound/sound_en/door.wav", "mine");
    QVERIFY(ProvideSounds());
    QCOMPARE(Get("Sound/sound_en/door.wav"), QByteArray("mine"));
    QVERIFY(QFileInfo("Sound/sound_zh_CN/door.wav").size() > 1000);
}

void tst_AlarmSounds::ACutSoundIsReplaced_data()
{
    QTest::addColumn<int>("nLength");
    QTest::newRow("empty") << 0;
    QTest::newRow("the header") << 44;
    QTest::newRow("all but the last byte") << -1;
}

void tst_AlarmSounds::ACutSoundIsReplaced()
{
    QFETCH(int, nLength);
    QVERIFY(ProvideSounds());
    const QByteArray whole = Get("Sound/sound_en/door.wav");
    Put("Sound/sound_en/door.wav", whole.left(nLength < 0 ? whole.size() + nLength : nLength));
    QVERIFY(ProvideSounds());
    QCOMPARE(Get("Sound/sound_en/door.wav"), whole);
}

void tst_AlarmSounds::ASoundIsOnTheDiskOrNotThere()
{
    qputenv("KV_FAULT", "fsync:EIO:door.wav");
    const bool bProvided = ProvideSounds();
    qunsetenv("KV_FAULT");
    QVERIFY(!bProvided);
    const QDir folder("Sound/sound_en");
    QCOMPARE(folder.entryList({"door.wav*"}), QStringList());
    QVERIFY2(folder.entryList(QDir::Files).size() > 1, "the others are provided all the same");
    QVERIFY(ProvideSounds());
    QVERIFY(folder.exists("door.wav"));
}

void tst_AlarmSounds::AFolderThatCannotBeWrittenIsReported()
{
    Put("Sound", "a file where the folder should be");
    QVERIFY(!ProvideSounds());
}

QTEST_GUILESS_MAIN(tst_AlarmSounds)

#include "tst_AlarmSounds.moc"
