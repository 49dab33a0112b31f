#include "helix/HelixNames.h"
#include "hyperboloid/HyperboloidNames.h"
#include "tests/app/ParameterDialogs.h"
#include "tests/support/OpenedWindow.h"
#include "tests/support/ReplacementCounter.h"
#include "tests/support/SceneReader.h"

#include <QDialog>
#include <gtest/gtest.h>
#include <memory>

using namespace ParameterDialogs;

namespace {

void answerParameters(const OpenedWindow& opened, const std::vector<DialogDriver::Step>& steps) {
    DialogDriver(steps).during([&] { opened.action("hyperboloidParamsAct").trigger(); });
}

/** The fifteen values that a space's model has now, in the order of the fields. */
std::vector<double> valuesOf(const OpenedWindow& opened, int space) {
    return ParameterDialogs::valuesOf(HyperboloidParameters::of(opened.hyperboloid(space)));
}

std::vector<double> asFloats(std::vector<double> values) {
    for (double& value : values) {
        value = static_cast<float>(value);
    }
    return values;
}

const std::vector<double> startValues{1, 1.5, 1, 0.5, 0.5, 1, 0, 0, 64, 64, 0.3, 7, 7, 0.02, 0.03};

/** Fifteen values of which no two are equal, as they are typed into the fields. */
const Typed distinctValues{{"K1 :", "2.51"},
                           {"K2 :", "3.27"},
                           {"K3 :", "40.13"},
                           {"K13:", "-0.79"},
                           {"K23:", "1.23"},
                           {"<html>&Ucirc;</html>1:", "0.41"},
                           {"<html>&Ucirc;</html>2:", "-0.37"},
                           {"<html>&Ucirc;</html>3:", "0.19"},
                           {"Horizontal Prec:", "30"},
                           {"Vertical Prec:", "20"},
                           {"Point R:", "0.53"},
                           {"U3Const Range:", "6.11"},
                           {"U3Axis Range:", "5.03"},
                           {"U3Const Radius:", "0.04"},
                           {"U3Axis Radius:", "0.06"}};

/** A model of its own with these values. */
std::unique_ptr<Hyperboloid> distinctModel(int space) {
    auto model = std::make_unique<Hyperboloid>(2.51F, 3.27F, 40.13F, -0.79F, 1.23F, 0.41F, -0.37F,
                                               0.19F, space);
    model->set_parameters(2.51, 3.27, 40.13, -0.79, 1.23, 0.41, -0.37, 0.19, 30, 20, 0.53, 6.11,
                          5.03, 0.04, 0.06);
    model->init_tables();
    model->generateHyperboloidPoints(true, true);
    return model;
}

/** Counts the drawings of the surfaces, U first. */
std::vector<std::unique_ptr<ReplacementCounter>> surfaceDrawings(const OpenedWindow& opened) {
    std::vector<std::unique_ptr<ReplacementCounter>> drawings;
    drawings.reserve(3);
    for (int space = 0; space < 3; ++space) {
        drawings.push_back(std::make_unique<ReplacementCounter>(
            SceneReader::drawStyleBranch(*opened.hyperboloid(space).getSceneRoot()),
            HyperboloidNames::surface));
    }
    return drawings;
}

} // namespace

TEST(ParameterDialogTest, IsModalUntitledAndBelongsToTheMainWindow) {
    const OpenedWindow opened;
    answerParameters(opened, {[&](QWidget& dialog) {
                         EXPECT_TRUE(dialog.isModal());
                         EXPECT_EQ(dialog.windowTitle(), "");
                         EXPECT_EQ(dialog.parent(), &opened.window());
                         pressEscape(dialog);
                     }});
}

TEST(ParameterDialogTest, ShowsTheValuesOfU) {
    const OpenedWindow opened;
    HyperboloidParameters parameters = HyperboloidParameters::of(opened.hyperboloid(0));
    for (int space = 0; space < 3; ++space) {
        parameters.K1 = 1.11 + 0.01 * space;
        opened.hyperboloid(space).setParameters(parameters);
        opened.hyperboloid(space).reDraw(true, true);
    }
    answerParameters(opened, {[&](QWidget& dialog) {
                         EXPECT_EQ(field(dialog, "K1 :").text(), "1.11");
                         pressEscape(dialog);
                     }});
}

TEST(ParameterDialogTest, AcceptedValuesReachAllThreeModels) {
    const OpenedWindow opened;
    answerParameters(opened, {enter(distinctValues)});
    const std::vector<double> expected{2.51, 3.27, 40.13, -0.79, 1.23, 0.41, -0.37, 0.19,
                                       30,   20,   0.53,  6.11,  5.03, 0.04, 0.06};
    for (int space = 0; space < 3; ++space) {
        EXPECT_EQ(asFloats(valuesOf(opened, space)), asFloats(expected)) << "space " << space;
        EXPECT_EQ(opened.hyperboloid(space).getNumCol(), 30U);
        EXPECT_EQ(opened.hyperboloid(space).getNumRow(), 20U);
        const SoSeparator* surface = SceneReader::childNamed(
            SceneReader::drawStyleBranch(*opened.hyperboloid(space).getSceneRoot()),
            HyperboloidNames::surface);
        EXPECT_EQ(SceneReader::child<SoMaterial>(*surface, 0)->diffuseColor.getNum(), 600);
    }
}

TEST(ParameterDialogTest, AcceptedValuesGiveThePointsOfAFreshModelAndTheColoursOfU) {
    const OpenedWindow opened;
    answerParameters(opened, {enter(distinctValues)});
    const auto u = distinctModel(Hyperboloid::USPACE);
    for (int space = 0; space < 3; ++space) {
        const auto fresh = distinctModel(space);
        const HyperboloidFrame& frame = opened.hyperboloid(space);
        ASSERT_EQ(frame.getNumVertices(), 600U);
        for (int k = 0; k < 600; ++k) {
            for (int component = 0; component < 3; ++component) {
                ASSERT_EQ(frame.getVertex(k, component), fresh->getVertex(k, component))
                    << "space " << space << ", vertex " << k;
                ASSERT_EQ(frame.getColor(k, component), u->getColor(k, component))
                    << "space " << space << ", vertex " << k;
            }
        }
    }
}

TEST(ParameterDialogTest, OpensAgainWithTheAcceptedValuesInEveryField) {
    const OpenedWindow opened;
    answerParameters(opened, {enter(distinctValues)});
    answerParameters(opened, {[&](QWidget& dialog) {
                         for (const auto& [label, text] : distinctValues) {
                             EXPECT_EQ(field(dialog, label).text(), text);
                         }
                         pressEscape(dialog);
                     }});
}

TEST(ParameterDialogTest, OkButtonAndEnterAcceptEachSurfaceDrawnOnce) {
    const OpenedWindow opened;
    const auto drawings = surfaceDrawings(opened);
    const std::vector<DialogDriver::Step> waysOn{[](QWidget& dialog) { click(dialog, "Ok"); },
                                                 [](QWidget& dialog) {
                                                     pressEnter(dialog);
                                                 }};
    for (const DialogDriver::Step& accept : waysOn) {
        answerParameters(opened, {accept});
        for (const auto& drawing : drawings) {
            EXPECT_EQ(drawing->take(), 1);
        }
    }
    EXPECT_EQ(asFloats(valuesOf(opened, Hyperboloid::MSPACE)), asFloats(startValues));
}

TEST(ParameterDialogTest, CancelEscapeAndClosingLeaveEverythingUntouched) {
    const OpenedWindow opened;
    std::vector<std::unique_ptr<ReplacementCounter>> drawings = surfaceDrawings(opened);
    drawings.push_back(std::make_unique<ReplacementCounter>(*opened.firstHelix().getSceneRoot(),
                                                            HelixNames::tube));
    const std::vector<DialogDriver::Step> waysOut{[](QWidget& dialog) { click(dialog, "Cancel"); },
                                                  [](QWidget& dialog) { pressEscape(dialog); },
                                                  [](QWidget& dialog) {
                                                      dialog.close();
                                                  }};
    for (const DialogDriver::Step& leave : waysOut) {
        answerParameters(opened, {[&](QWidget& dialog) {
                             type(dialog, "K1 :", "1.2");
                             type(dialog, "Vertical Prec:", "7");
                             leave(dialog);
                         }});
        for (int space = 0; space < 3; ++space) {
            EXPECT_EQ(asFloats(valuesOf(opened, space)), asFloats(startValues));
        }
        for (const auto& drawing : drawings) {
            EXPECT_EQ(drawing->take(), 0);
        }
    }
}

TEST(ParameterDialogTest, BrokenOrderShowsItsPictureAndTheModelsValuesAgain) {
    const OpenedWindow opened;
    answerParameters(opened,
                     {enter({{"K1 :", "2"}, {"K2 :", "1"}, {"K13:", "0"}, {"K23:", "0"}}),
                      seeError(":/images/err2.png"), enter({{"K1 :", "3"}}),
                      seeError(":/images/err2.png"), enter({{"K1 :", "3"}, {"K2 :", "4"}})});
    EXPECT_EQ(opened.hyperboloid(Hyperboloid::XSPACE).getK(0), 3.0F);
    EXPECT_EQ(opened.hyperboloid(Hyperboloid::XSPACE).getK(3), 0.5F) << "refused input is not kept";
}

TEST(ParameterDialogTest, RefusedRetriesLeaveNothingBehind) {
    constexpr int retries = 12;
    const OpenedWindow opened;
    std::vector<DialogDriver::Step> steps;
    int topLevels = 0;
    int children = 0;
    for (int i = 0; i < retries; ++i) {
        steps.emplace_back([&, i](QWidget& dialog) {
            if (i == 1) {
                topLevels = QApplication::topLevelWidgets().size();
                children = opened.window().findChildren<QObject*>().size();
            } else if (i > 1) {
                EXPECT_EQ(QApplication::topLevelWidgets().size(), topLevels);
                EXPECT_EQ(opened.window().findChildren<QObject*>().size(), children);
            }
            type(dialog, "K3 :", "0");
            pressEnter(dialog);
        });
        steps.push_back(seeError(":/images/err1.png"));
    }
    steps.emplace_back([](QWidget& dialog) { pressEscape(dialog); });
    const int topLevelsBefore = QApplication::topLevelWidgets().size();
    const auto childrenBefore = opened.window().findChildren<QObject*>().size();
    answerParameters(opened, steps);
    EXPECT_GT(children, childrenBefore);
    EXPECT_EQ(QApplication::topLevelWidgets().size(), topLevelsBefore);
    // The status bar has changed: until the event loop runs, the new layout is an object, too.
    EXPECT_TRUE(waitUntil(
        [&] { return opened.window().findChildren<QObject*>().size() == childrenBefore; }));
}

TEST(ParameterDialogTest, ShortcutOpensIt) {
    const OpenedWindow opened;
    DialogDriver()
        .then<QDialog>([](QDialog& dialog) {
            EXPECT_EQ(field(dialog, "K2 :").text(), "1.50");
            pressEscape(dialog);
        })
        .during([&] { QTest::keyClick(&opened.window(), Qt::Key_P, Qt::ControlModifier); });
}
