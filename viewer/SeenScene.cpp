#include "viewer/SeenScene.h"

#include <Inventor/nodes/SoCamera.h>
#include <Inventor/nodes/SoLight.h>
#include <Inventor/nodes/SoSeparator.h>
#include <Inventor/nodes/SoShapeHints.h>

void SeenScene::lightBothSides(SoGroup& headlightCameraAndScene) {
    headlightCameraAndScene.insertChild(SceneNodes::createTwoSidedLighting(), 0);
}

NodePointer<SoSeparator> SeenScene::around(SoNode* scene, SoLight* headlight, SoCamera* camera) {
    NodePointer<SoSeparator> seen(new SoSeparator);
    if (headlight != nullptr) {
        seen->addChild(headlight);
    }
    seen->addChild(camera);
    seen->addChild(scene);
    lightBothSides(*seen);
    return seen;
}
