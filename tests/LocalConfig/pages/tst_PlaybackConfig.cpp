#include "support/HiddenPage.h"

#include <LocalConfig/interfaces/IPlaybackSection.h>
#include <LocalConfig/pages/CPlaybackConfig.h>

#include <KvGui/KvCheckBox.h>

#include <QComboBox>
#include <QLabel>
#include <QLayout>

using namespace LocalConfig;
using LocalConfigLogical::IPlaybackSection;
using LocalConfigLogical::PlaybackConfigInfo;

class tst_PlaybackConfig : public CHiddenPageTest<CPlaybackConfig, CFakeSection<IPlaybackSection, PlaybackConfigInfo>>
{
    Q_OBJECT

private slots:
    void init() { Reset(QSize(662, 168)); }

    void Form();
    void Items();
    void ANullSectionIsRefused();
    void LoadSelectsTheStream_data();
    void LoadSelectsTheStream();
    void DefaultsDoNotReadTheSection();
    void SaveWritesBothAndCarriesTheRest();
    void SaveWithoutASelectionStoresZero();
    void SaveReturnsTheSectionsResult();
    void ConnectionState();
    void UnInitForgetsTheSection();

private:
    QComboBox* Stream() const { return Find<QComboBox>("devStreamCmbBox"); }
    KVGUI::KvCheckBox* Adjust() const { return Find<KVGUI::KvCheckBox>("enableLargePicAdjustment"); }
};

void tst_PlaybackConfig::Form()
{
    QCOMPARE(m_pPage->findChild<QLabel*>("label_3")->text(), QString("Dev Recording Stream:"));
    QCOMPARE(Adjust()->text(), QString("Enable high definition adjustment"));
    for (const char* pszLayout : {"verticalLayout_2", "horizontalLayout", "verticalLayout", "horizontalLayout_4"})
    {
        QVERIFY2(m_pPage->findChild<QLayout*>(pszLayout), pszLayout);
    }
    QWidget parent;
    const CPlaybackConfig page(&parent);
    QVERIFY(!page.isWindow());
}

void tst_PlaybackConfig::Items()
{
    const QStringList listTexts = {"All", "Main Stream", "Sub Stream 1", "Sub Stream 2"};
    QCOMPARE(Stream()->count(), 4);
    for (int n = 0; n < 4; ++n)
    {
        QCOMPARE(Stream()->itemText(n), listTexts[n]);
        QCOMPARE(Stream()->itemData(n).toInt(), n);
    }
}

void tst_PlaybackConfig::ANullSectionIsRefused()
{
    QCOMPARE(m_pPage->SetConfigSection(nullptr), -1);
    QCOMPARE(m_pPage->SaveConfig(), -1);
    m_pPage->LoadConfig(true);
    QCOMPARE(m_journal.Take(), QStringList());
}

void tst_PlaybackConfig::LoadSelectsTheStream_data()
{
    QTest::addColumn<int>("nStream");
    QTest::addColumn<int>("nShown");
    for (int n : {0, 1, 2, 3})
    {
        QTest::addRow("%d", n) << n << n;
    }
    QTest::newRow("7 leaves what was there") << 7 << 2;
    QTest::newRow("-1 leaves what was there") << -1 << 2;
}

void tst_PlaybackConfig::LoadSelectsTheStream()
{
    QFETCH(int, nStream);
    QFETCH(int, nShown);
    PlaybackConfigInfo record;
    record.nDevRecordStream = 2;
    Load(record);
    record.nDevRecordStream = nStream;
    record.bLargePicAdjustment = true;
    Load(record);
    QCOMPARE(Stream()->currentIndex(), nShown);
    QVERIFY(Adjust()->isChecked());
    QCOMPARE(m_pPage->SaveConfig(), 0);
    QCOMPARE(m_pSection->m_record.nDevRecordStream, nShown);
}

void tst_PlaybackConfig::DefaultsDoNotReadTheSection()
{
    PlaybackConfigInfo record;
    record.nDevRecordStream = 3;
    record.bLargePicAdjustment = true;
    Load(record);
    m_pPage->LoadConfig(true);
    QCOMPARE(m_journal.Take(), QStringList());
    QCOMPARE(Stream()->currentText(), QString("All"));
    QVERIFY(!Adjust()->isChecked());
}

void tst_PlaybackConfig::SaveWritesBothAndCarriesTheRest()
{
    PlaybackConfigInfo record;
    record.bReserved0 = true;
    record.nReserved1 = 99;
    record.bReserved2 = true;
    record.strReserved3 = "bytes \xff";
    Load(record);
    QTest::keyClick(Stream(), Qt::Key_Down);
    QTest::mouseClick(Adjust(), Qt::LeftButton, {}, QPoint(8, Adjust()->height() / 2));
    QCOMPARE(m_pPage->SaveConfig(), 0);
    QCOMPARE(m_journal.Take(), (QStringList{"GetConfig", "SetConfig"}));
    const PlaybackConfigInfo& saved = m_pSection->m_record;
    QCOMPARE(saved.nDevRecordStream, 1);
    QVERIFY(saved.bLargePicAdjustment);
    QVERIFY(saved.bReserved0 && saved.bReserved2);
    QCOMPARE(saved.nReserved1, 99);
    QCOMPARE(saved.strReserved3, record.strReserved3);
}

void tst_PlaybackConfig::SaveWithoutASelectionStoresZero()
{
    PlaybackConfigInfo record;
    record.nDevRecordStream = 3;
    Load(record);
    Stream()->setCurrentIndex(-1);
    QCOMPARE(m_pPage->SaveConfig(), 0);
    QCOMPARE(m_pSection->m_record.nDevRecordStream, 0);
}

void tst_PlaybackConfig::SaveReturnsTheSectionsResult()
{
    Load(PlaybackConfigInfo());
    m_pSection->m_nResult = 6;
    QCOMPARE(m_pPage->SaveConfig(), 6);
}

void tst_PlaybackConfig::ConnectionState()
{
    for (bool bEnable : {false, true})
    {
        m_pPage->SetControlsEnabled(bEnable);
        QCOMPARE(Stream()->isEnabled(), bEnable);
        QCOMPARE(Adjust()->isEnabled(), bEnable);
    }
}

void tst_PlaybackConfig::UnInitForgetsTheSection()
{
    Load(PlaybackConfigInfo());
    m_pPage->UnInit();
    m_pPage->UnInit();
    QCOMPARE(m_pPage->SaveConfig(), -1);
    QCOMPARE(m_journal.Take(), QStringList());
}

QTEST_MAIN(tst_PlaybackConfig)

#include "tst_PlaybackConfig.moc"
