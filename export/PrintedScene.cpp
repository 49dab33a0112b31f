#include "export/PrintedScene.h"

#include "viewer/FittedCamera.h"
#include "viewer/SeenScene.h"

#include <Inventor/nodes/SoCamera.h>
#include <Inventor/nodes/SoDrawStyle.h>
#include <Inventor/nodes/SoLight.h>
#include <Inventor/nodes/SoSeparator.h>

namespace {

/** Gives all lines and points a width, whatever the scene says, and leaves their style to it. */
SoDrawStyle* createWidths(float width) {
    auto* style = new SoDrawStyle;
    style->lineWidth = width;
    style->pointSize = width;
    style->setOverride(TRUE);
    style->style.setIgnored(TRUE);
    style->linePattern.setIgnored(TRUE);
    style->linePatternScaleFactor.setIgnored(TRUE);
    return style;
}

} // namespace

NodePointer<SoSeparator> PrintedScene::of(SoNode* scene, const View& view, float lineWidth) {
    const NodePointer<SoCamera> camera = FittedCamera::copyOf(view.camera, *scene, view.region);
    NodePointer<SoSeparator> picture(new SoSeparator);
    picture->addChild(createWidths(lineWidth));
    picture->addChild(SeenScene::around(scene, view.headlight, camera.get()).get());
    return picture;
}
