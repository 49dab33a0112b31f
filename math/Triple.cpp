#include "math/Triple.h"

#include "math/Matrice.h"
#include "math/Vecteur.h"

Triple toTriple(Vecteur vector) {
    return {vector[0], vector[1], vector[2]};
}

Vecteur toVecteur(const Triple& triple) {
    return {triple.x, triple.y, triple.z};
}

TripleMatrix toTripleMatrix(Matrice matrix) {
    return {toTriple(matrix[0]), toTriple(matrix[1]), toTriple(matrix[2])};
}
