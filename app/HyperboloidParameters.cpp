#include "app/HyperboloidParameters.h"

#include "hyperboloid/Hyperboloid.h"

HyperboloidParameters HyperboloidParameters::of(const Hyperboloid& hyperboloid) {
    HyperboloidParameters parameters{};
    parameters.K1 = hyperboloid.getK(0);
    parameters.K2 = hyperboloid.getK(1);
    parameters.K3 = hyperboloid.getK(2);
    parameters.K13 = hyperboloid.getK(3);
    parameters.K23 = hyperboloid.getK(4);
    parameters.U1 = hyperboloid.getU(0);
    parameters.U2 = hyperboloid.getU(1);
    parameters.U3 = hyperboloid.getU(2);
    parameters.horizontalPrecision = static_cast<int>(hyperboloid.getPrec(0));
    parameters.verticalPrecision = static_cast<int>(hyperboloid.getPrec(1));
    parameters.pointRadius = hyperboloid.getSpR();
    parameters.u3constRange = hyperboloid.getu3const_range();
    parameters.u3axisRange = hyperboloid.getu3axis_range();
    parameters.u3constRadius = hyperboloid.getu3const_radius();
    parameters.u3axisRadius = hyperboloid.getu3axis_radius();
    return parameters;
}
