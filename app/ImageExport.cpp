#include "app/ImageExport.h"

#include "viewer/OffscreenContexts.h"
#include "viewer/SeenScene.h"

#include <Inventor/Qt/viewers/SoQtExaminerViewer.h>
#include <Inventor/SoOffscreenRenderer.h>
#include <Inventor/actions/SoGLRenderAction.h>
#include <Inventor/nodes/SoCamera.h>
#include <Inventor/nodes/SoDirectionalLight.h>
#include <Inventor/nodes/SoSeparator.h>

namespace {

/** The scene under the viewer's light and camera, which are not part of the scene itself. */
NodePointer<SoSeparator> asSeenBy(const SoQtExaminerViewer& viewer, SoNode* root) {
    SoLight* headlight = viewer.isHeadlight() ? viewer.getHeadlight() : nullptr;
    return SeenScene::around(root, headlight, viewer.getCamera());
}

} // namespace

SbVec2s ImageExport::printSize(const SbVec2s& screenSize, float screenPixelsPerInch,
                               int dotsPerInch) {
    const auto inPrint = [&](float pixels) {
        return static_cast<short>(static_cast<int>(pixels / screenPixelsPerInch) * dotsPerInch);
    };
    return {inPrint(screenSize[0]), inPrint(screenSize[1])};
}

bool ImageExport::printToPostScript(SoNode* root, std::FILE* file, SoQtExaminerViewer* viewer,
                                    int dotsPerInch) {
    const SbVec2s size = printSize(viewer->getViewportRegion().getViewportSizePixels(),
                                   SoOffscreenRenderer::getScreenPixelsPerInch(), dotsPerInch);
    if (size[0] <= 0 || size[1] <= 0) {
        return false;
    }
    SbViewportRegion region;
    region.setWindowSize(size);
    region.setPixelsPerInch(static_cast<float>(dotsPerInch));

    OffscreenContexts::install();
    SoOffscreenRenderer renderer(region);
    renderer.setBackgroundColor(viewer->getBackgroundColor());
    renderer.getGLRenderAction()->setTransparencyType(viewer->getTransparencyType());
    if (renderer.render(asSeenBy(*viewer, root).get()) == FALSE) {
        return false;
    }
    return renderer.writeToPostScript(file) != FALSE && std::fflush(file) == 0;
}
