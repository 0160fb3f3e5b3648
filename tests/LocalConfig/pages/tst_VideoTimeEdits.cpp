#include "support/PageFixture.h"

#include <LocalConfig/interfaces/IVideoSection.h>
#include <LocalConfig/pages/CVideoConfig.h>

#include <KvGui/KvComboBox.h>
#include <KvGui/KvLineEdit.h>
#include <KvGui/KvSpinBox.h>

#include <LocalConfig/widgets/CCombobox.h>

using namespace LocalConfig;
using LocalConfigLogical::IVideoSection;
using LocalConfigLogical::VideoConfigInfo;

namespace
{

enum EUnit
{
    Hour,
    Minute,
    Second
};

VideoConfigInfo CustomTime(int nTime, EUnit eUnit)
{
    VideoConfigInfo record;
    record.bInstantCustom = true;
    record.nInstantPlaybackTime = nTime;
    record.nInstantTimeUnit = eUnit;
    return record;
}

} // namespace

/// The custom time of instant playback, and what undo brings back of the numbers of this page.
class tst_VideoTimeEdits : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_pFixture.reset(new SFixture); }

    void UndoDoesNotBringBackAnotherUnitsTime();
    void UndoDoesNotBringBackATimeBehindAPreset_data();
    void UndoDoesNotBringBackATimeBehindAPreset();
    void UndoDoesNotBringBackAnAbandonedSilentTime();
    void AStoredTimeThatCannotBeTypedKeepsThePattern_data();
    void AStoredTimeThatCannotBeTypedKeepsThePattern();

private:
    struct SFixture : SPageFixture<CVideoConfig, IVideoSection, VideoConfigInfo>
    {};

    KVGUI::KvLineEdit* Time() const { return m_pFixture->Find<KVGUI::KvLineEdit>("instantTimeEdit"); }
    QComboBox* Unit() const { return m_pFixture->Find<QComboBox>("timeUnitComboBox"); }

    QScopedPointer<SFixture> m_pFixture;
};

void tst_VideoTimeEdits::UndoDoesNotBringBackAnotherUnitsTime()
{
    m_pFixture->Load(CustomTime(10, Minute));
    Type(Time(), "999");
    Unit()->setFocus();
    QTest::keyClick(Unit(), Qt::Key_Up);
    QCOMPARE(Unit()->currentIndex(), int(Hour));
    QCOMPARE(Time()->text(), QString());
    Time()->setFocus();
    QTest::keySequence(Time(), QKeySequence::Undo);
    QCOMPARE(Time()->text(), QString());
}

void tst_VideoTimeEdits::UndoDoesNotBringBackATimeBehindAPreset_data()
{
    QTest::addColumn<int>("nUnit");
    QTest::addColumn<QString>("strTyped");
    QTest::newRow("hours") << int(Hour) << "24";
    QTest::newRow("seconds") << int(Second) << "86400";
}

void tst_VideoTimeEdits::UndoDoesNotBringBackATimeBehindAPreset()
{
    QFETCH(int, nUnit);
    QFETCH(QString, strTyped);
    m_pFixture->Load(CustomTime(10, EUnit(nUnit)));
    Type(Time(), strTyped);
    m_pFixture->page.LoadConfig(true);
    auto* pPresets = m_pFixture->Find<CCombobox>("instantComboBox");
    pPresets->setFocus();
    QTest::keyClick(pPresets, Qt::Key_End);
    QVERIFY(Time()->isEnabled());
    Time()->setFocus();
    QTest::keySequence(Time(), QKeySequence::Undo);
    QCOMPARE(Time()->text(), QString());
}

void tst_VideoTimeEdits::UndoDoesNotBringBackAnAbandonedSilentTime()
{
    VideoConfigInfo record;
    record.nSilentTime = 2;
    m_pFixture->Load(record);
    auto* pSilent = m_pFixture->Find<KVGUI::KvSpinBox>("silenceTimeSpinBox");
    Type(pSilent->findChild<QLineEdit*>(), "25");
    QTest::keyClick(pSilent, Qt::Key_Backspace);
    m_pFixture->page.LoadConfig(false);
    QTest::keySequence(pSilent->findChild<QLineEdit*>(), QKeySequence::Undo);
    QCOMPARE(pSilent->value(), 2);
}

void tst_VideoTimeEdits::AStoredTimeThatCannotBeTypedKeepsThePattern_data()
{
    QTest::addColumn<int>("nStored");
    QTest::addColumn<int>("nUnit");
    QTest::addColumn<QString>("strTyped"); // '<' for Backspace, 'u' for undo, 'r' for redo, 'a' for selecting all
    QTest::addColumn<QString>("strShown");
    QTest::newRow("more digits") << 5 << int(Hour) << "9"
                                 << "5";
    QTest::newRow("an emptied field") << 5 << int(Hour) << "<59"
                                      << "";
    QTest::newRow("a good number") << 5 << int(Hour) << "<24"
                                   << "24";
    QTest::newRow("another bad number in its place") << 5 << int(Hour) << "a7"
                                                     << "5";
    QTest::newRow("a good number in its place") << 5 << int(Hour) << "a2"
                                                << "2";
    QTest::newRow("redo") << 5 << int(Hour) << "9r"
                          << "5";
    QTest::newRow("undo") << 5 << int(Hour) << "<u"
                          << "5";
    QTest::newRow("undo and more") << 5 << int(Hour) << "<u9"
                                   << "5";
    QTest::newRow("fewer digits, still bad") << 14555 << int(Minute) << "<"
                                             << "1455";
    QTest::newRow("fewer digits, then good") << 14555 << int(Minute) << "<<0"
                                             << "145";
    QTest::newRow("a good time") << 23 << int(Hour) << "<4"
                                 << "24";
}

void tst_VideoTimeEdits::AStoredTimeThatCannotBeTypedKeepsThePattern()
{
    QFETCH(int, nStored);
    QFETCH(int, nUnit);
    QFETCH(QString, strTyped);
    QFETCH(QString, strShown);
    m_pFixture->Load(CustomTime(nStored, EUnit(nUnit)));
    QCOMPARE(Time()->text(), QString::number(nStored));
    Time()->setFocus();
    Time()->end(false);
    for (const QChar ch : strTyped)
    {
        switch (ch.unicode())
        {
        case '<':
            QTest::keyClick(Time(), Qt::Key_Backspace);
            break;
        case 'a':
            QTest::keySequence(Time(), QKeySequence::SelectAll);
            break;
        case 'u':
            QTest::keySequence(Time(), QKeySequence::Undo);
            break;
        case 'r':
            QTest::keySequence(Time(), QKeySequence::Redo);
            break;
        default:
            QTest::keyClick(Time(), ch.toLatin1());
        }
    }
    QCOMPARE(Time()->text(), strShown);
}

QTEST_MAIN(tst_VideoTimeEdits)

#include "tst_VideoTimeEdits.moc"
