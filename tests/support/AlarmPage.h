#pragma once

#include "PageFixture.h"
#include "WorkFolder.h"

#include <LocalConfig/pages/CAlarmConfig.h>
#include <LocalConfig/widgets/QCheckableComboBox.h>

#include <KvGui/KvCheckBox.h>
#include <KvGui/KvListWidget.h>
#include <KvGui/KvRadioButton.h>
#include <UICommonModule/CAlarmType.h>
#include <UICommonModule/CAlarmTypeCombox.h>
#include <UICommonModule/CGlobalInfo.h>
#include <UICommonModule/CPathEdit.h>

#include <QDir>
#include <QTemporaryDir>

inline const QString g_strDefaultFolder = "./Sound/sound_en/";
inline const QStringList g_listSoundControls = {"cbxAlarmTypeForSound", "editSoundPath", "btnSoundPlay", "ckbLoop",
                                                "labAlarmTypeForSound", "labSoundPath"};

/// The base of the Alarm page's tests, on a machine without a sound server.
class CAlarmPageTest : public QObject
{
protected:
    void Reset()
    {
        qputenv("PULSE_SERVER", "unix:/nonexistent"); // and none that is started for the purpose
        m_pFolder.reset(new CWorkFolder);
        UICommonMdl::CGlobalInfo::SetClientStrLanguage("en");
        m_pFixture.reset(new SFixture);
        m_pFixture->journal.Take();
    }

    static LocalConfigLogical::AlarmSoundInfo Sound(int nType, const char* pszDefault, const char* pszCustom = "")
    {
        LocalConfigLogical::AlarmSoundInfo sound;
        sound.alarmType = nType;
        sound.defaultSound = pszDefault;
        sound.customSound = pszCustom;
        return sound;
    }

    /// Entries of every kind: types of their own, the three shared keys, categories that flash and that never do.
    static LocalConfigLogical::AlarmConfigInfo Record()
    {
        LocalConfigLogical::AlarmConfigInfo record;
        record.flashCategories = {{1, false}, {2, true}, {3, false}, {6, true}, {9, true}, {777, false}};
        record.alarmSounds = {
            {2, Sound(3101, "rules.wav")},       {201, Sound(201, "device.wav", "/own/device.wav")},
            {302, Sound(302, "video.wav")},      {967, Sound(967, "face967.wav")},
            {3100, Sound(3100, "r3100.wav")},    {3131, Sound(3131, "r3131.wav")},
            {100000, Sound(901, "vehicle.wav")}, {200000, Sound(961, "face.wav", "/own/face.wav")},
        };
        return record;
    }

    void Load(const LocalConfigLogical::AlarmConfigInfo& record) { m_pFixture->Load(record); }
    const LocalConfigLogical::AlarmConfigInfo& Stored() const { return m_pFixture->section.m_record; }
    KVGUI::KvCheckBox* Check(const char* pszName) const { return m_pFixture->Find<KVGUI::KvCheckBox>(pszName); }
    KVGUI::KvRadioButton* Radio(const char* pszName) const { return m_pFixture->Find<KVGUI::KvRadioButton>(pszName); }
    UICommonMdl::CAlarmTypeCombox* Types() const
    {
        return m_pFixture->Find<UICommonMdl::CAlarmTypeCombox>("cbxAlarmTypeForSound");
    }
    LocalConfig::QCheckableComboBox* Categories() const
    {
        return m_pFixture->Find<LocalConfig::QCheckableComboBox>("cbxAlarmTypeForMap");
    }
    UICommonMdl::CPathEdit* Path() const { return m_pFixture->Find<UICommonMdl::CPathEdit>("editSoundPath"); }
    static void Click(QAbstractButton* pButton)
    {
        QTest::mouseClick(pButton, Qt::LeftButton, {}, QPoint(8, pButton->height() / 2));
    }
    void PickType(int nType) const
    {
        const UICommonMdl::CAlarmType* pCatalogue = UICommonMdl::CAlarmType::Instance();
        QVERIFY(Types()->ChooseItem(pCatalogue->GetGroupInfoByAlarmId(nType).nCategoryId,
                                    pCatalogue->GetIndexByAlarmTypeId(nType)));
    }
    static QString CategoryName(int nId)
    {
        return UICommonMdl::CAlarmType::Instance()->GetCategoryInfoByCategoryId(nId).strName;
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

    struct SFixture : SPageFixture<LocalConfig::CAlarmConfig, LocalConfigLogical::IAlarmSection,
                                   LocalConfigLogical::AlarmConfigInfo, CFakeAlarmSection>
    {};
    QScopedPointer<CWorkFolder> m_pFolder;
    QScopedPointer<SFixture> m_pFixture;
};
