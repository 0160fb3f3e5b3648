#pragma once

#include <QAccessible>

#include <functional>

/// Sees what is sent to screen readers. For tests that link AccessibleEvents.
class CAccessibleEvents
{
public:
    using Handler = std::function<void(const QAccessibleEvent&)>;

    explicit CAccessibleEvents(Handler handler);
    ~CAccessibleEvents();
};
