#pragma once

#include <KvGui/KvGuiExport.h>

#include <QCoreApplication>
#include <QString>

class QWidget;

namespace KVGUI
{

/// Modal questions and messages.
class KVGUI_EXPORT KvMessageBox
{
    Q_DECLARE_TR_FUNCTIONS(KvMessageBox)

public:
    /// Shows a text and waits for the answer.
    /// \param nButtons        set of the values of KvCustomDialog::StandardButton; the buttons have the same names
    /// \param nDefaultButton  the button that Enter presses; 0 for none, then the least harmful one has the focus
    /// \return the value of the button that was pressed; 0 when the box was closed in another way
    static int ShowInformation(QWidget* pParent, const QString& strTitle, const QString& strText, int nButtons,
                               int nDefaultButton = 0);
};

} // namespace KVGUI
