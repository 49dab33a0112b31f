#pragma once

#include "math/Triple.h"

#include <cstddef>
#include <utility>
#include <vector>

/** The vertices of one part of a helix and their colours; knows whether it waits to be filled. */
class HelixTable {
public:
    using Triples = std::vector<FloatTriple>;

    /** Takes a size; all entries are zero and wait to be filled. */
    void init(std::size_t count) {
        // Both are made before either takes its place: they never differ in size.
        Triples newVertices(count);
        Triples newColors(count);
        vertices = std::move(newVertices);
        colors = std::move(newColors);
        filled = false;
    }

    void set(std::size_t i, const FloatTriple& vertex, const FloatTriple& color) {
        vertices[i] = vertex;
        colors[i] = color;
    }

    /** Says that every entry has been set since the table took its size. */
    void markFilled() { filled = true; }

    bool isFilled() const { return filled; }
    std::size_t size() const { return vertices.size(); }
    const Triples& getVertices() const { return vertices; }
    const Triples& getColors() const { return colors; }

private:
    Triples vertices;
    Triples colors;
    bool filled = false;
};
