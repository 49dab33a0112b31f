#pragma once

#include "app/SliderRow.h"

#include <QWidget>
#include <vector>

/**
 * A window of its own with numbers that take effect at once.
 *
 * It goes away with its closing or with the object that its changes travel to, and it never keeps
 * the program alive.
 */
class ControlWindow : public QWidget {
    Q_OBJECT

protected:
    explicit ControlWindow(const QObject* receiver);

    /**
     * Lays the rows out as three columns: labels, spin boxes, sliders. The tab key walks down the
     * columns, and the first spin box is ready to be typed into.
     *
     * @param rows at least one
     */
    void layOut(const std::vector<SliderRow>& rows);
};
