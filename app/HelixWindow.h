#pragma once

#include "app/ControlWindow.h"

class Helix;

/**
 * The window in which the user changes how the current helix is drawn: tube radius, ribbon range,
 * number of turns and the two precisions, each as a spin box and a slider.
 *
 * The window knows no helix beyond its opening: every change is one call of the receiver's slots
 * helix_change_radius(int), helix_change_range(int), helix_change_nturns(int),
 * helix_change_precision_line(int) and helix_change_precision_tube(int). Lengths travel in steps,
 * see HelixChanges.
 */
class HelixWindow : public ControlWindow {
    Q_OBJECT

public:
    /**
     * Connects the controls to the receiver, then sets the sliders to the helix's values. These
     * first settings already travel to the receiver, so the helix takes on the truncated lengths.
     */
    HelixWindow(const Helix& helix, const QObject* receiver);
};
