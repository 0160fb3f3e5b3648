#pragma once

#include <KvGui/KvComboBox.h>
#include <UICommonModule/UICommonModuleExport.h>

#include <QMap>
#include <QPixmap>
#include <QPointer>

#include <optional>

namespace UICommonMdl
{

class CAlarmTypeMenu;

/// Combo box that opens a menu of two levels: categories, and beside them the types of the one that is current. The
/// closed box shows its current item until something is chosen from the menu, then that.
///
/// Keys, while the menu is open: Up, Down, Page and typing move; Right or Enter leads from a category to its types;
/// Enter chooses a type; Left leads back; Escape closes.
class UICOMMONMODULE_EXPORT CAlarmTypeCombox : public KVGUI::KvComboBox
{
    Q_OBJECT

public:
    explicit CAlarmTypeCombox(QWidget* pParent = nullptr); ///< with an empty menu
    ~CAlarmTypeCombox() override;

    /// Sets the menu; the box's items and its current index stay. A type that was chosen stays chosen when the new menu
    /// has it too, wherever it stands there.
    /// \param mapMain  main item -> text
    /// \param mapSub   main item -> (sub item -> text); a sub item is the index of an alarm type in the catalogue
    void InitMenu(const QMap<int, QString>& mapMain, const QMap<int, QMap<int, QString>>& mapSub);

    /// The sub item that is chosen; empty when none is.
    QList<int> GetCurrentChosenItem() const;

    /// As a user's pick: marks an item, shows its text and emits.
    /// \return false for an item that the menu does not have; nothing changes then
    bool ChooseItem(int nMainItem, int nSubItem);

    /// Emits nothing.
    void ClearChosenItem();

    /// What the closed box shows.
    QString GetShownText() const;

    bool IsOpen() const; ///< whether its menu is

    /// Pictures for skins that paint the box from them.
    void SetTextPixmap(const QPixmap& pixText) { m_pixText = pixText; }
    void SetStatePixmap(const QPixmap& pixStrip) { m_pixState = pixStrip; } ///< of normal, hover, pressed, disabled

    /// For the text that is shown, whatever the other types are called: there may be thousands.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override; ///< the same

    void showPopup() override; ///< opens the menu
    void hidePopup() override; ///< closes the menu

signals:
    /// A user's pick, or ChooseItem.
    void SignalItemChange(int nMainItem, int nSubItem);

protected:
    void paintEvent(QPaintEvent* pEvent) override;
    void mousePressEvent(QMouseEvent* pEvent) override;
    void keyPressEvent(QKeyEvent* pEvent) override;
    void wheelEvent(QWheelEvent* pEvent) override;

private:
    struct SChoice
    {
        int nMainItem;
        int nSubItem;
        int nAlarmType;
        QString strText;
    };

    std::optional<SChoice> Find(int nMainItem, int nSubItem) const;
    std::optional<SChoice> FindType(int nAlarmType) const;
    void SetChoice(const std::optional<SChoice>& choice);

    QMap<int, QString> m_mapMain;
    QMap<int, QMap<int, QString>> m_mapSub;
    std::optional<SChoice> m_choice;
    QPointer<CAlarmTypeMenu> m_pMenu; // made when it is first opened
    QPixmap m_pixText;
    QPixmap m_pixState;
};

} // namespace UICommonMdl
