#include "batch/ModelSet.h"

#include "batch/Refusal.h"

namespace {

float single(double value) {
    return static_cast<float>(value);
}

/** A surface of the start values. */
Hyperboloid startSurface(int space) {
    const HyperboloidParameters start;
    return {single(start.K1),  single(start.K2),  single(start.K3),
            single(start.K13), single(start.K23), single(start.U1),
            single(start.U2),  single(start.U3),  space};
}

VertexGrid gridOf(const HyperboloidParameters& set) {
    return {set.horizontalPrecision, set.verticalPrecision};
}

bool isOn(const VertexGrid& grid, const ColumnAndRow& place) {
    return place.column >= 0 && place.column < grid.columns && place.row >= 0 &&
           place.row < grid.rows;
}

bool isOn(const VertexGrid& grid, const HelixPoint& point) {
    if (const int* index = std::get_if<int>(&point)) {
        return *index >= 0 && static_cast<std::size_t>(*index) < grid.vertexCount();
    }
    const auto* place = std::get_if<ColumnAndRow>(&point);
    return place == nullptr || isOn(grid, *place);
}

/** The index of the vertex that a point names, if it names one. */
std::optional<int> vertexOf(const HelixPoint& point, const VertexGrid& grid) {
    if (const int* index = std::get_if<int>(&point)) {
        return *index;
    }
    if (const auto* place = std::get_if<ColumnAndRow>(&point)) {
        return grid.index(place->column, place->row);
    }
    return std::nullopt;
}

/** The vertex of the surface, or a point with the colour 0, which stands for a helix coloured by
 * its own vertices. */
SurfaceVertex placeOf(const HelixPoint& point, const std::optional<int>& vertex,
                      const Hyperboloid& u) {
    return vertex ? u.surfaceVertex(*vertex) : SurfaceVertex{0, std::get<FloatTriple>(point), {}};
}

} // namespace

std::string ModelSet::refusal(const HyperboloidParameters& set, const BatchOptions& options) {
    if (!isOn(gridOf(set), options.helixPoint)) {
        return "the vertex is not on the grid of " + std::to_string(set.horizontalPrecision) +
               " columns and " + std::to_string(set.verticalPrecision) + " rows";
    }
    return Refusal::brokenCondition(set);
}

ModelSet::ModelSet(const HyperboloidParameters& set, const BatchOptions& options)
    : surfaces{startSurface(Hyperboloid::USPACE), startSurface(Hyperboloid::XSPACE),
               startSurface(Hyperboloid::MSPACE)} {
    shapeSurfaces(set, options.appearance);
    shapeHelix(options);
}

void ModelSet::shapeSurfaces(const HyperboloidParameters& set, const Appearance& appearance) {
    const Hyperboloid& u = surface(Document::U);
    // In this order: the colours are those of the U surface.
    for (Hyperboloid& surface : surfaces) {
        if (appearance.transparency) {
            surface.setTransparencyPercent(*appearance.transparency);
        }
        if (appearance.lightness) {
            surface.setLightnessPercent(*appearance.lightness);
        }
        if (appearance.saturation) {
            surface.setSaturationPercent(*appearance.saturation);
        }
        surface.setParameters(set);
        surface.init_tables();
        surface.generateHyperboloidPoints(true, true);
        if (&surface != &u) {
            surface.takeColorsFrom(u);
        }
    }
}

void ModelSet::shapeHelix(const BatchOptions& options) {
    const Hyperboloid& u = surface(Document::U);
    helixVertex = vertexOf(options.helixPoint, u.grid());
    const auto [index, point, color] = placeOf(options.helixPoint, helixVertex, u);
    Helix& helix = shownHelix.emplace(point.x, point.y, point.z, color.x, color.y, color.z);
    const auto& parameters = HelixParameter::all();
    for (std::size_t i = 0; i < parameters.size(); ++i) {
        if (options.helixValues[i]) {
            parameters[i].setIn(helix, *options.helixValues[i]);
        }
    }
    helix.init_tables(true, true, true);
    helix.generatePoints(true, true, true);
}
