#include "math/Vecteur.h"

#include <cmath>
#include <ostream>
#include <string>

namespace {

void require(bool condition, const char* message) {
    if (!condition) {
        throw std::string(message);
    }
}

std::size_t position(int index) {
    return static_cast<std::size_t>(index);
}

} // namespace

Vecteur::Vecteur(int n)
    : coordinates(position(n), 0.0) {}

Vecteur::Vecteur(double const& x, double const& y, double const& z)
    : coordinates{x, y, z} {}

Vecteur::Vecteur(double const* values, int const& n) {
    for (int i = 0; i < n; ++i) {
        ajoute(values[i]);
    }
}

int Vecteur::size() const {
    return static_cast<int>(coordinates.size());
}

double& Vecteur::operator[](int const& i) {
    require(i <= size() - 1, "Erreur surcharge []: dimension depassee.");
    return coordinates[position(i)];
}

double& Vecteur::SetCoord(int i) {
    return coordinates[position(i)];
}

double Vecteur::GetCoord(int const& i) const {
    return coordinates[position(i)];
}

void Vecteur::SetVect(Vecteur const& v) {
    coordinates = v.coordinates;
}

void Vecteur::ajoute(double const& x) {
    coordinates.push_back(x);
}

void Vecteur::Efface() {
    coordinates.clear();
}

double Vecteur::operator*(Vecteur const& b) const {
    require(size() == b.size(), "Produit Scalaire Erreur: dimensions pas egales");
    double sum = 0.0;
    for (int i = 0; i < size(); ++i) {
        sum += GetCoord(i) * b.GetCoord(i);
    }
    return sum;
}

Vecteur Vecteur::operator^(Vecteur const& b) const {
    Vecteur product(3);
    require(size() == 3 && b.size() == 3, "Produit Vectoriel Erreur: dimension!=3.");
    product[0] = GetCoord(1) * b.GetCoord(2) - b.GetCoord(1) * GetCoord(2);
    product[1] = b.GetCoord(0) * GetCoord(2) - GetCoord(0) * b.GetCoord(2);
    product[2] = GetCoord(0) * b.GetCoord(1) - GetCoord(1) * b.GetCoord(0);
    return product;
}

Vecteur Vecteur::operator+(Vecteur const& b) const {
    Vecteur sum(*this);
    sum += b;
    return sum;
}

Vecteur Vecteur::operator-(Vecteur const& b) const {
    Vecteur difference(*this);
    difference -= b;
    return difference;
}

Vecteur& Vecteur::operator+=(Vecteur const& b) {
    require(size() == b.size(), "Somme de vecteurs Erreur: dimensions pas egales");
    for (int i = 0; i < size(); ++i) {
        SetCoord(i) += b.GetCoord(i);
    }
    return *this;
}

Vecteur& Vecteur::operator-=(Vecteur const& b) {
    require(size() == b.size(), "Difference de vecteurs Erreur: dimensions pas egales");
    for (int i = 0; i < size(); ++i) {
        SetCoord(i) -= b.GetCoord(i);
    }
    return *this;
}

Vecteur& Vecteur::operator*=(double const& s) {
    // A copy of the factor, which may be one of the coordinates.
    const double factor = s;
    for (double& coordinate : coordinates) {
        coordinate *= factor;
    }
    return *this;
}

Vecteur Vecteur::operator*(double const& s) const {
    Vecteur scaled(*this);
    scaled *= s;
    return scaled;
}

Vecteur operator*(double const& s, Vecteur& v) {
    return v * s;
}

Vecteur Vecteur::oppose() const {
    Vecteur opposite(*this);
    for (double& coordinate : opposite.coordinates) {
        coordinate = -coordinate;
    }
    return opposite;
}

double Vecteur::Module() const {
    return std::sqrt(*this * *this);
}

void Vecteur::Normalisation() {
    const double squaredNorm = *this * *this;
    for (double& coordinate : coordinates) {
        coordinate /= std::sqrt(squaredNorm);
    }
}

double Vecteur::Angle(Vecteur const& b) const {
    require(size() == b.size(), "Angle Erreur: dimensions pas egales.");
    return std::acos((*this * b) / (std::sqrt(b * b) * std::sqrt(*this * *this)));
}

bool Vecteur::operator==(Vecteur const& b) const {
    return coordinates == b.coordinates;
}

bool Vecteur::operator!=(Vecteur const& b) const {
    return !(*this == b);
}

std::ostream& operator<<(std::ostream& out, Vecteur v) {
    if (v.size() == 0) {
        return out << "()";
    }
    out << " ( ";
    for (int i = 0; i < v.size() - 1; ++i) {
        out << v[i] << " ; ";
    }
    return out << v[v.size() - 1] << " )";
}
