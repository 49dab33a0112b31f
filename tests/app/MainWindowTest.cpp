#include "app/MainWindow.h"

#include "tests/support/OpenedWindow.h"
#include "tests/support/SceneReader.h"

#include <QApplication>
#include <QSettings>
#include <QStatusBar>
#include <QWindow>
#include <gtest/gtest.h>

namespace {

QStringList titles(const OpenedWindow& opened) {
    QStringList found;
    for (const SoQtGeneralViewerFrame* frame : opened.frames()) {
        found << frame->viewerTitle();
    }
    return found;
}

/** Counts the windows that come on the screen without another window around them. */
class ShownTopLevelWindows : public QObject {
public:
    ShownTopLevelWindows() { qApp->installEventFilter(this); }

    bool eventFilter(QObject* watched, QEvent* event) override {
        const auto* shown = qobject_cast<QWindow*>(watched);
        if (shown != nullptr && event->type() == QEvent::Show && shown->parent() == nullptr) {
            ++count;
        }
        return false;
    }

    int count = 0;
};

void clearSettings() {
    QSettings("Trolltech", "MDI Viewer").clear();
}

/** Expects where a new window opens. */
void expectOpensAt(QPoint position, QSize size) {
    const MainWindow window;
    EXPECT_EQ(window.pos(), position);
    EXPECT_EQ(window.size(), size);
}

bool hasSphere(const HyperboloidFrame& frame, const SbName& name) {
    return SceneReader::childNamed(SceneReader::phongBranch(*frame.getSceneRoot()), name) !=
           nullptr;
}

} // namespace

TEST(MainWindowTest, OpensAtItsDefaultPlaceWithoutStoredSettings) {
    clearSettings();
    const MainWindow window;
    EXPECT_EQ(window.pos(), QPoint(200, 200));
    EXPECT_EQ(window.size(), QSize(400, 400));
    EXPECT_EQ(window.windowTitle(), "Visualisation of Torvane");
}

TEST(MainWindowTest, OpensWhereItWasClosed) {
    clearSettings();
    {
        MainWindow window;
        window.move(31, 41);
        window.resize(592, 653);
        window.close();
    }
    const QSettings settings("Trolltech", "MDI Viewer");
    EXPECT_EQ(settings.value("pos").toPoint(), QPoint(31, 41));
    EXPECT_EQ(settings.value("size").toSize(), QSize(592, 653));
    expectOpensAt(QPoint(31, 41), QSize(592, 653));
    clearSettings();
}

TEST(MainWindowTest, TwoFramesAreTakenBeforeTheFirstDocument) {
    const int before = SoQtGeneralViewerFrame::instances;
    const OpenedWindow opened;
    EXPECT_EQ(opened.frames().front()->getId(), before + 2);
    EXPECT_EQ(opened.frames().front()->windowTitle(), QString("Viewer %1").arg(before + 2));
}

TEST(MainWindowTest, StartsWithThreeSpacesAndAHelixInOrder) {
    const OpenedWindow opened;
    ASSERT_EQ(opened.frames().size(), 4U);
    EXPECT_EQ(titles(opened),
              (QStringList{"In U Space", "In X Space", "In M Space", "Helix Viewer"}));
    EXPECT_EQ(opened.window().getHelixCount(), 1);
    EXPECT_EQ(opened.area().activeSubWindow(), &opened.subWindow(opened.firstHelix()));
    EXPECT_EQ(opened.firstHelix().getIndex(), 0);
    EXPECT_EQ(opened.window().windowTitle(), "Visualisation of Torvane");
}

TEST(MainWindowTest, DocumentsAreNeverWindowsOfTheirOwn) {
    MainWindow window;
    ShownTopLevelWindows shown;
    window.setUpMainViewer();
    EXPECT_EQ(shown.count, 0);
    window.show();
    EXPECT_EQ(shown.count, 1);
    QMetaObject::invokeMethod(&window, "newViewer");
    EXPECT_EQ(shown.count, 1);
    window.close();
}

TEST(MainWindowTest, DocumentsAreTiledWithoutOverlap) {
    const OpenedWindow opened(OpenedWindow::roomySize);
    const QList<QMdiSubWindow*> all = opened.area().subWindowList();
    for (const QMdiSubWindow* one : all) {
        for (const QMdiSubWindow* other : all) {
            EXPECT_TRUE(one == other || !one->geometry().intersects(other->geometry()));
        }
        EXPECT_TRUE(opened.area().viewport()->rect().contains(one->geometry()));
    }
}

TEST(MainWindowTest, FirstHelixIsMadeFromVertexZeroOfU) {
    const OpenedWindow opened;
    HyperboloidFrame& u = opened.hyperboloid(Hyperboloid::USPACE);
    const Helix expected(u.getVertex(0, 0), u.getVertex(0, 1), u.getVertex(0, 2), u.getColor(0, 0),
                         u.getColor(0, 1), u.getColor(0, 2));
    const Helix& helix = opened.firstHelix().getHelix();
    EXPECT_EQ(helix.getRadius(), expected.getRadius());
    EXPECT_EQ(helix.getPitch(), expected.getPitch());
    EXPECT_EQ(helix.getHelixColor(), expected.getHelixColor());
}

TEST(MainWindowTest, SlotsThatMakeDocumentsMakeThoseThatTheyAreAskedFor) {
    const OpenedWindow opened;
    HyperboloidFrame* surface = nullptr;
    opened.call("createHyperboloid", Q_RETURN_ARG(HyperboloidFrame*, surface),
                Q_ARG(int, Hyperboloid::MSPACE), Q_ARG(const char*, "another of M"));
    ASSERT_NE(surface, nullptr);
    EXPECT_EQ(surface->WichSpace(), Hyperboloid::MSPACE);
    EXPECT_EQ(surface->viewerTitle(), "another of M");
    HelixFrame* closable = nullptr;
    opened.call("createHelix", Q_RETURN_ARG(HelixFrame*, closable));
    ASSERT_NE(closable, nullptr);
    EXPECT_EQ(opened.window().getHelixCount(), 2);
    EXPECT_TRUE(opened.subWindow(*closable).close());
    HelixFrame* lasting = nullptr;
    opened.call("createHelix", Q_RETURN_ARG(HelixFrame*, lasting), Q_ARG(bool, false));
    ASSERT_NE(lasting, nullptr);
    EXPECT_FALSE(opened.subWindow(*lasting).close());
    lasting->setClosableAlone(true);
}

TEST(MainWindowTest, NewHelixHasRoomToBeDrawn) {
    const OpenedWindow opened;
    opened.action("newAct").trigger();
    const HelixFrame& helix = *opened.helices().back();
    EXPECT_TRUE(opened.waitUntilAllViewsAreDrawn());
    EXPECT_GE(helix.width(), helix.minimumWidth());
    EXPECT_GE(helix.height(), helix.minimumHeight());
    EXPECT_TRUE(opened.subWindow(helix).rect().contains(helix.geometry()));
}

TEST(MainWindowTest, NewHelixGetsASphereAtVertexZeroInEverySpaceAndBecomesActive) {
    const OpenedWindow opened;
    opened.action("newAct").trigger();
    opened.action("newAct").trigger();
    ASSERT_EQ(opened.helices().size(), 3U);
    EXPECT_EQ(opened.window().getHelixCount(), 3);
    for (const HelixFrame* helix : opened.helices()) {
        for (int space = 0; space < 3; ++space) {
            const HyperboloidFrame& frame = opened.hyperboloid(space);
            const SoSeparator* sphere = SceneReader::childNamed(
                SceneReader::phongBranch(*frame.getSceneRoot()), helix->getName());
            ASSERT_NE(sphere, nullptr);
            EXPECT_EQ(SceneReader::child<SoTransform>(*sphere, 1)->translation.getValue(),
                      SbVec3f(frame.getVertex(0, 0), frame.getVertex(0, 1), frame.getVertex(0, 2)));
        }
    }
    EXPECT_EQ(opened.area().activeSubWindow()->widget(), opened.helices().back());
    EXPECT_EQ(opened.helices().back()->viewerTitle(), "Helix Viewer");
}

TEST(MainWindowTest, ActivatingAHyperboloidRightAfterAHelixTiesThem) {
    const OpenedWindow opened;
    opened.action("newAct").trigger();
    HelixFrame& second = *opened.helices().back();
    HyperboloidFrame& x = opened.hyperboloid(Hyperboloid::XSPACE);
    opened.activate(second);
    opened.activate(x);
    EXPECT_EQ(x.GetPreviousHelix(), &second);
}

TEST(MainWindowTest, NoActiveFrameBetweenAHelixAndAHyperboloidTiesThemToo) {
    const OpenedWindow opened;
    opened.activate(opened.firstHelix());
    opened.area().setActiveSubWindow(nullptr);
    for (int space = 0; space < 3; ++space) {
        opened.hyperboloid(space).PrevHelixDead();
    }
    opened.activate(opened.hyperboloid(Hyperboloid::MSPACE));
    EXPECT_EQ(opened.hyperboloid(Hyperboloid::MSPACE).GetPreviousHelix(), &opened.firstHelix());
    for (const int other : {Hyperboloid::USPACE, Hyperboloid::XSPACE}) {
        EXPECT_EQ(opened.hyperboloid(other).GetPreviousHelix(), nullptr) << "space " << other;
    }
}

TEST(MainWindowTest, ActivatingAHyperboloidAfterAnotherTiesNothing) {
    const OpenedWindow opened;
    HyperboloidFrame& u = opened.hyperboloid(Hyperboloid::USPACE);
    HyperboloidFrame& m = opened.hyperboloid(Hyperboloid::MSPACE);
    opened.activate(u);
    m.PrevHelixDead();
    opened.activate(m);
    EXPECT_EQ(m.GetPreviousHelix(), nullptr);
    opened.activate(opened.firstHelix());
    EXPECT_EQ(m.GetPreviousHelix(), nullptr);
}

TEST(MainWindowTest, DeadHelixLosesExactlyItsSpheresAndUntiesEveryFrame) {
    const OpenedWindow opened;
    opened.action("newAct").trigger();
    HelixFrame& first = *opened.helices().front();
    HelixFrame& second = *opened.helices().back();
    opened.tie(first, opened.hyperboloid(0));
    const SbName dead = second.getName();
    opened.closeFrame(second);
    EXPECT_EQ(opened.window().getHelixCount(), 1);
    for (int space = 0; space < 3; ++space) {
        EXPECT_FALSE(hasSphere(opened.hyperboloid(space), dead));
        EXPECT_TRUE(hasSphere(opened.hyperboloid(space), first.getName()));
        EXPECT_EQ(opened.hyperboloid(space).GetPreviousHelix(), nullptr);
    }
}

TEST(MainWindowTest, HelixNamesAreNotUsedAgain) {
    const OpenedWindow opened;
    const SbName first = opened.firstHelix().getName();
    opened.closeFrame(opened.firstHelix());
    opened.action("newAct").trigger();
    EXPECT_NE(opened.firstHelix().getName(), first);
}

TEST(MainWindowTest, HyperboloidFramesRefuseToBeClosedAlone) {
    const OpenedWindow opened;
    for (int space = 0; space < 3; ++space) {
        EXPECT_FALSE(opened.subWindow(opened.hyperboloid(space)).close());
        EXPECT_TRUE(opened.hyperboloid(space).isVisible());
    }
    EXPECT_EQ(opened.frames().size(), 4U);
}

TEST(MainWindowTest, StatusBarIsReadyAndThenShowsStatusTips) {
    const OpenedWindow opened;
    EXPECT_EQ(opened.window().statusBar()->currentMessage(), "Ready");
    QStatusTipEvent tip("Create a new viewer");
    QCoreApplication::sendEvent(&opened.window(), &tip);
    EXPECT_EQ(opened.window().statusBar()->currentMessage(), "Create a new viewer");
}

TEST(MainWindowTest, StatusBarShowsTheActiveViewersTitle) {
    const OpenedWindow opened;
    EXPECT_EQ(opened.label("viewerTitleLabel"), "Helix Viewer");
    opened.activate(opened.hyperboloid(Hyperboloid::MSPACE));
    EXPECT_EQ(opened.label("viewerTitleLabel"), "In M Space");
    opened.activate(opened.firstHelix());
    opened.hyperboloid(0).SetPreviousHelix(&opened.firstHelix());
    opened.hyperboloid(0).moveSphere(HyperboloidFrame::DOWN);
    EXPECT_EQ(opened.label("viewerTitleLabel"), opened.firstHelix().viewerTitle());
    EXPECT_TRUE(opened.label("viewerTitleLabel").startsWith("U = ("));
}

TEST(MainWindowTest, StatusBarShowsTheSteeredHelixBesideAHyperboloid) {
    const OpenedWindow opened;
    HelixFrame& helix = opened.firstHelix();
    HyperboloidFrame& u = opened.hyperboloid(Hyperboloid::USPACE);
    EXPECT_EQ(opened.label("steeredHelixLabel"), "");
    opened.tie(helix, u);
    u.moveSphere(HyperboloidFrame::DOWN);
    EXPECT_EQ(opened.label("viewerTitleLabel"), "In U Space");
    EXPECT_EQ(opened.label("steeredHelixLabel"), helix.windowTitle() + ": " + helix.viewerTitle());
    opened.closeFrame(helix);
    EXPECT_EQ(opened.label("steeredHelixLabel"), "");
}

TEST(MainWindowTest, TitleSurvivesMaximisedDocumentsThatGetTitles) {
    const OpenedWindow opened;
    HelixFrame& helix = opened.firstHelix();
    opened.subWindow(helix).showMaximized();
    const QString maximised = "Visualisation of Torvane - [" + helix.windowTitle() + "]";
    EXPECT_TRUE(waitUntil([&] { return opened.window().windowTitle() == maximised; }));
    helix.showU(1, 2, 3);
    helix.showU(4, 5, 6);
    EXPECT_EQ(opened.window().windowTitle(), maximised);
    opened.subWindow(helix).showNormal();
    EXPECT_EQ(opened.window().windowTitle(), "Visualisation of Torvane");
}

TEST(MainWindowTest, AllViewsAreDrawnAfterEveryChangeOfSize) {
    const OpenedWindow opened;
    for (const QSize size : {QSize(880, 720), QSize(1200, 900), QSize(850, 700)}) {
        opened.window().resize(size);
        EXPECT_TRUE(waitUntil([&] { return opened.window().size() == size; }));
        opened.action("tileAct").trigger();
        EXPECT_TRUE(opened.waitUntilAllViewsAreDrawn());
    }
}

TEST(MainWindowTest, AllViewsAreDrawnAfterMinimiseAndRestore) {
    const OpenedWindow opened;
    opened.window().showMinimized();
    QCoreApplication::processEvents();
    opened.window().showNormal();
    EXPECT_TRUE(opened.waitUntilAllViewsAreDrawn());
    QMdiSubWindow& helix = opened.subWindow(opened.firstHelix());
    helix.showMinimized();
    QCoreApplication::processEvents();
    helix.showNormal();
    EXPECT_TRUE(opened.waitUntilAllViewsAreDrawn());
}
