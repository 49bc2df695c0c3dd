#pragma once

#include <QApplication>
#include <QTest>
#include <QWheelEvent>

namespace quillford {

/// A notch of the mouse wheel, in the toolkit's eighths of a degree.
inline constexpr int NotchDown = -120;
inline constexpr int NotchUp = 120;

/// Turns the wheel with the mouse over the middle of a widget. The event goes on to the parents as
/// a user's own does; one that a program made would not.
inline void turnWheel(QWidget& under, const QPoint& angle) {
    const QPointF middle = under.rect().center();
    QWheelEvent event(middle, under.mapToGlobal(middle), {}, angle, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QSpontaneKeyEvent::setSpontaneous(&event);
    qApp->notify(&under, &event);
}

inline void turnWheel(QWidget& under, int angle) {
    turnWheel(under, QPoint(0, angle));
}

} // namespace quillford
