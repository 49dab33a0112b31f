#include "app/AppearanceWindow.h"

#include "app/SliderRow.h"
#include "hyperboloid/Hyperboloid.h"

#include <QCoreApplication>
#include <QSlider>
#include <QSpinBox>

namespace {

SliderRow createRow(QWidget* window, const char* text) {
    return SliderRow::create(window, QCoreApplication::translate("QMainWindow", text), 0, 100);
}

/** Lets spin box and slider follow each other; only the slider reaches the receiver. */
void connectRow(const SliderRow& row, const QObject* receiver, const char* slot) {
    QObject::connect(row.spinBox, SIGNAL(valueChanged(int)), row.slider, SLOT(setValue(int)));
    QObject::connect(row.slider, SIGNAL(valueChanged(int)), row.spinBox, SLOT(setValue(int)));
    QObject::connect(row.slider, SIGNAL(valueChanged(int)), receiver, slot);
}

void setPercent(const SliderRow& row, double value) {
    row.spinBox->setValue(static_cast<int>(value * AppearanceWindow::percent));
}

} // namespace

AppearanceWindow::AppearanceWindow(const Hyperboloid& hyperboloid, const QObject* receiver) {
    SliderRow::tieLifeTo(this, receiver);
    const SliderRow transparency =
        createRow(this, QT_TRANSLATE_NOOP("QMainWindow", "Transparency:"));
    const SliderRow lightness = createRow(this, QT_TRANSLATE_NOOP("QMainWindow", "Lightness:"));
    const SliderRow saturation = createRow(this, QT_TRANSLATE_NOOP("QMainWindow", "Saturation:"));

    connectRow(transparency, receiver, SLOT(refreshHyperboloidTransp(int)));
    connectRow(lightness, receiver, SLOT(refreshHyperboloidLight(int)));
    connectRow(saturation, receiver, SLOT(refreshHyperboloidSat(int)));

    setPercent(transparency, hyperboloid.getTransparency());
    setPercent(lightness, hyperboloid.getLightness());
    setPercent(saturation, hyperboloid.getSaturation());

    SliderRow::layOut(this, {transparency, lightness, saturation});
}
