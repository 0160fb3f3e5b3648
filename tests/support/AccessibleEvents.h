#pragma once

#include <QAccessible>
#include <QWidget>

#include <functional>

/// Sees what is sent to screen readers. The off-screen platform knows none, so that Qt would drop it before any handler
/// that can be installed; the function of Qt's that all of it goes through is therefore replaced. ELF only, and in one
/// source file of a program.
class CAccessibleEvents
{
public:
    using Handler = std::function<void(const QAccessibleEvent&)>;

    explicit CAccessibleEvents(Handler handler) { s_handler = std::move(handler); }
    ~CAccessibleEvents() { s_handler = nullptr; }

private:
    friend class QAccessible;
    static inline Handler s_handler;
};

void QAccessible::updateAccessibility(QAccessibleEvent* pEvent)
{
    if (CAccessibleEvents::s_handler)
    {
        CAccessibleEvents::s_handler(*pEvent);
    }
}
