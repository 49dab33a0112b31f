#include "hyperboloid/HyperboloidNames.h"
#include "tests/support/OpenedWindow.h"
#include "tests/support/ReplacementCounter.h"
#include "tests/support/SceneReader.h"
#include "tests/support/SliderWindow.h"

#include <QSignalBlocker>
#include <gtest/gtest.h>

namespace {

enum Row { transparency, lightness, saturation, rowCount };

SliderWindow openAppearanceWindow(const OpenedWindow& opened) {
    return {opened, "appearanceAct"};
}

/** Counts the redraws of the three surfaces. */
class SurfaceDrawings {
public:
    explicit SurfaceDrawings(const OpenedWindow& opened)
        : u(branch(opened, Hyperboloid::USPACE), HyperboloidNames::surface)
        , x(branch(opened, Hyperboloid::XSPACE), HyperboloidNames::surface)
        , m(branch(opened, Hyperboloid::MSPACE), HyperboloidNames::surface) {}

    std::vector<int> take() { return {u.take(), x.take(), m.take()}; }

private:
    static SoSeparator& branch(const OpenedWindow& opened, int space) {
        return SceneReader::drawStyleBranch(*opened.hyperboloid(space).getSceneRoot());
    }

    ReplacementCounter u;
    ReplacementCounter x;
    ReplacementCounter m;
};

const std::vector<int> once{1, 1, 1};
const std::vector<int> twice{2, 2, 2};
const std::vector<int> never{0, 0, 0};

float transparencyInScene(const HyperboloidFrame& frame) {
    const SoSeparator* surface = SceneReader::childNamed(
        SceneReader::drawStyleBranch(*frame.getSceneRoot()), HyperboloidNames::surface);
    return SceneReader::child<SoMaterial>(*surface, 0)->transparency[0];
}

std::vector<float> colorsOf(const Hyperboloid& model) {
    std::vector<float> colors;
    for (int k = 0; k < static_cast<int>(model.getNumVertices()); ++k) {
        for (int channel = 0; channel < 3; ++channel) {
            colors.push_back(model.getColor(k, channel));
        }
    }
    return colors;
}

/** Whether the X and M surfaces wear the U surface's colours, in the model and in the scene. */
void expectSharedColors(const OpenedWindow& opened) {
    const std::vector<float> expected = colorsOf(opened.hyperboloid(Hyperboloid::USPACE));
    for (int space = 0; space < 3; ++space) {
        const HyperboloidFrame& frame = opened.hyperboloid(space);
        EXPECT_EQ(colorsOf(frame), expected) << "space " << space;
        const SoSeparator* surface = SceneReader::childNamed(
            SceneReader::drawStyleBranch(*frame.getSceneRoot()), HyperboloidNames::surface);
        const auto* material = SceneReader::child<SoMaterial>(*surface, 0);
        EXPECT_EQ(material->diffuseColor[100], SbColor(&expected[300])) << "space " << space;
    }
}

} // namespace

TEST(AppearanceWindowTest, IsAWindowOfItsOwnWithThreeRows) {
    const OpenedWindow opened;
    const SliderWindow window = openAppearanceWindow(opened);
    EXPECT_TRUE(window.widget().isVisible());
    EXPECT_EQ(window.widget().parent(), nullptr);
    EXPECT_EQ(window.widget().windowTitle(), "");
    EXPECT_EQ(window.widget().windowModality(), Qt::NonModal);
    const QStringList texts{"Transparency:", "Lightness:", "Saturation:"};
    ASSERT_EQ(window.column<QLabel>().size(), rowCount);
    ASSERT_EQ(window.column<QSpinBox>().size(), rowCount);
    ASSERT_EQ(window.column<QSlider>().size(), rowCount);
    for (int row = 0; row < rowCount; ++row) {
        EXPECT_EQ(window.label(row).text(), texts[row]);
        EXPECT_EQ(window.spinBox(row).minimum(), 0);
        EXPECT_EQ(window.spinBox(row).maximum(), 100);
        EXPECT_EQ(window.spinBox(row).singleStep(), 1);
        EXPECT_EQ(window.slider(row).minimum(), 0);
        EXPECT_EQ(window.slider(row).maximum(), 100);
        EXPECT_EQ(window.slider(row).singleStep(), 1);
        EXPECT_EQ(window.slider(row).orientation(), Qt::Horizontal);
    }
}

TEST(AppearanceWindowTest, OpeningShowsTheModelAndAppliesWhatIsNotZeroOnce) {
    const OpenedWindow opened;
    SurfaceDrawings drawings(opened);
    const SliderWindow window = openAppearanceWindow(opened);
    EXPECT_EQ(window.spinBoxValues(), (std::vector<int>{0, 50, 80}));
    EXPECT_EQ(window.slider(lightness).value(), 50);
    EXPECT_EQ(window.slider(saturation).value(), 80);
    EXPECT_EQ(drawings.take(), twice) << "lightness and saturation, but not the transparency of 0";
}

TEST(AppearanceWindowTest, ShowsTheValuesOfUAndAppliesThemToTheOthers) {
    const OpenedWindow opened;
    int percent = 31;
    for (int space = 0; space < 3; ++space) {
        HyperboloidFrame& frame = opened.hyperboloid(space);
        frame.setTransparency(percent++, false);
        frame.setLightness(percent++, false);
        frame.setSaturation(percent++, false);
    }
    const SliderWindow window = openAppearanceWindow(opened);
    EXPECT_EQ(window.spinBoxValues(), (std::vector<int>{31, 32, 33}));
    for (int space = 0; space < 3; ++space) {
        EXPECT_EQ(opened.hyperboloid(space).getTransparency(), 0.31) << "space " << space;
        EXPECT_EQ(opened.hyperboloid(space).getLightness(), 0.32) << "space " << space;
        EXPECT_EQ(opened.hyperboloid(space).getSaturation(), 0.33) << "space " << space;
    }
}

TEST(AppearanceWindowTest, AppliesTransparencyFirstAndSaturationLast) {
    const OpenedWindow opened;
    HyperboloidFrame& u = opened.hyperboloid(Hyperboloid::USPACE);
    HyperboloidFrame& x = opened.hyperboloid(Hyperboloid::XSPACE);
    u.setTransparency(31, false);
    u.setLightness(32, false);
    u.setSaturation(33, false);
    x.setTransparency(41, false);
    x.setLightness(42, false);
    x.setSaturation(43, false);
    using Values = std::vector<double>;
    std::vector<Values> drawn;
    const ReplacementCounter drawings(
        SceneReader::drawStyleBranch(*x.getSceneRoot()), HyperboloidNames::surface, [&] {
            drawn.push_back({x.getTransparency(), x.getLightness(), x.getSaturation()});
        });
    const SliderWindow window = openAppearanceWindow(opened);
    EXPECT_EQ(drawn, (std::vector<Values>{Values{0.31, 0.42, 0.43}, Values{0.31, 0.32, 0.43},
                                          Values{0.31, 0.32, 0.33}}));
}

TEST(AppearanceWindowTest, ValueOfZeroTriggersNothingAtOpening) {
    const OpenedWindow opened;
    for (int space = 0; space < 3; ++space) {
        opened.hyperboloid(space).setLightness(0, false);
        opened.hyperboloid(space).setSaturation(0, false);
    }
    SurfaceDrawings drawings(opened);
    const SliderWindow window = openAppearanceWindow(opened);
    EXPECT_EQ(window.spinBoxValues(), (std::vector<int>{0, 0, 0}));
    EXPECT_EQ(drawings.take(), never);
}

TEST(AppearanceWindowTest, FractionsOfAPercentAreDropped) {
    const OpenedWindow opened;
    // 29 / 100.0 is a little less than 0.29, and 100 times that a little less than 29.
    opened.call("refreshHyperboloidTransp", Q_ARG(int, 29));
    ASSERT_LT(opened.hyperboloid(Hyperboloid::USPACE).getTransparency() * 100.0, 29);
    const SliderWindow window = openAppearanceWindow(opened);
    EXPECT_EQ(window.spinBox(transparency).value(), 28);
    EXPECT_EQ(opened.hyperboloid(Hyperboloid::USPACE).getTransparency(), 0.28);
}

TEST(AppearanceWindowTest, TransparencySliderReachesAllThreeSurfacesAndRegeneratesNothing) {
    const OpenedWindow opened;
    const SliderWindow window = openAppearanceWindow(opened);
    HyperboloidFrame& u = opened.hyperboloid(Hyperboloid::USPACE);
    const std::vector<float> before = colorsOf(u);
    u.setSaturation(10, false); // would show if the colours were computed anew
    SurfaceDrawings drawings(opened);
    window.slider(transparency).setValue(30);
    EXPECT_EQ(window.spinBox(transparency).value(), 30);
    EXPECT_EQ(drawings.take(), once);
    EXPECT_EQ(colorsOf(u), before);
    for (int space = 0; space < 3; ++space) {
        EXPECT_EQ(opened.hyperboloid(space).getTransparency(), 0.3);
        EXPECT_EQ(transparencyInScene(opened.hyperboloid(space)), 0.3F);
    }
}

TEST(AppearanceWindowTest, TypedLightnessMovesTheSliderAndRecoloursAllThreeSurfaces) {
    const OpenedWindow opened;
    const SliderWindow window = openAppearanceWindow(opened);
    const std::vector<float> before = colorsOf(opened.hyperboloid(Hyperboloid::USPACE));
    window.type(lightness, "40");
    EXPECT_EQ(window.slider(lightness).value(), 40);
    EXPECT_NE(colorsOf(opened.hyperboloid(Hyperboloid::USPACE)), before);
    for (int space = 0; space < 3; ++space) {
        EXPECT_EQ(opened.hyperboloid(space).getLightness(), 0.4);
    }
    expectSharedColors(opened);
}

TEST(AppearanceWindowTest, SaturationOfZeroMakesEverySurfaceGrey) {
    const OpenedWindow opened;
    const SliderWindow window = openAppearanceWindow(opened);
    QTest::keyClick(&window.slider(saturation), Qt::Key_Home);
    for (int space = 0; space < 3; ++space) {
        EXPECT_EQ(opened.hyperboloid(space).getSaturation(), 0.0);
    }
    for (const float channel : colorsOf(opened.hyperboloid(Hyperboloid::USPACE))) {
        ASSERT_EQ(channel, 0.5F);
    }
    expectSharedColors(opened);
}

TEST(AppearanceWindowTest, EachChangeRedrawsTheSurfacesOnce) {
    const OpenedWindow opened;
    const SliderWindow window = openAppearanceWindow(opened);
    SurfaceDrawings drawings(opened);
    for (int row = 0; row < rowCount; ++row) {
        QTest::keyClick(&window.spinBox(row), Qt::Key_Up);
        EXPECT_EQ(drawings.take(), once) << "spin box " << row;
        QTest::keyClick(&window.slider(row), Qt::Key_Right);
        EXPECT_EQ(drawings.take(), once) << "slider " << row;
        EXPECT_EQ(window.spinBox(row).value(), window.slider(row).value());
        window.slider(row).setValue(window.slider(row).value());
        EXPECT_EQ(drawings.take(), never) << "no change " << row;
    }
}

TEST(AppearanceWindowTest, OnlyTheSlidersDriveTheSurfaces) {
    const OpenedWindow opened;
    const SliderWindow window = openAppearanceWindow(opened);
    SurfaceDrawings drawings(opened);
    for (int row = 0; row < rowCount; ++row) {
        const QSignalBlocker silentSlider(window.slider(row));
        window.type(row, "7");
        EXPECT_EQ(window.slider(row).value(), 7);
        EXPECT_EQ(drawings.take(), never) << "row " << row;
    }
    EXPECT_EQ(opened.hyperboloid(Hyperboloid::USPACE).getLightness(), 0.5);
}

TEST(AppearanceWindowTest, BoundsHold) {
    const OpenedWindow opened;
    const SliderWindow window = openAppearanceWindow(opened);
    for (int row = 0; row < rowCount; ++row) {
        window.type(row, "1000");
        EXPECT_EQ(window.spinBox(row).value(), 100);
        QTest::keyClick(&window.slider(row), Qt::Key_Right);
        EXPECT_EQ(window.slider(row).value(), 100);
    }
    EXPECT_EQ(transparencyInScene(opened.hyperboloid(Hyperboloid::MSPACE)), 1.0F);
    EXPECT_EQ(opened.hyperboloid(Hyperboloid::XSPACE).getSaturation(), 1.0);
}

TEST(AppearanceWindowTest, ViewsFollowTheSlider) {
    const OpenedWindow opened;
    const SliderWindow window = openAppearanceWindow(opened);
    for (int space = 0; space < 3; ++space) {
        const ViewDriver view(opened.hyperboloid(space));
        const QImage before = view.grab();
        window.slider(lightness).setValue(30 + 20 * space);
        EXPECT_TRUE(waitUntil([&] { return view.grab() != before; })) << "space " << space;
    }
}

TEST(AppearanceWindowTest, SeveralWindowsActOnTheSameSurfaces) {
    const OpenedWindow opened;
    SliderWindow first = openAppearanceWindow(opened);
    const SliderWindow second = openAppearanceWindow(opened);
    ASSERT_NE(&first.widget(), &second.widget());
    first.slider(transparency).setValue(20);
    second.slider(transparency).setValue(60);
    EXPECT_EQ(first.slider(transparency).value(), 20);
    EXPECT_EQ(opened.hyperboloid(Hyperboloid::XSPACE).getTransparency(), 0.6);
    first.close();
    second.slider(transparency).setValue(70);
    EXPECT_EQ(opened.hyperboloid(Hyperboloid::XSPACE).getTransparency(), 0.7);
}

TEST(AppearanceWindowTest, EmptyHookChangesNothing) {
    const OpenedWindow opened;
    SurfaceDrawings drawings(opened);
    const int windows = QApplication::topLevelWidgets().size();
    opened.call("changeHyperboloidColor");
    EXPECT_EQ(drawings.take(), never);
    EXPECT_EQ(QApplication::topLevelWidgets().size(), windows);
}

TEST(AppearanceWindowTest, ClosedWindowsAreReleased) {
    const OpenedWindow opened;
    const int before = QApplication::topLevelWidgets().size();
    for (int i = 0; i < 20; ++i) {
        openAppearanceWindow(opened).close();
    }
    EXPECT_EQ(QApplication::topLevelWidgets().size(), before);
}

TEST(AppearanceWindowTest, GoesWithTheMainWindowAndNeverKeepsTheProgramAlive) {
    QPointer<QWidget> left;
    {
        const OpenedWindow opened;
        const SliderWindow window = openAppearanceWindow(opened);
        left = &window.widget();
        EXPECT_FALSE(left->testAttribute(Qt::WA_QuitOnClose));
    }
    EXPECT_TRUE(left.isNull());
}
