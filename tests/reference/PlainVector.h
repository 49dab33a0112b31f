#pragma once

#include <array>
#include <cstddef>
#include <vector>

/**
 * Vectors and 3x3 matrices as one would first write them down: numbers on the heap, everything by
 * value, nothing checked. The arithmetic is this header's own, so that a mistake in the program's
 * cannot hide behind itself.
 */
using PlainVector = std::vector<double>;
using PlainMatrix = std::array<PlainVector, 3>;

inline PlainVector difference(const PlainVector& left, const PlainVector& right) {
    PlainVector result;
    for (std::size_t i = 0; i < left.size(); ++i) {
        result.push_back(left[i] - right[i]);
    }
    return result;
}

inline PlainVector sum(const PlainVector& left, const PlainVector& right) {
    PlainVector result;
    for (std::size_t i = 0; i < left.size(); ++i) {
        result.push_back(left[i] + right[i]);
    }
    return result;
}

inline PlainVector scaled(double factor, const PlainVector& vector) {
    PlainVector result;
    for (const double coordinate : vector) {
        result.push_back(coordinate * factor);
    }
    return result;
}

/** The sum of the products, from the first to the last. */
inline double dotProduct(const PlainVector& left, const PlainVector& right) {
    double result = 0.0;
    for (std::size_t i = 0; i < left.size(); ++i) {
        result += left[i] * right[i];
    }
    return result;
}

inline PlainVector product(const PlainMatrix& matrix, const PlainVector& vector) {
    return {dotProduct(matrix[0], vector), dotProduct(matrix[1], vector),
            dotProduct(matrix[2], vector)};
}

/** The adjugate, each entry multiplied by the reciprocal of the determinant. */
inline PlainMatrix inverse(const PlainMatrix& m) {
    const double determinant = m[0][2] * (m[1][0] * m[2][1] - m[1][1] * m[2][0]) +
                               (m[0][0] * (m[1][1] * m[2][2] - m[1][2] * m[2][1]) -
                                m[0][1] * (m[1][0] * m[2][2] - m[1][2] * m[2][0]));
    const double f = 1.0 / determinant;
    return {PlainVector{(m[1][1] * m[2][2] - m[1][2] * m[2][1]) * f,
                        (m[0][2] * m[2][1] - m[0][1] * m[2][2]) * f,
                        (m[0][1] * m[1][2] - m[0][2] * m[1][1]) * f},
            PlainVector{(m[1][2] * m[2][0] - m[1][0] * m[2][2]) * f,
                        (m[0][0] * m[2][2] - m[0][2] * m[2][0]) * f,
                        (m[0][2] * m[1][0] - m[0][0] * m[1][2]) * f},
            PlainVector{(m[1][0] * m[2][1] - m[1][1] * m[2][0]) * f,
                        (m[0][1] * m[2][0] - m[0][0] * m[2][1]) * f,
                        (m[0][0] * m[1][1] - m[0][1] * m[1][0]) * f}};
}
