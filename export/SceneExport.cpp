#include "export/SceneExport.h"

#include "scene/SceneNodes.h"

#include <Inventor/VRMLnodes/SoVRMLGroup.h>
#include <Inventor/actions/SoToVRML2Action.h>
#include <Inventor/actions/SoWriteAction.h>

namespace {

void writeNodes(SoNode& scene, SoOutput& output) {
    SoWriteAction action(&output);
    action.apply(&scene);
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
    conversion.apply(&scene);
    const NodePointer<SoVRMLGroup> converted(conversion.getVRML2SceneGraph());
    output.setHeaderString("#VRML V2.0 utf8");
    writeNodes(*converted, output);
}
