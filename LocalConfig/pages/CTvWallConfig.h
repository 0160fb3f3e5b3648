#pragma once

#include <LocalConfig/interfaces/ITvWallSection.h>
#include <LocalConfig/pages/CSectionPage.h>

#include <QWidget>

#include <memory>

namespace Ui
{
class CTvWallConfig;
}

namespace LocalConfig
{

/// Video wall: streams, tour and binding mode.
class CTvWallConfig : public QWidget,
                      public CSectionPage<LocalConfigLogical::ITvWallSection, LocalConfigLogical::TvWallConfigInfo>
{
    Q_OBJECT

public:
    explicit CTvWallConfig(QWidget* pParent);
    ~CTvWallConfig() override;

    QWidget* GetWidget() override { return this; }
    void LoadConfig(bool bDefault) override;
    int SaveConfig() override;
    void SetControlsEnabled(bool bEnable) override;
    bool eventFilter(QObject* pWatched, QEvent* pEvent) override;

private:
    void InitControls();
    void ShowBindMode(int nBindMode);
    int GetBindMode() const;
    QString GetStayTimeMessage() const;
    void ClearStayTimeError();

    std::unique_ptr<Ui::CTvWallConfig> m_pUi;
};

} // namespace LocalConfig
