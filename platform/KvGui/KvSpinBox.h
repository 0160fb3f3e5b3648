#pragma once

#include <KvGui/KvGuiExport.h>

#include <QSpinBox>

namespace KVGUI
{

/// Spin box with the client's look.
class KVGUI_EXPORT KvSpinBox : public QSpinBox
{
    Q_OBJECT

public:
    explicit KvSpinBox(QWidget* pParent = nullptr);
};

} // namespace KVGUI
