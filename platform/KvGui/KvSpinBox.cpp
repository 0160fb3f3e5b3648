#include "KvSpinBox.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QWheelEvent>

namespace KVGUI
{

KvSpinBox::KvSpinBox(QWidget* pParent)
    : QSpinBox(pParent)
{
    setFocusPolicy(Qt::StrongFocus); // the wheel does not bring the focus
}

void KvSpinBox::SetKeepsEmpty(bool bKeep)
{
    m_bKeepsEmpty = bKeep;
}

void KvSpinBox::wheelEvent(QWheelEvent* pEvent)
{
    if (hasFocus())
    {
        QSpinBox::wheelEvent(pEvent);
    }
    else
    {
        pEvent->ignore();
    }
}

void KvSpinBox::keyPressEvent(QKeyEvent* pEvent)
{
    const bool bEnter = pEvent->key() == Qt::Key_Return || pEvent->key() == Qt::Key_Enter;
    const bool bStaysEmpty = m_bKeepsEmpty && bEnter && lineEdit()->text().isEmpty();
    QSpinBox::keyPressEvent(pEvent);
    if (bStaysEmpty)
    {
        lineEdit()->clear();
    }
}

void KvSpinBox::focusOutEvent(QFocusEvent* pEvent)
{
    const bool bStaysEmpty = m_bKeepsEmpty && lineEdit()->text().isEmpty();
    QSpinBox::focusOutEvent(pEvent);
    if (bStaysEmpty)
    {
        lineEdit()->clear();
    }
}

} // namespace KVGUI
