// Listens to what the alarm page plays: a sound server with a sink that plays into nothing, and a recorder at it.

#include "support/PageFixture.h"
#include "support/SoundServer.h"
#include "support/WorkFolder.h"

#include <LocalConfig/pages/CAlarmConfig.h>

#include <KvGui/KvCheckBox.h>
#include <UICommonModule/CAudioOutput.h>

#include <QAbstractButton>

using namespace LocalConfig;
using LocalConfigLogical::AlarmConfigInfo;

class tst_SoundPreview : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { m_server.Start(); }
    void cleanupTestCase() { m_pFixture.reset(); }
    void init();

    void TheServerIsFound();
    void ThePreviewIsHeard();
    void ARelativePathIsTakenFromTheWorkingFolder();
    void ABackslashAfterTheDotIsTakenAlike();
    void TheLoopOptionDoesNotCount();
    void PlayingAgainStartsAnew();
    void AFileThatIsNoSoundIsSilent();
    void ADamagedSoundIsSilent_data();
    void ADamagedSoundIsSilent();
    void AMissingFileIsSilent();

private:
    void Show(const QString& strPath)
    {
        AlarmConfigInfo record;
        record.loopSound = true;
        LocalConfigLogical::AlarmSoundInfo sound;
        sound.alarmType = 302;
        sound.defaultSound = "default.wav";
        sound.customSound = strPath.toStdString();
        record.alarmSounds[302] = sound;
        m_pFixture->section.m_record = record;
        QCOMPARE(m_pFixture->page.SetConfigSection(&m_pFixture->section), 0);
    }
    QString Put(const QString& strName, const QByteArray& content) const
    {
        const QString strPath = m_pFolder->filePath(strName);
        QFile file(strPath);
        if (file.open(QIODevice::WriteOnly))
        {
            file.write(content);
        }
        return strPath;
    }
    void Play() const { QTest::mouseClick(m_pFixture->Find<QAbstractButton>("btnSoundPlay"), Qt::LeftButton); }

    struct SFixture : SPageFixture<CAlarmConfig, LocalConfigLogical::IAlarmSection, AlarmConfigInfo, CFakeAlarmSection>
    {};
    CSoundServer m_server;
    QScopedPointer<CWorkFolder> m_pFolder;
    QScopedPointer<SFixture> m_pFixture;
};

void tst_SoundPreview::init()
{
    m_pFolder.reset(new CWorkFolder);
    m_pFixture.reset(new SFixture);
}

void tst_SoundPreview::TheServerIsFound()
{
    QVERIFY(UICommonMdl::CAudioOutput::IsAvailable());
}

void tst_SoundPreview::ThePreviewIsHeard()
{
    Show(Put("tone.wav", MakeWav(Tone(1000, 0.4))));
    const QVector<qint16> listHeard = Heard(m_server.Record([this] { Play(); }));
    const double dSeconds = double(listHeard.size()) / g_nSampleRate;
    QVERIFY2(dSeconds > 0.3 && dSeconds < 0.6, qPrintable(QString::number(dSeconds)));
    QVERIFY2(Strength(listHeard, 1000) > 5000, qPrintable(QString::number(Strength(listHeard, 1000))));
    QVERIFY(Strength(listHeard, 700) < 500);
    QVERIFY(Strength(listHeard, 1500) < 500);
}

void tst_SoundPreview::ARelativePathIsTakenFromTheWorkingFolder()
{
    QVERIFY(QDir().mkpath("Sound/sound_en"));
    Put("Sound/sound_en/default.wav", MakeWav(Tone(600, 0.4)));
    Show(QString());
    const QVector<qint16> listHeard = Heard(m_server.Record([this] { Play(); }));
    QVERIFY2(Strength(listHeard, 600) > 5000, qPrintable(QString::number(Strength(listHeard, 600))));
}

void tst_SoundPreview::ABackslashAfterTheDotIsTakenAlike()
{
    Put("tone.wav", MakeWav(Tone(600, 0.4)));
    Show(".\\tone.wav");
    const QVector<qint16> listHeard = Heard(m_server.Record([this] { Play(); }));
    QVERIFY2(Strength(listHeard, 600) > 5000, qPrintable(QString::number(Strength(listHeard, 600))));
}

void tst_SoundPreview::TheLoopOptionDoesNotCount()
{
    Show(Put("tone.wav", MakeWav(Tone(1000, 0.2))));
    QVERIFY(m_pFixture->Find<KVGUI::KvCheckBox>("ckbLoop")->isChecked());
    const QVector<qint16> listHeard = Heard(m_server.Record([this] { Play(); }));
    QVERIFY2(listHeard.size() < 0.4 * g_nSampleRate, qPrintable(QString::number(listHeard.size())));
    QVERIFY(listHeard.size() > 0.1 * g_nSampleRate);
}

void tst_SoundPreview::PlayingAgainStartsAnew()
{
    QVector<qint16> listSamples = Tone(1000, 1.2); // long enough to be interrupted on a slow machine
    listSamples += Tone(500, 0.6);
    Show(Put("tones.wav", MakeWav(listSamples)));
    const QVector<qint16> listHeard = Heard(m_server.Record([this] {
        Play();
        QVERIFY(m_server.WaitUntilHeard(1000));
        QTest::qWait(200);
        Play();
        QVERIFY(m_server.WaitUntilHeard(500));
    }));
    // A part of the first tone, then both, one at a time.
    QVERIFY2(Duration(listHeard, 1000) > 1.3, qPrintable(QString::number(Duration(listHeard, 1000))));
    QVERIFY2(Duration(listHeard, 500) > 0.5, qPrintable(QString::number(Duration(listHeard, 500))));
    QVERIFY2(Duration(listHeard, 500) < 0.7, qPrintable(QString::number(Duration(listHeard, 500))));
    QVERIFY(*std::max_element(listHeard.begin(), listHeard.end()) < 15000);
}

void tst_SoundPreview::AFileThatIsNoSoundIsSilent()
{
    Show(Put("text.wav", "no sound at all"));
    const QVector<qint16> listSamples = m_server.Record([this] { Play(); }, 900);
    QVERIFY(!listSamples.isEmpty());
    QVERIFY(Strength(listSamples, 1000) < 10);
    QVERIFY(Heard(listSamples).isEmpty());
}

void tst_SoundPreview::ADamagedSoundIsSilent_data()
{
    // What the reader behind QSound would believe: offsets into the file that MakeWav makes, and what stands there.
    QTest::addColumn<int>("nOffset");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("no channels") << 22 << QByteArray(2, '\0');
    QTest::newRow("too many channels") << 22 << QByteArray(2, '\xff');
    QTest::newRow("no rate") << 24 << QByteArray(4, '\0');
    QTest::newRow("absurd rate") << 24 << QByteArray(4, '\xff');
    QTest::newRow("no bits") << 34 << QByteArray(2, '\0');
    QTest::newRow("seven bits") << 34 << QByteArray("\x07\0", 2);
    QTest::newRow("absurd size of the samples") << 40 << QByteArray("\xf0\xff\xff\x7f", 4);
    QTest::newRow("negative size of the samples") << 40 << QByteArray(4, '\xff');
    QTest::newRow("absurd size of the format") << 16 << QByteArray(4, '\xff');
}

void tst_SoundPreview::ADamagedSoundIsSilent()
{
    QFETCH(int, nOffset);
    QFETCH(QByteArray, bytes);
    Show(Put("tone.wav", MakeWav(Tone(1000, 0.4)).replace(nOffset, bytes.size(), bytes)));
    QElapsedTimer timer;
    timer.start();
    const QVector<qint16> listSamples = m_server.Record([this] { Play(); }, 900);
    QVERIFY2(timer.elapsed() < 5000, "the page did not answer");
    QVERIFY(!listSamples.isEmpty());
    QVERIFY(Heard(listSamples).isEmpty());
}

void tst_SoundPreview::AMissingFileIsSilent()
{
    Show(m_pFolder->filePath("none.wav"));
    const QVector<qint16> listSamples = m_server.Record([this] { Play(); }, 900);
    QVERIFY(!listSamples.isEmpty());
    QVERIFY(Heard(listSamples).isEmpty());
}

QTEST_MAIN(tst_SoundPreview)

#include "tst_SoundPreview.moc"
