#pragma once

#include <KvGui/KvGuiExport.h>

#include <QPushButton>

namespace KVGUI
{

/// Push button with the client's look.
class KVGUI_EXPORT KvPushButton : public QPushButton
{
    Q_OBJECT

public:
    explicit KvPushButton(QWidget* pParent = nullptr);                         ///< without a text
    explicit KvPushButton(const QString& strText, QWidget* pParent = nullptr); ///< with a text

    /// Has room for the text in bold, which the skins write on the button that Enter presses.
    QSize sizeHint() const override;
};

} // namespace KVGUI
