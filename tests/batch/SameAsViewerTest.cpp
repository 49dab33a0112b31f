// What the program makes without a display, beside what the viewer saves on one.

#include "app/ImageExport.h"
#include "hyperboloid/HyperboloidParameters.h"
#include "tests/batch/BatchProgram.h"
#include "tests/export/PrintedViews.h"
#include "viewer/SoQtGeneralViewer.h"

#include <Inventor/SoOffscreenRenderer.h>
#include <Inventor/nodes/SoOrthographicCamera.h>
#include <Inventor/nodes/SoPerspectiveCamera.h>
#include <Inventor/nodes/SoSeparator.h>
#include <cstdio>
#include <functional>
#include <memory>
#include <random>

namespace {

/** A set that the conditions admit, after a change. */
HyperboloidParameters anySet(
    std::mt19937& random, int decimals = 2,
    const std::function<void(HyperboloidParameters&)>& change = [](HyperboloidParameters&) {}) {
    const auto entered = [&](double minimum, double maximum) {
        const double value = std::uniform_real_distribution<double>(minimum, maximum)(random);
        return QString::number(value, 'f', decimals).toDouble();
    };
    HyperboloidParameters set;
    do {
        set.K1 = entered(0.5, 4);
        set.K2 = entered(0.5, 4);
        set.K3 = entered(0, 4);
        set.K13 = entered(-1.5, 1.5);
        set.K23 = entered(-1.5, 1.5);
        change(set);
    } while (set.brokenCondition() != HyperboloidCondition::none);
    set.U1 = entered(-3, 3);
    set.U2 = entered(-3, 3);
    set.U3 = entered(-3, 3);
    set.horizontalPrecision = static_cast<int>(entered(5, 40));
    set.verticalPrecision = static_cast<int>(entered(5, 40));
    set.pointRadius = entered(0, 1);
    set.u3constRange = entered(0, 9);
    set.u3axisRange = entered(0, 9);
    set.u3constRadius = entered(0, 0.2);
    set.u3axisRadius = entered(0, 0.2);
    return set;
}

/** Sets that are degenerate in every way. */
std::vector<HyperboloidParameters> degenerateSets(std::mt19937& random) {
    std::vector<HyperboloidParameters> sets{
        anySet(random, 2, [](HyperboloidParameters& set) { set.K13 = 0; }),
        anySet(random, 2, [](HyperboloidParameters& set) { set.K23 = 0; }),
        anySet(random, 2, [](HyperboloidParameters& set) { set.K1 = set.K2; }), anySet(random),
        anySet(random)};
    sets[3].U1 = sets[3].U2 = sets[3].U3 = 0;
    sets[4].U1 = sets[4].U2 = 0;
    return sets;
}

QStringList optionsOf(const HyperboloidParameters& set) {
    QStringList options;
    for (const HyperboloidParameter& parameter : HyperboloidParameters::all()) {
        options << QString("--%1=%2")
                       .arg(parameter.name.data())
                       .arg(parameter.valueIn(set), 0, 'g', 17);
    }
    return options;
}

class SameAsViewer : public PrintedViews {
protected:
    // Each case is about a viewer that has just started.
    SameAsViewer() { closeAfterwards(); }

    /** Enters a set into the viewer as it was when it had just started. */
    void enter(const HyperboloidParameters& set) {
        for (const HyperboloidParameters& p : {HyperboloidParameters(), set}) {
            const auto oldCount = static_cast<int>(opened.hyperboloid(0).getNumVertices());
            opened.window().refresh_hyperboloids(p.K1, p.K2, p.K3, p.K13, p.K23, p.U1, p.U2, p.U3,
                                                 p.horizontalPrecision, p.verticalPrecision,
                                                 p.pointRadius, p.u3constRange, p.u3axisRange,
                                                 p.u3constRadius, p.u3axisRadius);
            opened.window().refresh_helixs(oldCount);
        }
    }

    /** Gives the helix a vertex of the U surface. */
    void pick(int index) {
        opened.tie(opened.firstHelix(), opened.hyperboloid(0));
        opened.hyperboloid(0).refresh_hypos(index);
        opened.hyperboloid(0).refresh_helix(index);
    }

    SoQtGeneralViewerFrame& frameOf(int document) const {
        return *opened.frames().at(static_cast<std::size_t>(document));
    }

    QByteArray savedText(int document) {
        const QString file = folder.filePath("viewer.txt");
        opened.window().saveIn(file, &frameOf(document), document < 3);
        return contentOf(file);
    }

    QByteArray savedPicture(int document) {
        SoQtGeneralViewerFrame& frame = frameOf(document);
        const QString name = folder.filePath("viewer.eps");
        std::FILE* file = std::fopen(name.toLocal8Bit().constData(), "w");
        EXPECT_TRUE(opened.window().printToPostScript(frame.getSceneRoot(), file, frame.getViewer(),
                                                      printer));
        std::fclose(file);
        return contentOf(name);
    }

    QByteArray madePicture(int document, const QStringList& options) {
        const SoQtGeneralViewer& viewer = *frameOf(document).getViewer();
        const SbVec2s size =
            ImageExport::printSize(viewer.getViewportRegion().getViewportSizePixels(),
                                   SoOffscreenRenderer::getScreenPixelsPerInch(), printer);
        const QString name = folder.filePath("batch.eps");
        const BatchProgram ended = BatchProgram::run(
            options +
            QStringList{QString("--size=%1x%2").arg(size[0] / printer).arg(size[1] / printer),
                        QString("--screen-dpi=%1")
                            .arg(double(SoOffscreenRenderer::getScreenPixelsPerInch()), 0, 'g', 17),
                        QString("--image=%1=%2").arg(names[document], name)});
        EXPECT_EQ(ended.exitCode, 0) << ended.errors.constData();
        return contentOf(name);
    }

    void expectSamePictures(const QStringList& options) {
        for (int document = 0; document < 4; ++document) {
            const QByteArray saved = savedPicture(document);
            EXPECT_GT(saved.size(), 100000);
            EXPECT_EQ(madePicture(document, options) == saved, true)
                << names[document].toStdString() << " " << options.join(" ").toStdString();
        }
    }

    /** The same but for a few pixels on edges: the last bits of the cameras may differ. */
    void expectAlmostSamePictures(const QStringList& options) {
        constexpr int mostDiffering = 500;
        for (int document = 0; document < 4; ++document) {
            savedPicture(document);
            madePicture(document, options);
            const QImage saved = drawn(folder.filePath("viewer.eps"));
            const QImage made = drawn(folder.filePath("batch.eps"));
            ASSERT_EQ(made.size(), saved.size());
            int differing = 0;
            for (int y = 0; y < made.height(); ++y) {
                for (int x = 0; x < made.width(); ++x) {
                    differing += made.pixel(x, y) != saved.pixel(x, y) ? 1 : 0;
                }
            }
            EXPECT_LT(differing, mostDiffering)
                << names[document].toStdString() << " " << options.join(" ").toStdString();
        }
    }

    /** Lets all cameras turn about the middle of what they see, and come nearer. */
    void moveCameras() const {
        constexpr float zoom = 1.7F;
        SbVec3f direction(-1, 0.6F, -1);
        direction.normalize();
        for (int document = 0; document < 4; ++document) {
            SoCamera& camera = *frameOf(document).getViewer()->getCamera();
            float distance = camera.focalDistance.getValue();
            const SbVec3f middle = camera.position.getValue() + SbVec3f(0, 0, -distance);
            if (camera.isOfType(SoPerspectiveCamera::getClassTypeId())) {
                distance /= zoom;
            } else {
                auto& height = static_cast<SoOrthographicCamera&>(camera).height;
                height = height.getValue() / zoom;
            }
            camera.focalDistance = distance;
            camera.position = middle - direction * distance;
            camera.pointAt(middle, SbVec3f(0, 0, 1));
        }
    }

    const QStringList moved{"--direction=-1,0.6,-1", "--up=0,0,1", "--zoom=1.7"};
    const QStringList names{"U", "X", "M", "helix"};
};

} // namespace

TEST_F(SameAsViewer, TextsOfManySetsToTheLastByte) {
    std::mt19937 random(13);
    std::vector<HyperboloidParameters> sets = degenerateSets(random);
    sets.emplace_back();
    // The dialog's fields take two decimals, and the program any number of them.
    for (const int decimals : {2, 2, 2, 2, 2, 3, 5, 9, 12, 16}) {
        sets.push_back(anySet(random, decimals));
        sets.push_back(anySet(random, decimals));
    }
    for (const HyperboloidParameters& set : sets) {
        ASSERT_EQ(set.brokenCondition(), HyperboloidCondition::none);
        const int index = set.horizontalPrecision * set.verticalPrecision / 3;
        enter(set);
        pick(index);
        const QStringList options = optionsOf(set) + QStringList(QString("--vertex=%1").arg(index));
        for (int document = 0; document < 4; ++document) {
            const QString name = folder.filePath("batch.txt");
            BatchProgram::run(options + QStringList{"--text", names[document] + "=" + name});
            EXPECT_EQ(contentOf(name), savedText(document))
                << names[document].toStdString() << " " << options.join(" ").toStdString();
        }
    }
}

TEST_F(SameAsViewer, FirstViewsToTheLastPixel) {
    expectSamePictures({});
}

TEST_F(SameAsViewer, LooksToTheLastPixel) {
    for (const char* look : {"plain", "lines"}) {
        for (int document = 0; document < 4; ++document) {
            frameOf(document).toggleDrawStyle();
        }
        expectSamePictures({"--look", look});
    }
}

TEST_F(SameAsViewer, PerspectiveViewsToTheLastPixel) {
    for (int document = 0; document < 4; ++document) {
        frameOf(document).getViewer()->setCameraType(SoPerspectiveCamera::getClassTypeId());
    }
    expectSamePictures({"--camera", "perspective"});
}

TEST_F(SameAsViewer, OtherOrthographicViews) {
    moveCameras();
    expectAlmostSamePictures(moved);
}

TEST_F(SameAsViewer, OtherPerspectiveViews) {
    for (int document = 0; document < 4; ++document) {
        frameOf(document).getViewer()->setCameraType(SoPerspectiveCamera::getClassTypeId());
    }
    moveCameras();
    expectAlmostSamePictures(moved + QStringList("--camera=perspective"));
}

TEST_F(SameAsViewer, AppearanceSetAndHelixToTheLastPixel) {
    std::mt19937 random(31);
    HyperboloidParameters set = anySet(random);
    set.pointRadius = 0.25;
    enter(set);
    opened.call("refreshHyperboloidTransp", Q_ARG(int, 40));
    opened.call("refreshHyperboloidLight", Q_ARG(int, 65));
    opened.call("refreshHyperboloidSat", Q_ARG(int, 30));
    opened.activate(opened.firstHelix());
    opened.call("helix_change_radius", Q_ARG(int, 173));
    opened.call("helix_change_range", Q_ARG(int, 1234));
    opened.call("helix_change_nturns", Q_ARG(int, 3));
    opened.call("helix_change_precision_line", Q_ARG(int, 71));
    opened.call("helix_change_precision_tube", Q_ARG(int, 9));
    pick(set.verticalPrecision + 2);
    expectSamePictures(optionsOf(set) +
                       QStringList{"--transparency=40", "--lightness=65", "--saturation=30",
                                   "--tube-radius=0.0173", "--ribbon-range=0.1234", "--turns=3",
                                   "--line-precision=71", "--tube-precision=9", "--vertex=1,2"});
}

TEST_F(SameAsViewer, WithoutEglTheDisplayIsUsedAndSaidSo) {
    QProcessEnvironment environment =
        BatchProgram::environmentWithoutEgl(QProcessEnvironment::systemEnvironment());
    environment.insert("LC_ALL", "de_DE.UTF-8");
    const QStringList arguments{"--size=2x1", "--look=lines", "--image=U=-"};
    const BatchProgram ended = BatchProgram::run(arguments, {}, environment);
    EXPECT_EQ(ended.exitCode, 0);
    EXPECT_EQ(ended.errors.toStdString(),
              "There is no OpenGL without a display (EGL, platform surfaceless: opening the "
              "platform fails with EGL error 0x300c); the display is used.\n");
    EXPECT_GT(ended.output.size(), 100000);
    EXPECT_EQ(ended.output == BatchProgram::run(arguments).output, true);
}
