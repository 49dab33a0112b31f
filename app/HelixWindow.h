#pragma once

#include <QWidget>

class Helix;

/**
 * The window in which the user changes how the current helix is drawn: tube radius, ribbon range,
 * number of turns and the two precisions, each as a spin box and a slider.
 *
 * The window knows no helix beyond its opening: every change is one call of the receiver's slots
 * helix_change_radius(int), helix_change_range(int), helix_change_nturns(int),
 * helix_change_precision_line(int) and helix_change_precision_tube(int). Lengths travel in steps of
 * 1/10000.
 */
class HelixWindow : public QWidget {
    Q_OBJECT

public:
    /** Steps of the tube radius and the ribbon range per unit of length. */
    static constexpr double stepsPerUnit = 10000.0;

    /**
     * Connects the controls to the receiver, then sets the sliders to the helix's values. These
     * first settings already travel to the receiver, so the helix takes on the truncated lengths.
     */
    HelixWindow(const Helix& helix, const QObject* receiver);
};
