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
    void init() { Reset(); }

    void AKillAtAnyCallLeavesTheOldOrTheNewDocument();
    void AKillAtAnyMomentLeavesTheOldOrTheNewDocument();
    void AFaultOfAnyCallLosesNothing();

private:
    /// The folder as it is before the work: a document and the one before it.
    void Prepare()
    {
        Reset();
        Put(Document(g_nOld));
        Put(Document(0), "settings.json.bak");
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
        const QByteArray document = GetFile();
        const int nOldest = qMax(nAcknowledged, g_nOld);
        bool bKnown = false;
        for (int nSize = nOldest; nSize <= g_nSecond; ++nSize)
        {
            bKnown = bKnown || document == Document(nSize);
        }
        QVERIFY2(bKnown, "the document is none that was saved, or an older one");
        ConfigService service(m_pFolder->path(), SettingsFile::ReadWrite);
        QCOMPARE(service.GetFile().GetProblems(), QStringList());
        QVERIFY(Names().filter(".tmp-").isEmpty());
        SetClientSize(service, 0);
        QCOMPARE(service.SaveAll(), 1);
        QCOMPARE(GetFile(), Document(0));
        QCOMPARE(GetFile("settings.json.bak"), document);
    }

    CTracedChild m_child;
};

void tst_SaveUnderTrace::AKillAtAnyCallLeavesTheOldOrTheNewDocument()
{
    int nKills = 0;
    for (bool bEnded = false; !bEnded;)
    {
        Prepare();
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
    int nFaults = 0;
    bool bReached = true;
    for (int nFaulty = 0; bReached; ++nFaulty)
    {
        // Which call it is shows only when it comes, and with it the errors that it can have.
        bReached = false;
        int nErrors = 1;
        for (int nError = 0; nError < nErrors; ++nError)
        {
            Prepare();
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
            const bool bUnflushed = pFallible->nCall == SYS_fsync && pFallible->listErrors[nError] != EINVAL;
            QVERIFY2(!bUnflushed || nResult != CErrorCode::Success, what.constData());
            QVERIFY2(GetFile() == Document(bStored ? g_nFirst : g_nOld), what.constData());
            ConfigService service(m_pFolder->path(), SettingsFile::ReadWrite);
            QVERIFY2(service.GetFile().GetProblems().isEmpty(), what.constData());
            SetClientSize(service, g_nSecond);
            QVERIFY2(service.SaveAll() == CErrorCode::Success, what.constData());
            QVERIFY2(GetFile() == Document(g_nSecond), what.constData());
        }
    }
    qInfo("%d faults", nFaults);
    QVERIFY(nFaults > 100);
}

QTEST_GUILESS_MAIN(tst_SaveUnderTrace)

#include "tst_SaveUnderTrace.moc"
