#include "viewer/Backdrop.h"

#include "scene/SceneNodes.h"

#include <Inventor/nodes/SoFont.h>
#include <Inventor/nodes/SoMaterial.h>
#include <Inventor/nodes/SoOrthographicCamera.h>
#include <Inventor/nodes/SoSeparator.h>
#include <Inventor/nodes/SoText3.h>
#include <Inventor/nodes/SoTransform.h>
#include <Inventor/nodes/SoUnits.h>

namespace {

SoOrthographicCamera* createCamera() {
    auto* camera = new SoOrthographicCamera;
    camera->position.setValue(0, 0, 1);
    camera->nearDistance = 0.5F;
    camera->farDistance = 1.5F;
    camera->height = 10;
    return camera;
}

SoUnits* createUnits(SoUnits::Units value) {
    auto* units = new SoUnits;
    units->units = value;
    return units;
}

} // namespace

SoSeparator* Backdrop::create() {
    auto* corner = new SoTransform;
    corner->translation.setValue(-12000, 8000, 0);
    auto* red = new SoMaterial;
    red->diffuseColor.setValue(1, 0, 0);
    auto* font = new SoFont;
    font->name = "Times-Roman";
    font->size = 0.5F;
    auto* greeting = new SoText3;
    greeting->string = "Ciao";

    SoSeparator* background = SceneNodes::createSeparator("Background");
    background->addChild(createCamera());
    background->addChild(createUnits(SoUnits::POINTS));
    background->addChild(corner);
    background->addChild(createUnits(SoUnits::METERS));
    background->addChild(red);
    background->addChild(font);
    background->addChild(greeting);
    return background;
}
