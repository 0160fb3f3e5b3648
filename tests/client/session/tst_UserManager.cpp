#include <client/session/LoginManager.h>
#include <client/session/UserManager.h>

#include <QtTest>

using namespace LocalConfigClient;

class tst_UserManager : public QObject
{
    Q_OBJECT

private slots:
    void EveryRightIsHeldButTheMissingOnes_data();
    void EveryRightIsHeldButTheMissingOnes();
    void NoRightIsHeldWhenAllAreMissing();
    void TheLoginManagerIsHandedOut();
    void RightsHandedBackServeTheNextOne();
};

void tst_UserManager::EveryRightIsHeldButTheMissingOnes_data()
{
    QTest::addColumn<int>("nRight");
    QTest::addColumn<bool>("bHeld");
    QTest::newRow("missing") << 26 << false;
    QTest::newRow("missing, too") << 45 << false;
    QTest::newRow("held") << 27 << true;
    QTest::newRow("zero") << 0 << true;
    QTest::newRow("negative") << -26 << true;
}

void tst_UserManager::EveryRightIsHeldButTheMissingOnes()
{
    QFETCH(int, nRight);
    QFETCH(bool, bHeld);
    UserManager manager({{26, 45}}, nullptr);
    UserLogical::IUserRight* pRight = manager.GetUserRight();
    QCOMPARE(pRight->HasRight(nRight), bHeld);
    manager.ReleaseUserRight(pRight);
}

void tst_UserManager::NoRightIsHeldWhenAllAreMissing()
{
    UserManager manager({{}, true}, nullptr);
    for (int nRight : {26, 45, 1, 0})
    {
        QVERIFY(!manager.GetUserRight()->HasRight(nRight));
    }
}

void tst_UserManager::TheLoginManagerIsHandedOut()
{
    LoginManager login;
    QCOMPARE(UserManager({}, &login).GetLoginManager(), static_cast<UserLogical::ILoginManager*>(&login));
    QVERIFY(!UserManager({}, nullptr).GetLoginManager());
}

void tst_UserManager::RightsHandedBackServeTheNextOne()
{
    UserManager manager({{26}}, nullptr);
    manager.ReleaseUserRight(manager.GetUserRight());
    manager.ReleaseUserRight(nullptr);
    QVERIFY(!manager.GetUserRight()->HasRight(26));
}

QTEST_GUILESS_MAIN(tst_UserManager)

#include "tst_UserManager.moc"
