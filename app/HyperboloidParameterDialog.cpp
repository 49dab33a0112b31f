#include "app/HyperboloidParameterDialog.h"

#include <QCoreApplication>
#include <QDoubleSpinBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <utility>
#include <vector>

namespace {

constexpr double largest = 100;
constexpr double smallestDivisor = 0.01;
constexpr double largestPointRadius = 10;
constexpr double step = 0.01;
constexpr int coarsestGrid = 5;
constexpr int finestGrid = 500;

QString translated(const char* text) {
    return QCoreApplication::translate("QMainWindow", text);
}

using LabelledFields = std::vector<std::pair<const char*, QWidget*>>;

/** Appends two columns to a row of columns: the labels, and beside them their fields. */
void addColumns(QHBoxLayout* row, const LabelledFields& fields) {
    auto* labels = new QVBoxLayout;
    auto* widgets = new QVBoxLayout;
    for (const auto& [text, field] : fields) {
        labels->addWidget(new QLabel(translated(text)));
        widgets->addWidget(field);
    }
    row->addLayout(labels);
    row->addLayout(widgets);
}

} // namespace

HyperboloidParameterDialog::HyperboloidParameterDialog(const HyperboloidParameters& initial,
                                                       QWidget* parent)
    : QDialog(parent)
    , K1(createField(smallestDivisor, largest, initial.K1))
    , K2(createField(smallestDivisor, largest, initial.K2))
    , K3(createField(0, largest, initial.K3))
    , K13(createField(-largest, largest, initial.K13))
    , K23(createField(-largest, largest, initial.K23))
    , U1(createField(-largest, largest, initial.U1))
    , U2(createField(-largest, largest, initial.U2))
    , U3(createField(-largest, largest, initial.U3))
    , horizontalPrecision(createPrecisionField(initial.horizontalPrecision))
    , verticalPrecision(createPrecisionField(initial.verticalPrecision))
    , pointRadius(createField(0, largestPointRadius, initial.pointRadius))
    , u3constRange(createField(0, largest, initial.u3constRange))
    , u3axisRange(createField(0, largest, initial.u3axisRange))
    , u3constRadius(createField(0, largest, initial.u3constRadius))
    , u3axisRadius(createField(0, largest, initial.u3axisRadius)) {
    auto* layout = new QVBoxLayout;
    layout->addLayout(createColumns());
    layout->addLayout(createButtons());
    // The dialog keeps the size that its contents need.
    layout->setSizeConstraint(QLayout::SetFixedSize);
    setLayout(layout);
}

QDoubleSpinBox* HyperboloidParameterDialog::createField(double minimum, double maximum,
                                                        double value) {
    auto* field = new QDoubleSpinBox(this);
    field->setRange(minimum, maximum);
    field->setSingleStep(step);
    field->setValue(value);
    return field;
}

QSpinBox* HyperboloidParameterDialog::createPrecisionField(int value) {
    auto* field = new QSpinBox(this);
    field->setRange(coarsestGrid, finestGrid);
    field->setValue(value);
    return field;
}

QLayout* HyperboloidParameterDialog::createColumns() {
    auto* row = new QHBoxLayout;
    addColumns(row, {{QT_TRANSLATE_NOOP("QMainWindow", "K1 :"), K1},
                     {QT_TRANSLATE_NOOP("QMainWindow", "K2 :"), K2},
                     {QT_TRANSLATE_NOOP("QMainWindow", "K3 :"), K3},
                     {QT_TRANSLATE_NOOP("QMainWindow", "K13:"), K13},
                     {QT_TRANSLATE_NOOP("QMainWindow", "K23:"), K23}});
    addColumns(row, {{QT_TRANSLATE_NOOP("QMainWindow", "<html>&Ucirc;</html>1:"), U1},
                     {QT_TRANSLATE_NOOP("QMainWindow", "<html>&Ucirc;</html>2:"), U2},
                     {QT_TRANSLATE_NOOP("QMainWindow", "<html>&Ucirc;</html>3:"), U3},
                     {QT_TRANSLATE_NOOP("QMainWindow", "Point R:"), pointRadius},
                     {QT_TRANSLATE_NOOP("QMainWindow", "Horizontal Prec:"), horizontalPrecision}});
    addColumns(row, {{QT_TRANSLATE_NOOP("QMainWindow", "U3Const Range:"), u3constRange},
                     {QT_TRANSLATE_NOOP("QMainWindow", "U3Axis Range:"), u3axisRange},
                     {QT_TRANSLATE_NOOP("QMainWindow", "U3Const Radius:"), u3constRadius},
                     {QT_TRANSLATE_NOOP("QMainWindow", "U3Axis Radius:"), u3axisRadius},
                     {QT_TRANSLATE_NOOP("QMainWindow", "Vertical Prec:"), verticalPrecision}});
    return row;
}

QLayout* HyperboloidParameterDialog::createButtons() {
    auto* ok = new QPushButton("Ok", this);
    ok->setDefault(true);
    auto* cancel = new QPushButton("Cancel", this);
    connect(ok, SIGNAL(clicked()), this, SLOT(accept()));
    connect(cancel, SIGNAL(clicked()), this, SLOT(reject()));
    auto* row = new QHBoxLayout;
    row->addWidget(cancel);
    row->addWidget(ok);
    return row;
}

HyperboloidParameters HyperboloidParameterDialog::parameters() const {
    HyperboloidParameters values{};
    values.K1 = K1->value();
    values.K2 = K2->value();
    values.K3 = K3->value();
    values.K13 = K13->value();
    values.K23 = K23->value();
    values.U1 = U1->value();
    values.U2 = U2->value();
    values.U3 = U3->value();
    values.horizontalPrecision = horizontalPrecision->value();
    values.verticalPrecision = verticalPrecision->value();
    values.pointRadius = pointRadius->value();
    values.u3constRange = u3constRange->value();
    values.u3axisRange = u3axisRange->value();
    values.u3constRadius = u3constRadius->value();
    values.u3axisRadius = u3axisRadius->value();
    return values;
}
