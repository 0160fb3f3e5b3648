#pragma once

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <QtEndian>
#include <QtTest>

#include <algorithm>
#include <cmath>
#include <functional>

constexpr int g_nSampleRate = 22050;
constexpr double g_dPi = 3.14159265358979323846;

inline QVector<qint16> Tone(double dFrequency, double dSeconds)
{
    QVector<qint16> listSamples(int(dSeconds * g_nSampleRate));
    for (int n = 0; n < listSamples.size(); ++n)
    {
        listSamples[n] = qint16(12000 * std::sin(2 * g_dPi * dFrequency * n / g_nSampleRate));
    }
    return listSamples;
}

inline QByteArray MakeWav(const QVector<qint16>& listSamples)
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
inline double Strength(const QVector<qint16>& listSamples, double dFrequency)
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

/// For how many seconds a recording has a frequency.
inline double Duration(const QVector<qint16>& listSamples, double dFrequency)
{
    constexpr int nPiece = g_nSampleRate / 50;
    int nPieces = 0;
    for (int n = 0; n + nPiece <= listSamples.size(); n += nPiece)
    {
        nPieces += Strength(listSamples.mid(n, nPiece), dFrequency) > 5000 ? 1 : 0;
    }
    return double(nPieces) * nPiece / g_nSampleRate;
}

/// Behind the last sample that is loud enough to be heard, 0 without one.
inline int EndOfSound(const QVector<qint16>& listSamples)
{
    constexpr int nQuiet = 200;
    const auto last = std::find_if(listSamples.rbegin(), listSamples.rend(),
                                   [](qint16 nSample) { return qAbs(int(nSample)) >= nQuiet; });
    return int(listSamples.rend() - last);
}

/// The part of a recording between its first and its last sound.
inline QVector<qint16> Heard(QVector<qint16> listSamples)
{
    listSamples.resize(EndOfSound(listSamples));
    std::reverse(listSamples.begin(), listSamples.end());
    listSamples.resize(EndOfSound(listSamples));
    std::reverse(listSamples.begin(), listSamples.end());
    return listSamples;
}

/// A sound server whose sink plays into nothing, and a recorder that listens to it. The server is the one that this
/// process plays on from then on; start it before anything asks for a sound device.
class CSoundServer
{
public:
    ~CSoundServer()
    {
        for (QProcess* pProcess : {&m_recorder, &m_server})
        {
            pProcess->terminate();
            pProcess->waitForFinished();
        }
    }

    void Start()
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
        QVERIFY2(QTest::qWaitFor([] { return QProcess::execute("pactl", {"info"}) == 0; }, 10000),
                 m_server.readAll().constData());
        m_recorder.start("parec", {"--device=quiet.monitor", "--format=s16le", "--channels=1",
                                   QString("--rate=%1").arg(g_nSampleRate), "--latency-msec=30", "--raw"});
        QVERIFY(QTest::qWaitFor([this] { return m_recorder.bytesAvailable() > 0; }, 10000));
    }

    /// What the sink plays from \a act on until a sound was over for a while, \a nMost milliseconds after it at most.
    QVector<qint16> Record(const std::function<void()>& act, int nMost = 10000)
    {
        constexpr int nPause = 700;
        QTest::qWait(100); // the end of what was there before
        m_recorder.readAllStandardOutput();
        act();
        (void)QTest::qWaitFor(
            [this] {
                const QVector<qint16> listSamples = Recorded();
                const int nEnd = EndOfSound(listSamples);
                return nEnd > 0 && listSamples.size() - nEnd > nPause * g_nSampleRate / 1000;
            },
            nMost);
        return Recorded();
    }

    /// Waits until the recording under way has a frequency.
    bool WaitUntilHeard(double dFrequency)
    {
        return QTest::qWaitFor([this, dFrequency] { return Duration(Recorded(), dFrequency) > 0; }, 10000);
    }

private:
    QVector<qint16> Recorded()
    {
        const QByteArray content = m_recorder.peek(m_recorder.bytesAvailable());
        QVector<qint16> listSamples(content.size() / 2);
        qFromLittleEndian<qint16>(content.constData(), listSamples.size(), listSamples.data());
        return listSamples;
    }

    QTemporaryDir m_runtime; // in a short path, for the server's socket
    QProcess m_server;
    QProcess m_recorder; // runs all the time, since a recording begins slowly
};
