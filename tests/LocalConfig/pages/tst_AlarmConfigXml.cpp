#include "support/AlarmPage.h"

#include <LocalConfig/pages/AlarmLink.h>

using namespace LocalConfig;
using LocalConfigLogical::AlarmConfigInfo;

class tst_AlarmConfigXml : public CAlarmPageTest
{
    Q_OBJECT

private slots:
    void init() { Reset(); }

    void ConfigXml_data();
    void ConfigXml();
    void AFolderIsNoConfigXml();
    void ConfigXmlForcesTheSoundAtOnce_data();
    void ConfigXmlForcesTheSoundAtOnce();
    void WithoutConfigXmlNothingIsForced();
    void ConfigXmlNeedsASection();

private:
    static void WriteConfigXml(const QByteArray& content)
    {
        QFile file("Config.xml");
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
    }
};

void tst_AlarmConfigXml::ConfigXml_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<int>("nForced"); // -1: nothing
    const auto with = [](const char* pszValue) {
        return QByteArray("<AlarmLink><EnableAlarmSound>") + pszValue + "</EnableAlarmSound></AlarmLink>";
    };
    QTest::newRow("on") << with("1") << 1;
    QTest::newRow("off") << with("0") << 0;
    QTest::newRow("any other number") << with("7") << 1;
    QTest::newRow("negative number") << with("-2") << 1;
    QTest::newRow("-1") << with("-1") << -1;
    QTest::newRow("number with blanks and more") << with(" 1 yes") << 1;
    QTest::newRow("no number") << with("yes") << 0;
    QTest::newRow("empty text") << with("") << 0;
    QTest::newRow("huge number") << with("99999999999999999999999") << 1;
    QTest::newRow("the first one counts")
        << QByteArray("<AlarmLink><Other>5</Other><EnableAlarmSound>0</EnableAlarmSound><EnableAlarmSound>1"
                      "</EnableAlarmSound></AlarmLink>")
        << 0;
    QTest::newRow("declaration and comment")
        << QByteArray("<?xml version=\"1.0\"?><!-- c --><AlarmLink><!-- c --><EnableAlarmSound>1</EnableAlarmSound>"
                      "</AlarmLink>")
        << 1;
    QTest::newRow("UTF-16") << QByteArray("\xff\xfe", 2) +
                                   QByteArray(reinterpret_cast<const char*>(
                                                  u"<AlarmLink><EnableAlarmSound>1</EnableAlarmSound></AlarmLink>"),
                                              2 * 61)
                            << 1;
    QTest::newRow("deeper") << QByteArray("<AlarmLink><a><EnableAlarmSound>1</EnableAlarmSound></a></AlarmLink>") << -1;
    QTest::newRow("other case") << QByteArray("<AlarmLink><enablealarmsound>1</enablealarmsound></AlarmLink>") << -1;
    QTest::newRow("missing element") << QByteArray("<AlarmLink/>") << -1;
    QTest::newRow("other root") << QByteArray("<Link><EnableAlarmSound>1</EnableAlarmSound></Link>") << -1;
    QTest::newRow("empty file") << QByteArray() << -1;
    QTest::newRow("no XML") << QByteArray("EnableAlarmSound=1") << -1;
    QTest::newRow("cut off") << QByteArray("<AlarmLink><EnableAlarmSound>1</EnableAl") << -1;
    QTest::newRow("broken after the element")
        << QByteArray("<AlarmLink><EnableAlarmSound>1</EnableAlarmSound></Alarm") << -1;
}

void tst_AlarmConfigXml::ConfigXml()
{
    QFETCH(QByteArray, content);
    QFETCH(int, nForced);
    WriteConfigXml(content);
    const std::optional<bool> forced = ReadForcedAlarmSound(QDir::currentPath() + "/Config.xml");
    QCOMPARE(forced ? int(*forced) : -1, nForced);
}

void tst_AlarmConfigXml::AFolderIsNoConfigXml()
{
    QVERIFY(QDir().mkdir("Config.xml"));
    QVERIFY(!ReadForcedAlarmSound(QDir::currentPath() + "/Config.xml"));
}

void tst_AlarmConfigXml::ConfigXmlForcesTheSoundAtOnce_data()
{
    QTest::addColumn<bool>("bForced");
    QTest::newRow("off") << false;
    QTest::newRow("on") << true;
}

void tst_AlarmConfigXml::ConfigXmlForcesTheSoundAtOnce()
{
    QFETCH(bool, bForced);
    WriteConfigXml(QByteArray("<AlarmLink><EnableAlarmSound>") + (bForced ? "1" : "0") +
                   "</EnableAlarmSound></AlarmLink>");
    AlarmConfigInfo record = Record();
    record.alarmSound = !bForced;
    Load(record);
    QCOMPARE(m_pFixture->page.ApplyConfigXml(), 0);
    const QStringList listCalls = m_pFixture->journal.Take();
    QCOMPARE(listCalls.mid(0, 2), (QStringList{"GetConfig", "SetConfig true"}));
    QCOMPARE(listCalls.count("SetConfig true"), 1);
    QCOMPARE(Stored().alarmSound, bForced);
    QCOMPARE(Stored().alarmSounds.size(), record.alarmSounds.size());
    QCOMPARE(Check("ckbAlarmSound")->isChecked(), bForced);
    QVERIFY(Check("ckbAlarmSound")->isEnabled());
    for (const QString& strControl : g_listSoundControls)
    {
        QCOMPARE(m_pFixture->page.findChild<QWidget*>(strControl)->isEnabled(), bForced);
    }
}

void tst_AlarmConfigXml::WithoutConfigXmlNothingIsForced()
{
    Load(Record());
    QCOMPARE(m_pFixture->page.ApplyConfigXml(), -1);
    QCOMPARE(m_pFixture->journal.Take(), QStringList());
}

void tst_AlarmConfigXml::ConfigXmlNeedsASection()
{
    WriteConfigXml("<AlarmLink><EnableAlarmSound>0</EnableAlarmSound></AlarmLink>");
    QCOMPARE(m_pFixture->page.ApplyConfigXml(), -1);
}

QTEST_MAIN(tst_AlarmConfigXml)

#include "tst_AlarmConfigXml.moc"
