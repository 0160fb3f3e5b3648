#pragma once

#include <LocalConfig/widgets/QSkinCombox.h>

#include <QList>
#include <QMap>
#include <QPointer>

namespace KVGUI
{
class KvCheckBox;
class KvListWidget;
} // namespace KVGUI

namespace LocalConfig
{

/// Combo box whose list is a set of check boxes: any of the items may be picked. The closed box tells what is picked.
/// The key -1 stands for all items.
class QCheckableComboBox : public QSkinCombox
{
    Q_OBJECT

public:
    explicit QCheckableComboBox(QWidget* pParent);

    /// The items by key; picks none of them.
    void SetItems(const QMap<int, QString>& mapItems);

    /// Picks items. The order counts: the closed box names the first one.
    void SetCheckedList(const QList<int>& listChecked);

    /// With fewer than two items there is nothing to open.
    void showPopup() override;
    void hidePopup() override;

signals:
    /// The user has checked or unchecked an item. Nothing else of the box has changed yet.
    void sgnItemChanged(int nIndex, bool bChecked);

public slots:
    void OnChecked(bool bChecked);
    void OnBeginOper();
    void OnFinishOper();
    void OnListViewHide();

protected:
    bool eventFilter(QObject* pWatched, QEvent* pEvent) override;
    void keyPressEvent(QKeyEvent* pEvent) override;

private:
    bool CanOpen() const;
    KVGUI::KvListWidget* GetList() const;
    KVGUI::KvCheckBox* GetCheckBox(int nRow) const;
    int GetKey(int nRow) const;
    void BuildList();
    void ShowText();
    QString GetText() const;

    QMap<int, QString> m_mapItems;
    QPointer<KVGUI::KvCheckBox> m_pAllCheckBox; // while the list exists
    QList<int> m_listChecked;
    int m_nAllKey = -1;
};

} // namespace LocalConfig
