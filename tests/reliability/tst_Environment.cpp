// The real client on file systems that are full, on more than one of them, beside other clients, and for other users.
// Small file systems are mounted in a mount namespace of the test's own. Where that is not allowed the test says so,
// and the disk that fails comes from the library "FaultFs", preloaded into the client, see support/FaultFs.cpp. Linux
// only.

#include "support/ChangedSettings.h"
#include "support/ClientProcess.h"

#include <QSet>

#include <cerrno>
#include <csignal>
#include <sched.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace LocalConfigClient;

namespace
{

constexpr uid_t g_nUser = 12345;
constexpr char g_szFull[] = "the disk is full";

bool WriteText(const char* pszPath, const QByteArray& text)
{
    QFile file(QString::fromLatin1(pszPath));
    return file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) && file.write(text) == text.size();
}

/// Mounts that nobody else sees, as root or in a user namespace in which this user stays who he is, so that a program
/// that is started there has no more rights than before. Before any thread is there.
bool EnterOwnMounts()
{
    const QByteArray user = QByteArray::number(getuid());
    const QByteArray group = QByteArray::number(getgid());
    bool bEntered = unshare(CLONE_NEWNS) == 0;
    if (!bEntered)
    {
        bEntered = unshare(CLONE_NEWUSER | CLONE_NEWNS) == 0 && WriteText("/proc/self/setgroups", "deny") &&
                   WriteText("/proc/self/uid_map", user + ' ' + user + " 1") &&
                   WriteText("/proc/self/gid_map", group + ' ' + group + " 1");
    }
    return bEntered && mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
}

} // namespace

class tst_Environment : public CClientProcessTest
{
    Q_OBJECT

public:
    bool m_bMayMount = false;

private slots:
    void init()
    {
        Reset();
        Put(m_pOther->filePath("in.json"), Document(ChangedSettings()));
    }
    void cleanup()
    {
        for (const QString& strFolder : m_listMounts)
        {
            umount2(qPrintable(strFolder), MNT_DETACH);
        }
        m_listMounts.clear();
    }

    void AnImportOntoAFullFileSystemLosesNothing_data();
    void AnImportOntoAFullFileSystemLosesNothing();
    void AnExportOntoAFullFileSystemLosesNothing();
    void AFileSizeLimitCountsAsAFullDisk();
    void ADocumentOnAnotherFileSystemStaysThere_data();
    void ADocumentOnAnotherFileSystemStaysThere();
    void AReadOnlyFileSystemIsTold();
    void ManyClientsAtOnceLoseNothing_data();
    void ManyClientsAtOnceLoseNothing();
    void AClientWhoseLockFileIsRemovedKeepsOthersOut();
    void AUserGoesOnWhereRootHasSaved();

private:
    /// \return whether a file system of its own is now in the folder
    bool Mount(const QString& strFolder, const QByteArray& options)
    {
        const bool bMounted =
            m_bMayMount && mount("tmpfs", qPrintable(strFolder), "tmpfs", 0, options.constData()) == 0;
        if (bMounted)
        {
            m_listMounts += strFolder;
            chmod(qPrintable(strFolder), 0700);
        }
        else
        {
            qWarning("No file system may be mounted here (%s).", options.constData());
        }
        return bMounted;
    }

    void SetFault(const QByteArray& fault)
    {
        m_environment.insert("LD_PRELOAD", QString::fromLocal8Bit(qgetenv("KV_FAULT_LIBRARY")));
        m_environment.insert("ASAN_OPTIONS", "verify_asan_link_order=0");
        m_environment.insert("KV_FAULT", fault);
    }

    SRun Import() const { return Client({"--import", m_pOther->filePath("in.json")}); }

    /// Everything in the data folder but the lock, and what fills the file system.
    QMap<QString, QByteArray> Files() const
    {
        QMap<QString, QByteArray> mapFiles = Snapshot(m_pFolder->path());
        mapFiles.remove("settings.lock");
        for (const QString& strName : mapFiles.keys())
        {
            if (strName.startsWith("filler"))
            {
                mapFiles.remove(strName);
            }
        }
        return mapFiles;
    }

    /// Takes all space, or all names, of the data folder's file system.
    void FillUp(bool bNames)
    {
        bool bFull = false;
        for (m_nFillers = 0; !bFull && m_nFillers < 1000; ++m_nFillers)
        {
            QFile file(Filler(m_nFillers));
            const QByteArray content(bNames ? 0 : 4096, 'x');
            bFull = !file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) || file.write(content) != content.size();
        }
        QVERIFY(bFull);
    }
    bool FreeOne() { return m_nFillers > 0 && (QFile::remove(Filler(--m_nFillers)) || m_nFillers > 0); }
    QString Filler(int nNumber) const { return Path(QString("filler%1").arg(nNumber)); }

    QStringList m_listMounts;
    int m_nFillers = 0;
};

void tst_Environment::AnImportOntoAFullFileSystemLosesNothing_data()
{
    QTest::addColumn<QByteArray>("options");
    QTest::addColumn<QByteArray>("fault"); // where nothing may be mounted
    QTest::addColumn<QByteArray>("document");
    QTest::addColumn<QByteArray>("lastGood");
    const QByteArray good = Document(Settings());
    const QByteArray space = "size=96k";
    const QByteArray names = "size=1m,nr_inodes=24";
    QTest::newRow("no space") << space << QByteArray("write:ENOSPC:") << good << good;
    QTest::newRow("no space, damaged") << space << QByteArray("write:ENOSPC:") << QByteArray("damaged") << good;
    QTest::newRow("no space, missing") << space << QByteArray("write:ENOSPC:") << QByteArray() << good;
    QTest::newRow("no names") << names << QByteArray("fsync:ENOSPC:") << good << good;
    QTest::newRow("no names, damaged") << names << QByteArray("fsync:ENOSPC:") << QByteArray("damaged") << good;
    QTest::newRow("no names, missing") << names << QByteArray("rename:ENOSPC:") << QByteArray() << good;
}

void tst_Environment::AnImportOntoAFullFileSystemLosesNothing()
{
    QFETCH(QByteArray, options);
    QFETCH(QByteArray, fault);
    QFETCH(QByteArray, document);
    QFETCH(QByteArray, lastGood);
    const bool bMounted = Mount(m_pFolder->path(), options);
    if (!document.isEmpty())
    {
        Put(Path("settings.json"), document);
    }
    Put(Path("settings.json.bak"), lastGood);
    if (bMounted)
    {
        FillUp(options.contains("nr_inodes"));
    }
    else
    {
        SetFault(fault + m_pFolder->path().toLocal8Bit());
    }

    // Ever more room, until it is enough.
    SRun run = Import();
    int nRefused = 0;
    while (run.nExitCode != 0)
    {
        QCOMPARE(run.nExitCode, 1);
        QCOMPARE(run.listErrors.size(), 1);
        QVERIFY2(run.listErrors.first().contains(g_szFull), qPrintable(run.listErrors.first()));
        // A damaged document may find room under another name before the import finds some.
        QMap<QString, QByteArray> mapFiles = Files();
        const bool bAside = document == "damaged" && mapFiles.value("settings.json") == lastGood;
        QCOMPARE(mapFiles.take("settings.json.bak"), lastGood);
        QCOMPARE(mapFiles.take("settings.json"), bAside ? lastGood : document);
        QCOMPARE(mapFiles.values(), bAside ? QList<QByteArray>{document} : QList<QByteArray>());
        ++nRefused;
        if (bMounted)
        {
            QVERIFY(FreeOne());
        }
        m_environment.remove("KV_FAULT");
        run = Import();
    }
    QVERIFY(nRefused > 0);
    QCOMPARE(Files().value("settings.json"), Document(ChangedSettings()));
    QCOMPARE(Files().value("settings.json.bak"), lastGood);
    QVERIFY(QStringList(Files().keys()).filter(".tmp-").isEmpty());
}

void tst_Environment::AnExportOntoAFullFileSystemLosesNothing()
{
    const bool bMounted = Mount(m_pOther->path(), "size=64k");
    Put(Path("settings.json"), Document(ChangedSettings()));
    const QString strFile = m_pOther->filePath("out.json");
    Put(strFile, "before");
    QFile filler(m_pOther->filePath("filler"));
    QVERIFY(filler.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    if (bMounted)
    {
        QVERIFY(filler.write(QByteArray(128 * 1024, 'x')) < 128 * 1024);
    }
    else
    {
        SetFault("write:ENOSPC:" + m_pOther->path().toLocal8Bit());
    }
    const SRun run = Client({"--export", strFile});
    QCOMPARE(run.nExitCode, 1);
    QCOMPARE(run.listErrors.size(), 1);
    QVERIFY2(run.listErrors.first().contains(g_szFull), qPrintable(run.listErrors.first()));
    QCOMPARE(Snapshot(m_pOther->path()).value("out.json"), QByteArray("before"));
    QVERIFY(QStringList(Snapshot(m_pOther->path()).keys()).filter(".tmp-").isEmpty());
}

void tst_Environment::AFileSizeLimitCountsAsAFullDisk()
{
    Put(Path("settings.json"), Document(Settings()));
    const QMap<QString, QByteArray> mapBefore = Files();
    QProcess process;
    process.setProcessEnvironment(m_environment);
    process.start("sh", {"-c", "trap '' XFSZ; ulimit -f 1; exec \"$@\"", "sh", qgetenv("KV_CLIENT"), "--import",
                         m_pOther->filePath("in.json"), "--data-dir", m_pFolder->path()});
    QVERIFY(process.waitForFinished());
    const QByteArray error = process.readAllStandardError();
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 1);
    QCOMPARE(error.count('\n'), 1);
    QVERIFY2(error.contains(g_szFull), error.constData());
    QCOMPARE(Files(), mapBefore);
}

void tst_Environment::ADocumentOnAnotherFileSystemStaysThere_data()
{
    QTest::addColumn<QByteArray>("document");
    QTest::addColumn<int>("nFiles");
    QTest::newRow("good") << Document(Settings()) << 2;
    QTest::newRow("damaged") << QByteArray("damaged") << 3;
}

void tst_Environment::ADocumentOnAnotherFileSystemStaysThere()
{
    QFETCH(QByteArray, document);
    QFETCH(int, nFiles);
    Mount(m_pOther->path(), "size=256k");
    Put(m_pOther->filePath("in.json"), Document(ChangedSettings()));
    const QString strReal = m_pOther->filePath("real.json");
    Put(strReal, document);
    QVERIFY(QFile::setPermissions(strReal, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup));
    const QFile::Permissions mode = QFile::permissions(strReal);
    QVERIFY(QFile::link(strReal, Path("settings.json")));
    QCOMPARE(Import().nExitCode, 0);
    QVERIFY(QFileInfo(Path("settings.json")).isSymLink());
    QCOMPARE(Snapshot(m_pOther->path()).value("real.json"), Document(ChangedSettings()));
    QCOMPARE(QFile::permissions(strReal), mode);
    QCOMPARE(QDir(m_pOther->path()).entryList(QDir::Files), (QStringList{"in.json", "real.json"}));
    QCOMPARE(Files().size(), nFiles);
    for (const QString& strName : Files().keys())
    {
        QCOMPARE(QFile::permissions(Path(strName)), mode);
    }
}

void tst_Environment::AReadOnlyFileSystemIsTold()
{
    const bool bMounted = Mount(m_pFolder->path(), "size=64k");
    Put(Path("settings.json"), Document(Settings()));
    const QMap<QString, QByteArray> mapBefore = Files();
    const QByteArray folder = m_pFolder->path().toLocal8Bit();
    QCOMPARE(bMounted ? mount("tmpfs", folder.constData(), nullptr, MS_REMOUNT | MS_RDONLY, nullptr)
                      : chmod(folder.constData(), 0500),
             0);
    const SRun run = Import();
    const SRun dump = Client({"--dump"});
    chmod(folder.constData(), 0700);
    QCOMPARE(run.nExitCode, 1);
    QCOMPARE(run.listErrors.size(), 1);
    QVERIFY2(run.listErrors.first().contains("permission"), qPrintable(run.listErrors.first()));
    QCOMPARE(dump.nExitCode, 0);
    QCOMPARE(dump.output, Document(Settings()));
    QCOMPARE(Files(), mapBefore);
}

void tst_Environment::ManyClientsAtOnceLoseNothing_data()
{
    QTest::addColumn<bool>("bRemoveLock");
    QTest::newRow("left alone") << false;
    QTest::newRow("the lock file is removed") << true;
}

void tst_Environment::ManyClientsAtOnceLoseNothing()
{
    QFETCH(bool, bRemoveLock);
    constexpr int nClients = 8;
    QVector<QByteArray> listDocuments;
    std::vector<std::unique_ptr<QProcess>> listProcesses;
    for (int n = 0; n < nClients; ++n)
    {
        Settings settings = ChangedSettings();
        settings.snapshot.picturePath = std::to_string(n);
        listDocuments += Document(settings);
        Put(m_pOther->filePath(QString::number(n)), listDocuments.last());
    }
    for (int n = 0; n < nClients; ++n)
    {
        listProcesses.push_back(std::make_unique<QProcess>());
        listProcesses.back()->setProcessEnvironment(m_environment);
        listProcesses.back()->start(
            QString::fromLocal8Bit(qgetenv("KV_CLIENT")),
            {"--import", m_pOther->filePath(QString::number(n)), "--data-dir", m_pFolder->path()});
    }
    QSet<QByteArray> setStored;
    for (int n = 0; n < nClients; ++n)
    {
        QProcess& process = *listProcesses[std::size_t(n)];
        while (!process.waitForFinished(1) && process.state() != QProcess::NotRunning)
        {
            if (bRemoveLock)
            {
                QFile::remove(Path("settings.lock"));
            }
        }
        const QByteArray error = process.readAllStandardError();
        if (process.exitCode() == 0)
        {
            setStored += listDocuments[n];
            QCOMPARE(error, QByteArray());
        }
        else
        {
            QCOMPARE(process.exitCode(), 1);
            QVERIFY2(error.contains("nother client") || error.contains("was changed by another program"),
                     error.constData());
            QCOMPARE(error.count('\n'), 1);
        }
    }
    qInfo("%d of %d clients saved", setStored.size(), nClients);
    const QMap<QString, QByteArray> mapFiles = Files();
    QVERIFY(setStored.contains(mapFiles.value("settings.json")));
    QVERIFY(setStored.size() == 1 || setStored.contains(mapFiles.value("settings.json.bak")));
    QVERIFY(QStringList(mapFiles.keys()).filter(".tmp-").isEmpty());
}

void tst_Environment::AClientWhoseLockFileIsRemovedKeepsOthersOut()
{
    Put(Path("settings.json"), Document(Settings()));
    QProcess window;
    window.setProcessEnvironment(m_environment);
    window.start(QString::fromLocal8Bit(qgetenv("KV_CLIENT")), {"--data-dir", m_pFolder->path()});
    QTRY_VERIFY_WITH_TIMEOUT(QFileInfo(Path("settings.lock")).size() > 0, 30000);
    QVERIFY(QFile::remove(Path("settings.lock")));
    const SRun run = Import();
    QCOMPARE(run.nExitCode, 1);
    QVERIFY2(run.listErrors.value(0).contains("Another client"), qPrintable(run.listErrors.value(0)));
    QCOMPARE(Files().value("settings.json"), Document(Settings()));
    window.kill();
    QVERIFY(window.waitForFinished());
    QCOMPARE(Import().nExitCode, 0);
    QCOMPARE(Files().value("settings.json"), Document(ChangedSettings()));
}

void tst_Environment::AUserGoesOnWhereRootHasSaved()
{
    // Everybody may write here, so that root needs no powers of its own to do it.
    QCOMPARE(chmod(qPrintable(m_pFolder->path()), 0777), 0);
    QCOMPARE(chmod(qPrintable(m_pOther->path()), 0755), 0);
    Put(Path("settings.json"), Document(Settings()));
    QCOMPARE(chmod(qPrintable(Path("settings.json")), 0666), 0);
    const bool bOther = geteuid() == 0 && chown(qPrintable(Path("settings.json")), g_nUser, g_nUser) == 0;
    if (!bOther)
    {
        qWarning("Nobody but this user can be had here; what he has left behind he cannot write himself.");
    }
    QCOMPARE(Import().nExitCode, 0);
    QCOMPARE(QFileInfo(Path("settings.json")).ownerId(), uint(bOther ? g_nUser : getuid()));
    QCOMPARE(QFileInfo(Path("settings.json")).groupId(), uint(bOther ? g_nUser : getgid()));

    const QString strClient = QString::fromLocal8Bit(qgetenv("KV_CLIENT"));
    const QString strUser = QString::number(g_nUser);
    const QStringList listAsUser =
        bOther ? QStringList{"setpriv", "--reuid", strUser, "--regid", strUser, "--clear-groups"} : QStringList{"env"};
    QCOMPARE(chmod(qPrintable(Path("settings.lock")), 0400), 0);
    Put(m_pOther->filePath("in.json"), Document(Settings()));
    QCOMPARE(chmod(qPrintable(m_pOther->filePath("in.json")), 0644), 0);
    QProcess process;
    process.setProcessEnvironment(m_environment);
    process.setWorkingDirectory("/");
    process.start(listAsUser.first(),
                  listAsUser.mid(1) + QStringList{strClient, "--import", m_pOther->filePath("in.json"), "--data-dir",
                                                  m_pFolder->path()});
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.readAllStandardError(), QByteArray());
    QCOMPARE(process.exitCode(), 0);
    QCOMPARE(Files().value("settings.json"), Document(Settings()));
    QCOMPARE(QFileInfo(Path("settings.json")).ownerId(), uint(bOther ? g_nUser : getuid()));
}

int main(int argc, char* argv[])
{
    tst_Environment test;
    test.m_bMayMount = EnterOwnMounts();
    const QCoreApplication application(argc, argv);
    return QTest::qExec(&test, argc, argv);
}

#include "tst_Environment.moc"
