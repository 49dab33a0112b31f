#include "viewer/DocumentScene.h"

#include "viewer/Lights.h"
#include "viewer/ShaderPrograms.h"

#include <Inventor/actions/SoSearchAction.h>
#include <Inventor/nodes/SoDrawStyle.h>
#include <Inventor/nodes/SoEnvironment.h>
#include <Inventor/nodes/SoSeparator.h>
#include <Inventor/nodes/SoShaderProgram.h>
#include <Inventor/nodes/SoSwitch.h>

namespace {

constexpr float ambientIntensity = 0.2F;
constexpr float thinLine = 0.125F;

/** The children of shadingSwitch. */
constexpr int phongChild = 0;
constexpr int solidChild = 1;

SoSeparator* createSeparator(SoNode* firstChild) {
    auto* separator = new SoSeparator;
    separator->addChild(firstChild);
    return separator;
}

} // namespace

DocumentScene::DocumentScene()
    : root(new DocumentRoot)
    , phongProgram(ShaderPrograms::createPhong())
    , solidProgram(ShaderPrograms::createSolid())
    , drawStyle(new SoDrawStyle)
    , solidSeparator(createSeparator(solidProgram))
    , phongSeparator(createSeparator(phongProgram))
    , drawStyleSeparator(createSeparator(drawStyle))
    , shadingSwitch(new SoSwitch) {
    drawStyle->lineWidth = thinLine;
    shadingSwitch->addChild(phongProgram);
    shadingSwitch->addChild(solidProgram);
    shadingSwitch->whichChild = phongChild;
    drawStyleSeparator->addChild(shadingSwitch);
    root->addChild(Lights::createEnvironment(ambientIntensity));
    root->addChild(solidSeparator);
    root->addChild(phongSeparator);
    root->addChild(drawStyleSeparator);
}

void DocumentScene::setLook(Look newLook) {
    look = newLook;
    shadingSwitch->whichChild = look == Look::lit ? phongChild : solidChild;
    drawStyle->style = look == Look::lines ? SoDrawStyle::LINES : SoDrawStyle::FILLED;
}

void DocumentScene::toggleDrawStyle() {
    switch (look) {
    case Look::lit:
        setLook(Look::plain);
        break;
    case Look::plain:
        setLook(Look::lines);
        break;
    case Look::lines:
        setLook(Look::lit);
        break;
    }
}

void DocumentScene::removeChild(const SbName& name, SoSeparator& parent) {
    SoSearchAction search;
    search.setName(name);
    search.setInterest(SoSearchAction::FIRST);
    search.apply(&parent);
    if (search.getPath() == nullptr) {
        return;
    }
    const int child = parent.findChild(search.getPath()->getTail());
    if (child >= 0) {
        parent.removeChild(child);
    }
}
