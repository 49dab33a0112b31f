#include "app/HyperboloidParameterDialog.h"
#include "tests/support/DialogDriver.h"
#include "tests/support/OpenedWindow.h"
#include "tests/support/SliderWindow.h"

#include <QDoubleSpinBox>
#include <QSettings>
#include <algorithm>
#include <gtest/gtest.h>
#include <numeric>
#include <string>

namespace {

/** Opens helices and closes them in a given order of their ages, stepping the X view in between. */
void closeInOrder(const OpenedWindow& opened, const std::vector<int>& order) {
    std::vector<QPointer<HelixFrame>> helices;
    for (std::size_t i = 0; i < order.size(); ++i) {
        opened.action("newAct").trigger();
        helices.emplace_back(opened.helices().back());
    }
    HyperboloidFrame& x = opened.hyperboloid(Hyperboloid::XSPACE);
    for (const int next : order) {
        HelixFrame& helix = *helices[static_cast<std::size_t>(next)];
        opened.tie(helix, x);
        x.moveSphere(HyperboloidFrame::DOWN);
        opened.closeFrame(helix);
        x.moveSphere(HyperboloidFrame::DOWN);
        opened.activate(opened.hyperboloid(Hyperboloid::USPACE));
        opened.activate(opened.hyperboloid(Hyperboloid::MSPACE));
    }
    EXPECT_EQ(opened.window().getHelixCount(), 0);
    EXPECT_TRUE(opened.helices().empty());
    EXPECT_EQ(opened.frames().size(), 3U);
}

} // namespace

class ClosingHelices : public testing::TestWithParam<int> {};

TEST_P(ClosingHelices, GoInEveryOrder) {
    const OpenedWindow opened;
    opened.closeFrame(opened.firstHelix());
    // Drawing is not the point: few views have room.
    opened.window().resize(300, 200);
    std::vector<int> order(static_cast<std::size_t>(GetParam()));
    std::iota(order.begin(), order.end(), 0);
    do {
        closeInOrder(opened, order);
    } while (std::next_permutation(order.begin(), order.end()));
}

INSTANTIATE_TEST_SUITE_P(UpToFive, ClosingHelices, testing::Range(0, 6));

TEST(Closing, WindowClosesWithItsDialogOpenAndTheErrorBoxOnScreen) {
    for (const bool refused : {false, true}) {
        QSettings("Trolltech", "MDI Viewer").clear();
        const OpenedWindow opened;
        opened.action("newAct").trigger();
        DialogDriver driver;
        driver.then<HyperboloidParameterDialog>([&](HyperboloidParameterDialog& dialog) {
            if (refused) {
                // The first of the moduli, K1, larger than the second.
                dialog.findChildren<QDoubleSpinBox*>().constFirst()->setValue(50);
                dialog.accept();
            } else {
                opened.window().close();
                dialog.reject();
            }
        });
        if (refused) {
            driver.then<QDialog>([&](QDialog& box) {
                opened.window().close();
                box.accept();
            });
        }
        driver.during([&] { opened.action("hyperboloidParamsAct").trigger(); });
        EXPECT_FALSE(opened.window().isVisible());
        EXPECT_TRUE(QSettings("Trolltech", "MDI Viewer").contains("pos"));
    }
}

TEST(Closing, WindowTakesItsSliderWindowsAlong) {
    auto opened = std::make_unique<OpenedWindow>();
    opened->activate(opened->firstHelix());
    const SliderWindow helixWindow(*opened, "helixParamsAct");
    const SliderWindow appearance(*opened, "appearanceAct");
    EXPECT_TRUE(opened->window().close());
    opened.reset();
    EXPECT_FALSE(helixWindow.isAlive());
    EXPECT_FALSE(appearance.isAlive());
}

TEST(Closing, CloseAllClosesOnlyTheHelices) {
    const OpenedWindow opened;
    opened.action("newAct").trigger();
    EXPECT_EQ(opened.frames().size(), 5U);
    opened.action("closeAllAct").trigger();
    EXPECT_TRUE(waitUntil([&] { return opened.window().getHelixCount() == 0; }));
    ASSERT_EQ(opened.frames().size(), 3U);
    for (int space = 0; space < 3; ++space) {
        EXPECT_TRUE(opened.hyperboloid(space).isVisible());
    }
}

TEST(Closing, CloseActionClosesTheActiveHelixAndNoHyperboloid) {
    const OpenedWindow opened;
    opened.activate(opened.hyperboloid(0));
    opened.action("closeAct").trigger();
    EXPECT_EQ(opened.frames().size(), 4U);
    opened.activate(opened.firstHelix());
    opened.action("closeAct").trigger();
    EXPECT_TRUE(waitUntil([&] { return opened.window().getHelixCount() == 0; }));
}

TEST(Closing, WindowClosesWithAnyNumberOfHelicesAndStoresItsGeometry) {
    for (int helices = 0; helices <= 5; ++helices) {
        QSettings("Trolltech", "MDI Viewer").clear();
        {
            const OpenedWindow opened;
            for (int i = 1; i < helices; ++i) {
                opened.action("newAct").trigger();
            }
            if (helices == 0) {
                opened.closeFrame(opened.firstHelix());
            }
            const std::vector<SoQtGeneralViewerFrame*> all = opened.frames();
            const std::vector<QPointer<SoQtGeneralViewerFrame>> frames(all.begin(), all.end());
            EXPECT_TRUE(opened.window().close());
            EXPECT_TRUE(waitUntil([&] {
                return std::all_of(frames.begin(), frames.end(),
                                   [](const auto& frame) { return frame.isNull(); });
            }));
            EXPECT_EQ(opened.window().getHelixCount(), 0);
        }
        const QSettings settings("Trolltech", "MDI Viewer");
        EXPECT_TRUE(settings.contains("pos"));
        EXPECT_TRUE(settings.contains("size"));
    }
}

TEST(Closing, HelicesDieBeforeTheHyperboloidsWhenTheWindowCloses) {
    const OpenedWindow opened;
    opened.action("newAct").trigger();
    std::vector<std::string> deaths;
    for (const SoQtGeneralViewerFrame* frame : opened.frames()) {
        const std::string type = frame->GetType();
        QObject::connect(frame, &QObject::destroyed, [&deaths, type] { deaths.push_back(type); });
    }
    EXPECT_TRUE(opened.window().close());
    EXPECT_TRUE(waitUntil([&] { return deaths.size() == 5; }));
    EXPECT_EQ(deaths, (std::vector<std::string>{HelixFrame::Type(), HelixFrame::Type(),
                                                HyperboloidFrame::Type(), HyperboloidFrame::Type(),
                                                HyperboloidFrame::Type()}));
}

TEST(Closing, WindowStaysOpenWhileADocumentRefuses) {
    QSettings("Trolltech", "MDI Viewer").clear();
    const OpenedWindow opened;
    opened.firstHelix().setClosableAlone(false);
    EXPECT_FALSE(opened.window().close());
    EXPECT_TRUE(opened.window().isVisible());
    EXPECT_FALSE(QSettings("Trolltech", "MDI Viewer").contains("pos"));
    opened.firstHelix().setClosableAlone(true);
}

TEST(Closing, NoCommandFailsInAWindowWhoseHyperboloidsHaveGone) {
    const OpenedWindow opened;
    opened.activate(opened.firstHelix());
    const SliderWindow appearance(opened, "appearanceAct");
    const QPointer<HyperboloidFrame> lastToGo(&opened.hyperboloid(Hyperboloid::MSPACE));
    opened.firstHelix().setClosableAlone(false);
    EXPECT_FALSE(opened.window().close());
    ASSERT_TRUE(waitUntil([&] { return lastToGo.isNull(); }));
    for (int row = 0; row < 3; ++row) {
        appearance.slider(row).setValue(77);
    }
    for (const char* name : {"newAct", "hyperboloidParamsAct", "appearanceAct", "saveUAct",
                             "saveXAct", "saveMAct", "tileAct", "nextAct"}) {
        opened.action(name).trigger();
    }
    EXPECT_EQ(opened.frames().size(), 1U);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    HelixFrame& helix = *qobject_cast<HelixFrame*>(opened.frames().front());
    helix.setClosableAlone(true);
    opened.closeFrame(helix);
    EXPECT_EQ(opened.window().getHelixCount(), 0);
}

TEST(Closing, WindowMayBeDestroyedWithItsDocumentsOpen) {
    auto window = std::make_unique<MainWindow>();
    window->setUpMainViewer();
    window->show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(window.get(), patience));
    const QPointer<QMdiArea> area = window->findChild<QMdiArea*>();
    window.reset();
    EXPECT_TRUE(area.isNull());
}
