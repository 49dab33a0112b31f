#include "viewer/SurfaceSight.h"

#include <Inventor/SoPath.h>
#include <Inventor/actions/SoGLRenderAction.h>
#include <Inventor/elements/SoProjectionMatrixElement.h>
#include <Inventor/elements/SoViewingMatrixElement.h>
#include <Inventor/elements/SoViewportRegionElement.h>
#include <Inventor/misc/SoChildList.h>
#include <Inventor/nodes/SoCamera.h>
#include <Inventor/nodes/SoSeparator.h>
#include <Inventor/system/gl.h>
#include <array>

SurfaceSight::SurfaceSight(SoGLRenderAction& action, const SoNode& child) {
    const SoPath& path = *action.getCurPath();
    const int last = path.getLength() - 1;
    for (int i = 0; i < last; ++i) {
        addElderBrothers(*path.getNode(i), path.getNode(i + 1));
    }
    addElderBrothers(*path.getNode(last), &child);
    nodes.push_back(child.getNodeId());

    SoState* state = action.getState();
    projection = SoProjectionMatrixElement::get(state);
    viewing = SoViewingMatrixElement::get(state);
    const SbViewportRegion& region = SoViewportRegionElement::get(state);
    window = region.getWindowSize();
    origin = region.getViewportOriginPixels();
    viewport = region.getViewportSizePixels();
    std::array<float, 4> cleared{};
    glGetFloatv(GL_COLOR_CLEAR_VALUE, cleared.data());
    background.setValue(cleared.data());
}

void SurfaceSight::addElderBrothers(const SoNode& parent, const SoNode* child) {
    const SoChildList* children = parent.getChildren();
    for (int i = 0; children != nullptr && (*children)[i] != child; ++i) {
        const SoNode* brother = (*children)[i];
        if (!brother->isOfType(SoSeparator::getClassTypeId()) &&
            !brother->isOfType(SoCamera::getClassTypeId())) {
            nodes.push_back(brother->getNodeId());
        }
    }
}

bool SurfaceSight::operator==(const SurfaceSight& other) const {
    return nodes == other.nodes && projection == other.projection && viewing == other.viewing &&
           window == other.window && origin == other.origin && viewport == other.viewport &&
           background == other.background;
}
