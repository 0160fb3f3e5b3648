#include "KvSpinBox.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QWheelEvent>

#include <algorithm>

namespace KVGUI
{

KvSpinBox::KvSpinBox(QWidget* pParent)
    : QSpinBox(pParent)
{
    setLocale(QLocale::c());         // whose digits are those of the patterns and records
    setFocusPolicy(Qt::StrongFocus); // the wheel does not bring the focus
}

void KvSpinBox::SetKeepsTyped(bool bKeep)
{
    m_bKeepsTyped = bKeep;
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
    if (pEvent->key() == Qt::Key_Return || pEvent->key() == Qt::Key_Enter)
    {
        KeepTyped([&] { QSpinBox::keyPressEvent(pEvent); });
    }
    else
    {
        QSpinBox::keyPressEvent(pEvent);
    }
}

void KvSpinBox::focusOutEvent(QFocusEvent* pEvent)
{
    KeepTyped([&] { QSpinBox::focusOutEvent(pEvent); });
}

template <class Leave>
void KvSpinBox::KeepTyped(Leave leave)
{
    const QString strTyped = lineEdit()->text();
    const bool bKeep = m_bKeepsTyped && !hasAcceptableInput();
    leave();
    if (bKeep)
    {
        lineEdit()->setText(strTyped);
    }
}

QValidator::State KvSpinBox::validate(QString& strInput, int& nPos) const
{
    const QString strTyped = strInput.mid(prefix().size(), strInput.size() - prefix().size() - suffix().size());
    if (m_bKeepsTyped && !std::all_of(strTyped.begin(), strTyped.end(), [](QChar ch) { return ch.isDigit(); }))
    {
        return QValidator::Invalid; // the base takes group separators and a sign, too
    }
    return QSpinBox::validate(strInput, nPos);
}

} // namespace KVGUI
