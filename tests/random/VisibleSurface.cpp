#include "tests/random/VisibleSurface.h"

#include "helix/HelixFrame.h"
#include "hyperboloid/HyperboloidFrame.h"
#include "viewer/SoQtGeneralViewer.h"

#include <Inventor/nodes/SoCamera.h>
#include <algorithm>
#include <cmath>
#include <optional>
#include <vector>

namespace {

/** In square pixels; a surface folded over itself many times covers much less of the screen. */
constexpr float largeArea = 4000;

/** The part of the view that is looked at, from its upper left. */
constexpr float lookedAt = 0.6F;
constexpr float margin = 0.05F;

constexpr float darkest = 0.2F;
constexpr double mostTransparent = 0.7;

struct Grid {
    int rows;
    int columns;
    std::vector<SbVec3f> points;
    std::vector<float> brightness;
};

float brightest(float red, float green, float blue) {
    return std::max({red, green, blue});
}

Grid gridOf(const HyperboloidFrame& frame) {
    Grid grid{static_cast<int>(frame.getNumRow()), static_cast<int>(frame.getNumCol()), {}, {}};
    for (int i = 0; i < grid.rows * grid.columns; ++i) {
        grid.points.emplace_back(frame.getVertex(i, 0), frame.getVertex(i, 1),
                                 frame.getVertex(i, 2));
        grid.brightness.push_back(
            brightest(frame.getColor(i, 0), frame.getColor(i, 1), frame.getColor(i, 2)));
    }
    return grid;
}

Grid gridOf(const HelixFrame& frame) {
    const Helix& helix = frame.getHelix();
    Grid grid{static_cast<int>(helix.getPrecisionTube()),
              static_cast<int>(helix.getNbLineVertices()),
              {},
              {}};
    const auto& color = helix.getHelixColor();
    const bool uniform = color != FloatTriple{0, 0, 0};
    for (std::size_t i = 0; i < helix.getTubeVertices().size(); ++i) {
        const auto& point = helix.getTubeVertices()[i];
        const auto& own = uniform ? color : helix.getTubeColors()[i];
        grid.points.emplace_back(point.x, point.y, point.z);
        grid.brightness.push_back(brightest(own.x, own.y, own.z));
    }
    return grid;
}

/** Whether what hides the tube is itself seen: the ribbon of a white tube is black. */
bool hasBrightRibbon(const Helix& helix) {
    const auto& [red, green, blue] = helix.getHelixColor();
    return brightest(1 - red, 1 - green, 1 - blue) > darkest;
}

/** Where points are seen in pixels; nothing for those that are off what is looked at. */
class Projection {
public:
    explicit Projection(const SoQtGeneralViewer& viewer)
        : region(viewer.getViewportRegion())
        , volume(viewer.getCamera()->getViewVolume(region.getViewportAspectRatio())) {}

    std::optional<SbVec2f> operator()(const SbVec3f& point) const {
        SbVec3f seen;
        volume.projectToScreen(point, seen);
        const bool inside = seen[0] > margin && seen[0] < lookedAt && 1 - seen[1] > margin &&
                            1 - seen[1] < lookedAt && seen[2] > margin && seen[2] < 1 - margin;
        if (!inside) {
            return std::nullopt;
        }
        const SbVec2s size = region.getViewportSizePixels();
        return SbVec2f(seen[0] * static_cast<float>(size[0]),
                       seen[1] * static_cast<float>(size[1]));
    }

private:
    SbViewportRegion region;
    SbViewVolume volume;
};

float areaOf(const std::array<std::optional<SbVec2f>, 4>& corners) {
    float twice = 0;
    for (std::size_t i = 0; i < corners.size(); ++i) {
        const auto& a = corners[i];
        const auto& b = corners[(i + 1) % corners.size()];
        if (!a || !b) {
            return 0;
        }
        twice += (*a)[0] * (*b)[1] - (*a)[1] * (*b)[0];
    }
    return std::abs(twice) / 2;
}

float visibleArea(const Grid& grid, const Projection& project) {
    std::vector<std::optional<SbVec2f>> seen;
    for (std::size_t i = 0; i < grid.points.size(); ++i) {
        seen.push_back(grid.brightness[i] > darkest ? project(grid.points[i]) : std::nullopt);
    }
    float area = 0;
    for (int column = 0; column + 1 < grid.columns; ++column) {
        for (int row = 0; row + 1 < grid.rows; ++row) {
            const int index = row + column * grid.rows;
            const auto corner = static_cast<std::size_t>(index);
            const auto next = corner + static_cast<std::size_t>(grid.rows);
            area += areaOf({seen[corner], seen[corner + 1], seen[next + 1], seen[next]});
        }
    }
    return area;
}

} // namespace

bool VisibleSurface::isLarge(const SoQtGeneralViewerFrame& frame) {
    const Projection project(*frame.getViewer());
    if (const auto* hyperboloid = dynamic_cast<const HyperboloidFrame*>(&frame)) {
        return hyperboloid->getTransparency() < mostTransparent &&
               visibleArea(gridOf(*hyperboloid), project) > largeArea;
    }
    const auto* helix = dynamic_cast<const HelixFrame*>(&frame);
    return helix != nullptr && hasBrightRibbon(helix->getHelix()) &&
           visibleArea(gridOf(*helix), project) > largeArea;
}
