#pragma once

#include <KvGui/KvGuiExport.h>

#include <QComboBox>

namespace KVGUI
{

/// Combo box with the client's look.
class KVGUI_EXPORT KvComboBox : public QComboBox
{
    Q_OBJECT

public:
    explicit KvComboBox(QWidget* pParent = nullptr); ///< without entries

protected:
    void changeEvent(QEvent* pEvent) override;
};

} // namespace KVGUI
