#pragma once

#include <Inventor/SbMatrix.h>
#include <Inventor/SbVec2s.h>
#include <Inventor/SbVec4f.h>
#include <Inventor/nodes/SoNode.h>
#include <vector>

class SoGLRenderAction;

/**
 * Everything that the picture of a part of a scene depends on, as the scene library knows it: two
 * pictures of the part are the same when their sights are.
 */
class SurfaceSight {
public:
    /** The sight of nothing, which no picture is of. */
    SurfaceSight() = default;

    /**
     * The sight of a child of the node that the action has come to.
     *
     * What the node's and the child's elder brothers have set counts with all their contents,
     * unless they are separators, which set nothing but lights.
     */
    SurfaceSight(SoGLRenderAction& action, const SoNode& child);

    bool operator==(const SurfaceSight& other) const;
    bool operator!=(const SurfaceSight& other) const { return !(*this == other); }

    /** The size of the window that is drawn into, in pixels. */
    const SbVec2s& windowSize() const { return window; }

private:
    void addElderBrothers(const SoNode& parent, const SoNode* child);

    /** Of the part and of what sets its look; a node's number changes with its contents. */
    std::vector<SbUniqueId> nodes;
    SbMatrix projection = SbMatrix::identity();
    SbMatrix viewing = SbMatrix::identity();
    SbVec2s window{0, 0};
    SbVec2s origin{0, 0};
    SbVec2s viewport{0, 0};
    SbVec4f background{0, 0, 0, 0};
};
