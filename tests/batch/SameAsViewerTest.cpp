// What the program makes without a display, beside what the viewer saves on one.

#include "app/ImageExport.h"
#include "hyperboloid/HyperboloidParameters.h"
#include "tests/batch/BatchProgram.h"
#include "tests/export/PrintedViews.h"
#include "viewer/SoQtGeneralViewer.h"

#include <Inventor/SoOffscreenRenderer.h>
#include <Inventor/nodes/SoPerspectiveCamera.h>
#include <Inventor/nodes/SoSeparator.h>
#include <cmath>
#include <cstdio>
#include <memory>
#include <random>

namespace {

/** Numbers as a user enters them, to two decimals. */
double entered(std::mt19937& random, double minimum, double maximum) {
    constexpr double hundredths = 100;
    const double value = std::uniform_real_distribution<double>(minimum, maximum)(random);
    return QString::number(std::round(value * hundredths) / hundredths, 'f', 2).toDouble();
}

/** A set that the conditions admit. */
HyperboloidParameters anySet(std::mt19937& random) {
    HyperboloidParameters set;
    do {
        set.K1 = entered(random, 0.5, 4);
        set.K2 = entered(random, 0.5, 4);
        set.K3 = entered(random, 0, 4);
        set.K13 = entered(random, -1.5, 1.5);
        set.K23 = entered(random, -1.5, 1.5);
    } while (set.brokenCondition() != HyperboloidCondition::none);
    set.U1 = entered(random, -3, 3);
    set.U2 = entered(random, -3, 3);
    set.U3 = entered(random, -3, 3);
    set.horizontalPrecision = static_cast<int>(entered(random, 5, 40));
    set.verticalPrecision = static_cast<int>(entered(random, 5, 40));
    set.pointRadius = entered(random, 0, 1);
    set.u3constRange = entered(random, 0, 9);
    set.u3axisRange = entered(random, 0, 9);
    set.u3constRadius = entered(random, 0, 0.2);
    set.u3axisRadius = entered(random, 0, 0.2);
    return set;
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

    const QStringList names{"U", "X", "M", "helix"};
};

} // namespace

TEST_F(SameAsViewer, TextsOfManySetsToTheLastByte) {
    std::mt19937 random(13);
    std::vector<HyperboloidParameters> sets{HyperboloidParameters()};
    for (int i = 0; i < 30; ++i) {
        sets.push_back(anySet(random));
    }
    // Degenerate in every way.
    sets[1].K13 = 0;
    sets[2].K23 = 0;
    sets[3].U1 = sets[3].U2 = sets[3].U3 = 0;
    sets[4].K1 = sets[4].K2;
    sets[5].U1 = sets[5].U2 = 0;
    for (const HyperboloidParameters& set : sets) {
        if (set.brokenCondition() != HyperboloidCondition::none) {
            continue;
        }
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
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("__EGL_VENDOR_LIBRARY_FILENAMES", "/proc/nowhere");
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
