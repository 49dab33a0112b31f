#pragma once

class Matrice;
class Vecteur;

/**
 * Three numbers on the stack: coordinates, or red, green and blue.
 *
 * The arithmetic gives the bits of the run-time vectors (math/Vecteur.h) without their heap
 * storage, so that a loop over a whole grid can be vectorised.
 */
template <typename Number>
struct TripleOf {
    Number x;
    Number y;
    Number z;
};

/** What is computed with. */
using Triple = TripleOf<double>;

/** What the tables hold; a table of these has the layout of an array of float[3]. */
using FloatTriple = TripleOf<float>;
static_assert(sizeof(FloatTriple) == 3 * sizeof(float));

template <typename Number>
bool operator==(const TripleOf<Number>& left, const TripleOf<Number>& right) {
    return left.x == right.x && left.y == right.y && left.z == right.z;
}

template <typename Number>
bool operator!=(const TripleOf<Number>& left, const TripleOf<Number>& right) {
    return !(left == right);
}

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

inline Triple widened(const FloatTriple& triple) {
    return {triple.x, triple.y, triple.z};
}

inline FloatTriple narrowed(const Triple& triple) {
    return {static_cast<float>(triple.x), static_cast<float>(triple.y),
            static_cast<float>(triple.z)};
}

/** Coordinate 0, 1 or 2, unchecked. */
template <typename Number>
Number coordinate(const TripleOf<Number>& triple, int index) {
    if (index == 0) {
        return triple.x;
    }
    return index == 1 ? triple.y : triple.z;
}

inline FloatTriple toFloatTriple(const float (&values)[3]) {
    return {values[0], values[1], values[2]};
}

/** Writes x, y, z into an array. */
inline void store(const FloatTriple& triple, float (&out)[3]) {
    out[0] = triple.x;
    out[1] = triple.y;
    out[2] = triple.z;
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

/** The first three coordinates of a vector, which throws its own message if it has fewer. */
Triple toTriple(Vecteur vector);

/** The same three numbers as a run-time vector. */
Vecteur toVecteur(const Triple& triple);

/** The nine entries of a 3x3 matrix, copied to the stack. */
TripleMatrix toTripleMatrix(Matrice matrix);
