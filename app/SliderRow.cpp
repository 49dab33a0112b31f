#include "app/SliderRow.h"

#include <QHBoxLayout>
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

void SliderRow::layOut(QWidget* window, const std::vector<SliderRow>& rows) {
    auto* labels = new QVBoxLayout;
    auto* spinBoxes = new QVBoxLayout;
    auto* sliders = new QVBoxLayout;
    for (const SliderRow& row : rows) {
        labels->addWidget(row.label);
        spinBoxes->addWidget(row.spinBox);
        sliders->addWidget(row.slider);
    }
    auto* columns = new QHBoxLayout;
    columns->addLayout(labels);
    columns->addLayout(spinBoxes);
    columns->addLayout(sliders);
    window->setLayout(columns);
}

void SliderRow::tieLifeTo(QWidget* window, const QObject* receiver) {
    window->setAttribute(Qt::WA_DeleteOnClose);
    window->setAttribute(Qt::WA_QuitOnClose, false);
    // At once: the main window dies when no event loop is left that could delete later.
    QObject::connect(receiver, &QObject::destroyed, window, [window] { delete window; });
}
