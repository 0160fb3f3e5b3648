#include "support/AlarmPage.h"
#include "support/Notifications.h"

#include <QFileDialog>
#include <QSignalSpy>
#include <QTimer>

using namespace LocalConfig;
using LocalConfigLogical::AlarmConfigInfo;

class tst_AlarmTypeSounds : public CAlarmPageTest
{
    Q_OBJECT

private slots:
    void init() { Reset(); }

    void PickingATypeShowsItsSound_data();
    void PickingATypeShowsItsSound();
    void PickingATypeHandsTheRecordBack();
    void PickingATypeWithDefaultsLeavesTheSectionAlone();

    void BrowsingSetsTheCustomSound_data();
    void BrowsingSetsTheCustomSound();
    void BrowsingWithoutAPickMeansTheFirstEntry();
    void BrowsingAfterDefaultsChangesTheCachedRecord();
    void BrowsingStartsInTheFolderShown_data();
    void BrowsingStartsInTheFolderShown();
    void CancellingTheFileDialogChangesNothing();
    void AKeyThatTheRecordLacksIsHandedBackUnchanged();

    void APreviewThatNobodyCanHearSaysSoOnce();

private:
    /// Presses the browse button and takes a file in the dialog that opens; an empty one cancels.
    void Browse(const QString& strFile, QString* pFolder = nullptr)
    {
        QTimer timer;
        connect(&timer, &QTimer::timeout, this, [&] {
            auto* pDialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            if (!pDialog)
            {
                return;
            }
            timer.stop();
            if (pFolder)
            {
                *pFolder = pDialog->directory().path();
            }
            m_strDialogTitle = pDialog->windowTitle();
            m_listDialogFilters = pDialog->nameFilters();
            if (strFile.isEmpty())
            {
                pDialog->reject();
                return;
            }
            auto* pName = pDialog->findChild<QLineEdit*>("fileNameEdit");
            pName->setText(strFile);
            QTest::keyClick(pName, Qt::Key_Enter);
        });
        timer.start(20);
        QTest::mouseClick(Path()->findChild<QAbstractButton*>("btnBrowse"), Qt::LeftButton);
    }
    QString MakeWav(const char* pszName) const
    {
        QString strPath = m_pFolder->filePath(pszName);
        QFile file(strPath);
        if (file.open(QIODevice::WriteOnly))
        {
            file.write("RIFF");
        }
        return strPath;
    }

    QString m_strDialogTitle;
    QStringList m_listDialogFilters;
};

void tst_AlarmTypeSounds::PickingATypeShowsItsSound_data()
{
    QTest::addColumn<QString>("strShown");
    const QString strBefore = g_strDefaultFolder + "rules.wav"; // of the first entry, which is shown at first
    QTest::newRow("302") << g_strDefaultFolder + "video.wav";
    QTest::newRow("201") << QDir::toNativeSeparators("/own/device.wav");
    QTest::newRow("961") << QDir::toNativeSeparators("/own/face.wav"); // all of group 104 but three
    QTest::newRow("17021") << QDir::toNativeSeparators("/own/face.wav");
    QTest::newRow("967") << g_strDefaultFolder + "face967.wav";
    QTest::newRow("17020") << strBefore; // no entry of its own
    QTest::newRow("17029") << strBefore;
    QTest::newRow("901") << g_strDefaultFolder + "vehicle.wav"; // group 105
    QTest::newRow("905") << g_strDefaultFolder + "vehicle.wav";
    QTest::newRow("3100") << g_strDefaultFolder + "r3100.wav";
    QTest::newRow("3101") << g_strDefaultFolder + "rules.wav";
    QTest::newRow("3115") << g_strDefaultFolder + "rules.wav";
    QTest::newRow("3130") << g_strDefaultFolder + "rules.wav";
    QTest::newRow("3131") << g_strDefaultFolder + "r3131.wav";
    QTest::newRow("1301") << strBefore;
}

void tst_AlarmTypeSounds::PickingATypeShowsItsSound()
{
    QFETCH(QString, strShown);
    Load(Record());
    PickType(QByteArray(QTest::currentDataTag()).toInt());
    QCOMPARE(Path()->text(), strShown);
}

void tst_AlarmTypeSounds::PickingATypeHandsTheRecordBack()
{
    Load(Record());
    PickType(302);
    QCOMPARE(m_pFixture->journal.Take(), (QStringList{"GetConfig", "SetConfig false"}));
    QCOMPARE(Stored().alarmSounds.size(), Record().alarmSounds.size());
}

void tst_AlarmTypeSounds::PickingATypeWithDefaultsLeavesTheSectionAlone()
{
    Load(Record());
    m_pFixture->page.LoadConfig(true);
    m_pFixture->journal.Take();
    PickType(201);
    QCOMPARE(m_pFixture->journal.Take(), QStringList());
    QCOMPARE(Path()->text(), g_strDefaultFolder + "device.wav");
}

void tst_AlarmTypeSounds::BrowsingSetsTheCustomSound_data()
{
    QTest::addColumn<int>("nKey");
    QTest::newRow("302") << 302;
    QTest::newRow("961") << 200000;
    QTest::newRow("967") << 967;
    QTest::newRow("905") << 100000;
    QTest::newRow("3100") << 3100;
    QTest::newRow("3131") << 3131;
}

void tst_AlarmTypeSounds::BrowsingSetsTheCustomSound()
{
    QFETCH(int, nKey);
    Load(Record());
    PickType(QByteArray(QTest::currentDataTag()).toInt());
    m_pFixture->journal.Take();
    QSignalSpy spy(&m_pFixture->page, &CAlarmConfig::sgnAlarmCustomSoundEdited);
    const QString strFile = MakeWav("mine.wav");
    Browse(strFile);
    QCOMPARE(m_strDialogTitle, QString("Select a wav file"));
    QCOMPARE(m_listDialogFilters, QStringList{"WAVE Files (*.wav)"});
    QCOMPARE(spy.size(), 1);
    QCOMPARE(spy.first(), (QVariantList{nKey, strFile}));
    QCOMPARE(Path()->text(), QDir::toNativeSeparators(strFile));
    QCOMPARE(m_pFixture->journal.Take(), (QStringList{"GetConfig", "SetConfig false"}));
    for (const auto& sound : Stored().alarmSounds)
    {
        const bool bEdited = sound.first == nKey;
        QCOMPARE(sound.second.soundChanged, bEdited);
        QCOMPARE(sound.second.customSound,
                 bEdited ? strFile.toStdString() : Record().alarmSounds.at(sound.first).customSound);
    }
}

void tst_AlarmTypeSounds::BrowsingWithoutAPickMeansTheFirstEntry()
{
    AlarmConfigInfo record = Record();
    record.alarmSounds.erase(2);
    Load(record); // the first entry is now 201
    QSignalSpy spy(&m_pFixture->page, &CAlarmConfig::sgnAlarmCustomSoundEdited);
    const QString strFile = MakeWav("mine.wav");
    Browse(strFile);
    QCOMPARE(spy.size(), 1);
    QCOMPARE(spy.first(), (QVariantList{201, strFile}));
    QCOMPARE(Stored().alarmSounds.at(201).customSound, strFile.toStdString());
}

void tst_AlarmTypeSounds::BrowsingAfterDefaultsChangesTheCachedRecord()
{
    Load(Record());
    m_pFixture->page.LoadConfig(true);
    PickType(302);
    const QString strFile = MakeWav("mine.wav");
    Browse(strFile);
    QCOMPARE(Stored().alarmSounds.at(302).customSound, std::string());
    QCOMPARE(m_pFixture->page.SaveConfig(), 0);
    QCOMPARE(Stored().alarmSounds.at(302).customSound, strFile.toStdString());
    QCOMPARE(Stored().alarmSounds.at(201).customSound, std::string());
}

void tst_AlarmTypeSounds::BrowsingStartsInTheFolderShown_data()
{
    QTest::addColumn<QString>("strCustom");
    QTest::newRow("default") << QString();
    QTest::newRow("relative") << "./Sound/sound_en/mine.wav";
#ifdef Q_OS_WIN
    QTest::newRow("relative with backslashes") << R"(.\Sound\sound_en\mine.wav)";
#endif
}

void tst_AlarmTypeSounds::BrowsingStartsInTheFolderShown()
{
    QFETCH(QString, strCustom);
    QVERIFY(QDir().mkpath("Sound/sound_en"));
    AlarmConfigInfo record = Record();
    record.alarmSounds.begin()->second.customSound = strCustom.toStdString();
    Load(record);
    QString strFolder;
    Browse(QString(), &strFolder);
    QCOMPARE(strFolder, QDir::currentPath() + "/Sound/sound_en");
}

void tst_AlarmTypeSounds::CancellingTheFileDialogChangesNothing()
{
    Load(Record());
    QSignalSpy spy(&m_pFixture->page, &CAlarmConfig::sgnAlarmCustomSoundEdited);
    const QString strPath = Path()->text();
    Browse(QString());
    QCOMPARE(spy.size(), 0);
    QCOMPARE(Path()->text(), strPath);
    QCOMPARE(m_pFixture->journal.Take(), QStringList());
}

void tst_AlarmTypeSounds::AKeyThatTheRecordLacksIsHandedBackUnchanged()
{
    Load(Record());
    PickType(3115); // whose pick shows the common entry, while browsing means its own, which there is not
    m_pFixture->journal.Take();
    const QString strFile = MakeWav("mine.wav");
    Browse(strFile);
    QCOMPARE(m_pFixture->journal.Take(), (QStringList{"GetConfig", "SetConfig false"}));
    QCOMPARE(Stored().alarmSounds.count(3115), std::size_t(0));
    QCOMPARE(Stored().alarmSounds.at(2).customSound, std::string());
}

void tst_AlarmTypeSounds::APreviewThatNobodyCanHearSaysSoOnce()
{
    Load(Record());
    QVERIFY(QDir().mkpath("Sound/sound_en"));
    QVERIFY(QFile::copy(UICommonMdl::CGlobalInfo::GetResourcePath() + "/Sound/sound_en/door.wav",
                        "Sound/sound_en/rules.wav"));
    const CNotificationSpy notifications;
    QElapsedTimer clock;
    clock.start();
    for (int n = 0; n < 3; ++n)
    {
        QTest::mouseClick(m_pFixture->Find<QAbstractButton>("btnSoundPlay"), Qt::LeftButton);
    }
    QVERIFY2(clock.elapsed() < 5000, qPrintable(QString::number(clock.elapsed())));
    QVERIFY(!QApplication::activeModalWidget());
    QCOMPARE(notifications.size(), 1);
    QCOMPARE(m_pFixture->journal.Take(), QStringList());
}

QTEST_MAIN(tst_AlarmTypeSounds)

#include "tst_AlarmTypeSounds.moc"
