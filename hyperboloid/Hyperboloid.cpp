#include "hyperboloid/Hyperboloid.h"

#include "hyperboloid/HyperboloidCoefficients.h"
#include "hyperboloid/HyperboloidDecorations.h"
#include "hyperboloid/HyperboloidEnergy.h"
#include "hyperboloid/HyperboloidMesh.h"
#include "hyperboloid/HyperboloidNames.h"
#include "hyperboloid/HyperboloidSurface.h"
#include "scene/PositionColor.h"

#include <Inventor/nodes/SoCoordinate3.h>
#include <Inventor/nodes/SoGroup.h>
#include <Inventor/nodes/SoMaterial.h>
#include <Inventor/nodes/SoMaterialBinding.h>
#include <Inventor/nodes/SoQuadMesh.h>
#include <Inventor/nodes/SoSeparator.h>
#include <Inventor/nodes/SoSphere.h>

#include <algorithm>
#include <cmath>
#include <iostream>
#include <stdexcept>
#include <string>

namespace {

std::string toString(const VertexGrid& grid) {
    return std::to_string(grid.columns) + " x " + std::to_string(grid.rows);
}

} // namespace

Hyperboloid::Hyperboloid(float K1, float K2, float K3, float K13, float K23, float U1, float U2,
                         float U3, int spaceIndex)
    : space(spaceIndex)
    , lambda(3)
    , shift(3)
    , U(3)
    , material(new SoMaterial)
    , sphereGroup(new SoGroup) {
    setParameters({K1, K2, K3, K13, K23, U1, U2, U3});
    init_tables();
    generateHyperboloidPoints(true, true);
}

Hyperboloid::~Hyperboloid() = default;

void Hyperboloid::setParameters(const HyperboloidParameters& p) {
    set_k_uHat(p.K1, p.K2, p.K3, p.K13, p.K23, p.U1, p.U2, p.U3);
    set_PNAS_var();
    numCol = static_cast<unsigned int>(std::max(p.horizontalPrecision, 0));
    numRow = static_cast<unsigned int>(std::max(p.verticalPrecision, 0));
    SpR = p.pointRadius;
    createMySphere(static_cast<float>(SpR));
    u3const_range = p.u3constRange;
    u3axis_range = p.u3axisRange;
    u3const_radius = p.u3constRadius;
    u3axis_radius = p.u3axisRadius;
    rotationMatrix = get_rotationMatrix(b, d);
    lambda = get_lambda_set_coeff(a, b, c, d);
    shift = get_shift(a, b, c, d);
    semiAxis = HyperboloidCoefficients::semiAxes(lambda);
}

void Hyperboloid::set_parameters(double K1, double K2, double K3, double K13, double K23, double U1,
                                 double U2, double U3, int columns, int rows, double pointRadius,
                                 double constRange, double axisRange, double constRadius,
                                 double axisRadius) {
    setParameters({K1, K2, K3, K13, K23, U1, U2, U3, columns, rows, pointRadius, constRange,
                   axisRange, constRadius, axisRadius});
}

void Hyperboloid::set_k_uHat(double K1, double K2, double K3, double K13, double K23, double U1,
                             double U2, double U3) {
    K = {static_cast<float>(K1), static_cast<float>(K2), static_cast<float>(K3),
         static_cast<float>(K13), static_cast<float>(K23)};
    U = Vecteur(U1, U2, U3);
    KMatrix = HyperboloidCoefficients::symmetricMatrix(K1, K2, K3, K13, K23);
}

void Hyperboloid::set_PNAS_var() {
    const HyperboloidCoefficients::Pnas pnas = HyperboloidCoefficients::pnas(K, U);
    a = pnas.a;
    b = pnas.b;
    c = pnas.c;
    d = pnas.d;
}

Vecteur Hyperboloid::get_lambda_set_coeff(float pnasA, float pnasB, float pnasC, float pnasD) {
    const auto coefficients = HyperboloidCoefficients::lambda({pnasA, pnasB, pnasC, pnasD});
    if (!coefficients) {
        // The sum tested is bc + ad; the text keeps its other order.
        std::cerr << "Error : bd=0 or ac+bd=0" << std::endl;
        return {1.0, 1.0, 1.0};
    }
    swapAxes = coefficients->swapAxes;
    return coefficients->values;
}

Vecteur Hyperboloid::get_shift(float pnasA, float pnasB, float pnasC, float pnasD) {
    const auto computed = HyperboloidCoefficients::shift({pnasA, pnasB, pnasC, pnasD});
    if (!computed) {
        std::cerr << "Error :  bd=0" << std::endl;
        return {0.0, 0.0, 0.0};
    }
    return *computed;
}

Matrice Hyperboloid::get_rotationMatrix(float p, float q) {
    return HyperboloidCoefficients::rotation(p, q);
}

void Hyperboloid::createMySphere(float radius) {
    sphereGroup->removeAllChildren();
    auto* sphere = new SoSphere;
    sphere->radius = radius;
    sphereGroup->addChild(sphere);
}

void Hyperboloid::init_tables() {
    // Until all have their size they are of no grid at all.
    tablesGrid = {0, 0};
    const std::size_t vertexCount = grid().vertexCount();
    vertices.assign(vertexCount, FloatTriple{});
    colors.assign(vertexCount, FloatTriple{});
    energies.assign(vertexCount, 0.0F);
    tablesGrid = grid();
}

void Hyperboloid::generateHyperboloidPoints(bool points, bool colours) {
    requireTablesOfGrid();
    if (points) {
        HyperboloidSurface::generate({grid(), tRange, semiAxis, swapAxes, space, spaces()},
                                     vertices);
        if (space == USPACE) {
            HyperboloidEnergy::computeEnergies(vertices, toTripleMatrix(KMatrix), toTriple(U),
                                               energies);
            normalize_energy();
        }
    }
    if (colours && space == USPACE) {
        HyperboloidEnergy::Palette(saturation, lightness).colorsOf(energies, colors);
    }
}

void Hyperboloid::computePositionForParams(float t, float theta, float (&p)[3]) {
    const float r = std::sqrt(t * t + 1.0F);
    p[0] = semiAxis[0] * r * std::cos(theta);
    p[1] = semiAxis[1] * r * std::sin(theta);
    p[2] = -semiAxis[2] * t;
}

double Hyperboloid::compute_energy(const float (&u)[3]) {
    return HyperboloidEnergy::energyAt(toFloatTriple(u), toTripleMatrix(KMatrix), toTriple(U));
}

void Hyperboloid::normalize_energy() {
    requireTablesOfGrid();
    HyperboloidEnergy::normalize(energies);
}

void Hyperboloid::computeColorForPoint(float e, float (&rgb)[3]) {
    store(HyperboloidEnergy::Palette(saturation, lightness).colorOf(e), rgb);
}

void Hyperboloid::computeColorForPoint(const float (&p)[3], float (&rgb)[3]) {
    store(positionColor(toFloatTriple(p)), rgb);
}

void Hyperboloid::setTransparencyPercent(int value) {
    transparency = value / percent;
    material->transparency = static_cast<float>(transparency);
}

void Hyperboloid::takeColorsFrom(const Hyperboloid& other) {
    // On different grids an index names different places.
    if (other.tablesGrid == tablesGrid) {
        colors = other.colors;
    }
}

void Hyperboloid::drawParts(SoSeparator& lit, SoSeparator& styled) {
    lit.addChild(DrawU3Axis(static_cast<float>(u3axis_range), static_cast<float>(u3axis_radius)));
    styled.addChild(DrawHyperboloid());
    lit.addChild(DrawCenter());
    lit.addChild(DrawUHat());
    lit.addChild(
        DrawU3ConstAxis(static_cast<float>(u3const_range), static_cast<float>(u3const_radius)));
}

SoSeparator* Hyperboloid::DrawHyperboloid() {
    requireTablesOfGrid();
    SceneNodes::setColors(*material, colors);
    // Per vertex, so that the material index of a picked point is its vertex index.
    auto* binding = new SoMaterialBinding;
    binding->value = SoMaterialBinding::PER_VERTEX;
    auto* mesh = new HyperboloidMesh(grid());
    mesh->setName(HyperboloidNames::mesh);
    mesh->setPolarity({semiAxis, swapAxes, spaces(), space});

    SoSeparator* surface = SceneNodes::createSeparator(HyperboloidNames::surface);
    // Large surfaces are never cached by themselves, and drawn from a cache they cost a fifth less.
    surface->renderCaching = SoSeparator::ON;
    surface->addChild(material.get());
    surface->addChild(binding);
    surface->addChild(SceneNodes::createCoordinates(vertices));
    surface->addChild(mesh);
    return surface;
}

SoSeparator* Hyperboloid::DrawU3Axis(float range, float radius) {
    return HyperboloidDecorations::createU3Axis(spaces(), space, range, radius);
}

SoSeparator* Hyperboloid::DrawU3ConstAxis(float range, float radius) {
    return HyperboloidDecorations::createU3ConstAxis(spaces(), space, {a, b, c, d}, range, radius);
}

SoSeparator* Hyperboloid::DrawUHat() {
    return HyperboloidDecorations::createUHat(spaces(), space, sphereGroup.get());
}

SoSeparator* Hyperboloid::DrawCenter() {
    return HyperboloidDecorations::createCenter(spaces(), space, sphereGroup.get());
}

SoSeparator* Hyperboloid::DrawVertex(const SbName& name, int k) const {
    const auto index = static_cast<std::size_t>(k);
    return HyperboloidDecorations::createVertexMarker(name, vertices[index], colors[index],
                                                      sphereGroup.get());
}

SoSeparator* Hyperboloid::DrawTubeLine(Vecteur A, Vecteur B, float radius, bool blue) {
    return HyperboloidDecorations::createTubeLine(A, B, radius, blue);
}

SoSeparator* Hyperboloid::DrawCone(Vecteur A, Vecteur B, float radius, float height) {
    return HyperboloidDecorations::createCone(A, B, radius, height);
}

void Hyperboloid::find_normals(Vecteur v, Vecteur& nA, Vecteur& nB) {
    HyperboloidDecorations::findNormals(v, nA, nB);
}

float Hyperboloid::getU(int i) const {
    Vecteur coordinates = U; // the checked index is for writable vectors only
    return static_cast<float>(coordinates[i]);
}

float Hyperboloid::getPNAS(char name) const {
    switch (name) {
    case 'a':
        return a;
    case 'b':
        return b;
    case 'c':
        return c;
    case 'd':
        return d;
    default:
        return 0.0F;
    }
}

double Hyperboloid::getPrec(int i) const {
    switch (i) {
    case 0:
        return numCol;
    case 1:
        return numRow;
    default:
        return -1.0;
    }
}

SurfaceVertex Hyperboloid::surfaceVertex(int k) const {
    const auto index = static_cast<std::size_t>(k);
    return {k, vertices[index], colors[index]};
}

VertexGrid Hyperboloid::grid() const {
    return {static_cast<int>(numCol), static_cast<int>(numRow)};
}

SurfaceCondition Hyperboloid::surfaceCondition() const {
    return SurfaceCondition::of({K, U, semiAxis, swapAxes});
}

void Hyperboloid::requireTablesOfGrid() const {
    if (tablesGrid != grid()) {
        throw std::logic_error("The tables hold " + toString(tablesGrid) + " vertices, the grid " +
                               toString(grid()) + ": init_tables() is missing.");
    }
}

HyperboloidSpaces Hyperboloid::spaces() const {
    return {rotationMatrix, shift, KMatrix, U};
}
