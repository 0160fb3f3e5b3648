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
    void init()
    {
        m_pFolder.reset(new QTemporaryDir);
        QVERIFY(QDir::setCurrent(m_pFolder->path()));
    }
    void SoundsAreProvided();
    void AChangedSoundStays();
    void AFolderThatCannotBeWrittenIsReported();

private:
    static void Put(const QString& strName, const QByteArray& content)
    {
        QFile file(strName);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
    }

    QScopedPointer<QTemporaryDir> m_pFolder;
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
    QFile file("Sound/sound_en/door.wav");
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("mine"));
    QVERIFY(QFileInfo("Sound/sound_zh_CN/door.wav").size() > 1000);
}

void tst_AlarmSounds::AFolderThatCannotBeWrittenIsReported()
{
    Put("Sound", "a file where the folder should be");
    QVERIFY(!ProvideSounds());
}

QTEST_GUILESS_MAIN(tst_AlarmSounds)

#include "tst_AlarmSounds.moc"
