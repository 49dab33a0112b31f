#include "export/SceneExport.h"

#include "scene/Finite.h"
#include "scene/SceneNodes.h"

#include <Inventor/SoPath.h>
#include <Inventor/VRMLnodes/SoVRMLGroup.h>
#include <Inventor/actions/SoSearchAction.h>
#include <Inventor/actions/SoToVRML2Action.h>
#include <Inventor/actions/SoWriteAction.h>
#include <Inventor/nodes/SoCoordinate3.h>
#include <Inventor/nodes/SoGroup.h>
#include <Inventor/nodes/SoTransform.h>
#include <algorithm>
#include <cmath>
#include <vector>

namespace {

void writeNodes(SoNode& scene, SoOutput& output) {
    SoWriteAction action(&output);
    action.apply(&scene);
}

bool isSomewhere(const SoCoordinate3& coordinates) {
    const SbVec3f* const points = coordinates.point.getValues(0);
    return std::all_of(points, points + coordinates.point.getNum(),
                       [](const SbVec3f& point) { return isFinite(point); });
}

bool isSomewhere(const SoTransform& place) {
    SbVec3f axis;
    float angle = 0;
    place.rotation.getValue(axis, angle);
    return isFinite(place.translation.getValue()) && isFinite(axis) && std::isfinite(angle);
}

using Groups = std::vector<NodePointer<SoGroup>>;

/** Adds the groups that a node of a type makes lie nowhere. */
template <typename Node>
void addNowhere(Groups& groups, SoNode& scene) {
    SoSearchAction search;
    search.setType(Node::getClassTypeId());
    search.setInterest(SoSearchAction::ALL);
    search.apply(&scene);
    const SoPathList& paths = search.getPaths();
    for (int i = 0; i < paths.getLength(); ++i) {
        const SoPath& path = *paths[i];
        if (!isSomewhere(*static_cast<const Node*>(path.getTail()))) {
            groups.emplace_back(static_cast<SoGroup*>(path.getNodeFromTail(1)));
        }
    }
}

Groups groupsNowhere(SoNode& scene) {
    Groups groups;
    addNowhere<SoCoordinate3>(groups, scene);
    addNowhere<SoTransform>(groups, scene);
    return groups;
}

/**
 * The scene itself where all of it is somewhere, or else a copy of what is; the library writes a
 * copy with more fields than its original.
 */
NodePointer<SoNode> partSomewhere(SoNode& scene) {
    if (groupsNowhere(scene).empty()) {
        return {&scene};
    }
    NodePointer<SoNode> copy(scene.copy());
    for (const NodePointer<SoGroup>& group : groupsNowhere(*copy)) {
        group->removeAllChildren();
    }
    return copy;
}

} // namespace

void SceneExport::write(SoNode& scene, Format format, std::FILE* file) {
    SoOutput output;
    output.setFilePointer(file);
    const NodePointer<SoNode> written = partSomewhere(scene);
    if (format == Format::openInventor) {
        writeNodes(*written, output);
        return;
    }
    SoToVRML2Action conversion;
    conversion.apply(written.get());
    const NodePointer<SoVRMLGroup> converted(conversion.getVRML2SceneGraph());
    output.setHeaderString("#VRML V2.0 utf8");
    writeNodes(*converted, output);
}
