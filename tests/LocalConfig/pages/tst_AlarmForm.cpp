#include "support/AlarmPage.h"

#include <KvGui/KvPushButton.h>
#include <UICommonModule/Pxa.h>

#include <QFrame>
#include <QLabel>

using namespace LocalConfig;
using LocalConfigLogical::AlarmConfigInfo;
using UICommonMdl::CAlarmType;

using CatalogueSignal = void (CAlarmType::*)();
Q_DECLARE_METATYPE(CatalogueSignal)

namespace
{

const QStringList g_listFlashControls = {"cbxAlarmTypeForMap", "labAlarmTypeForFlash"};
const QStringList g_listVideoControls = {"radioPopUp", "radioPreview"};

} // namespace

class tst_AlarmForm : public CAlarmPageTest
{
    Q_OBJECT

private slots:
    void init() { Reset(); }

    void Captions_data();
    void Captions();
    void Form();
    void TheMapBoxHasTheSkinsImages();
    void TheMenuLeavesOutTheCustomAlarm();
    void TheCatalogueRebuildsTheMenuOnly_data();
    void TheCatalogueRebuildsTheMenuOnly();
    void SlotsByName();

    void ControlState_data();
    void ControlState();
    void ControlStateFollowsTheStoredRecord();
    void ControlStateFollowsRestoredDefaults();
    void ClickingEnables_data();
    void ClickingEnables();

    void Right45();
};

void tst_AlarmForm::Captions_data()
{
    QTest::addColumn<QString>("strText");
    QTest::newRow("labAlarmTypeForSound") << "Alarm Type:";
    QTest::newRow("labSoundPath") << "Sound Path:";
    QTest::newRow("labAlarmTypeForFlash") << "Alarm Type:";
    QTest::newRow("label") << "Open Video Type:";
}

void tst_AlarmForm::Captions()
{
    QFETCH(QString, strText);
    QCOMPARE(m_pFixture->Find<QLabel>(QTest::currentDataTag())->text(), strText);
}

void tst_AlarmForm::TheMapBoxHasTheSkinsImages()
{
    struct SImages : QSkinCombox
    {
        static QImage Text(const QSkinCombox& combo) { return (combo.*(&SImages::m_pixText)).toImage(); }
        static QImage Normal(const QSkinCombox& combo) { return (combo.*(&SImages::m_pixNormal)).toImage(); }
        static QImage Disabled(const QSkinCombox& combo) { return (combo.*(&SImages::m_pixDisable)).toImage(); }
    };
    const auto* pCombo = m_pFixture->Find<QCheckableComboBox>("cbxAlarmTypeForMap");
    const QPixmap text(Pxa::GetSkinPath("LocalConfig/public", "cmb_text.png"));
    QVERIFY(!text.isNull());
    QCOMPARE(SImages::Text(*pCombo), text.toImage());
    const QPixmap strip(Pxa::GetSkinPath("LocalConfig/public", "cmb_dropdown.png"));
    QVERIFY(!strip.isNull());
    const int nWidth = strip.width() / 5;
    QCOMPARE(SImages::Normal(*pCombo), strip.copy(0, 0, nWidth, strip.height()).toImage());
    QCOMPARE(SImages::Disabled(*pCombo), strip.copy(3 * nWidth, 0, nWidth, strip.height()).toImage());
}

void tst_AlarmForm::Form()
{
    QCOMPARE(Check("ckbAlarmSound")->text(), QString("Play alarm sound"));
    QCOMPARE(Check("ckbLoop")->text(), QString("Loop"));
    QCOMPARE(Check("ckbMapFlash")->text(), QString("Map flashes when alarm occurs"));
    QCOMPARE(Check("ckbLinkVideo")->text(), QString("Display alarm-linked video when alarm occurs"));
    QCOMPARE(Radio("radioPopUp")->text(), QString("As Pop Up"));
    QCOMPARE(Radio("radioPreview")->text(), QString("In Live View"));
    QCOMPARE(m_pFixture->Find<KVGUI::KvPushButton>("btnSoundPlay")->text(), QString("Play"));
    QVERIFY(m_pFixture->Find<QFrame>("line") && m_pFixture->Find<QFrame>("line_2"));
    QVERIFY(Path()->isReadOnly());
    QCOMPARE(Path()->GetBrowseMode(), UICommonMdl::CPathEdit::BrowseByOwner);
    QCOMPARE(m_pFixture->page.windowTitle(), QString("Alarm Config"));
    QCOMPARE(m_pFixture->page.objectName(), QString("CAlarmConfig"));
    QVERIFY(!m_pFixture->page.isWindow());
    QString strSheet;
    QVERIFY(Pxa::loadStyleSheet(Pxa::GetSkinPath("LocalConfig", "CAlarmConfig.qss"), strSheet));
    QCOMPARE(m_pFixture->page.styleSheet(), strSheet);
}

void tst_AlarmForm::TheMenuLeavesOutTheCustomAlarm()
{
    const CAlarmType* pCatalogue = CAlarmType::Instance();
    for (int nIndex = 0; nIndex < pCatalogue->GetAlarmTypeCount(); ++nIndex)
    {
        const int nType = pCatalogue->GetAlarmTypeIdByIndex(nIndex);
        const int nCategory = pCatalogue->GetGroupInfoByAlarmId(nType).nCategoryId;
        QCOMPARE(Types()->ChooseItem(nCategory, nIndex), nType != 301);
    }
}

void tst_AlarmForm::TheCatalogueRebuildsTheMenuOnly_data()
{
    QTest::addColumn<CatalogueSignal>("pSignal");
    QTest::newRow("custom types") << &CAlarmType::SignalUpdateCustomAlarmType;
    QTest::newRow("all types") << &CAlarmType::SignalUpdateAlarmType;
}

void tst_AlarmForm::TheCatalogueRebuildsTheMenuOnly()
{
    QFETCH(CatalogueSignal, pSignal);
    Load(Record());
    PickType(302);
    m_pFixture->journal.Take();
    const QString strPath = Path()->text();
    QFile file("types.xml");
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("<AlarmTypes><Category id='5' name='c'><Group id='1' name='g'><Type id='301' name='custom'/>"
               "<Type id='44' name='new'/></Group></Category></AlarmTypes>");
    file.close();
    {
        const QSignalBlocker blocker(CAlarmType::Instance()); // reloading sends both signals
        CAlarmType::Instance()->Load("types.xml");
    }
    (CAlarmType::Instance()->*pSignal)();
    QVERIFY(!Types()->ChooseItem(5, 0));
    QVERIFY(Types()->ChooseItem(5, 1));
    CAlarmType::Instance()->Load();
    QCOMPARE(Types()->count(), int(Record().alarmSounds.size()));
    QCOMPARE(Path()->text(), strPath);
}

void tst_AlarmForm::SlotsByName()
{
    const QMetaObject& meta = CAlarmConfig::staticMetaObject;
    for (const char* pszMethod :
         {"sgnAlarmCustomSoundEdited(int,QString)", "OnSoundPathBtnClicked()", "OnSoundPlayBtnClicked()",
          "OnAlarmConfigEnableClicked()", "OnAlarmTypeForSoundChanged(int,int)", "OnItemChanged(int,bool)",
          "OnAlarmCustomSoundEdited(int,QString)", "OnUpdateCustomAlarmType()", "OnReInitAlarmType()"})
    {
        QVERIFY2(meta.indexOfMethod(pszMethod) >= 0, pszMethod);
    }
}

void tst_AlarmForm::ControlState_data()
{
    QTest::addColumn<bool>("bEnable");
    QTest::addColumn<bool>("bSound");
    QTest::addColumn<bool>("bFlash");
    QTest::addColumn<bool>("bVideo");
    QTest::newRow("connected") << true << true << true << true;
    QTest::newRow("connected, no sound") << true << false << true << true;
    QTest::newRow("connected, no flashing") << true << true << false << true;
    QTest::newRow("connected, no video") << true << true << true << false;
    QTest::newRow("disconnected") << false << true << true << true;
}

void tst_AlarmForm::ControlState()
{
    QFETCH(bool, bEnable);
    QFETCH(bool, bSound);
    QFETCH(bool, bFlash);
    QFETCH(bool, bVideo);
    AlarmConfigInfo record = Record();
    record.alarmSound = bSound;
    record.mapFlash = bFlash;
    record.linkVideo = bVideo;
    Load(record);
    m_pFixture->page.SetControlsEnabled(bEnable);
    const auto check = [&](const QStringList& listControls, bool bExpected) {
        for (const QString& strControl : listControls)
        {
            const QWidget* pControl = m_pFixture->page.findChild<QWidget*>(strControl);
            QVERIFY2(pControl->isEnabled() == bExpected, qPrintable(strControl));
        }
    };
    check(g_listSoundControls, bEnable && bSound);
    check(g_listFlashControls, bEnable && bFlash);
    check(g_listVideoControls + QStringList{"label"}, bEnable && bVideo);
    check({"ckbAlarmSound", "ckbMapFlash", "ckbLinkVideo"}, true);
}

void tst_AlarmForm::ControlStateFollowsTheStoredRecord()
{
    AlarmConfigInfo record = Record();
    record.alarmSound = false;
    Load(record);
    Click(Check("ckbAlarmSound"));
    QVERIFY(Types()->isEnabled());
    m_pFixture->page.UpdateControlState(true);
    QVERIFY(!Types()->isEnabled());
    QVERIFY(Check("ckbAlarmSound")->isChecked());
}

void tst_AlarmForm::ControlStateFollowsRestoredDefaults()
{
    AlarmConfigInfo record = Record();
    record.alarmSound = false;
    Load(record);
    m_pFixture->page.LoadConfig(true);
    QVERIFY(Types()->isEnabled());
    m_pFixture->page.UpdateControlState(false);
    m_pFixture->page.UpdateControlState(true);
    QVERIFY(Types()->isEnabled());
}

void tst_AlarmForm::ClickingEnables_data()
{
    QTest::addColumn<QStringList>("listControls");
    QTest::newRow("ckbAlarmSound") << g_listSoundControls;
    QTest::newRow("ckbMapFlash") << g_listFlashControls;
    QTest::newRow("ckbLinkVideo") << g_listVideoControls;
}

void tst_AlarmForm::ClickingEnables()
{
    QFETCH(QStringList, listControls);
    Load(Record());
    const QStringList listAll = g_listSoundControls + g_listFlashControls + g_listVideoControls;
    for (bool bEnable : {false, true})
    {
        Click(Check(QTest::currentDataTag()));
        for (const QString& strControl : listAll)
        {
            const QWidget* pControl = m_pFixture->page.findChild<QWidget*>(strControl);
            QVERIFY2(pControl->isEnabled() == (bEnable || !listControls.contains(strControl)), qPrintable(strControl));
        }
        QVERIFY(m_pFixture->page.findChild<QWidget*>("label")->isEnabled());
    }
}

void tst_AlarmForm::Right45()
{
    QVERIFY(!m_pFixture->page.HasNoRight45());
    m_pFixture->page.MarkNoRight45();
    QVERIFY(m_pFixture->page.HasNoRight45());
    Load(Record());
    QVERIFY(Types()->isEnabled()); // the page itself derives nothing from it
}

QTEST_MAIN(tst_AlarmForm)

#include "tst_AlarmForm.moc"
