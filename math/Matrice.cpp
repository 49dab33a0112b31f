#include "math/Matrice.h"

#include <cmath>
#include <iomanip>
#include <ostream>
#include <string>

namespace {

constexpr int dimension = 3;

void require(bool condition, const char* message) {
    if (!condition) {
        throw std::string(message);
    }
}

Matrice zeroMatrix() {
    return {0, 0, 0};
}

} // namespace

Matrice::Matrice()
    : Matrice(1, 1, 1) {}

Matrice::Matrice(double a, double b, double c)
    : rows{Vecteur(a, 0, 0), Vecteur(0, b, 0), Vecteur(0, 0, c)} {}

Matrice::Matrice(double m00, double m01, double m02, double m10, double m11, double m12, double m20,
                 double m21, double m22)
    : rows{Vecteur(m00, m01, m02), Vecteur(m10, m11, m12), Vecteur(m20, m21, m22)} {}

Matrice::Matrice(double a, double b)
    : rows{Vecteur(std::cos(b), std::sin(b), 0),
           Vecteur(-std::cos(a) * std::sin(b), std::cos(a) * std::cos(b), std::sin(a)),
           Vecteur(std::sin(a) * std::sin(b), -std::sin(a) * std::cos(b), std::cos(a))} {}

int Matrice::Lsize() const {
    return static_cast<int>(rows.size());
}

int Matrice::Csize() const {
    return rows[0].size();
}

Vecteur& Matrice::operator[](int const& i) {
    require(i >= 0 && i < dimension, "Surcharge [] Erreur: dimension fausse.");
    return rows[static_cast<std::size_t>(i)];
}

Matrice Matrice::operator*(Matrice B) {
    require(Csize() == B.Lsize(),
            "Multiplication matrice Erreur: colonnes et lignes ne correspondent pas.");
    Matrice product = zeroMatrix();
    // On purpose i runs over the columns of B and j over the rows of A; for square matrices it is
    // the same.
    for (int i = 0; i < B.Csize(); ++i) {
        for (int j = 0; j < Lsize(); ++j) {
            for (int k = 0; k < Csize(); ++k) {
                product[i][j] += (*this)[i][k] * B[k][j];
            }
        }
    }
    return product;
}

Vecteur operator*(Matrice M, Vecteur v) {
    require(M.Csize() == v.size(), "Multiplication Matrice*Vecteur Erreur: dimensions fausses.");
    Vecteur product(v.size());
    for (int i = 0; i < v.size(); ++i) {
        product[i] = M[i] * v;
    }
    return product;
}

Matrice Matrice::operator*(double const& s) {
    Matrice scaled(*this);
    for (int i = 0; i < Lsize(); ++i) {
        scaled[i] *= s;
    }
    return scaled;
}

Matrice operator*(double s, Matrice M) {
    return M * s;
}

Matrice Matrice::operator+(Matrice B) {
    require(Lsize() == B.Lsize() && Csize() == B.Csize(),
            "Somme matrice Erreur: dimensions pas egales.");
    Matrice sum(*this);
    for (int i = 0; i < Lsize(); ++i) {
        sum[i] += B[i];
    }
    return sum;
}

Matrice Matrice::operator-(Matrice B) {
    require(Lsize() == B.Lsize() && Csize() == B.Csize(),
            "Difference matrice Erreur: dimensions pas egales.");
    Matrice difference(*this);
    for (int i = 0; i < Lsize(); ++i) {
        difference[i] -= B[i];
    }
    return difference;
}

Matrice Matrice::transp() {
    Matrice transpose;
    for (int i = 0; i < Csize(); ++i) {
        for (int j = 0; j < Lsize(); ++j) {
            transpose[i][j] = (*this)[j][i];
        }
    }
    return transpose;
}

double Matrice::det() {
    Matrice m(*this);
    return m[0][2] * (m[1][0] * m[2][1] - m[1][1] * m[2][0]) +
           (m[0][0] * (m[1][1] * m[2][2] - m[1][2] * m[2][1]) -
            m[0][1] * (m[1][0] * m[2][2] - m[1][2] * m[2][0]));
}

Matrice Matrice::inv() {
    Matrice& m = *this;
    Matrice adjugate;
    adjugate[0][0] = m[1][1] * m[2][2] - m[1][2] * m[2][1];
    adjugate[0][1] = m[0][2] * m[2][1] - m[0][1] * m[2][2];
    adjugate[0][2] = m[0][1] * m[1][2] - m[0][2] * m[1][1];
    adjugate[1][0] = m[1][2] * m[2][0] - m[1][0] * m[2][2];
    adjugate[1][1] = m[0][0] * m[2][2] - m[0][2] * m[2][0];
    adjugate[1][2] = m[0][2] * m[1][0] - m[0][0] * m[1][2];
    adjugate[2][0] = m[1][0] * m[2][1] - m[1][1] * m[2][0];
    adjugate[2][1] = m[0][1] * m[2][0] - m[0][0] * m[2][1];
    adjugate[2][2] = m[0][0] * m[1][1] - m[0][1] * m[1][0];
    const double f = 1.0 / det();
    return adjugate * f;
}

std::ostream& operator<<(std::ostream& out, Matrice M) {
    constexpr int bracketWidth = 3;
    const int lastRow = M.Lsize() - 1;
    out << std::showpoint << "["
        << " [";
    for (int i = 0; i < lastRow; ++i) {
        if (i > 0) {
            out << std::setw(bracketWidth) << " [";
        }
        for (int j = 0; j < M.Csize(); ++j) {
            out << "  " << M[i][j];
        }
        out << " ]" << std::endl;
    }
    // On purpose always three values in the last row (docs/kept-on-purpose.md).
    out << "  [";
    for (int j = 0; j < dimension; ++j) {
        out << "  " << M[lastRow][j];
    }
    return out << " ]"
               << " ]" << std::endl
               << std::noshowpoint;
}
