#include "helix/HelixNames.h"
#include "hyperboloid/HyperboloidNames.h"
#include "hyperboloid/HyperboloidParameters.h"
#include "tests/support/DialogDriver.h"
#include "tests/support/OpenedWindow.h"
#include "tests/support/ReplacementCounter.h"
#include "tests/support/SceneReader.h"
#include "tests/support/Spheres.h"

#include <QBoxLayout>
#include <QDialog>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QPushButton>
#include <gtest/gtest.h>

namespace {

/** A field by its label, as the user finds it. */
QAbstractSpinBox& field(const QWidget& dialog, const QString& label) {
    for (int i = 0; i < dialog.layout()->itemAt(0)->layout()->count(); i += 2) {
        const QLayout& columns = *dialog.layout()->itemAt(0)->layout();
        QLayout& labels = *columns.itemAt(i)->layout();
        for (int row = 0; row < labels.count(); ++row) {
            if (qobject_cast<QLabel*>(labels.itemAt(row)->widget())->text() == label) {
                return *qobject_cast<QAbstractSpinBox*>(
                    columns.itemAt(i + 1)->layout()->itemAt(row)->widget());
            }
        }
    }
    throw std::runtime_error(label.toStdString());
}

void type(const QWidget& dialog, const QString& label, const QString& text) {
    QAbstractSpinBox& box = field(dialog, label);
    box.selectAll();
    QTest::keyClicks(&box, text);
}

QPushButton& button(const QWidget& dialog, const QString& text) {
    for (QPushButton* candidate : dialog.findChildren<QPushButton*>()) {
        if (candidate->text() == text) {
            return *candidate;
        }
    }
    throw std::runtime_error(text.toStdString());
}

void click(const QWidget& dialog, const QString& text) {
    QTest::mouseClick(&button(dialog, text), Qt::LeftButton);
}

void pressEnter(QWidget& dialog) {
    QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
}

void pressEscape(QWidget& dialog) {
    QTest::keyClick(dialog.focusWidget(), Qt::Key_Escape);
}

using Typed = std::vector<std::pair<QString, QString>>;

/** Fills fields and accepts. */
DialogDriver::Step enter(const Typed& values) {
    return [values](QWidget& dialog) {
        for (const auto& [label, text] : values) {
            type(dialog, label, text);
        }
        pressEnter(dialog);
    };
}

void answerParameters(const OpenedWindow& opened, const std::vector<DialogDriver::Step>& steps) {
    DialogDriver(steps).during([&] { opened.action("hyperboloidParamsAct").trigger(); });
}

/** The fifteen values that a space's model has now, in the order of refresh_hyperboloids(). */
std::vector<double> valuesOf(const OpenedWindow& opened, int space) {
    const HyperboloidParameters p = HyperboloidParameters::of(opened.hyperboloid(space));
    return {p.K1,
            p.K2,
            p.K3,
            p.K13,
            p.K23,
            p.U1,
            p.U2,
            p.U3,
            static_cast<double>(p.horizontalPrecision),
            static_cast<double>(p.verticalPrecision),
            p.pointRadius,
            p.u3constRange,
            p.u3axisRange,
            p.u3constRadius,
            p.u3axisRadius};
}

std::vector<double> asFloats(std::vector<double> values) {
    for (double& value : values) {
        value = static_cast<float>(value);
    }
    return values;
}

const std::vector<double> startValues{1, 1.5, 1, 0.5, 0.5, 1, 0, 0, 64, 64, 0.3, 7, 7, 0.02, 0.03};

void expectError(QWidget& dialog, const char* picturePath) {
    EXPECT_EQ(dialog.metaObject()->className(), std::string("QDialog"));
    EXPECT_TRUE(dialog.isModal());
    EXPECT_EQ(dialog.windowTitle(), "");
    auto* layout = qobject_cast<QVBoxLayout*>(dialog.layout());
    ASSERT_NE(layout, nullptr);
    ASSERT_EQ(layout->count(), 3);
    EXPECT_EQ(qobject_cast<QLabel*>(layout->itemAt(0)->widget())->text(),
              "This condition isn't satysfied:");
    const QPixmap picture =
        qobject_cast<QLabel*>(layout->itemAt(1)->widget())->pixmap(Qt::ReturnByValue);
    EXPECT_FALSE(picture.isNull());
    EXPECT_EQ(picture.toImage(), QPixmap(picturePath).toImage());
    EXPECT_GE(layout->itemAt(1)->widget()->width(), picture.width());
    EXPECT_GE(layout->itemAt(1)->widget()->height(), picture.height());
    auto* ok = qobject_cast<QPushButton*>(layout->itemAt(2)->widget());
    ASSERT_NE(ok, nullptr);
    EXPECT_EQ(ok->text(), "Ok");
    EXPECT_TRUE(ok->isDefault());
}

DialogDriver::Step seeError(const char* picturePath) {
    return [picturePath](QWidget& dialog) {
        expectError(dialog, picturePath);
        click(dialog, "Ok");
    };
}

void expectTiedTo(const OpenedWindow& opened, const HelixFrame& helix, int index) {
    EXPECT_EQ(helix.getIndex(), index);
    for (int space = 0; space < 3; ++space) {
        const HyperboloidFrame& frame = opened.hyperboloid(space);
        EXPECT_EQ(spherePosition(frame, helix),
                  SbVec3f(frame.getVertex(index, 0), frame.getVertex(index, 1),
                          frame.getVertex(index, 2)))
            << "space " << space;
        EXPECT_EQ(SceneReader::countNamed(SceneReader::phongBranch(*frame.getSceneRoot()),
                                          helix.getName()),
                  1);
    }
    EXPECT_EQ(helix.getHelix().getTorsion(),
              opened.hyperboloid(Hyperboloid::USPACE).getVertex(index, 2));
}

/** Gives the grid another number of columns and rows through the dialog. */
void changeGrid(const OpenedWindow& opened, int columns, int rows) {
    answerParameters(opened, {enter({{"Horizontal Prec:", QString::number(columns)},
                                     {"Vertical Prec:", QString::number(rows)}})});
}

} // namespace

TEST(ParameterDialogTest, FieldsHaveTheirLabelsRangesStepsAndTheModelsValues) {
    struct Expected {
        const char* label;
        double minimum;
        double maximum;
        double value;
    };
    const std::vector<Expected> reals{{"K1 :", 0.01, 100, 1},
                                      {"K2 :", 0.01, 100, 1.5},
                                      {"K3 :", 0, 100, 1},
                                      {"K13:", -100, 100, 0.5},
                                      {"K23:", -100, 100, 0.5},
                                      {"<html>&Ucirc;</html>1:", -100, 100, 1},
                                      {"<html>&Ucirc;</html>2:", -100, 100, 0},
                                      {"<html>&Ucirc;</html>3:", -100, 100, 0},
                                      {"Point R:", 0, 10, 0.3},
                                      {"U3Const Range:", 0, 100, 7},
                                      {"U3Axis Range:", 0, 100, 7},
                                      {"U3Const Radius:", 0, 100, 0.02},
                                      {"U3Axis Radius:", 0, 100, 0.03}};
    const OpenedWindow opened;
    answerParameters(opened, {[&](QWidget& dialog) {
                         for (const Expected& expected : reals) {
                             auto* box =
                                 qobject_cast<QDoubleSpinBox*>(&field(dialog, expected.label));
                             ASSERT_NE(box, nullptr) << expected.label;
                             EXPECT_EQ(box->minimum(), expected.minimum) << expected.label;
                             EXPECT_EQ(box->maximum(), expected.maximum) << expected.label;
                             EXPECT_EQ(box->singleStep(), 0.01) << expected.label;
                             EXPECT_EQ(box->decimals(), 2) << expected.label;
                             EXPECT_EQ(box->value(), expected.value) << expected.label;
                         }
                         for (const char* label : {"Horizontal Prec:", "Vertical Prec:"}) {
                             auto* box = qobject_cast<QSpinBox*>(&field(dialog, label));
                             ASSERT_NE(box, nullptr) << label;
                             EXPECT_EQ(box->minimum(), 5);
                             EXPECT_EQ(box->maximum(), 500);
                             EXPECT_EQ(box->singleStep(), 1);
                             EXPECT_EQ(box->value(), 64);
                         }
                         EXPECT_EQ(dialog.findChildren<QAbstractSpinBox*>().size(), 15);
                         pressEscape(dialog);
                     }});
}

TEST(ParameterDialogTest, IsModalUntitledAndBelongsToTheMainWindow) {
    const OpenedWindow opened;
    answerParameters(opened, {[&](QWidget& dialog) {
                         EXPECT_TRUE(dialog.isModal());
                         EXPECT_EQ(dialog.windowTitle(), "");
                         EXPECT_EQ(dialog.parent(), &opened.window());
                         pressEscape(dialog);
                     }});
}

TEST(ParameterDialogTest, SixColumnsStandAboveTheButtons) {
    const std::vector<QStringList> labelColumns{
        {"K1 :", "K2 :", "K3 :", "K13:", "K23:"},
        {"<html>&Ucirc;</html>1:", "<html>&Ucirc;</html>2:", "<html>&Ucirc;</html>3:", "Point R:",
         "Horizontal Prec:"},
        {"U3Const Range:", "U3Axis Range:", "U3Const Radius:", "U3Axis Radius:", "Vertical Prec:"}};
    const OpenedWindow opened;
    answerParameters(
        opened, {[&](QWidget& dialog) {
            auto* outer = qobject_cast<QVBoxLayout*>(dialog.layout());
            ASSERT_NE(outer, nullptr);
            ASSERT_EQ(outer->count(), 2);
            auto* columns = qobject_cast<QHBoxLayout*>(outer->itemAt(0)->layout());
            ASSERT_NE(columns, nullptr);
            ASSERT_EQ(columns->count(), 6);
            for (int column = 0; column < 6; ++column) {
                auto* rows = qobject_cast<QVBoxLayout*>(columns->itemAt(column)->layout());
                ASSERT_NE(rows, nullptr);
                ASSERT_EQ(rows->count(), 5);
                for (int row = 0; column % 2 == 0 && row < 5; ++row) {
                    EXPECT_EQ(qobject_cast<QLabel*>(rows->itemAt(row)->widget())->text(),
                              labelColumns[static_cast<std::size_t>(column / 2)][row]);
                }
            }
            auto* buttons = qobject_cast<QHBoxLayout*>(outer->itemAt(1)->layout());
            ASSERT_NE(buttons, nullptr);
            ASSERT_EQ(buttons->count(), 2);
            EXPECT_EQ(buttons->itemAt(0)->widget(), &button(dialog, "Cancel"));
            EXPECT_EQ(buttons->itemAt(1)->widget(), &button(dialog, "Ok"));
            EXPECT_TRUE(button(dialog, "Ok").isDefault());
            EXPECT_FALSE(button(dialog, "Cancel").isDefault());
            pressEscape(dialog);
        }});
}

TEST(ParameterDialogTest, EverythingIsReadableAtOnceAndTheSizeIsFixed) {
    const OpenedWindow opened(QSize(500, 500));
    answerParameters(opened, {[&](QWidget& dialog) {
                         ASSERT_TRUE(QTest::qWaitForWindowExposed(&dialog, patience));
                         EXPECT_EQ(dialog.size(), dialog.sizeHint());
                         EXPECT_EQ(dialog.minimumSize(), dialog.maximumSize());
                         const QSize before = dialog.size();
                         dialog.resize(before * 2);
                         EXPECT_EQ(dialog.size(), before);
                         for (QWidget* widget : dialog.findChildren<QWidget*>(
                                  QString(), Qt::FindDirectChildrenOnly)) {
                             EXPECT_TRUE(widget->isVisible());
                             EXPECT_TRUE(dialog.rect().contains(widget->geometry()));
                             EXPECT_GE(widget->width(), widget->minimumSizeHint().width());
                             EXPECT_GE(widget->height(), widget->minimumSizeHint().height());
                         }
                         pressEscape(dialog);
                     }});
}

TEST(ParameterDialogTest, ArrowKeysStepAndTextOutOfRangeIsHeldBack) {
    const OpenedWindow opened;
    answerParameters(opened, {[&](QWidget& dialog) {
                         auto& K1 = *qobject_cast<QDoubleSpinBox*>(&field(dialog, "K1 :"));
                         QTest::keyClick(&K1, Qt::Key_Down);
                         EXPECT_DOUBLE_EQ(K1.value(), 0.99);
                         type(dialog, "K1 :", "1000");
                         EXPECT_EQ(K1.value(), 100);
                         type(dialog, "K1 :", "-5");
                         EXPECT_GE(K1.value(), 0.01);
                         auto& rows = *qobject_cast<QSpinBox*>(&field(dialog, "Vertical Prec:"));
                         QTest::keyClick(&rows, Qt::Key_Up);
                         EXPECT_EQ(rows.value(), 65);
                         type(dialog, "Vertical Prec:", "501");
                         EXPECT_LE(rows.value(), 500);
                         pressEscape(dialog);
                     }});
}

TEST(ParameterDialogTest, AcceptedValuesReachAllThreeModels) {
    const OpenedWindow opened;
    const Typed typed{{"K1 :", "2.5"},
                      {"K2 :", "3.25"},
                      {"K3 :", "40"},
                      {"K13:", "-0.75"},
                      {"K23:", "1.2"},
                      {"<html>&Ucirc;</html>1:", "0.4"},
                      {"<html>&Ucirc;</html>2:", "-0.3"},
                      {"<html>&Ucirc;</html>3:", "0.2"},
                      {"Horizontal Prec:", "30"},
                      {"Vertical Prec:", "20"},
                      {"Point R:", "0.5"},
                      {"U3Const Range:", "6"},
                      {"U3Axis Range:", "5"},
                      {"U3Const Radius:", "0.04"},
                      {"U3Axis Radius:", "0.05"}};
    answerParameters(opened, {enter(typed)});
    const std::vector<double> expected{2.5, 3.25, 40,  -0.75, 1.2, 0.4,  -0.3, 0.2,
                                       30,  20,   0.5, 6,     5,   0.04, 0.05};
    for (int space = 0; space < 3; ++space) {
        EXPECT_EQ(asFloats(valuesOf(opened, space)), asFloats(expected)) << "space " << space;
        EXPECT_EQ(opened.hyperboloid(space).getNumCol(), 30U);
        EXPECT_EQ(opened.hyperboloid(space).getNumRow(), 20U);
        const SoSeparator* surface = SceneReader::childNamed(
            SceneReader::drawStyleBranch(*opened.hyperboloid(space).getSceneRoot()),
            HyperboloidNames::surface);
        EXPECT_EQ(SceneReader::child<SoMaterial>(*surface, 0)->diffuseColor.getNum(), 600);
    }
    for (int k = 0; k < 600; ++k) {
        for (int channel = 0; channel < 3; ++channel) {
            const float expectedColor = opened.hyperboloid(0).getColor(k, channel);
            ASSERT_EQ(opened.hyperboloid(1).getColor(k, channel), expectedColor);
            ASSERT_EQ(opened.hyperboloid(2).getColor(k, channel), expectedColor);
        }
    }
    answerParameters(opened, {[&](QWidget& dialog) {
                         EXPECT_EQ(field(dialog, "K13:").text(), "-0.75");
                         EXPECT_EQ(field(dialog, "Horizontal Prec:").text(), "30");
                         EXPECT_EQ(field(dialog, "U3Axis Radius:").text(), "0.05");
                         pressEscape(dialog);
                     }});
}

TEST(ParameterDialogTest, OkButtonAndEnterAcceptEachSurfaceDrawnOnce) {
    const OpenedWindow opened;
    ReplacementCounter drawings(
        SceneReader::drawStyleBranch(*opened.hyperboloid(Hyperboloid::MSPACE).getSceneRoot()),
        HyperboloidNames::surface);
    answerParameters(opened, {[](QWidget& dialog) {
                         click(dialog, "Ok");
                     }});
    EXPECT_EQ(drawings.take(), 1);
    answerParameters(opened, {[](QWidget& dialog) {
                         pressEnter(dialog);
                     }});
    EXPECT_EQ(drawings.take(), 1);
    EXPECT_EQ(asFloats(valuesOf(opened, Hyperboloid::MSPACE)), asFloats(startValues));
}

TEST(ParameterDialogTest, CancelEscapeAndClosingLeaveEverythingUntouched) {
    const OpenedWindow opened;
    std::vector<std::unique_ptr<ReplacementCounter>> drawings;
    for (int space = 0; space < 3; ++space) {
        drawings.push_back(std::make_unique<ReplacementCounter>(
            SceneReader::drawStyleBranch(*opened.hyperboloid(space).getSceneRoot()),
            HyperboloidNames::surface));
    }
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

TEST(ParameterDialogTest, ConditionsAreCheckedTheQuadricFirst) {
    MainWindow window;
    EXPECT_EQ(window.verify_param(1, 1.5, 1, 0.5, 0.5), 0);
    EXPECT_EQ(window.verify_param(2, 1, 1, 0, 0), 1);
    EXPECT_EQ(window.verify_param(1, 1, 1, 0, 0), 0) << "K1 may equal K2";
    EXPECT_EQ(window.verify_param(1, 1.5, 0, 0, 0), 2) << "0 is not less than 0";
    EXPECT_EQ(window.verify_param(1, 2, 1.5, 1, 1), 2) << "equal to K3 is too much";
    EXPECT_EQ(window.verify_param(1, 2, 1.51, 1, 1), 0);
    EXPECT_EQ(window.verify_param(2, 1, 1, 5, 5), 2) << "both are broken";
    EXPECT_EQ(window.verify_param(1, 1.5, 1, -2, 0), 2) << "the sign of K13 does not count";
}

TEST(ParameterDialogTest, BrokenQuadricShowsItsPictureAndTheModelsValuesAgain) {
    const OpenedWindow opened;
    answerParameters(opened, {enter({{"K3 :", "0"}, {"K1 :", "0.7"}}),
                              seeError(":/images/err1.png"), [&](QWidget& dialog) {
                                  EXPECT_EQ(field(dialog, "K3 :").text(), "1.00");
                                  EXPECT_EQ(field(dialog, "K1 :").text(), "1.00");
                                  pressEscape(dialog);
                              }});
    EXPECT_EQ(asFloats(valuesOf(opened, Hyperboloid::USPACE)), asFloats(startValues));
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

TEST(ParameterDialogTest, EnterAndEscapeCloseTheErrorBox) {
    const OpenedWindow opened;
    answerParameters(opened, {enter({{"K3 :", "0"}}),
                              [](QWidget& box) { QTest::keyClick(&box, Qt::Key_Return); },
                              enter({{"K3 :", "0"}}),
                              [](QWidget& box) { QTest::keyClick(&box, Qt::Key_Escape); },
                              [](QWidget& dialog) {
                                  pressEscape(dialog);
                              }});
}

TEST(ParameterDialogTest, RefusedRetriesLeaveNothingBehind) {
    constexpr int retries = 50;
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
    EXPECT_EQ(opened.window().findChildren<QObject*>().size(), childrenBefore);
}

TEST(ParameterDialogTest, FinerGridKeepsEveryHelixAtItsRelativePlace) {
    const OpenedWindow opened;
    changeGrid(opened, 20, 50);
    opened.action("newAct").trigger();
    HelixFrame& first = *opened.helices()[0];
    HelixFrame& second = *opened.helices()[1];
    HyperboloidFrame& x = opened.hyperboloid(Hyperboloid::XSPACE);
    opened.tie(second, x);
    x.refresh_hypos(999);
    x.refresh_helix(999);
    opened.tie(first, x);
    x.refresh_hypos(250);
    x.refresh_helix(250);
    changeGrid(opened, 40, 50);
    expectTiedTo(opened, first, 500);
    expectTiedTo(opened, second, 1998);
    for (int space = 0; space < 3; ++space) {
        EXPECT_EQ(opened.hyperboloid(space).GetPreviousHelix(), &first) << "space " << space;
    }
}

TEST(ParameterDialogTest, NoHelixIsTiedAfterwardsWhenNoneWasBefore) {
    const OpenedWindow opened;
    for (int space = 0; space < 3; ++space) {
        opened.hyperboloid(space).PrevHelixDead();
    }
    changeGrid(opened, 10, 10);
    for (int space = 0; space < 3; ++space) {
        EXPECT_EQ(opened.hyperboloid(space).GetPreviousHelix(), nullptr);
    }
}

TEST(ParameterDialogTest, ExtremeGridsComeAndGo) {
    const OpenedWindow opened;
    HelixFrame& helix = opened.firstHelix();
    HyperboloidFrame& u = opened.hyperboloid(Hyperboloid::USPACE);
    opened.tie(helix, u);
    u.refresh_hypos(64 * 64 - 1);
    u.refresh_helix(64 * 64 - 1);
    int index = 64 * 64 - 1;
    int count = 64 * 64;
    const std::vector<std::pair<int, int>> grids{{5, 5},   {500, 500}, {5, 5},  {5, 500},
                                                 {500, 5}, {64, 64},   {64, 64}};
    for (const auto& [columns, rows] : grids) {
        changeGrid(opened, columns, rows);
        index = static_cast<int>(columns * rows * (static_cast<double>(index) / count));
        count = columns * rows;
        EXPECT_EQ(u.getNumVertices(), static_cast<unsigned int>(count));
        expectTiedTo(opened, helix, index);
        EXPECT_EQ(u.GetPreviousHelix(), &helix);
        u.moveSphere(HyperboloidFrame::DOWN);
        u.moveSphere(HyperboloidFrame::UP);
        index = helix.getIndex();
        EXPECT_TRUE(opened.waitUntilAllViewsAreDrawn()) << columns << " x " << rows;
    }
}

TEST(ParameterDialogTest, WorksWithoutAnyHelix) {
    const OpenedWindow opened;
    opened.closeFrame(opened.firstHelix());
    changeGrid(opened, 12, 9);
    EXPECT_EQ(opened.hyperboloid(Hyperboloid::MSPACE).getNumVertices(), 108U);
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
