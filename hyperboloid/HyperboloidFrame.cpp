#include "hyperboloid/HyperboloidFrame.h"

#include "helix/HelixFrame.h"
#include "viewer/SoQtGeneralViewer.h"

#include <Inventor/SoPickedPoint.h>
#include <Inventor/actions/SoRayPickAction.h>
#include <Inventor/events/SoKeyboardEvent.h>
#include <Inventor/events/SoMouseButtonEvent.h>
#include <Inventor/nodes/SoCone.h>
#include <Inventor/nodes/SoCoordinate3.h>
#include <Inventor/nodes/SoMaterial.h>
#include <Inventor/nodes/SoQuadMesh.h>
#include <Inventor/nodes/SoSeparator.h>
#include <Inventor/nodes/SoTransform.h>
#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

namespace {

constexpr double percent = 100.0;

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

constexpr int pointsPerRing = 30;
constexpr int ringCount = 2;

/** The wall of the axis glyph: a ring at +halfLength, then one at -halfLength; each ring closes. */
SoCoordinate3* createAxisRings(double halfLength, double radius) {
    constexpr double fullTurn = 6.283185307179586;
    float points[ringCount * pointsPerRing][3];
    for (int ring = 0; ring < ringCount; ++ring) {
        for (int j = 0; j < pointsPerRing; ++j) {
            const double theta = j * fullTurn / (pointsPerRing - 1);
            float* point = points[ring * pointsPerRing + j];
            point[0] = static_cast<float>(radius * std::cos(theta));
            point[1] = static_cast<float>(radius * std::sin(theta));
            point[2] = static_cast<float>(ring == 0 ? halfLength : -halfLength);
        }
    }
    return SceneNodes::createCoordinates(ringCount * pointsPerRing, points);
}

} // namespace

void toggleDrawStyle() {}

const int HyperboloidFrame::UP = 0;
const int HyperboloidFrame::DOWN = 1;
const int HyperboloidFrame::RIGHT = 2;
const int HyperboloidFrame::LEFT = 3;

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
    previousHelix = helix;
}

HelixFrame* HyperboloidFrame::GetPreviousHelix() const {
    return previousHelix;
}

void HyperboloidFrame::PrevHelixDead() {
    previousHelix = nullptr;
}

void HyperboloidFrame::changeColors() {
    if (space == USPACE || uBrother == nullptr) {
        return;
    }
    const std::size_t count = std::min(colors.size(), uBrother->colors.size());
    std::copy_n(uBrother->colors.begin(), count, colors.begin());
}

void HyperboloidFrame::reDraw(bool reinit, bool regenerate) {
    if (reinit) {
        init_tables();
    }
    if (reinit || regenerate) {
        generateHyperboloidPoints(reinit, regenerate);
    }
    changeColors();
    removeSceneChild("Hyperboloid", drawStyleSeparator);
    for (const char* decoration : {"Center", "uHat", "U3ConstAxis", "U3Axis"}) {
        removeSceneChild(decoration, phongSeparator);
    }
    Draw();
}

void HyperboloidFrame::Draw() {
    phongSeparator->addChild(
        DrawU3Axis(static_cast<float>(u3axis_range), static_cast<float>(u3axis_radius)));
    drawStyleSeparator->addChild(DrawHyperboloid());
    phongSeparator->addChild(DrawCenter());
    phongSeparator->addChild(DrawUHat());
    phongSeparator->addChild(
        DrawU3ConstAxis(static_cast<float>(u3const_range), static_cast<float>(u3const_radius)));
}

void HyperboloidFrame::setSaturation(int value, bool redraw) {
    saturation = value / percent;
    if (redraw) {
        reDraw(false, true);
    }
}

void HyperboloidFrame::setLightness(int value, bool redraw) {
    lightness = value / percent;
    if (redraw) {
        reDraw(false, true);
    }
}

void HyperboloidFrame::setTransparency(int value, bool redraw) {
    transparency = value / percent;
    material->transparency = static_cast<float>(transparency);
    if (redraw) {
        reDraw(false, false);
    }
}

bool HyperboloidFrame::is_point_in_hyperboloid(const SoPickedPoint* point) const {
    return point->getPath()->getTail()->getName() == SbName("HyperboloidMesh");
}

int HyperboloidFrame::get_index(const SoPickedPoint* point) const {
    return is_point_in_hyperboloid(point) ? point->getMaterialIndex() : -1;
}

void HyperboloidFrame::addNewSphere(SbName name, int index) {
    auto* color = new SoMaterial;
    color->diffuseColor.setValue(getColor(index, 0), getColor(index, 1), getColor(index, 2));
    auto* position = new SoTransform;
    position->translation.setValue(getVertex(index, 0), getVertex(index, 1), getVertex(index, 2));

    SoSeparator* sphere = SceneNodes::createSeparator(name.getString());
    sphere->addChild(color);
    sphere->addChild(position);
    sphere->addChild(sphereGroup.get());
    phongSeparator->addChild(sphere);
}

void HyperboloidFrame::killSphere(SbName name) {
    removeSceneChild(name, phongSeparator);
}

void HyperboloidFrame::refresh_spheres(int index) {
    const SbName name = previousHelix->getName();
    killSphere(name);
    addNewSphere(name, index);
}

void HyperboloidFrame::refresh_hypos(int index) {
    const std::array<HyperboloidFrame*, 3> brothers{uBrother, getBrother(XSPACE),
                                                    getBrother(MSPACE)};
    for (HyperboloidFrame* brother : brothers) {
        brother->SetPreviousHelix(previousHelix);
    }
    for (HyperboloidFrame* brother : brothers) {
        brother->refresh_spheres(index);
    }
}

void HyperboloidFrame::refresh_helix(int index) {
    // The U coordinates whatever this frame's space is: they are what bends and twists the helix.
    const HyperboloidFrame& u = *uBrother;
    previousHelix->refresh(u.getVertex(index, 0), u.getVertex(index, 1), u.getVertex(index, 2),
                           index, u.getColor(index, 0), u.getColor(index, 1), u.getColor(index, 2));
}

void HyperboloidFrame::chooseVertex(int index) {
    refresh_hypos(index);
    refresh_helix(index);
}

void HyperboloidFrame::moveSphere(int direction) {
    if (previousHelix) {
        chooseVertex(neighbour(previousHelix->getIndex(), direction));
    }
}

int HyperboloidFrame::neighbour(int index, int direction) const {
    const int rows = static_cast<int>(numRow);
    int row = index % rows;
    int column = index / rows;
    // Columns wrap modulo one less than their number: the last column repeats the first.
    const int distinctColumns = std::max(static_cast<int>(numCol) - 1, 1);
    if (direction == UP) {
        row = std::max(row - 1, 0);
    } else if (direction == DOWN) {
        row = std::min(row + 1, rows - 1);
    } else if (direction == RIGHT) {
        // On purpose: right lowers the column and left raises it.
        column = (column + distinctColumns - 1) % distinctColumns;
    } else if (direction == LEFT) {
        column = (column + 1) % distinctColumns;
    }
    return row + column * rows;
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
    if (event.getState() != SoButtonEvent::UP || !picks || !previousHelix) {
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
    auto* tip = new SoTransform;
    tip->translation.setValue(0, 0, static_cast<float>(halfLength));
    tip->scaleFactor.setValue(0.15F, 0.15F, 0.15F);
    tip->rotation.setValue(SbVec3f(1, 0, 0), 1.0471976F);

    SoSeparator* axis = SceneNodes::createSeparator("Axis");
    axis->addChild(SceneNodes::createMaterial(0, 0, 1));
    axis->addChild(createAxisRings(halfLength, radius));
    axis->addChild(SceneNodes::createQuadMesh(pointsPerRing, ringCount));
    axis->addChild(tip);
    axis->addChild(new SoCone);
    phongSeparator->addChild(axis);
}
