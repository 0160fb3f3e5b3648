// Faults come from the preloaded library "FaultFs", see support/FaultFs.cpp.

#include "support/Permissions.h"

#include <UICommonModule/CAtomicFile.h>
#include <UICommonModule/CErrorCode.h>

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#ifndef Q_OS_WIN
#include <csignal>
#include <grp.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#endif

using UICommonMdl::CAtomicFile;
using UICommonMdl::CErrorCode;

class tst_AtomicFile : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { qunsetenv("KV_FAULT"); }

    void WritesANewFile();
    void ReplacesAFile();
    void WritesAnEmptyFile();
    void WritesALargeFile();
#ifndef Q_OS_WIN // there are no modes and no root there
    void KeepsThePermissions();
#endif
#ifndef Q_OS_WIN // links need a right of their own there, and Wine makes none
    void FollowsASymbolicLink();
#endif
    void LeavesNoTemporaryFile();
    void AMissingFolderIsReported();
    void AReadOnlyFolderIsReported();
    void AReadOnlyFileIsReported();
    void AFolderInPlaceOfTheFileIsReported();
    void AFolderBehindAClosedOneIsNotMissing();
#ifndef Q_OS_WIN // no limit of a file's size there
    void ALimitOfSizeCountsAsFull();
#endif
    void FaultsLoseNothing_data();
    void FaultsLoseNothing();
#ifndef Q_OS_WIN // the system flushes folders there
    void AFolderThatIsNotFlushedIsTold();
#endif
#ifndef Q_OS_WIN // there are no modes and no root there
    void TheOwnerStaysWhenRootWrites();
    void TheGroupStaysWhenAMemberWrites();
#endif
#ifndef Q_OS_WIN // links need a right of their own there, and Wine makes none
    void ALinkWithoutAnEndIsNotReplaced();
#endif
    void ATakenNameIsLeftAlone_data();
    void ATakenNameIsLeftAlone();
#ifndef Q_OS_WIN // links need a right of their own there, and Wine makes none
    void ALinkIsReplacedWhereANameIsMeant();
#endif

    void KeepingSurvivesTheNextWrite();
    void KeepingTwiceLeavesNoTemporaryFile();
    void KeepingCopiesWhereAFileHasOneName();
    void AFolderInTheWayOfKeepingIsReported();
    void LeftoversOfKilledWritersGo();

    void ReadsAFile();
    void AMissingFileIsReported();
    void AnUnreadableFileIsReported();
    void AFolderIsNotRead();
#ifndef Q_OS_WIN // pipes and devices stand in no folder there
    void APipeIsNotOpened();
#endif
    void AFileInAClosedFolderIsNotMissing();
#ifndef Q_OS_WIN // links need a right of their own there, and Wine makes none
    void ALinkToNothingIsNotMissing();
    void ALinkToItselfIsNotMissing();
#endif
    void ATooLargeFileIsNotRead();

#ifdef Q_OS_WIN
    void AFileThatIsLetGoIsReplaced();
    void AFileThatIsHeldIsNotReplaced();
    void AFileThatIsLetGoIsRead();
    void AFileThatIsHeldIsNotRead();
    void TheAccessListStays();
    void AFileWithARefusingAccessListIsReported();
    void OtherNamesOfAFileAreUnderstood_data();
    void OtherNamesOfAFileAreUnderstood();
#endif

    void RemovesAFile();
    void RemovingAMissingFileIsNoError();
#ifndef Q_OS_WIN // who may remove a file is said by the file there
    void AFileOfAReadOnlyFolderIsNotRemoved();
#endif
    void AFolderIsNotRemoved();

private:
    QString Path(const char* pszName = "file.txt") const
    {
        return m_pFolder->filePath(pszName);
    }
    void Put(const QByteArray& content, const char* pszName = "file.txt") const
    {
        QFile file(Path(pszName));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
    }
    QByteArray Get(const char* pszName = "file.txt") const
    {
        QFile file(Path(pszName));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(none)");
    }
    QStringList Names() const
    {
        return QDir(m_pFolder->path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    }

    QScopedPointer<QTemporaryDir> m_pFolder;
};

void tst_AtomicFile::init()
{
    m_pFolder.reset(new QTemporaryDir);
}

void tst_AtomicFile::WritesANewFile()
{
    QCOMPARE(CAtomicFile::Write(Path(), "new"), int(CErrorCode::Success));
    QCOMPARE(Get(), QByteArray("new"));
}

void tst_AtomicFile::ReplacesAFile()
{
    Put("old and longer");
    QCOMPARE(CAtomicFile::Write(Path(), "new"), int(CErrorCode::Success));
    QCOMPARE(Get(), QByteArray("new"));
}

void tst_AtomicFile::WritesAnEmptyFile()
{
    Put("old");
    QCOMPARE(CAtomicFile::Write(Path(), QByteArray()), int(CErrorCode::Success));
    QCOMPARE(Get(), QByteArray());
}

void tst_AtomicFile::WritesALargeFile()
{
    const QByteArray content(5 * 1024 * 1024, 'x');
    QCOMPARE(CAtomicFile::Write(Path(), content), int(CErrorCode::Success));
    QCOMPARE(Get(), content);
}

#ifndef Q_OS_WIN

void tst_AtomicFile::KeepsThePermissions()
{
    Put("old");
    for (const QFile::Permissions permissions :
         {QFile::ReadOwner | QFile::WriteOwner, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup})
    {
        QVERIFY(QFile::setPermissions(Path(), permissions));
        const QFile::Permissions before = QFile::permissions(Path());
        QCOMPARE(CAtomicFile::Write(Path(), "new"), int(CErrorCode::Success));
        QCOMPARE(QFile::permissions(Path()), before);
    }
}

void tst_AtomicFile::FollowsASymbolicLink()
{
    Put("old", "target.txt");
    QVERIFY(QFile::link("target.txt", Path()));
    QCOMPARE(CAtomicFile::Write(Path(), "new"), int(CErrorCode::Success));
    QVERIFY(QFileInfo(Path()).isSymLink());
    QCOMPARE(Get("target.txt"), QByteArray("new"));
}

#endif

void tst_AtomicFile::LeavesNoTemporaryFile()
{
    CAtomicFile::Write(Path(), "new");
    QCOMPARE(Names(), QStringList{"file.txt"});
}

void tst_AtomicFile::AMissingFolderIsReported()
{
    QCOMPARE(CAtomicFile::Write(Path("none/file.txt"), "new"), int(CErrorCode::FolderMissing));
}

void tst_AtomicFile::AReadOnlyFolderIsReported()
{
    Put("old");
    QVERIFY(SetPermissions(m_pFolder->path(), QFile::ReadOwner | QFile::ExeOwner));
    const int nResult = CAtomicFile::Write(Path(), "new");
    SetPermissions(m_pFolder->path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    QCOMPARE(nResult, int(CErrorCode::NoPermission));
    QCOMPARE(Get(), QByteArray("old"));
    QCOMPARE(Names(), QStringList{"file.txt"});
}

void tst_AtomicFile::AReadOnlyFileIsReported()
{
    Put("old");
    QVERIFY(QFile::setPermissions(Path(), QFile::ReadOwner));
    QCOMPARE(CAtomicFile::Write(Path(), "new"), int(CErrorCode::NoPermission));
    QCOMPARE(Get(), QByteArray("old"));
}

void tst_AtomicFile::AFolderInPlaceOfTheFileIsReported()
{
    QVERIFY(QDir().mkpath(Path()));
    QCOMPARE(CAtomicFile::Write(Path(), "new"), int(CErrorCode::NotAFile));
    QVERIFY(QFileInfo(Path()).isDir());
}

void tst_AtomicFile::AFolderBehindAClosedOneIsNotMissing()
{
    QVERIFY(QDir().mkpath(Path("closed/folder")));
    const CPermissions closed(Path("closed"), {});
    QCOMPARE(CAtomicFile::Write(Path("closed/folder/file.txt"), "new"), int(CErrorCode::NoPermission));
}

#ifndef Q_OS_WIN

void tst_AtomicFile::ALimitOfSizeCountsAsFull()
{
    Put("old");
    rlimit before{};
    QCOMPARE(getrlimit(RLIMIT_FSIZE, &before), 0);
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    rlimit limit = before;
    limit.rlim_cur = 4096;
    QCOMPARE(setrlimit(RLIMIT_FSIZE, &limit), 0);
    const int nResult = CAtomicFile::Write(Path(), QByteArray(100000, 'x'));
    setrlimit(RLIMIT_FSIZE, &before);
    std::signal(SIGXFSZ, handler);
    QCOMPARE(nResult, int(CErrorCode::DiskFull));
    QCOMPARE(Get(), QByteArray("old"));
    QCOMPARE(Names(), QStringList{"file.txt"});
}

#endif

void tst_AtomicFile::FaultsLoseNothing_data()
{
    QTest::addColumn<QByteArray>("fault");
    QTest::addColumn<int>("nResult");
    QTest::newRow("full while writing") << QByteArray("write:ENOSPC:") << int(CErrorCode::DiskFull);
    QTest::newRow("error while writing") << QByteArray("write:EIO:") << int(CErrorCode::IoError);
    QTest::newRow("full while flushing") << QByteArray("fsync:ENOSPC:") << int(CErrorCode::DiskFull);
    QTest::newRow("error while flushing") << QByteArray("fsync:EIO:") << int(CErrorCode::IoError);
    QTest::newRow("error while renaming") << QByteArray("rename:EIO:") << int(CErrorCode::IoError);
}

void tst_AtomicFile::FaultsLoseNothing()
{
    QFETCH(QByteArray, fault);
    QFETCH(int, nResult);
    Put("old");
    qputenv("KV_FAULT", fault + m_pFolder->path().toLocal8Bit());
    QCOMPARE(CAtomicFile::Write(Path(), "new"), nResult);
    qunsetenv("KV_FAULT");
    QCOMPARE(Get(), QByteArray("old"));
    QCOMPARE(Names(), QStringList{"file.txt"});
}

void tst_AtomicFile::ReadsAFile()
{
    Put(QByteArrayLiteral("some\0bytes"));
    QByteArray content;
    QCOMPARE(CAtomicFile::Read(Path(), content), int(CErrorCode::Success));
    QCOMPARE(content, Get());
}

void tst_AtomicFile::AMissingFileIsReported()
{
    QByteArray content = "before";
    QCOMPARE(CAtomicFile::Read(Path(), content), int(CErrorCode::FileMissing));
    QVERIFY(content.isEmpty());
    QCOMPARE(CAtomicFile::Read(Path("none/file.txt"), content), int(CErrorCode::FileMissing));
}

void tst_AtomicFile::AnUnreadableFileIsReported()
{
    Put("secret");
    const CPermissions unreadable(Path(), QFile::WriteOwner);
    QByteArray content;
    QCOMPARE(CAtomicFile::Read(Path(), content), int(CErrorCode::NoPermission));
}

void tst_AtomicFile::AFolderIsNotRead()
{
    QVERIFY(QDir().mkpath(Path()));
    QByteArray content;
    QCOMPARE(CAtomicFile::Read(Path(), content), int(CErrorCode::Unreadable));
}

#ifndef Q_OS_WIN

void tst_AtomicFile::APipeIsNotOpened()
{
    // Opening it would wait for a writer for ever.
    QCOMPARE(mkfifo(qPrintable(Path()), 0600), 0);
    QByteArray content;
    QCOMPARE(CAtomicFile::Read(Path(), content), int(CErrorCode::Unreadable));
}

#endif

void tst_AtomicFile::AFileInAClosedFolderIsNotMissing()
{
    QVERIFY(QDir().mkpath(Path("closed")));
    Put("text", "closed/file.txt");
    const CPermissions closed(Path("closed"), {});
    QByteArray content;
    QCOMPARE(CAtomicFile::Read(Path("closed/file.txt"), content), int(CErrorCode::NoPermission));
}

void tst_AtomicFile::RemovesAFile()
{
    Put("old");
    QCOMPARE(CAtomicFile::Remove(Path()), int(CErrorCode::Success));
    QVERIFY(Names().isEmpty());
}

void tst_AtomicFile::RemovingAMissingFileIsNoError()
{
    QCOMPARE(CAtomicFile::Remove(Path()), int(CErrorCode::Success));
    QCOMPARE(CAtomicFile::Remove(Path("none/file.txt")), int(CErrorCode::Success));
}

#ifndef Q_OS_WIN

void tst_AtomicFile::AFileOfAReadOnlyFolderIsNotRemoved()
{
    Put("old");
    QVERIFY(QFile::setPermissions(m_pFolder->path(), QFile::ReadOwner | QFile::ExeOwner));
    const int nResult = CAtomicFile::Remove(Path());
    QFile::setPermissions(m_pFolder->path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    QCOMPARE(nResult, int(CErrorCode::NoPermission));
    QCOMPARE(Get(), QByteArray("old"));
}

#endif

void tst_AtomicFile::AFolderIsNotRemoved()
{
    QVERIFY(QDir().mkpath(Path()));
    QCOMPARE(CAtomicFile::Remove(Path()), int(CErrorCode::NotAFile));
    QCOMPARE(Names(), QStringList("file.txt"));
}

#ifndef Q_OS_WIN

void tst_AtomicFile::AFolderThatIsNotFlushedIsTold()
{
    Put("old");
    qputenv("KV_FAULT", "fsync:EIO:" + m_pFolder->path().toLocal8Bit() + '$');
    QCOMPARE(CAtomicFile::Write(Path(), "new"), int(CErrorCode::NotYetSafe));
    QCOMPARE(Get(), QByteArray("new"));
    QCOMPARE(CAtomicFile::Flush(Path()), int(CErrorCode::NotYetSafe));
    qunsetenv("KV_FAULT");
    QCOMPARE(CAtomicFile::Flush(Path()), int(CErrorCode::Success));
}

void tst_AtomicFile::TheOwnerStaysWhenRootWrites()
{
    if (geteuid() != 0)
    {
        QSKIP("only root can write a file that stays another user's");
    }
    constexpr uid_t nUser = 12345;
    Put("old");
    QCOMPARE(chown(qPrintable(Path()), nUser, nUser), 0);
    QVERIFY(QFile::setPermissions(Path(), QFile::ReadOwner | QFile::WriteOwner | QFile::WriteOther));
    QCOMPARE(CAtomicFile::Write(Path(), "new"), int(CErrorCode::Success));
    const QFileInfo info(Path());
    QCOMPARE(info.ownerId(), uint(nUser));
    QCOMPARE(info.groupId(), uint(nUser));
    QVERIFY(info.permission(QFile::WriteOther));
}

void tst_AtomicFile::TheGroupStaysWhenAMemberWrites()
{
    if (geteuid() != 0)
    {
        QSKIP("only root can become a member of a group");
    }
    constexpr gid_t nTeam = 777;
    Put("old");
    QCOMPARE(chmod(qPrintable(m_pFolder->path()), 0777), 0);
    QCOMPARE(chmod(qPrintable(Path()), 0660), 0);
    QCOMPARE(chown(qPrintable(Path()), 12345, nTeam), 0);
    const pid_t nChild = fork();
    if (nChild == 0)
    {
        const bool bMember = setgroups(1, &nTeam) == 0 && setgid(12346) == 0 && setuid(12346) == 0;
        _exit(bMember ? CAtomicFile::Write(Path(), "new") : 0);
    }
    int nStatus = 0;
    waitpid(nChild, &nStatus, 0);
    QCOMPARE(WEXITSTATUS(nStatus), int(CErrorCode::Success));
    QCOMPARE(QFileInfo(Path()).groupId(), uint(nTeam));
    QCOMPARE(QFileInfo(Path()).ownerId(), 12346U);
    QVERIFY(QFileInfo(Path()).permission(QFile::ReadGroup | QFile::WriteGroup));
}

void tst_AtomicFile::ALinkWithoutAnEndIsNotReplaced()
{
    QVERIFY(QFile::link("file.txt", Path()));
    QCOMPARE(CAtomicFile::Write(Path(), "new"), int(CErrorCode::NotAFile));
    QVERIFY(QFileInfo(Path()).isSymLink());
}

#endif

void tst_AtomicFile::ATakenNameIsLeftAlone_data()
{
    QTest::addColumn<bool>("bLink");
    QTest::newRow("a file") << false;
#ifndef Q_OS_WIN // links need a right of their own there, and Wine makes none
    QTest::newRow("a link to nothing") << true;
#endif
}

void tst_AtomicFile::ATakenNameIsLeftAlone()
{
    QFETCH(bool, bLink);
    if (bLink)
    {
        QVERIFY(QFile::link("elsewhere.txt", Path()));
    }
    else
    {
        Put("old");
    }
    QCOMPARE(CAtomicFile::Write(Path(), "new", CAtomicFile::NewName), int(CErrorCode::FileExists));
    QCOMPARE(Get(), QByteArray(bLink ? "(none)" : "old"));
    QCOMPARE(Names(), QStringList{"file.txt"});
    QCOMPARE(CAtomicFile::Write(Path("free.txt"), "new", CAtomicFile::NewName), int(CErrorCode::Success));
    QCOMPARE(Get("free.txt"), QByteArray("new"));
}

#ifndef Q_OS_WIN

void tst_AtomicFile::ALinkIsReplacedWhereANameIsMeant()
{
    Put("old", "target.txt");
    QVERIFY(QFile::link("target.txt", Path()));
    QCOMPARE(CAtomicFile::Write(Path(), "new", CAtomicFile::ReplaceName), int(CErrorCode::Success));
    QCOMPARE(Get("target.txt"), QByteArray("old"));
    QVERIFY(!QFileInfo(Path()).isSymLink());
    QCOMPARE(Get(), QByteArray("new"));
}

#endif

void tst_AtomicFile::KeepingSurvivesTheNextWrite()
{
    Put("old");
    QCOMPARE(CAtomicFile::Keep(Path(), "old", Path("kept.txt")), int(CErrorCode::Success));
    QCOMPARE(CAtomicFile::Write(Path(), "new"), int(CErrorCode::Success));
    QCOMPARE(Get("kept.txt"), QByteArray("old"));
    QCOMPARE(Get(), QByteArray("new"));
    QCOMPARE(Names(), (QStringList{"file.txt", "kept.txt"}));
}

void tst_AtomicFile::KeepingTwiceLeavesNoTemporaryFile()
{
    Put("old");
    QCOMPARE(CAtomicFile::Keep(Path(), "old", Path("kept.txt")), int(CErrorCode::Success));
    QCOMPARE(CAtomicFile::Keep(Path(), "old", Path("kept.txt")), int(CErrorCode::Success));
    QCOMPARE(Names(), (QStringList{"file.txt", "kept.txt"}));
}

void tst_AtomicFile::KeepingCopiesWhereAFileHasOneName()
{
    Put("old");
    QVERIFY(QFile::setPermissions(Path(), QFile::ReadOwner | QFile::WriteOwner));
    qputenv("KV_FAULT", "link:EPERM:" + m_pFolder->path().toLocal8Bit());
    QCOMPARE(CAtomicFile::Keep(Path(), "old", Path("kept.txt")), int(CErrorCode::Success));
    QCOMPARE(Get("kept.txt"), QByteArray("old"));
    QCOMPARE(QFile::permissions(Path("kept.txt")), QFile::permissions(Path()));
    QCOMPARE(Names(), (QStringList{"file.txt", "kept.txt"}));
}

void tst_AtomicFile::AFolderInTheWayOfKeepingIsReported()
{
    Put("old");
    QVERIFY(QDir().mkpath(Path("kept.txt")));
    QCOMPARE(CAtomicFile::Keep(Path(), "old", Path("kept.txt")), int(CErrorCode::NotAFile));
    QCOMPARE(Names(), (QStringList{"file.txt", "kept.txt"}));
}

void tst_AtomicFile::LeftoversOfKilledWritersGo()
{
    Put("mine");
    for (const char* pszName : {"file.txt.tmp-0123abcd", "file.txt.tmp-notes.txt", "other.txt.tmp-0123abcd"})
    {
        Put("left", pszName);
    }
    CAtomicFile::RemoveLeftovers(Path());
    QCOMPARE(Names(), (QStringList{"file.txt", "file.txt.tmp-notes.txt", "other.txt.tmp-0123abcd"}));
}

#ifndef Q_OS_WIN

void tst_AtomicFile::ALinkToNothingIsNotMissing()
{
    QVERIFY(QFile::link(Path("unmounted/file.txt"), Path()));
    QByteArray content;
    QCOMPARE(CAtomicFile::Read(Path(), content), int(CErrorCode::Unreadable));
}

void tst_AtomicFile::ALinkToItselfIsNotMissing()
{
    QVERIFY(QFile::link("file.txt", Path()));
    QByteArray content;
    QCOMPARE(CAtomicFile::Read(Path(), content), int(CErrorCode::Unreadable));
}

#endif

void tst_AtomicFile::ATooLargeFileIsNotRead()
{
    Put("");
    QVERIFY(QFile::resize(Path(), CAtomicFile::g_nMaxSize + 1));
    QByteArray content;
    QCOMPARE(CAtomicFile::Read(Path(), content), int(CErrorCode::TooLarge));
    QVERIFY(QFile::resize(Path(), CAtomicFile::g_nMaxSize));
    QCOMPARE(CAtomicFile::Read(Path(), content), int(CErrorCode::Success));
    QCOMPARE(content.size(), int(CAtomicFile::g_nMaxSize));
}

#ifdef Q_OS_WIN

void tst_AtomicFile::AFileThatIsLetGoIsReplaced()
{
    Put("old");
    const CHeldFile held(Path(), 300);
    QCOMPARE(CAtomicFile::Write(Path(), "new"), int(CErrorCode::Success));
    QCOMPARE(Get(), QByteArray("new"));
    QCOMPARE(Names(), QStringList{"file.txt"});
}

void tst_AtomicFile::AFileThatIsHeldIsNotReplaced()
{
    Put("old");
    QElapsedTimer timer;
    timer.start();
    {
        const CHeldFile held(Path());
        QCOMPARE(CAtomicFile::Write(Path(), "new"), int(CErrorCode::InUse));
    }
    QVERIFY(timer.elapsed() >= 1000 && timer.elapsed() < 3000);
    QCOMPARE(Get(), QByteArray("old"));
    QCOMPARE(Names(), QStringList{"file.txt"});
}

void tst_AtomicFile::AFileThatIsLetGoIsRead()
{
    Put("text");
    const CHeldFile held(Path(), 300);
    QByteArray content;
    QCOMPARE(CAtomicFile::Read(Path(), content), int(CErrorCode::Success));
    QCOMPARE(content, QByteArray("text"));
}

void tst_AtomicFile::AFileThatIsHeldIsNotRead()
{
    Put("text");
    const CHeldFile held(Path());
    QByteArray content;
    QCOMPARE(CAtomicFile::Read(Path(), content), int(CErrorCode::InUse));
    QCOMPARE(content, QByteArray());
}

void tst_AtomicFile::TheAccessListStays()
{
    Put("other", "other.txt");
    Put("old");
    QVERIFY(SetPermissions(Path(), QFile::ReadOwner | QFile::WriteOwner));
    const QString strList = GetAccessList(Path());
    QVERIFY(strList != GetAccessList(Path("other.txt")));
    QCOMPARE(CAtomicFile::Write(Path(), "new"), int(CErrorCode::Success));
    QCOMPARE(GetAccessList(Path()), strList);
}

void tst_AtomicFile::AFileWithARefusingAccessListIsReported()
{
    Put("old");
    QVERIFY(SetPermissions(Path(), QFile::ReadOwner));
    QCOMPARE(CAtomicFile::Write(Path(), "new"), int(CErrorCode::NoPermission));
    QCOMPARE(Get(), QByteArray("old"));
    QCOMPARE(Names(), QStringList{"file.txt"});
}

void tst_AtomicFile::OtherNamesOfAFileAreUnderstood_data()
{
    QTest::addColumn<QString>("strName");
    QTest::addColumn<QString>("strReal");
    QTest::newRow("final dots") << "missing.txt.."
                                << "missing.txt";
    QTest::newRow("final blanks") << "missing.txt "
                                  << "missing.txt";
    QTest::newRow("stream") << "missing.txt:notes"
                            << "missing.txt";
    QTest::newRow("the stream") << "missing.txt::$DATA"
                                << "missing.txt";
    QTest::newRow("way and back") << "none/../missing.txt"
                                  << "missing.txt";
    QTest::newRow("other separators") << ".\\missing.txt"
                                      << "missing.txt";
    QTest::newRow("final dots of a file") << "a long name.text."
                                          << "a long name.text";
    QTest::newRow("short name") << QString() << "a long name.text";
}

void tst_AtomicFile::OtherNamesOfAFileAreUnderstood()
{
    QFETCH(QString, strName);
    QFETCH(QString, strReal);
    Put("text", "a long name.text");
    QString strPath = m_pFolder->filePath(strName);
    if (strName.isEmpty())
    {
        wchar_t szShort[MAX_PATH];
        const std::wstring path = QDir::toNativeSeparators(Path("a long name.text")).toStdWString();
        QTRY_VERIFY(::GetShortPathNameW(path.c_str(), szShort, MAX_PATH) > 0); // Wine looks into every folder above
        strPath = QString::fromWCharArray(szShort);
        QVERIFY(!strPath.endsWith("a long name.text"));
    }
    QCOMPARE(CAtomicFile::GetTarget(strPath), m_pFolder->filePath(strReal));
}

#endif

QTEST_GUILESS_MAIN(tst_AtomicFile)

#include "tst_AtomicFile.moc"
