#pragma once

#include <KvGui/KvGuiExport.h>

#include <QSpinBox>

namespace KVGUI
{

/// Spin box with the client's look. It follows the mouse wheel only while it has the focus, so that scrolling past it
/// changes nothing.
class KVGUI_EXPORT KvSpinBox : public QSpinBox
{
    Q_OBJECT

public:
    explicit KvSpinBox(QWidget* pParent = nullptr);

    /// With true, a field that the user empties stays empty when it is left, until a value is typed or set: text() is
    /// empty then, while value() is still the last one. With false (the default) leaving brings the last value back.
    void SetKeepsEmpty(bool bKeep);

protected:
    void wheelEvent(QWheelEvent* pEvent) override;
    void keyPressEvent(QKeyEvent* pEvent) override;
    void focusOutEvent(QFocusEvent* pEvent) override;

private:
    bool m_bKeepsEmpty = false;
};

} // namespace KVGUI
