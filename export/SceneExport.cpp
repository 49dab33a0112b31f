#include "export/SceneExport.h"

#include "scene/Finite.h"
#include "scene/SceneNodes.h"

#include <Inventor/SoPath.h>
#include <Inventor/VRMLnodes/SoVRMLGroup.h>
#include <Inventor/actions/SoSearchAction.h>
#include <Inventor/actions/SoToVRML2Action.h>
#include <Inventor/actions/SoWriteAction.h>
#include <Inventor/nodes/SoCoordinate3.h>
#include <algorithm>

namespace {

void writeNodes(SoNode& scene, SoOutput& output) {
    SoWriteAction action(&output);
    action.apply(&scene);
}

bool hasFinitePoints(const SoCoordinate3& coordinates) {
    const SbVec3f* const points = coordinates.point.getValues(0);
    return std::all_of(points, points + coordinates.point.getNum(),
                       [](const SbVec3f& point) { return isFinite(point); });
}

bool hasFinitePoints(SoNode& scene) {
    SoSearchAction search;
    search.setType(SoCoordinate3::getClassTypeId());
    search.setInterest(SoSearchAction::ALL);
    search.apply(&scene);
    const SoPathList& paths = search.getPaths();
    for (int i = 0; i < paths.getLength(); ++i) {
        if (!hasFinitePoints(*static_cast<const SoCoordinate3*>(paths[i]->getTail()))) {
            return false;
        }
    }
    return true;
}

} // namespace

bool SceneExport::write(SoNode& scene, Format format, std::FILE* file) {
    SoOutput output;
    output.setFilePointer(file);
    if (format == Format::openInventor) {
        writeNodes(scene, output);
        return true;
    }
    if (!hasFinitePoints(scene)) {
        return false;
    }
    SoToVRML2Action conversion;
    conversion.apply(&scene);
    const NodePointer<SoVRMLGroup> converted(conversion.getVRML2SceneGraph());
    output.setHeaderString("#VRML V2.0 utf8");
    writeNodes(*converted, output);
    return true;
}
