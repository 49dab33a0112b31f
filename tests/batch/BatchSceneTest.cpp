// Scenes for other programs, which those programs must be able to read.

#include "scene/SceneNodes.h"
#include "tests/batch/BatchProgram.h"

#include <Inventor/SoDB.h>
#include <Inventor/nodes/SoSeparator.h>
#include <gtest/gtest.h>

namespace {

/** Whether the scene library can read a scene. */
bool isReadable(const QByteArray& scene) {
    SoInput input;
    input.setBuffer(scene.constData(), static_cast<std::size_t>(scene.size()));
    return NodePointer<SoSeparator>(SoDB::readAll(&input)) != nullptr;
}

} // namespace

TEST(BatchScene, EverySetCanBeReadInBothFormats) {
    const QStringList sets[]{{"--K13", "0.375"},   {"--look", "lines"}, {"--K13", "0"},
                             {"--K23", "0"},       {"--K2", "1"},       {"--u", "0.5,0.25,-1.5"},
                             {"--u", "0,0,-1.25"}, {"--u", "0,0,0"}};
    for (const QStringList& set : sets) {
        for (const QString document : {"U", "X", "M", "helix"}) {
            for (const QString format : {"=-.iv", "=-.wrl"}) {
                const BatchProgram ended = BatchProgram::run(
                    set + QStringList{"--grid", "9x9", "--scene", document + format});
                EXPECT_TRUE(isReadable(ended.output))
                    << (set.join(' ') + " " + document + format).toStdString();
            }
        }
    }
}

TEST(BatchScene, WhatIsSomewhereStaysBesideWhatIsNowhere) {
    const auto meshes = [](const QStringList& set) {
        return BatchProgram::run(set + QStringList{"--grid", "9x9", "--scene", "X=-"})
            .output.count("QuadMesh");
    };
    EXPECT_GT(meshes({"--K13", "0"}), meshes({"--K2", "1"}));
    EXPECT_LT(meshes({"--K13", "0"}), meshes({"--K13", "0.375"}));
}

TEST(BatchScene, WhatIsNowhereIsLeftOutOfVrml) {
    // K1 = K2: the surface has no finite point. K13 = 0: a finite surface, lines that are nowhere.
    const QByteArray nowhere =
        BatchProgram::run({"--K2", "1", "--grid", "9x9", "--scene", "X=-.wrl"}).output;
    const QByteArray degenerate =
        BatchProgram::run({"--K13", "0", "--grid", "9x9", "--scene", "X=-.wrl"}).output;
    const QByteArray ordinary = BatchProgram::run({"--grid", "9x9", "--scene", "X=-.wrl"}).output;
    for (const QByteArray& vrml : {nowhere, degenerate, ordinary}) {
        EXPECT_TRUE(vrml.startsWith("#VRML V2.0 utf8\n"));
        EXPECT_FALSE(vrml.contains("nan"));
        EXPECT_FALSE(vrml.contains("inf"));
    }
    const auto shapes = [](const QByteArray& vrml) {
        return vrml.count("IndexedFaceSet");
    };
    EXPECT_LT(shapes(nowhere), shapes(degenerate));
    EXPECT_LT(shapes(degenerate), shapes(ordinary));
}

TEST(BatchScene, HelixOfAPointIsColouredByItsOwnVerticesAndHasNoSphereOnTheSurfaces) {
    const auto count = [](const char* text, const QStringList& helix, const QString& document) {
        return BatchProgram::run(helix + QStringList{"--grid", "9x9", "--scene", document + "=-"})
            .output.count(text);
    };
    const QStringList ofVertex{"--vertex", "7"};
    const QStringList ofPoint{"--u", "0.5,0.25,-1.5"};
    EXPECT_EQ(count("DEF Helix_1", ofVertex, "U"), 1);
    EXPECT_EQ(count("DEF Helix_1", ofPoint, "U"), 0);
    // The tube and the ribbon.
    EXPECT_EQ(count("PER_VERTEX", ofPoint, "helix"), count("PER_VERTEX", ofVertex, "helix") + 2);
}
