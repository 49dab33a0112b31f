#pragma once

/**
 * Three coordinates on the stack.
 *
 * The arithmetic gives the bits of the run-time vectors (math/Vecteur.h) without their heap
 * storage, so that a loop over a whole grid can be vectorised.
 */
struct Triple {
    double x;
    double y;
    double z;
};

inline Triple operator+(const Triple& left, const Triple& right) {
    return {left.x + right.x, left.y + right.y, left.z + right.z};
}

inline Triple operator-(const Triple& left, const Triple& right) {
    return {left.x - right.x, left.y - right.y, left.z - right.z};
}

inline Triple operator*(double factor, const Triple& triple) {
    return {factor * triple.x, factor * triple.y, factor * triple.z};
}

/** Dot product; the sum starts at 0.0 as the vectors' does, which turns a sum of -0.0 into 0.0. */
inline double dot(const Triple& left, const Triple& right) {
    return 0.0 + left.x * right.x + left.y * right.y + left.z * right.z;
}

/** A 3x3 matrix on the stack, held as its three rows. */
struct TripleMatrix {
    Triple row0;
    Triple row1;
    Triple row2;
};

/** The matrix applied to a column vector. */
inline Triple operator*(const TripleMatrix& matrix, const Triple& triple) {
    return {dot(matrix.row0, triple), dot(matrix.row1, triple), dot(matrix.row2, triple)};
}
