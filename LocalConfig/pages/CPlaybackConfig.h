#pragma once

#include <LocalConfig/interfaces/IPlaybackSection.h>
#include <LocalConfig/pages/CSectionPage.h>

#include <QWidget>

#include <memory>

namespace Ui
{
class CPlaybackConfig;
}

namespace LocalConfig
{

/// Record playback: which recorded stream is asked for, and picture adjustment.
class CPlaybackConfig
    : public QWidget,
      public CSectionPage<LocalConfigLogical::IPlaybackSection, LocalConfigLogical::PlaybackConfigInfo>
{
    Q_OBJECT

public:
    explicit CPlaybackConfig(QWidget* pParent);
    ~CPlaybackConfig() override;

    QWidget* GetWidget() override { return this; }
    void LoadConfig(bool bDefault) override;
    int SaveConfig() override;
    void SetControlsEnabled(bool bEnable) override;

private slots:
    void OnPlaybackClicked();

private:
    void InitControls();

    std::unique_ptr<Ui::CPlaybackConfig> m_pUi;
};

} // namespace LocalConfig
