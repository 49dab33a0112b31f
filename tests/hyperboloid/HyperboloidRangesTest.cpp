// What holds for any parameters that the parameters' dialog lets through: numbers in their ranges,
// points on their quadric, and the same point in all three spaces.

#include "tests/hyperboloid/OpenHyperboloid.h"
#include "tests/hyperboloid/SceneReading.h"

#include <Inventor/nodes/SoCoordinate3.h>
#include <Inventor/nodes/SoQuadMesh.h>
#include <Inventor/nodes/SoSeparator.h>
#include <algorithm>
#include <cfenv>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <random>

namespace {

using Point = std::array<double, 3>;
using Entries = std::array<std::array<double, 3>, 3>;

/** Roundings of single precision that may come together in one number. */
constexpr double roundings = 16;
constexpr double epsilon = std::numeric_limits<float>::epsilon();

struct Case {
    KAndUHat p;
    int columns;
    int rows;
};

std::ostream& operator<<(std::ostream& out, const Case& set) {
    const KAndUHat& p = set.p;
    return out << "K " << p.K1 << ' ' << p.K2 << ' ' << p.K3 << ' ' << p.K13 << ' ' << p.K23
               << ", uHat " << p.U1 << ' ' << p.U2 << ' ' << p.U3 << ", " << set.columns << " x "
               << set.rows;
}

/** Draws what a user can enter: hundredths in the ranges of the dialog's fields. */
class Drawing {
public:
    explicit Drawing(unsigned int seed)
        : engine(seed) {}

    Case next(int coarsest, int finest) {
        Case set{};
        do {
            set.p = {field(0.01, 100), field(0.01, 100), field(0, 100),    field(-100, 100),
                     field(-100, 100), field(-100, 100), field(-100, 100), field(-100, 100)};
        } while (!accepted(set.p));
        set.columns = between(coarsest, finest);
        set.rows = between(coarsest, finest);
        return set;
    }

private:
    int between(int lowest, int highest) {
        return lowest +
               static_cast<int>(engine() % static_cast<unsigned int>(highest - lowest + 1));
    }

    /** One of the ends, zero, a small number or any, each now and then. */
    double field(double lowest, double highest) {
        constexpr int perUnit = 100;
        switch (between(0, 9)) {
        case 0:
            return lowest;
        case 1:
            return highest;
        case 2:
            return std::max(lowest, 0.0);
        case 3:
        case 4:
        case 5:
            return std::max(lowest, between(-3 * perUnit, 3 * perUnit) / double{perUnit});
        default:
            return between(static_cast<int>(lowest * perUnit),
                           static_cast<int>(highest * perUnit)) /
                   double{perUnit};
        }
    }

    /** The conditions under which the dialog's values reach the surfaces. */
    static bool accepted(const KAndUHat& p) {
        return p.K13 * p.K13 / p.K1 + p.K23 * p.K23 / p.K2 < p.K3 && p.K1 <= p.K2;
    }

    std::mt19937 engine;
};

/** The same parameters in all three spaces, generated. */
struct Spaces {
    explicit Spaces(const Case& set)
        : u(startUp, Hyperboloid::USPACE)
        , x(startUp, Hyperboloid::XSPACE)
        , m(startUp, Hyperboloid::MSPACE) {
        for (OpenHyperboloid* space : {&u, &x, &m}) {
            space->regenerate(set.p, set.columns, set.rows);
        }
    }
    OpenHyperboloid u;
    OpenHyperboloid x;
    OpenHyperboloid m;
};

Point vertexOf(const OpenHyperboloid& surface, int k) {
    return {surface.getVertex(k, 0), surface.getVertex(k, 1), surface.getVertex(k, 2)};
}

bool isFinite(const std::vector<float>& table) {
    return std::all_of(table.begin(), table.end(),
                       [](float value) { return std::isfinite(value); });
}

/** No parameter was replaced, and every point is somewhere. */
bool isWellFormed(const Spaces& spaces) {
    const OpenHyperboloid& u = spaces.u;
    const bool replaced = u.b * u.d == 0 || u.b * u.c + u.a * u.d == 0;
    return !replaced && isFinite(u.vertices) && isFinite(spaces.x.vertices) &&
           isFinite(spaces.m.vertices);
}

double sumOfSizes(const std::array<double, 3>& row, const Point& factors) {
    return std::abs(row[0] * factors[0]) + std::abs(row[1] * factors[1]) +
           std::abs(row[2] * factors[2]);
}

double product(const std::array<double, 3>& row, const Point& point) {
    return row[0] * point[0] + row[1] * point[1] + row[2] * point[2];
}

/** How far a single precision vertex of U space may be from u = R^-1 (x - s). */
Point uncertaintyOfU(const Spaces& spaces, const Point& u, const Point& x) {
    const Entries inverse = entries(Matrice(spaces.u.rotationMatrix).inv());
    const Point s = coordinates(spaces.u.shift);
    Point uncertainty{};
    for (std::size_t i = 0; i < 3; ++i) {
        uncertainty[i] = roundings * epsilon *
                         (std::abs(u[i]) + sumOfSizes(inverse[i], x) + sumOfSizes(inverse[i], s));
    }
    return uncertainty;
}

/** x = R u + s, up to what R makes of the uncertainty of u. */
void expectSamePointInX(const Spaces& spaces, const Point& u, const Point& x) {
    const Entries R = entries(spaces.u.rotationMatrix);
    const Point s = coordinates(spaces.u.shift);
    const Point uncertainty = uncertaintyOfU(spaces, u, x);
    for (std::size_t i = 0; i < 3; ++i) {
        const double bound =
            sumOfSizes(R[i], uncertainty) +
            roundings * epsilon * (sumOfSizes(R[i], u) + std::abs(s[i]) + std::abs(x[i]));
        ASSERT_NEAR(x[i], product(R[i], u) + s[i], bound) << "X, coordinate " << i;
    }
}

/** m = K (u - uHat), up to the roundings of u and m. */
void expectSamePointInM(const Case& set, const Point& u, const Point& m) {
    const KAndUHat& p = set.p;
    const Entries K{{{p.K1, 0, p.K13}, {0, p.K2, p.K23}, {p.K13, p.K23, p.K3}}};
    const Point uHat{set.p.U1, set.p.U2, set.p.U3};
    const Point w{u[0] - uHat[0], u[1] - uHat[1], u[2] - uHat[2]};
    for (std::size_t i = 0; i < 3; ++i) {
        const double bound =
            roundings * epsilon * (sumOfSizes(K[i], u) + sumOfSizes(K[i], uHat) + std::abs(m[i]));
        ASSERT_NEAR(m[i], product(K[i], w), bound) << "M, coordinate " << i;
    }
}

/** Signed squares of x over the semi-axes: one minus, two plus, and their sum is 1. */
void expectOnCanonicalQuadric(const OpenHyperboloid& surface, const Point& x) {
    const std::size_t axis = surface.swapAxes ? 1 : 0;
    Point square{};
    for (std::size_t i = 0; i < 3; ++i) {
        square[i] = std::pow(x[i] / surface.semiAxis[i], 2);
    }
    const double sum = square[0] + square[1] + square[2] - 2 * square[axis];
    ASSERT_NEAR(sum, 1, roundings * epsilon * (1 + square[axis]));
}

/**
 * u1 u2 - b u2 u3 - d u1 u3 - a u2 - c u1 = 0, which is m1 u2 - m2 u1 = 0 over K1 - K2.
 *
 * The surface was found from k = a c - sigma^2 / (4 b d), a difference of single precision numbers,
 * and from x, whose squares it makes equal to k.
 */
void expectOnQuadric(const Spaces& spaces, const Point& u, const Point& x) {
    const double a = spaces.u.a;
    const double b = spaces.u.b;
    const double c = spaces.u.c;
    const double d = spaces.u.d;
    const double sigma = b * c + a * d;
    const Point slope{std::abs(u[1]) + std::abs(d * u[2]) + std::abs(c),
                      std::abs(u[0]) + std::abs(b * u[2]) + std::abs(a),
                      std::abs(b * u[1]) + std::abs(d * u[0])};
    const double terms = std::abs(a * c) + std::abs(b * c * a * d) / std::abs(b * d) +
                         (b * c * b * c + a * d * a * d) / std::abs(b * d) +
                         sigma * sigma / std::abs(4 * b * d) + x[0] * x[0] + x[1] * x[1] +
                         std::abs(b * d) * x[2] * x[2];
    const double bound =
        sumOfSizes(slope, uncertaintyOfU(spaces, u, x)) + roundings * epsilon * terms;
    ASSERT_NEAR(u[0] * u[1] - b * u[1] * u[2] - d * u[0] * u[2] - a * u[1] - c * u[0], 0, bound);
}

/**
 * a, b, c, d as their formulas say, up to the roundings of K, which count the more the closer K1 is
 * to K2.
 */
void expectCoefficients(const Case& set, const OpenHyperboloid& surface) {
    const KAndUHat& p = set.p;
    const double difference = p.K1 - p.K2;
    const double uncertainty = roundings * epsilon * (1 + (p.K1 + p.K2) / std::abs(difference));
    const auto expectQuotient = [&](double quotient, double term1, double term2, const char* name) {
        ASSERT_NEAR(quotient, (term1 + term2) / difference,
                    uncertainty * (std::abs(term1) + std::abs(term2)) / std::abs(difference))
            << name;
    };
    expectQuotient(surface.a, p.K1 * p.U1, p.K13 * p.U3, "a");
    expectQuotient(surface.b, -p.K13, 0, "b");
    expectQuotient(surface.c, -p.K2 * p.U2, -p.K23 * p.U3, "c");
    expectQuotient(surface.d, p.K23, 0, "d");
}

/** Energies and colours, where there are any, lie between 0 and 1. */
void expectEnergiesAndColours(const OpenHyperboloid& surface) {
    for (const float energy : surface.energies) {
        ASSERT_TRUE(std::isnan(energy) || (energy >= 0 && energy <= 1)) << energy;
    }
    for (const float channel : surface.colors) {
        ASSERT_TRUE(channel >= 0 && channel <= 1) << channel;
    }
}

/** The mesh takes exactly as many vertices as there are coordinates for. */
void expectMeshInRange(OpenHyperboloid& surface) {
    const NodePointer<SoSeparator> scene(surface.DrawHyperboloid());
    int points = -1;
    int used = -1;
    for (int i = 0; i < scene->getNumChildren(); ++i) {
        if (const auto* coordinates = dynamic_cast<SoCoordinate3*>(scene->getChild(i))) {
            points = coordinates->point.getNum();
        }
        if (const auto* mesh = dynamic_cast<SoQuadMesh*>(scene->getChild(i))) {
            used = mesh->verticesPerRow.getValue() * mesh->verticesPerColumn.getValue();
        }
    }
    ASSERT_EQ(points, static_cast<int>(surface.getNumVertices()));
    ASSERT_EQ(used, points);
}

void drawEveryDecoration(OpenHyperboloid& surface) {
    for (SoSeparator* decoration :
         {surface.DrawCenter(), surface.DrawUHat(), surface.DrawU3Axis(7, 0.03F),
          surface.DrawU3ConstAxis(7, 0.02F)}) {
        const NodePointer<SoSeparator> owned(decoration);
        EXPECT_GT(owned->getNumChildren(), 0);
    }
}

/** Checks one set of parameters; returns whether its surface is well formed. */
bool check(const Case& set) {
    Spaces spaces(set);
    for (OpenHyperboloid* surface : {&spaces.u, &spaces.x, &spaces.m}) {
        expectMeshInRange(*surface);
        drawEveryDecoration(*surface);
    }
    expectEnergiesAndColours(spaces.u);
    if (!isWellFormed(spaces)) {
        return false;
    }
    EXPECT_FALSE(std::any_of(spaces.u.energies.begin(), spaces.u.energies.end(),
                             [](float energy) { return std::isnan(energy); }));
    expectCoefficients(set, spaces.u);
    for (int k = 0; k < set.columns * set.rows && !testing::Test::HasFatalFailure(); ++k) {
        const Point u = vertexOf(spaces.u, k);
        const Point x = vertexOf(spaces.x, k);
        expectOnCanonicalQuadric(spaces.x, x);
        expectOnQuadric(spaces, u, x);
        expectSamePointInX(spaces, u, x);
        expectSamePointInM(set, u, vertexOf(spaces.m, k));
    }
    return true;
}

/** Checks so many sets of a grid's size; a good part of them must be well formed. */
void checkMany(unsigned int seed, int count, int coarsest, int finest) {
    Drawing drawing(seed);
    int wellFormed = 0;
    // The degenerate sets report themselves.
    testing::internal::CaptureStderr();
    for (int i = 0; i < count && !testing::Test::HasFailure(); ++i) {
        const Case set = drawing.next(coarsest, finest);
        std::ostringstream name;
        name << set;
        SCOPED_TRACE(name.str());
        wellFormed += check(set) ? 1 : 0;
    }
    testing::internal::GetCapturedStderr();
    EXPECT_GT(wellFormed, count / 10);
}

} // namespace

TEST(HyperboloidRanges, CoarseGridsOfAnyParameters) {
    checkMany(1, 2000, 5, 12);
}

TEST(HyperboloidRanges, MiddlingGridsOfAnyParameters) {
    checkMany(2, 100, 5, 100);
}

TEST(HyperboloidRanges, FineGridsOfAnyParameters) {
    checkMany(3, 10, 200, 500);
}

TEST(HyperboloidRanges, FinestGridOfTheStartUpParameters) {
    EXPECT_TRUE(check({startUp, 500, 500}));
}

TEST(HyperboloidRanges, NoFloatingPointTrapIsEnabled) {
    EXPECT_EQ(fegetexcept(), 0);
}
