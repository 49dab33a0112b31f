// The helix window and the appearance window by themselves. The receiver is a main window without
// documents, in which their changes go nowhere.

#include "app/AppearanceWindow.h"
#include "app/HelixWindow.h"
#include "app/MainWindow.h"
#include "helix/Helix.h"
#include "tests/app/BareFrames.h"
#include "tests/support/Waiting.h"
#include "tests/support/Wheel.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QSlider>
#include <QSpinBox>
#include <gtest/gtest.h>
#include <memory>

namespace {

struct Row {
    const char* label;
    int minimum;
    int maximum;
    int value;
};

const std::vector<Row> helixRows{{"&Tube Radius:", 0, 1000, 133},
                                 {"&Ribbon Range:", 0, 2000, 711},
                                 {"&Number of Turns:", 0, 10, 7},
                                 {"&Precision Line:", 5, 200, 41},
                                 {"&Precision Tube:", 5, 100, 19}};
const std::vector<Row> appearanceRows{
    {"Transparency:", 0, 100, 28}, {"Lightness:", 0, 100, 56}, {"Saturation:", 0, 100, 37}};

/** The values of the spin boxes of a window, from the first row. */
std::vector<int> spinBoxValues(const QWidget& window) {
    std::vector<int> values;
    for (const QSpinBox* box :
         window.findChildren<QSpinBox*>(QString(), Qt::FindDirectChildrenOnly)) {
        values.push_back(box->value());
    }
    return values;
}

class ControlWindows : public testing::Test {
protected:
    ControlWindows() {
        helix.setTubeR(0.01337F);
        helix.setRibRange(0.07119F);
        helix.setNTurns(7.9F);
        helix.setPrecisionLine(41);
        helix.setPrecisionTube(19);
        // 100 times the double nearest to 0.29 is a little less than 29; so it is with 57.
        hyperboloid->setTransparency(29, false);
        hyperboloid->setLightness(57, false);
        hyperboloid->setSaturation(37, false);
        helixWindow = new HelixWindow(helix, receiver.get());
        appearanceWindow = new AppearanceWindow(*hyperboloid, receiver.get());
        for (QWidget* window : {helixWindow.data(), appearanceWindow.data()}) {
            window->show();
            EXPECT_TRUE(QTest::qWaitForWindowExposed(window, patience));
        }
    }

    /** The widget in a column (labels, spin boxes, sliders) and a row of a window. */
    template <typename Widget>
    static Widget& at(const QWidget& window, int column, int row) {
        return *qobject_cast<Widget*>(
            window.layout()->itemAt(column)->layout()->itemAt(row)->widget());
    }

    static void expectRows(const QWidget& window, const std::vector<Row>& rows) {
        for (int i = 0; i < static_cast<int>(rows.size()); ++i) {
            const Row& row = rows[static_cast<std::size_t>(i)];
            const auto& spinBox = at<QSpinBox>(window, 1, i);
            const auto& slider = at<QSlider>(window, 2, i);
            EXPECT_EQ(at<QLabel>(window, 0, i).text(), row.label);
            EXPECT_EQ(spinBox.minimum(), row.minimum) << row.label;
            EXPECT_EQ(spinBox.maximum(), row.maximum) << row.label;
            EXPECT_EQ(spinBox.singleStep(), 1) << row.label;
            EXPECT_EQ(spinBox.value(), row.value) << row.label;
            EXPECT_EQ(slider.minimum(), row.minimum) << row.label;
            EXPECT_EQ(slider.maximum(), row.maximum) << row.label;
            EXPECT_TRUE(slider.hasTracking()) << row.label;
            EXPECT_EQ(slider.singleStep(), 1) << row.label;
            EXPECT_EQ(slider.value(), row.value) << row.label;
            EXPECT_EQ(slider.orientation(), Qt::Horizontal);
        }
    }

    /** Expects three columns of so many rows, which fill the window's layout evenly. */
    static void expectColumns(const QWidget& window, int rowCount) {
        auto* columns = qobject_cast<QHBoxLayout*>(window.layout());
        ASSERT_NE(columns, nullptr);
        ASSERT_EQ(columns->count(), 3);
        const QList<QWidget*> all =
            window.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
        EXPECT_EQ(all.size(), 3 * rowCount);
        for (int column = 0; column < columns->count(); ++column) {
            auto* rows = qobject_cast<QVBoxLayout*>(columns->itemAt(column)->layout());
            ASSERT_NE(rows, nullptr);
            ASSERT_EQ(rows->count(), rowCount);
            EXPECT_EQ(columns->stretch(column), 0);
            for (int row = 0; row < rowCount; ++row) {
                EXPECT_EQ(rows->stretch(row), 0);
                EXPECT_EQ(rows->itemAt(row)->alignment(), Qt::Alignment());
            }
        }
    }

    static void expectReadable(const QWidget& window) {
        for (const QWidget* widget :
             window.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
            EXPECT_TRUE(window.rect().contains(widget->geometry()));
            EXPECT_GE(widget->width(), widget->minimumSizeHint().width());
            EXPECT_GE(widget->height(), widget->minimumSizeHint().height());
        }
    }

    Helix helix{0.71F, 0.53F, -0.31F, 0.9F, 0.4F, 0.2F};
    std::unique_ptr<HyperboloidFrame> hyperboloid = BareFrames::hyperboloid(Hyperboloid::USPACE);
    std::unique_ptr<MainWindow> receiver = std::make_unique<MainWindow>();
    QPointer<QWidget> helixWindow;
    QPointer<QWidget> appearanceWindow;
};

} // namespace

TEST_F(ControlWindows, RowsHaveTheirLabelsRangesAndTheModelsTruncatedValues) {
    expectRows(*helixWindow, helixRows);
    expectRows(*appearanceWindow, appearanceRows);
}

TEST_F(ControlWindows, LabelsSpinBoxesAndSlidersStandInThreeColumns) {
    expectColumns(*helixWindow, 5);
    expectColumns(*appearanceWindow, 3);
}

TEST_F(ControlWindows, EachPercentageOfTheAppearanceIsOneThatItsDivisionTruncates) {
    // 57 / 100.0 times 100 is a little less than 57, 57 * 0.01 times 100 is not.
    hyperboloid->setTransparency(57, false);
    hyperboloid->setLightness(57, false);
    hyperboloid->setSaturation(57, false);
    const AppearanceWindow window(*hyperboloid, receiver.get());
    EXPECT_EQ(spinBoxValues(window), (std::vector<int>{56, 56, 56}));
}

TEST_F(ControlWindows, EveryLabelAndSpinBoxIsReadableAtOnce) {
    expectReadable(*helixWindow);
    expectReadable(*appearanceWindow);
}

TEST_F(ControlWindows, OnlyTheHelixWindowsLabelsLeadToTheirSpinBoxes) {
    for (int row = 0; row < 5; ++row) {
        EXPECT_EQ(at<QLabel>(*helixWindow, 0, row).buddy(), &at<QSpinBox>(*helixWindow, 1, row));
    }
    for (int row = 0; row < 3; ++row) {
        EXPECT_EQ(at<QLabel>(*appearanceWindow, 0, row).buddy(), nullptr);
    }
}

TEST_F(ControlWindows, MnemonicsFocusTheSpinBoxes) {
    helixWindow->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(helixWindow, patience));
    const std::vector<std::pair<Qt::Key, int>> letters{
        {Qt::Key_R, 1}, {Qt::Key_N, 2}, {Qt::Key_T, 0}, {Qt::Key_P, 3}, {Qt::Key_P, 4}};
    for (const auto& [letter, row] : letters) {
        QTest::keyClick(helixWindow, letter, Qt::AltModifier);
        EXPECT_TRUE(at<QSpinBox>(*helixWindow, 1, row).hasFocus()) << "row " << row;
    }
}

TEST_F(ControlWindows, TheTabKeyWalksDownTheSpinBoxesAndThenDownTheSliders) {
    for (const auto& [window, rowCount] :
         {std::pair(helixWindow.data(), 5), std::pair(appearanceWindow.data(), 3)}) {
        window->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window, patience));
        for (int column = 1; column <= 2; ++column) {
            for (int row = 0; row < rowCount; ++row) {
                EXPECT_TRUE(at<QWidget>(*window, column, row).hasFocus()) << column << ' ' << row;
                QTest::keyClick(window->focusWidget(), Qt::Key_Tab);
            }
        }
        EXPECT_TRUE(at<QSpinBox>(*window, 1, 0).hasFocus());
    }
}

TEST_F(ControlWindows, TheFirstSpinBoxIsReplacedByWhatIsTypedAtOnce) {
    for (QWidget* window : {helixWindow.data(), appearanceWindow.data()}) {
        window->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window, patience));
        QTest::keyClicks(window->focusWidget(), "35");
        EXPECT_EQ(at<QSpinBox>(*window, 1, 0).value(), 35);
    }
}

TEST_F(ControlWindows, TheWheelLeavesAloneWhatHasNotTheFocus) {
    for (QWidget* window : {helixWindow.data(), appearanceWindow.data()}) {
        window->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window, patience));
        const int before = at<QSpinBox>(*window, 1, 1).value();
        for (int column = 1; column <= 2; ++column) {
            auto& control = at<QWidget>(*window, column, 1);
            EXPECT_FALSE(turnWheel(control));
            EXPECT_EQ(control.focusPolicy(), Qt::StrongFocus) << "the wheel gives no focus";
            EXPECT_EQ(at<QSpinBox>(*window, 1, 1).value(), before);
        }
        at<QWidget>(*window, 2, 1).setFocus();
        EXPECT_TRUE(turnWheel(at<QWidget>(*window, 2, 1)));
        EXPECT_GT(at<QSpinBox>(*window, 1, 1).value(), before);
    }
}

TEST_F(ControlWindows, GoWithTheirReceiver) {
    EXPECT_FALSE(helixWindow->testAttribute(Qt::WA_QuitOnClose));
    EXPECT_FALSE(appearanceWindow->testAttribute(Qt::WA_QuitOnClose));
    receiver.reset();
    EXPECT_TRUE(helixWindow.isNull());
    EXPECT_TRUE(appearanceWindow.isNull());
}

TEST_F(ControlWindows, GoWhenTheyAreClosed) {
    helixWindow->close();
    appearanceWindow->close();
    EXPECT_TRUE(waitUntil([&] { return helixWindow.isNull() && appearanceWindow.isNull(); }));
}
