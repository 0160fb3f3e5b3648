#pragma once

#include <LocalConfig/interfaces/IVideoSection.h>
#include <LocalConfig/pages/CSectionPage.h>

#include <QWidget>

#include <array>
#include <memory>

class QRegExpValidator;

namespace Ui
{
class CVideoConfig;
}

namespace LocalConfig
{

class CSplitWndNumConfig;

/// Live view: split, scale, play mode, instant playback, decoding, idle closing.
class CVideoConfig : public QWidget,
                     public CSectionPage<LocalConfigLogical::IVideoSection, LocalConfigLogical::VideoConfigInfo>
{
    Q_OBJECT

public:
    explicit CVideoConfig(QWidget* pParent);
    ~CVideoConfig() override;

    QWidget* GetWidget() override { return this; }
    void LoadConfig(bool bDefault) override;
    int SaveConfig() override;
    void SetControlsEnabled(bool bEnable) override;
    bool eventFilter(QObject* pWatched, QEvent* pEvent) override;

protected:
    bool focusNextPrevChild(bool bNext) override;

signals:
    /// The page's height changed. The page itself never emits it; hosts of it may rely on its being there.
    void SignalChangeSize();

private slots:
    void OnDefStreamClicked();
    void OnAdaptStreamClicked();
    void OnCurrentIndexChangedPlayModeType(int nIndex);
    void OnShowSplitWndCfg();
    void OnSplitWndChange(int splitWndNum);
    void OnCurrentIndexChangedInstantType(int nIndex);
    void OnCurrentIndexChangedTimeUnit(int nUnit);
    void OnSilentStateChanged(int iCheckState);

private:
    void InitControls();
    void OnFocusChanged(QWidget* pOld, QWidget* pNow);
    void ClosePicker();
    void ConnectSlots();
    void Show(const LocalConfigLogical::VideoConfigInfo& record);
    void ShowInstantTime(const LocalConfigLogical::VideoConfigInfo& record);
    QString GetPresetText(int nSeconds) const;
    void SaveBufferTime(LocalConfigLogical::VideoConfigInfo& record);
    bool SaveInstantTime(LocalConfigLogical::VideoConfigInfo& record) const;

    std::unique_ptr<Ui::CVideoConfig> m_pUi;
    CSplitWndNumConfig* m_pSplitPicker;
    std::array<QRegExpValidator*, 3> m_arrTimeValidators{}; // by unit
    QStringList m_listInstantTexts;                         // as shown
    QStringList m_listInstantKeys; // at the same places, what a stored number of seconds is looked up by
    int m_nDefaultSplit = 0;
    bool m_bCustomInstant = false;
};

} // namespace LocalConfig
