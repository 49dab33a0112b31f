// The documents and their three surfaces in a document area of their own, without the main window.

#include "app/Documents.h"

#include "helix/HelixFrame.h"
#include "hyperboloid/HyperboloidFrame.h"
#include "tests/app/BareFrames.h"
#include "tests/support/SceneReader.h"
#include "tests/support/Spheres.h"
#include "tests/support/VertexHelix.h"
#include "tests/support/Waiting.h"
#include "viewer/FrameOwner.h"

#include <Inventor/nodes/SoMaterial.h>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QScrollBar>
#include <gtest/gtest.h>

namespace {

constexpr int spaceCount = 3;

/** A document area with its documents set up, on the screen; the owner hands deaths on. */
class ShownDocuments : public FrameOwner {
public:
    ShownDocuments()
        : documents(area, *this) {
        area.resize(1000, 800);
        area.show();
        QObject::connect(&area, &QMdiArea::subWindowActivated, [this](QMdiSubWindow* activated) {
            activations.push_back(activated == nullptr ? nullptr : activated->widget());
        });
        documents.setUp();
    }
    ~ShownDocuments() {
        area.disconnect();
        documents.destroyAll();
    }
    ShownDocuments(const ShownDocuments&) = delete;
    ShownDocuments& operator=(const ShownDocuments&) = delete;

    void SayHypoImDead(SbName name) override { documents.helixDied(name); }
    void viewerTitleChanged() override {}

    HyperboloidFrame& hyperboloid(int space) const { return *documents.hyperboloids().of(space); }

    /** The frames in the order of their creation. */
    std::vector<SoQtGeneralViewerFrame*> frames() const {
        std::vector<SoQtGeneralViewerFrame*> found;
        for (const QMdiSubWindow* subWindow : area.subWindowList()) {
            found.push_back(qobject_cast<SoQtGeneralViewerFrame*>(subWindow->widget()));
        }
        return found;
    }

    void tie(HelixFrame* u, HelixFrame* x, HelixFrame* m) const {
        hyperboloid(Hyperboloid::USPACE).SetPreviousHelix(u);
        hyperboloid(Hyperboloid::XSPACE).SetPreviousHelix(x);
        hyperboloid(Hyperboloid::MSPACE).SetPreviousHelix(m);
    }

    QMdiArea area;
    Documents documents;
    /** What became active, in order; null for no document. */
    std::vector<QWidget*> activations;
};

bool hasSphere(const HyperboloidFrame& frame, const SbName& name) {
    return SceneReader::childNamed(SceneReader::phongBranch(*frame.getSceneRoot()), name) !=
           nullptr;
}

SbVec3f vertexOf(const HyperboloidFrame& frame, int index) {
    return {frame.getVertex(index, 0), frame.getVertex(index, 1), frame.getVertex(index, 2)};
}

/** Fifteen values, no two of them alike. */
HyperboloidParameters unequalParameters() {
    HyperboloidParameters set;
    set.K1 = 1.37;
    set.K2 = 2.91;
    set.K3 = 1.73;
    set.K13 = 0.59;
    set.K23 = -0.83;
    set.U1 = 0.71;
    set.U2 = -0.43;
    set.U3 = 0.29;
    set.horizontalPrecision = 13;
    set.verticalPrecision = 8;
    set.pointRadius = 0.17;
    set.u3constRange = 5.3;
    set.u3axisRange = 6.1;
    set.u3constRadius = 0.07;
    set.u3axisRadius = 0.11;
    return set;
}

} // namespace

TEST(DocumentsTest, SetUpOpensTheThreeSpacesAndAHelixAndTilesThem) {
    const int before = SoQtGeneralViewerFrame::instances;
    const ShownDocuments shown;
    const std::vector<SoQtGeneralViewerFrame*> frames = shown.frames();
    ASSERT_EQ(frames.size(), 4U);
    const std::vector<QString> titles{"In U Space", "In X Space", "In M Space", "Helix Viewer"};
    for (std::size_t i = 0; i < frames.size(); ++i) {
        EXPECT_EQ(frames[i]->viewerTitle(), titles[i]);
        EXPECT_EQ(frames[i]->getId(), before + static_cast<int>(i));
    }
    for (int space = 0; space < spaceCount; ++space) {
        EXPECT_EQ(frames[static_cast<std::size_t>(space)], &shown.hyperboloid(space));
        EXPECT_EQ(shown.hyperboloid(space).WichSpace(), space);
        for (int brother = 0; brother < spaceCount; ++brother) {
            EXPECT_EQ(shown.hyperboloid(space).getBrother(brother), &shown.hyperboloid(brother));
        }
    }
    EXPECT_EQ(shown.documents.active(), frames.back());
    EXPECT_EQ(shown.documents.count(), 4);
    EXPECT_EQ(shown.documents.helixCount(), 1);
    const QList<QMdiSubWindow*> all = shown.area.subWindowList();
    for (const QMdiSubWindow* one : all) {
        for (const QMdiSubWindow* other : all) {
            EXPECT_TRUE(one == other || !one->geometry().intersects(other->geometry()));
        }
    }
}

TEST(DocumentsTest, EveryDocumentHasTheUsualTitleBar) {
    ShownDocuments shown;
    shown.documents.openHelix();
    constexpr Qt::WindowFlags usual = Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                                      Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint;
    ASSERT_EQ(shown.area.subWindowList().size(), 5);
    for (const QMdiSubWindow* subWindow : shown.area.subWindowList()) {
        EXPECT_EQ(subWindow->windowFlags() & usual, usual);
        EXPECT_FALSE(subWindow->windowFlags().testFlag(Qt::FramelessWindowHint));
    }
}

TEST(DocumentsTest, WhatLiesBeyondAnEdgeIsReachedByItsScrollBarAndNoOther) {
    const ShownDocuments shown;
    for (QMdiSubWindow* subWindow : shown.area.subWindowList()) {
        subWindow->setGeometry(20, 30, 400, 300);
    }
    QMdiSubWindow& document = *shown.area.subWindowList().constFirst();
    const QScrollBar& below = *shown.area.verticalScrollBar();
    const QScrollBar& beside = *shown.area.horizontalScrollBar();
    EXPECT_FALSE(below.isVisible());
    EXPECT_FALSE(beside.isVisible());
    document.move(710, 90);
    EXPECT_TRUE(waitUntil([&] { return beside.isVisible() && !below.isVisible(); }));
    document.move(170, 630);
    EXPECT_TRUE(waitUntil([&] { return below.isVisible() && !beside.isVisible(); }));
    document.move(170, 90);
    EXPECT_TRUE(waitUntil([&] { return !below.isVisible() && !beside.isVisible(); }));
}

TEST(DocumentsTest, ANewHelixIsActivatedByWayOfNoDocumentAndTheFrameOfU) {
    ShownDocuments shown;
    shown.activations.clear();
    shown.documents.openHelix();
    HelixFrame* const opened = shown.documents.helices().back();
    ASSERT_GE(shown.activations.size(), 3U);
    const std::vector<QWidget*> last(shown.activations.end() - 3, shown.activations.end());
    EXPECT_EQ(last,
              (std::vector<QWidget*>{nullptr, &shown.hyperboloid(Hyperboloid::USPACE), opened}));
    EXPECT_EQ(shown.documents.helixCount(), 2);
    EXPECT_TRUE(opened->isVisible());
    EXPECT_EQ(opened->viewerTitle(), "Helix Viewer");
    EXPECT_EQ(opened->getIndex(), 0);
    EXPECT_EQ(opened->getHelix().getTorsion(),
              shown.hyperboloid(Hyperboloid::USPACE).getVertex(0, 2));
    for (int space = 0; space < spaceCount; ++space) {
        EXPECT_EQ(spherePosition(shown.hyperboloid(space), *opened),
                  vertexOf(shown.hyperboloid(space), 0));
    }
}

TEST(DocumentsTest, WithoutSurfacesNoHelixIsOpened) {
    QMdiArea area;
    class NoOwner : public FrameOwner {
        void SayHypoImDead(SbName /*name*/) override {}
        void viewerTitleChanged() override {}
    } owner;
    Documents documents(area, owner);
    documents.openHelix();
    EXPECT_EQ(documents.count(), 0);
    EXPECT_EQ(documents.active(), nullptr);
}

TEST(DocumentsTest, WithoutSurfacesHelicesStayWhereTheyAre) {
    const auto helix = BareFrames::helix();
    HyperboloidTrio().keepInPlace({helix.get()}, 4096);
    EXPECT_EQ(helix->getIndex(), 7);
}

TEST(DocumentsTest, ATitleFindsTheOldestDocumentThatBearsIt) {
    ShownDocuments shown;
    const std::vector<SoQtGeneralViewerFrame*> frames = shown.frames();
    for (const SoQtGeneralViewerFrame* frame : frames) {
        ASSERT_NE(shown.documents.find(frame->windowTitle()), nullptr);
        EXPECT_EQ(shown.documents.find(frame->windowTitle())->widget(), frame);
    }
    frames[1]->setWindowTitle("shared");
    frames[2]->setWindowTitle("shared");
    EXPECT_EQ(shown.documents.find("shared")->widget(), frames[1]);
    // Not the lowest of the stack either.
    shown.area.setActiveSubWindow(shown.area.subWindowList().at(1));
    EXPECT_EQ(shown.documents.find("shared")->widget(), frames[1]);
    EXPECT_EQ(shown.documents.find("share"), nullptr);
    EXPECT_EQ(shown.documents.find("In U Space"), nullptr);
}

TEST(DocumentsTest, ActivatingWhatIsNoDocumentLeavesNoneActiveAndNullChangesNothing) {
    ShownDocuments shown;
    const QList<QMdiSubWindow*> all = shown.area.subWindowList();
    shown.documents.activate(all[2]);
    EXPECT_EQ(shown.documents.active(), &shown.hyperboloid(Hyperboloid::MSPACE));
    shown.documents.activate(nullptr);
    EXPECT_EQ(shown.documents.active(), &shown.hyperboloid(Hyperboloid::MSPACE));
    shown.documents.activate(&shown.area);
    EXPECT_EQ(shown.documents.active(), nullptr);
}

TEST(DocumentsTest, ADyingHelixTakesItsSpheresAlongAndUntiesEverySurface) {
    ShownDocuments shown;
    shown.documents.openHelix();
    HelixFrame* const first = shown.documents.helices().front();
    HelixFrame* const second = shown.documents.helices().back();
    const SbName deadName = second->getName();
    shown.tie(first, second, first);
    shown.documents.find(second->windowTitle())->close();
    ASSERT_TRUE(waitUntil([&] { return shown.documents.helixCount() == 1; }));
    for (int space = 0; space < spaceCount; ++space) {
        EXPECT_FALSE(hasSphere(shown.hyperboloid(space), deadName));
        EXPECT_TRUE(hasSphere(shown.hyperboloid(space), first->getName()));
        EXPECT_EQ(shown.hyperboloid(space).GetPreviousHelix(), nullptr);
    }
}

TEST(DocumentsTest, ClosingTheHelicesLeavesTheSurfaces) {
    ShownDocuments shown;
    shown.documents.openHelix();
    shown.documents.closeHelices();
    EXPECT_TRUE(waitUntil([&] { return shown.documents.helixCount() == 0; }));
    EXPECT_EQ(shown.documents.count(), spaceCount);
}

TEST(DocumentsTest, ClosingAllSaysWhetherADocumentRefused) {
    ShownDocuments shown;
    HelixFrame* const refusing = shown.documents.createHelix(false);
    refusing->show();
    EXPECT_FALSE(shown.documents.closeAll());
    EXPECT_EQ(shown.frames(), std::vector<SoQtGeneralViewerFrame*>{refusing});
    refusing->setClosableAlone(true);
    EXPECT_TRUE(shown.documents.closeAll());
    EXPECT_EQ(shown.documents.count(), 0);
}

TEST(HyperboloidTrioTest, ParametersReachTheThreeSurfacesWithTheColoursOfU) {
    ShownDocuments shown;
    const HyperboloidParameters set = unequalParameters();
    shown.documents.hyperboloids().setParameters(set);
    Hyperboloid freshU(1, 1.5F, 1, 0.5F, 0.5F, 1, 0, 0, Hyperboloid::USPACE);
    freshU.setParameters(set);
    freshU.init_tables();
    freshU.generateHyperboloidPoints(true, true);
    for (int space = 0; space < spaceCount; ++space) {
        Hyperboloid fresh(1, 1.5F, 1, 0.5F, 0.5F, 1, 0, 0, space);
        fresh.setParameters(set);
        fresh.init_tables();
        fresh.generateHyperboloidPoints(true, true);
        const HyperboloidFrame& frame = shown.hyperboloid(space);
        ASSERT_EQ(frame.getNumCol(), 13U);
        ASSERT_EQ(frame.getNumRow(), 8U);
        for (int k = 0; k < 13 * 8; ++k) {
            for (int component = 0; component < 3; ++component) {
                ASSERT_EQ(frame.getVertex(k, component), fresh.getVertex(k, component));
                ASSERT_EQ(frame.getColor(k, component), freshU.getColor(k, component));
            }
        }
        EXPECT_EQ(frame.getu3axis_range(), 6.1);
        EXPECT_EQ(frame.getu3const_radius(), 0.07);
    }
}

TEST(HyperboloidTrioTest, HelicesStayInPlaceAndAllSurfacesSteerTheOneThatUSteered) {
    ShownDocuments shown;
    shown.documents.openHelix();
    shown.documents.openHelix();
    const std::vector<HelixFrame*> helices = shown.documents.helices();
    const int oldCount = 64 * 64;
    helices[0]->SetVertexInd(1000);
    helices[1]->SetVertexInd(2777);
    helices[2]->SetVertexInd(4095);
    shown.tie(helices[1], helices[2], nullptr);
    shown.documents.hyperboloids().setParameters(unequalParameters());
    shown.documents.hyperboloids().keepInPlace(helices, oldCount);
    // 104 (i / 4096), truncated: 25.39, 70.51, 103.97.
    const std::vector<int> expected{25, 70, 103};
    for (std::size_t i = 0; i < helices.size(); ++i) {
        expectHelixOfVertex(*helices[i], shown.hyperboloid(Hyperboloid::USPACE), expected[i]);
        for (int space = 0; space < spaceCount; ++space) {
            EXPECT_EQ(spherePosition(shown.hyperboloid(space), *helices[i]),
                      vertexOf(shown.hyperboloid(space), expected[i]));
        }
    }
    for (int space = 0; space < spaceCount; ++space) {
        EXPECT_EQ(shown.hyperboloid(space).GetPreviousHelix(), helices[1]) << "space " << space;
    }
}

TEST(HyperboloidTrioTest, AppearanceReachesTheThreeSurfacesEachValueItsOwn) {
    ShownDocuments shown;
    HyperboloidTrio& trio = shown.documents.hyperboloids();
    trio.setTransparency(17);
    trio.setLightness(37);
    trio.setSaturation(61);
    for (int space = 0; space < spaceCount; ++space) {
        const HyperboloidFrame& frame = shown.hyperboloid(space);
        EXPECT_EQ(frame.getTransparency(), 0.17);
        EXPECT_EQ(frame.getLightness(), 0.37);
        EXPECT_EQ(frame.getSaturation(), 0.61);
        for (int channel = 0; channel < 3; ++channel) {
            EXPECT_EQ(frame.getColor(99, channel),
                      shown.hyperboloid(Hyperboloid::USPACE).getColor(99, channel));
        }
    }
}
