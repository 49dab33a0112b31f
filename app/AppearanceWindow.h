#pragma once

#include "app/ControlWindow.h"

class Hyperboloid;

/**
 * The window in which the user changes the surfaces' transparency, lightness and saturation, each
 * in percent as a spin box and a slider.
 *
 * Every change is one call of the receiver's slots refreshHyperboloidTransp(int),
 * refreshHyperboloidLight(int) and refreshHyperboloidSat(int).
 */
class AppearanceWindow : public ControlWindow {
    Q_OBJECT

public:
    /** Percent per unit: the model's values lie in 0 to 1. */
    static constexpr double percent = 100.0;

    /**
     * Connects the controls to the receiver, then sets the spin boxes to the model's values,
     * truncated; a value that is not 0 thereby reaches the receiver once.
     */
    AppearanceWindow(const Hyperboloid& hyperboloid, const QObject* receiver);
};
