#include "helix/HelixNames.h"
#include "tests/support/DialogDriver.h"
#include "tests/support/OpenedWindow.h"
#include "tests/support/ReplacementCounter.h"
#include "tests/support/SliderWindow.h"

#include <QMessageBox>
#include <QSignalBlocker>
#include <QStyleOptionSlider>
#include <gtest/gtest.h>

namespace {

enum Row { tubeRadius, ribbonRange, turns, precisionLine, precisionTube, rowCount };

SliderWindow openHelixWindow(const OpenedWindow& opened) {
    return {opened, "helixParamsAct"};
}

const Helix& modelOf(const OpenedWindow& opened) {
    return opened.firstHelix().getHelix();
}

QStringList caughtWarnings;

void catchWarning(QtMsgType /*type*/, const QMessageLogContext& /*context*/, const QString& text) {
    caughtWarnings << text;
}

/** What the toolkit complains of while something runs. */
QStringList warningsOf(const std::function<void()>& run) {
    caughtWarnings.clear();
    const QtMessageHandler before = qInstallMessageHandler(catchWarning);
    run();
    qInstallMessageHandler(before);
    return caughtWarnings;
}

} // namespace

TEST(HelixWindowTest, NeedsAHelixFrame) {
    const OpenedWindow opened;
    opened.activate(opened.hyperboloid(Hyperboloid::XSPACE));
    const int windowsBefore = QApplication::topLevelWidgets().size();
    DialogDriver()
        .then<QMessageBox>([](QMessageBox& box) {
            EXPECT_EQ(box.text(), "Select an Helix Viewer");
            EXPECT_EQ(box.icon(), QMessageBox::Warning);
            EXPECT_EQ(box.parent(), nullptr);
            EXPECT_TRUE(box.isModal());
            QTest::keyClick(&box, Qt::Key_Return);
        })
        .during([&] { opened.action("helixParamsAct").trigger(); });
    EXPECT_EQ(QApplication::topLevelWidgets().size(), windowsBefore);
    EXPECT_EQ(modelOf(opened).getTubeR(), 0.01F);
}

TEST(HelixWindowTest, IsAWindowOfItsOwnWithoutATitle) {
    const OpenedWindow opened;
    const SliderWindow window = openHelixWindow(opened);
    EXPECT_TRUE(window.widget().isVisible());
    EXPECT_TRUE(window.widget().isWindow());
    EXPECT_EQ(window.widget().parent(), nullptr);
    EXPECT_EQ(window.widget().windowTitle(), "");
    EXPECT_EQ(window.widget().windowModality(), Qt::NonModal);
}

TEST(HelixWindowTest, ShowsAFreshHelixTruncatedAndTakesTheTruncatedLengthsOver) {
    const OpenedWindow opened;
    ReplacementCounter drawings(*opened.firstHelix().getSceneRoot(), HelixNames::tube);
    const SliderWindow window = openHelixWindow(opened);
    EXPECT_EQ(window.spinBoxValues(), (std::vector<int>{99, 500, 5, 50, 16}));
    for (int row = 0; row < rowCount; ++row) {
        EXPECT_EQ(window.slider(row).value(), window.spinBox(row).value());
    }
    EXPECT_EQ(modelOf(opened).getTubeR(), static_cast<float>(99 / 10000.0));
    EXPECT_EQ(modelOf(opened).getRibRange(), static_cast<float>(500 / 10000.0));
    EXPECT_EQ(drawings.take(), rowCount) << "each of the first settings reaches the helix once";
}

TEST(HelixWindowTest, RefusedConnectionOfTheTubeRadiusIsTheOnlyComplaint) {
    const OpenedWindow opened;
    const QStringList warnings = warningsOf([&] { openHelixWindow(opened); });
    ASSERT_EQ(warnings.size(), 1);
    EXPECT_TRUE(warnings[0].contains("No such signal QSpinBox::valueChanged(double)"))
        << qPrintable(warnings[0]);
}

TEST(HelixWindowTest, TypedTubeRadiusReachesTheHelixButNotItsSlider) {
    const OpenedWindow opened;
    const SliderWindow window = openHelixWindow(opened);
    window.type(tubeRadius, "250");
    EXPECT_EQ(window.spinBox(tubeRadius).value(), 250);
    EXPECT_EQ(window.slider(tubeRadius).value(), 99);
    EXPECT_EQ(modelOf(opened).getTubeR(), static_cast<float>(250 / 10000.0));
}

TEST(HelixWindowTest, TypedValuesMoveTheOtherSlidersAndReachTheHelix) {
    const OpenedWindow opened;
    const SliderWindow window = openHelixWindow(opened);
    window.type(ribbonRange, "1500");
    window.type(turns, "7");
    window.type(precisionLine, "20");
    window.type(precisionTube, "9");
    for (int row = ribbonRange; row < rowCount; ++row) {
        EXPECT_EQ(window.slider(row).value(), window.spinBox(row).value());
    }
    EXPECT_EQ(window.spinBoxValues(), (std::vector<int>{99, 1500, 7, 20, 9}));
    EXPECT_EQ(modelOf(opened).getRibRange(), static_cast<float>(1500 / 10000.0));
    EXPECT_EQ(modelOf(opened).getNTurns(), 7.0F);
    EXPECT_EQ(modelOf(opened).getPrecisionLine(), 20U);
    EXPECT_EQ(modelOf(opened).getPrecisionTube(), 9U);
    EXPECT_EQ(modelOf(opened).getNbLineVertices(), 140U);
}

TEST(HelixWindowTest, EachChangeRedrawsTheHelixOnce) {
    const OpenedWindow opened;
    const SliderWindow window = openHelixWindow(opened);
    ReplacementCounter drawings(*opened.firstHelix().getSceneRoot(), HelixNames::tube);
    for (int row = 0; row < rowCount; ++row) {
        QTest::keyClick(&window.spinBox(row), Qt::Key_Up);
        EXPECT_EQ(drawings.take(), 1) << "spin box " << row;
        QTest::keyClick(&window.slider(row), Qt::Key_Home);
        EXPECT_EQ(drawings.take(), 1) << "slider " << row;
        EXPECT_EQ(window.spinBox(row).value(), window.spinBox(row).minimum());
        QTest::keyClick(&window.slider(row), Qt::Key_Home);
        EXPECT_EQ(drawings.take(), 0) << "no change " << row;
    }
}

TEST(HelixWindowTest, OnlyTheSpinBoxesDriveTheHelix) {
    const OpenedWindow opened;
    const SliderWindow window = openHelixWindow(opened);
    ReplacementCounter drawings(*opened.firstHelix().getSceneRoot(), HelixNames::tube);
    for (int row = 0; row < rowCount; ++row) {
        const QSignalBlocker silentSpinBox(window.spinBox(row));
        window.slider(row).setValue(window.slider(row).maximum());
        EXPECT_EQ(window.spinBox(row).value(), window.spinBox(row).maximum());
        EXPECT_EQ(drawings.take(), 0);
    }
    EXPECT_EQ(modelOf(opened).getNTurns(), 5.0F);
}

TEST(HelixWindowTest, TurnsSliderAtThreeGivesThreeTurnsOfFiftyVertices) {
    const OpenedWindow opened;
    const SliderWindow window = openHelixWindow(opened);
    QTest::keyClick(&window.slider(turns), Qt::Key_Left);
    QTest::keyClick(&window.slider(turns), Qt::Key_Left);
    EXPECT_EQ(window.spinBox(turns).value(), 3);
    EXPECT_EQ(modelOf(opened).getNTurns(), 3.0F);
    EXPECT_EQ(modelOf(opened).getNbLineVertices(), 150U);
    EXPECT_EQ(modelOf(opened).getTubeVertices().size(), 150U * 16U);
    EXPECT_EQ(modelOf(opened).getRibbonVertices().size(), 150U * 2U);
}

TEST(HelixWindowTest, BoundsHoldAndTheirHelixIsDrawn) {
    const OpenedWindow opened;
    const ViewDriver view(opened.firstHelix());
    const QImage before = view.grab();
    const SliderWindow window = openHelixWindow(opened);
    window.type(precisionLine, "999");
    window.type(precisionTube, "999");
    EXPECT_LE(window.spinBox(precisionLine).value(), 200);
    EXPECT_LE(window.spinBox(precisionTube).value(), 100);
    for (const Qt::Key end : {Qt::Key_Home, Qt::Key_End}) {
        for (int row = 0; row < rowCount; ++row) {
            QTest::keyClick(&window.slider(row), end);
        }
        QCoreApplication::processEvents();
    }
    EXPECT_EQ(window.spinBoxValues(), (std::vector<int>{1000, 2000, 10, 200, 100}));
    EXPECT_EQ(modelOf(opened).getTubeR(), 0.1F);
    EXPECT_EQ(modelOf(opened).getRibRange(), 0.2F);
    EXPECT_EQ(modelOf(opened).getTubeVertices().size(), 10U * 200U * 100U);
    EXPECT_TRUE(waitUntil([&] { return view.grab() != before; }));
    EXPECT_TRUE(view.isDrawn());
}

TEST(HelixWindowTest, NoTurnsLeaveNothingAndTurnsComeBack) {
    const OpenedWindow opened;
    const SliderWindow window = openHelixWindow(opened);
    const ViewDriver view(opened.firstHelix());
    window.type(turns, "0");
    EXPECT_EQ(modelOf(opened).getNbLineVertices(), 0U);
    EXPECT_TRUE(waitUntil([&] { return !view.isDrawn(); }));
    window.type(turns, "5");
    EXPECT_TRUE(waitUntil([&] { return view.isDrawn(); }));
}

TEST(HelixWindowTest, ViewFollowsWhileTheSliderIsDragged) {
    const OpenedWindow opened;
    const SliderWindow window = openHelixWindow(opened);
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&window.widget(), patience));
    window.slider(ribbonRange).setValue(0);
    const ViewDriver view(opened.firstHelix());
    QSlider& slider = window.slider(ribbonRange);
    QStyleOptionSlider option;
    option.initFrom(&slider);
    option.minimum = slider.minimum();
    option.maximum = slider.maximum();
    const QPoint handle =
        slider.style()
            ->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, &slider)
            .center();
    QTest::mousePress(&slider, Qt::LeftButton, Qt::NoModifier, handle);
    QImage before = view.grab();
    for (int step = 1; step <= 3; ++step) {
        QMouseEvent move(QEvent::MouseMove, handle + QPoint(step * slider.width() / 4, 0),
                         Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&slider, &move);
        EXPECT_TRUE(slider.isSliderDown());
        EXPECT_EQ(modelOf(opened).getRibRange(), static_cast<float>(slider.value() / 10000.0));
        EXPECT_TRUE(waitUntil([&] { return view.grab() != before; })) << "step " << step;
        before = view.grab();
    }
    QTest::mouseRelease(&slider, Qt::LeftButton, Qt::NoModifier, handle);
}

TEST(HelixWindowTest, ActsOnTheHelixThatIsCurrentNow) {
    const OpenedWindow opened;
    const SliderWindow window = openHelixWindow(opened);
    opened.action("newAct").trigger();
    window.type(turns, "2");
    EXPECT_EQ(opened.helices()[0]->getHelix().getNTurns(), 5.0F);
    EXPECT_EQ(opened.helices()[1]->getHelix().getNTurns(), 2.0F);
    opened.activate(opened.firstHelix());
    window.type(turns, "9");
    EXPECT_EQ(opened.helices()[0]->getHelix().getNTurns(), 9.0F);
    EXPECT_EQ(opened.helices()[1]->getHelix().getNTurns(), 2.0F);
}

TEST(HelixWindowTest, ShowsTheHelixThatIsCurrentNow) {
    const OpenedWindow opened;
    opened.action("newAct").trigger();
    opened.call("helix_change_nturns", Q_ARG(int, 3));
    opened.call("helix_change_range", Q_ARG(int, 1250));
    const Helix& first = opened.helices()[0]->getHelix();
    const Helix& second = opened.helices()[1]->getHelix();
    const SliderWindow window = openHelixWindow(opened);
    EXPECT_EQ(window.spinBoxValues(), (std::vector<int>{99, 1250, 3, 50, 16}));
    EXPECT_EQ(second.getNTurns(), 3.0F);
    EXPECT_EQ(second.getRibRange(), static_cast<float>(1250 / 10000.0));
    EXPECT_EQ(first.getNTurns(), 5.0F);
    EXPECT_EQ(first.getRibRange(), 0.05F);
}

TEST(HelixWindowTest, GoesOnWithTheLastHelixWhenNoDocumentIsActive) {
    const OpenedWindow opened;
    opened.activate(opened.firstHelix());
    const SliderWindow window = openHelixWindow(opened);
    opened.area().setActiveSubWindow(nullptr);
    ASSERT_EQ(opened.area().activeSubWindow(), nullptr);
    window.type(tubeRadius, "321");
    window.type(ribbonRange, "1234");
    window.type(turns, "7");
    window.type(precisionLine, "23");
    window.type(precisionTube, "11");
    EXPECT_EQ(modelOf(opened).getTubeR(), static_cast<float>(321 / 10000.0));
    EXPECT_EQ(modelOf(opened).getRibRange(), static_cast<float>(1234 / 10000.0));
    EXPECT_EQ(modelOf(opened).getNTurns(), 7.0F);
    EXPECT_EQ(modelOf(opened).getPrecisionLine(), 23U);
    EXPECT_EQ(modelOf(opened).getPrecisionTube(), 11U);
    DialogDriver().during([&] { openHelixWindow(opened); });
}

TEST(HelixWindowTest, ChangesNothingWhileAHyperboloidIsActive) {
    const OpenedWindow opened;
    const SliderWindow window = openHelixWindow(opened);
    opened.activate(opened.hyperboloid(Hyperboloid::MSPACE));
    ReplacementCounter drawings(*opened.firstHelix().getSceneRoot(), HelixNames::tube);
    for (int row = 0; row < rowCount; ++row) {
        QTest::keyClick(&window.slider(row), Qt::Key_End);
        QTest::keyClick(&window.spinBox(row), Qt::Key_Down);
    }
    EXPECT_EQ(drawings.take(), 0);
    EXPECT_EQ(modelOf(opened).getNTurns(), 5.0F);
    EXPECT_EQ(modelOf(opened).getPrecisionLine(), 50U);
}

TEST(HelixWindowTest, OutlivesItsHelixHarmlessly) {
    const OpenedWindow opened;
    const SliderWindow window = openHelixWindow(opened);
    opened.closeFrame(opened.firstHelix());
    ASSERT_TRUE(window.isAlive());
    for (int row = 0; row < rowCount; ++row) {
        QTest::keyClick(&window.slider(row), Qt::Key_Home);
        QTest::keyClick(&window.spinBox(row), Qt::Key_Up);
    }
    EXPECT_TRUE(opened.helices().empty());
    opened.action("newAct").trigger();
    window.type(turns, "4");
    EXPECT_EQ(modelOf(opened).getNTurns(), 4.0F);
}

TEST(HelixWindowTest, EveryCommandOpensAnotherIndependentWindow) {
    const OpenedWindow opened;
    SliderWindow first = openHelixWindow(opened);
    const SliderWindow second = openHelixWindow(opened);
    ASSERT_NE(&first.widget(), &second.widget());
    second.type(turns, "8");
    EXPECT_EQ(first.spinBox(turns).value(), 5);
    first.close();
    ASSERT_TRUE(second.isAlive());
    EXPECT_TRUE(second.widget().isVisible());
    second.type(turns, "3");
    EXPECT_EQ(modelOf(opened).getNTurns(), 3.0F);
}

TEST(HelixWindowTest, ClosedWindowsAreReleased) {
    const OpenedWindow opened;
    const int before = QApplication::topLevelWidgets().size();
    for (int i = 0; i < 20; ++i) {
        openHelixWindow(opened).close();
    }
    EXPECT_EQ(QApplication::topLevelWidgets().size(), before);
}

TEST(HelixWindowTest, GoesWithTheMainWindowAndNeverKeepsTheProgramAlive) {
    const int before = QApplication::topLevelWidgets().size();
    QPointer<QWidget> left;
    {
        const OpenedWindow opened;
        const SliderWindow window = openHelixWindow(opened);
        left = &window.widget();
        EXPECT_FALSE(left->testAttribute(Qt::WA_QuitOnClose));
    }
    EXPECT_TRUE(left.isNull());
    EXPECT_LE(QApplication::topLevelWidgets().size(), before + 2) << "the two hidden frames stay";
}
