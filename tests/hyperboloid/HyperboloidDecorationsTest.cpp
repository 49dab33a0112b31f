#include "hyperboloid/HyperboloidDecorations.h"

#include "tests/hyperboloid/ExposedHyperboloid.h"
#include "tests/hyperboloid/SceneReading.h"
#include "tests/reference/PlainVector.h"

#include <Inventor/nodes/SoCone.h>
#include <Inventor/nodes/SoIndexedFaceSet.h>
#include <Inventor/nodes/SoQuadMesh.h>
#include <Inventor/nodes/SoSphere.h>
#include <Inventor/nodes/SoTransform.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

using Point = std::array<double, 3>;

constexpr int allSpaces[] = {Hyperboloid::USPACE, Hyperboloid::XSPACE, Hyperboloid::MSPACE};
constexpr HyperboloidParameters ordinary{2.0, 0.7, 1.2, 0.3, 0.4, 0.5, -0.8, 0.3};

const std::vector<float> red{1.0F, 0.0F, 0.0F};
const std::vector<float> yellow{1.0F, 1.0F, 0.0F};
const std::vector<float> blue{0.0F, 0.0F, 1.0F};

Vecteur toVecteur(const Point& p) {
    return {p[0], p[1], p[2]};
}

/** A point of U space in the model's space, by x = R u + s and m = K (u - uHat) written out. */
Point carried(const ExposedHyperboloid& h, const HyperboloidParameters& p, const Point& u) {
    if (h.WichSpace() == Hyperboloid::XSPACE) {
        const auto R = entries(h.rotationMatrix);
        Point x{};
        for (std::size_t i = 0; i < 3; ++i) {
            x[i] = R[i][0] * u[0] + R[i][1] * u[1] + R[i][2] * u[2] + coordinates(h.shift)[i];
        }
        return x;
    }
    if (h.WichSpace() == Hyperboloid::MSPACE) {
        const Point w{u[0] - p.U1, u[1] - p.U2, u[2] - p.U3};
        return {p.K1 * w[0] + 0.0 * w[1] + p.K13 * w[2], 0.0 * w[0] + p.K2 * w[1] + p.K23 * w[2],
                p.K13 * w[0] + p.K23 * w[1] + p.K3 * w[2]};
    }
    return u;
}

/** Two unit vectors perpendicular to v, by the cross product written out. */
std::array<Point, 2> normalsOf(const Point& v) {
    if (v[0] == 0.0 && v[1] == 0.0) {
        return {Point{1.0, 0.0, 0.0}, Point{0.0, 1.0, 0.0}};
    }
    Point nA{-v[1], v[0], 0.0};
    Point nB{v[1] * nA[2] - nA[1] * v[2], nA[0] * v[2] - v[0] * nA[2], v[0] * nA[1] - nA[0] * v[1]};
    for (Point* n : {&nA, &nB}) {
        const double length = std::sqrt((*n)[0] * (*n)[0] + (*n)[1] * (*n)[1] + (*n)[2] * (*n)[2]);
        for (double& coordinate : *n) {
            coordinate /= length;
        }
    }
    return {nA, nB};
}

/** Expects a table of points within some units in the last place of the largest coordinate. */
void expectPoints(const std::vector<float>& points, const std::vector<Point>& expected) {
    ASSERT_EQ(points.size(), 3 * expected.size());
    double largest = 0.0;
    for (const Point& p : expected) {
        largest = std::max({largest, std::fabs(p[0]), std::fabs(p[1]), std::fabs(p[2])});
    }
    for (std::size_t i = 0; i < points.size(); ++i) {
        EXPECT_NEAR(points[i], expected[i / 3][i % 3], 2.0 * largest * 6e-8) << "entry " << i;
    }
}

std::vector<Point> tubePoints(const Point& A, const Point& B, double radius) {
    const Point d{B[0] - A[0], B[1] - A[1], B[2] - A[2]};
    const auto [nA, nB] = normalsOf(d);
    std::vector<Point> points;
    for (const Point& center : {A, B}) {
        for (int k = 0; k < 30; ++k) {
            const double phi = k * 2.0 * M_PI / 29.0;
            Point p{};
            for (std::size_t c = 0; c < 3; ++c) {
                p[c] = center[c] + radius * (std::cos(phi) * nA[c] + std::sin(phi) * nB[c]);
            }
            points.push_back(p);
        }
    }
    return points;
}

std::vector<Point> conePoints(const Point& A, const Point& B, double radius, double height) {
    Point d{B[0] - A[0], B[1] - A[1], B[2] - A[2]};
    const double length = std::sqrt(d[0] * d[0] + d[1] * d[1] + d[2] * d[2]);
    for (double& coordinate : d) {
        coordinate /= length;
    }
    const auto [nA, nB] = normalsOf(d);
    std::vector<Point> points{{A[0] - height * d[0], A[1] - height * d[1], A[2] - height * d[2]}};
    for (int k = 1; k <= 30; ++k) {
        const double phi = k * 2.0 * M_PI / 29.0;
        Point p{};
        for (std::size_t c = 0; c < 3; ++c) {
            p[c] = A[c] + radius * (std::sin(phi) * nA[c] + std::cos(phi) * nB[c]);
        }
        points.push_back(p);
    }
    points.push_back(A);
    return points;
}

void expectTube(SoSeparator* tube, const Point& A, const Point& B, float radius,
                const std::vector<float>& color) {
    ASSERT_NE(tube, nullptr);
    EXPECT_EQ(nameOf(tube), "Axis");
    ASSERT_EQ(tube->getNumChildren(), 3);
    const auto* material = childAs<SoMaterial>(tube, 0);
    const auto* points = childAs<SoCoordinate3>(tube, 1);
    const auto* mesh = childAs<SoQuadMesh>(tube, 2);
    ASSERT_TRUE(material != nullptr && points != nullptr && mesh != nullptr);
    expectColorInThreeFields(material, color);
    EXPECT_EQ(mesh->verticesPerRow.getValue(), 30);
    EXPECT_EQ(mesh->verticesPerColumn.getValue(), 2);
    expectPoints(valuesOf(points->point), tubePoints(A, B, double{radius}));
}

void expectFan(const SoIndexedFaceSet* fan, int hub) {
    ASSERT_NE(fan, nullptr);
    ASSERT_EQ(fan->coordIndex.getNum(), 120);
    for (int k = 0; k < 30; ++k) {
        EXPECT_EQ(fan->coordIndex[4 * k], hub);
        EXPECT_EQ(fan->coordIndex[4 * k + 1], k + 1);
        EXPECT_EQ(fan->coordIndex[4 * k + 2], k == 29 ? 1 : k + 2);
        EXPECT_EQ(fan->coordIndex[4 * k + 3], -1);
    }
}

void expectCone(SoSeparator* cone, const Point& A, const Point& B, float radius, float height) {
    ASSERT_NE(cone, nullptr);
    EXPECT_EQ(nameOf(cone), "Cone");
    ASSERT_EQ(cone->getNumChildren(), 4);
    const auto* material = childAs<SoMaterial>(cone, 0);
    const auto* points = childAs<SoCoordinate3>(cone, 1);
    ASSERT_TRUE(material != nullptr && points != nullptr);
    expectColorInThreeFields(material, blue);
    // The angle is summed in single precision, 30 times: allow its error, scaled by the radius.
    const std::vector<float> actual = valuesOf(points->point);
    const std::vector<Point> expected = conePoints(A, B, double{radius}, double{height});
    ASSERT_EQ(actual.size(), 96U);
    for (std::size_t i = 0; i < actual.size(); ++i) {
        EXPECT_NEAR(actual[i], expected[i / 3][i % 3],
                    1e-5 * radius + 2e-7 * std::fabs(expected[i / 3][i % 3]))
            << "entry " << i;
    }
    expectFan(childAs<SoIndexedFaceSet>(cone, 2), 0);
    expectFan(childAs<SoIndexedFaceSet>(cone, 3), 31);
}

void expectTranslation(const SoTransform* transform, const Point& position) {
    ASSERT_NE(transform, nullptr);
    const SbVec3f translation = transform->translation.getValue();
    for (int i = 0; i < 3; ++i) {
        EXPECT_NEAR(translation[i], position[static_cast<std::size_t>(i)], 1e-5);
    }
}

void expectDiffuseColorOnly(const SoMaterial* material, const std::vector<float>& color) {
    ASSERT_NE(material, nullptr);
    const NodePointer<SoMaterial> untouched(new SoMaterial);
    EXPECT_EQ(valuesOf(material->diffuseColor), color);
    EXPECT_EQ(valuesOf(material->ambientColor), valuesOf(untouched->ambientColor));
    EXPECT_EQ(valuesOf(material->specularColor), valuesOf(untouched->specularColor));
    EXPECT_EQ(valuesOf(material->emissiveColor), valuesOf(untouched->emissiveColor));
    EXPECT_EQ(material->shininess[0], untouched->shininess[0]);
    EXPECT_EQ(material->transparency[0], untouched->transparency[0]);
}

void expectMarker(SoSeparator* marker, const char* name, const Point& position,
                  const std::vector<float>& color, const SoNode* sphereGroup) {
    EXPECT_EQ(nameOf(marker), name);
    ASSERT_EQ(marker->getNumChildren(), 3);
    expectTranslation(childAs<SoTransform>(marker, 0), position);
    expectDiffuseColorOnly(childAs<SoMaterial>(marker, 1), color);
    EXPECT_EQ(marker->getChild(2), sphereGroup);
}

TEST(HyperboloidNormals, OfAVectorAlongTheThirdAxisAreTheOtherTwoAxes) {
    ExposedHyperboloid hyperboloid(startUp, Hyperboloid::USPACE);
    for (const double third : {5.0, -5.0, 0.0}) {
        Vecteur nA(3);
        Vecteur nB(3);
        hyperboloid.find_normals(Vecteur(0.0, 0.0, third), nA, nB);
        EXPECT_EQ(coordinates(nA), (Point{1.0, 0.0, 0.0}));
        EXPECT_EQ(coordinates(nB), (Point{0.0, 1.0, 0.0}));
    }
}

TEST(HyperboloidNormals, OfTheSecondAxisAreKnown) {
    ExposedHyperboloid hyperboloid(startUp, Hyperboloid::USPACE);
    Vecteur nA(3);
    Vecteur nB(3);
    hyperboloid.find_normals(Vecteur(0.0, 2.0, 0.0), nA, nB);
    EXPECT_EQ(coordinates(nA), (Point{-1.0, 0.0, 0.0}));
    EXPECT_EQ(coordinates(nB), (Point{0.0, 0.0, 1.0}));
}

TEST(HyperboloidNormals, AreUnitVectorsPerpendicularToTheVectorAndEachOther) {
    for (const Point& v : {Point{1.0, 2.0, 3.0}, Point{-4.0, 0.0, 1.0}, Point{0.0, -0.3, 7.0}}) {
        Vecteur nA(3);
        Vecteur nB(3);
        HyperboloidDecorations::findNormals(toVecteur(v), nA, nB);
        EXPECT_NEAR(nA * nA, 1.0, 1e-15);
        EXPECT_NEAR(nB * nB, 1.0, 1e-15);
        EXPECT_NEAR(nA * nB, 0.0, 1e-15);
        EXPECT_NEAR(nA * toVecteur(v), 0.0, 1e-14);
        EXPECT_NEAR(nB * toVecteur(v), 0.0, 1e-14);
    }
}

TEST(HyperboloidNormals, SecondIsTheProductWithTheFirstAsItIsBeforeItsLengthIsTaken) {
    const PlainVector v{1.1, 2.3, -0.7};
    const PlainVector first{-v[1], v[0], 0.0};
    const PlainVector second{v[1] * first[2] - v[2] * first[1], v[2] * first[0] - v[0] * first[2],
                             v[0] * first[1] - v[1] * first[0]};
    const auto unit = [](const PlainVector& vector) {
        const double length = std::sqrt(dotProduct(vector, vector));
        return Point{vector[0] / length, vector[1] / length, vector[2] / length};
    };
    Vecteur nA(3);
    Vecteur nB(3);
    HyperboloidDecorations::findNormals(Vecteur(v[0], v[1], v[2]), nA, nB);
    EXPECT_EQ(coordinates(nA), unit(first));
    EXPECT_EQ(coordinates(nB), unit(second));
}

TEST(HyperboloidTube, RunsFromAToBWithTwoClosedRings) {
    ExposedHyperboloid hyperboloid(startUp, Hyperboloid::MSPACE);
    const Point A{1.0, -2.0, 0.5};
    const Point B{-3.0, 4.0, 2.0};
    const NodePointer<SoSeparator> tube(
        hyperboloid.DrawTubeLine(toVecteur(A), toVecteur(B), 0.25F, true));
    expectTube(tube.get(), A, B, 0.25F, blue);
    const std::vector<float> points = valuesOf(childAs<SoCoordinate3>(tube.get(), 1)->point);
    for (std::size_t ring : {std::size_t{0}, std::size_t{90}}) {
        for (std::size_t c = 0; c < 3; ++c) {
            EXPECT_NEAR(points[ring + c], points[ring + 87 + c], 1e-6F);
        }
    }
}

TEST(HyperboloidTube, SumsInDoubleFromLeftToRight) {
    const Point A{0.1, -0.2, 0.3};
    const Point B{1.7, 0.9, -2.3};
    const NodePointer<SoSeparator> tube(
        HyperboloidDecorations::createTubeLine(toVecteur(A), toVecteur(B), 0.7F, false));
    Vecteur nA(3);
    Vecteur nB(3);
    const Vecteur direction = toVecteur(B) - toVecteur(A);
    HyperboloidDecorations::findNormals(direction, nA, nB);
    const SoMFVec3f& points = childAs<SoCoordinate3>(tube.get(), 1)->point;
    for (int i = 0; i < 2; ++i) {
        for (int k = 0; k < 30; ++k) {
            const double phi = k * 6.283185307179586 / 29;
            for (int c = 0; c < 3; ++c) {
                const double sum = A[static_cast<std::size_t>(c)] + i * direction.GetCoord(c) +
                                   (0.7F * std::cos(phi)) * nA.GetCoord(c) +
                                   (0.7F * std::sin(phi)) * nB.GetCoord(c);
                EXPECT_EQ(points[30 * i + k][c], static_cast<float>(sum));
            }
        }
    }
}

TEST(HyperboloidTube, IsRedWhenNotBlue) {
    ExposedHyperboloid hyperboloid(startUp, Hyperboloid::USPACE);
    const NodePointer<SoSeparator> tube(
        hyperboloid.DrawTubeLine(Vecteur(0.0, 0.0, 0.0), Vecteur(0.0, 0.0, -1.0), 1.0F, false));
    expectTube(tube.get(), {0.0, 0.0, 0.0}, {0.0, 0.0, -1.0}, 1.0F, red);
}

TEST(HyperboloidTube, BetweenVectorsOfDifferentDimensionIsRefused) {
    ExposedHyperboloid hyperboloid(startUp, Hyperboloid::USPACE);
    EXPECT_THROW(hyperboloid.DrawTubeLine(Vecteur(2), Vecteur(3), 1.0F, false), std::string);
    EXPECT_THROW(hyperboloid.DrawTubeLine(Vecteur(2), Vecteur(2), 1.0F, false), std::string);
}

TEST(HyperboloidCone, PointsAwayFromBWithItsBaseOnA) {
    ExposedHyperboloid hyperboloid(startUp, Hyperboloid::USPACE);
    const Point A{1.0, -2.0, 0.5};
    const Point B{-3.0, 4.0, 2.0};
    const NodePointer<SoSeparator> cone(
        hyperboloid.DrawCone(toVecteur(A), toVecteur(B), 0.25F, 0.75F));
    expectCone(cone.get(), A, B, 0.25F, 0.75F);
}

TEST(HyperboloidCone, RimAngleIsSummedInSinglePrecision) {
    const NodePointer<SoSeparator> cone(HyperboloidDecorations::createCone(
        Vecteur(0.0, 0.0, 0.0), Vecteur(0.0, 0.0, 1.0), 1.0F, 1.0F));
    const SoMFVec3f& points = childAs<SoCoordinate3>(cone.get(), 1)->point;
    float phi = 0.21666156F;
    for (int k = 1; k <= 30; ++k) {
        EXPECT_EQ(points[k][0], std::sin(phi));
        EXPECT_EQ(points[k][1], std::cos(phi));
        phi = static_cast<float>(phi + 0.21666156231653746);
    }
    // Point 29 lies at the full turn, and point 30 on point 1.
    EXPECT_NEAR(points[29][0], 0.0F, 1e-5F);
    EXPECT_NEAR(points[30][0], points[1][0], 1e-5F);
}

TEST(HyperboloidCone, OffsetsOfTheRimAreSinglePrecisionProducts) {
    const float phi = 0.21666156F;
    const float x = 0.37F * std::sin(phi);
    const float y = 0.37F * std::cos(phi);
    // A centre on the other side of the origin leaves nothing of the rim's first point.
    const NodePointer<SoSeparator> cone(HyperboloidDecorations::createCone(
        Vecteur(-x, -y, 0.0), Vecteur(-x, -y, 1.0), 0.37F, 1.0F));
    EXPECT_EQ(childAs<SoCoordinate3>(cone.get(), 1)->point[1], SbVec3f(0.0F, 0.0F, 0.0F));
}

TEST(HyperboloidCone, ApexIsComputedInDouble) {
    // Single precision would have nothing left of a place that is hardly more than the height.
    const double place = 1.0 + 1e-8;
    const NodePointer<SoSeparator> cone(HyperboloidDecorations::createCone(
        Vecteur(place, 0.0, 0.0), Vecteur(3.0, 0.0, 0.0), 0.2F, 1.0F));
    EXPECT_EQ(childAs<SoCoordinate3>(cone.get(), 1)->point[0][0], static_cast<float>(place - 1.0));
}

TEST(HyperboloidU3Axis, ArrowIsOfFixedSizeToTheLastBit) {
    const HyperboloidSpaces spaces(Matrice(), Vecteur(3), Matrice(), Vecteur(3));
    // A short axis, so that nothing of the height is rounded away.
    const NodePointer<SoSeparator> axis(
        HyperboloidDecorations::createU3Axis(spaces, HyperboloidSpaces::U, 0.01F, 0.03F));
    const SoMFVec3f& points = childAs<SoCoordinate3>(childAs<SoSeparator>(axis.get(), 1), 1)->point;
    EXPECT_EQ(points[0][2], static_cast<float>(-double{0.01F} - double{0.14F}));
    float phi = 0.21666156F;
    for (int k = 1; k <= 30; ++k) {
        EXPECT_EQ(points[k][0], 0.08F * std::sin(phi));
        EXPECT_EQ(points[k][1], 0.08F * std::cos(phi));
        phi = static_cast<float>(phi + 0.21666156231653746);
    }
}

TEST(HyperboloidU3Axis, InUSpaceIsABlueTubeWithItsArrowAtTheNegativeEnd) {
    ExposedHyperboloid hyperboloid(startUp, Hyperboloid::USPACE);
    const NodePointer<SoSeparator> axis(hyperboloid.DrawU3Axis(7.0F, 0.03F));
    EXPECT_EQ(nameOf(axis.get()), "U3Axis");
    ASSERT_EQ(axis->getNumChildren(), 2);
    expectTube(childAs<SoSeparator>(axis.get(), 0), {0.0, 0.0, -7.0}, {0.0, 0.0, 7.0}, 0.03F, blue);
    auto* cone = childAs<SoSeparator>(axis.get(), 1);
    expectCone(cone, {0.0, 0.0, -7.0}, {0.0, 0.0, 7.0}, 0.08F, 0.14F);
    const SoMFVec3f& points = childAs<SoCoordinate3>(cone, 1)->point;
    EXPECT_EQ(points[0], SbVec3f(0.0F, 0.0F, static_cast<float>(-7.0 - double{0.14F})));
    EXPECT_EQ(points[31], SbVec3f(0.0F, 0.0F, -7.0F));
}

TEST(HyperboloidU3Axis, WithoutLengthItsTubeIsARingAndItsArrowPointsNowhere) {
    for (const int space : allSpaces) {
        ExposedHyperboloid hyperboloid(ordinary, space);
        const NodePointer<SoSeparator> axis(hyperboloid.DrawU3Axis(0.0F, 0.03F));
        for (const float value :
             valuesOf(childAs<SoCoordinate3>(childAs<SoSeparator>(axis.get(), 0), 1)->point)) {
            EXPECT_TRUE(std::isfinite(value));
        }
        // A direction without length has none, nor have the apex and the rim around it a place.
        const SoMFVec3f& cone =
            childAs<SoCoordinate3>(childAs<SoSeparator>(axis.get(), 1), 1)->point;
        ASSERT_EQ(cone.getNum(), 32);
        for (int c = 0; c < 3; ++c) {
            for (int k = 0; k <= 30; ++k) {
                EXPECT_TRUE(std::isnan(cone[k][c])) << k;
            }
            EXPECT_TRUE(std::isfinite(cone[31][c]));
        }
    }
}

TEST(HyperboloidU3Axis, EndsAreCarriedInDouble) {
    // The rings begin at the radius beside the ends: the shift leaves hardly anything of it.
    const double shift = 1e-12 - double{0.03F};
    const HyperboloidSpaces spaces(Matrice(), Vecteur(shift, 0.0, 0.0), Matrice(), Vecteur(3));
    const NodePointer<SoSeparator> axis(
        HyperboloidDecorations::createU3Axis(spaces, HyperboloidSpaces::X, 5.0F, 0.03F));
    const SoMFVec3f& points = childAs<SoCoordinate3>(childAs<SoSeparator>(axis.get(), 0), 1)->point;
    for (const int start : {0, 30}) {
        EXPECT_NEAR(points[start][0], 1e-12, 1e-16);
    }
}

TEST(HyperboloidU3Axis, IsCarriedIntoEverySpace) {
    for (const int space : allSpaces) {
        ExposedHyperboloid hyperboloid(ordinary, space);
        hyperboloid.setGrid(ordinary, 4, 4);
        const NodePointer<SoSeparator> axis(hyperboloid.DrawU3Axis(5.0F, 0.5F));
        const Point P1 = carried(hyperboloid, ordinary, {0.0, 0.0, -5.0});
        const Point P2 = carried(hyperboloid, ordinary, {0.0, 0.0, 5.0});
        ASSERT_EQ(axis->getNumChildren(), 2);
        expectTube(childAs<SoSeparator>(axis.get(), 0), P1, P2, 0.5F, blue);
        expectCone(childAs<SoSeparator>(axis.get(), 1), P1, P2, 0.08F, 0.14F);
    }
}

TEST(HyperboloidU3ConstLines, OfTheStartUpParametersAreKnown) {
    ExposedHyperboloid hyperboloid(startUp, Hyperboloid::USPACE);
    const NodePointer<SoSeparator> lines(hyperboloid.DrawU3ConstAxis(7.0F, 0.02F));
    EXPECT_EQ(nameOf(lines.get()), "U3ConstAxis");
    ASSERT_EQ(lines->getNumChildren(), 4);
    const Point ends[4][2] = {{{-7.0, -2.0, 2.0}, {7.0, -2.0, 2.0}},
                              {{0.0, -7.0, 2.0}, {0.0, 7.0, 2.0}},
                              {{-2.0, -7.0, 0.0}, {-2.0, 7.0, 0.0}},
                              {{-7.0, 0.0, 0.0}, {7.0, 0.0, 0.0}}};
    for (int i = 0; i < 4; ++i) {
        expectTube(childAs<SoSeparator>(lines.get(), i), ends[i][0], ends[i][1], 0.02F, red);
    }
}

TEST(HyperboloidU3ConstLines, AreCarriedIntoEverySpace) {
    for (const int space : allSpaces) {
        ExposedHyperboloid h(ordinary, space);
        h.setGrid(ordinary, 4, 4);
        const NodePointer<SoSeparator> lines(h.DrawU3ConstAxis(3.0F, 0.1F));
        const double upper = -h.a / h.b;
        const double lower = -h.c / h.d;
        const double second = h.c - (h.a * h.d) / h.b;
        const double first = h.a - (h.c * h.b) / h.d;
        const Point ends[4][2] = {{{-3.0, second, upper}, {3.0, second, upper}},
                                  {{0.0, -3.0, upper}, {0.0, 3.0, upper}},
                                  {{first, -3.0, lower}, {first, 3.0, lower}},
                                  {{-3.0, 0.0, lower}, {3.0, 0.0, lower}}};
        ASSERT_EQ(lines->getNumChildren(), 4);
        for (int i = 0; i < 4; ++i) {
            expectTube(childAs<SoSeparator>(lines.get(), i), carried(h, ordinary, ends[i][0]),
                       carried(h, ordinary, ends[i][1]), 0.1F, red);
        }
    }
}

TEST(HyperboloidU3ConstLines, LieOnTheQuadric) {
    const ExposedHyperboloid h(ordinary, Hyperboloid::USPACE);
    ExposedHyperboloid inMSpace(ordinary, Hyperboloid::MSPACE);
    const double upper = -h.a / h.b;
    const double lower = -h.c / h.d;
    const double second = h.c - (h.a * h.d) / h.b;
    const double first = h.a - (h.c * h.b) / h.d;
    for (const Point& u : {Point{2.5, second, upper}, Point{0.0, -1.5, upper},
                           Point{first, 0.7, lower}, Point{-3.1, 0.0, lower}}) {
        const Point m = carried(inMSpace, ordinary, u);
        EXPECT_NEAR(m[0] * u[1] - m[1] * u[0], 0.0, 2e-5);
    }
}

/** The first point of one of the four lines, carried by x = u + s and drawn without breadth. */
SbVec3f startOfLine(int line, const HyperboloidCoefficients::Pnas& pnas, const Vecteur& shift) {
    const HyperboloidSpaces spaces(Matrice(), shift, Matrice(), Vecteur(3));
    const NodePointer<SoSeparator> lines(
        HyperboloidDecorations::createU3ConstAxis(spaces, HyperboloidSpaces::X, pnas, 3.7F, 0.0F));
    return childAs<SoCoordinate3>(childAs<SoSeparator>(lines.get(), line), 1)->point[0];
}

TEST(HyperboloidU3ConstLines, ArePlacedInSinglePrecisionBeforeTheyAreCarried) {
    const float a = -0.51F;
    const float b = -1.96F;
    const float c = 0.2F;
    const float d = 0.57F;
    const float ad = a * d;
    const float cb = c * b;
    const float upperOffset = c - ad / b;
    const float lowerOffset = a - cb / d;
    const float upperHeight = -a / b;
    const float lowerHeight = -c / d;
    // A shift by the rounded place leaves nothing of it, and by any other place the difference.
    const HyperboloidCoefficients::Pnas pnas{a, b, c, d};
    const Vecteur toUpper(0.0, -upperOffset, -upperHeight);
    const Vecteur toLower(-lowerOffset, 0.0, -lowerHeight);
    EXPECT_EQ(startOfLine(0, pnas, toUpper), SbVec3f(-3.7F, 0.0F, 0.0F));
    EXPECT_EQ(startOfLine(1, pnas, toUpper)[2], 0.0F);
    EXPECT_EQ(startOfLine(2, pnas, toLower), SbVec3f(0.0F, -3.7F, 0.0F));
    EXPECT_EQ(startOfLine(3, pnas, toLower)[2], 0.0F);
}

TEST(HyperboloidU3ConstLines, AreNotFiniteWithoutB) {
    testing::internal::CaptureStderr();
    ExposedHyperboloid hyperboloid(withoutK13, Hyperboloid::USPACE);
    testing::internal::GetCapturedStderr();
    const NodePointer<SoSeparator> lines(hyperboloid.DrawU3ConstAxis(7.0F, 0.02F));
    ASSERT_EQ(lines->getNumChildren(), 4);
    auto* first = childAs<SoSeparator>(lines.get(), 0);
    EXPECT_FALSE(std::isfinite(childAs<SoCoordinate3>(first, 1)->point[0][2]));
    auto* last = childAs<SoSeparator>(lines.get(), 3);
    EXPECT_TRUE(std::isfinite(childAs<SoCoordinate3>(last, 1)->point[0][2]));
}

TEST(HyperboloidMarkers, UHatIsYellowAtItsPointInEverySpace) {
    for (const int space : allSpaces) {
        ExposedHyperboloid hyperboloid(ordinary, space);
        hyperboloid.setGrid(ordinary, 4, 4);
        const NodePointer<SoSeparator> marker(hyperboloid.DrawUHat());
        expectMarker(marker.get(), "uHat",
                     carried(hyperboloid, ordinary, {ordinary.U1, ordinary.U2, ordinary.U3}),
                     yellow, hyperboloid.sphereGroup.get());
    }
}

TEST(HyperboloidMarkers, UHatIsTheOriginOfMSpaceEvenForInfiniteK) {
    ExposedHyperboloid hyperboloid(startUp, Hyperboloid::MSPACE);
    hyperboloid.set_k_uHat(std::numeric_limits<double>::infinity(), 1.0, 1.0, 1.0, 1.0, 1.0, 2.0,
                           3.0);
    const NodePointer<SoSeparator> marker(hyperboloid.DrawUHat());
    expectMarker(marker.get(), "uHat", {0.0, 0.0, 0.0}, yellow, hyperboloid.sphereGroup.get());
}

TEST(HyperboloidMarkers, TheCenterIsRedAtItsPointInEverySpace) {
    for (const int space : allSpaces) {
        ExposedHyperboloid hyperboloid(ordinary, space);
        hyperboloid.setGrid(ordinary, 4, 4);
        // The centre u solves R u + s = 0.
        const Point s = coordinates(hyperboloid.shift);
        const double u3 = -s[2];
        const double sum = -s[0] + (hyperboloid.b + hyperboloid.d) * u3;
        const double difference = -s[1] - (hyperboloid.d - hyperboloid.b) * u3;
        const Point center{(sum + difference) / 2.0, (sum - difference) / 2.0, u3};
        const NodePointer<SoSeparator> marker(hyperboloid.DrawCenter());
        expectMarker(marker.get(), "Center", carried(hyperboloid, ordinary, center), red,
                     hyperboloid.sphereGroup.get());
    }
}

TEST(HyperboloidMarkers, TheCenterIsExactlyTheOriginOfXSpace) {
    ExposedHyperboloid hyperboloid(ordinary, Hyperboloid::XSPACE);
    const NodePointer<SoSeparator> marker(hyperboloid.DrawCenter());
    EXPECT_EQ(childAs<SoTransform>(marker.get(), 0)->translation.getValue(),
              SbVec3f(0.0F, 0.0F, 0.0F));
}

TEST(HyperboloidMarkers, OfAVertexHasTheVertexsColourAsItsDiffuseOneOnly) {
    constexpr int place = 777;
    const ExposedHyperboloid hyperboloid(ordinary, Hyperboloid::USPACE);
    const NodePointer<SoSeparator> marker(hyperboloid.DrawVertex("Helix_17", place));
    EXPECT_EQ(nameOf(marker.get()), "Helix_17");
    ASSERT_EQ(marker->getNumChildren(), 3);
    const FloatTriple& color = hyperboloid.colors[place];
    expectDiffuseColorOnly(childAs<SoMaterial>(marker.get(), 0), {color.x, color.y, color.z});
    const FloatTriple& vertex = hyperboloid.vertices[place];
    expectTranslation(childAs<SoTransform>(marker.get(), 1), {vertex.x, vertex.y, vertex.z});
    EXPECT_EQ(marker->getChild(2), hyperboloid.sphereGroup.get());
}

TEST(HyperboloidMarkers, AreCarriedInDoubleAndNarrowedAtTheEnd) {
    const Vecteur point(0.1, -0.7, 1.3);
    const auto placeOf = [](SoSeparator* node) {
        const NodePointer<SoSeparator> marker(node);
        return childAs<SoTransform>(marker.get(), 0)->translation.getValue();
    };
    const NodePointer<SoGroup> sphere(new SoGroup);
    // x = uHat + s vanishes when s is the opposite of uHat to the last bit of the doubles.
    const HyperboloidSpaces shifted(Matrice(), point.oppose(), Matrice(), point);
    EXPECT_EQ(
        placeOf(HyperboloidDecorations::createUHat(shifted, HyperboloidSpaces::X, sphere.get())),
        SbVec3f(0.0F, 0.0F, 0.0F));
    // u = -s is uHat, whose m is the origin, however large K is.
    const HyperboloidSpaces enlarged(Matrice(), point.oppose(), Matrice(1e6, 1e6, 1e6), point);
    EXPECT_EQ(
        placeOf(HyperboloidDecorations::createCenter(enlarged, HyperboloidSpaces::M, sphere.get())),
        SbVec3f(0.0F, 0.0F, 0.0F));
}

TEST(HyperboloidTube, EndsWhereStartAndDirectionAddUpTo) {
    // The sum is rounded to a double next to B, which is half way between two floats.
    const double start = -1.03;
    const double end = 1.0 + 0x1p-24;
    const NodePointer<SoSeparator> tube(HyperboloidDecorations::createTubeLine(
        Vecteur(start, 0.0, 0.0), Vecteur(end, 0.0, 0.0), 0.7F, true));
    EXPECT_EQ(static_cast<float>(end), 1.0F);
    EXPECT_EQ(childAs<SoCoordinate3>(tube.get(), 1)->point[30][0], 1.0F + 0x1p-23F);
}

TEST(HyperboloidTube, HasAMaterialOfItsOwn) {
    for (const bool isBlue : {false, true}) {
        const auto draw = [&] {
            return NodePointer<SoSeparator>(HyperboloidDecorations::createTubeLine(
                Vecteur(0.1, 0.2, 0.3), Vecteur(1.7, 0.9, -2.3), 0.7F, isBlue));
        };
        const NodePointer<SoSeparator> first(draw());
        const NodePointer<SoSeparator> second(draw());
        EXPECT_NE(first->getChild(0), second->getChild(0));
    }
}

TEST(HyperboloidMarkers, AreResizedTogetherWithTheSharedSphere) {
    ExposedHyperboloid hyperboloid(startUp, Hyperboloid::USPACE);
    const NodePointer<SoSeparator> uHat(hyperboloid.DrawUHat());
    const NodePointer<SoSeparator> center(hyperboloid.DrawCenter());
    hyperboloid.createMySphere(2.5F);
    for (SoSeparator* marker : {uHat.get(), center.get()}) {
        auto* group = childAs<SoGroup>(marker, 2);
        ASSERT_NE(group, nullptr);
        ASSERT_EQ(group->getNumChildren(), 1);
        EXPECT_EQ(childAs<SoSphere>(group, 0)->radius.getValue(), 2.5F);
    }
}

TEST(HyperboloidAxisGlyph, IsSummedWithoutAnyFurtherTerm) {
    const double halfLength = 2.3;
    const double radius = -0.7; // negative, so that the zeros of the sines change their sign
    const NodePointer<SoSeparator> glyph(
        HyperboloidDecorations::createAxisGlyph(halfLength, radius));
    EXPECT_EQ(nameOf(glyph.get()), "Axis");
    ASSERT_EQ(glyph->getNumChildren(), 5);
    expectColorInThreeFields(childAs<SoMaterial>(glyph.get(), 0), blue);
    const SoMFVec3f& points = childAs<SoCoordinate3>(glyph.get(), 1)->point;
    ASSERT_EQ(points.getNum(), 60);
    for (int k = 0; k < 30; ++k) {
        const double theta = k * 6.283185307179586 / 29;
        for (int ring = 0; ring < 2; ++ring) {
            const SbVec3f& point = points[30 * ring + k];
            EXPECT_EQ(point[0], static_cast<float>(radius * std::cos(theta)));
            EXPECT_EQ(point[1], static_cast<float>(radius * std::sin(theta)));
            EXPECT_EQ(point[2], ring == 0 ? 2.3F : -2.3F);
        }
    }
    EXPECT_TRUE(std::signbit(points[0][1])) << "a zero with the radius's sign";
}

TEST(HyperboloidAxisGlyph, EndsInASmallCone) {
    const NodePointer<SoSeparator> glyph(HyperboloidDecorations::createAxisGlyph(2.3, 0.7));
    const auto* mesh = childAs<SoQuadMesh>(glyph.get(), 2);
    const auto* tip = childAs<SoTransform>(glyph.get(), 3);
    ASSERT_TRUE(mesh != nullptr && tip != nullptr);
    EXPECT_EQ(mesh->verticesPerRow.getValue(), 30);
    EXPECT_EQ(mesh->verticesPerColumn.getValue(), 2);
    EXPECT_EQ(tip->translation.getValue(), SbVec3f(0.0F, 0.0F, 2.3F));
    EXPECT_EQ(tip->scaleFactor.getValue(), SbVec3f(0.15F, 0.15F, 0.15F));
    EXPECT_EQ(tip->rotation.getValue(), SbRotation(SbVec3f(1.0F, 0.0F, 0.0F), 1.0471976F));
    EXPECT_NE(childAs<SoCone>(glyph.get(), 4), nullptr);
}

} // namespace
