#pragma once

#include <UICommonModule/UICommonModuleExport.h>

#include <QFileDialog>

namespace UICommonMdl
{

/// File dialog in which names, dates and places can be read without making columns wider. Where the platform has a
/// dialog of its own, that one is shown, and looks as the platform wants.
class UICOMMONMODULE_EXPORT CFileDialog : public QFileDialog
{
    Q_OBJECT

public:
    /// \param strFilter  as "WAVE Files (*.wav)"; empty for all
    CFileDialog(QWidget* pParent, const QString& strTitle, const QString& strFolder,
                const QString& strFilter = QString());

protected:
    void showEvent(QShowEvent* pEvent) override;
};

} // namespace UICommonMdl
