// Faults come from the preloaded library "FaultFs", see support/FaultFs.cpp.

#include <UICommonModule/CErrorCode.h>
#include <UICommonModule/CFileLock.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <csignal>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

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
    void AKilledProcessHoldsNothing();
    void WhatTheFileSaysDoesNotLock_data();
    void WhatTheFileSaysDoesNotLock();
    void AStrangerInItsPlaceDoesNotLock_data();
    void AStrangerInItsPlaceDoesNotLock();
    void ALinkIsNotWrittenThrough();
    void AFolderInItsPlaceIsReported();
    void AReadOnlyFolderIsReported();
    void AMissingFolderIsReported();
    void AFullDiskLocksAllTheSame();
    void ASystemWithoutLocksIsReported();

private:
    QString Path() const { return m_pFolder->filePath("the.lock"); }
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

void tst_FileLock::AFolderInItsPlaceIsReported()
{
    QVERIFY(QDir().mkpath(Path()));
    QCOMPARE(CFileLock(Path()).Take("note"), int(CErrorCode::NotAFile));
}

void tst_FileLock::AReadOnlyFolderIsReported()
{
    QVERIFY(QFile::setPermissions(m_pFolder->path(), QFile::ReadOwner | QFile::ExeOwner));
    const int nResult = CFileLock(Path()).Take("note");
    QFile::setPermissions(m_pFolder->path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
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

void tst_FileLock::ASystemWithoutLocksIsReported()
{
    qputenv("KV_FAULT", "flock:ENOLCK:" + Path().toLocal8Bit());
    QCOMPARE(CFileLock(Path()).Take("note"), int(CErrorCode::IoError));
}

QTEST_GUILESS_MAIN(tst_FileLock)

#include "tst_FileLock.moc"
