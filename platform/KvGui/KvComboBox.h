#pragma once

#include <KvGui/KvGuiExport.h>

#include <QComboBox>

namespace KVGUI
{

/// Combo box with the client's look. The mouse wheel does not give it the focus.
class KVGUI_EXPORT KvComboBox : public QComboBox
{
    Q_OBJECT

public:
    explicit KvComboBox(QWidget* pParent = nullptr); ///< without entries

    void showPopup() override; ///< rows have the look that style sheets give to items
    void hidePopup() override; ///< the box does not stay hovered when the mouse is elsewhere

protected:
    void changeEvent(QEvent* pEvent) override;
};

} // namespace KVGUI
