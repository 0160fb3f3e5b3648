#pragma once

#include <LocalConfig/interfaces/IShortcutKeySection.h>
#include <LocalConfig/pages/CSectionPage.h>

#include <QStringList>
#include <QWidget>

#include <memory>

namespace KVGUI
{
class KvTableView;
}

namespace Ui
{
class CShortcutKeyConfig;
}

namespace LocalConfig
{

/// Shortcut keys: which of two keyboards is used, and what its keys do, for reference only.
class CShortcutKeyConfig
    : public QWidget,
      public CSectionPage<LocalConfigLogical::IShortcutKeySection, LocalConfigLogical::ShortcutKeyConfigInfo>
{
    Q_OBJECT

public:
    explicit CShortcutKeyConfig(QWidget* pParent);
    ~CShortcutKeyConfig() override;

    QWidget* GetWidget() override { return this; }
    void LoadConfig(bool bDefault) override;
    int SaveConfig() override;
    void SetControlsEnabled(bool bEnable) override;

private slots:
    void SwitchTabelView();

private:
    static QStringList GetPcKeys();
    static QStringList GetNkbKeys();
    void InitControls();
    void InitTable(KVGUI::KvTableView* pView, const QStringList& listTexts, bool bHeaderToolTips);
    void ShowTable(bool bPcKeyboard);

    std::unique_ptr<Ui::CShortcutKeyConfig> m_pUi;
    QStringList m_listPcKeys;  // function and key by turns
    QStringList m_listNkbKeys; // likewise
};

} // namespace LocalConfig
