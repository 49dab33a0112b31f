#include "app/ControlWindow.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QSlider>
#include <QSpinBox>

ControlWindow::ControlWindow(const QObject* receiver) {
    setAttribute(Qt::WA_DeleteOnClose);
    setAttribute(Qt::WA_QuitOnClose, false);
    // At once: the main window dies when no event loop is left that could delete later.
    connect(receiver, &QObject::destroyed, this, [this] { delete this; });
}

void ControlWindow::layOut(const std::vector<SliderRow>& rows) {
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
    setLayout(columns);
    // Down the columns, as one reads them: the sliders after all spin boxes.
    QWidget* last = rows.back().spinBox;
    for (const SliderRow& row : rows) {
        setTabOrder(last, row.slider);
        last = row.slider;
    }
    rows.front().spinBox->setFocus();
    rows.front().spinBox->selectAll();
}
