#pragma once

#include <QMap>
#include <QTimer>
#include <QWidget>

class QListView;

namespace UICommonMdl
{

class CMenuModel;

/// The menu of CAlarmTypeCombox: two lists beside each other, which scroll and take any number of items. The mouse
/// shows the category that it is over, but not those that it only crosses on its way to the types.
class CAlarmTypeMenu : public QWidget
{
    Q_OBJECT

public:
    /// \param pOwner  the box that opens the menu, and its parent
    explicit CAlarmTypeMenu(QWidget* pOwner);

    void SetItems(const QMap<int, QString>& mapMain, const QMap<int, QMap<int, QString>>& mapSub);

    /// Opens the menu below its owner, or above where there is more room, with an item current. A sub item that there
    /// is not leaves the main items in charge. It runs in the owner's direction.
    void Open(int nMainItem, int nSubItem);

    /// Looks for typed text in the list that is in charge.
    void Search(const QString& strText);

signals:
    void SignalChosen(int nMainItem, int nSubItem);
    void SignalClosed(); ///< whatever closed it

protected:
    bool eventFilter(QObject* pWatched, QEvent* pEvent) override;
    void mousePressEvent(QMouseEvent* pEvent) override;
    void showEvent(QShowEvent* pEvent) override;
    void hideEvent(QHideEvent* pEvent) override;

private:
    QListView* MakeList(const char* pszName, const QString& strAccessibleName, CMenuModel* pModel);
    void OnMainItemChanged(const QModelIndex& index);
    void EnterTypes();
    void Choose(const QModelIndex& index);
    bool OnKey(const QObject* pList, int nKey);
    bool IsMirrored() const;
    void FollowMouse(const QPoint& pos);
    bool IsOnTheWayToTypes(const QPoint& pos) const;
    void ShowCategoryUnderMouse();
    void MarkType(const QPoint& pos);
    void Place();

    QMap<int, QMap<int, QString>> m_mapSub;
    CMenuModel* m_pMainModel;
    CMenuModel* m_pSubModel;
    QListView* m_pMainList;
    QListView* m_pSubList;
    QPoint m_mouse;       // in the viewport of the main list
    QPoint m_mouseOrigin; // where the way that the mouse takes began
    QTimer m_mouseRests;
};

} // namespace UICommonMdl
