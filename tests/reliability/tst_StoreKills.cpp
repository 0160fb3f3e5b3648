#include "support/StoreFixture.h"

#include <UICommonModule/CErrorCode.h>

#include <QProcess>

using namespace LocalConfigClient;

class tst_StoreKills : public CStoreTest
{
    Q_OBJECT

private slots:
    void init() { Reset(); }

    void ACrashBetweenTheGenerations();
    void TheLockOfADeadClientIsTakenOver();
};

void tst_StoreKills::ACrashBetweenTheGenerations()
{
    // The last generation has been written, the document not: both are the old document then.
    Put(Document(1));
    Put(Document(1), "settings.json.bak");
    ConfigService service(m_pFolder->path(), SettingsFile::ReadWrite);
    QCOMPARE(service.GetFile().GetProblems(), QStringList());
    QCOMPARE(GetBasic(service).clientSize, 1);
}

void tst_StoreKills::TheLockOfADeadClientIsTakenOver()
{
    // A child that holds the lock is killed, as a client that crashes.
    QProcess child;
    child.start(QCoreApplication::applicationFilePath(), {"--hold", Path("settings.lock")});
    QVERIFY(child.waitForReadyRead());
    QCOMPARE(child.readLine().trimmed(), QByteArray("held"));
    {
        const ConfigService service(m_pFolder->path(), SettingsFile::ReadWrite);
        QCOMPARE(service.GetFile().GetProblems().size(), 1);
    }
    child.kill();
    QVERIFY(child.waitForFinished());
    QVERIFY(QFile::exists(Path("settings.lock")));
    ConfigService service(m_pFolder->path(), SettingsFile::ReadWrite);
    QCOMPARE(service.GetFile().GetProblems(), QStringList());
    SetClientSize(service, 0);
    QCOMPARE(service.SaveAll(), 1);
}

int main(int argc, char* argv[])
{
    QCoreApplication application(argc, argv);
    const int nHold = application.arguments().indexOf("--hold");
    if (nHold > 0)
    {
        FolderLock lock(application.arguments().value(nHold + 1));
        QTextStream(stdout) << (lock.Take() == UICommonMdl::CErrorCode::Success ? "held" : "failed") << Qt::endl;
        return application.exec();
    }
    tst_StoreKills test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_StoreKills.moc"
