#include "tests/support/OpenedWindow.h"

#include <QSettings>
#include <algorithm>
#include <gtest/gtest.h>

namespace {

/** Closes the helices in a given order of their ages, stepping a hyperboloid in between. */
void closeInOrder(const std::vector<int>& order) {
    const OpenedWindow opened;
    std::vector<QPointer<HelixFrame>> helices;
    for (std::size_t i = 1; i < order.size(); ++i) {
        opened.action("newAct").trigger();
    }
    for (HelixFrame* helix : opened.helices()) {
        helices.emplace_back(helix);
    }
    for (const int next : order) {
        HelixFrame& helix = *helices[static_cast<std::size_t>(next)];
        opened.tie(helix, opened.hyperboloid(Hyperboloid::XSPACE));
        opened.hyperboloid(Hyperboloid::XSPACE).moveSphere(HyperboloidFrame::DOWN);
        opened.closeFrame(helix);
        opened.hyperboloid(Hyperboloid::XSPACE).moveSphere(HyperboloidFrame::DOWN);
        opened.activate(opened.hyperboloid(Hyperboloid::USPACE));
        opened.activate(opened.hyperboloid(Hyperboloid::MSPACE));
    }
    EXPECT_EQ(opened.window().getHelixCount(), 0);
    EXPECT_TRUE(opened.helices().empty());
    EXPECT_EQ(opened.frames().size(), 3U);
}

} // namespace

TEST(Closing, HelicesGoInAnyOrder) {
    std::vector<int> order{0, 1, 2};
    do {
        closeInOrder(order);
    } while (std::next_permutation(order.begin(), order.end()));
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
    for (int helices = 0; helices <= 3; ++helices) {
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

TEST(Closing, WindowStaysOpenWhileADocumentRefuses) {
    QSettings("Trolltech", "MDI Viewer").clear();
    const OpenedWindow opened;
    opened.firstHelix().setClosableAlone(false);
    EXPECT_FALSE(opened.window().close());
    EXPECT_TRUE(opened.window().isVisible());
    EXPECT_FALSE(QSettings("Trolltech", "MDI Viewer").contains("pos"));
    opened.firstHelix().setClosableAlone(true);
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
