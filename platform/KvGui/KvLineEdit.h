#pragma once

#include <KvGui/KvGuiExport.h>

#include <QColor>
#include <QLineEdit>
#include <QList>
#include <QPointer>

class QLabel;

namespace KVGUI
{

/// Line edit with the client's look, which can be marked as wrong. Style sheets see the mark as the property "error";
/// the colours of its sign are properties, so that they can set them. Screen readers are told the tip, and find it in
/// the field's description as long as the mark stays.
class KVGUI_EXPORT KvLineEdit : public QLineEdit
{
    Q_OBJECT
    Q_PROPERTY(QColor errorColor READ GetErrorColor WRITE SetErrorColor)
    Q_PROPERTY(QColor errorTextColor READ GetErrorTextColor WRITE SetErrorTextColor)

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
    /// Keeps the text, and the sign of the mark, clear of so many more pixels at the trailing edge.
    void AddTrailingMargin(int nPixels);

    void paintEvent(QPaintEvent* pEvent) override;
    void changeEvent(QEvent* pEvent) override;
    void hideEvent(QHideEvent* pEvent) override;
    void showEvent(QShowEvent* pEvent) override;
    bool eventFilter(QObject* pWatched, QEvent* pEvent) override;

private:
    void SetError(bool bError);
    int GetTrailingMargin() const;
    QColor GetErrorColor() const;
    void SetErrorColor(const QColor& color);
    QColor GetErrorTextColor() const;
    void SetErrorTextColor(const QColor& color);
    void ShowTip(QWidget* pTipParent, const QString& strText);
    void DropTip();
    void OnTipGone();
    void PlaceTip();

    QPointer<QLabel> m_pTip;                // a child of the tip's parent, which may die before this field
    QList<QPointer<QWidget>> m_listWatched; // while there is a tip
    QString m_strOwnDescription;            // what the mark's stands in for
    bool m_bError = false;
};

} // namespace KVGUI
