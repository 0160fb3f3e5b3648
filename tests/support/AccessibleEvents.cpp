// The off-screen platform knows no screen readers, so that Qt drops the events before any handler that can be installed
// sees them. The one function that all of them go through is therefore replaced by that of the test's program, and the
// one that tells whether anybody listens.

#include "AccessibleEvents.h"

namespace
{

CAccessibleEvents::Handler g_handler;

} // namespace

CAccessibleEvents::CAccessibleEvents(Handler handler)
{
    g_handler = std::move(handler);
}

CAccessibleEvents::~CAccessibleEvents()
{
    g_handler = nullptr;
}

bool QAccessible::isActive()
{
    return bool(g_handler);
}

void QAccessible::updateAccessibility(QAccessibleEvent* pEvent)
{
    if (g_handler)
    {
        g_handler(*pEvent);
    }
}
