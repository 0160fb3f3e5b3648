// A client that comes without its alarm catalogue.

#include "support/Notifications.h"

#include <LocalConfig/pages/CAlarmConfig.h>

#include <UICommonModule/CAlarmType.h>
#include <UICommonModule/CAlarmTypeCombox.h>

#include <QDir>
#include <QTemporaryDir>
#include <QtTest>

using UICommonMdl::CAlarmType;

class tst_MissingCatalogue : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QVERIFY(m_folder.isValid());
        qputenv("KV_CLIENT_RESOURCES", m_folder.path().toLocal8Bit());
    }
    void TheOperatorIsToldOnce();
    void ThePageWorksWithoutAMenu();

private:
    QTemporaryDir m_folder;
};

void tst_MissingCatalogue::TheOperatorIsToldOnce()
{
    CNotificationSpy notifications;
    QCOMPARE(CAlarmType::Instance()->GetAlarmTypeCount(), 0);
    QCOMPARE(notifications.size(), 0);
    QTRY_COMPARE(notifications.size(), 1);
    QCOMPARE(notifications.first().first().toString(),
             QString("No alarm types are known, for '%1' cannot be used: the file does not exist")
                 .arg(QDir::toNativeSeparators(m_folder.filePath("AlarmTypes.xml"))));
    QCOMPARE(CAlarmType::Instance()->GetIndexByAlarmTypeId(301), -1);
    QTest::qWait(400);
    QCOMPARE(notifications.size(), 1);
}

void tst_MissingCatalogue::ThePageWorksWithoutAMenu()
{
    QWidget window;
    LocalConfig::CAlarmConfig page(&window);
    window.show();
    auto* pTypes = page.findChild<UICommonMdl::CAlarmTypeCombox*>("cbxAlarmTypeForSound");
    QTest::mouseClick(pTypes, Qt::LeftButton);
    QVERIFY(!QApplication::activePopupWidget());
    QCOMPARE(pTypes->GetCurrentChosenItem(), QList<int>());
}

QTEST_MAIN(tst_MissingCatalogue)

#include "tst_MissingCatalogue.moc"
