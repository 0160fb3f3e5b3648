// A save that is killed at each of its system calls, and one each of whose system calls fails in turn.

#include "support/Chance.h"
#include "support/StoreFixture.h"
#include "support/TracedChild.h"

#include <UICommonModule/CErrorCode.h>

#include <QElapsedTimer>

#include <csignal>
#include <sys/syscall.h>

using namespace LocalConfigClient;
using UICommonMdl::CErrorCode;

namespace
{

/// Calls that ask the system for something that can be refused, and with what.
struct SFallible
{
    long nCall;
    const char* pszName;
    QVector<int> listErrors;
};

const SFallible g_arrFallible[] = {
    {SYS_openat, "openat", {EIO, EACCES, ENOSPC, EMFILE, ESTALE, ELOOP, ENOENT, EROFS}},
    {SYS_open, "open", {EIO, EACCES, ENOSPC, EMFILE, ESTALE, ELOOP, ENOENT, EROFS}},
    {SYS_write, "write", {EIO, ENOSPC, EDQUOT, EFBIG}},
    {SYS_pwrite64, "pwrite64", {EIO, ENOSPC}},
    {SYS_read, "read", {EIO, ESTALE}},
    {SYS_fsync, "fsync", {EIO, ENOSPC, EDQUOT, EINVAL}},
    {SYS_ftruncate, "ftruncate", {EIO, ENOSPC}},
    {SYS_rename, "rename", {EIO, EACCES, ENOSPC, EROFS, EXDEV}},
    {SYS_renameat, "renameat", {EIO, EACCES, ENOSPC}},
    {SYS_renameat2, "renameat2", {EIO, EACCES, ENOSPC, EINVAL}},
    {SYS_link, "link", {EIO, EPERM, EMLINK, EXDEV, ENOSPC}},
    {SYS_unlink, "unlink", {EIO, EACCES}},
    {SYS_fchmod, "fchmod", {EIO, EPERM}},
    {SYS_fchown, "fchown", {EIO, EPERM}},
    {SYS_flock, "flock", {EIO, ENOLCK, EWOULDBLOCK}},
    {SYS_fstat, "fstat", {EIO, ESTALE}},
    {SYS_stat, "stat", {EIO, EACCES, ESTALE}},
    {SYS_lstat, "lstat", {EIO, EACCES, ESTALE}},
    {SYS_newfstatat, "newfstatat", {EIO, EACCES, ESTALE}},
    {SYS_statx, "statx", {EIO, EACCES, ESTALE}},
    {SYS_access, "access", {EIO, EACCES}},
    {SYS_faccessat, "faccessat", {EIO, EACCES}},
    {SYS_faccessat2, "faccessat2", {EIO, EACCES}},
    {SYS_readlink, "readlink", {EIO, EACCES}},
    {SYS_getdents64, "getdents64", {EIO}},
    {SYS_close, "close", {EIO}},
    {SYS_lseek, "lseek", {EIO}},
};

const SFallible* FindFallible(long nCall)
{
    for (const SFallible& fallible : g_arrFallible)
    {
        if (fallible.nCall == nCall)
        {
            return &fallible;
        }
    }
    return nullptr;
}

constexpr int g_nOld = 1; // client sizes, by which the documents are told apart
constexpr int g_nFirst = 2;
constexpr int g_nSecond = 3;

} // namespace

class tst_SaveUnderTrace : public CStoreTest
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        const QByteArray memory = "/dev/shm"; // where waiting for the disk takes no time
        if (QFileInfo(memory).isWritable())
        {
            qputenv("TMPDIR", memory);
        }
    }
    void init() { Reset(); }

    void AKillAtAnyCallLeavesTheOldOrTheNewDocument_data() { AddDocuments(); }
    void AKillAtAnyCallLeavesTheOldOrTheNewDocument();
    void AKillAtAnyMomentLeavesTheOldOrTheNewDocument();
    void AFaultOfAnyCallLosesNothing_data() { AddDocuments(); }
    void AFaultOfAnyCallLosesNothing();

private:
    static void AddDocuments()
    {
        QTest::addColumn<bool>("bDamaged");
        QTest::addColumn<bool>("bLink");
        QTest::newRow("a document") << false << false;
        QTest::newRow("a link") << false << true;
        QTest::newRow("a damaged document") << true << false;
        QTest::newRow("a damaged document behind a link") << true << true;
    }

    /// The folder as it is before the work: a document that is nobody else's to read, and the one before it.
    void Prepare(bool bDamaged = false, bool bLink = false)
    {
        Reset();
        m_bDamaged = bDamaged;
        m_bLink = bLink;
        QVERIFY(QDir().mkpath(Path("elsewhere")));
        Put(bDamaged ? QByteArray("damaged") : Document(g_nOld), bLink ? "elsewhere/real.json" : "settings.json");
        QVERIFY(!bLink || QFile::link("elsewhere/real.json", Path("settings.json")));
        QVERIFY(QFile::setPermissions(Path("settings.json"), QFile::ReadOwner | QFile::WriteOwner));
        Put(Document(bDamaged ? g_nOld : 0), "settings.json.bak");
    }

    /// What holds at any moment: the document is what it was or was to be, no other file stands in its place, and the
    /// last good generation is one.
    void CheckFiles(int nOldest)
    {
        const QByteArray document = GetFile();
        bool bKnown = m_bDamaged && nOldest <= g_nOld && document == "damaged";
        bool bLastGood = false;
        for (int nSize = 0; nSize <= g_nSecond; ++nSize)
        {
            bKnown = bKnown || (nSize >= nOldest && document == Document(nSize));
            bLastGood = bLastGood || GetFile("settings.json.bak") == Document(nSize);
        }
        QVERIFY2(bKnown, "the document is none that was saved, or an older one");
        QVERIFY2(bLastGood, "the last good generation is none");
        QCOMPARE(QFileInfo(Path("settings.json")).isSymLink(), m_bLink);
        QCOMPARE(QFile::permissions(Path("settings.json")) & (QFile::ReadGroup | QFile::ReadOther), 0);
    }

    QStringList Leftovers() const
    {
        return (Names() + QDir(Path("elsewhere")).entryList(QDir::Files | QDir::Hidden)).filter(".tmp-");
    }

    /// A client that starts and saves twice.
    static void SaveTwice(const QString& strFolder, CTracedChild::Shared& shared)
    {
        ConfigService service(strFolder, SettingsFile::ReadWrite);
        for (const int nSize : {g_nFirst, g_nSecond})
        {
            SetClientSize(service, nSize);
            shared.nResult = service.SaveAll();
            if (shared.nResult == CErrorCode::Success)
            {
                shared.nAcknowledged = nSize;
            }
        }
    }

    static void SaveOnce(const QString& strFolder, CTracedChild::Shared& shared)
    {
        ConfigService service(strFolder, SettingsFile::ReadWrite);
        SetClientSize(service, g_nFirst);
        shared.nResult = service.SaveAll();
    }

    /// After a kill: nothing older than what was acknowledged, nothing half, and the next client is served as ever.
    void CheckAfterKill(int nAcknowledged)
    {
        CheckFiles(qMax(nAcknowledged, g_nOld));
        const QByteArray document = GetFile();
        const bool bDamaged = document == "damaged";
        ConfigService service(m_pFolder->path(), SettingsFile::ReadWrite);
        QCOMPARE(service.GetFile().GetProblems().size(), bDamaged ? 1 : 0);
        QCOMPARE(Leftovers(), QStringList());
        QCOMPARE(SetAside().isEmpty(), !m_bDamaged);
        SetClientSize(service, 0);
        QCOMPARE(service.SaveAll(), 1);
        QCOMPARE(GetFile(), Document(0));
        QCOMPARE(GetFile("settings.json.bak"), bDamaged ? Document(g_nOld) : document);
    }

    bool m_bDamaged = false;
    bool m_bLink = false;
    CTracedChild m_child;
};

void tst_SaveUnderTrace::AKillAtAnyCallLeavesTheOldOrTheNewDocument()
{
    QFETCH(bool, bDamaged);
    QFETCH(bool, bLink);
    int nKills = 0;
    for (bool bEnded = false; !bEnded;)
    {
        Prepare(bDamaged, bLink);
        const QString strFolder = m_pFolder->path();
        bEnded =
            m_child.Run([&](CTracedChild::Shared& shared) { SaveTwice(strFolder, shared); },
                        [&](int nStop, long) { return nStop == nKills ? CTracedChild::Kill : CTracedChild::GoOn; });
        CheckAfterKill(m_child.GetShared().nAcknowledged);
        QVERIFY2(!QTest::currentTestFailed(), qPrintable(QString("killed at stop %1").arg(nKills)));
        ++nKills;
    }
    QCOMPARE(m_child.GetShared().nAcknowledged, g_nSecond);
    qInfo("%d kills", nKills - 1);
    QVERIFY(nKills > 100);
}

void tst_SaveUnderTrace::AKillAtAnyMomentLeavesTheOldOrTheNewDocument()
{
    CChance chance;
    const int nKills = Repetitions(50, 1000);
    for (int n = 0; n < nKills; ++n)
    {
        Prepare();
        const pid_t nChild = fork();
        if (nChild == 0)
        {
            for (;;)
            {
                ConfigService service(m_pFolder->path(), SettingsFile::ReadWrite);
                for (const int nSize : {g_nFirst, g_nSecond, g_nOld})
                {
                    SetClientSize(service, nSize);
                    service.SaveAll();
                }
            }
        }
        usleep(useconds_t(chance.Below(20000)));
        kill(nChild, SIGKILL);
        waitpid(nChild, nullptr, 0);
        CheckAfterKill(0);
        QVERIFY2(!QTest::currentTestFailed(), qPrintable(QString("kill %1").arg(n)));
    }
}

void tst_SaveUnderTrace::AFaultOfAnyCallLosesNothing()
{
    QFETCH(bool, bDamaged);
    QFETCH(bool, bLink);
    int nFaults = 0;
    bool bReached = true;
    for (int nFaulty = 0; bReached; ++nFaulty)
    {
        // Which call it is shows only when it comes, and with it the errors that it can have.
        bReached = false;
        int nErrors = 1;
        for (int nError = 0; nError < nErrors; ++nError)
        {
            Prepare(bDamaged, bLink);
            const QString strFolder = m_pFolder->path();
            const SFallible* pFallible = nullptr;
            int nFallible = 0;
            m_child.Run([&](CTracedChild::Shared& shared) { SaveOnce(strFolder, shared); },
                        [&](int nStop, long nCall) {
                            const SFallible* pCall = nStop % 2 == 0 ? FindFallible(nCall) : nullptr;
                            if (!pCall || nFallible++ != nFaulty)
                            {
                                return CTracedChild::GoOn;
                            }
                            pFallible = pCall;
                            m_child.SetError(pCall->listErrors[nError]);
                            return CTracedChild::Fail;
                        });
            if (!pFallible)
            {
                break;
            }
            bReached = true;
            nErrors = pFallible->listErrors.size();
            ++nFaults;

            const int nResult = m_child.GetShared().nResult;
            const bool bStored = nResult == CErrorCode::Success || nResult == CErrorCode::NotYetSafe;
            const QByteArray what = QByteArray("call ") + QByteArray::number(nFaulty) + ' ' + pFallible->pszName +
                                    ": " + qt_error_string(pFallible->listErrors[nError]).toUtf8() + ", result " +
                                    QByteArray::number(nResult);
            QVERIFY2(nResult != CErrorCode::Unknown, what.constData());
            // What a start could not flush when it set a document aside the save has written anew.
            const bool bUnflushed =
                !bDamaged && pFallible->nCall == SYS_fsync && pFallible->listErrors[nError] != EINVAL;
            QVERIFY2(!bUnflushed || nResult != CErrorCode::Success, what.constData());
            QVERIFY2(bStored == (GetFile() == Document(g_nFirst)), what.constData());
            CheckFiles(g_nOld);
            const bool bStillDamaged = GetFile() == "damaged";
            ConfigService service(m_pFolder->path(), SettingsFile::ReadWrite);
            QVERIFY2(service.GetFile().GetProblems().size() == (bStillDamaged ? 1 : 0), what.constData());
            QVERIFY2(Leftovers().isEmpty(), what.constData());
            SetClientSize(service, g_nSecond);
            QVERIFY2(service.SaveAll() == CErrorCode::Success, what.constData());
            QVERIFY2(GetFile() == Document(g_nSecond), what.constData());
            QVERIFY2(!QTest::currentTestFailed(), what.constData());
        }
    }
    qInfo("%d faults", nFaults);
    QVERIFY(nFaults > 100);
}

QTEST_GUILESS_MAIN(tst_SaveUnderTrace)

#include "tst_SaveUnderTrace.moc"
