#include "app/SliderRow.h"

#include <QLabel>
#include <QSlider>
#include <QSpinBox>

SliderRow SliderRow::create(QWidget* window, const QString& text, int minimum, int maximum) {
    const SliderRow row{new QLabel(text, window), new QSpinBox(window),
                        new QSlider(Qt::Horizontal, window)};
    row.spinBox->setRange(minimum, maximum);
    row.slider->setRange(minimum, maximum);
    return row;
}

void SliderRow::follow(const char* spinBoxSignal) const {
    QObject::connect(spinBox, spinBoxSignal, slider, SLOT(setValue(int)));
    QObject::connect(slider, SIGNAL(valueChanged(int)), spinBox, SLOT(setValue(int)));
}
