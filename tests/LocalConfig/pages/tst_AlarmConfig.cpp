#include "support/PageFixture.h"

#include <LocalConfig/pages/AlarmLink.h>
#include <LocalConfig/pages/CAlarmConfig.h>
#include <LocalConfig/widgets/QCheckableComboBox.h>

#include <KvGui/KvCheckBox.h>
#include <KvGui/KvListWidget.h>
#include <KvGui/KvPushButton.h>
#include <KvGui/KvRadioButton.h>
#include <UICommonModule/CAlarmType.h>
#include <UICommonModule/CAlarmTypeCombox.h>
#include <UICommonModule/CGlobalInfo.h>
#include <UICommonModule/CPathEdit.h>
#include <UICommonModule/Pxa.h>

#include <QDir>
#include <QFileDialog>
#include <QFrame>
#include <QLabel>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTimer>

using namespace LocalConfig;
using LocalConfigLogical::AlarmConfigInfo;
using LocalConfigLogical::AlarmSoundInfo;
using UICommonMdl::CAlarmType;

using CatalogueSignal = void (CAlarmType::*)();
Q_DECLARE_METATYPE(CatalogueSignal)

namespace
{

AlarmSoundInfo Sound(int nType, const char* pszDefault, const char* pszCustom = "")
{
    AlarmSoundInfo sound;
    sound.alarmType = nType;
    sound.defaultSound = pszDefault;
    sound.customSound = pszCustom;
    return sound;
}

/// Entries of every kind: types of their own, the three shared keys, categories that flash and that never do.
AlarmConfigInfo Record()
{
    AlarmConfigInfo record;
    record.flashCategories = {{1, false}, {2, true}, {3, false}, {6, true}, {9, true}, {777, false}};
    record.alarmSounds = {
        {2, Sound(3101, "rules.wav")},       {201, Sound(201, "device.wav", "/own/device.wav")},
        {302, Sound(302, "video.wav")},      {967, Sound(967, "face967.wav")},
        {3100, Sound(3100, "r3100.wav")},    {3131, Sound(3131, "r3131.wav")},
        {100000, Sound(901, "vehicle.wav")}, {200000, Sound(961, "face.wav", "/own/face.wav")},
    };
    return record;
}

const QString g_strDefaultFolder = "./Sound/sound_en/";

} // namespace

class tst_AlarmConfig : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();

    void Captions_data();
    void Captions();
    void Form();
    void TheMapBoxHasTheSkinsImages();
    void TheMenuLeavesOutTheCustomAlarm();
    void TheCatalogueRebuildsTheMenuOnly_data();
    void TheCatalogueRebuildsTheMenuOnly();
    void SlotsByName();

    void ANullSectionIsRefused();
    void LoadOrder();
    void LoadShowsTheFlags_data();
    void LoadShowsTheFlags();
    void LoadListsTheSounds();
    void LoadShowsTheFirstSound_data();
    void LoadShowsTheFirstSound();
    void LoadListsTheCategories();
    void AllIsCheckedWhenEveryListedCategoryIs();
    void AnEmptyRecordIsShown();
    void UnknownTypesAreListedWithoutAName();

    void DefaultsComeFromTheRecordsKeys();
    void DefaultsAreSavedWithTheCurrentBoxes();
    void APlainLoadDropsTheDefaults();
    void ReloadTellsTheSectionFirst_data();
    void ReloadTellsTheSectionFirst();

    void SaveOrder();
    void SaveWritesTheFlags();
    void SaveReturnsTheSectionsResult();
    void SaveMergesPickedCategories();
    void AllPicksEveryCategoryButTwo();
    void ACategoryThatTheRecordLacksIsDropped();
    void ALoadDropsPickedCategories();
    void PickedCategoriesAreMergedOnce();

    void ControlState_data();
    void ControlState();
    void ControlStateFollowsTheStoredRecord();
    void ControlStateFollowsRestoredDefaults();
    void ClickingEnables_data();
    void ClickingEnables();

    void PickingATypeShowsItsSound_data();
    void PickingATypeShowsItsSound();
    void PickingATypeHandsTheRecordBack();
    void PickingATypeWithDefaultsLeavesTheSectionAlone();

    void BrowsingSetsTheCustomSound_data();
    void BrowsingSetsTheCustomSound();
    void BrowsingWithoutAPickMeansTheFirstEntry();
    void BrowsingAfterDefaultsChangesTheCachedRecord();
    void BrowsingStartsInTheFolderShown();
    void CancellingTheFileDialogChangesNothing();
    void AKeyThatTheRecordLacksIsHandedBackUnchanged();

    void PreviewWithoutASoundServerFailsSilently();

    void ConfigXml_data();
    void ConfigXml();
    void AFolderIsNoConfigXml();
    void ConfigXmlForcesTheSoundAtOnce_data();
    void ConfigXmlForcesTheSoundAtOnce();
    void WithoutConfigXmlNothingIsForced();
    void ConfigXmlNeedsASection();

    void Right45();
    void UnInitForgetsTheSection();

private:
    void Load(const AlarmConfigInfo& record)
    {
        m_pFixture->section.m_record = record;
        QCOMPARE(m_pFixture->page.SetConfigSection(&m_pFixture->section), 0);
        m_pFixture->journal.Take();
    }
    const AlarmConfigInfo& Stored() const { return m_pFixture->section.m_record; }
    KVGUI::KvCheckBox* Check(const char* pszName) const { return m_pFixture->Find<KVGUI::KvCheckBox>(pszName); }
    KVGUI::KvRadioButton* Radio(const char* pszName) const { return m_pFixture->Find<KVGUI::KvRadioButton>(pszName); }
    UICommonMdl::CAlarmTypeCombox* Types() const
    {
        return m_pFixture->Find<UICommonMdl::CAlarmTypeCombox>("cbxAlarmTypeForSound");
    }
    QCheckableComboBox* Categories() const { return m_pFixture->Find<QCheckableComboBox>("cbxAlarmTypeForMap"); }
    UICommonMdl::CPathEdit* Path() const { return m_pFixture->Find<UICommonMdl::CPathEdit>("editSoundPath"); }
    static void Click(QAbstractButton* pButton)
    {
        QTest::mouseClick(pButton, Qt::LeftButton, {}, QPoint(8, pButton->height() / 2));
    }
    void PickType(int nType) const
    {
        const CAlarmType* pCatalogue = CAlarmType::Instance();
        QVERIFY(Types()->ChooseItem(pCatalogue->GetGroupInfoByAlarmId(nType).nCategoryId,
                                    pCatalogue->GetIndexByAlarmTypeId(nType)));
    }
    /// The categories as the opened list shows them: name, with a star when it is checked.
    QStringList ListedCategories() const
    {
        QStringList listTexts;
        Categories()->showPopup();
        auto* pList = qobject_cast<KVGUI::KvListWidget*>(Categories()->view());
        for (int n = 0; n < pList->count(); ++n)
        {
            const auto* pBox = qobject_cast<KVGUI::KvCheckBox*>(pList->itemWidget(pList->item(n)));
            listTexts += pBox->text() + (pBox->isChecked() ? "*" : "");
        }
        Categories()->hidePopup();
        return listTexts;
    }
    void ToggleCategory(const QString& strName) const
    {
        Categories()->showPopup();
        for (KVGUI::KvCheckBox* pBox : Categories()->view()->findChildren<KVGUI::KvCheckBox*>())
        {
            if (pBox->text() == strName)
            {
                Click(pBox);
            }
        }
        Categories()->hidePopup();
    }
    static QString CategoryName(int nId) { return CAlarmType::Instance()->GetCategoryInfoByCategoryId(nId).strName; }
    /// Presses the browse button and takes a file in the dialog that opens; an empty one cancels.
    void Browse(const QString& strFile, QString* pFolder = nullptr)
    {
        QTimer timer;
        connect(&timer, &QTimer::timeout, this, [&] {
            auto* pDialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            if (!pDialog)
            {
                return;
            }
            timer.stop();
            if (pFolder)
            {
                *pFolder = pDialog->directory().path();
            }
            m_strDialogTitle = pDialog->windowTitle();
            m_listDialogFilters = pDialog->nameFilters();
            if (strFile.isEmpty())
            {
                pDialog->reject();
                return;
            }
            auto* pName = pDialog->findChild<QLineEdit*>("fileNameEdit");
            pName->setText(strFile);
            QTest::keyClick(pName, Qt::Key_Enter);
        });
        timer.start(20);
        QTest::mouseClick(Path()->findChild<QAbstractButton*>("btnBrowse"), Qt::LeftButton);
    }
    QString MakeWav(const char* pszName) const
    {
        const QString strPath = m_pFolder->filePath(pszName);
        QFile file(strPath);
        if (file.open(QIODevice::WriteOnly))
        {
            file.write("RIFF");
        }
        return strPath;
    }
    static void WriteConfigXml(const QByteArray& content)
    {
        QFile file("Config.xml");
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
    }

    struct SFixture : SPageFixture<CAlarmConfig, LocalConfigLogical::IAlarmSection, AlarmConfigInfo, CFakeAlarmSection>
    {};
    QScopedPointer<QTemporaryDir> m_pFolder;
    QScopedPointer<SFixture> m_pFixture;
    QString m_strDialogTitle;
    QStringList m_listDialogFilters;
};

void tst_AlarmConfig::initTestCase()
{
    qputenv("PULSE_SERVER", "unix:/nonexistent"); // no sound server, and none that is started for the purpose
}

void tst_AlarmConfig::init()
{
    m_pFolder.reset(new QTemporaryDir);
    QVERIFY(QDir::setCurrent(m_pFolder->path()));
    UICommonMdl::CGlobalInfo::SetClientStrLanguage("en");
    m_pFixture.reset(new SFixture);
    m_pFixture->journal.Take();
}

// --- Form

void tst_AlarmConfig::Captions_data()
{
    QTest::addColumn<QString>("strText");
    QTest::newRow("labAlarmTypeForSound") << "Alarm Type:";
    QTest::newRow("labSoundPath") << "Sound Path:";
    QTest::newRow("labAlarmTypeForFlash") << "Alarm Type:";
    QTest::newRow("label") << "Open Video Type:";
}

void tst_AlarmConfig::Captions()
{
    QFETCH(QString, strText);
    QCOMPARE(m_pFixture->Find<QLabel>(QTest::currentDataTag())->text(), strText);
}

void tst_AlarmConfig::TheMapBoxHasTheSkinsImages()
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

void tst_AlarmConfig::Form()
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

void tst_AlarmConfig::TheMenuLeavesOutTheCustomAlarm()
{
    const CAlarmType* pCatalogue = CAlarmType::Instance();
    for (int nIndex = 0; nIndex < pCatalogue->GetAlarmTypeCount(); ++nIndex)
    {
        const int nType = pCatalogue->GetAlarmTypeIdByIndex(nIndex);
        const int nCategory = pCatalogue->GetGroupInfoByAlarmId(nType).nCategoryId;
        QCOMPARE(Types()->ChooseItem(nCategory, nIndex), nType != 301);
    }
}

void tst_AlarmConfig::TheCatalogueRebuildsTheMenuOnly_data()
{
    QTest::addColumn<CatalogueSignal>("pSignal");
    QTest::newRow("custom types") << &CAlarmType::SignalUpdateCustomAlarmType;
    QTest::newRow("all types") << &CAlarmType::SignalUpdateAlarmType;
}

void tst_AlarmConfig::TheCatalogueRebuildsTheMenuOnly()
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

void tst_AlarmConfig::SlotsByName()
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

// --- Load

void tst_AlarmConfig::ANullSectionIsRefused()
{
    QCOMPARE(m_pFixture->page.SetConfigSection(nullptr), -1);
    QCOMPARE(m_pFixture->page.SaveConfig(), -1);
    m_pFixture->page.LoadConfig(true);
    m_pFixture->page.ReloadConfig(true);
    m_pFixture->page.UpdateControlState(false);
    QCOMPARE(Types()->count(), 0);
}

void tst_AlarmConfig::LoadOrder()
{
    QCOMPARE(m_pFixture->page.SetConfigSection(&m_pFixture->section), 0);
    const QStringList listCalls = m_pFixture->journal.Take();
    QVERIFY(!listCalls.isEmpty());
    QCOMPARE(listCalls.count("GetConfig"), listCalls.size()); // reading only
}

void tst_AlarmConfig::LoadShowsTheFlags_data()
{
    QTest::addColumn<bool>("bSound");
    QTest::addColumn<bool>("bLoop");
    QTest::addColumn<bool>("bFlash");
    QTest::addColumn<bool>("bVideo");
    QTest::addColumn<int>("nOpenType");
    QTest::newRow("all off") << false << false << false << false << 0;
    QTest::newRow("sound") << true << false << false << false << 1;
    QTest::newRow("loop") << false << true << false << false << 0;
    QTest::newRow("flash") << false << false << true << false << -1;
    QTest::newRow("video") << false << false << false << true << 99;
}

void tst_AlarmConfig::LoadShowsTheFlags()
{
    QFETCH(bool, bSound);
    QFETCH(bool, bLoop);
    QFETCH(bool, bFlash);
    QFETCH(bool, bVideo);
    QFETCH(int, nOpenType);
    AlarmConfigInfo record = Record();
    record.alarmSound = bSound;
    record.loopSound = bLoop;
    record.mapFlash = bFlash;
    record.linkVideo = bVideo;
    record.openVideoType = nOpenType;
    Load(record);
    QCOMPARE(Check("ckbAlarmSound")->isChecked(), bSound);
    QCOMPARE(Check("ckbLoop")->isChecked(), bLoop);
    QCOMPARE(Check("ckbMapFlash")->isChecked(), bFlash);
    QCOMPARE(Check("ckbLinkVideo")->isChecked(), bVideo);
    QCOMPARE(Radio("radioPopUp")->isChecked(), nOpenType == 0);
    QCOMPARE(Radio("radioPreview")->isChecked(), nOpenType != 0);
}

void tst_AlarmConfig::LoadListsTheSounds()
{
    Load(Record());
    PickType(302);
    m_pFixture->page.LoadConfig(false);
    QStringList listNames;
    for (int n = 0; n < Types()->count(); ++n)
    {
        listNames += Types()->itemText(n);
    }
    QStringList listExpected;
    for (int nType : {3101, 201, 302, 967, 3100, 3131, 901, 961})
    {
        listExpected += CAlarmType::Instance()->CovertAlarmNameByType(nType);
    }
    QCOMPARE(listNames, listExpected);
    QCOMPARE(Types()->currentIndex(), 0);
    QCOMPARE(Types()->GetCurrentChosenItem(), QList<int>());
}

void tst_AlarmConfig::LoadShowsTheFirstSound_data()
{
    QTest::addColumn<QString>("strCustom");
    QTest::addColumn<QString>("strLanguage");
    QTest::addColumn<QString>("strShown");
    QTest::newRow("built-in") << ""
                              << "en"
                              << "./Sound/sound_en/rules.wav";
    QTest::newRow("built-in, other language") << ""
                                              << "zh_CN"
                                              << "./Sound/sound_zh_CN/rules.wav";
    QTest::newRow("custom") << "/own/rules.wav"
                            << "en"
                            << "/own/rules.wav";
    QTest::newRow("custom, any script") << QString::fromUtf8("/\xe5\xa3\xb0.wav") << "en"
                                        << QString::fromUtf8("/\xe5\xa3\xb0.wav");
}

void tst_AlarmConfig::LoadShowsTheFirstSound()
{
    QFETCH(QString, strCustom);
    QFETCH(QString, strLanguage);
    QFETCH(QString, strShown);
    UICommonMdl::CGlobalInfo::SetClientStrLanguage(strLanguage);
    AlarmConfigInfo record = Record();
    record.alarmSounds[2].customSound = strCustom.toStdString();
    Load(record);
    QCOMPARE(Path()->text(), strShown);
}

void tst_AlarmConfig::LoadListsTheCategories()
{
    Load(Record());
    // 1 and 6 are never offered, 777 has no name.
    QCOMPARE(ListedCategories(), (QStringList{"All", CategoryName(2) + "*", CategoryName(3), CategoryName(9) + "*"}));
    QCOMPARE(Categories()->currentText(), CategoryName(2) + " ...");
}

void tst_AlarmConfig::AllIsCheckedWhenEveryListedCategoryIs()
{
    AlarmConfigInfo record = Record();
    record.flashCategories[3] = true;
    Load(record);
    QCOMPARE(ListedCategories(),
             (QStringList{"All*", CategoryName(2) + "*", CategoryName(3) + "*", CategoryName(9) + "*"}));
    QCOMPARE(Categories()->currentText(), QString("All"));
}

void tst_AlarmConfig::AnEmptyRecordIsShown()
{
    Load(Record());
    Load(AlarmConfigInfo());
    QCOMPARE(Types()->count(), 0);
    QCOMPARE(Path()->text(), QString());
    QCOMPARE(Categories()->currentText(), QString("All"));
    QCOMPARE(m_pFixture->page.SaveConfig(), 0);
}

void tst_AlarmConfig::UnknownTypesAreListedWithoutAName()
{
    AlarmConfigInfo record;
    record.alarmSounds = {{-3, Sound(123456, "x.wav")}};
    Load(record);
    QCOMPARE(Types()->count(), 1);
    QCOMPARE(Types()->itemText(0), QString());
    QCOMPARE(Path()->text(), g_strDefaultFolder + "x.wav");
}

// --- Defaults

void tst_AlarmConfig::DefaultsComeFromTheRecordsKeys()
{
    AlarmConfigInfo record = Record();
    record.alarmSound = false;
    record.loopSound = true;
    record.mapFlash = false;
    record.linkVideo = false;
    record.openVideoType = 1;
    record.alarmSounds[2].customSound = "/own/rules.wav";
    Load(record);
    m_pFixture->page.LoadConfig(true);
    QCOMPARE(m_pFixture->journal.Take(), QStringList{"GetConfig"});
    QVERIFY(Check("ckbAlarmSound")->isChecked() && Check("ckbMapFlash")->isChecked());
    QVERIFY(Check("ckbLinkVideo")->isChecked() && !Check("ckbLoop")->isChecked());
    QVERIFY(Radio("radioPopUp")->isChecked());
    QCOMPARE(Path()->text(), g_strDefaultFolder + "rules.wav");
    QCOMPARE(ListedCategories(),
             (QStringList{"All*", CategoryName(2) + "*", CategoryName(3) + "*", CategoryName(9) + "*"}));
    QCOMPARE(Types()->count(), int(record.alarmSounds.size()));
}

void tst_AlarmConfig::DefaultsAreSavedWithTheCurrentBoxes()
{
    Load(Record());
    m_pFixture->page.LoadConfig(true);
    m_pFixture->journal.Take();
    Click(Check("ckbLoop"));
    Click(Radio("radioPreview"));
    QCOMPARE(m_pFixture->page.SaveConfig(), 0);
    QCOMPARE(m_pFixture->journal.Take(), (QStringList{"PrepareSave", "SetConfig true"}));
    QVERIFY(Stored().loopSound);
    QCOMPARE(Stored().openVideoType, 1);
    QCOMPARE(Stored().flashCategories,
             (std::map<std::int32_t, bool>{{1, false}, {2, true}, {3, true}, {6, true}, {9, true}, {777, true}}));
    for (const auto& sound : Stored().alarmSounds)
    {
        QCOMPARE(sound.second.customSound, std::string());
        QVERIFY(sound.second.soundChanged);
    }
    QCOMPARE(Stored().alarmSounds.at(201).defaultSound, std::string("device.wav"));
}

void tst_AlarmConfig::APlainLoadDropsTheDefaults()
{
    Load(Record());
    m_pFixture->page.LoadConfig(true);
    m_pFixture->page.LoadConfig(false);
    QCOMPARE(m_pFixture->page.SaveConfig(), 0);
    QCOMPARE(Stored().alarmSounds.at(201).customSound, std::string("/own/device.wav"));
    QCOMPARE(Stored().flashCategories, Record().flashCategories);
}

void tst_AlarmConfig::ReloadTellsTheSectionFirst_data()
{
    QTest::addColumn<bool>("bDefault");
    QTest::newRow("stored") << false;
    QTest::newRow("defaults") << true;
}

void tst_AlarmConfig::ReloadTellsTheSectionFirst()
{
    QFETCH(bool, bDefault);
    AlarmConfigInfo record = Record();
    record.loopSound = bDefault;
    Load(record);
    m_pFixture->section.m_record.loopSound = !bDefault;
    m_pFixture->page.ReloadConfig(bDefault);
    const QStringList listCalls = m_pFixture->journal.Take();
    QCOMPARE(listCalls.first(), QString("ResetConfig ") + (bDefault ? "true" : "false"));
    QCOMPARE(listCalls.count("GetConfig"), listCalls.size() - 1);
    QCOMPARE(Check("ckbLoop")->isChecked(), !bDefault);
}

// --- Save

void tst_AlarmConfig::SaveOrder()
{
    Load(Record());
    QCOMPARE(m_pFixture->page.SaveConfig(), 0);
    QCOMPARE(m_pFixture->journal.Take(), (QStringList{"PrepareSave", "GetConfig", "SetConfig true"}));
}

void tst_AlarmConfig::SaveWritesTheFlags()
{
    AlarmConfigInfo record = Record();
    record.alarmSounds[201].hostOwned4 = 7;
    record.alarmSounds[201].soundChanged = true;
    Load(record);
    for (const char* pszBox : {"ckbAlarmSound", "ckbMapFlash", "ckbLinkVideo"})
    {
        Click(Check(pszBox));
    }
    QCOMPARE(m_pFixture->page.SaveConfig(), 0);
    QVERIFY(!Stored().alarmSound && !Stored().mapFlash && !Stored().linkVideo && !Stored().loopSound);
    QCOMPARE(Stored().openVideoType, 0);
    QCOMPARE(Stored().flashCategories, record.flashCategories);
    QCOMPARE(Stored().alarmSounds.size(), record.alarmSounds.size());
    QCOMPARE(int(Stored().alarmSounds.at(201).hostOwned4), 7);
    QVERIFY(Stored().alarmSounds.at(201).soundChanged);
    QVERIFY(!Stored().alarmSounds.at(302).soundChanged);
}

void tst_AlarmConfig::SaveReturnsTheSectionsResult()
{
    Load(Record());
    m_pFixture->section.m_nResult = 17;
    QCOMPARE(m_pFixture->page.SaveConfig(), 17);
}

void tst_AlarmConfig::SaveMergesPickedCategories()
{
    Load(Record());
    ToggleCategory(CategoryName(3));
    ToggleCategory(CategoryName(9));
    QCOMPARE(Stored().flashCategories, Record().flashCategories);
    QCOMPARE(m_pFixture->page.SaveConfig(), 0);
    std::map<std::int32_t, bool> mapExpected = Record().flashCategories;
    mapExpected[3] = true;
    mapExpected[9] = false;
    QCOMPARE(Stored().flashCategories, mapExpected);
}

void tst_AlarmConfig::AllPicksEveryCategoryButTwo()
{
    Load(Record());
    ToggleCategory("All");
    QCOMPARE(m_pFixture->page.SaveConfig(), 0);
    QCOMPARE(Stored().flashCategories,
             (std::map<std::int32_t, bool>{{1, false}, {2, true}, {3, true}, {6, true}, {9, true}, {777, true}}));
    m_pFixture->page.LoadConfig(false);
    ToggleCategory("All");
    QCOMPARE(m_pFixture->page.SaveConfig(), 0);
    QCOMPARE(Stored().flashCategories,
             (std::map<std::int32_t, bool>{{1, false}, {2, false}, {3, false}, {6, true}, {9, false}, {777, false}}));
}

void tst_AlarmConfig::ACategoryThatTheRecordLacksIsDropped()
{
    Load(Record());
    ToggleCategory(CategoryName(3));
    m_pFixture->section.m_record.flashCategories.erase(3);
    QCOMPARE(m_pFixture->page.SaveConfig(), 0);
    QCOMPARE(Stored().flashCategories.count(3), std::size_t(0));
}

void tst_AlarmConfig::ALoadDropsPickedCategories()
{
    Load(Record());
    ToggleCategory(CategoryName(3));
    m_pFixture->page.LoadConfig(false);
    QCOMPARE(m_pFixture->page.SaveConfig(), 0);
    QCOMPARE(Stored().flashCategories, Record().flashCategories);
}

void tst_AlarmConfig::PickedCategoriesAreMergedOnce()
{
    Load(Record());
    ToggleCategory(CategoryName(3));
    QCOMPARE(m_pFixture->page.SaveConfig(), 0);
    m_pFixture->section.m_record.flashCategories[3] = false; // by somebody else
    QCOMPARE(m_pFixture->page.SaveConfig(), 0);
    QVERIFY(!Stored().flashCategories.at(3));
}

// --- Control state

namespace
{

const QStringList g_listSoundControls = {"cbxAlarmTypeForSound", "editSoundPath", "btnSoundPlay", "ckbLoop",
                                         "labAlarmTypeForSound", "labSoundPath"};
const QStringList g_listFlashControls = {"cbxAlarmTypeForMap", "labAlarmTypeForFlash"};
const QStringList g_listVideoControls = {"radioPopUp", "radioPreview"};

} // namespace

void tst_AlarmConfig::ControlState_data()
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

void tst_AlarmConfig::ControlState()
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

void tst_AlarmConfig::ControlStateFollowsTheStoredRecord()
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

void tst_AlarmConfig::ControlStateFollowsRestoredDefaults()
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

void tst_AlarmConfig::ClickingEnables_data()
{
    QTest::addColumn<QStringList>("listControls");
    QTest::newRow("ckbAlarmSound") << g_listSoundControls;
    QTest::newRow("ckbMapFlash") << g_listFlashControls;
    QTest::newRow("ckbLinkVideo") << g_listVideoControls;
}

void tst_AlarmConfig::ClickingEnables()
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

// --- Sounds

void tst_AlarmConfig::PickingATypeShowsItsSound_data()
{
    QTest::addColumn<QString>("strShown");
    const QString strBefore = g_strDefaultFolder + "rules.wav"; // of the first entry, which is shown at first
    QTest::newRow("302") << g_strDefaultFolder + "video.wav";
    QTest::newRow("201") << "/own/device.wav";
    QTest::newRow("961") << "/own/face.wav"; // all of group 104 but three
    QTest::newRow("17021") << "/own/face.wav";
    QTest::newRow("967") << g_strDefaultFolder + "face967.wav";
    QTest::newRow("17020") << strBefore; // no entry of its own
    QTest::newRow("17029") << strBefore;
    QTest::newRow("901") << g_strDefaultFolder + "vehicle.wav"; // group 105
    QTest::newRow("905") << g_strDefaultFolder + "vehicle.wav";
    QTest::newRow("3100") << g_strDefaultFolder + "r3100.wav";
    QTest::newRow("3101") << g_strDefaultFolder + "rules.wav";
    QTest::newRow("3115") << g_strDefaultFolder + "rules.wav";
    QTest::newRow("3130") << g_strDefaultFolder + "rules.wav";
    QTest::newRow("3131") << g_strDefaultFolder + "r3131.wav";
    QTest::newRow("1301") << strBefore;
}

void tst_AlarmConfig::PickingATypeShowsItsSound()
{
    QFETCH(QString, strShown);
    Load(Record());
    PickType(QByteArray(QTest::currentDataTag()).toInt());
    QCOMPARE(Path()->text(), strShown);
}

void tst_AlarmConfig::PickingATypeHandsTheRecordBack()
{
    Load(Record());
    PickType(302);
    QCOMPARE(m_pFixture->journal.Take(), (QStringList{"GetConfig", "SetConfig false"}));
    QCOMPARE(Stored().alarmSounds.size(), Record().alarmSounds.size());
}

void tst_AlarmConfig::PickingATypeWithDefaultsLeavesTheSectionAlone()
{
    Load(Record());
    m_pFixture->page.LoadConfig(true);
    m_pFixture->journal.Take();
    PickType(201);
    QCOMPARE(m_pFixture->journal.Take(), QStringList());
    QCOMPARE(Path()->text(), g_strDefaultFolder + "device.wav");
}

void tst_AlarmConfig::BrowsingSetsTheCustomSound_data()
{
    QTest::addColumn<int>("nKey");
    QTest::newRow("302") << 302;
    QTest::newRow("961") << 200000;
    QTest::newRow("967") << 967;
    QTest::newRow("905") << 100000;
    QTest::newRow("3100") << 3100;
    QTest::newRow("3131") << 3131;
}

void tst_AlarmConfig::BrowsingSetsTheCustomSound()
{
    QFETCH(int, nKey);
    Load(Record());
    PickType(QByteArray(QTest::currentDataTag()).toInt());
    m_pFixture->journal.Take();
    QSignalSpy spy(&m_pFixture->page, &CAlarmConfig::sgnAlarmCustomSoundEdited);
    const QString strFile = MakeWav("mine.wav");
    Browse(strFile);
    QCOMPARE(m_strDialogTitle, QString("Select a wav file"));
    QCOMPARE(m_listDialogFilters, QStringList{"WAVE Files (*.wav)"});
    QCOMPARE(spy.size(), 1);
    QCOMPARE(spy.first(), (QVariantList{nKey, strFile}));
    QCOMPARE(Path()->text(), strFile);
    QCOMPARE(m_pFixture->journal.Take(), (QStringList{"GetConfig", "SetConfig false"}));
    for (const auto& sound : Stored().alarmSounds)
    {
        const bool bEdited = sound.first == nKey;
        QCOMPARE(sound.second.soundChanged, bEdited);
        QCOMPARE(sound.second.customSound,
                 bEdited ? strFile.toStdString() : Record().alarmSounds.at(sound.first).customSound);
    }
}

void tst_AlarmConfig::BrowsingWithoutAPickMeansTheFirstEntry()
{
    AlarmConfigInfo record = Record();
    record.alarmSounds.erase(2);
    Load(record); // the first entry is now 201
    QSignalSpy spy(&m_pFixture->page, &CAlarmConfig::sgnAlarmCustomSoundEdited);
    const QString strFile = MakeWav("mine.wav");
    Browse(strFile);
    QCOMPARE(spy.size(), 1);
    QCOMPARE(spy.first(), (QVariantList{201, strFile}));
    QCOMPARE(Stored().alarmSounds.at(201).customSound, strFile.toStdString());
}

void tst_AlarmConfig::BrowsingAfterDefaultsChangesTheCachedRecord()
{
    Load(Record());
    m_pFixture->page.LoadConfig(true);
    PickType(302);
    const QString strFile = MakeWav("mine.wav");
    Browse(strFile);
    QCOMPARE(Stored().alarmSounds.at(302).customSound, std::string());
    QCOMPARE(m_pFixture->page.SaveConfig(), 0);
    QCOMPARE(Stored().alarmSounds.at(302).customSound, strFile.toStdString());
    QCOMPARE(Stored().alarmSounds.at(201).customSound, std::string());
}

void tst_AlarmConfig::BrowsingStartsInTheFolderShown()
{
    QVERIFY(QDir().mkpath("Sound/sound_en"));
    Load(Record());
    QString strFolder;
    Browse(QString(), &strFolder);
    QCOMPARE(strFolder, QDir::currentPath() + "/Sound/sound_en");
}

void tst_AlarmConfig::CancellingTheFileDialogChangesNothing()
{
    Load(Record());
    QSignalSpy spy(&m_pFixture->page, &CAlarmConfig::sgnAlarmCustomSoundEdited);
    const QString strPath = Path()->text();
    Browse(QString());
    QCOMPARE(spy.size(), 0);
    QCOMPARE(Path()->text(), strPath);
    QCOMPARE(m_pFixture->journal.Take(), QStringList());
}

void tst_AlarmConfig::AKeyThatTheRecordLacksIsHandedBackUnchanged()
{
    Load(Record());
    PickType(3115); // whose pick shows the common entry, while browsing means its own, which there is not
    m_pFixture->journal.Take();
    const QString strFile = MakeWav("mine.wav");
    Browse(strFile);
    QCOMPARE(m_pFixture->journal.Take(), (QStringList{"GetConfig", "SetConfig false"}));
    QCOMPARE(Stored().alarmSounds.count(3115), std::size_t(0));
    QCOMPARE(Stored().alarmSounds.at(2).customSound, std::string());
}

void tst_AlarmConfig::PreviewWithoutASoundServerFailsSilently()
{
    Load(Record());
    QVERIFY(QDir().mkpath("Sound/sound_en"));
    QVERIFY(QFile::copy(UICommonMdl::CGlobalInfo::GetResourcePath() + "/Sound/sound_en/door.wav",
                        "Sound/sound_en/rules.wav"));
    QElapsedTimer clock;
    clock.start();
    for (int n = 0; n < 3; ++n)
    {
        QTest::mouseClick(m_pFixture->Find<QAbstractButton>("btnSoundPlay"), Qt::LeftButton);
    }
    QVERIFY2(clock.elapsed() < 5000, qPrintable(QString::number(clock.elapsed())));
    QVERIFY(!QApplication::activeModalWidget());
    QCOMPARE(m_pFixture->journal.Take(), QStringList());
}

// --- Config.xml

void tst_AlarmConfig::ConfigXml_data()
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

void tst_AlarmConfig::ConfigXml()
{
    QFETCH(QByteArray, content);
    QFETCH(int, nForced);
    WriteConfigXml(content);
    const std::optional<bool> forced = ReadForcedAlarmSound(QDir::currentPath() + "/Config.xml");
    QCOMPARE(forced ? int(*forced) : -1, nForced);
}

void tst_AlarmConfig::AFolderIsNoConfigXml()
{
    QVERIFY(QDir().mkdir("Config.xml"));
    QVERIFY(!ReadForcedAlarmSound(QDir::currentPath() + "/Config.xml"));
}

void tst_AlarmConfig::ConfigXmlForcesTheSoundAtOnce_data()
{
    QTest::addColumn<bool>("bForced");
    QTest::newRow("off") << false;
    QTest::newRow("on") << true;
}

void tst_AlarmConfig::ConfigXmlForcesTheSoundAtOnce()
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

void tst_AlarmConfig::WithoutConfigXmlNothingIsForced()
{
    Load(Record());
    QCOMPARE(m_pFixture->page.ApplyConfigXml(), -1);
    QCOMPARE(m_pFixture->journal.Take(), QStringList());
}

void tst_AlarmConfig::ConfigXmlNeedsASection()
{
    WriteConfigXml("<AlarmLink><EnableAlarmSound>0</EnableAlarmSound></AlarmLink>");
    QCOMPARE(m_pFixture->page.ApplyConfigXml(), -1);
}

// --- The rest

void tst_AlarmConfig::Right45()
{
    QVERIFY(!m_pFixture->page.HasNoRight45());
    m_pFixture->page.MarkNoRight45();
    QVERIFY(m_pFixture->page.HasNoRight45());
    Load(Record());
    QVERIFY(Types()->isEnabled()); // the page itself derives nothing from it
}

void tst_AlarmConfig::UnInitForgetsTheSection()
{
    Load(Record());
    m_pFixture->page.UnInit();
    m_pFixture->page.LoadConfig(false);
    m_pFixture->page.ReloadConfig(false);
    PickType(302);
    QCOMPARE(m_pFixture->page.SaveConfig(), -1);
    QCOMPARE(m_pFixture->journal.Take(), QStringList());
}

QTEST_MAIN(tst_AlarmConfig)

#include "tst_AlarmConfig.moc"
