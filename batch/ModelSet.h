#pragma once

#include "batch/BatchOptions.h"
#include "helix/Helix.h"
#include "hyperboloid/Hyperboloid.h"

#include <array>
#include <optional>
#include <string>

/**
 * The models of the four documents, as a viewer just started has them once a set of parameters has
 * been entered and its helix has been given a point: what degenerate parameters leave as it was is
 * as the start values have left it.
 */
class ModelSet {
public:
    /** The models of a set that the options can be had with, see refusal(). */
    ModelSet(const HyperboloidParameters& set, const BatchOptions& options);
    ~ModelSet() = default;
    ModelSet(const ModelSet&) = delete;
    ModelSet& operator=(const ModelSet&) = delete;

    /** Why the options cannot be had with a set; empty when they can. */
    static std::string refusal(const HyperboloidParameters& set, const BatchOptions& options);

    /** The surface of a document other than the helix. */
    Hyperboloid& surface(Document document) {
        return surfaces.at(static_cast<std::size_t>(document));
    }
    const Helix& helix() const { return *shownHelix; }
    /** The vertex that the helix belongs to; none for a point that was given by its coordinates. */
    std::optional<int> vertex() const { return helixVertex; }

private:
    void shapeSurfaces(const HyperboloidParameters& set, const Appearance& appearance);
    void shapeHelix(const BatchOptions& options);

    /** In the spaces U, X and M. */
    std::array<Hyperboloid, 3> surfaces;
    std::optional<int> helixVertex;
    std::optional<Helix> shownHelix;
};
