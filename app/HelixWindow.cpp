#include "app/HelixWindow.h"

#include "app/HelixChanges.h"
#include "helix/Helix.h"

#include <QLabel>
#include <QSlider>
#include <QSpinBox>
#include <array>

namespace {

/** A number of the helix: label, range, the receiver's slot and the value in the row's steps. */
struct Quantity {
    const char* text;
    int minimum;
    int maximum;
    /** The signal of the spin box that the slider follows. */
    const char* spinBoxSignal;
    const char* slot;
    int (*value)(const Helix& helix);
};

/** On purpose truncated, not rounded: a tube radius of 0.01, a little less as a float, gives 99. */
int inSteps(float length) {
    return static_cast<int>(length * HelixChanges::stepsPerUnit);
}

std::array<Quantity, 5> quantities() {
    return {{
        // On purpose: a spin box of integers has no such signal, Qt refuses the connection with a
        // warning, and what is typed into the tube radius does not move its slider.
        {QT_TRANSLATE_NOOP("HelixWindow", "&Tube Radius:"), 0, 1000, SIGNAL(valueChanged(double)),
         SLOT(helix_change_radius(int)),
         [](const Helix& h) {
             return inSteps(h.getTubeR());
         }},
        {QT_TRANSLATE_NOOP("HelixWindow", "&Ribbon Range:"), 0, 2000, SIGNAL(valueChanged(int)),
         SLOT(helix_change_range(int)),
         [](const Helix& h) {
             return inSteps(h.getRibRange());
         }},
        {QT_TRANSLATE_NOOP("HelixWindow", "&Number of Turns:"), 0, 10, SIGNAL(valueChanged(int)),
         SLOT(helix_change_nturns(int)),
         [](const Helix& h) {
             return static_cast<int>(h.getNTurns());
         }},
        {QT_TRANSLATE_NOOP("HelixWindow", "&Precision Line:"), 5, 200, SIGNAL(valueChanged(int)),
         SLOT(helix_change_precision_line(int)),
         [](const Helix& h) {
             return static_cast<int>(h.getPrecisionLine());
         }},
        {QT_TRANSLATE_NOOP("HelixWindow", "&Precision Tube:"), 5, 100, SIGNAL(valueChanged(int)),
         SLOT(helix_change_precision_tube(int)),
         [](const Helix& h) {
             return static_cast<int>(h.getPrecisionTube());
         }},
    }};
}

} // namespace

HelixWindow::HelixWindow(const Helix& helix, const QObject* receiver)
    : ControlWindow(receiver) {
    const auto all = quantities();
    std::vector<SliderRow> rows;
    for (const Quantity& quantity : all) {
        const SliderRow row =
            SliderRow::create(this, tr(quantity.text), quantity.minimum, quantity.maximum);
        row.label->setBuddy(row.spinBox);
        row.follow(quantity.spinBoxSignal);
        // Only the spin box reaches the receiver.
        connect(row.spinBox, SIGNAL(valueChanged(int)), receiver, quantity.slot);
        rows.push_back(row);
    }
    for (std::size_t i = 0; i < rows.size(); ++i) {
        rows[i].slider->setValue(all.at(i).value(helix));
    }
    layOut(rows);
}
