#pragma once

#include <KvGui/KvGuiExport.h>

#include <QListWidget>

namespace KVGUI
{

/// List with the client's look.
class KVGUI_EXPORT KvListWidget : public QListWidget
{
    Q_OBJECT

public:
    explicit KvListWidget(QWidget* pParent = nullptr); ///< without entries
};

} // namespace KVGUI
