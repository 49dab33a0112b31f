#pragma once

class Hyperboloid;

/** The fifteen values that shape the hyperboloid and its decorations. */
struct HyperboloidParameters {
    double K1;
    double K2;
    double K3;
    double K13;
    double K23;
    double U1;
    double U2;
    double U3;
    /** Number of columns of the grid (angle). */
    int horizontalPrecision;
    /** Number of rows of the grid (height). */
    int verticalPrecision;
    /** Radius of the spheres that mark points. */
    double pointRadius;
    /** Half the length of the lines of constant u3. */
    double u3constRange;
    /** Half the length of the u3 axis. */
    double u3axisRange;
    double u3constRadius;
    double u3axisRadius;

    /** The values that a model has now. */
    static HyperboloidParameters of(const Hyperboloid& hyperboloid);
};
