#pragma once

#include <LocalConfig/interfaces/INetworkSection.h>
#include <LocalConfig/pages/CSectionPage.h>

#include <QWidget>

#include <memory>

namespace Ui
{
class CNetworkConfig;
}

namespace LocalConfig
{

/// The way to the platform server: one switch.
class CNetworkConfig : public QWidget,
                       public CSectionPage<LocalConfigLogical::INetworkSection, LocalConfigLogical::NetworkConfigInfo>
{
    Q_OBJECT

public:
    explicit CNetworkConfig(QWidget* pParent);
    ~CNetworkConfig() override;

    QWidget* GetWidget() override { return this; }
    void LoadConfig(bool bDefault) override;
    int SaveConfig() override;
    void SetControlsEnabled(bool bEnable) override;

private:
    std::unique_ptr<Ui::CNetworkConfig> m_pUi;
};

} // namespace LocalConfig
