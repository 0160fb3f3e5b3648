// Listens to what the alarm page plays: a sound server with a sink that plays into nothing, and a recorder at it.

#include "support/PageFixture.h"

#include <LocalConfig/pages/CAlarmConfig.h>

#include <KvGui/KvCheckBox.h>
#include <UICommonModule/CAudioOutput.h>

#include <QAbstractButton>
#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <QtEndian>

#include <cmath>

using namespace LocalConfig;
using LocalConfigLogical::AlarmConfigInfo;

namespace
{

constexpr int g_nSampleRate = 22050;
constexpr double g_dPi = 3.14159265358979323846;

QVector<qint16> Tone(double dFrequency, double dSeconds)
{
    QVector<qint16> listSamples(int(dSeconds * g_nSampleRate));
    for (int n = 0; n < listSamples.size(); ++n)
    {
        listSamples[n] = qint16(12000 * std::sin(2 * g_dPi * dFrequency * n / g_nSampleRate));
    }
    return listSamples;
}

QByteArray MakeWav(const QVector<qint16>& listSamples)
{
    const auto number = [](quint32 nNumber, int nBytes) {
        const quint32 nLittle = qToLittleEndian(nNumber);
        return QByteArray(reinterpret_cast<const char*>(&nLittle), nBytes);
    };
    const quint32 nSize = quint32(listSamples.size()) * 2;
    QByteArray data;
    for (qint16 nSample : listSamples)
    {
        data += number(quint16(nSample), 2);
    }
    return "RIFF" + number(36 + nSize, 4) + "WAVEfmt " + number(16, 4) + number(1, 2) + number(1, 2) +
           number(g_nSampleRate, 4) + number(2 * g_nSampleRate, 4) + number(2, 2) + number(16, 2) + "data" +
           number(nSize, 4) + data;
}

/// How strong a frequency is in a recording: the amplitude that a tone of that frequency alone would have.
double Strength(const QVector<qint16>& listSamples, double dFrequency)
{
    double dSine = 0;
    double dCosine = 0;
    for (int n = 0; n < listSamples.size(); ++n)
    {
        dSine += listSamples[n] * std::sin(2 * g_dPi * dFrequency * n / g_nSampleRate);
        dCosine += listSamples[n] * std::cos(2 * g_dPi * dFrequency * n / g_nSampleRate);
    }
    return listSamples.isEmpty() ? 0 : 2 * std::hypot(dSine, dCosine) / listSamples.size();
}

/// The part of a recording between its first and its last sound.
QVector<qint16> Heard(const QVector<qint16>& listSamples)
{
    constexpr int nQuiet = 200;
    int nFirst = 0;
    int nLast = listSamples.size() - 1;
    while (nFirst < listSamples.size() && qAbs(int(listSamples[nFirst])) < nQuiet)
    {
        ++nFirst;
    }
    while (nLast > nFirst && qAbs(int(listSamples[nLast])) < nQuiet)
    {
        --nLast;
    }
    return listSamples.mid(nFirst, nLast - nFirst + 1);
}

} // namespace

class tst_SoundPreview : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void init();

    void TheServerIsFound();
    void ThePreviewIsHeard();
    void ARelativePathIsTakenFromTheWorkingFolder();
    void TheLoopOptionDoesNotCount();
    void PlayingAgainStartsAnew();
    void AFileThatIsNoSoundIsSilent();
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

    /// What the sink plays while \a act runs, and for a while after.
    QVector<qint16> Record(const std::function<void()>& act, int nAfter = 900)
    {
        QTest::qWait(100); // the end of what was there before
        m_recorder.readAllStandardOutput();
        act();
        QTest::qWait(nAfter);
        const QByteArray content = m_recorder.readAllStandardOutput();
        QVector<qint16> listSamples(content.size() / 2);
        for (int n = 0; n < listSamples.size(); ++n)
        {
            listSamples[n] = qFromLittleEndian<qint16>(content.constData() + 2 * n);
        }
        return listSamples;
    }

    struct SFixture : SPageFixture<CAlarmConfig, LocalConfigLogical::IAlarmSection, AlarmConfigInfo, CFakeAlarmSection>
    {};
    QTemporaryDir m_runtime; // in a short path, for the server's socket
    QProcess m_server;
    QProcess m_recorder; // runs all the time, since a recording begins slowly
    QScopedPointer<QTemporaryDir> m_pFolder;
    QScopedPointer<SFixture> m_pFixture;
};

void tst_SoundPreview::initTestCase()
{
    const QString strSocket = m_runtime.filePath("pulse");
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("XDG_RUNTIME_DIR", m_runtime.path());
    environment.insert("PULSE_RUNTIME_PATH", m_runtime.filePath("run"));
    m_server.setProcessEnvironment(environment);
    m_server.setProcessChannelMode(QProcess::MergedChannels);
    m_server.start("pulseaudio",
                   {"-n", "--daemonize=no", "--exit-idle-time=-1", "--use-pid-file=no", "-L",
                    QString("module-null-sink sink_name=quiet rate=%1 channels=1").arg(g_nSampleRate), "-L",
                    QString("module-native-protocol-unix auth-anonymous=1 socket=%1").arg(strSocket)});
    QVERIFY2(m_server.waitForStarted(), "pulseaudio is needed here");
    qputenv("PULSE_SERVER", "unix:" + strSocket.toLocal8Bit());
    QVERIFY2(QTest::qWaitFor([&] { return QProcess::execute("pactl", {"info"}) == 0; }, 10000),
             m_server.readAll().constData());

    m_recorder.start("parec", {"--device=quiet.monitor", "--format=s16le", "--channels=1",
                               QString("--rate=%1").arg(g_nSampleRate), "--latency-msec=30", "--raw"});
    QVERIFY(QTest::qWaitFor([this] { return m_recorder.bytesAvailable() > 0; }, 10000));
}

void tst_SoundPreview::cleanupTestCase()
{
    m_pFixture.reset();
    for (QProcess* pProcess : {&m_recorder, &m_server})
    {
        pProcess->terminate();
        pProcess->waitForFinished();
    }
}

void tst_SoundPreview::init()
{
    m_pFolder.reset(new QTemporaryDir);
    QVERIFY(QDir::setCurrent(m_pFolder->path()));
    m_pFixture.reset(new SFixture);
}

void tst_SoundPreview::TheServerIsFound()
{
    QVERIFY(UICommonMdl::CAudioOutput::IsAvailable());
}

void tst_SoundPreview::ThePreviewIsHeard()
{
    Show(Put("tone.wav", MakeWav(Tone(1000, 0.4))));
    const QVector<qint16> listHeard = Heard(Record([this] { Play(); }));
    const double dSeconds = double(listHeard.size()) / g_nSampleRate;
    QVERIFY2(dSeconds > 0.3 && dSeconds < 0.5, qPrintable(QString::number(dSeconds)));
    QVERIFY2(Strength(listHeard, 1000) > 5000, qPrintable(QString::number(Strength(listHeard, 1000))));
    QVERIFY(Strength(listHeard, 700) < 500);
    QVERIFY(Strength(listHeard, 1500) < 500);
}

void tst_SoundPreview::ARelativePathIsTakenFromTheWorkingFolder()
{
    QVERIFY(QDir().mkpath("Sound/sound_en"));
    Put("Sound/sound_en/default.wav", MakeWav(Tone(600, 0.4)));
    Show(QString());
    const QVector<qint16> listHeard = Heard(Record([this] { Play(); }));
    QVERIFY2(Strength(listHeard, 600) > 5000, qPrintable(QString::number(Strength(listHeard, 600))));
}

void tst_SoundPreview::TheLoopOptionDoesNotCount()
{
    Show(Put("tone.wav", MakeWav(Tone(1000, 0.2))));
    QVERIFY(m_pFixture->Find<KVGUI::KvCheckBox>("ckbLoop")->isChecked());
    const QVector<qint16> listHeard = Heard(Record([this] { Play(); }));
    QVERIFY2(listHeard.size() < 0.3 * g_nSampleRate, qPrintable(QString::number(listHeard.size())));
    QVERIFY(listHeard.size() > 0.1 * g_nSampleRate);
}

void tst_SoundPreview::PlayingAgainStartsAnew()
{
    QVector<qint16> listSamples = Tone(1000, 0.6);
    listSamples += Tone(500, 0.6);
    Show(Put("tones.wav", MakeWav(listSamples)));
    const QVector<qint16> listHeard = Heard(Record(
        [this] {
            Play();
            QTest::qWait(400);
            Play();
        },
        1800));
    // Once for a part of the first tone, then both: never two sounds at a time, and the second tone once.
    const double dSeconds = double(listHeard.size()) / g_nSampleRate;
    QVERIFY2(dSeconds > 1.4 && dSeconds < 1.9, qPrintable(QString::number(dSeconds)));
}

void tst_SoundPreview::AFileThatIsNoSoundIsSilent()
{
    Show(Put("text.wav", "no sound at all"));
    const QVector<qint16> listSamples = Record([this] { Play(); });
    QVERIFY(!listSamples.isEmpty());
    QVERIFY(Strength(listSamples, 1000) < 10);
    QVERIFY(Heard(listSamples).size() <= 1);
}

void tst_SoundPreview::AMissingFileIsSilent()
{
    Show(m_pFolder->filePath("none.wav"));
    const QVector<qint16> listSamples = Record([this] { Play(); });
    QVERIFY(!listSamples.isEmpty());
    QVERIFY(Heard(listSamples).size() <= 1);
}

QTEST_MAIN(tst_SoundPreview)

#include "tst_SoundPreview.moc"
