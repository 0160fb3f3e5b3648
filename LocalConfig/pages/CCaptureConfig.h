#pragma once

#include <LocalConfig/interfaces/ISnapshotSection.h>
#include <LocalConfig/pages/CSectionPage.h>

#include <QStringList>
#include <QWidget>

#include <memory>

namespace Ui
{
class CCaptureConfig;
}

namespace LocalConfig
{

/// Snapshots: their format, folder and names, and how many a continuous snapshot takes at which interval.
class CCaptureConfig : public QWidget,
                       public CSectionPage<LocalConfigLogical::ISnapshotSection, LocalConfigLogical::SnapshotConfigInfo>
{
    Q_OBJECT

public:
    explicit CCaptureConfig(QWidget* pParent);
    ~CCaptureConfig() override;

    QWidget* GetWidget() override { return this; }
    void LoadConfig(bool bDefault) override;
    int SaveConfig() override;
    void SetControlsEnabled(bool bEnable) override;

    /// The index of a file-name pattern; -1 for any other text.
    int GetNameFormatIndex(const QString& strPattern) const { return m_listNameFormats.indexOf(strPattern); }

    bool eventFilter(QObject* pWatched, QEvent* pEvent) override;

private:
    void InitControls();

    std::unique_ptr<Ui::CCaptureConfig> m_pUi;
    QStringList m_listNameFormats;
};

} // namespace LocalConfig
