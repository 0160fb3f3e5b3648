#pragma once

#include <KvGui/KvGuiExport.h>

#include <QLineEdit>
#include <QList>
#include <QPointer>

class QLabel;

namespace KVGUI
{

/// Line edit with the client's look, which can be marked as wrong. Style sheets see the mark as the property "error".
class KVGUI_EXPORT KvLineEdit : public QLineEdit
{
    Q_OBJECT

public:
    explicit KvLineEdit(QWidget* pParent = nullptr); ///< empty, without a mark
    ~KvLineEdit() override;

    /// Marks the field as wrong and shows the text, when there is one, as a tip near the field.
    /// \param pTipParent  the widget that the tip stays within; null clears mark and tip
    /// \param bError      false clears mark and tip, too
    /// \param strText     the tip; empty for the mark alone
    void showErrorHint(QWidget* pTipParent, bool bError, const QString& strText);

    /// The mark alone; a tip that is shown goes.
    void showErrorHintNoTip(bool bError);

    bool IsErrorHintShown() const; ///< whether the field is marked

    /// The text of the tip that is shown; empty without one.
    QString GetErrorHintText() const;

protected:
    void hideEvent(QHideEvent* pEvent) override;
    void showEvent(QShowEvent* pEvent) override;
    bool eventFilter(QObject* pWatched, QEvent* pEvent) override;

private:
    void SetError(bool bError);
    void ShowTip(QWidget* pTipParent, const QString& strText);
    void DropTip();
    void OnTipGone();
    void PlaceTip();

    QPointer<QLabel> m_pTip;                // a child of the tip's parent, which may die before this field
    QList<QPointer<QWidget>> m_listWatched; // while there is a tip
    QString m_strOwnDescription;            // what the tip stands in for
    bool m_bError = false;
};

} // namespace KVGUI
