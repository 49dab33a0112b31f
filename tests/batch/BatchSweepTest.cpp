#include "tests/batch/BatchProgram.h"

#include <QDir>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

class BatchSweepTest : public testing::Test {
protected:
    QStringList files(const QString& name = {}) const {
        return QDir(folder.filePath(name)).entryList(QDir::Files, QDir::Name);
    }

    QTemporaryDir folder;
    const QStringList sweep{"--grid", "9x9", "--sweep", "K13=0.25:0.5:3", "--sweep", "K3=1:1.5:2"};
};

} // namespace

TEST_F(BatchSweepTest, EverySetOfTheProductIsMadeAsIfItWereAskedForAlone) {
    const BatchProgram ended =
        BatchProgram::run(sweep + QStringList{"--text", "M={K13} {K3}.txt"}, folder.path());
    EXPECT_EQ(ended.exitCode, 0);
    EXPECT_EQ(ended.errors, "");
    EXPECT_EQ(files(), (QStringList{"0.25 1.5.txt", "0.25 1.txt", "0.375 1.5.txt", "0.375 1.txt",
                                    "0.5 1.5.txt", "0.5 1.txt"}));
    EXPECT_EQ(contentOf(folder.filePath("0.375 1.5.txt")),
              BatchProgram::run({"--grid", "9x9", "--K13", "0.375", "--K3", "1.5", "--text", "M=-"})
                  .output);
}

TEST_F(BatchSweepTest, SetsOfASweepDoNotDependOnEachOther) {
    // The degenerate set in the middle keeps the axes of the start values, not of the set before.
    const QStringList grid{"--grid", "9x9", "--Uhat2", "1.5"};
    BatchProgram::run(grid + QStringList{"--sweep", "K13=-0.5:0.5:3", "--text", "X={K13}"},
                      folder.path());
    for (const char* value : {"-0.5", "0", "0.5"}) {
        EXPECT_EQ(contentOf(folder.filePath(value)),
                  BatchProgram::run(grid + QStringList{"--K13", value, "--text", "X=-"}).output);
    }
}

TEST_F(BatchSweepTest, WhatCannotBeMadeIsToldAtTheEndAndTheRestIsMade) {
    const BatchProgram ended = BatchProgram::run(
        {"--grid", "9x9", "--sweep", "K1=1:2:3", "--text", "U={K1}/u.txt", "--text", "X={K1}.txt"},
        folder.path());
    EXPECT_EQ(ended.exitCode, 1);
    EXPECT_EQ(ended.errors.toStdString(),
              "K1 = 1: Not made: 1/u.txt (No such file or directory)\n"
              "K1 = 1.5: Not made: 1.5/u.txt (No such file or directory)\n"
              "K1 = 2: K1 ≤ K2 does not hold: K1 = 2, K2 = 1.5\n");
    EXPECT_EQ(files(), (QStringList{"1.5.txt", "1.txt"}));
}

TEST_F(BatchSweepTest, ListedCommandsSpreadByAShellMakeTheSameFiles) {
    QDir(folder.path()).mkdir("at once");
    QDir(folder.path()).mkdir("spread");
    const QStringList asked = sweep + QStringList{"--vertex", "3,4",
                                                  "--text",   "U=it's {K13} {K3}.txt",
                                                  "--image",  "helix={K13}h{K3}.png",
                                                  "--size",   "1x1",
                                                  "--dpi",    "64"};
    EXPECT_EQ(BatchProgram::run(asked, folder.filePath("at once")).exitCode, 0);
    const BatchProgram listed = BatchProgram::run(asked + QStringList("--list"), folder.path());
    EXPECT_EQ(listed.output.count('\n'), 6);
    EXPECT_EQ(files(), QStringList());

    QProcess spreading;
    spreading.setProcessEnvironment(BatchProgram::bareEnvironment());
    spreading.setWorkingDirectory(folder.filePath("spread"));
    spreading.start("xargs", {"-P", "2", "-d", "\\n", "-n", "1", "sh", "-c"});
    spreading.write(listed.output);
    spreading.closeWriteChannel();
    ASSERT_TRUE(spreading.waitForFinished(300000));
    EXPECT_EQ(spreading.exitCode(), 0) << spreading.readAllStandardError().constData();
    EXPECT_EQ(files("spread"), files("at once"));
    EXPECT_EQ(files("spread").size(), 12);
    for (const QString& name : files("at once")) {
        EXPECT_EQ(contentOf(folder.filePath("spread/" + name)),
                  contentOf(folder.filePath("at once/" + name)))
            << name.toStdString();
    }
}

TEST_F(BatchSweepTest, TerminalShowsHowFarItIs) {
    QProcess terminal;
    terminal.setProcessEnvironment(BatchProgram::bareEnvironment());
    terminal.setWorkingDirectory(folder.path());
    const QString command =
        QString(TORVANE_BATCH) + " --grid 9x9 --sweep K13=0.25:0.5:3 --text U={K13}";
    terminal.start("script", {"--quiet", "--return", "--command", command, "/dev/null"});
    ASSERT_TRUE(terminal.waitForFinished());
    EXPECT_EQ(terminal.exitCode(), 0);
    const QByteArray shown = terminal.readAllStandardOutput();
    EXPECT_TRUE(shown.contains("1 of 3: K13 = 0.25\r")) << shown.constData();
    EXPECT_TRUE(shown.contains("2 of 3: K13 = 0.375\r"));
    EXPECT_TRUE(shown.endsWith("3 of 3: K13 = 0.5\r\033[K"));
}

TEST_F(BatchSweepTest, InterruptedItFinishesTheSetAndLeavesNoHalfFile) {
    QProcess process;
    process.setProcessEnvironment(BatchProgram::bareEnvironment());
    process.setWorkingDirectory(folder.path());
    process.start(TORVANE_BATCH,
                  {"--sweep", "K13=-0.5:0.5:100000", "--text", "U={K13}", "--text", "X=x{K13}"});
    ASSERT_TRUE(process.waitForStarted());
    while (files().isEmpty() && process.state() == QProcess::Running) {
        process.waitForReadyRead(1);
    }
    process.terminate();
    ASSERT_TRUE(process.waitForFinished());
    EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(process.exitCode(), 1);
    const QStringList made = files();
    const int setCount = made.size() / 2;
    EXPECT_EQ(process.readAllStandardError().toStdString(),
              QString("Interrupted: %1 of 100000 sets are not made\n")
                  .arg(100000 - setCount)
                  .toStdString());
    const QByteArray last = contentOf(folder.filePath("x" + made.first()));
    EXPECT_EQ(last.count('\n'), 18 + 64 * 64);
}
