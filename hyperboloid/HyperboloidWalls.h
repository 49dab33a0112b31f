#pragma once

#include <Inventor/SbVec3f.h>
#include <Inventor/SbVec4d.h>
#include <functional>
#include <vector>

/**
 * The quadrilaterals of the surface's grid in two walls, the far one to be drawn first: what is
 * transparent shows only what has been drawn before it.
 *
 * Each quadrilateral is in one wall, by the place of its middle. What is not finite is near.
 */
class HyperboloidWalls {
public:
    /** Draws the quadrilaterals `first` to `last` - 1 of a strip. */
    using DrawRun = std::function<void(int strip, int first, int last)>;

    /**
     * @param points  the vertices, strip after strip, the last strip's second row included
     * @param rows    vertices along a strip
     * @param columns strips and one
     * @param plane   (a, b, c, d): a x + b y + c z + d is negative at the far wall
     */
    HyperboloidWalls(const SbVec3f* points, int rows, int columns, const SbVec4d& plane);

    /** Draws the far wall, then the near wall: each as the longest runs within the strips. */
    void draw(const DrawRun& drawRun) const;

private:
    void drawWall(bool far, const DrawRun& drawRun) const;
    [[nodiscard]] bool isFar(int strip, int quad) const;

    int quadsPerStrip;
    int strips;
    /** On which side of the plane each vertex is, and how far. */
    std::vector<double> sides;
};
