// Faults come from the preloaded library "FaultFs", see support/FaultFs.cpp.

#include "support/Permissions.h"

#include <UICommonModule/CErrorCode.h>
#include <UICommonModule/CFileLock.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <atomic>
#include <vector>

#ifndef Q_OS_WIN
#include <csignal>
#include <sys/mman.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#endif

using UICommonMdl::CErrorCode;
using UICommonMdl::CFileLock;

class tst_FileLock : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_pFolder.reset(new QTemporaryDir); }
    void cleanup() { qunsetenv("KV_FAULT"); }

    void OnlyOneHoldsIt();
    void ItComesBackWithItsHolder();
    void TakingItTwiceDoesNothing();
    void TheFileStaysAndSaysNothingAfterwards();
    void TheNoteIsReadByOthers();
#ifndef Q_OS_WIN // forks; tst_StoreKills starts a process that it kills
    void AKilledProcessHoldsNothing();
#endif
    void WhatTheFileSaysDoesNotLock_data();
    void WhatTheFileSaysDoesNotLock();
#ifndef Q_OS_WIN // links need a right of their own there, and Wine makes none
    void AStrangerInItsPlaceDoesNotLock_data();
    void AStrangerInItsPlaceDoesNotLock();
    void ALinkIsNotWrittenThrough();
#endif
    void AFolderInItsPlaceIsReported();
    void AReadOnlyFolderIsReported();
    void AMissingFolderIsReported();
    void AFullDiskLocksAllTheSame();
#ifndef Q_OS_WIN // the open file itself is the lock there
    void ASystemWithoutLocksIsReported();
#endif
#ifndef Q_OS_WIN // there are no modes and no root there
    void AFileThatThisUserCannotOpenDoesNotLock_data();
    void AFileThatThisUserCannotOpenDoesNotLock();
    void AHeldFileThatOthersCannotWriteLocks();
#endif
#ifndef Q_OS_WIN // no file is removed there while somebody holds it
    void AHeldFileThatIsRemovedLocks();
    void ARemovedFileIsMadeAnew();
#endif
#ifndef Q_OS_WIN // forks; tst_StoreKills starts a process that it kills
    void ManyAtOnceNeverHoldItTogether_data();
    void ManyAtOnceNeverHoldItTogether();
#endif

private:
    QString Path() const
    {
        return m_pFolder->filePath("the.lock");
    }
    void Put(const QByteArray& content) const
    {
        QFile file(Path());
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
    }

    QScopedPointer<QTemporaryDir> m_pFolder;
};

void tst_FileLock::OnlyOneHoldsIt()
{
    CFileLock first(Path());
    CFileLock second(Path());
    QCOMPARE(first.Take("first"), int(CErrorCode::Success));
    QVERIFY(first.IsHeld());
    QCOMPARE(second.Take("second"), int(CErrorCode::Locked));
    QVERIFY(!second.IsHeld());
    QCOMPARE(second.GetNote(), QByteArray("first"));
}

void tst_FileLock::ItComesBackWithItsHolder()
{
    {
        CFileLock first(Path());
        QCOMPARE(first.Take("first"), int(CErrorCode::Success));
    }
    CFileLock second(Path());
    QCOMPARE(second.Take("second"), int(CErrorCode::Success));
}

void tst_FileLock::TakingItTwiceDoesNothing()
{
    CFileLock lock(Path());
    QCOMPARE(lock.Take("once"), int(CErrorCode::Success));
    QCOMPARE(lock.Take("twice"), int(CErrorCode::Success));
    QCOMPARE(lock.GetNote(), QByteArray("once"));
}

void tst_FileLock::TheFileStaysAndSaysNothingAfterwards()
{
    {
        CFileLock lock(Path());
        QCOMPARE(lock.Take("note"), int(CErrorCode::Success));
    }
    QVERIFY(QFile::exists(Path()));
    QCOMPARE(QFileInfo(Path()).size(), qint64(0));
}

void tst_FileLock::TheNoteIsReadByOthers()
{
    Put("an older and longer note");
    CFileLock lock(Path());
    QCOMPARE(lock.Take("note"), int(CErrorCode::Success));
    QCOMPARE(CFileLock(Path()).GetNote(), QByteArray("note"));
}

#ifndef Q_OS_WIN

void tst_FileLock::AKilledProcessHoldsNothing()
{
    int arrReady[2];
    QCOMPARE(pipe(arrReady), 0);
    const pid_t nChild = fork();
    if (nChild == 0)
    {
        CFileLock lock(Path());
        const char cTaken = lock.Take("child") == CErrorCode::Success ? 'y' : 'n';
        (void)!write(arrReady[1], &cTaken, 1);
        pause();
    }
    char cTaken = 0;
    QCOMPARE(read(arrReady[0], &cTaken, 1), ssize_t(1));
    close(arrReady[0]);
    close(arrReady[1]);
    QCOMPARE(cTaken, 'y');
    CFileLock lock(Path());
    const int nWhileAlive = lock.Take("parent");
    kill(nChild, SIGKILL);
    waitpid(nChild, nullptr, 0);
    QCOMPARE(nWhileAlive, int(CErrorCode::Locked));
    QCOMPARE(lock.GetNote(), QByteArray("child"));
    QCOMPARE(lock.Take("parent"), int(CErrorCode::Success));
}

#endif

void tst_FileLock::WhatTheFileSaysDoesNotLock_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("cut") << QByteArray("12");
    QTest::newRow("garbled") << QByteArray("\x00\xff\xfe garbled", 11);
    QTest::newRow("this process") << QByteArray::number(QCoreApplication::applicationPid()) + "\nhere\n";
    QTest::newRow("another host") << QByteArray("1\nelsewhere\n");
}

void tst_FileLock::WhatTheFileSaysDoesNotLock()
{
    QFETCH(QByteArray, content);
    Put(content);
    CFileLock lock(Path());
    QCOMPARE(lock.Take("mine"), int(CErrorCode::Success));
}

#ifndef Q_OS_WIN

void tst_FileLock::AStrangerInItsPlaceDoesNotLock_data()
{
    QTest::addColumn<bool>("bPipe");
    QTest::newRow("a pipe") << true;
    QTest::newRow("a link to nothing") << false;
}

void tst_FileLock::AStrangerInItsPlaceDoesNotLock()
{
    QFETCH(bool, bPipe);
    if (bPipe)
    {
        QCOMPARE(mkfifo(qPrintable(Path()), 0600), 0);
    }
    else
    {
        QVERIFY(QFile::link("nowhere", Path()));
    }
    CFileLock first(Path());
    CFileLock second(Path());
    QCOMPARE(first.Take("first"), int(CErrorCode::Success));
    QCOMPARE(second.Take("second"), int(CErrorCode::Locked));
}

void tst_FileLock::ALinkIsNotWrittenThrough()
{
    QFile file(m_pFolder->filePath("precious.txt"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("precious");
    file.close();
    QVERIFY(QFile::link("precious.txt", Path()));
    CFileLock lock(Path());
    QCOMPARE(lock.Take("note"), int(CErrorCode::Success));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("precious"));
}

#endif

void tst_FileLock::AFolderInItsPlaceIsReported()
{
    QVERIFY(QDir().mkpath(Path()));
    QCOMPARE(CFileLock(Path()).Take("note"), int(CErrorCode::NotAFile));
}

void tst_FileLock::AReadOnlyFolderIsReported()
{
    QVERIFY(SetPermissions(m_pFolder->path(), QFile::ReadOwner | QFile::ExeOwner));
    const int nResult = CFileLock(Path()).Take("note");
    SetPermissions(m_pFolder->path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    QCOMPARE(nResult, int(CErrorCode::NoPermission));
}

void tst_FileLock::AMissingFolderIsReported()
{
    QCOMPARE(CFileLock(m_pFolder->filePath("none/the.lock")).Take("note"), int(CErrorCode::FolderMissing));
}

void tst_FileLock::AFullDiskLocksAllTheSame()
{
    qputenv("KV_FAULT", "write:ENOSPC:" + Path().toLocal8Bit());
    CFileLock first(Path());
    QCOMPARE(first.Take("first"), int(CErrorCode::Success));
    QCOMPARE(CFileLock(Path()).Take("second"), int(CErrorCode::Locked));
    QCOMPARE(first.GetNote(), QByteArray());
}

#ifndef Q_OS_WIN

void tst_FileLock::ASystemWithoutLocksIsReported()
{
    qputenv("KV_FAULT", "flock:ENOLCK:" + Path().toLocal8Bit());
    QCOMPARE(CFileLock(Path()).Take("note"), int(CErrorCode::IoError));
}

void tst_FileLock::AFileThatThisUserCannotOpenDoesNotLock_data()
{
    QTest::addColumn<bool>("bPipe");
    QTest::addColumn<int>("nMode");
    QTest::newRow("not to be written") << false << 0400;
    QTest::newRow("not to be read either") << false << 0;
    QTest::newRow("a pipe") << true << 0;
}

void tst_FileLock::AFileThatThisUserCannotOpenDoesNotLock()
{
    // Such as one that root has left behind.
    QFETCH(bool, bPipe);
    QFETCH(int, nMode);
    QCOMPARE(bPipe ? mkfifo(qPrintable(Path()), 0600) : mknod(qPrintable(Path()), S_IFREG | 0600, 0), 0);
    QCOMPARE(chmod(qPrintable(Path()), mode_t(nMode)), 0);
    CFileLock first(Path());
    QCOMPARE(first.Take("first"), int(CErrorCode::Success));
    QCOMPARE(first.GetNote(), QByteArray("first"));
    QCOMPARE(CFileLock(Path()).Take("second"), int(CErrorCode::Locked));
}

void tst_FileLock::AHeldFileThatOthersCannotWriteLocks()
{
    for (const mode_t nMode : {0400, 0})
    {
        CFileLock first(Path());
        QCOMPARE(first.Take("first"), int(CErrorCode::Success));
        QCOMPARE(chmod(qPrintable(Path()), nMode), 0);
        QCOMPARE(CFileLock(Path()).Take("second"), int(CErrorCode::Locked));
        QVERIFY(first.IsHeld());
    }
}

void tst_FileLock::AHeldFileThatIsRemovedLocks()
{
    CFileLock first(Path());
    QCOMPARE(first.Take("first"), int(CErrorCode::Success));
    QVERIFY(QFile::remove(Path()));
    QCOMPARE(CFileLock(Path()).Take("second"), int(CErrorCode::Locked));
}

void tst_FileLock::ARemovedFileIsMadeAnew()
{
    CFileLock first(Path());
    QCOMPARE(first.Take("first"), int(CErrorCode::Success));
    QVERIFY(QFile::remove(Path()));
    QVERIFY(!first.IsHeld());
    QCOMPARE(first.Take("again"), int(CErrorCode::Success));
    QCOMPARE(CFileLock(Path()).GetNote(), QByteArray("again"));
}

void tst_FileLock::ManyAtOnceNeverHoldItTogether_data()
{
    QTest::addColumn<char>("cMeddler");
    QTest::newRow("left alone") << ' ';
    QTest::newRow("removed") << 'r';
    QTest::newRow("a link planted") << 'l';
    QTest::newRow("a pipe planted") << 'p';
}

void tst_FileLock::ManyAtOnceNeverHoldItTogether()
{
    QFETCH(char, cMeddler);
    struct SShared
    {
        std::atomic<int> nHolders;
        std::atomic<int> nTogether;
        std::atomic<int> nTaken;
        std::atomic<int> nFailed;
        std::atomic<bool> bEnd;
    };
    void* pMemory = mmap(nullptr, sizeof(SShared), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    QVERIFY(pMemory != MAP_FAILED);
    auto* pShared = new (pMemory) SShared{};

    const auto start = [](const auto& work) {
        const pid_t nChild = fork();
        if (nChild == 0)
        {
            work();
            _exit(0);
        }
        return nChild;
    };
    const QByteArray path = Path().toLocal8Bit();
    const pid_t nMeddler = start([&] {
        while (cMeddler != ' ' && !pShared->bEnd)
        {
            unlink(path.constData());
            (void)!(cMeddler == 'l' ? symlink("victim", path.constData()) : 0);
            (void)!(cMeddler == 'p' ? mkfifo(path.constData(), 0600) : 0);
            usleep(50);
        }
    });
    constexpr int g_nContenders = 8;
    constexpr int g_nRounds = 400;
    std::vector<pid_t> listContenders;
    for (int n = 0; n < g_nContenders; ++n)
    {
        listContenders.push_back(start([&] {
            for (int nRound = 0; nRound < g_nRounds; ++nRound)
            {
                CFileLock lock(Path());
                const int nResult = lock.Take("contender");
                if (nResult == CErrorCode::Success)
                {
                    pShared->nTogether += ++pShared->nHolders > 1 ? 1 : 0;
                    ++pShared->nTaken;
                    usleep(100);
                    --pShared->nHolders;
                }
                pShared->nFailed += nResult != CErrorCode::Success && nResult != CErrorCode::Locked ? 1 : 0;
            }
        }));
    }
    for (const pid_t nChild : listContenders)
    {
        waitpid(nChild, nullptr, 0);
    }
    pShared->bEnd = true;
    waitpid(nMeddler, nullptr, 0);
    const int nTaken = pShared->nTaken;
    const int nTogether = pShared->nTogether;
    const int nFailed = pShared->nFailed;
    munmap(pMemory, sizeof(SShared));
    qInfo("taken %d times of %d", nTaken, g_nContenders * g_nRounds);
    QVERIFY(nTaken > 0);
    QCOMPARE(nTogether, 0);
    QCOMPARE(nFailed, 0);
    QVERIFY(!QFile::exists(m_pFolder->filePath("victim")));
    CFileLock lock(Path());
    QCOMPARE(lock.Take("afterwards"), int(CErrorCode::Success));
}

#endif

QTEST_GUILESS_MAIN(tst_FileLock)

#include "tst_FileLock.moc"
