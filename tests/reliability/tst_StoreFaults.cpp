// A full or failing disk comes from the preloaded library "FaultFs", see support/FaultFs.cpp.

#include "support/Permissions.h"
#include "support/StoreFixture.h"

#include <UICommonModule/CErrorCode.h>

using namespace LocalConfigClient;
using UICommonMdl::CErrorCode;

class tst_StoreFaults : public CStoreTest
{
    Q_OBJECT

private slots:
    void init() { Reset(); }
    void cleanup() { qunsetenv("KV_FAULT"); }

    void AReadOnlyFolder();
    void AFullDisk_data();
    void AFullDisk();
    void AFullDiskForTheLock();
    void SavedHandlerHearsOnlySuccess();
#ifndef Q_OS_WIN // the open file itself is the lock there
    void ALockThatCameLateDoesNotOverwrite();
#endif
#ifndef Q_OS_WIN // the system flushes folders there
    void AFolderThatIsNotFlushedIsToldAndFlushedNextTime();
    void WhatAnEarlierClientHasNotFlushedIsFlushed();
    void ASaveFlushesWhatItNeedsAndNoMore();
#endif
};

void tst_StoreFaults::AReadOnlyFolder()
{
    Put(Document(1));
    QVERIFY(SetPermissions(m_pFolder->path(), QFile::ReadOwner | QFile::ExeOwner));
    int nResult = 0;
    QStringList listProblems;
    int nWorking = 0;
    {
        ConfigService service(m_pFolder->path(), SettingsFile::ReadWrite);
        listProblems = service.GetFile().GetProblems();
        SetClientSize(service, 0);
        nResult = service.SaveAll();
        nWorking = GetBasic(service).clientSize;
    }
    SetPermissions(m_pFolder->path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    QCOMPARE(nResult, int(CErrorCode::NoPermission));
    QCOMPARE(listProblems.size(), 1);
    QCOMPARE(nWorking, 0);
    QCOMPARE(GetFile(), Document(1));
}

void tst_StoreFaults::AFullDisk_data()
{
    QTest::addColumn<QByteArray>("fault");
    QTest::addColumn<int>("nResult");
    QTest::newRow("write") << QByteArray("write:ENOSPC:") << int(CErrorCode::DiskFull);
    QTest::newRow("flush") << QByteArray("fsync:ENOSPC:") << int(CErrorCode::DiskFull);
    QTest::newRow("device") << QByteArray("write:EIO:") << int(CErrorCode::IoError);
    QTest::newRow("rename") << QByteArray("rename:EIO:") << int(CErrorCode::IoError);
}

void tst_StoreFaults::AFullDisk()
{
    QFETCH(QByteArray, fault);
    QFETCH(int, nResult);
    Put(Document(1));
    ConfigService service(m_pFolder->path(), SettingsFile::ReadWrite);
    SetClientSize(service, 0);
    qputenv("KV_FAULT", fault + m_pFolder->path().toLocal8Bit());
    QCOMPARE(service.SaveAll(), nResult);
    qunsetenv("KV_FAULT");
    QCOMPARE(GetFile(), Document(1));
    QCOMPARE(GetBasic(service).clientSize, 0);
    QCOMPARE(service.GetStored().basic.clientSize, 1);

    QCOMPARE(service.SaveAll(), 1);
    QCOMPARE(SavedClientSize(), 0);
}

void tst_StoreFaults::AFullDiskForTheLock()
{
    // Only who holds the lock cannot be written; that it is held counts all the same.
    Put(Document(1));
    qputenv("KV_FAULT", "write:ENOSPC:" + m_pFolder->path().toLocal8Bit());
    ConfigService service(m_pFolder->path(), SettingsFile::ReadWrite);
    QCOMPARE(service.GetFile().GetProblems(), QStringList());
    SetClientSize(service, 0);
    QCOMPARE(service.SaveAll(), int(CErrorCode::DiskFull));
    qunsetenv("KV_FAULT");
    QCOMPARE(GetFile(), Document(1));
    ConfigService second(m_pFolder->path(), SettingsFile::ReadWrite);
    QCOMPARE(second.SaveAll(), int(CErrorCode::Locked));
    QCOMPARE(service.SaveAll(), 1);
    QCOMPARE(SavedClientSize(), 0);
}

void tst_StoreFaults::SavedHandlerHearsOnlySuccess()
{
    ConfigService service(m_pFolder->path(), SettingsFile::ReadWrite);
    int nSaved = 0;
    service.SetSavedHandler([&] { ++nSaved; });
    SetClientSize(service, 0);
    qputenv("KV_FAULT", "write:ENOSPC:" + m_pFolder->path().toLocal8Bit());
    service.SaveAll();
    qunsetenv("KV_FAULT");
    QCOMPARE(nSaved, 0);
    service.SaveAll();
    QCOMPARE(nSaved, 1);
}

#ifndef Q_OS_WIN

void tst_StoreFaults::ALockThatCameLateDoesNotOverwrite()
{
    // The first attempt at the lock fails for another reason than a second client; meanwhile one comes and saves.
    qputenv("KV_FAULT", "flock:ENOLCK:" + m_pFolder->path().toLocal8Bit());
    ConfigService late(m_pFolder->path(), SettingsFile::ReadWrite);
    qunsetenv("KV_FAULT");
    {
        ConfigService other(m_pFolder->path(), SettingsFile::ReadWrite);
        SetClientSize(other, 1);
        QCOMPARE(other.SaveAll(), 1);
    }
    SetClientSize(late, 0);
    QCOMPARE(late.SaveAll(), int(CErrorCode::ChangedElsewhere));
    QCOMPARE(SavedClientSize(), 1);
}

void tst_StoreFaults::AFolderThatIsNotFlushedIsToldAndFlushedNextTime()
{
    Put(Document(1));
    ConfigService service(m_pFolder->path(), SettingsFile::ReadWrite);
    SetClientSize(service, 0);
    qputenv("KV_FAULT", "fsync:EIO:" + m_pFolder->path().toLocal8Bit() + '$');
    QCOMPARE(service.SaveAll(), int(CErrorCode::NotYetSafe));
    // The document is there, and nobody thinks otherwise.
    QCOMPARE(GetFile(), Document(0));
    QCOMPARE(service.GetStored().basic.clientSize, 0);
    QCOMPARE(service.SaveAll(), int(CErrorCode::NotYetSafe));
    qunsetenv("KV_FAULT");
    QCOMPARE(service.SaveAll(), 1);
}

void tst_StoreFaults::WhatAnEarlierClientHasNotFlushedIsFlushed()
{
    // Nothing changes in this save, but what it says is safe must be so.
    Put(Document(1));
    ConfigService service(m_pFolder->path(), SettingsFile::ReadWrite);
    for (const QByteArray& name : {QByteArray("$"), QByteArray("/settings.json$")})
    {
        qputenv("KV_FAULT", "fsync:EIO:" + m_pFolder->path().toLocal8Bit() + name);
        QCOMPARE(service.SaveAll(), int(CErrorCode::NotYetSafe));
    }
    qunsetenv("KV_FAULT");
    QCOMPARE(service.SaveAll(), 1);
    QCOMPARE(GetFile(), Document(1));
}

void tst_StoreFaults::ASaveFlushesWhatItNeedsAndNoMore()
{
    // The last good generation, the document, the names of both.
    for (int nFlush = 1; nFlush <= 4; ++nFlush)
    {
        Reset();
        Put(Document(1));
        ConfigService service(m_pFolder->path(), SettingsFile::ReadWrite);
        SetClientSize(service, 0);
        qputenv("KV_FAULT", "fsync:EIO:" + m_pFolder->path().toLocal8Bit() + ':' + QByteArray::number(nFlush));
        QCOMPARE(service.SaveAll() == CErrorCode::Success, nFlush > 3);
    }
}

#endif

QTEST_GUILESS_MAIN(tst_StoreFaults)

#include "tst_StoreFaults.moc"
