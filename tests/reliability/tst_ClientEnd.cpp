// How the client's program ends when the operating system tells it to. POSIX only.

#include "support/ChangedSettings.h"
#include "support/ClientProcess.h"

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

QTEST_GUILESS_MAIN(tst_ClientEnd)

#include "tst_ClientEnd.moc"
