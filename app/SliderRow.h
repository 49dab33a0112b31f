#pragma once

#include <QString>
#include <vector>

class QLabel;
class QObject;
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

    /** Lays the rows out on the window as three columns: labels, spin boxes, sliders. */
    static void layOut(QWidget* window, const std::vector<SliderRow>& rows);

    /**
     * Makes a parentless window of rows go away with its closing or with its receiver, and never
     * keep the program alive.
     */
    static void tieLifeTo(QWidget* window, const QObject* receiver);
};
