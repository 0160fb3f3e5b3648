#include "support/VideoPage.h"

#include <KvGui/KvSpinBox.h>

#include <QSettings>

using namespace LocalConfig;
using LocalConfigLogical::VideoConfigInfo;

class tst_VideoSave : public CVideoPageTest
{
    Q_OBJECT

private slots:
    void init() { Reset(); }

    void EverySettingRoundTrips();
    void ReservedFieldsAreCarried();
    void SavePlayModeWithoutASelection();
    void SaveMirrorsProcessDecode();
    void SaveSilentTime();
    void SaveReturnsTheSectionsResult();
};

void tst_VideoSave::EverySettingRoundTrips()
{
    VideoConfigInfo record;
    record.nPlayMode = 4;
    record.nVideoBufferTime = 321;
    record.bDblClickMainStream = true;
    record.nDecodeMode = 2;
    record.nDefaultSplit = 13;
    record.nSubStreamSplitThreshold = 25;
    record.nInstantPlaybackTime = 12;
    record.bInstantCustom = true;
    record.nInstantTimeUnit = 0;
    record.nSilentTime = 7;
    record.nCpuPromptThreshold = 60;
    record.nDisplayScale = 0;
    Load(record);
    m_pSection->m_record = VideoConfigInfo();
    QCOMPARE(m_pPage->SaveConfig(), 0);
    const VideoConfigInfo& saved = m_pSection->m_record;
    QCOMPARE(saved.nPlayMode, 4);
    QCOMPARE(saved.nVideoBufferTime, 321);
    QVERIFY(saved.bDblClickMainStream);
    QCOMPARE(saved.nDecodeMode, 2);
    QCOMPARE(saved.nDefaultSplit, 13);
    QCOMPARE(saved.nSubStreamSplitThreshold, 25);
    QCOMPARE(saved.nInstantPlaybackTime, 12);
    QVERIFY(saved.bInstantCustom);
    QCOMPARE(saved.nInstantTimeUnit, 0);
    QCOMPARE(saved.nSilentTime, 7);
    QCOMPARE(saved.nCpuPromptThreshold, 60);
    QCOMPARE(saved.nDisplayScale, 0);
}

void tst_VideoSave::ReservedFieldsAreCarried()
{
    VideoConfigInfo record;
    record.nReserved0 = 11;
    record.bReserved1 = true;
    record.nReserved2 = 12;
    record.bReserved3 = false;
    record.bReserved4 = false;
    record.bReserved5 = false;
    record.bProcessDecode = false;
    record.bGpuDecodeSupported = false;
    record.nInstantTimeUnit = 1; // kept while a preset is chosen
    Load(record);
    m_pPage->LoadConfig(true);
    m_journal.Take();
    QCOMPARE(m_pPage->SaveConfig(), 0);
    QCOMPARE(m_journal.Take(), (QStringList{"GetConfig", "SetConfig"}));
    const VideoConfigInfo& saved = m_pSection->m_record;
    QCOMPARE(saved.nReserved0, 11);
    QCOMPARE(saved.bReserved1, true);
    QCOMPARE(saved.nReserved2, 12);
    QCOMPARE(saved.bReserved3, false);
    QCOMPARE(saved.bReserved4, false);
    QCOMPARE(saved.bReserved5, false);
    QCOMPARE(saved.bProcessDecode, false);
    QCOMPARE(saved.bGpuDecodeSupported, false);
    QCOMPARE(saved.nInstantTimeUnit, 1);
}

void tst_VideoSave::SavePlayModeWithoutASelection()
{
    VideoConfigInfo record;
    record.nPlayMode = 9;
    Load(record);
    QCOMPARE(m_pPage->SaveConfig(), 0);
    QCOMPARE(m_pSection->m_record.nPlayMode, 9);
}

void tst_VideoSave::SaveMirrorsProcessDecode()
{
    for (bool bProcessDecode : {true, false})
    {
        VideoConfigInfo record;
        record.bProcessDecode = bProcessDecode;
        Load(record);
        QCOMPARE(m_pPage->SaveConfig(), 0);
        const QSettings ini(QDir::current().filePath("Localcfg.ini"), QSettings::IniFormat);
        QCOMPARE(ini.value("ProcessDecode/enable").toString(), QString(bProcessDecode ? "true" : "false"));
    }
}

void tst_VideoSave::SaveSilentTime()
{
    VideoConfigInfo record;
    record.nSilentTime = 9;
    Load(record);
    Find<KVGUI::KvSpinBox>("silenceTimeSpinBox")->setValue(12);
    QCOMPARE(m_pPage->SaveConfig(), 0);
    QCOMPARE(m_pSection->m_record.nSilentTime, 12);
    Check("silenceChkBox")->setChecked(false);
    QCOMPARE(m_pPage->SaveConfig(), 0);
    QCOMPARE(m_pSection->m_record.nSilentTime, 0);
}

void tst_VideoSave::SaveReturnsTheSectionsResult()
{
    Load(VideoConfigInfo());
    for (int nResult : {0, -1, 5})
    {
        m_pSection->m_nResult = nResult;
        QCOMPARE(m_pPage->SaveConfig(), nResult);
    }
}

QTEST_MAIN(tst_VideoSave)

#include "tst_VideoSave.moc"
