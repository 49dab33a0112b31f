#pragma once

#include <QApplication>
#include <QWheelEvent>
#include <QWidget>

/** Turns the mouse wheel by a notch over a control; whether the control has taken it. */
inline bool turnWheel(QWidget& control) {
    constexpr QPoint notch(0, 120);
    const QPoint centre = control.rect().center();
    QWheelEvent turn(centre, control.mapToGlobal(centre), QPoint(), notch, Qt::NoButton,
                     Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&control, &turn);
    return turn.isAccepted();
}
