#include "tests/support/OpenedWindow.h"
#include "tests/support/RedrawCounter.h"

#include "viewer/SoQtGeneralViewer.h"

#include <Inventor/SoPickedPoint.h>
#include <Inventor/actions/SoRayPickAction.h>
#include <Inventor/details/SoFaceDetail.h>
#include <Inventor/nodes/SoCamera.h>
#include <Inventor/nodes/SoOrthographicCamera.h>
#include <Inventor/nodes/SoPerspectiveCamera.h>
#include <Inventor/nodes/SoQuadMesh.h>
#include <Inventor/nodes/SoTransform.h>
#include <algorithm>
#include <array>
#include <cstdlib>
#include <gtest/gtest.h>
#include <tuple>

namespace {

/** Percent. */
constexpr int transparency = 60;

/** All colours between two, red, green and blue from 0 to 1. */
struct Colors {
    SbVec3f least;
    SbVec3f most;

    /** Up to rounding, and to half a pixel between the place that is picked and the one drawn. */
    bool holds(const QColor& color) const {
        constexpr float rounding = 7 / 255.0F;
        const SbVec3f seen(static_cast<float>(color.redF()), static_cast<float>(color.greenF()),
                           static_cast<float>(color.blueF()));
        for (int k = 0; k < 3; ++k) {
            if (seen[k] < least[k] - rounding || seen[k] > most[k] + rounding) {
                return false;
            }
        }
        return true;
    }
};

/** By the coordinate of X space along which it lies; at the start it is the second. */
enum class Quadric { alongFirstAxis, alongSecondAxis, unitHyperboloid };

/** The surface of one space by itself, in the flat colours of its vertices, in a window. */
class BareSurface {
public:
    BareSurface(int space, Quadric quadric, int percent)
        : frame(&opened.hyperboloid(space)) {
        if (quadric != Quadric::alongSecondAxis) {
            const double K13 = quadric == Quadric::unitHyperboloid ? 0 : 0.6;
            opened.window().refresh_hyperboloids(1.1, 1.9, 2.3, K13, -0.4, 0.9, -0.35, 0.2, 61, 47,
                                                 0.3, 7, 7, 0.02, 0.03);
        }
        opened.subWindow(*frame).showMaximized();
        opened.activate(*frame);
        frame->toggleDrawStyle();
        setTransparency(percent);
    }

    void setTransparency(int percent) const {
        opened.call("refreshHyperboloidTransp", Q_ARG(int, percent));
        branch(phongBranch).removeAllChildren();
        RedrawCounter::settle();
    }

    /** Shows the surface under the light. */
    void setPhong() const {
        frame->toggleDrawStyle();
        frame->toggleDrawStyle();
    }

    /** Turns the camera, away from the symmetries of the surface, and steps back to see it whole.
     */
    void lookFrom(const SbVec3f& direction) const {
        SoCamera& camera = *frame->getViewer()->getCamera();
        camera.orientation.setValue(SbRotation(SbVec3f(0, 0, 1), 0.37F) *
                                    SbRotation(SbVec3f(0, 0, 1), direction));
        camera.viewAll(frame->getSceneRoot(), frame->getViewer()->getViewportRegion());
        RedrawCounter::settle();
    }

    /**
     * Compares what is seen with the walls that a ray meets, blended from the farthest to the
     * nearest: at how many places with two walls it was right.
     */
    int rightDoubles() const {
        const QImage picture = ViewDriver(*frame).grab();
        int count = 0;
        for (int y = step; y < picture.height() - crossSize; y += step) {
            for (int x = step; x < picture.width() - crossSize; x += step) {
                if (!isPlain(picture, x, y)) {
                    continue;
                }
                const SoPickedPointList walls = wallsAt(x, picture.height() - 1 - y);
                const QColor seen = picture.pixelColor(x, y);
                EXPECT_TRUE(blended(walls).holds(seen))
                    << walls.getLength() << " walls at " << x << " " << y << ": " << seen.red()
                    << " " << seen.green() << " " << seen.blue();
                count += walls.getLength() > 1 ? 1 : 0;
            }
        }
        return count;
    }

    SoSeparator& surface() const {
        return static_cast<SoSeparator&>(*branch(drawStyleBranch).getChild(2));
    }

    OpenedWindow opened;
    HyperboloidFrame* frame;

private:
    static constexpr int phongBranch = 2;
    static constexpr int drawStyleBranch = 3;
    /** Pixels between two places that are looked at. */
    static constexpr int step = 17;
    /** Room for the viewer's cross of axes in the corner. */
    static constexpr int crossSize = 130;

    SoGroup& branch(int index) const {
        return static_cast<SoGroup&>(*frame->getSceneRoot()->getChild(index));
    }

    /** Whether the colours around a place vary little: no edge of the surface goes through. */
    static bool isPlain(const QImage& picture, int x, int y) {
        constexpr int little = 12;
        const QColor middle = picture.pixelColor(x, y);
        for (const QPoint& offset : {QPoint(-2, 0), QPoint(2, 0), QPoint(0, -2), QPoint(0, 2)}) {
            const QColor color = picture.pixelColor(QPoint(x, y) + offset);
            if (std::abs(color.red() - middle.red()) > little ||
                std::abs(color.green() - middle.green()) > little ||
                std::abs(color.blue() - middle.blue()) > little) {
                return false;
            }
        }
        return true;
    }

    SoPickedPointList wallsAt(int x, int y) const {
        SoRayPickAction pick(frame->getViewer()->getViewportRegion());
        pick.setPickAll(TRUE);
        pick.setPoint(SbVec2s(static_cast<short>(x), static_cast<short>(y)));
        pick.apply(frame->getViewer()->getSceneManager()->getSceneGraph());
        return {pick.getPickedPointList()};
    }

    /** The colours of a picked triangle. */
    Colors colorsOf(const SoPickedPoint& point) const {
        const auto& face = *static_cast<const SoFaceDetail*>(point.getDetail());
        Colors colors{SbVec3f(1, 1, 1), SbVec3f(0, 0, 0)};
        for (int i = 0; i < face.getNumPoints(); ++i) {
            const int vertex = face.getPoint(i)->getCoordinateIndex();
            for (int k = 0; k < 3; ++k) {
                colors.least[k] = std::min(colors.least[k], frame->getColor(vertex, k));
                colors.most[k] = std::max(colors.most[k], frame->getColor(vertex, k));
            }
        }
        return colors;
    }

    Colors blended(const SoPickedPointList& walls) const {
        constexpr float opacity = 1 - transparency / 100.0F;
        const SbColor& background = frame->getViewer()->getBackgroundColor();
        Colors colors{background, background};
        // The nearest comes first.
        for (int i = walls.getLength() - 1; i >= 0; --i) {
            const Colors wall = colorsOf(*walls[i]);
            colors.least = opacity * wall.least + (1 - opacity) * colors.least;
            colors.most = opacity * wall.most + (1 - opacity) * colors.most;
        }
        return colors;
    }
};

/** Along the coordinate axes and askew, from all eight octants: into the surface and across it. */
const std::array<SbVec3f, 14> directions{
    SbVec3f(1, 0.02F, 0.03F),     SbVec3f(-1, 0.04F, 0.01F),     SbVec3f(0.02F, 1, 0.05F),
    SbVec3f(0.03F, -1, 0.01F),    SbVec3f(0.01F, 0.02F, 1),      SbVec3f(0.04F, 0.03F, -1),
    SbVec3f(0.7F, 0.4F, 0.6F),    SbVec3f(-0.7F, 0.5F, 0.3F),    SbVec3f(0.4F, -0.8F, 0.3F),
    SbVec3f(0.3F, 0.6F, -0.8F),   SbVec3f(-0.6F, -0.7F, 0.4F),   SbVec3f(-0.5F, 0.3F, -0.7F),
    SbVec3f(0.45F, -0.4F, -0.6F), SbVec3f(-0.35F, -0.6F, -0.45F)};

/** Share of the pixels in which two pictures of one size differ by more than rounding. */
double differingShare(const QImage& one, const QImage& other) {
    constexpr int rounding = 5;
    int count = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            const QColor a = one.pixelColor(x, y);
            const QColor b = other.pixelColor(x, y);
            const int difference =
                std::max({std::abs(a.red() - b.red()), std::abs(a.green() - b.green()),
                          std::abs(a.blue() - b.blue())});
            count += difference > rounding ? 1 : 0;
        }
    }
    return static_cast<double>(count) / (one.width() * one.height());
}

/** A space, and what lies in it. */
class TransparencyIn : public testing::TestWithParam<std::tuple<int, Quadric>> {
protected:
    static BareSurface shown(int percent) {
        return {std::get<0>(GetParam()), std::get<1>(GetParam()), percent};
    }
};

} // namespace

TEST_P(TransparencyIn, BothWallsAreSeenEverywhereFromEveryDirection) {
    const BareSurface surface = shown(transparency);
    int doubles = 0;
    for (const SoType& camera :
         {SoOrthographicCamera::getClassTypeId(), SoPerspectiveCamera::getClassTypeId()}) {
        surface.frame->getViewer()->setCameraType(camera);
        for (const SbVec3f& direction : directions) {
            SCOPED_TRACE(testing::Message()
                         << camera.getName().getString() << " from " << direction[0] << " "
                         << direction[1] << " " << direction[2]);
            surface.lookFrom(direction);
            doubles += surface.rightDoubles();
        }
    }
    EXPECT_GT(doubles, 150);
}

TEST(Transparency, BothWallsAreSeenWhereverTheSurfaceIsCarried) {
    const BareSurface surface(Hyperboloid::XSPACE, Quadric::alongFirstAxis, transparency);
    auto* carried = new SoTransform;
    carried->rotation.setValue(SbVec3f(0.3F, -0.8F, 0.5F), 2.3F);
    carried->translation.setValue(3.7F, -2.1F, 1.3F);
    surface.surface().insertChild(carried, 0);
    int doubles = 0;
    for (const SoType& camera :
         {SoOrthographicCamera::getClassTypeId(), SoPerspectiveCamera::getClassTypeId()}) {
        surface.frame->getViewer()->setCameraType(camera);
        for (const std::size_t direction : {6U, 8U, 11U, 13U}) {
            surface.lookFrom(directions.at(direction));
            doubles += surface.rightDoubles();
        }
    }
    EXPECT_GT(doubles, 50);
}

TEST_P(TransparencyIn, OpaqueSurfaceLooksAsTheLibrarysOwnMeshDoes) {
    const BareSurface surface = shown(0);
    surface.lookFrom(directions[6]);
    const QImage ours = ViewDriver(*surface.frame).grab();
    auto* plain = new SoQuadMesh;
    const auto& mesh = static_cast<const SoQuadMesh&>(*surface.surface().getChild(3));
    plain->verticesPerRow = mesh.verticesPerRow.getValue();
    plain->verticesPerColumn = mesh.verticesPerColumn.getValue();
    surface.surface().replaceChild(3, plain);
    RedrawCounter::settle();
    EXPECT_EQ(ViewDriver(*surface.frame).grab(), ours);
}

TEST_P(TransparencyIn, HardlyTransparentSurfaceIsLitLikeAnOpaqueOne) {
    const BareSurface surface = shown(0);
    surface.setPhong();
    for (const SbVec3f& direction : {directions[6], directions[10]}) {
        surface.setTransparency(0);
        surface.lookFrom(direction);
        const QImage opaque = ViewDriver(*surface.frame).grab();
        surface.setTransparency(1);
        const QImage transparent = ViewDriver(*surface.frame).grab();
        EXPECT_NE(transparent, opaque);
        constexpr double edges = 0.01;
        EXPECT_LT(differingShare(transparent, opaque), edges);
    }
}

INSTANTIATE_TEST_SUITE_P(EverySpace, TransparencyIn,
                         testing::Combine(testing::Values(0, 1, 2),
                                          testing::Values(Quadric::alongFirstAxis,
                                                          Quadric::alongSecondAxis)));

INSTANTIATE_TEST_SUITE_P(InTheQuadricsPlace, TransparencyIn,
                         testing::Values(std::tuple(0, Quadric::unitHyperboloid)));
