#include "hyperboloid/HyperboloidFrame.h"

#include "helix/HelixFrame.h"
#include "hyperboloid/HyperboloidDecorations.h"
#include "hyperboloid/HyperboloidNames.h"
#include "viewer/SoQtGeneralViewer.h"

#include <Inventor/SoPickedPoint.h>
#include <Inventor/actions/SoRayPickAction.h>
#include <Inventor/events/SoKeyboardEvent.h>
#include <Inventor/events/SoMouseButtonEvent.h>
#include <Inventor/nodes/SoSeparator.h>
#include <array>
#include <optional>

namespace {

/** The direction that a key steps in, if it is a direction key. */
std::optional<int> directionOfKey(SoKeyboardEvent::Key key) {
    switch (key) {
    case SoKeyboardEvent::W:
    case SoKeyboardEvent::UP_ARROW:
    case SoKeyboardEvent::PAD_8:
        return HyperboloidFrame::UP;
    case SoKeyboardEvent::S:
    case SoKeyboardEvent::DOWN_ARROW:
    case SoKeyboardEvent::PAD_2:
        return HyperboloidFrame::DOWN;
    case SoKeyboardEvent::D:
    case SoKeyboardEvent::RIGHT_ARROW:
    case SoKeyboardEvent::PAD_6:
        return HyperboloidFrame::RIGHT;
    case SoKeyboardEvent::A:
    case SoKeyboardEvent::LEFT_ARROW:
    case SoKeyboardEvent::PAD_4:
        return HyperboloidFrame::LEFT;
    default:
        return std::nullopt;
    }
}

} // namespace

void toggleDrawStyle() {}

const int HyperboloidFrame::UP = VertexGrid::up;
const int HyperboloidFrame::DOWN = VertexGrid::down;
const int HyperboloidFrame::RIGHT = VertexGrid::right;
const int HyperboloidFrame::LEFT = VertexGrid::left;

HyperboloidFrame::HyperboloidFrame(float K1, float K2, float K3, float K13, float K23, float U1,
                                   float U2, float U3, int whichSpace, bool closable,
                                   FrameOwner* owner)
    : SoQtGeneralViewerFrame(closable, owner)
    , Hyperboloid(K1, K2, K3, K13, K23, U1, U2, U3, whichSpace) {
    type = Type();
}

void HyperboloidFrame::setBrother(HyperboloidFrame* u, HyperboloidFrame* x, HyperboloidFrame* m) {
    uBrother = u;
    xBrother = x;
    mBrother = m;
    changeColors();
    if (space != USPACE) {
        reDraw(false, false);
    }
}

HyperboloidFrame* HyperboloidFrame::getBrother(int whichSpace) const {
    if (whichSpace == XSPACE) {
        return xBrother;
    }
    if (whichSpace == MSPACE) {
        return mBrother;
    }
    return uBrother;
}

void HyperboloidFrame::SetPreviousHelix(HelixFrame* helix) {
    tiedHelix = helix;
}

HelixFrame* HyperboloidFrame::GetPreviousHelix() const {
    return tiedHelix;
}

void HyperboloidFrame::PrevHelixDead() {
    tiedHelix = nullptr;
}

void HyperboloidFrame::changeColors() {
    // A change of the grid begins with U: until the others follow, they keep their colours.
    if (space != USPACE && uBrother != nullptr) {
        takeColorsFrom(*uBrother);
    }
}

void HyperboloidFrame::reDraw(bool reinit, bool regenerate) {
    if (reinit) {
        init_tables();
    }
    // Before anything is removed from the scene.
    requireTablesOfGrid();
    if (reinit || regenerate) {
        generateHyperboloidPoints(reinit, regenerate);
    }
    changeColors();
    removeSceneChild(HyperboloidNames::surface, drawStyleSeparator);
    for (const char* decoration : HyperboloidNames::decorations) {
        removeSceneChild(decoration, phongSeparator);
    }
    Draw();
}

void HyperboloidFrame::Draw() {
    drawParts(*phongSeparator, *drawStyleSeparator);
}

void HyperboloidFrame::setSaturation(int value, bool redraw) {
    setSaturationPercent(value);
    if (redraw) {
        reDraw(false, true);
    }
}

void HyperboloidFrame::setLightness(int value, bool redraw) {
    setLightnessPercent(value);
    if (redraw) {
        reDraw(false, true);
    }
}

void HyperboloidFrame::setTransparency(int value, bool redraw) {
    setTransparencyPercent(value);
    if (redraw) {
        reDraw(false, false);
    }
}

bool HyperboloidFrame::is_point_in_hyperboloid(const SoPickedPoint* point) const {
    return point->getPath()->getTail()->getName() == SbName(HyperboloidNames::mesh);
}

int HyperboloidFrame::get_index(const SoPickedPoint* point) const {
    return is_point_in_hyperboloid(point) ? point->getMaterialIndex() : -1;
}

void HyperboloidFrame::addNewSphere(SbName name, int index) {
    phongSeparator->addChild(DrawVertex(name, index));
}

void HyperboloidFrame::killSphere(SbName name) {
    removeSceneChild(name, phongSeparator);
}

void HyperboloidFrame::refresh_spheres(int index) {
    const SbName name = tiedHelix->getName();
    killSphere(name);
    addNewSphere(name, index);
}

void HyperboloidFrame::refresh_hypos(int index) {
    const std::array<HyperboloidFrame*, 3> brothers{uBrother, getBrother(XSPACE),
                                                    getBrother(MSPACE)};
    for (HyperboloidFrame* brother : brothers) {
        brother->SetPreviousHelix(tiedHelix);
    }
    for (HyperboloidFrame* brother : brothers) {
        brother->refresh_spheres(index);
    }
}

void HyperboloidFrame::refresh_helix(int index) {
    // The U coordinates whatever this frame's space is: they are what bends and twists the helix.
    tiedHelix->refresh(uBrother->surfaceVertex(index));
}

void HyperboloidFrame::chooseVertex(int index) {
    refresh_hypos(index);
    refresh_helix(index);
}

void HyperboloidFrame::moveSphere(int direction) {
    if (tiedHelix) {
        chooseVertex(grid().neighbour(tiedHelix->getIndex(), direction));
    }
}

int HyperboloidFrame::processSoEvent(const SoEvent* event) {
    if (event->isOfType(SoKeyboardEvent::getClassTypeId())) {
        return processKey(*static_cast<const SoKeyboardEvent*>(event));
    }
    if (event->isOfType(SoMouseButtonEvent::getClassTypeId())) {
        return processMouseButton(*static_cast<const SoMouseButtonEvent*>(event));
    }
    return 0;
}

int HyperboloidFrame::processKey(const SoKeyboardEvent& event) {
    const std::optional<int> direction = directionOfKey(event.getKey());
    if (event.getState() != SoButtonEvent::DOWN || !direction) {
        return 0;
    }
    moveSphere(*direction);
    return 1;
}

int HyperboloidFrame::processMouseButton(const SoMouseButtonEvent& event) {
    const bool picks = !viewer->isViewing() || event.getButton() == SoMouseButtonEvent::BUTTON2;
    if (event.getState() != SoButtonEvent::UP || !picks || !tiedHelix) {
        return 0;
    }
    const int index = pickVertex(event);
    if (index < 0) {
        return 0;
    }
    chooseVertex(index);
    return 1;
}

int HyperboloidFrame::pickVertex(const SoMouseButtonEvent& event) const {
    SoRayPickAction pick(viewer->getViewportRegion());
    pick.setPoint(event.getPosition());
    pick.apply(viewer->getSceneManager()->getSceneGraph());
    const SoPickedPoint* nearest = pick.getPickedPoint();
    return nearest == nullptr ? -1 : get_index(nearest);
}

void HyperboloidFrame::DrawAxis(double halfLength, double radius) {
    phongSeparator->addChild(HyperboloidDecorations::createAxisGlyph(halfLength, radius));
}
