#include "helix/HelixFrame.h"

#include "helix/HelixNames.h"
#include "viewer/FrameOwner.h"

#include <Inventor/nodes/SoSeparator.h>
#include <sstream>

namespace {

std::string textOf(const Triple& u) {
    std::ostringstream text;
    text << "U = (" << u.x << "; " << u.y << "; " << u.z << ")";
    return text.str();
}

} // namespace

int HelixFrame::helix_nb = 0;

HelixFrame::HelixFrame(float u1, float u2, float u3, float red, float green, float blue, int index,
                       bool closable, FrameOwner* owner)
    : HelixFrame({index, {u1, u2, u3}, {red, green, blue}}, closable, owner) {}

HelixFrame::HelixFrame(const SurfaceVertex& vertex, bool closable, FrameOwner* owner)
    : SoQtGeneralViewerFrame(closable, owner)
    , helix(vertex.u.x, vertex.u.y, vertex.u.z, vertex.color.x, vertex.color.y, vertex.color.z)
    , point(vertex.u) {
    initialize_helix(vertex.index);
}

HelixFrame::~HelixFrame() {
    if (mainWindow != nullptr) {
        mainWindow->SayHypoImDead(getName());
    }
}

void HelixFrame::initialize_helix(int index) {
    ++helix_nb;
    type = Type();
    vertexIndex = index;
    name = HelixNames::framePrefix + std::to_string(helix_nb);
}

SbName HelixFrame::getName() const {
    return name.c_str();
}

void HelixFrame::SetEventHandlers() {}

void HelixFrame::Draw() {
    removeSceneChild(HelixNames::tube, root);
    removeSceneChild(HelixNames::ribbon, root);
    helix.drawParts(*root);
}

void HelixFrame::reDraw(bool line, bool tube, bool ribbon) {
    helix.generatePoints(line, tube, ribbon);
    Draw();
}

void HelixFrame::refresh(float u1, float u2, float u3, int index, float red, float green,
                         float blue) {
    refresh({index, {u1, u2, u3}, {red, green, blue}});
}

void HelixFrame::refresh(const SurfaceVertex& vertex) {
    const auto& [index, u, color] = vertex;
    vertexIndex = index;
    point = u;
    helix.refresh_param(u.x, u.y, u.z, color.x, color.y, color.z);
    showU(u.x, u.y, u.z);
    reDraw(true, true, true);
}

QString HelixFrame::pointText() const {
    return QString::fromStdString(textOf(widened(point)));
}

void HelixFrame::showU(double u1, double u2, double u3) {
    setTitle(textOf({u1, u2, u3}).c_str());
}

void HelixFrame::set_ribbon_range(double width, bool redraw) {
    helix.setRibRange(static_cast<float>(width));
    if (redraw) {
        reDraw(false, false, true);
    }
}

void HelixFrame::set_tube_radius(double radius, bool redraw) {
    helix.setTubeR(static_cast<float>(radius));
    if (redraw) {
        reDraw(false, true, false);
    }
}

void HelixFrame::set_precision_tube(int verticesPerRing, bool redraw) {
    helix.setPrecisionTube(verticesPerRing);
    helix.init_tables(false, true, false);
    if (redraw) {
        reDraw(false, true, false);
    }
}

void HelixFrame::set_precision_line(int verticesPerTurn, bool redraw) {
    helix.setPrecisionLine(verticesPerTurn);
    helix.init_tables(true, true, true);
    if (redraw) {
        reDraw(true, true, true);
    }
}

void HelixFrame::set_nturns(double turns, bool redraw) {
    helix.setNTurns(static_cast<float>(turns));
    helix.init_tables(true, true, true);
    if (redraw) {
        reDraw(true, true, true);
    }
}
