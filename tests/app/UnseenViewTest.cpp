#include "tests/support/ForeignWindow.h"
#include "tests/support/OpenedWindow.h"
#include "tests/support/RedrawCounter.h"
#include "viewer/SoQtGeneralViewer.h"

#include <gtest/gtest.h>

namespace {

/** An opened window whose X view spins. */
class SpinningView {
public:
    SpinningView()
        : counter(frame()) {
        const ViewDriver view(frame());
        view.drag(Qt::LeftButton, QPoint(100, 100), QPoint(140, 125));
        EXPECT_TRUE(frame().getViewer()->isAnimating());
        EXPECT_TRUE(goesOn());
    }

    HyperboloidFrame& frame() const { return opened.hyperboloid(Hyperboloid::XSPACE); }
    QMdiSubWindow& document() const { return opened.subWindow(frame()); }
    /** Where the view is on the screen. */
    QRect place() const {
        const QWidget& view = ViewDriver(frame()).widget();
        return {view.mapToGlobal(QPoint(0, 0)), view.size()};
    }

    /** Whether the view is drawn again and again. */
    bool goesOn() const {
        constexpr int several = 5;
        const int before = counter.soFar();
        return waitUntil([&] { return counter.soFar() >= before + several; });
    }

    /** Expects that no drawing is pending: then none will follow, as each asks for the next. */
    void expectPauses() {
        counter.take();
        QTest::qWait(100);
        EXPECT_EQ(counter.take(), 0);
        EXPECT_TRUE(frame().getViewer()->isAnimating());
    }

    OpenedWindow opened;
    RedrawCounter counter;
};

} // namespace

TEST(UnseenView, SpinPausesWhileTheMainWindowIsMinimised) {
    SpinningView spinning;
    spinning.opened.window().showMinimized();
    spinning.expectPauses();
    spinning.opened.window().showNormal();
    EXPECT_TRUE(spinning.goesOn());
}

TEST(UnseenView, SpinPausesWhileTheMainWindowIsHidden) {
    SpinningView spinning;
    spinning.opened.window().hide();
    spinning.expectPauses();
    spinning.opened.window().show();
    EXPECT_TRUE(spinning.goesOn());
}

TEST(UnseenView, SpinPausesWhileItsDocumentIsMinimised) {
    SpinningView spinning;
    spinning.document().showMinimized();
    spinning.expectPauses();
    spinning.document().showNormal();
    EXPECT_TRUE(spinning.goesOn());
}

TEST(UnseenView, SpinPausesBehindAMaximisedDocument) {
    SpinningView spinning;
    QMdiSubWindow& other =
        spinning.opened.subWindow(spinning.opened.hyperboloid(Hyperboloid::USPACE));
    other.showMaximized();
    spinning.expectPauses();
    other.showNormal();
    EXPECT_TRUE(spinning.goesOn());
}

TEST(UnseenView, SpinPausesOutsideTheDocumentsArea) {
    SpinningView spinning;
    const QPoint place = spinning.document().pos();
    spinning.document().move(5000, place.y());
    spinning.expectPauses();
    spinning.document().move(place);
    EXPECT_TRUE(spinning.goesOn());
}

TEST(UnseenView, SpinGoesOnAsLongAsACornerIsSeen) {
    SpinningView spinning;
    const HyperboloidFrame& u = spinning.opened.hyperboloid(Hyperboloid::USPACE);
    QMdiSubWindow& other = spinning.opened.subWindow(u);
    spinning.opened.activate(u);
    const QWidget& view = ViewDriver(spinning.frame()).widget();
    const QRect place(view.mapTo(spinning.opened.area().viewport(), QPoint(0, 0)), view.size());
    constexpr int corner = 7;
    constexpr int beyond = 20;
    other.setGeometry(place.adjusted(corner, corner, beyond, beyond));
    EXPECT_TRUE(spinning.goesOn());
    other.setGeometry(place.adjusted(-beyond, -beyond, beyond, beyond));
    spinning.expectPauses();
}

TEST(UnseenView, SpinPausesWhileAnotherProgramsWindowCoversTheMainWindow) {
    SpinningView spinning;
    {
        const ForeignWindow other(spinning.opened.window().frameGeometry());
        spinning.expectPauses();
    }
    EXPECT_TRUE(spinning.goesOn());
}

TEST(UnseenView, SpinGoesOnAsLongAsAnotherProgramsWindowLeavesACornerOfItsView) {
    SpinningView spinning;
    const QRect place = spinning.place();
    constexpr int corner = 7;
    {
        const ForeignWindow other(place.adjusted(corner, corner, 0, 0));
        EXPECT_TRUE(spinning.goesOn());
        const ForeignWindow another(QRect(place.topLeft(), QSize(2 * corner, 2 * corner)));
        EXPECT_TRUE(spinning.goesOn());
        const ForeignWindow wide(QRect(place.topLeft(), QSize(place.width(), corner)));
        const ForeignWindow high(QRect(place.topLeft(), QSize(corner, place.height())));
        spinning.expectPauses();
    }
    EXPECT_TRUE(spinning.goesOn());
}

TEST(UnseenView, ChangeOfACoveredViewIsDrawnOnceWhenItIsUncovered) {
    SpinningView spinning;
    SoQtGeneralViewer& viewer = *spinning.frame().getViewer();
    {
        const ForeignWindow other(spinning.place());
        spinning.expectPauses();
        viewer.stopAnimating();
        spinning.frame().toggleDrawStyle();
        RedrawCounter::settle();
        viewer.render();
        EXPECT_EQ(spinning.counter.take(), 0);
    }
    EXPECT_TRUE(waitUntil([&] { return spinning.counter.soFar() > 0; }));
    EXPECT_EQ(spinning.counter.take(), 1);
    const QImage uncovered = ViewDriver(spinning.frame()).grab();
    viewer.render();
    EXPECT_EQ(ViewDriver(spinning.frame()).grab(), uncovered);
}

TEST(UnseenView, ChangeOfAnUnseenViewIsShownWhenItIsSeenAgain) {
    const OpenedWindow opened;
    HyperboloidFrame& x = opened.hyperboloid(Hyperboloid::XSPACE);
    QMdiSubWindow& other = opened.subWindow(opened.hyperboloid(Hyperboloid::USPACE));
    const QImage before = ViewDriver(x).grab();
    other.showMaximized();
    RedrawCounter::settle();
    x.toggleDrawStyle();
    RedrawCounter::settle();
    other.showNormal();
    opened.action("tileAct").trigger();
    EXPECT_TRUE(waitUntil([&] {
        const QImage now = ViewDriver(x).grab();
        return now.size() == before.size() && now != before && ViewDriver(x).isDrawn();
    }));
}
