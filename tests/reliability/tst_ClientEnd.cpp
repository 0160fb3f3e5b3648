// How the client's program ends when the operating system tells it to. POSIX only. A name server that does not answer
// comes from the library "FaultFs", preloaded into the client, see support/FaultFs.cpp.

#include "support/ChangedSettings.h"
#include "support/ClientProcess.h"

#include <QElapsedTimer>

#include <csignal>

using namespace LocalConfigClient;

class tst_ClientEnd : public CClientProcessTest
{
    Q_OBJECT

private slots:
    void init() { Reset(); }

    void ASignalEndsTheWindowInGoodOrder_data();
    void ASignalEndsTheWindowInGoodOrder();
    void ASignalEndsADumpAtOnce();
    void AFileSizeLimitIsAFullDisk();
    void AFileSizeLimitDoesNotEndTheWindow();
    void ASilentNameServerDelaysNoEnd();

private:
    void Start(QProcess& process, QStringList listArguments = {}) const
    {
        process.setProcessEnvironment(m_environment);
        process.start(QString::fromLocal8Bit(qgetenv("KV_CLIENT")), listArguments << "--data-dir" << m_pFolder->path());
        QVERIFY(process.waitForStarted());
    }

    /// Starts the client's window and waits until it can hear signals.
    void OpenWindow(QProcess& process, const QStringList& listArguments = {}) const
    {
        Start(process, listArguments);
        QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(Path("settings.lock")), 30000);
        QTest::qWait(300); // the dialog stands then, on a machine that is not too slow
    }

    /// The command of a client whose files may not grow beyond a block.
    QStringList WithFileSizeLimit(const QStringList& listArguments) const
    {
        return QStringList{"-c", "ulimit -f 1; exec \"$@\"", "sh", QString::fromLocal8Bit(qgetenv("KV_CLIENT"))} +
               listArguments + QStringList{"--data-dir", m_pFolder->path()};
    }
};

void tst_ClientEnd::ASignalEndsTheWindowInGoodOrder_data()
{
    QTest::addColumn<int>("nSignal");
    QTest::newRow("terminate") << SIGTERM;
    QTest::newRow("interrupt") << SIGINT;
    QTest::newRow("hang up") << SIGHUP;
}

void tst_ClientEnd::ASignalEndsTheWindowInGoodOrder()
{
    QFETCH(int, nSignal);
    QProcess process;
    OpenWindow(process);
    ::kill(pid_t(process.processId()), nSignal);
    QVERIFY(process.waitForFinished(10000));
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 0);
    QCOMPARE(process.readAllStandardError(), QByteArray());
}

void tst_ClientEnd::ASignalEndsADumpAtOnce()
{
    Settings settings = ChangedSettings();
    settings.snapshot.picturePath =
        std::string(1024 * 1024, 'x'); // more than a pipe holds, so that the dump has to wait
    Put(Path("settings.json"), Document(settings));
    QProcess process;
    Start(process, {"--dump"});
    QThread::msleep(500);
    ::kill(pid_t(process.processId()), SIGTERM);
    QVERIFY(process.waitForFinished(10000));
    QCOMPARE(process.exitStatus(), QProcess::CrashExit);
    QCOMPARE(process.exitCode(), SIGTERM);
}

void tst_ClientEnd::AFileSizeLimitIsAFullDisk()
{
    Put(Path("settings.json"), Document(ChangedSettings()));
    Put(m_pOther->filePath("in.json"), Document(Settings()));
    const QMap<QString, QByteArray> mapBefore = Snapshot(m_pFolder->path());
    QProcess process;
    process.setProcessEnvironment(m_environment);
    process.start("sh", WithFileSizeLimit({"--import", m_pOther->filePath("in.json")}));
    QVERIFY(process.waitForFinished(30000));
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 1);
    const QByteArray error = process.readAllStandardError();
    QVERIFY2(error.contains("the disk is full"), error.constData());
    QCOMPARE(error.count('\n'), 1);
    QMap<QString, QByteArray> mapAfter = Snapshot(m_pFolder->path());
    mapAfter.remove("settings.lock");
    QCOMPARE(mapAfter, mapBefore);
}

void tst_ClientEnd::AFileSizeLimitDoesNotEndTheWindow()
{
    QProcess process;
    process.setProcessEnvironment(m_environment);
    process.start("sh", WithFileSizeLimit({}));
    QByteArray told;
    QTRY_VERIFY_WITH_TIMEOUT((told += process.readAllStandardError()).contains("sounds"), 30000); // which do not fit
    QTest::qWait(500);
    QCOMPARE(process.state(), QProcess::Running);
    process.terminate();
    QVERIFY(process.waitForFinished(10000));
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
}

void tst_ClientEnd::ASilentNameServerDelaysNoEnd()
{
    m_environment.insert("LD_PRELOAD", QString::fromLocal8Bit(qgetenv("KV_FAULT_LIBRARY")));
    m_environment.insert("ASAN_OPTIONS", "verify_asan_link_order=0");
    m_environment.insert("KV_SILENT_NAME_SERVER", "20");
    QProcess process;
    OpenWindow(process, {"--platform", "server.example:554"});
    QByteArray told;
    QTRY_VERIFY((told += process.readAllStandardError()).contains("name server"));
    QElapsedTimer timer;
    timer.start();
    process.terminate();
    QVERIFY(process.waitForFinished(30000));
    const qint64 nTime = timer.elapsed();
    QVERIFY2(nTime < 5000, qPrintable(QString::number(nTime))); // a small part of what the server takes
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 0);
}

QTEST_GUILESS_MAIN(tst_ClientEnd)

#include "tst_ClientEnd.moc"
