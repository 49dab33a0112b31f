#pragma once

#include <iosfwd>
#include <vector>

/**
 * A vector of doubles whose dimension is chosen at run time; a value type.
 *
 * The operations bear French names and their errors are French texts, thrown as std::string. Only
 * the operations whose comment says so check anything.
 */
class Vecteur {
public:
    /** The zero vector of dimension n; n = 0 gives an empty vector. */
    explicit Vecteur(int n);

    /** The vector (x, y, z). */
    Vecteur(double const& x, double const& y, double const& z);

    /** The first n values, in order. */
    Vecteur(double const* values, int const& n);

    /** The dimension. */
    int size() const;

    /**
     * Coordinate i, checked against the upper bound only: a negative index is never passed.
     * Throws "Erreur surcharge []: dimension depassee.".
     */
    double& operator[](int const& i);

    /** Coordinate i to be written to, unchecked. */
    double& SetCoord(int i);

    /** Coordinate i, unchecked. */
    double GetCoord(int const& i) const;

    /** Takes over the coordinates and the dimension of v. */
    void SetVect(Vecteur const& v);

    /** Appends a coordinate. */
    void ajoute(double const& x);

    /** Removes all coordinates. */
    void Efface();

    /**
     * The dot product, summed from 0.0 in index order.
     * Throws "Produit Scalaire Erreur: dimensions pas egales".
     */
    double operator*(Vecteur const& b) const;

    /** The cross product; throws "Produit Vectoriel Erreur: dimension!=3.". */
    Vecteur operator^(Vecteur const& b) const;

    /** Throws "Somme de vecteurs Erreur: dimensions pas egales". */
    Vecteur operator+(Vecteur const& b) const;

    /** Throws "Difference de vecteurs Erreur: dimensions pas egales". */
    Vecteur operator-(Vecteur const& b) const;

    /** Throws "Somme de vecteurs Erreur: dimensions pas egales". */
    Vecteur& operator+=(Vecteur const& b);

    /** Throws "Difference de vecteurs Erreur: dimensions pas egales". */
    Vecteur& operator-=(Vecteur const& b);

    Vecteur& operator*=(double const& s);
    Vecteur operator*(double const& s) const;

    /** The vector with every coordinate negated; this one stays as it is. */
    Vecteur oppose() const;

    /** The Euclidean norm, sqrt(a * a). */
    double Module() const;

    /** Divides every coordinate by the norm; the zero vector becomes all NaN. */
    void Normalisation();

    /**
     * The angle to b in radians, arccos((a * b) / (sqrt(b * b) * sqrt(a * a))); NaN when one of
     * them is zero, or when rounding takes the cosine beyond 1. Throws "Angle Erreur: dimensions
     * pas egales.".
     */
    double Angle(Vecteur const& b) const;

    /** Whether dimensions and all coordinates are equal; a NaN equals nothing. */
    bool operator==(Vecteur const& b) const;
    bool operator!=(Vecteur const& b) const;

private:
    std::vector<double> coordinates;
};

/** The vector v with every coordinate multiplied by s. */
Vecteur operator*(double const& s, Vecteur& v);

/** Writes "()" or " ( x ; y ; z )" in the stream's number format, without a line end. */
std::ostream& operator<<(std::ostream& out, Vecteur v);
