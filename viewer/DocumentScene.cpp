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
    : root(createSeparator(Lights::createEnvironment(ambientIntensity)))
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
    root->addChild(solidSeparator);
    root->addChild(phongSeparator);
    root->addChild(drawStyleSeparator);
}

void DocumentScene::toggleDrawStyle() {
    switch (drawStyleState) {
    case 0:
        shadingSwitch->whichChild = solidChild;
        drawStyle->style = SoDrawStyle::FILLED;
        drawStyleState = 1;
        break;
    case 1:
        shadingSwitch->whichChild = solidChild;
        drawStyle->style = SoDrawStyle::LINES;
        drawStyleState = 2;
        break;
    default:
        shadingSwitch->whichChild = phongChild;
        drawStyle->style = SoDrawStyle::FILLED;
        drawStyleState = 0;
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
