#pragma once

#include <QWheelEvent>
#include <QtTest>

/// Turns the wheel one step down over a place of a widget. Tells whether the widget, or one around it, took that.
inline bool TurnWheel(QWidget* pWidget, const QPointF& pos)
{
    QWheelEvent event(pos, pWidget->mapToGlobal(pos.toPoint()), QPoint(), QPoint(0, -120), Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QSpontaneKeyEvent::setSpontaneous(&event); // events of the program's own do not travel to parents
    qApp->notify(pWidget, &event);
    return event.isAccepted();
}
