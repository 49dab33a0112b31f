// Asking for the parameters of a frame, without the main window's documents.

#include "app/HyperboloidParameterDialog.h"
#include "app/MainWindow.h"
#include "tests/app/BareFrames.h"
#include "tests/app/ParameterDialogs.h"

#include <gtest/gtest.h>

using namespace ParameterDialogs;

namespace {

/** Asking for the parameters of a frame with start values other than the program's. */
class AskingForParameters : public testing::Test {
protected:
    AskingForParameters() {
        frame->set_parameters(1.37, 1.91, 2.23, 0.61, -0.43, 0.83, -0.29, 0.17, 30, 20, 0.53, 6.11,
                              5.03, 0.04, 0.06);
        parent.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&parent, patience));
    }

    void ask(const std::vector<DialogDriver::Step>& steps) {
        DialogDriver(steps).during(
            [&] { answer = HyperboloidParameterDialog::ask(frame.get(), &parent); });
    }

    QWidget parent;
    std::unique_ptr<HyperboloidFrame> frame = BareFrames::hyperboloid(Hyperboloid::USPACE);
    std::optional<HyperboloidParameters> answer;
};

} // namespace

TEST_F(AskingForParameters, AcceptedValuesAreTheAnswerAndTheFrameIsNotChanged) {
    ask({enter({{"K1 :", "1.41"}, {"U3Axis Range:", "4.87"}, {"Vertical Prec:", "23"}})});
    ASSERT_TRUE(answer.has_value());
    HyperboloidParameters expected = distinctSet();
    expected.K1 = 1.41;
    expected.u3axisRange = 4.87;
    expected.verticalPrecision = 23;
    EXPECT_EQ(valuesOf(*answer), valuesOf(expected));
    EXPECT_EQ(frame->getK(0), 1.37F);
    EXPECT_EQ(frame->getPrec(1), 20);
}

TEST_F(AskingForParameters, GivingUpIsNoAnswer) {
    ask({[](QWidget& dialog) {
        type(dialog, "K1 :", "1.2");
        click(dialog, "Cancel");
    }});
    EXPECT_FALSE(answer.has_value());
    ask({[](QWidget& dialog) {
        pressEscape(dialog);
    }});
    EXPECT_FALSE(answer.has_value());
}

TEST_F(AskingForParameters, NothingIsAcceptedInPlaceOfARefusedText) {
    ask({[](QWidget& dialog) {
        for (const bool clicks : {false, true}) {
            QAbstractSpinBox& K2 = field(dialog, "K2 :");
            K2.setFocus();
            type(dialog, "K2 :", "1.9.5");
            if (clicks) {
                click(dialog, "Ok");
            } else {
                pressEnter(dialog);
            }
            EXPECT_TRUE(dialog.isVisible());
            EXPECT_TRUE(K2.hasFocus());
            EXPECT_EQ(K2.text(), "1.91");
        }
        QTest::keyClicks(dialog.focusWidget(), "1,95");
        click(dialog, "Ok");
    }});
    ASSERT_TRUE(answer.has_value());
    EXPECT_EQ(answer->K2, 1.95);
}

TEST_F(AskingForParameters, BrokenConditionShowsItsPictureAndTheModelsValuesAgain) {
    const auto seeTheModelsValues = [](const Typed& next) {
        return [next](QWidget& dialog) {
            EXPECT_EQ(field(dialog, "K1 :").text(), "1.37");
            EXPECT_EQ(field(dialog, "K2 :").text(), "1.91");
            EXPECT_EQ(field(dialog, "K3 :").text(), "2.23");
            enter(next)(dialog);
        };
    };
    ask({enter({{"K3 :", "0"}, {"K1 :", "0.7"}}), seeError(":/images/err1.png"),
         seeTheModelsValues({{"K1 :", "1.92"}}), seeError(":/images/err2.png"),
         seeTheModelsValues({{"K1 :", "1.91"}})});
    ASSERT_TRUE(answer.has_value());
    EXPECT_EQ(answer->K1, 1.91);
}

TEST_F(AskingForParameters, EnterAndEscapeCloseTheErrorBox) {
    const auto strike = [&](Qt::Key key) {
        return [&, key](QWidget& box) {
            EXPECT_EQ(box.parent(), &parent);
            QTest::keyClick(&box, key);
        };
    };
    ask({enter({{"K3 :", "0"}}), strike(Qt::Key_Return), enter({{"K3 :", "0"}}),
         strike(Qt::Key_Escape), [](QWidget& dialog) {
             pressEscape(dialog);
         }});
    EXPECT_FALSE(answer.has_value());
}

TEST_F(AskingForParameters, EndsWhenTheParentIsClosedBehindTheErrorBox) {
    ask({enter({{"K3 :", "0"}}), [&](QWidget& box) {
             parent.close();
             QTest::keyClick(&box, Qt::Key_Return);
         }});
    EXPECT_FALSE(answer.has_value());
}

TEST_F(AskingForParameters, EndsWhenTheFrameIsClosedBehindTheErrorBox) {
    ask({enter({{"K3 :", "0"}}), [&](QWidget& box) {
             frame.reset();
             QTest::keyClick(&box, Qt::Key_Return);
         }});
    EXPECT_FALSE(answer.has_value());
}

TEST_F(AskingForParameters, EndsWhenTheFrameIsGone) {
    ask({[&](QWidget& dialog) {
        frame.reset();
        pressEnter(dialog);
    }});
    EXPECT_FALSE(answer.has_value());
    EXPECT_FALSE(HyperboloidParameterDialog::ask(nullptr, &parent).has_value());
}

TEST(VerifyParam, ConditionsAreCheckedTheQuadricFirst) {
    MainWindow window;
    EXPECT_EQ(window.verify_param(1, 1.5, 1, 0.5, 0.5), 0);
    EXPECT_EQ(window.verify_param(2, 1, 1, 0, 0), 1);
    EXPECT_EQ(window.verify_param(1, 1, 1, 0, 0), 0) << "K1 may equal K2";
    EXPECT_EQ(window.verify_param(1, 1.5, 0, 0, 0), 2) << "0 is not less than 0";
    EXPECT_EQ(window.verify_param(1, 2, 1.5, 1, 1), 2) << "equal to K3 is too much";
    EXPECT_EQ(window.verify_param(1, 2, 1.51, 1, 1), 0);
    EXPECT_EQ(window.verify_param(2, 1, 1, 5, 5), 2) << "both are broken";
    EXPECT_EQ(window.verify_param(1, 1.5, 1, -2, 0), 2) << "the sign of K13 does not count";
    EXPECT_EQ(window.verify_param(1, 4, 1, 1.5, 0), 2) << "K13 is divided by K1";
    EXPECT_EQ(window.verify_param(1, 4, 1, 0, 1.5), 0) << "K23 is divided by K2";
}
