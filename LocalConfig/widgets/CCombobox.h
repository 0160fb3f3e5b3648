#pragma once

#include <KvGui/KvComboBox.h>

namespace LocalConfig
{

/// Combo box of the page forms. It leaves the mouse wheel to the scroll area that the pages stand in, so that scrolling
/// over a closed box never changes a setting.
class CCombobox : public KVGUI::KvComboBox
{
    Q_OBJECT

public:
    explicit CCombobox(QWidget* pParent);
    ~CCombobox() override;

protected:
    void wheelEvent(QWheelEvent* pEvent) override;
};

} // namespace LocalConfig
