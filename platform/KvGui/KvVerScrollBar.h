#pragma once

#include <KvGui/KvGuiExport.h>

#include <QScrollBar>

namespace KVGUI
{

/// Vertical scroll bar with the client's look.
class KVGUI_EXPORT KvVerScrollBar : public QScrollBar
{
    Q_OBJECT

public:
    explicit KvVerScrollBar(QWidget* pParent = nullptr); ///< from 0 to 99
};

} // namespace KVGUI
