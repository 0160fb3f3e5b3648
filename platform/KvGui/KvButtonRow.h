#pragma once

#include <QMap>
#include <QWidget>

namespace KVGUI
{

class KvPushButton;

/// The row of standard buttons below a dialog's content ("buttonRow"). Its natural height leaves room around the
/// buttons; it can shrink to theirs.
class KvButtonRow : public QWidget
{
    Q_OBJECT

public:
    /// \param nButtons  set of 0x400 "btnOk", 0x2000 "btnOther" and 0x400000 "btnCancel"
    KvButtonRow(int nButtons, QWidget* pParent);

    /// Null for a button that the row does not have.
    KvPushButton* GetButton(int nButton) const;

signals:
    void SignalButtonClicked(int nButton); ///< with the value of the button

private:
    QMap<int, KvPushButton*> m_mapButtons;
};

} // namespace KVGUI
