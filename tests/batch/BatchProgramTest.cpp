#include "tests/batch/BatchProgram.h"

#include "tests/support/SmallDisk.h"

#include <QDir>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

class BatchProgramTest : public testing::Test {
protected:
    BatchProgram run(const QStringList& arguments) const {
        return BatchProgram::run(arguments, folder.path());
    }

    /** Runs it with standard output on a device that is always full. */
    BatchProgram runOntoAFullDisk(const QStringList& arguments) const {
        QProcess process;
        process.setProcessEnvironment(BatchProgram::bareEnvironment());
        process.setWorkingDirectory(folder.path());
        process.setStandardOutputFile("/dev/full");
        process.start(TORVANE_BATCH, arguments);
        EXPECT_TRUE(process.waitForFinished());
        return {process.exitCode(), {}, process.readAllStandardError()};
    }

    QStringList files() const { return QDir(folder.path()).entryList(QDir::Files, QDir::Name); }

    QTemporaryDir folder;
};

} // namespace

TEST_F(BatchProgramTest, MakesTextsAndScenesWithoutDisplayAndHome) {
    const BatchProgram ended = run({"--text", "U=u.txt", "--text", "helix=h.txt", "--scene",
                                    "X=x.iv", "--scene", "M=m.wrl", "--scene", "helix=h.wrl"});
    EXPECT_EQ(ended.exitCode, 0);
    EXPECT_EQ(ended.errors, "");
    EXPECT_EQ(ended.output, "");
    EXPECT_EQ(files(), (QStringList{"h.txt", "h.wrl", "m.wrl", "u.txt", "x.iv"}));
    EXPECT_TRUE(contentOf(folder.filePath("u.txt")).startsWith("Hyperboloid Parameters:\n"));
    EXPECT_TRUE(contentOf(folder.filePath("h.txt")).startsWith("Helix Parameters:\n"));
    const QByteArray inventor = contentOf(folder.filePath("x.iv"));
    EXPECT_TRUE(inventor.startsWith("#Inventor V2.1 ascii\n"));
    EXPECT_TRUE(inventor.contains("DEF HyperboloidMesh"));
    const QByteArray vrml = contentOf(folder.filePath("m.wrl"));
    EXPECT_TRUE(vrml.startsWith("#VRML V2.0 utf8\n"));
    EXPECT_TRUE(vrml.contains("IndexedFaceSet"));
}

TEST_F(BatchProgramTest, StandardOutputIsADash) {
    const BatchProgram ended = run({"--grid", "5x7", "--text", "U=-", "--text", "X=x.txt"});
    EXPECT_EQ(ended.exitCode, 0);
    EXPECT_EQ(ended.output.count('\n'), 18 + 5 * 7);
    EXPECT_EQ(contentOf(folder.filePath("x.txt")).count('\n'), 18 + 5 * 7);
    EXPECT_TRUE(run({"--scene", "U=-"}).output.startsWith("#Inventor"));
    EXPECT_TRUE(run({"--scene", "U=-.wrl"}).output.startsWith("#VRML"));
}

TEST_F(BatchProgramTest, BrokenConditionIsRefusedWithItsFormulaAndNumbers) {
    const BatchProgram quadric = run({"--K3", "0.25", "--K13", "0.75", "--text", "U=u.txt"});
    EXPECT_EQ(quadric.exitCode, 2);
    EXPECT_EQ(quadric.errors.toStdString(),
              "Refused: K13²/K1 + K23²/K2 < K3 does not hold: K1 = 1, K2 = 1.5, K3 = 0.25, "
              "K13 = 0.75, K23 = 0.5\n");
    const BatchProgram order = run({"--K1", "1.75", "--text", "U=u.txt"});
    EXPECT_EQ(order.exitCode, 2);
    EXPECT_EQ(order.errors.toStdString(), "Refused: K1 ≤ K2 does not hold: K1 = 1.75, K2 = 1.5\n");
    EXPECT_EQ(files(), QStringList());
}

TEST_F(BatchProgramTest, VertexThatIsNotOnTheGridIsRefused) {
    for (const char* vertex : {"35", "-1", "5,0", "0,7", "1,-1", "-1,5"}) {
        const BatchProgram ended =
            run({"--grid", "5x7", "--vertex", vertex, "--text", "helix=h.txt"});
        EXPECT_EQ(ended.exitCode, 2);
        EXPECT_EQ(ended.errors, "Refused: the vertex is not on the grid of 5 columns and 7 rows\n");
    }
    EXPECT_EQ(run({"--grid", "5x7", "--vertex", "4,6", "--text", "helix=-"}).output,
              run({"--grid", "5x7", "--vertex", "34", "--text", "helix=-"}).output);
}

TEST_F(BatchProgramTest, HelixOfAPointIsBentAndTwistedAsThePointSays) {
    // Its curvature is the length of (0.5, 0.25), its torsion the third coordinate.
    const QByteArray text =
        run({"--u", "0.5,0.25,-1.5", "--turns", "1", "--text", "helix=-"}).output;
    EXPECT_TRUE(text.contains("torsion = -1.5000000000\n"));
    EXPECT_TRUE(text.contains("curvature = 0.5590170026\n"));
    EXPECT_EQ(text.count('\n'), 10 + 50);
}

TEST_F(BatchProgramTest, TargetThatCannotBeWrittenIsToldAndAllElseIsMade) {
    const BatchProgram ended =
        run({"--text", "U=missing/u.txt", "--text", "X=x.txt", "--text", "M=."});
    EXPECT_EQ(ended.exitCode, 1);
    EXPECT_EQ(ended.errors, "Not made: missing/u.txt (No such file or directory)\n"
                            "Not made: . (Is a directory)\n");
    EXPECT_EQ(files(), QStringList("x.txt"));
}

TEST_F(BatchProgramTest, LinkInTheWorkingFolderStaysAndItsTargetIsWritten) {
    ASSERT_TRUE(QFile::link("there.txt", folder.filePath("link.txt")));
    const BatchProgram ended = run({"--grid", "9x9", "--text", "U=link.txt"});
    EXPECT_EQ(ended.errors.toStdString(), "");
    EXPECT_EQ(QFileInfo(folder.filePath("link.txt")).symLinkTarget(), folder.filePath("there.txt"));
    EXPECT_TRUE(contentOf(folder.filePath("there.txt")).startsWith("Hyperboloid Parameters:\n"));
}

TEST_F(BatchProgramTest, FullDiskLeavesAnOlderFileAsItWas) {
    const QString small = folder.filePath("small");
    QDir().mkdir(small);
    const SmallDisk disk(small, 64);
    if (!disk.isThere()) {
        GTEST_SKIP() << "only a privileged user may mount a disk";
    }
    {
        QFile older(small + "/u.txt");
        ASSERT_TRUE(older.open(QIODevice::WriteOnly));
        older.write("older");
    }
    const BatchProgram ended = run({"--text", "U=small/u.txt"});
    EXPECT_EQ(ended.exitCode, 1);
    EXPECT_EQ(ended.errors, "Not made: small/u.txt (No space left on device)\n");
    EXPECT_EQ(contentOf(small + "/u.txt"), "older");
    EXPECT_EQ(QDir(small).entryList(QDir::Files), QStringList("u.txt"));
}

TEST_F(BatchProgramTest, DegenerateSetsAreToldByTheModelAndMade) {
    const BatchProgram ended = run({"--K13", "0", "--grid", "9x9", "--text", "U=-"});
    EXPECT_EQ(ended.exitCode, 0);
    EXPECT_EQ(ended.errors.count("Error : bd=0 or ac+bd=0\nError :  bd=0\n"), 3);
    EXPECT_FALSE(ended.output.contains("nan"));
}

TEST_F(BatchProgramTest, NumbersHaveADecimalPointInEveryLocale) {
    const QStringList arguments{"--grid", "9x9", "--scene", "U=-.wrl"};
    QProcessEnvironment german = BatchProgram::bareEnvironment();
    german.insert("LC_ALL", "de_DE.UTF-8");
    const QByteArray output = run(arguments).output;
    EXPECT_GT(output.size(), 1000);
    EXPECT_EQ(BatchProgram::run(arguments, folder.path(), german).output, output);
}

TEST_F(BatchProgramTest, FullStandardOutputIsToldAndAllElseIsMade) {
    const BatchProgram ended = runOntoAFullDisk({"--text", "U=-", "--text", "X=x.txt"});
    EXPECT_EQ(ended.exitCode, 1);
    EXPECT_EQ(ended.errors, "Not made: - (No space left on device)\n");
    EXPECT_EQ(files(), QStringList("x.txt"));
}

TEST_F(BatchProgramTest, PictureOntoAFullDiskIsToldWithTheReasonOfTheSystem) {
    for (const char* output : {"U=-.eps", "U=-.png"}) {
        const BatchProgram ended =
            runOntoAFullDisk({"--size", "1x1", "--dpi", "20", "--image", output});
        EXPECT_EQ(ended.exitCode, 1);
        EXPECT_TRUE(ended.errors.endsWith(" (No space left on device)\n"))
            << ended.errors.constData();
    }
}

TEST_F(BatchProgramTest, HelpAndListsThatNobodyGetsAreNoSuccess) {
    for (const QStringList& arguments :
         {QStringList{"--help"}, QStringList{"--list", "--text", "U=u.txt"},
          QStringList{"--zoom", "2", "--write-config", "-"}}) {
        const BatchProgram ended = runOntoAFullDisk(arguments);
        EXPECT_EQ(ended.exitCode, 1) << arguments.front().toStdString();
        EXPECT_EQ(ended.errors, "Standard output cannot be written (No space left on device)\n");
    }
}
