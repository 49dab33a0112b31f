#include "app/HelixWindow.h"

#include "helix/HelixParameter.h"

#include <QLabel>
#include <QSlider>
#include <QSpinBox>
#include <array>

namespace {

/** How a parameter of the helix is entered: label, and the receiver's slot. */
struct Entry {
    const char* text;
    /** The signal of the spin box that the slider follows. */
    const char* spinBoxSignal;
    const char* slot;
};

/** In the order of HelixParameter::all(). */
std::array<Entry, HelixParameter::count> entries() {
    return {{
        // On purpose: a spin box of integers has no such signal, Qt refuses the connection with a
        // warning, and what is typed into the tube radius does not move its slider
        // (docs/kept-on-purpose.md).
        {QT_TRANSLATE_NOOP("HelixWindow", "&Tube Radius:"), SIGNAL(valueChanged(double)),
         SLOT(helix_change_radius(int))},
        {QT_TRANSLATE_NOOP("HelixWindow", "&Ribbon Range:"), SIGNAL(valueChanged(int)),
         SLOT(helix_change_range(int))},
        {QT_TRANSLATE_NOOP("HelixWindow", "&Number of Turns:"), SIGNAL(valueChanged(int)),
         SLOT(helix_change_nturns(int))},
        {QT_TRANSLATE_NOOP("HelixWindow", "&Precision Line:"), SIGNAL(valueChanged(int)),
         SLOT(helix_change_precision_line(int))},
        {QT_TRANSLATE_NOOP("HelixWindow", "&Precision Tube:"), SIGNAL(valueChanged(int)),
         SLOT(helix_change_precision_tube(int))},
    }};
}

/**
 * On purpose truncated, not rounded: a tube radius of 0.01, a little less as a float, gives 99
 * (docs/kept-on-purpose.md).
 */
int inSteps(const HelixParameter& parameter, const Helix& helix) {
    return static_cast<int>(parameter.valueIn(helix) * parameter.stepsPerUnit);
}

} // namespace

HelixWindow::HelixWindow(const Helix& helix, const QObject* receiver)
    : ControlWindow(receiver) {
    const auto& parameters = HelixParameter::all();
    const auto all = entries();
    std::vector<SliderRow> rows;
    for (std::size_t i = 0; i < all.size(); ++i) {
        const Entry& entry = all[i];
        const SliderRow row =
            SliderRow::create(this, tr(entry.text), parameters[i].minimum, parameters[i].maximum);
        row.label->setBuddy(row.spinBox);
        row.follow(entry.spinBoxSignal);
        // Only the spin box reaches the receiver.
        connect(row.spinBox, SIGNAL(valueChanged(int)), receiver, entry.slot);
        rows.push_back(row);
    }
    for (std::size_t i = 0; i < rows.size(); ++i) {
        rows[i].slider->setValue(inSteps(parameters[i], helix));
    }
    layOut(rows);
}
