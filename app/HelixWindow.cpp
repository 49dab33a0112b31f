#include "app/HelixWindow.h"

#include "app/SliderRow.h"
#include "helix/Helix.h"

#include <QLabel>
#include <QSlider>
#include <QSpinBox>

namespace {

/** Lets spin box and slider follow each other; only the spin box reaches the receiver. */
void connectRow(const SliderRow& row, const char* spinBoxSignal, const QObject* receiver,
                const char* slot) {
    QObject::connect(row.spinBox, spinBoxSignal, row.slider, SLOT(setValue(int)));
    QObject::connect(row.slider, SIGNAL(valueChanged(int)), row.spinBox, SLOT(setValue(int)));
    QObject::connect(row.spinBox, SIGNAL(valueChanged(int)), receiver, slot);
}

} // namespace

HelixWindow::HelixWindow(const Helix& helix, const QObject* receiver) {
    SliderRow::tieLifeTo(this, receiver);
    const SliderRow radius = SliderRow::create(this, tr("&Tube Radius:"), 0, 1000);
    const SliderRow range = SliderRow::create(this, tr("&Ribbon Range:"), 0, 2000);
    const SliderRow turns = SliderRow::create(this, tr("&Number of Turns:"), 0, 10);
    const SliderRow linePrecision = SliderRow::create(this, tr("&Precision Line:"), 5, 200);
    const SliderRow tubePrecision = SliderRow::create(this, tr("&Precision Tube:"), 5, 100);
    const std::vector<SliderRow> rows{radius, range, turns, linePrecision, tubePrecision};
    for (const SliderRow& row : rows) {
        row.label->setBuddy(row.spinBox);
    }

    // On purpose: a spin box of integers has no such signal, Qt refuses the connection with a
    // warning, and what is typed into the tube radius does not move its slider.
    connectRow(radius, SIGNAL(valueChanged(double)), receiver, SLOT(helix_change_radius(int)));
    connectRow(range, SIGNAL(valueChanged(int)), receiver, SLOT(helix_change_range(int)));
    connectRow(turns, SIGNAL(valueChanged(int)), receiver, SLOT(helix_change_nturns(int)));
    connectRow(linePrecision, SIGNAL(valueChanged(int)), receiver,
               SLOT(helix_change_precision_line(int)));
    connectRow(tubePrecision, SIGNAL(valueChanged(int)), receiver,
               SLOT(helix_change_precision_tube(int)));

    // On purpose truncated, not rounded: a tube radius of 0.01, a little less as a float, gives 99.
    radius.slider->setValue(static_cast<int>(helix.getTubeR() * stepsPerUnit));
    range.slider->setValue(static_cast<int>(helix.getRibRange() * stepsPerUnit));
    turns.slider->setValue(static_cast<int>(helix.getNTurns()));
    linePrecision.slider->setValue(static_cast<int>(helix.getPrecisionLine()));
    tubePrecision.slider->setValue(static_cast<int>(helix.getPrecisionTube()));

    SliderRow::layOut(this, rows);
}
