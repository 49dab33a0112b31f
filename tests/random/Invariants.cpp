#include "tests/random/Invariants.h"

#include "helix/HelixNames.h"
#include "hyperboloid/HyperboloidNames.h"
#include "tests/random/VisibleSurface.h"
#include "tests/support/OpenedWindow.h"
#include "tests/support/SceneReader.h"
#include "viewer/SoQtGeneralViewer.h"

#include <Inventor/nodes/SoCoordinate3.h>
#include <Inventor/nodes/SoQuadMesh.h>
#include <QApplication>
#include <QGLWidget>
#include <cmath>
#include <cstring>
#include <gtest/gtest.h>
#include <sstream>

namespace {

constexpr int spaces = 3;

bool sameBits(float a, float b) {
    return std::memcmp(&a, &b, sizeof a) == 0 || (std::isnan(a) && std::isnan(b));
}

bool sameBits(const SbVec3f& a, const SbVec3f& b) {
    return sameBits(a[0], b[0]) && sameBits(a[1], b[1]) && sameBits(a[2], b[2]);
}

SbVec3f vertexOf(const Hyperboloid& surface, int index) {
    return {surface.getVertex(index, 0), surface.getVertex(index, 1), surface.getVertex(index, 2)};
}

SbVec3f colorOf(const Hyperboloid& surface, int index) {
    return {surface.getColor(index, 0), surface.getColor(index, 1), surface.getColor(index, 2)};
}

void checkBrothers(const OpenedWindow& opened) {
    const HyperboloidFrame& u = opened.hyperboloid(Hyperboloid::USPACE);
    for (int space = 0; space < spaces; ++space) {
        const HyperboloidFrame& brother = opened.hyperboloid(space);
        ASSERT_EQ(brother.getNumRow(), u.getNumRow());
        ASSERT_EQ(brother.getNumCol(), u.getNumCol());
        ASSERT_EQ(brother.getNumVertices(), u.getNumVertices());
        for (int i = 0; i < static_cast<int>(u.getNumVertices()); ++i) {
            ASSERT_TRUE(sameBits(colorOf(brother, i), colorOf(u, i)))
                << "colour of vertex " << i << " in space " << space;
        }
    }
}

/** The mesh that is shown consists of the model's vertices. */
void checkShownMesh(const HyperboloidFrame& frame) {
    const SoSeparator* surface = SceneReader::childNamed(
        SceneReader::drawStyleBranch(*frame.getSceneRoot()), HyperboloidNames::surface);
    ASSERT_NE(surface, nullptr);
    const auto count = static_cast<int>(frame.getNumVertices());
    for (int i = 0; i < surface->getNumChildren(); ++i) {
        if (const auto* points = SceneReader::child<SoCoordinate3>(*surface, i)) {
            ASSERT_EQ(points->point.getNum(), count);
            for (int vertex = 0; vertex < count; ++vertex) {
                ASSERT_TRUE(sameBits(points->point[vertex], vertexOf(frame, vertex)));
            }
            return;
        }
    }
    ADD_FAILURE() << "a surface without coordinates";
}

void checkSpheres(const OpenedWindow& opened, const HyperboloidFrame& frame) {
    const SoSeparator& branch = SceneReader::phongBranch(*frame.getSceneRoot());
    const std::vector<HelixFrame*> helices = opened.helices();
    std::size_t spheres = 0;
    for (const std::string& name : SceneReader::childNames(branch)) {
        spheres += name.rfind(HelixNames::framePrefix, 0) == 0 ? 1 : 0;
    }
    EXPECT_EQ(spheres, helices.size());
    for (const HelixFrame* helix : helices) {
        ASSERT_EQ(SceneReader::countNamed(branch, helix->getName()), 1);
        const SoSeparator& sphere = *SceneReader::childNamed(branch, helix->getName());
        EXPECT_TRUE(sameBits(SceneReader::child<SoTransform>(sphere, 1)->translation.getValue(),
                             vertexOf(frame, helix->getIndex())))
            << helix->getName().getString() << " in " << frame.windowTitle().toStdString();
    }
}

void checkHyperboloids(const OpenedWindow& opened) {
    checkBrothers(opened);
    for (int space = 0; space < spaces; ++space) {
        const HyperboloidFrame& frame = opened.hyperboloid(space);
        checkShownMesh(frame);
        checkSpheres(opened, frame);
        for (const char* decoration : HyperboloidNames::decorations) {
            EXPECT_EQ(SceneReader::countNamed(SceneReader::phongBranch(*frame.getSceneRoot()),
                                              decoration),
                      1)
                << decoration;
        }
    }
}

/** Every mesh of the helix's scene has as many coordinates as it takes vertices from them. */
void checkShownHelix(const HelixFrame& frame) {
    for (const char* part : {HelixNames::tube, HelixNames::ribbon}) {
        const SoSeparator* node = SceneReader::childNamed(*frame.getSceneRoot(), part);
        ASSERT_NE(node, nullptr) << part;
        int points = 0;
        for (int i = 0; i < node->getNumChildren(); ++i) {
            if (const auto* coordinates = SceneReader::child<SoCoordinate3>(*node, i)) {
                points = coordinates->point.getNum();
            }
            if (const auto* mesh = SceneReader::child<SoQuadMesh>(*node, i)) {
                EXPECT_EQ(mesh->verticesPerRow.getValue() * mesh->verticesPerColumn.getValue(),
                          points)
                    << part;
            }
        }
    }
}

/** The helix is bent and twisted as the vertex that it belongs to says. */
void checkHelix(const OpenedWindow& opened, const HelixFrame& frame) {
    const SbVec3f u = vertexOf(opened.hyperboloid(Hyperboloid::USPACE), frame.getIndex());
    const Helix& helix = frame.getHelix();
    const Helix expected(u[0], u[1], u[2], 0, 0, 0);
    EXPECT_TRUE(sameBits(helix.getCurvature(), expected.getCurvature()));
    EXPECT_TRUE(sameBits(helix.getTorsion(), expected.getTorsion()));
    EXPECT_TRUE(sameBits(helix.getRadius(), expected.getRadius()));
    EXPECT_TRUE(sameBits(helix.getPitch(), expected.getPitch()));
    EXPECT_TRUE(sameBits(helix.getOmega(), expected.getOmega()));
    EXPECT_TRUE(sameBits(helix.getPhi(), expected.getPhi()));

    std::ostringstream title;
    title << "U = (" << u[0] << "; " << u[1] << "; " << u[2] << ")";
    // A helix that nobody has steered yet bears its first title.
    if (frame.viewerTitle() != "Helix Viewer") {
        EXPECT_EQ(frame.viewerTitle().toStdString(), title.str());
    }
    checkShownHelix(frame);
}

void checkHelices(const OpenedWindow& opened) {
    const std::vector<HelixFrame*> helices = opened.helices();
    EXPECT_EQ(opened.window().getHelixCount(), static_cast<int>(helices.size()));
    EXPECT_EQ(opened.frames().size(), helices.size() + spaces);
    const int vertexCount =
        static_cast<int>(opened.hyperboloid(Hyperboloid::USPACE).getNumVertices());
    for (const HelixFrame* helix : helices) {
        ASSERT_GE(helix->getIndex(), 0);
        ASSERT_LT(helix->getIndex(), vertexCount);
        checkHelix(opened, *helix);
    }
}

void checkOpenGl(const SoQtGeneralViewerFrame& frame) {
    auto* widget = static_cast<QGLWidget*>(frame.getViewer()->getGLWidget());
    widget->makeCurrent();
    EXPECT_EQ(glGetError(), static_cast<GLenum>(GL_NO_ERROR));
}

/** Whether nothing covers the view, as far as a look at nine of its places tells. */
bool isInFront(const QWidget& view) {
    constexpr int places = 3;
    for (int column = 0; column < places; ++column) {
        for (int row = 0; row < places; ++row) {
            const QPoint place((view.width() - 1) * column / (places - 1),
                               (view.height() - 1) * row / (places - 1));
            if (QApplication::widgetAt(view.mapToGlobal(place)) != &view) {
                return false;
            }
        }
    }
    return true;
}

void checkPicture(SoQtGeneralViewerFrame& frame) {
    const ViewDriver view(frame);
    if (isInFront(view.widget()) && VisibleSurface::isLarge(frame)) {
        // What has just come to the front may still wait for the window system's word to paint it.
        EXPECT_TRUE(waitUntil([&] { return view.isDrawn(); }))
            << "blank: " << frame.windowTitle().toStdString();
    }
}

} // namespace

Invariants::Invariants(const OpenedWindow& openedWindow)
    : opened(openedWindow)
    , documentActive(opened.area().activeSubWindow() != nullptr) {
    QObject::connect(&opened.area(), &QMdiArea::subWindowActivated, &life,
                     [this](const QMdiSubWindow* window) { documentActive = window != nullptr; });
}

void Invariants::checkMenus() const {
    for (const char* name : {"closeAct", "closeAllAct", "tileAct", "cascadeAct"}) {
        EXPECT_EQ(opened.action(name).isEnabled(), documentActive) << name;
    }
    for (const char* name : {"nextAct", "previousAct"}) {
        EXPECT_EQ(opened.action(name).isEnabled(), opened.frames().size() >= 2) << name;
    }
    for (const char* name :
         {"newAct", "exitAct", "appearanceAct", "hyperboloidParamsAct", "helixParamsAct",
          "saveHelixAct", "saveUAct", "saveXAct", "saveMAct", "aboutAct", "aboutQtAct"}) {
        EXPECT_TRUE(opened.action(name).isEnabled()) << name;
    }
}

void Invariants::check() const {
    checkHyperboloids(opened);
    checkHelices(opened);
    checkMenus();
    for (SoQtGeneralViewerFrame* frame : opened.frames()) {
        checkOpenGl(*frame);
        checkPicture(*frame);
    }
}
