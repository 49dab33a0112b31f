#include "tests/export/PrintedViews.h"
#include "viewer/SoQtGeneralViewer.h"

#include <Inventor/actions/SoGLRenderAction.h>
#include <Inventor/nodes/SoCamera.h>
#include <Inventor/nodes/SoCoordinate3.h>
#include <Inventor/nodes/SoDirectionalLight.h>
#include <Inventor/nodes/SoLightModel.h>
#include <Inventor/nodes/SoPointSet.h>
#include <Inventor/nodes/SoSeparator.h>
#include <QPainter>

namespace {

constexpr int patchSize = 4;

// How far a print may be from the screen, as a share of how far an empty picture is: thin lines
// are smoothed on the screen only, and count the more the less there is of the surface.
constexpr double filledTolerance = 0.03;
constexpr double lineTolerance = 0.15;
constexpr double seenThroughTolerance = 0.09;

/** Mean difference of two pictures of one size in a channel's steps (0 to 255). */
double meanDifference(const QImage& one, const QImage& other) {
    double sum = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            const QRgb a = one.pixel(x, y);
            const QRgb b = other.pixel(x, y);
            sum += std::abs(qRed(a) - qRed(b)) + std::abs(qGreen(a) - qGreen(b)) +
                   std::abs(qBlue(a) - qBlue(b));
        }
    }
    return sum / (3.0 * one.width() * one.height());
}

/** The examiner's axis cross, which is on the screen only, painted over in the lower right. */
QImage withoutCross(QImage image, QColor background) {
    const QSize corner(image.width() / 6, image.height() / 6);
    QPainter(&image).fillRect(image.width() - corner.width(), image.height() - corner.height(),
                              corner.width(), corner.height(), background);
    return image;
}

/** Turns the camera around the point that it looks at. */
void lookFrom(SoCamera& camera, const SbRotation& orientation) {
    const auto ahead = [&] {
        SbVec3f direction;
        camera.orientation.getValue().multVec(SbVec3f(0, 0, -1), direction);
        return direction * camera.focalDistance.getValue();
    };
    const SbVec3f centre = camera.position.getValue() + ahead();
    camera.orientation = orientation;
    camera.position = centre - ahead();
}

/** The pixels in the file itself: five letters for four bytes, from the lowest row up. */
QImage pixelsIn(const QByteArray& eps, const QSize& size) {
    const QByteArray start = "\ncolorimage\n";
    QByteArray bytes;
    std::uint32_t group = 0;
    int letters = 0;
    for (const char* c = eps.constData() + eps.indexOf(start) + start.size(); *c != '~'; ++c) {
        if (*c == 'z') {
            bytes.append(4, '\0');
        } else if (*c >= '!' && *c <= 'u') {
            group = group * 85 + static_cast<std::uint32_t>(*c - '!');
            if (++letters == 5) {
                for (int shift = 24; shift >= 0; shift -= 8) {
                    bytes.append(static_cast<char>(group >> shift & 0xFFU));
                }
                letters = 0;
                group = 0;
            }
        }
    }
    const auto* data = reinterpret_cast<const uchar*>(bytes.constData());
    return QImage(data, size.width(), size.height(), 3 * size.width(), QImage::Format_RGB888)
        .mirrored()
        .convertToFormat(QImage::Format_RGB32);
}

class PictureTest : public PrintedViews {
protected:
    PictureTest() { closeAfterwards(); }

    /** The view on the screen, drawn and before all others. */
    QImage screenOf(SoQtGeneralViewerFrame& frame) const {
        opened.activate(frame);
        settleRedraws();
        frame.getViewer()->render();
        return ViewDriver(frame).grab();
    }

    QImage printOf(SoQtGeneralViewerFrame& frame) {
        EXPECT_EQ(save(frame, path()), "ok? 1\n");
        return drawn();
    }

    /**
     * How far a print is from the screen, as a share of how far an empty picture is. The mean
     * colours of patches are compared: only the screen smoothes edges.
     */
    static double difference(const QImage& screen, const QImage& print,
                             const SoQtGeneralViewerFrame& frame) {
        const SbColor& color = frame.getViewer()->getBackgroundColor();
        const QColor background = QColor::fromRgbF(color[0], color[1], color[2]);
        const auto coarse = [&](const QImage& image) {
            return withoutCross(image, background)
                .scaled(screen.size() / patchSize, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                .convertToFormat(QImage::Format_RGB32);
        };
        const QImage seen = coarse(screen);
        QImage empty = seen;
        empty.fill(background);
        return meanDifference(seen, coarse(print)) / meanDifference(seen, empty);
    }

    void expectLikeTheScreen(SoQtGeneralViewerFrame& frame, const std::string& what,
                             double tolerance = filledTolerance) {
        const QImage screen = screenOf(frame);
        EXPECT_LT(difference(screen, printOf(frame), frame), tolerance) << what;
    }
};

} // namespace

TEST_F(PictureTest, PictureIsTheOneOnTheScreenInEveryViewAndStyle) {
    const char* const names[] = {"U", "X", "M", "helix"};
    const std::vector<SoQtGeneralViewerFrame*> frames = opened.frames();
    for (std::size_t i = 0; i < frames.size(); ++i) {
        resizeToWholeInches(*frames[i], 5, 4);
        for (const std::string style : {"Phong", "solid", "lines"}) {
            expectLikeTheScreen(*frames[i], names[i] + (" " + style),
                                style == "lines" ? lineTolerance : filledTolerance);
            frames[i]->toggleDrawStyle();
        }
    }
}

TEST_F(PictureTest, LinesAreAsWideInPrintAsOnTheScreen) {
    HyperboloidFrame& u = opened.hyperboloid(Hyperboloid::USPACE);
    resizeToWholeInches(u, 5, 4);
    u.toggleDrawStyle();
    u.toggleDrawStyle();
    QImage black(1, 1, QImage::Format_RGB32);
    black.fill(Qt::black);
    const auto light = [&](const QImage& image) {
        return meanDifference(withoutCross(image, Qt::black), black.scaled(image.size()));
    };
    const double onScreen = light(screenOf(u));
    EXPECT_NEAR(light(printOf(u)), onScreen, 0.1 * onScreen);
}

TEST_F(PictureTest, PointsAreAsLargeInPrintAsOnTheScreen) {
    SoQtGeneralViewerFrame& helix = opened.firstHelix();
    resizeToWholeInches(helix, 5, 4);
    SoSeparator& root = *helix.getSceneRoot();
    root.removeAllChildren();
    auto* unlit = new SoLightModel;
    unlit->model = SoLightModel::BASE_COLOR;
    root.addChild(unlit);
    auto* places = new SoCoordinate3;
    constexpr int points = 337;
    for (int i = 0; i < points; ++i) {
        const auto turn = static_cast<float>(i);
        places->point.set1Value(i, SbVec3f(std::sin(turn), std::cos(1.7F * turn), 0) * 0.1F);
    }
    root.addChild(places);
    root.addChild(new SoPointSet);
    helix.getViewer()->viewAll();
    QImage black(1, 1, QImage::Format_RGB32);
    black.fill(Qt::black);
    const auto light = [&](const QImage& image) {
        return meanDifference(withoutCross(image, Qt::black), black.scaled(image.size()));
    };
    const double onScreen = light(screenOf(helix));
    EXPECT_GT(onScreen, 0.05);
    EXPECT_NEAR(light(printOf(helix)), onScreen, 0.25 * onScreen);
}

TEST_F(PictureTest, PictureFollowsTheTurnedCameraAndThePerspective) {
    HyperboloidFrame& x = opened.hyperboloid(Hyperboloid::XSPACE);
    resizeToWholeInches(x, 5, 4);
    const ViewDriver driver(x);
    // The camera stays where the hand leaves it, instead of spinning on.
    x.getViewer()->setAnimationEnabled(FALSE);
    driver.drag(Qt::LeftButton, QPoint(150, 150), QPoint(240, 200));
    expectLikeTheScreen(x, "turned");
    driver.key(Qt::Key_P);
    expectLikeTheScreen(x, "perspective");
}

TEST_F(PictureTest, BothSidesAreLitByAHeadlightThatTurnsWithTheCamera) {
    HyperboloidFrame& x = opened.hyperboloid(Hyperboloid::XSPACE);
    for (SoQtGeneralViewerFrame* frame :
         {static_cast<SoQtGeneralViewerFrame*>(&x),
          static_cast<SoQtGeneralViewerFrame*>(&opened.firstHelix())}) {
        resizeToWholeInches(*frame, 5, 4);
        for (const float angle : {1.0F, 2.2F, 4.0F}) {
            lookFrom(*frame->getViewer()->getCamera(), SbRotation(SbVec3f(0.3F, 1, 0.1F), angle));
            expectLikeTheScreen(*frame, "turned " + std::to_string(angle));
        }
    }
}

TEST_F(PictureTest, PictureShowsTransparencyAndBackground) {
    HyperboloidFrame& x = opened.hyperboloid(Hyperboloid::XSPACE);
    resizeToWholeInches(x, 5, 4);
    SoQtGeneralViewer& viewer = *x.getViewer();
    lookFrom(*viewer.getCamera(), SbRotation(SbVec3f(0.3F, 1, 0.1F), 1.0F));
    x.setTransparency(60, true);
    expectLikeTheScreen(x, "transparent");
    viewer.setTransparencyType(SoGLRenderAction::NONE);
    expectLikeTheScreen(x, "opaque by the viewer's will");
    viewer.setBackgroundColor(SbColor(0.2F, 0.3F, 0.4F));
    viewer.setHeadlight(FALSE);
    expectLikeTheScreen(x, "background, no headlight");
}

TEST_F(PictureTest, SurfacesSeenThroughAreBlendedAsOnTheScreen) {
    for (const int space : {Hyperboloid::USPACE, Hyperboloid::XSPACE}) {
        HyperboloidFrame& frame = opened.hyperboloid(space);
        resizeToWholeInches(frame, 4, 3);
        lookFrom(*frame.getViewer()->getCamera(), SbRotation(SbVec3f(0.3F, 1, 0.1F), 1.0F));
        for (const int percent : {23, 47, 81}) {
            frame.setTransparency(percent, true);
            for (const auto type : {SoGLRenderAction::BLEND, SoGLRenderAction::NONE}) {
                frame.getViewer()->setTransparencyType(type);
                const std::string what = std::to_string(percent) + " % in space " +
                                         std::to_string(space) + ", type " + std::to_string(type);
                expectLikeTheScreen(frame, what, seenThroughTolerance);
            }
        }
    }
}

TEST_F(PictureTest, LightThatHasGoneShinesOnAsOnTheScreen) {
    HyperboloidFrame& x = opened.hyperboloid(Hyperboloid::XSPACE);
    resizeToWholeInches(x, 5, 4);
    auto* light = new SoDirectionalLight;
    light->color = SbColor(0.7F, 0.2F, 0.4F);
    light->direction = SbVec3f(1, -0.3F, -0.5F);
    const QImage without = screenOf(x);
    x.getSceneRoot()->insertChild(light, 0);
    screenOf(x);
    x.getSceneRoot()->removeChild(light);
    EXPECT_GT(difference(screenOf(x), without, x), filledTolerance);
    expectLikeTheScreen(x, "a light that has gone");
}

TEST_F(PictureTest, HeadlightThatIsSwitchedOffShinesOnAsOnTheScreen) {
    HyperboloidFrame& x = opened.hyperboloid(Hyperboloid::XSPACE);
    resizeToWholeInches(x, 5, 4);
    SoQtGeneralViewer& viewer = *x.getViewer();
    viewer.getHeadlight()->intensity = 0.37F;
    expectLikeTheScreen(x, "dim");
    viewer.setHeadlight(FALSE);
    expectLikeTheScreen(x, "off");
    // Nobody tells OpenGL of what is switched off.
    viewer.getHeadlight()->intensity = 0.91F;
    viewer.getHeadlight()->direction = SbVec3f(1, 0.2F, -0.3F);
    expectLikeTheScreen(x, "changed while off");
    EXPECT_FALSE(viewer.isHeadlight());
    viewer.setHeadlight(TRUE);
    expectLikeTheScreen(x, "on again");
}

TEST_F(PictureTest, MinimisedViewIsPrintedAsItIsAtThisMoment) {
    HyperboloidFrame& u = opened.hyperboloid(Hyperboloid::USPACE);
    const SoQtGeneralViewer& viewer = *u.getViewer();
    for (const bool perspective : {false, true}) {
        resizeToWholeInches(u, 5, 4);
        ViewDriver(u).key(perspective ? Qt::Key_P : Qt::Key_O);
        screenOf(u);
        opened.subWindow(u).showMinimized();
        settleRedraws();
        opened.window().refresh_hyperboloids(1.07, 1.61, 1.13, 0.47, perspective ? 0.37 : -0.53,
                                             2.3, 0.71, 0.39, 41, 37, 0.3, 3.1, 3.3, 0.02, 0.03);
        viewer.getHeadlight()->intensity = perspective ? 0.93F : 0.57F;
        const float lastNearest = viewer.getCamera()->nearDistance.getValue();
        const float lastFarthest = viewer.getCamera()->farDistance.getValue();
        const QImage print = printOf(u);
        EXPECT_TRUE(opened.subWindow(u).isMinimized());
        EXPECT_EQ(viewer.getCamera()->nearDistance.getValue(), lastNearest);
        EXPECT_EQ(viewer.getCamera()->farDistance.getValue(), lastFarthest);
        resizeToWholeInches(u, 5, 4);
        const QImage screen = screenOf(u);
        EXPECT_NE(viewer.getCamera()->farDistance.getValue(), lastFarthest);
        EXPECT_LT(difference(screen, print, u), filledTolerance) << perspective;
    }
}

TEST_F(PictureTest, EveryRenderedPixelIsDrawnAtItsPlaceAndNoOther) {
    SoQtGeneralViewerFrame& helix = opened.firstHelix();
    helix.getViewer()->setBackgroundColor(SbColor(0.2F, 0.3F, 0.4F));
    for (const auto& [width, height] : std::vector<std::pair<int, int>>{{5, 4}, {4, 3}, {7, 6}}) {
        resizeToWholeInches(helix, width, height);
        const QImage print = printOf(helix);
        const QSize size(width * printer, height * printer);
        EXPECT_EQ(print.size(), size);
        EXPECT_EQ(print, pixelsIn(saved(), size));
    }
}
