#pragma once

#include <KvGui/KvGuiExport.h>

#include <QScrollBar>

namespace KVGUI
{

/// Horizontal scroll bar with the client's look.
class KVGUI_EXPORT KvHorScrollBar : public QScrollBar
{
    Q_OBJECT

public:
    explicit KvHorScrollBar(QWidget* pParent = nullptr); ///< from 0 to 99
};

} // namespace KVGUI
