#pragma once

#include <LocalConfig/interfaces/IRecordSection.h>
#include <LocalConfig/pages/CSectionPage.h>

#include <QStringList>
#include <QWidget>

#include <memory>

namespace Ui
{
class CRecordConfig;
}

namespace LocalConfig
{

/// Local recordings: their folder, names and the size of one file.
class CRecordConfig : public QWidget,
                      public CSectionPage<LocalConfigLogical::IRecordSection, LocalConfigLogical::RecordConfigInfo>
{
    Q_OBJECT

public:
    explicit CRecordConfig(QWidget* pParent);
    ~CRecordConfig() override;

    QWidget* GetWidget() override { return this; }
    void LoadConfig(bool bDefault) override;
    int SaveConfig() override;
    void SetControlsEnabled(bool bEnable) override;

    bool eventFilter(QObject* pWatched, QEvent* pEvent) override;

private:
    void InitControls();

    std::unique_ptr<Ui::CRecordConfig> m_pUi;
    QStringList m_listNameFormats;
};

} // namespace LocalConfig
