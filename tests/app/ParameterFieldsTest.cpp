// The parameter dialog by itself, without the main window.

#include "app/HyperboloidParameterDialog.h"

#include "tests/app/ParameterDialogs.h"
#include "tests/support/Wheel.h"

#include <gtest/gtest.h>

using namespace ParameterDialogs;

namespace {

class ParameterFieldsTest : public testing::Test {
protected:
    ParameterFieldsTest() {
        dialog.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&dialog, patience));
    }

    HyperboloidParameterDialog dialog{HyperboloidParameters(), nullptr};
};

} // namespace

TEST_F(ParameterFieldsTest, HaveTheirLabelsRangesStepsAndTheValuesOfTheStart) {
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

    for (const Expected& expected : reals) {
        auto* box = qobject_cast<QDoubleSpinBox*>(&field(dialog, expected.label));
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
}

TEST_F(ParameterFieldsTest, StandInSixColumnsAboveTheButtons) {
    const std::vector<QStringList> labelColumns{
        {"K1 :", "K2 :", "K3 :", "K13:", "K23:"},
        {"<html>&Ucirc;</html>1:", "<html>&Ucirc;</html>2:", "<html>&Ucirc;</html>3:", "Point R:",
         "Horizontal Prec:"},
        {"U3Const Range:", "U3Axis Range:", "U3Const Radius:", "U3Axis Radius:", "Vertical Prec:"}};

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
}

TEST_F(ParameterFieldsTest, AreReadableAtOnceAndTheSizeIsFixed) {

    ASSERT_TRUE(QTest::qWaitForWindowExposed(&dialog, patience));
    EXPECT_EQ(dialog.size(), dialog.sizeHint());
    EXPECT_EQ(dialog.minimumSize(), dialog.maximumSize());
    const QSize before = dialog.size();
    dialog.resize(before * 2);
    EXPECT_EQ(dialog.size(), before);
    for (QWidget* widget : dialog.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
        EXPECT_TRUE(widget->isVisible());
        EXPECT_TRUE(dialog.rect().contains(widget->geometry()));
        EXPECT_GE(widget->width(), widget->minimumSizeHint().width());
        EXPECT_GE(widget->height(), widget->minimumSizeHint().height());
    }
}

TEST_F(ParameterFieldsTest, StepByArrowKeysAndHoldBackTextOutOfRange) {

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
}

TEST_F(ParameterFieldsTest, ShowAndGiveBackEachValueInItsOwnField) {
    const HyperboloidParameterDialog filled(distinctSet(), nullptr);
    const Typed expected{{"K1 :", "1.37"},
                         {"K2 :", "1.91"},
                         {"K3 :", "2.23"},
                         {"K13:", "0.61"},
                         {"K23:", "-0.43"},
                         {"<html>&Ucirc;</html>1:", "0.83"},
                         {"<html>&Ucirc;</html>2:", "-0.29"},
                         {"<html>&Ucirc;</html>3:", "0.17"},
                         {"Horizontal Prec:", "30"},
                         {"Vertical Prec:", "20"},
                         {"Point R:", "0.53"},
                         {"U3Const Range:", "6.11"},
                         {"U3Axis Range:", "5.03"},
                         {"U3Const Radius:", "0.04"},
                         {"U3Axis Radius:", "0.06"}};
    for (const auto& [label, text] : expected) {
        EXPECT_EQ(field(filled, label).text(), text) << qPrintable(label);
    }
    EXPECT_EQ(valuesOf(filled.parameters()), valuesOf(distinctSet()));
}

TEST_F(ParameterFieldsTest, FollowEachOtherUnderTheTabKeyDownTheColumns) {
    const char* const order[] = {"K1 :",
                                 "K2 :",
                                 "K3 :",
                                 "K13:",
                                 "K23:",
                                 "<html>&Ucirc;</html>1:",
                                 "<html>&Ucirc;</html>2:",
                                 "<html>&Ucirc;</html>3:",
                                 "Point R:",
                                 "Horizontal Prec:",
                                 "U3Const Range:",
                                 "U3Axis Range:",
                                 "U3Const Radius:",
                                 "U3Axis Radius:",
                                 "Vertical Prec:"};
    dialog.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog, patience));
    for (const char* label : order) {
        EXPECT_TRUE(field(dialog, label).hasFocus()) << label;
        QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
    }
    EXPECT_TRUE(button(dialog, "Cancel").hasFocus());
    QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
    EXPECT_TRUE(button(dialog, "Ok").hasFocus());
    QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
    EXPECT_TRUE(field(dialog, order[0]).hasFocus());
}

TEST_F(ParameterFieldsTest, TheFirstOneIsReplacedByWhatIsTypedAtOnce) {
    dialog.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog, patience));
    QTest::keyClicks(dialog.focusWidget(), "1,2");
    EXPECT_EQ(dialog.parameters().K1, 1.2);
}

TEST_F(ParameterFieldsTest, LeaveTheWheelAloneUnlessTheyHaveTheFocus) {
    dialog.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog, patience));
    for (const char* label : {"K2 :", "Vertical Prec:"}) {
        const std::vector<double> before = valuesOf(dialog.parameters());
        EXPECT_FALSE(turnWheel(field(dialog, label)));
        EXPECT_EQ(valuesOf(dialog.parameters()), before);
        field(dialog, label).setFocus();
        EXPECT_TRUE(turnWheel(field(dialog, label)));
        EXPECT_NE(valuesOf(dialog.parameters()), before);
    }
}
