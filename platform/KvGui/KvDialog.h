#pragma once

#include <KvGui/KvGuiExport.h>

#include <QDialog>

class QLabel;
class QToolButton;

namespace KVGUI
{

/// Frameless dialog with the client's title bar, which drags the window and has a close button.
///
/// The close button ("btnClose"), Escape and the window manager's close all go through OnCloseBtmClicked, and nothing
/// else closes the dialog but accept, done and hide.
class KVGUI_EXPORT KvDialog : public QDialog
{
    Q_OBJECT

public:
    explicit KvDialog(QWidget* pParent = nullptr); ///< with an empty title

    /// The text of the title bar and of the window in the task bar.
    void SetTitle(const QString& strTitle);

    /// Closes the dialog with the result Rejected. An override that does not call this keeps the dialog open.
    virtual void OnCloseBtmClicked();

    void reject() override;                  ///< as the close button does
    void setVisible(bool bVisible) override; ///< at first as large as its content asks for

protected:
    /// The area below the title bar, still without a layout.
    QWidget* GetContentWidget() const;
    /// Where the first control has the focus when the dialog comes up.
    virtual QWidget* GetFocusArea() const;
    void SetCloseButtonVisible(bool bVisible);  ///< it is at first
    void MoveToEndOfTabOrder(QWidget* pWidget); ///< with the title bar still behind it

    bool eventFilter(QObject* pWatched, QEvent* pEvent) override;
    void showEvent(QShowEvent* pEvent) override;

private:
    void ElideTitle();
    void FocusContent();

    QWidget* m_pTitleBar;
    QLabel* m_pTitleLabel;
    QToolButton* m_pCloseButton;
    QWidget* m_pContent;
    QPoint m_dragOffset;
    bool m_bDragging = false;
    bool m_bPlaced = false;
};

} // namespace KVGUI
