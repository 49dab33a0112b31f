#include "app/ImageExport.h"

#include "app/EpsHeader.h"
#include "viewer/CurrentContext.h"
#include "viewer/FittedCamera.h"
#include "viewer/LightUnits.h"
#include "viewer/OffscreenContexts.h"
#include "viewer/SeenScene.h"

#include <Inventor/Qt/viewers/SoQtExaminerViewer.h>
#include <Inventor/SoOffscreenRenderer.h>
#include <Inventor/actions/SoGLRenderAction.h>
#include <Inventor/nodes/SoCallback.h>
#include <Inventor/nodes/SoCamera.h>
#include <Inventor/nodes/SoDirectionalLight.h>
#include <Inventor/nodes/SoDrawStyle.h>
#include <Inventor/nodes/SoSeparator.h>
#include <QGLWidget>
#include <cstdlib>
#include <string_view>

namespace {

/** What is written to a stream, in memory. */
class MemoryStream {
public:
    MemoryStream()
        : stream(open_memstream(&data, &size)) {}
    ~MemoryStream() {
        if (stream != nullptr) {
            std::fclose(stream);
        }
        std::free(data);
    }
    MemoryStream(const MemoryStream&) = delete;
    MemoryStream& operator=(const MemoryStream&) = delete;

    /** Null when there is no memory. */
    std::FILE* get() const { return stream; }

    /** All that was written, empty when some of it did not find room. */
    std::string_view content() const {
        const bool whole = std::fflush(stream) == 0 && std::ferror(stream) == 0;
        return whole ? std::string_view(data, size) : std::string_view();
    }

private:
    char* data = nullptr;
    std::size_t size = 0;
    std::FILE* stream;
};

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

/** Lines and points that are one pixel wide on the screen, as wide in inches in print. */
SoDrawStyle* createWidths(int dotsPerInch) {
    auto* style = new SoDrawStyle;
    const float width =
        static_cast<float>(dotsPerInch) / SoOffscreenRenderer::getScreenPixelsPerInch();
    style->lineWidth = width;
    style->pointSize = width;
    style->setOverride(TRUE);
    style->style.setIgnored(TRUE);
    style->linePattern.setIgnored(TRUE);
    style->linePatternScaleFactor.setIgnored(TRUE);
    return style;
}

/** The scene under the viewer's light and camera, which are not part of the scene itself. */
NodePointer<SoSeparator> asSeenBy(const SoQtExaminerViewer& viewer, SoNode* root) {
    SoLight* headlight = viewer.isHeadlight() ? viewer.getHeadlight() : nullptr;
    const NodePointer<SoCamera> camera =
        FittedCamera::copyOf(*viewer.getCamera(), *root, viewer.getViewportRegion());
    return SeenScene::around(root, headlight, camera.get());
}

/** Renders a picture and writes it as the scene library does. */
bool render(SoNode& picture, const SoQtExaminerViewer& viewer, const SbViewportRegion& region,
            std::FILE* file) {
    OffscreenContexts::install();
    SoOffscreenRenderer renderer(region);
    renderer.setBackgroundColor(viewer.getBackgroundColor());
    renderer.getGLRenderAction()->setTransparencyType(viewer.getTransparencyType());
    return renderer.render(&picture) != FALSE && renderer.writeToPostScript(file) != FALSE;
}

bool write(std::string_view text, std::FILE* file) {
    return std::fwrite(text.data(), 1, text.size(), file) == text.size();
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

    LightUnits units = lightUnitsOf(*viewer);
    const NodePointer<SoSeparator> picture(new SoSeparator);
    picture->addChild(createCallback(units));
    picture->addChild(createWidths(dotsPerInch));
    picture->addChild(asSeenBy(*viewer, root).get());

    const MemoryStream rendered;
    if (rendered.get() == nullptr || !render(*picture, *viewer, region, rendered.get())) {
        return false;
    }
    const auto corrected = EpsHeader::correct(rendered.content(), size, dotsPerInch);
    return corrected && write(corrected->header, file) && write(corrected->rest, file) &&
           std::fflush(file) == 0;
}
