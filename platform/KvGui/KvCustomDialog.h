#pragma once

#include <KvGui/KvDialog.h>

#include <QFlags>

namespace KVGUI
{

class KvButtonRow;

/// Dialog with a central area and a row of standard buttons: "btnOther" at the leading edge, "btnOk" and "btnCancel" at
/// the trailing one. "btnOk" is the one that Enter presses.
///
/// Tab visits the central area, also what a derived class adds to it while it is shown, then the button row, then the
/// title bar.
///
/// Where the height does not suffice the button row gives way, down to the height of its buttons.
class KVGUI_EXPORT KvCustomDialog : public KvDialog
{
    Q_OBJECT

public:
    enum StandardButton ///< a button of the row
    {
        Ok = 0x400,       ///< "btnOk"
        Other = 0x2000,   ///< "btnOther"
        Cancel = 0x400000 ///< "btnCancel"
    };
    Q_DECLARE_FLAGS(StandardButtons, StandardButton) ///< any of them

    /// \param eButtons  the buttons that the row has
    /// \param nFlags    bit 0: the title bar has a close button
    KvCustomDialog(StandardButtons eButtons, QWidget* pParent, int nFlags);

    /// The area above the button row, without object name and layout, for a form to be built into.
    QWidget* GetCentralWidget() const;

    /// No effect for a button that the row does not have.
    void SetButtonText(StandardButton eButton, const QString& strText);
    void SetButtonEnable(StandardButtons eButtons, bool bEnable); ///< of those that the row has

signals:
    void SignalOkButtonClicked();     ///< "btnOk", or Enter
    void SignalOtherButtonClicked();  ///< "btnOther"
    void SignalCancelButtonClicked(); ///< "btnCancel"

protected:
    void showEvent(QShowEvent* pEvent) override;
    QWidget* GetFocusArea() const override;

private:
    QWidget* m_pCentral;
    KvButtonRow* m_pButtonRow;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(KvCustomDialog::StandardButtons)

} // namespace KVGUI
