// A full disk comes from the library "FaultFs", preloaded into the client, see support/FaultFs.cpp.

#include "support/ChangedSettings.h"
#include "support/ClientProcess.h"
#include "support/Permissions.h"

#include <UICommonModule/CErrorCode.h>
#include <client/store/FolderLock.h>

#include <QSysInfo>
#include <QTcpServer>
#include <QTcpSocket>

using namespace LocalConfigClient;

class tst_ClientFaults : public CClientProcessTest
{
    Q_OBJECT

private slots:
    void init() { Reset(); }

    void AReadOnlyFolderLosesNothing_data();
    void AReadOnlyFolderLosesNothing();
    void AFullDiskLosesNothing();
    void ASecondClientLosesNothing();
#ifdef Q_OS_LINUX // where a process tells how much memory it has had
    void AFloodFromTheServerTakesNoMemory();
#endif
};

void tst_ClientFaults::AReadOnlyFolderLosesNothing_data()
{
    QTest::addColumn<QStringList>("listArguments");
    QTest::newRow("import") << QStringList{"--import", "in.json"};
    QTest::newRow("one setting") << QStringList{"--set", "video.nDefaultSplit=9"};
}

void tst_ClientFaults::AReadOnlyFolderLosesNothing()
{
    QFETCH(QStringList, listArguments);
    listArguments.replaceInStrings("in.json", m_pOther->filePath("in.json"));
    Put(Path("settings.json"), Document(ChangedSettings()));
    Put(m_pOther->filePath("in.json"), Document(Settings()));
    const QMap<QString, QByteArray> mapBefore = Snapshot(m_pFolder->path());
    SetPermissions(m_pFolder->path(), QFile::ReadOwner | QFile::ExeOwner);
    const SRun run = Client(listArguments);
    const SRun dump = Client({"--dump"});
    SetPermissions(m_pFolder->path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    QCOMPARE(run.nExitCode, 1);
    QCOMPARE(run.listErrors.size(), 1);
    QVERIFY(run.listErrors.first().contains("permission"));
    QCOMPARE(dump.output, Document(ChangedSettings()));
    QCOMPARE(Snapshot(m_pFolder->path()), mapBefore);
}

void tst_ClientFaults::AFullDiskLosesNothing()
{
    Put(Path("settings.json"), Document(ChangedSettings()));
    Put(m_pOther->filePath("in.json"), Document(Settings()));
    const QMap<QString, QByteArray> mapBefore = Snapshot(m_pFolder->path());
    m_environment.insert("LD_PRELOAD", QString::fromLocal8Bit(qgetenv("KV_FAULT_LIBRARY")));
    m_environment.insert("ASAN_OPTIONS", "verify_asan_link_order=0");
    m_environment.insert("KV_FAULT", "write:ENOSPC:" + m_pFolder->path());
    const SRun run = Client({"--import", m_pOther->filePath("in.json")});
    QCOMPARE(run.nExitCode, 1);
    QCOMPARE(run.listErrors.size(), 1);
    QVERIFY2(run.listErrors.first().contains("the disk is full"), qPrintable(run.listErrors.first()));
    QVERIFY(QFile::remove(Path("settings.lock"))); // which stays, but holds nothing
    QCOMPARE(Snapshot(m_pFolder->path()), mapBefore);
}

void tst_ClientFaults::ASecondClientLosesNothing()
{
    Put(Path("settings.json"), Document(ChangedSettings()));
    Put(m_pOther->filePath("in.json"), Document(Settings()));
    FolderLock lock(Path("settings.lock"));
    QCOMPARE(lock.Take(), int(UICommonMdl::CErrorCode::Success));
    const QMap<QString, QByteArray> mapBefore = Snapshot(m_pFolder->path());
    const SRun run = Client({"--import", m_pOther->filePath("in.json")});
    QCOMPARE(run.nExitCode, 1);
    QCOMPARE(run.listErrors.size(), 1);
    QVERIFY2(run.listErrors.first().contains(
                 QString("Another client (process %1 on %2)")
                     .arg(QString::number(QCoreApplication::applicationPid()), QSysInfo::machineHostName())),
             qPrintable(run.listErrors.first()));
    QCOMPARE(Snapshot(m_pFolder->path()), mapBefore);
    QCOMPARE(Client({"--dump"}).output, Document(ChangedSettings()));
}

#ifdef Q_OS_LINUX

namespace
{

/// The most memory that a process has had, in megabytes.
int GetPeakMemory(qint64 nProcess)
{
    QFile file(QString("/proc/%1/status").arg(nProcess));
    if (!file.open(QIODevice::ReadOnly))
    {
        return -1;
    }
    const QByteArray text = file.readAll();
    const int nStart = text.indexOf("VmHWM:") + 6;
    return text.mid(nStart, text.indexOf("kB", nStart) - nStart).trimmed().toInt() / 1024;
}

} // namespace

void tst_ClientFaults::AFloodFromTheServerTakesNoMemory()
{
    m_environment.insert("ASAN_OPTIONS", "quarantine_size_mb=1"); // which would be taken for the client's memory
    QTcpServer server;
    QVERIFY(server.listen(QHostAddress::LocalHost));
    QProcess process;
    process.setProcessEnvironment(m_environment);
    process.start(QString::fromLocal8Bit(qgetenv("KV_CLIENT")),
                  {"--platform", QString("127.0.0.1:%1").arg(server.serverPort()), "--data-dir", m_pFolder->path()});
    QVERIFY(server.waitForNewConnection(30000));
    QTcpSocket* pSocket = server.nextPendingConnection();
    QTest::qWait(1000); // the window and the dialog have taken what they need
    const int nBefore = GetPeakMemory(process.processId());
    QVERIFY(nBefore > 0);

    constexpr qint64 nFlood = 200 * 1024 * 1024;
    const QByteArray chunk(1024 * 1024, 'x');
    for (qint64 nSent = 0; nSent < nFlood; nSent += chunk.size())
    {
        pSocket->write(chunk);
        QVERIFY(pSocket->waitForBytesWritten(10000));
    }
    QTRY_COMPARE_WITH_TIMEOUT(pSocket->bytesToWrite(), qint64(0), 30000);
    const int nGrowth = GetPeakMemory(process.processId()) - nBefore;
    QVERIFY2(nGrowth < 4, qPrintable(QString::number(nGrowth)));

    QElapsedTimer timer;
    timer.start();
    process.terminate();
    QVERIFY(process.waitForFinished(10000));
    QVERIFY(timer.elapsed() < 5000);
}

#endif

QTEST_GUILESS_MAIN(tst_ClientFaults)

#include "tst_ClientFaults.moc"
