#pragma once

#include <LocalConfig/interfaces/IBasicSection.h>
#include <LocalConfig/pages/CSectionPage.h>

#include <QWidget>

#include <memory>

namespace Ui
{
class CBasicConfig;
}

namespace LocalConfig
{

/// General client settings.
class CBasicConfig : public QWidget,
                     public CSectionPage<LocalConfigLogical::IBasicSection, LocalConfigLogical::BasicConfigInfo>
{
    Q_OBJECT

public:
    explicit CBasicConfig(QWidget* pParent);
    ~CBasicConfig() override;

    QWidget* GetWidget() override { return this; }
    void LoadConfig(bool bDefault) override;
    int SaveConfig() override;
    void SetControlsEnabled(bool bEnable) override;

    /// Name the skin, or the language, that the client starts with next time.
    static void WriteSkinName(int nSkin);
    static void WriteLanguageType(int nLanguage);

private:
    void InitControls();
    void Show(const LocalConfigLogical::BasicConfigInfo& record);

    std::unique_ptr<Ui::CBasicConfig> m_pUi;
};

} // namespace LocalConfig
