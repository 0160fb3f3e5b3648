#pragma once

#include <LocalConfig/interfaces/ISecuritySection.h>
#include <LocalConfig/pages/CSectionPage.h>

#include <QWidget>

#include <memory>

namespace Ui
{
class CSecurityConfig;
}

namespace LocalConfig
{

/// Transmission security: one switch, which asks before it goes off.
class CSecurityConfig
    : public QWidget,
      public CSectionPage<LocalConfigLogical::ISecuritySection, LocalConfigLogical::SecurityConfigInfo>
{
    Q_OBJECT

public:
    explicit CSecurityConfig(QWidget* pParent);
    ~CSecurityConfig() override;

    QWidget* GetWidget() override { return this; }
    void LoadConfig(bool bDefault) override;
    int SaveConfig() override;
    void SetControlsEnabled(bool bEnable) override;

private slots:
    void OnSecurityStateChanged(int state);

private:
    std::unique_ptr<Ui::CSecurityConfig> m_pUi;
};

} // namespace LocalConfig
