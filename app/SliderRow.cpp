#include "app/SliderRow.h"

#include "app/FocusedWheel.h"
#include "app/NumberField.h"

#include <QLabel>
#include <QSlider>

SliderRow SliderRow::create(QWidget* window, const QString& text, int minimum, int maximum) {
    const SliderRow row{new QLabel(text, window), new WholeField(window),
                        new FocusedWheel<QSlider>(window)};
    row.slider->setOrientation(Qt::Horizontal);
    row.spinBox->setRange(minimum, maximum);
    row.slider->setRange(minimum, maximum);
    return row;
}

void SliderRow::follow(const char* spinBoxSignal) const {
    QObject::connect(spinBox, spinBoxSignal, slider, SLOT(setValue(int)));
    QObject::connect(slider, SIGNAL(valueChanged(int)), spinBox, SLOT(setValue(int)));
}
