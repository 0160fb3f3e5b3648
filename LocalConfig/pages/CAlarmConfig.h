#pragma once

#include <LocalConfig/interfaces/IAlarmSection.h>
#include <LocalConfig/pages/CSectionPage.h>

#include <QMap>
#include <QWidget>

#include <memory>

class QSound;

namespace Ui
{
class CAlarmConfig;
}

namespace LocalConfig
{

/// Alarm notification: sounds, map flashing, linked video.
///
/// Restoring defaults leaves a cached record behind, which edits and saving then use in place of the section's, until
/// the page is loaded plainly again.
class CAlarmConfig : public QWidget,
                     public CSectionPage<LocalConfigLogical::IAlarmSection, LocalConfigLogical::AlarmConfigInfo>
{
    Q_OBJECT

public:
    explicit CAlarmConfig(QWidget* pParent);
    ~CAlarmConfig() override;

    QWidget* GetWidget() override { return this; }
    int SetConfigSection(LocalConfigLogical::IAlarmSection* pSection);
    int SetSection(LocalConfigLogical::IConfigSection* pSection) override;
    int ApplyConfigXml() override;
    void ReloadConfig(bool bDefault) override;
    void LoadConfig(bool bDefault) override;
    int SaveConfig() override;
    void SetControlsEnabled(bool bEnable) override { UpdateControlState(bEnable); }
    void UpdateControlState(bool bEnable);

    void MarkNoRight45() override { m_bNoRight45 = true; }
    bool HasNoRight45() const { return m_bNoRight45; }

signals:
    void sgnAlarmCustomSoundEdited(int nAlarmId, QString strSoundPath);

private slots:
    void OnSoundPathBtnClicked();
    void OnSoundPlayBtnClicked();
    void OnAlarmConfigEnableClicked();
    void OnAlarmTypeForSoundChanged(int nMainItem, int nSubItem);
    void OnItemChanged(int nId, bool bChecked);
    void OnAlarmCustomSoundEdited(int nAlarmId, const QString& strSoundPath);
    void OnUpdateCustomAlarmType();
    void OnReInitAlarmType();

private:
    void InitControls();
    void InitMenu();
    void ConnectSlots();
    void FillTypeLists(const LocalConfigLogical::AlarmConfigInfo& record);
    static void ResetTypeLists(LocalConfigLogical::AlarmConfigInfo& record);
    void ShowSound(const LocalConfigLogical::AlarmSoundInfo& sound);
    LocalConfigLogical::AlarmConfigInfo GetCurrentRecord() const;
    void PutBack(const LocalConfigLogical::AlarmConfigInfo& record);
    void EnableSoundControls(bool bEnable);
    void EnableFlashControls(bool bEnable);
    void EnableVideoChoice(bool bEnable);

    std::unique_ptr<Ui::CAlarmConfig> m_pUi;
    std::unique_ptr<QSound> m_pSound; // the preview; null before the first one
    LocalConfigLogical::AlarmConfigInfo m_cachedRecord;
    bool m_bCachedRecordValid = false;
    QMap<int, bool> m_mapPending; // category id: flash the map for it; merged when saving
    int m_nSoundTypeIndex = -1;   // in the catalogue
    bool m_bNoRight45 = false;
};

} // namespace LocalConfig
