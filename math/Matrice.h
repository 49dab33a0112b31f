#pragma once

#include "math/Vecteur.h"

#include <iosfwd>
#include <vector>

/**
 * A matrix of doubles, stored as rows; a value type. In use every matrix is 3 by 3, and the row
 * index, det() and inv() assume that size.
 *
 * Failed checks throw a French text as std::string. Row accesses inside the operations are checked
 * too, so their messages can also surface from det(), inv(), transp() and the products.
 */
class Matrice {
public:
    /** The identity. */
    Matrice();

    /** The diagonal matrix diag(a, b, c). */
    Matrice(double a, double b, double c);

    /** Nine values, row by row. */
    Matrice(double m00, double m01, double m02, double m10, double m11, double m12, double m20,
            double m21, double m22);

    /**
     * The rotation by two angles in radians:
     *
     *      cos b            sin b           0
     *     -cos a sin b      cos a cos b     sin a
     *      sin a sin b     -sin a cos b     cos a
     */
    Matrice(double a, double b);

    /** Number of rows. */
    int Lsize() const;

    /** Dimension of row 0. */
    int Csize() const;

    /** Row i, 0 to 2 whatever the size; throws "Surcharge [] Erreur: dimension fausse.". */
    Vecteur& operator[](int const& i);

    /**
     * The product of two matrices, into a 3 by 3 result. Throws "Multiplication matrice Erreur:
     * colonnes et lignes ne correspondent pas." when the sizes do not fit.
     */
    Matrice operator*(Matrice B);
    Matrice operator*(double const& s);

    /** Throws "Somme matrice Erreur: dimensions pas egales.". */
    Matrice operator+(Matrice B);

    /** Throws "Difference matrice Erreur: dimensions pas egales.". */
    Matrice operator-(Matrice B);

    /** The transpose. */
    Matrice transp();

    /** The determinant, expanded along the first row. */
    double det();

    /** The adjugate times 1 / det(); infinite or NaN when the matrix is singular. */
    Matrice inv();

private:
    std::vector<Vecteur> rows;
};

/** M times v; throws "Multiplication Matrice*Vecteur Erreur: dimensions fausses.". */
Vecteur operator*(Matrice M, Vecteur v);

Matrice operator*(double s, Matrice M);

/** Writes the rows in brackets, one a line, every number with its decimal point. */
std::ostream& operator<<(std::ostream& out, Matrice M);
