#pragma once

#include "helix/HelixTables.h"
#include "math/Triple.h"
#include "math/Vecteur.h"

class SoSeparator;

/**
 * One circular helix, seen as a thin rod with a direction attached to it: its parameters, and the
 * tables of vertices and colours that its scene nodes are made of.
 *
 * Radius r and pitch p, curvature k and torsion t are two ways to say the same:
 *
 *     k = r / (r² + p²)    t = p / (r² + p²)    r = k / (k² + t²)    p = t / (k² + t²)
 *
 * With the turning rate omega = 1 / sqrt(r² + p²) and the angle theta = omega * s of the arc length
 * s, the centre line is (r cos theta, r sin theta, p omega s - pi n p): n turns around the third
 * axis, centred on the origin.
 *
 * All geometry is single precision; steps that run in double say so. Every table has one entry of
 * three floats (x, y, z or red, green, blue) per vertex. A Vecteur of fewer than three coordinates
 * throws its own message.
 */
class Helix {
public:
    using Table = HelixTable::Triples;

    /** r = 6, p = 2, five turns; coloured by vertex. */
    Helix();

    /** The helix of a point (u1, u2, u3) of U space and its colour, see refresh_param(). */
    Helix(float u1, float u2, float u3, float red, float green, float blue);

    /**
     * @param x,y           radius and pitch, or curvature and torsion
     * @param turns         number of turns
     * @param tubePrecision vertices around one ring of the tube
     * @param fromRadiusPitch whether x and y are radius and pitch
     */
    Helix(float x, float y, float turns, unsigned int tubePrecision, bool fromRadiusPitch);

    // The conversions between the two pairs of parameters; none stores anything.
    float k_from_r_p() const;
    float t_from_r_p() const;
    float r_from_k_t() const;
    float p_from_k_t() const;

    float getRadius() const { return radius; }
    float getPitch() const { return pitch; }
    float getCurvature() const { return curvature; }
    float getTorsion() const { return torsion; }
    /** Turning rate per unit of arc length. */
    float getOmega() const { return omega; }
    /** Angle of the ribbon's direction from the normal towards the binormal, radians. */
    float getPhi() const { return phi; }
    /** Width of the ribbon. */
    float getRibRange() const { return ribRange; }
    /** Radius of the tube. */
    float getTubeR() const { return tubeR; }
    /** Number of turns. */
    float getNTurns() const { return nTurns; }
    /** Centre-line vertices per turn. */
    unsigned int getPrecisionLine() const { return precisionLine; }
    /** Vertices around one ring of the tube; the last repeats the first. */
    unsigned int getPrecisionTube() const { return precisionTube; }
    unsigned int getNbLineVertices() const { return nbLineVertices; }
    /** Coordinate c (0, 1, 2) of centre-line vertex i, unchecked. */
    float getLineVertex(int i, int c) const;
    /** The uniform colour of the tube; (0, 0, 0) means colour by vertex. */
    const FloatTriple& getHelixColor() const { return helixColor; }

    /** nbLineVertices entries. */
    const Table& getLineVertices() const { return tables.getLine().getVertices(); }
    const Table& getLineColors() const { return tables.getLine().getColors(); }
    /** precisionTube * nbLineVertices entries, ring after ring. */
    const Table& getTubeVertices() const { return tables.getTube().getVertices(); }
    const Table& getTubeColors() const { return tables.getTube().getColors(); }
    /** 2 * nbLineVertices entries, pairs of centre-line point and outer edge point. */
    const Table& getRibbonVertices() const { return tables.getRibbon().getVertices(); }
    const Table& getRibbonColors() const { return tables.getRibbon().getColors(); }

    // Setters of what is sampled. The counts take effect on the tables with init_tables(), which
    // must follow before the tables are used again, all values with generatePoints(). A negative or
    // undefined count is 0.
    void setRibRange(float width) { ribRange = width; }
    void setTubeR(float newRadius) { tubeR = newRadius; }
    void setPrecisionTube(int verticesPerRing);
    void setPrecisionLine(int verticesPerTurn);
    void setNTurns(float turns);

    /** The principal normal (-cos theta, -sin theta, 0) at arc length s: towards the axis. */
    Vecteur get_v(float s) const;

    /** The binormal (p omega sin theta, -p omega cos theta, r omega) at arc length s. */
    Vecteur get_b(float s) const;

    /** The ribbon's direction cos(phi) v + sin(phi) b. */
    Vecteur d1_from_v_b(Vecteur v, Vecteur b) const;

    /** The centre-line point at arc length s; its height is formed in double. */
    void computePositionForParams(float const& s, float (&out)[3]) const;

    /**
     * A tube point, center + (tubeR cos angle) v + (tubeR sin angle) b, summed in double.
     *
     * @param angle place on the ring, radians
     */
    void computePositionForParams(float (&center)[3], Vecteur v, Vecteur b, float (&out)[3],
                                  float const& angle) const;

    /** A point of the ribbon's outer edge, center + ribRange d, formed in double. */
    void computeRibbon(float (&out)[3], float (&center)[3], Vecteur d) const;

    /** The colour of a centre-line point: that of its position, see positionColor(). */
    void computeColorForPoint(float const (&pt)[3], float (&rgb)[3]) const;

    /**
     * The ribbon's angle for bending (u1, u2) with the curvature that is stored: the polar angle
     * from the u2 axis towards the u1 axis, in -pi/2 to 3 pi/2; u1 itself when the curvature is 0.
     */
    float phi_from_u(float u1, float u2) const;

    /**
     * Takes over bending (u1, u2), twisting u3 and a colour. The tables stay as they are.
     *
     * @return false when u1 = u2 = 0; the helix is then a straight rod
     */
    bool refresh_param(float u1, float u2, float u3, float red, float green, float blue);

    /**
     * Gives the chosen tables, vertices and colours alike, the size of the counts, all zero. They
     * wait to be filled.
     */
    void init_tables(bool line, bool tube, bool ribbon);

    /**
     * Fills the chosen tables, and those that wait to be filled. Tube and ribbon go along the
     * centre line as it was last sampled. The last centre-line vertex closes the n-th turn, the
     * last vertex of a ring repeats the first, and a whole ring has the colour of its centre point.
     *
     * Throws std::logic_error when a count was changed without init_tables().
     */
    void generatePoints(bool line, bool tube, bool ribbon);

    // New scene nodes of the tables as they are, see HelixNodes. Each throws std::logic_error when
    // a count was changed without init_tables().
    SoSeparator* DrawLine() const;
    SoSeparator* DrawTube() const;
    SoSeparator* DrawRibbon() const;

    /** Adds what is shown of a helix to a scene: tube and ribbon. */
    void drawParts(SoSeparator& root) const;

private:
    void updateOmega();
    void updateLineVertexCount();
    void sampleAll();
    HelixCurve curve() const;
    HelixProfile profile() const;
    HelixTables::Counts counts() const;

    float radius = 6.0F;
    float pitch = 2.0F;
    float curvature = 0.15F;
    float torsion = 0.05F;
    float omega = 0.15811388F;
    float phi = 1.0F;
    float ribRange = 0.05F;
    float nTurns = 5.0F;
    float tubeR = 0.01F;
    unsigned int precisionLine = 50;
    unsigned int nbLineVertices = 250;
    unsigned int precisionTube = 16;
    HelixTables tables;
    FloatTriple helixColor{};
};
