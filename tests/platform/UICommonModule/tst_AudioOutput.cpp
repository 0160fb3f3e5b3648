#include "support/Notifications.h"

#include <UICommonModule/CAudioOutput.h>

#include <QtTest>

using UICommonMdl::CAudioOutput;

class tst_AudioOutput : public QObject
{
    Q_OBJECT

private slots:
    void AMissingDeviceIsToldOnce();
};

void tst_AudioOutput::AMissingDeviceIsToldOnce()
{
    qputenv("PULSE_SERVER", "unix:" + QDir::current().filePath("nobody").toLocal8Bit());
    const CNotificationSpy notifications;
    QVERIFY(!CAudioOutput::IsAvailable());
    QVERIFY(notifications.isEmpty());
    QVERIFY(!CAudioOutput::IsAvailableOrTell());
    QCOMPARE(notifications.size(), 1);
    QVERIFY(!CAudioOutput::IsAvailableOrTell());
    QCOMPARE(notifications.size(), 1);
}

QTEST_MAIN(tst_AudioOutput)

#include "tst_AudioOutput.moc"
