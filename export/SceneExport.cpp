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

/** Empties the groups that a node of a type makes lie nowhere. */
template <typename Node>
void emptyWhatIsNowhere(SoNode& scene) {
    SoSearchAction search;
    search.setType(Node::getClassTypeId());
    search.setInterest(SoSearchAction::ALL);
    search.apply(&scene);
    const SoPathList& paths = search.getPaths();
    std::vector<NodePointer<SoGroup>> parts;
    for (int i = 0; i < paths.getLength(); ++i) {
        const SoPath& path = *paths[i];
        if (!isSomewhere(*static_cast<const Node*>(path.getTail()))) {
            parts.emplace_back(static_cast<SoGroup*>(path.getNodeFromTail(1)));
        }
    }
    for (const NodePointer<SoGroup>& part : parts) {
        part->removeAllChildren();
    }
}

} // namespace

void SceneExport::write(SoNode& scene, Format format, std::FILE* file) {
    SoOutput output;
    output.setFilePointer(file);
    if (format == Format::openInventor) {
        writeNodes(scene, output);
        return;
    }
    SoToVRML2Action conversion;
    const NodePointer<SoNode> copy(scene.copy());
    emptyWhatIsNowhere<SoCoordinate3>(*copy);
    emptyWhatIsNowhere<SoTransform>(*copy);
    conversion.apply(copy.get());
    const NodePointer<SoVRMLGroup> converted(conversion.getVRML2SceneGraph());
    output.setHeaderString("#VRML V2.0 utf8");
    writeNodes(*converted, output);
}
