#include "tests/hyperboloid/DrawnParameters.h"
#include "tests/hyperboloid/ExposedHyperboloid.h"
#include "tests/hyperboloid/SceneReading.h"

#include <Inventor/SbBox3f.h>
#include <Inventor/SbViewportRegion.h>
#include <Inventor/SoDB.h>
#include <Inventor/SoPickedPoint.h>
#include <Inventor/actions/SoGetBoundingBoxAction.h>
#include <Inventor/actions/SoRayPickAction.h>
#include <Inventor/details/SoFaceDetail.h>
#include <Inventor/nodes/SoIndexedFaceSet.h>
#include <Inventor/nodes/SoMaterialBinding.h>
#include <Inventor/nodes/SoQuadMesh.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cfenv>
#include <cmath>
#include <csignal>
#include <iostream>
#include <limits>
#include <memory>
#include <sstream>
#include <string>
#include <unistd.h>
#include <vector>

namespace {

/** Taken before the scene library is initialised: a division by zero must never end the program. */
const int trapsAtStart = fegetexcept();

constexpr double floatStep = std::numeric_limits<float>::epsilon();
constexpr double doubleStep = std::numeric_limits<double>::epsilon();

using Point = std::array<double, 3>;

/** Keeps the messages about degenerate parameters off the screen; other reports still get there. */
class ErrorsKept {
public:
    ErrorsKept()
        : screen(std::cerr.rdbuf(text.rdbuf())) {}
    ErrorsKept(const ErrorsKept&) = delete;
    ErrorsKept& operator=(const ErrorsKept&) = delete;
    ~ErrorsKept() { std::cerr.rdbuf(screen); }

private:
    std::ostringstream text;
    std::streambuf* screen;
};

/** Says which surface was at hand, also where the program ends in the middle of it. */
class LastWords {
public:
    explicit LastWords(const DrawnParameters& drawn) {
        std::ostringstream out;
        out << "The program ended with " << drawn << std::endl;
        words = out.str();
        for (std::size_t i = 0; i < signals.size(); ++i) {
            previous[i] = std::signal(signals[i], sayAndEnd);
        }
    }
    LastWords(const LastWords&) = delete;
    LastWords& operator=(const LastWords&) = delete;
    ~LastWords() {
        for (std::size_t i = 0; i < signals.size(); ++i) {
            std::signal(signals[i], previous[i]);
        }
    }

private:
    static void sayAndEnd(int signal) {
        [[maybe_unused]] const auto written = write(STDERR_FILENO, words.data(), words.size());
        std::signal(signal, SIG_DFL);
        std::raise(signal);
    }

    static constexpr std::array<int, 4> signals{SIGSEGV, SIGBUS, SIGFPE, SIGABRT};
    static inline std::string words;
    std::array<void (*)(int), signals.size()> previous{};
};

/** The surfaces of one set of parameters in all three spaces. */
class Surfaces {
public:
    explicit Surfaces(const DrawnParameters& drawnParameters)
        : drawn(drawnParameters)
        , models{{{startUp, Hyperboloid::USPACE},
                  {startUp, Hyperboloid::XSPACE},
                  {startUp, Hyperboloid::MSPACE}}} {
        const ErrorsKept quiet;
        for (ExposedHyperboloid& model : models) {
            model.swapAxes = drawn.previouslySwapped;
            model.saturation = drawn.saturation;
            model.lightness = drawn.lightness;
            model.setParameters(drawn.p);
            model.init_tables();
            model.generateHyperboloidPoints(true, true);
        }
    }

    [[nodiscard]] int count() const { return static_cast<int>(models[0].getNumVertices()); }
    [[nodiscard]] Point vertex(int space, int k) const {
        const ExposedHyperboloid& model = models[static_cast<std::size_t>(space)];
        return {model.getVertex(k, 0), model.getVertex(k, 1), model.getVertex(k, 2)};
    }
    ExposedHyperboloid& u() { return models[Hyperboloid::USPACE]; }

    const DrawnParameters drawn;
    std::array<ExposedHyperboloid, 3> models;
};

/** The largest share of its bound that a difference took up; a NaN takes up more than all. */
class WorstShare {
public:
    void add(double difference, double bound, int k) {
        // Without rounding the difference is 0, and so may be the bound.
        const double newShare = difference == 0.0 ? 0.0 : std::fabs(difference) / bound;
        if (!std::isnan(share) && !(newShare <= share)) {
            share = newShare;
            vertex = k;
        }
    }
    void expectWithinBound(const char* what) const {
        EXPECT_LE(share, 1.0) << what << ", worst at vertex " << vertex;
    }

private:
    double share = 0.0;
    int vertex = -1;
};

/** a, b, c, d of a model, in double from the model's floats. */
struct Scalars {
    explicit Scalars(const ExposedHyperboloid& model)
        : a(model.a)
        , b(model.b)
        , c(model.c)
        , d(model.d)
        , crossTerms(std::fabs(b * c) + std::fabs(a * d)) {}

    [[nodiscard]] double sigma() const { return b * c + a * d; }
    /** a c - sigma^2 / (4 b d), as the one fraction that it is. */
    [[nodiscard]] double k() const { return -(b * c - a * d) * (b * c - a * d) / (4.0 * b * d); }
    /** The magnitude of the terms that the model's k is the sum of. */
    [[nodiscard]] double kTerms() const {
        return std::fabs(a * c) + crossTerms * crossTerms / std::fabs(4.0 * b * d);
    }

    double a;
    double b;
    double c;
    double d;
    double crossTerms;
};

/**
 * What a k of floats can be off by: products, sums, square and result in float, each half a step
 * of the terms that k is the sum of.
 */
constexpr double kBound = 4.0 * floatStep;

enum Kind {
    /** K1 = K2 divides by zero, and nothing is left of the surface. */
    roundKind,
    /** b d or b c + a d is 0 in floats, and lambda is replaced by (1, 1, 1). */
    fallbackKind,
    /** k is no sum of roundings: it has the sign of -b d, and the surface exists. */
    regularKind,
    /** The surface is a cone whose k is 0 but for its roundings, and their sign the right one. */
    coneKind,
    /** The same with the wrong sign: the semi-axes are square roots of negative numbers. */
    imaginaryConeKind,
    kindCount
};

Kind kindOf(const Surfaces& surfaces) {
    const ExposedHyperboloid& model = surfaces.models[0];
    if (surfaces.drawn.p.K1 == surfaces.drawn.p.K2) {
        return roundKind;
    }
    const float bd = model.b * model.d;
    const float sigma = model.b * model.c + model.a * model.d;
    if (bd == 0.0F || sigma == 0.0F) {
        return fallbackKind;
    }
    const Scalars scalars(model);
    if (std::fabs(scalars.k()) > kBound * scalars.kTerms()) {
        return regularKind;
    }
    // Only the formula's own steps tell the sign that its roundings have.
    const double quotient =
        static_cast<double>(sigma * sigma) / (static_cast<double>(model.b) * -4.0 * model.d);
    const auto k = static_cast<float>(model.a * model.c + quotient);
    return (bd < 0.0F ? k < 0.0F : k > 0.0F) ? imaginaryConeKind : coneKind;
}

bool isFinite(const Point& p) {
    return std::isfinite(p[0]) && std::isfinite(p[1]) && std::isfinite(p[2]);
}

bool isNan(const Point& p) {
    return std::isnan(p[0]) && std::isnan(p[1]) && std::isnan(p[2]);
}

template <typename Predicate>
bool allVertices(const Surfaces& surfaces, Predicate predicate) {
    for (int space = 0; space < 3; ++space) {
        for (int k = 0; k < surfaces.count(); ++k) {
            if (!predicate(surfaces.vertex(space, k))) {
                return false;
            }
        }
    }
    return true;
}

/**
 * a, b, c and d against their definitions in double.
 *
 * K is held in floats: each is off by half a step, and K1 - K2 by as much of the larger one, which
 * is the conditioning of the quotient. The quotient adds the roundings of numerator and result.
 */
void expectScalarsFollowFromParameters(const Surfaces& surfaces) {
    const HyperboloidParameters& p = surfaces.drawn.p;
    const double difference = p.K1 - p.K2;
    const double bound = 2.0 * floatStep * (1.0 + (p.K1 + p.K2) / std::fabs(difference));
    const Scalars scalars(surfaces.models[0]);
    const auto expectQuotient = [&](double scalar, double term, double otherTerm, double divisor) {
        const double terms = std::fabs(term) + std::fabs(otherTerm);
        EXPECT_LE(std::fabs(scalar - (term + otherTerm) / divisor),
                  bound * terms / std::fabs(divisor));
    };
    expectQuotient(scalars.a, p.K1 * p.U1, p.K13 * p.U3, difference);
    expectQuotient(scalars.b, p.K13, 0.0, -difference);
    expectQuotient(scalars.c, p.K2 * p.U2, p.K23 * p.U3, -difference);
    expectQuotient(scalars.d, p.K23, 0.0, difference);
}

/**
 * The quadric (x0^2 - x1^2) / 4 - b d x2^2 = k, which the points u with m1 u2 = m2 u1 form.
 *
 * Each square takes twice the half steps of semi-axis, sine or cosine, radius and coordinate, and
 * the step of lambda: 5 half steps doubled at most, 5 steps. k takes kBound of its own terms.
 */
void expectOnQuadric(const Surfaces& surfaces) {
    constexpr double squareBound = 5.0 * floatStep;
    const Scalars scalars(surfaces.models[0]);
    const double bd = scalars.b * scalars.d;
    const double k = scalars.k();
    const double kRoundings = kBound * scalars.kTerms();
    WorstShare worst;
    for (int i = 0; i < surfaces.count(); ++i) {
        const Point x = surfaces.vertex(Hyperboloid::XSPACE, i);
        const double first = x[0] * x[0] / 4.0;
        const double second = x[1] * x[1] / 4.0;
        const double third = bd * x[2] * x[2];
        const double squares = first + second + std::fabs(third);
        worst.add(first - second - third - k, squareBound * squares + kRoundings, i);
    }
    worst.expectWithinBound("quadric");
}

/** The replacement surface: lambda = (1, 1, 1) about the axis that the surface before had. */
void expectOnUnitHyperboloid(const Surfaces& surfaces) {
    constexpr double squareBound = 4.0 * floatStep;
    const std::size_t axis = surfaces.drawn.previouslySwapped ? 1 : 0;
    WorstShare worst;
    for (int i = 0; i < surfaces.count(); ++i) {
        const Point x = surfaces.vertex(Hyperboloid::XSPACE, i);
        const double squares = x[0] * x[0] + x[1] * x[1] + x[2] * x[2];
        worst.add(squares - 2.0 * x[axis] * x[axis] - 1.0, squareBound * squares, i);
    }
    worst.expectWithinBound("unit hyperboloid");
}

/** A point of U space and the magnitude of the terms that its coordinates are sums of. */
struct Sum {
    Point value;
    Point terms;
};

/** The maps between the spaces, written out from a, b, c, d and the entered K and uHat. */
class Maps {
public:
    explicit Maps(const Surfaces& surfaces)
        : p(surfaces.drawn.p)
        , scalars(surfaces.models[0]) {
        const double bd = scalars.b * scalars.d;
        const bool isShifted = surfaces.models[0].b * surfaces.models[0].d != 0.0F;
        if (isShifted) {
            const double sum = std::fabs(scalars.c) + std::fabs(scalars.a);
            shift = {{-scalars.c - scalars.a, scalars.c - scalars.a, scalars.sigma() / (2.0 * bd)},
                     {sum, sum, scalars.crossTerms / std::fabs(2.0 * bd)}};
        }
    }

    /** u = R^-1 (x - s), with the inverse of R in closed form. */
    [[nodiscard]] Sum uFromX(const Point& x) const {
        Point y{};
        Point terms{};
        for (std::size_t i = 0; i < 3; ++i) {
            y[i] = x[i] - shift.value[i];
            terms[i] = std::fabs(x[i]) + shift.terms[i];
        }
        // R holds b + d and d - b, so that rounding moves a bit of b into d and back.
        const double planar =
            (terms[0] + terms[1]) / 2.0 + (std::fabs(scalars.b) + std::fabs(scalars.d)) * terms[2];
        return {
            {(y[0] + y[1]) / 2.0 + scalars.b * y[2], (y[0] - y[1]) / 2.0 + scalars.d * y[2], y[2]},
            {planar, planar, terms[2]}};
    }

    /** m = K (u - uHat) */
    [[nodiscard]] Sum mFromU(const Point& u) const {
        const Point w{u[0] - p.U1, u[1] - p.U2, u[2] - p.U3};
        return {
            {p.K1 * w[0] + p.K13 * w[2], p.K2 * w[1] + p.K23 * w[2],
             p.K13 * w[0] + p.K23 * w[1] + p.K3 * w[2]},
            applyMagnitudes({std::fabs(u[0]) + std::fabs(p.U1), std::fabs(u[1]) + std::fabs(p.U2),
                             std::fabs(u[2]) + std::fabs(p.U3)})};
    }

    /** |K| v */
    [[nodiscard]] Point applyMagnitudes(const Point& v) const {
        return {p.K1 * v[0] + std::fabs(p.K13) * v[2], p.K2 * v[1] + std::fabs(p.K23) * v[2],
                std::fabs(p.K13) * v[0] + std::fabs(p.K23) * v[1] + p.K3 * v[2]};
    }

private:
    const HyperboloidParameters p;
    const Scalars scalars;
    Sum shift{};
};

/**
 * The vertices of U and M space against those of X space and U space.
 *
 * u: half a step each for the float x, the entries of R and the float u, and two for the shift, of
 * four operations in float: 3.5 steps of the terms. m: half a step each for the float u and the
 * float m: 1 step of the terms, and a little for their being rounded themselves. The model takes m
 * from a u in double, whose own roundings are relative to the terms of u.
 */
void expectSpacesMapOntoEachOther(const Surfaces& surfaces) {
    constexpr double uBound = 3.5 * floatStep;
    constexpr double mBound = 1.001 * floatStep;
    const Maps maps(surfaces);
    WorstShare worstU;
    WorstShare worstM;
    for (int k = 0; k < surfaces.count(); ++k) {
        const Point u = surfaces.vertex(Hyperboloid::USPACE, k);
        const Point m = surfaces.vertex(Hyperboloid::MSPACE, k);
        const Sum expectedU = maps.uFromX(surfaces.vertex(Hyperboloid::XSPACE, k));
        const Sum expectedM = maps.mFromU(u);
        const Point carriedTerms = maps.applyMagnitudes(expectedU.terms);
        for (std::size_t i = 0; i < 3; ++i) {
            worstU.add(u[i] - expectedU.value[i], uBound * expectedU.terms[i], k);
            worstM.add(m[i] - expectedM.value[i],
                       mBound * expectedM.terms[i] + 16.0 * doubleStep * carriedTerms[i], k);
        }
    }
    worstU.expectWithinBound("u = R^-1 (x - s)");
    worstM.expectWithinBound("m = K (u - uHat)");
}

bool isShare(float value) {
    return value >= 0.0F && value <= 1.0F;
}

/** Energies from exactly 0 to exactly 1, or, of a surface that is everywhere alike, all NaN. */
void expectEnergiesOfFiniteSurface(const std::vector<float>& energies) {
    if (std::isnan(energies[0])) {
        EXPECT_TRUE(std::all_of(energies.begin(), energies.end(), [](float e) { return e != e; }));
        return;
    }
    EXPECT_TRUE(std::all_of(energies.begin(), energies.end(), isShare));
    const auto [lowest, highest] = std::minmax_element(energies.begin(), energies.end());
    EXPECT_EQ(*lowest, 0.0F);
    EXPECT_EQ(*highest, 1.0F);
}

/** Colours are colours whatever the energies; without an energy a vertex is of the darkest grey. */
void expectColorsOfEnergies(const ExposedHyperboloid& model) {
    const std::vector<float> channels = floatsOf(model.colors);
    EXPECT_TRUE(std::all_of(channels.begin(), channels.end(), isShare));
    const double l = model.lightness;
    const double s = model.saturation;
    const double chroma = l < 0.5 ? l * s : s - l * s;
    int wrong = 0;
    for (std::size_t k = 0; k < model.energies.size(); ++k) {
        for (std::size_t i = 0; std::isnan(model.energies[k]) && i < 3; ++i) {
            wrong += std::fabs(channels[3 * k + i] - (l - chroma)) <= floatStep ? 0 : 1;
        }
    }
    EXPECT_EQ(wrong, 0) << "channels of vertices without an energy";
}

/** Every index of the shapes below a node, in the order of traversal, against its coordinates. */
int expectIndicesInRange(SoGroup* group) {
    int coordinates = 0;
    int shapes = 0;
    for (int i = 0; i < group->getNumChildren(); ++i) {
        SoNode* child = group->getChild(i);
        if (const auto* points = dynamic_cast<SoCoordinate3*>(child)) {
            coordinates = points->point.getNum();
        } else if (const auto* mesh = dynamic_cast<SoQuadMesh*>(child)) {
            EXPECT_EQ(mesh->startIndex.getValue(), 0);
            EXPECT_EQ(mesh->verticesPerRow.getValue() * mesh->verticesPerColumn.getValue(),
                      coordinates);
            ++shapes;
        } else if (const auto* faces = dynamic_cast<SoIndexedFaceSet*>(child)) {
            for (int k = 0; k < faces->coordIndex.getNum(); ++k) {
                EXPECT_GE(faces->coordIndex[k], SO_END_FACE_INDEX);
                EXPECT_LT(faces->coordIndex[k], coordinates);
            }
            ++shapes;
        } else if (auto* inner = dynamic_cast<SoSeparator*>(child)) {
            shapes += expectIndicesInRange(inner);
        }
    }
    return shapes;
}

/** The box of a drawing, as the library computes it when the whole scene is to be shown. */
SbBox3f boxOf(SoSeparator* drawing) {
    SoGetBoundingBoxAction action(SbViewportRegion(100, 100));
    action.apply(drawing);
    return action.getBoundingBox();
}

/** A ray hits vertices that there are, and never one that is nowhere. */
void expectPickOfFiniteVertices(SoSeparator* drawing, const ExposedHyperboloid& model, int count) {
    SoRayPickAction pick(SbViewportRegion(100, 100));
    pick.setRay(SbVec3f(0.4F, 0.3F, 100.0F), SbVec3f(0.0F, 0.1F, -1.0F));
    pick.apply(drawing);
    const SoPickedPoint* picked = pick.getPickedPoint();
    if (picked == nullptr) {
        return;
    }
    const auto* face = dynamic_cast<const SoFaceDetail*>(picked->getDetail());
    ASSERT_NE(face, nullptr);
    for (int i = 0; i < face->getNumPoints(); ++i) {
        const int k = face->getPoint(i)->getCoordinateIndex();
        ASSERT_GE(k, 0);
        ASSERT_LT(k, count);
        EXPECT_TRUE(isFinite({model.getVertex(k, 0), model.getVertex(k, 1), model.getVertex(k, 2)}))
            << "vertex " << k;
    }
}

/** The box holds all finite vertices, and is empty when there are none. */
void expectBoxOfFiniteVertices(const SbBox3f& box, const ExposedHyperboloid& model, int count) {
    SbBox3f expected;
    for (int k = 0; k < count; ++k) {
        const SbVec3f vertex(model.getVertex(k, 0), model.getVertex(k, 1), model.getVertex(k, 2));
        if (std::isfinite(vertex[0] + vertex[1] + vertex[2])) {
            expected.extendBy(vertex);
        }
    }
    ASSERT_EQ(box.isEmpty(), expected.isEmpty());
    if (!box.isEmpty()) {
        EXPECT_EQ(box.getMin(), expected.getMin());
        EXPECT_EQ(box.getMax(), expected.getMax());
    }
}

void expectSurfaceDrawn(ExposedHyperboloid& model, int columns, int rows) {
    const NodePointer<SoSeparator> surface(model.DrawHyperboloid());
    const auto* material = childAs<SoMaterial>(surface.get(), 0);
    const auto* mesh = childAs<SoQuadMesh>(surface.get(), 3);
    ASSERT_TRUE(material != nullptr && mesh != nullptr);
    EXPECT_EQ(mesh->verticesPerRow.getValue(), rows);
    EXPECT_EQ(mesh->verticesPerColumn.getValue(), columns);
    EXPECT_EQ(expectIndicesInRange(surface.get()), 1);
    // Bound per vertex: every vertex has a colour of its own.
    EXPECT_EQ(material->ambientColor.getNum(), columns * rows);
    EXPECT_EQ(material->diffuseColor.getNum(), columns * rows);
    EXPECT_EQ(material->specularColor.getNum(), columns * rows);
    expectBoxOfFiniteVertices(boxOf(surface.get()), model, columns * rows);
    expectPickOfFiniteVertices(surface.get(), model, columns * rows);
}

void expectDecorationsDrawn(ExposedHyperboloid& model, const DrawnParameters& drawn) {
    const NodePointer<SoSeparator> axis(model.DrawU3Axis(static_cast<float>(drawn.p.u3axisRange),
                                                         static_cast<float>(drawn.p.u3axisRadius)));
    const NodePointer<SoSeparator> lines(model.DrawU3ConstAxis(
        static_cast<float>(drawn.p.u3constRange), static_cast<float>(drawn.p.u3constRadius)));
    const NodePointer<SoSeparator> uHat(model.DrawUHat());
    const NodePointer<SoSeparator> center(model.DrawCenter());
    EXPECT_EQ(expectIndicesInRange(axis.get()), 3) << "a tube and both sides of a cone";
    EXPECT_EQ(expectIndicesInRange(lines.get()), 4) << "four tubes";
    for (const auto& drawing : {axis, lines, uHat, center}) {
        boxOf(drawing.get()); // which may be empty, but is found
    }
}

void expectDrawn(Surfaces& surfaces) {
    for (ExposedHyperboloid& model : surfaces.models) {
        SCOPED_TRACE(testing::Message() << "space " << model.WichSpace());
        expectSurfaceDrawn(model, surfaces.drawn.p.horizontalPrecision,
                           surfaces.drawn.p.verticalPrecision);
        expectDecorationsDrawn(model, surfaces.drawn);
    }
}

void expectFiniteSurface(const Surfaces& surfaces, Kind kind) {
    expectScalarsFollowFromParameters(surfaces);
    if (kind == fallbackKind) {
        expectOnUnitHyperboloid(surfaces);
    } else {
        expectOnQuadric(surfaces);
    }
    expectSpacesMapOntoEachOther(surfaces);
    expectEnergiesOfFiniteSurface(surfaces.models[0].energies);
}

void expectNoSurface(const Surfaces& surfaces) {
    EXPECT_TRUE(allVertices(surfaces, isNan));
    const std::vector<float>& energies = surfaces.models[0].energies;
    EXPECT_TRUE(std::all_of(energies.begin(), energies.end(), [](float e) { return e != e; }));
}

/** How many surfaces of each kind there were: a draw that leaves one out shows nothing about it. */
using KindCounts = std::array<int, kindCount>;

void checkSurfaces(const DrawnParameters& drawn, KindCounts& counts) {
    SCOPED_TRACE(testing::Message() << drawn);
    const LastWords lastWords(drawn);
    Surfaces surfaces(drawn);
    const Kind kind = kindOf(surfaces);
    ++counts[kind];
    const bool isReal = allVertices(surfaces, isFinite);
    EXPECT_EQ(isReal, kind != roundKind && kind != imaginaryConeKind);
    if (isReal) {
        expectFiniteSurface(surfaces, kind);
    } else {
        expectNoSurface(surfaces);
    }
    expectColorsOfEnergies(surfaces.u());
    expectDrawn(surfaces);
}

KindCounts checkDrawnSurfaces(std::uint32_t seed, int sets, int finest) {
    ParameterDraw draw(seed);
    KindCounts counts{};
    for (int i = 0; i < sets; ++i) {
        checkSurfaces(draw.next(finest), counts);
    }
    return counts;
}

void expectEveryKind(const KindCounts& counts, int atLeast) {
    for (std::size_t kind = 0; kind < kindCount; ++kind) {
        EXPECT_GE(counts[kind], atLeast) << "surfaces of kind " << kind;
    }
}

TEST(HyperboloidRanges, HoldOnSmallGrids) {
    expectEveryKind(checkDrawnSurfaces(1, 1000, 24), 20);
}

TEST(HyperboloidRanges, HoldOnMediumGrids) {
    expectEveryKind(checkDrawnSurfaces(2, 150, 100), 2);
}

TEST(HyperboloidRanges, HoldOnTheFinestGrid) {
    KindCounts counts{};
    for (const HyperboloidParameters& p :
         {HyperboloidParameters{0.01, 100.0, 100.0, 0.5, 80.0, 100.0, -100.0, 100.0},
          HyperboloidParameters{99.99, 100.0, 100.0, 50.0, -50.0, 3.0, 100.0, -100.0},
          HyperboloidParameters{3.63, 86.89, 60.11, 0.14, -10.71, 0.0, 0.0, 13.77},
          HyperboloidParameters{0.02, 1.75, 69.34, 0.14, 3.58, 0.0, 0.0, -0.01},
          HyperboloidParameters{1.5, 1.5, 1.0, 0.5, 0.5, 1.0, 0.0, 0.0}, withoutK13}) {
        ASSERT_EQ(p.brokenCondition(), HyperboloidCondition::none);
        HyperboloidParameters finest = p;
        finest.horizontalPrecision = finest.verticalPrecision = 500;
        finest.u3constRange = finest.u3axisRange = 100.0;
        finest.u3constRadius = finest.u3axisRadius = 100.0;
        checkSurfaces({finest, 0.8, 0.5, true}, counts);
    }
    expectEveryKind(counts, 1);
}

TEST(HyperboloidRanges, TrapNoArithmetic) {
    ASSERT_TRUE(SoDB::isInitialized());
    EXPECT_EQ(trapsAtStart, 0);
    EXPECT_EQ(fegetexcept(), 0);
    checkDrawnSurfaces(3, 20, 8);
    EXPECT_EQ(fegetexcept(), 0);
}

} // namespace
