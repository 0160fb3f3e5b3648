#include "support/StoreFixture.h"

#include <UICommonModule/CErrorCode.h>

using namespace LocalConfigClient;
using namespace LocalConfigLogical;
using UICommonMdl::CErrorCode;

class tst_ConfigAutoStart : public CStoreTest
{
    Q_OBJECT

private slots:
    void init() { Reset(); }

    void AutoStartFollowsASave_data();
    void AutoStartFollowsASave();
    void AutoStartFailureIsTold();
};

void tst_ConfigAutoStart::AutoStartFollowsASave_data()
{
    QTest::addColumn<int>("nEntry"); // -1: the page has not looked
    QTest::addColumn<bool>("bStored");
    QTest::addColumn<bool>("bWanted");
    QTest::addColumn<QString>("strCall");
    QTest::newRow("switched on") << 0 << false << true << "on";
    QTest::newRow("switched off") << 1 << true << false << "off";
    QTest::newRow("stays on") << 1 << true << true << QString();
    QTest::newRow("stays off") << 0 << false << false << QString();
    QTest::newRow("wanted, but the entry was lost") << 0 << true << true << "on";
    QTest::newRow("not wanted, but an entry is there") << 1 << false << false << "off";
    QTest::newRow("not looked, switched on") << -1 << false << true << "on";
    QTest::newRow("not looked, unchanged") << -1 << true << true << QString();
}

void tst_ConfigAutoStart::AutoStartFollowsASave()
{
    QFETCH(int, nEntry);
    QFETCH(bool, bStored);
    QFETCH(bool, bWanted);
    QFETCH(QString, strCall);
    Settings settings;
    settings.basic.autoRun = bStored;
    Put(Document(settings));

    QStringList listCalls;
    ConfigService service(m_pFolder->path(), SettingsFile::ReadWrite, [&](bool bEnable) {
        listCalls += bEnable ? "on" : "off";
        return int(CErrorCode::Success);
    });
    auto* pBasic = static_cast<IBasicSection*>(service.GetSection(SectionBasic));
    if (nEntry >= 0)
    {
        pBasic->SetAutoRunState(nEntry == 1);
    }
    QCOMPARE(GetBasic(service).autoRun, bStored);
    settings.basic.autoRun = bWanted;
    pBasic->SetConfig(settings.basic);
    QCOMPARE(listCalls, QStringList());
    QCOMPARE(service.SaveAll(), 1);
    QCOMPARE(listCalls, strCall.isEmpty() ? QStringList() : QStringList{strCall});
    QCOMPARE(service.SaveAll(), 1);
    QCOMPARE(listCalls.size(), strCall.isEmpty() ? 0 : 1);
}

void tst_ConfigAutoStart::AutoStartFailureIsTold()
{
    ConfigService service(m_pFolder->path(), SettingsFile::ReadWrite,
                          [](bool) { return int(CErrorCode::NoPermission); });
    QStringList listProblems;
    service.SetProblemHandler([&](const QString& strProblem) { listProblems += strProblem; });
    BasicConfigInfo record;
    record.autoRun = true;
    Set<IBasicSection>(service, SectionBasic, record);
    QCOMPARE(service.SaveAll(), 1);
    QCOMPARE(listProblems.size(), 1);
    QVERIFY(service.GetStored().basic.autoRun);
}

QTEST_GUILESS_MAIN(tst_ConfigAutoStart)

#include "tst_ConfigAutoStart.moc"
