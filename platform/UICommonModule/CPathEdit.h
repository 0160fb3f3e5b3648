#pragma once

#include <KvGui/KvLineEdit.h>
#include <UICommonModule/UICommonModuleExport.h>

#include <QFileSystemModel>
#include <QPointer>

class QToolButton;

namespace UICommonMdl
{

/// Edits a path. It has a browse button ("btnBrowse") and can watch the length of the path.
class UICOMMONMODULE_EXPORT CPathEdit : public KVGUI::KvLineEdit
{
    Q_OBJECT
    Q_PROPERTY(BrowseMode browseMode READ GetBrowseMode WRITE SetBrowseMode)

public:
    enum BrowseMode ///< what the browse button does
    {
        BrowseFolder, ///< the browse button opens the folder dialog, and folder names are completed while typing
        BrowseByOwner ///< the browse button only emits
    };
    Q_ENUM(BrowseMode)

    explicit CPathEdit(QWidget* pParent = nullptr); ///< with BrowseFolder

    BrowseMode GetBrowseMode() const;     ///< BrowseFolder at first
    void SetBrowseMode(BrowseMode eMode); ///< at any time

    /// The widget that the messages of this field stay within.
    void SetTipParentWidget(QWidget* pTipParent);

    /// Shows a message while the path is longer than a number of bytes in UTF-8. The path is not cut.
    /// \param nMaxBytes  0 or less: no limit
    void SetMaxInputParam(int nMaxBytes, const QString& strMessage);

signals:
    /// The browse button was pressed; with BrowseFolder after the folder dialog has closed.
    void sgnPathBtnClicked();

protected:
    void changeEvent(QEvent* pEvent) override;
    void resizeEvent(QResizeEvent* pEvent) override;
    void showEvent(QShowEvent* pEvent) override;
    void keyPressEvent(QKeyEvent* pEvent) override;

private:
    void OnBrowse();
    void CheckLength();
    void AddCompleter();
    void PlaceButton();
    void KeepTextClearOfButton();

    QToolButton* m_pBrowseButton;
    BrowseMode m_eBrowseMode = BrowseFolder;
    QPointer<QFileSystemModel> m_pFolders; // the completer's
    QPointer<QWidget> m_pTipParent;
    int m_nMaxBytes = 0;
    QString m_strMessage;
    bool m_bTooLong = false;
};

} // namespace UICommonMdl
