#pragma once

#include "Journal.h"

#include <LocalConfig/pages/IConfigPage.h>

#include <QMap>
#include <QSet>
#include <QWidget>

/// A page that notes its calls, named "Basic", "Video" and so on.
class CFakePage : public QWidget, public LocalConfig::IConfigPage
{
    Q_OBJECT

public:
    CFakePage(const QString& strName, QWidget* pParent);

    QWidget* GetWidget() override { return this; }
    int SetSection(LocalConfigLogical::IConfigSection* pSection) override;
    void LoadConfig(bool bDefault) override;
    int SaveConfig() override;
    void SetControlsEnabled(bool bEnable) override;
    void UnInit() override;
    void MarkNoRight45() override;
    int ApplyConfigXml() override;

    LocalConfigLogical::IConfigSection* m_pSection = nullptr;

signals:
    void SignalChangeSize();

private:
    void Note(const QString& strCall);

    QString m_strName;
};

/// The world of the fake pages, set up by a test before the dialog is shown.
struct SFakePages
{
    static SFakePages& Instance();

    CJournal* pJournal = nullptr;
    QMap<int, int> mapSaveResults; ///< by navigation index; 0 where none is named
    QMap<int, CFakePage*> mapPages;
    QSet<int> setAbsent; ///< indices that have no page
};
