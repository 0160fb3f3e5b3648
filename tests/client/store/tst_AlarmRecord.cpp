#include <client/store/AlarmRecord.h>

#include <UICommonModule/CAlarmType.h>

#include <QtTest>

using namespace LocalConfigClient;
using UICommonMdl::CAlarmType;

class tst_AlarmRecord : public QObject
{
    Q_OBJECT

private slots:
    void SoundKeys_data();
    void SoundKeys();
};

void tst_AlarmRecord::SoundKeys_data()
{
    QTest::addColumn<int>("nKey");
    QTest::newRow("302") << 302;
    QTest::newRow("961") << 200000;
    QTest::newRow("17021") << 200000;
    QTest::newRow("967") << 967;
    QTest::newRow("17020") << 17020;
    QTest::newRow("17029") << 17029;
    QTest::newRow("901") << 100000;
    QTest::newRow("3100") << 3100;
    QTest::newRow("3101") << 2;
    QTest::newRow("3130") << 2;
    QTest::newRow("3131") << 3131;
}

void tst_AlarmRecord::SoundKeys()
{
    QFETCH(int, nKey);
    QCOMPARE(GetSoundKey(*CAlarmType::Instance(), QByteArray(QTest::currentDataTag()).toInt()), nKey);
}

QTEST_GUILESS_MAIN(tst_AlarmRecord)

#include "tst_AlarmRecord.moc"
