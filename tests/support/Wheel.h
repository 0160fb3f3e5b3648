#pragma once

#include <QWheelEvent>
#include <QtTest>

/// Turns the wheel over a place of a widget, one step down unless said otherwise. Tells whether the widget, or one
/// around it, took that.
inline bool TurnWheel(QWidget* pWidget, const QPointF& pos, int nDelta = -120)
{
    QWheelEvent event(pos, pWidget->mapToGlobal(pos.toPoint()), QPoint(), QPoint(0, nDelta), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QSpontaneKeyEvent::setSpontaneous(&event); // events of the program's own do not travel to parents
    qApp->notify(pWidget, &event);
    return event.isAccepted();
}
