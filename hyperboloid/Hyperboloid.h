#pragma once

#include "hyperboloid/HyperboloidParameters.h"
#include "hyperboloid/HyperboloidSpaces.h"
#include "hyperboloid/SurfaceCondition.h"
#include "hyperboloid/VertexGrid.h"
#include "math/Matrice.h"
#include "math/Triple.h"
#include "math/Vecteur.h"
#include "scene/SceneNodes.h"
#include "scene/SurfaceVertex.h"

#include <Inventor/SbName.h>
#include <array>
#include <cstddef>
#include <vector>

class SoGroup;
class SoMaterial;
class SoSeparator;

/**
 * A quadric surface in one of three spaces, with its energy colours and its decorations.
 *
 * The surface follows from the entries of a symmetric matrix K and a point uHat of U space. It is a
 * grid of numCol columns by numRow rows, numbered as in VertexGrid; a vertex index names the same
 * parameter point in all three spaces (see HyperboloidSpaces for the maps between them).
 *
 * After a change of the parameters the order is: set_parameters or setParameters, init_tables,
 * generateHyperboloidPoints, DrawHyperboloid. The last two and normalize_energy throw
 * std::logic_error when the grid has changed and init_tables was left out.
 *
 * Degenerate parameters are reported on the standard error stream and replaced by fallback values;
 * K1 = K2 and negative lambdas are not reported and give NaN or infinite coordinates. Lambdas are
 * negative only by rounding: where the quadric is a cone or almost one, k of
 * HyperboloidCoefficients::lambda, a difference of rounded numbers, can come out with the wrong
 * sign (docs/mathematics.md, 6.4).
 *
 * Every Draw operation returns a new, unreferenced separator that the caller adds to a scene.
 */
class Hyperboloid {
public:
    /** Coordinates u. */
    static constexpr int USPACE = HyperboloidSpaces::U;
    /** Canonical coordinates x of the quadric. */
    static constexpr int XSPACE = HyperboloidSpaces::X;
    /** Coordinates m = K (u - uHat). */
    static constexpr int MSPACE = HyperboloidSpaces::M;

    // The appearance of a new surface, 0 to 1.
    static constexpr double startSaturation = 0.8;
    static constexpr double startLightness = 0.5;
    static constexpr double startTransparency = 0.0;

    /**
     * A surface with this K and uHat and the start values for all else, generated and, in U space,
     * coloured.
     */
    Hyperboloid(float K1, float K2, float K3, float K13, float K23, float U1, float U2, float U3,
                int spaceIndex);
    Hyperboloid(const Hyperboloid&) = delete;
    Hyperboloid& operator=(const Hyperboloid&) = delete;
    ~Hyperboloid();

    /**
     * Takes the parameters and derives all numbers from them; neither the tables' size nor the
     * surface changes. A negative number of columns or rows counts as 0.
     */
    void setParameters(const HyperboloidParameters& parameters);
    /** setParameters() with the fifteen values in the order of the set's members. */
    void set_parameters(double K1, double K2, double K3, double K13, double K23, double U1,
                        double U2, double U3, int columns, int rows, double pointRadius,
                        double constRange, double axisRange, double constRadius, double axisRadius);
    /** Stores K (as floats and as the double matrix) and uHat. */
    void set_k_uHat(double K1, double K2, double K3, double K13, double K23, double U1, double U2,
                    double U3);
    /** Recomputes a, b, c, d from K and uHat (HyperboloidCoefficients::pnas). */
    void set_PNAS_var();
    /**
     * lambda of HyperboloidCoefficients; sets swapAxes. In the degenerate case it reports the
     * error, returns (1, 1, 1) and leaves swapAxes as it was.
     */
    Vecteur get_lambda_set_coeff(float pnasA, float pnasB, float pnasC, float pnasD);
    /** The shift s of HyperboloidCoefficients; for b d = 0 it reports the error and returns 0. */
    Vecteur get_shift(float pnasA, float pnasB, float pnasC, float pnasD);
    /** R = [[1, 1, -q - p], [1, -1, q - p], [0, 0, 1]] */
    Matrice get_rotationMatrix(float p, float q);
    /** Gives all point markers one new sphere of the radius. */
    void createMySphere(float radius);

    /** Makes the tables anew for numCol x numRow vertices, filled with 0. */
    void init_tables();
    /**
     * Generates the points, and in U space their normalised energies, if `points`; then in U space
     * the colours from the stored energies, if `colours`. In X and M space colours stay.
     */
    void generateHyperboloidPoints(bool points, bool colours);
    /**
     * p = (alpha0 r cos(theta), alpha1 r sin(theta), -alpha2 t) with r = sqrt(t^2 + 1), in float.
     *
     * Another parameterisation than the generated one on purpose: it ignores swapped axes and
     * negates the third coordinate. Nothing of the viewer relies on it
     * (docs/kept-on-purpose.md).
     */
    void computePositionForParams(float t, float theta, float (&p)[3]);
    /** E = (K w) . w with w = u - uHat. */
    double compute_energy(const float (&u)[3]);
    /** Maps the energies of all vertices onto 0 to 1; equal energies become NaN. */
    void normalize_energy();
    /** The colour of a normalised energy: blue (0), green (0.5), red (1). */
    void computeColorForPoint(float e, float (&rgb)[3]);
    /** The colour of a position, a rule of its own that no surface wears. */
    void computeColorForPoint(const float (&p)[3], float (&rgb)[3]);

    // Appearance in percent, 0 to 100. Saturation and lightness show with the colours that are
    // computed next, the transparency at once.
    void setSaturationPercent(int value) { saturation = value / percent; }
    void setLightnessPercent(int value) { lightness = value / percent; }
    void setTransparencyPercent(int value);
    /** Takes over the colours of a surface, vertex by vertex, when its tables are of the same grid.
     */
    void takeColorsFrom(const Hyperboloid& other);

    // The parts' names are those of HyperboloidNames.
    /**
     * Adds the surface and its decorations to a scene, in the order in which they are drawn.
     *
     * @param lit    what is always lit: the decorations
     * @param styled what follows the look of the scene: the surface
     */
    void drawParts(SoSeparator& lit, SoSeparator& styled);
    /** The surface; its mesh is picked by vertex. */
    SoSeparator* DrawHyperboloid();
    /** The U3 axis with its arrow cone; half-length and tube radius. */
    SoSeparator* DrawU3Axis(float range, float radius);
    /** The four U3-constant lines; half-length and tube radius. */
    SoSeparator* DrawU3ConstAxis(float range, float radius);
    /** The point uHat. */
    SoSeparator* DrawUHat();
    /** The centre of the quadric. */
    SoSeparator* DrawCenter();
    /** A point marker of this name at vertex k, in the vertex's colour. */
    SoSeparator* DrawVertex(const SbName& name, int k) const;
    /** A tube from A to B, blue or red. */
    SoSeparator* DrawTubeLine(Vecteur A, Vecteur B, float radius, bool blue);
    /** A cone on the base centre A that points away from B. */
    SoSeparator* DrawCone(Vecteur A, Vecteur B, float radius, float height);
    /** Two unit vectors perpendicular to v and to each other. */
    void find_normals(Vecteur v, Vecteur& nA, Vecteur& nB);

    /** The space index. */
    [[nodiscard]] int WichSpace() const { return space; }
    /** K1, K2, K3, K13, K23 for i = 0 to 4; i is not checked. */
    [[nodiscard]] float getK(int i) const { return K[static_cast<std::size_t>(i)]; }
    /** Component i of uHat; the vector reports an i above 2. */
    [[nodiscard]] float getU(int i) const;
    /** The value named 'a', 'b', 'c' or 'd'; 0 for any other name. */
    [[nodiscard]] float getPNAS(char name) const;
    /** numCol for 0, numRow for 1, -1 for anything else. */
    [[nodiscard]] double getPrec(int i) const;
    /** Radius of the point markers. */
    [[nodiscard]] double getSpR() const { return SpR; }
    [[nodiscard]] double getu3const_range() const { return u3const_range; }
    [[nodiscard]] double getu3axis_range() const { return u3axis_range; }
    [[nodiscard]] double getu3const_radius() const { return u3const_radius; }
    [[nodiscard]] double getu3axis_radius() const { return u3axis_radius; }
    [[nodiscard]] double getSaturation() const { return saturation; }
    [[nodiscard]] double getLightness() const { return lightness; }
    [[nodiscard]] double getTransparency() const { return transparency; }
    /** Coordinate 0 to 2 of vertex k; neither is checked. */
    [[nodiscard]] float getVertex(int k, int comp) const {
        return coordinate(vertices[static_cast<std::size_t>(k)], comp);
    }
    /** Red, green or blue (0 to 2) of vertex k; neither is checked. */
    [[nodiscard]] float getColor(int k, int comp) const {
        return coordinate(colors[static_cast<std::size_t>(k)], comp);
    }
    /** Vertex k with its coordinates, which are meant to be those of U space, and its colour. */
    [[nodiscard]] SurfaceVertex surfaceVertex(int k) const;
    [[nodiscard]] unsigned int getNumCol() const { return numCol; }
    [[nodiscard]] unsigned int getNumRow() const { return numRow; }
    [[nodiscard]] unsigned int getNumVertices() const { return numCol * numRow; }
    /** The grid that the parameters ask for: numCol x numRow. */
    [[nodiscard]] VertexGrid grid() const;
    /** Whether the surface of the parameters as they are now is their quadric. */
    [[nodiscard]] SurfaceCondition surfaceCondition() const;

protected:
    float a = 0.0F;
    float b = 0.0F;
    float c = 0.0F;
    float d = 0.0F;
    /** alpha0, alpha1, alpha2 */
    std::array<float, 3> semiAxis{};
    /** Half the range of the height parameter. */
    float tRange = 4.0F;
    int space;
    /** K1, K2, K3, K13, K23; the derived numbers come from these floats, the maps from KMatrix. */
    std::array<float, 5> K{};
    std::vector<FloatTriple> vertices;
    /** Red, green, blue in 0 to 1 per vertex; computed in U space, copied from there by others. */
    std::vector<FloatTriple> colors;
    /** 1 float in 0 to 1 per vertex; filled in U space only. */
    std::vector<float> energies;
    /** The grid that the tables were made for. */
    VertexGrid tablesGrid{0, 0};
    unsigned int numCol = 0;
    unsigned int numRow = 0;
    /** 0 to 1 */
    double saturation = startSaturation;
    /** 0 to 1 */
    double lightness = startLightness;
    /** 0 to 1; it reaches the surface through `material`, never through `colors`. */
    double transparency = startTransparency;
    double SpR = 0.0;
    double u3const_range = 0.0;
    double u3axis_range = 0.0;
    double u3const_radius = 0.0;
    double u3axis_radius = 0.0;
    Matrice rotationMatrix;
    Matrice KMatrix;
    Vecteur lambda;
    Vecteur shift;
    /** uHat */
    Vecteur U;
    /** Whether the axis of the surface is the second coordinate of X space. */
    bool swapAxes = false;
    /** The surface's material, the same in every drawing of it. */
    NodePointer<SoMaterial> material;
    /** Holds the one sphere that every point marker shows. */
    NodePointer<SoGroup> sphereGroup;

    /** Throws std::logic_error unless the tables were made for the grid. */
    void requireTablesOfGrid() const;

private:
    static constexpr double percent = 100.0;

    [[nodiscard]] HyperboloidSpaces spaces() const;
};
