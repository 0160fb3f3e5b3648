#pragma once

#include <KvGui/KvGuiExport.h>

#include <QColor>
#include <QListView>

class QStandardItemModel;

namespace KVGUI
{

/// Navigation list of icons and texts.
///
/// An entry's index is its place in the order of AddItem and never changes, also when entries before it are removed.
/// The left mouse button, arrow keys, Home and End pick an entry, which is then selected whatever else is held. The
/// colours are properties, so that style sheets can set them.
class KVGUI_EXPORT KvToolListView : public QListView
{
    Q_OBJECT
    Q_PROPERTY(QColor accentColor MEMBER m_accentColor NOTIFY SignalColorChanged)
    Q_PROPERTY(QColor hoverColor MEMBER m_hoverColor NOTIFY SignalColorChanged)
    Q_PROPERTY(QColor selectedColor MEMBER m_selectedColor NOTIFY SignalColorChanged)
    Q_PROPERTY(QColor selectedTextColor MEMBER m_selectedTextColor NOTIFY SignalColorChanged)
    Q_PROPERTY(QColor focusColor MEMBER m_focusColor NOTIFY SignalColorChanged)
    Q_PROPERTY(QColor errorColor MEMBER m_errorColor NOTIFY SignalColorChanged)
    Q_PROPERTY(QColor errorTextColor MEMBER m_errorTextColor NOTIFY SignalColorChanged)

public:
    explicit KvToolListView(QWidget* pParent = nullptr); ///< without entries

    void AddItem(const QIcon& icon, const QString& strText); ///< at the end

    /// Takes an entry out; an unknown index does nothing.
    void RemoveItem(int nIndex);

    /// Makes an entry current and emits when that changes something; an unknown index does nothing.
    void SetCurrentIndex(int nIndex);

    /// -1 when no entry is current.
    int GetCurrentIndex() const;

    /// Marks an entry as wrong and tells why, as tool tip and to screen readers; an empty text takes the mark away, an
    /// unknown index does nothing.
    void SetItemError(int nIndex, const QString& strText);

    /// Empty where the entry is not marked.
    QString GetItemError(int nIndex) const;

signals:
    /// The current entry changed, or the user picked the current one again (with the mouse, Home, End, Enter or Space).
    void SignalCurrentIndexChanged(int nIndex);
    void SignalColorChanged(); ///< of any of the colours

protected:
    /// One entry, whatever else is held.
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                         const QEvent* pEvent = nullptr) const override;
    void mousePressEvent(QMouseEvent* pEvent) override;
    void keyPressEvent(QKeyEvent* pEvent) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

private:
    friend class CToolListDelegate;

    QModelIndex Find(int nIndex) const;
    void PickAgainUnlessChanged(const QModelIndex& before);

    QStandardItemModel* m_pModel;
    int m_nNextIndex = 0;
    QColor m_accentColor;
    QColor m_hoverColor;
    QColor m_selectedColor;
    QColor m_selectedTextColor;
    QColor m_focusColor;
    QColor m_errorColor;
    QColor m_errorTextColor;
};

} // namespace KVGUI
