// A full disk comes from the library "FaultFs", preloaded into the client, see support/FaultFs.cpp.

#include "support/ChangedSettings.h"
#include "support/ClientProcess.h"

#include <UICommonModule/CErrorCode.h>
#include <client/store/FolderLock.h>

#include <QSysInfo>

using namespace LocalConfigClient;

class tst_ClientFaults : public CClientProcessTest
{
    Q_OBJECT

private slots:
    void init() { Reset(); }

    void AReadOnlyFolderLosesNothing();
    void AFullDiskLosesNothing();
    void ASecondClientLosesNothing();
};

void tst_ClientFaults::AReadOnlyFolderLosesNothing()
{
    Put(Path("settings.json"), Document(ChangedSettings()));
    Put(m_pOther->filePath("in.json"), Document(Settings()));
    const QMap<QString, QByteArray> mapBefore = Snapshot(m_pFolder->path());
    QFile::setPermissions(m_pFolder->path(), QFile::ReadOwner | QFile::ExeOwner);
    const SRun run = Client({"--import", m_pOther->filePath("in.json")});
    const SRun dump = Client({"--dump"});
    QFile::setPermissions(m_pFolder->path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
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

QTEST_GUILESS_MAIN(tst_ClientFaults)

#include "tst_ClientFaults.moc"
