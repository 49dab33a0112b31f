#include "app/AppearanceWindow.h"

#include "hyperboloid/Hyperboloid.h"

#include <QCoreApplication>
#include <QSlider>
#include <QSpinBox>
#include <array>

namespace {

constexpr int mostPercent = 100;

/** A quantity of the surfaces: its label, the receiver's slot and the model's value in 0 to 1. */
struct Quantity {
    const char* text;
    const char* slot;
    double (Hyperboloid::*value)() const;
};

std::array<Quantity, 3> quantities() {
    return {{{QT_TRANSLATE_NOOP("QMainWindow", "Transparency:"),
              SLOT(refreshHyperboloidTransp(int)), &Hyperboloid::getTransparency},
             {QT_TRANSLATE_NOOP("QMainWindow", "Lightness:"), SLOT(refreshHyperboloidLight(int)),
              &Hyperboloid::getLightness},
             {QT_TRANSLATE_NOOP("QMainWindow", "Saturation:"), SLOT(refreshHyperboloidSat(int)),
              &Hyperboloid::getSaturation}}};
}

} // namespace

AppearanceWindow::AppearanceWindow(const Hyperboloid& hyperboloid, const QObject* receiver)
    : ControlWindow(receiver) {
    const auto all = quantities();
    std::vector<SliderRow> rows;
    for (const Quantity& quantity : all) {
        const SliderRow row = SliderRow::create(
            this, QCoreApplication::translate("QMainWindow", quantity.text), 0, mostPercent);
        row.follow();
        // Only the slider reaches the receiver.
        connect(row.slider, SIGNAL(valueChanged(int)), receiver, quantity.slot);
        rows.push_back(row);
    }
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const double value = (hyperboloid.*all.at(i).value)();
        rows[i].spinBox->setValue(static_cast<int>(value * percent));
    }
    layOut(rows);
}
