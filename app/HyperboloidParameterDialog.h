#pragma once

#include "hyperboloid/HyperboloidParameters.h"

#include <QDialog>

class QDoubleSpinBox;
class QLayout;
class QSpinBox;

/** The modal dialog that asks for the fifteen parameters of the hyperboloid. */
class HyperboloidParameterDialog : public QDialog {
    Q_OBJECT

public:
    HyperboloidParameterDialog(const HyperboloidParameters& initial, QWidget* parent);

    /** The values that the fields show now. */
    HyperboloidParameters parameters() const;

private:
    QDoubleSpinBox* createField(double minimum, double maximum, double value);
    QSpinBox* createPrecisionField(int value);
    QLayout* createColumns();
    QLayout* createButtons();

    QDoubleSpinBox* K1;
    QDoubleSpinBox* K2;
    QDoubleSpinBox* K3;
    QDoubleSpinBox* K13;
    QDoubleSpinBox* K23;
    QDoubleSpinBox* U1;
    QDoubleSpinBox* U2;
    QDoubleSpinBox* U3;
    QSpinBox* horizontalPrecision;
    QSpinBox* verticalPrecision;
    QDoubleSpinBox* pointRadius;
    QDoubleSpinBox* u3constRange;
    QDoubleSpinBox* u3axisRange;
    QDoubleSpinBox* u3constRadius;
    QDoubleSpinBox* u3axisRadius;
};
