#include "app/ImageExport.h"

#include "export/PictureRenderer.h"
#include "export/PrintedScene.h"
#include "viewer/CurrentContext.h"
#include "viewer/LightUnits.h"
#include "viewer/OffscreenContexts.h"

#include <Inventor/Qt/viewers/SoQtExaminerViewer.h>
#include <Inventor/SoOffscreenRenderer.h>
#include <Inventor/actions/SoGLRenderAction.h>
#include <Inventor/nodes/SoCallback.h>
#include <Inventor/nodes/SoDirectionalLight.h>
#include <Inventor/nodes/SoSeparator.h>
#include <QGLWidget>

namespace {

LightUnits lightUnitsOf(const SoQtExaminerViewer& viewer) {
    const CurrentContext previous;
    auto* widget = static_cast<QGLWidget*>(viewer.getGLWidget());
    widget->makeCurrent();
    const LightUnits units = LightUnits::ofCurrentContext();
    previous.reinstate(*widget->context()->contextHandle());
    return units;
}

void applyLightUnits(void* units, SoAction* action) {
    if (action->isOfType(SoGLRenderAction::getClassTypeId())) {
        static_cast<const LightUnits*>(units)->apply();
    }
}

SoCallback* createCallback(LightUnits& units) {
    auto* callback = new SoCallback;
    callback->setCallback(applyLightUnits, &units);
    return callback;
}

/** The scene as the viewer shows it, prepared for print. */
NodePointer<SoSeparator> asSeenBy(const SoQtExaminerViewer& viewer, SoNode* root, int dotsPerInch) {
    SoLight* headlight = viewer.isHeadlight() ? viewer.getHeadlight() : nullptr;
    const float lineWidth =
        static_cast<float>(dotsPerInch) / SoOffscreenRenderer::getScreenPixelsPerInch();
    return PrintedScene::of(root, {*viewer.getCamera(), headlight, viewer.getViewportRegion()},
                            lineWidth);
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
    LightUnits units = lightUnitsOf(*viewer);
    const NodePointer<SoSeparator> picture = asSeenBy(*viewer, root, dotsPerInch);
    picture->insertChild(createCallback(units), 0);

    OffscreenContexts::install();
    PictureRenderer renderer({size, dotsPerInch},
                             {viewer->getBackgroundColor(), viewer->getTransparencyType()});
    return renderer.render(*picture) && renderer.writePostScript(file);
}
