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
    explicit KvSpinBox(QWidget* pParent = nullptr); ///< from 0 to 99

    /// With true, only digits can be typed, and what is typed but is no value (nothing at all, or a number that is too
    /// small) stays when the field is left, until a value is typed or set: text() tells it then, while value() is still
    /// the last one. With false (the default) leaving brings the last value back.
    void SetKeepsTyped(bool bKeep);

    QValidator::State validate(QString& strInput, int& nPos) const override; ///< see SetKeepsTyped

protected:
    void wheelEvent(QWheelEvent* pEvent) override;
    void keyPressEvent(QKeyEvent* pEvent) override;
    void focusOutEvent(QFocusEvent* pEvent) override;

private:
    template <class Leave>
    void KeepTyped(Leave leave);

    bool m_bKeepsTyped = false;
};

} // namespace KVGUI
