#pragma once

#include <QObject>
#include <QString>

class QLabel;
class QSlider;
class QSpinBox;
class QWidget;

/** A whole number that the user types or drags: a label, a spin box and a horizontal slider. */
struct SliderRow {
    QLabel* label;
    QSpinBox* spinBox;
    QSlider* slider;

    /** Makes the three widgets as children of the window, spin box and slider with one range. */
    static SliderRow create(QWidget* window, const QString& text, int minimum, int maximum);

    /** Lets the slider follow a signal of the spin box, and the spin box every move of the slider.
     */
    void follow(const char* spinBoxSignal = SIGNAL(valueChanged(int))) const;
};
