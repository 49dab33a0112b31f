#include "tests/batch/BatchProgram.h"

#include <QDir>
#include <QTemporaryDir>
#include <csignal>
#include <gtest/gtest.h>
#include <sys/stat.h>

namespace {

class BatchSweepTest : public testing::Test {
protected:
    QStringList files(const QString& name = {}) const {
        return QDir(folder.filePath(name)).entryList(QDir::Files, QDir::Name);
    }

    /** What a call shows on a terminal, which a command may prepare. */
    QByteArray onATerminal(const QString& arguments, const QString& prepare = ":") const {
        QProcess terminal;
        terminal.setProcessEnvironment(BatchProgram::bareEnvironment());
        terminal.setWorkingDirectory(folder.path());
        terminal.start("script", {"--quiet", "--return", "--command",
                                  prepare + "; " + TORVANE_BATCH + " " + arguments, "/dev/null"});
        EXPECT_TRUE(terminal.waitForFinished());
        EXPECT_EQ(terminal.exitCode(), 0);
        return terminal.readAllStandardOutput();
    }

    /** Starts a program, and waits for the first file. */
    void start(QProcess& process, const QString& program, const QStringList& arguments) const {
        process.setProcessEnvironment(BatchProgram::bareEnvironment());
        process.setWorkingDirectory(folder.path());
        process.start(program, arguments);
        ASSERT_TRUE(process.waitForStarted());
        while (files().isEmpty() && process.state() == QProcess::Running) {
            process.waitForReadyRead(1);
        }
    }

    /** Starts the program on a sweep of texts, by way of another one, and waits for the first. */
    void startSweep(QProcess& process, const QString& program, int count,
                    const QStringList& before) const {
        start(process, program,
              before + QStringList{TORVANE_BATCH, "--sweep", QString("K13=-0.5:0.5:%1").arg(count),
                                   "--text", "U={K13}", "--text", "X=x{K13}"});
    }

    static void send(int signal, const QProcess& process) {
        // Of a program that has ended it is 0, which would be everybody.
        ASSERT_GT(process.processId(), 0);
        kill(static_cast<pid_t>(process.processId()), signal);
    }

    /** Sends a signal, and waits until the program has it. */
    static void deliver(int signal, QProcess& process) {
        send(signal, process);
        while (process.state() == QProcess::Running && isPending(signal, process.processId())) {
            process.waitForFinished(1);
        }
    }

    static bool isPending(int signal, qint64 program) {
        const QByteArray label = "ShdPnd:\t";
        const QByteArray status = contentOf(QString("/proc/%1/status").arg(program));
        const QByteArray set = status.mid(status.indexOf(label) + label.size(), 16);
        return (set.toULongLong(nullptr, 16) >> (signal - 1) & 1U) != 0;
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
    const QByteArray shown = onATerminal("--grid 9x9 --sweep K13=0.25:0.5:3 --text U={K13}");
    EXPECT_TRUE(shown.contains("1 of 3: K13 = 0.25\r")) << shown.constData();
    EXPECT_TRUE(shown.contains("2 of 3: K13 = 0.375\r"));
    EXPECT_TRUE(shown.endsWith("3 of 3: K13 = 0.5\r\033[K"));
}

TEST_F(BatchSweepTest, ProgressLineIsNoLongerThanTheTerminalIsWide) {
    const QByteArray shown =
        onATerminal("--grid 9x9 --sweep K13=-0.5:0.5:3 --text U={K13}", "stty cols 11");
    EXPECT_TRUE(shown.contains("1 of 3: K1\r\033[K2 of 3: K1\r")) << shown.constData();
    EXPECT_TRUE(shown.contains("\r\033[K2 of 3: K13 = 0\r\n")) << "words stand under all of it";
}

TEST_F(BatchSweepTest, WordsOfTheModelStandUnderTheProgressLine) {
    const QByteArray shown = onATerminal("--grid 9x9 --sweep K13=-0.5:0.5:3 --text U={K13}");
    EXPECT_TRUE(shown.contains("2 of 3: K13 = 0\r\nError : bd=0 or ac+bd=0\r\n"));
    EXPECT_TRUE(shown.endsWith("Error :  bd=0\r\n3 of 3: K13 = 0.5\r\033[K"));
}

TEST_F(BatchSweepTest, WordsOfTheModelSayWhichSetTheyAreAboutWithoutATerminal) {
    const BatchProgram ended = BatchProgram::run(
        {"--grid", "9x9", "--sweep", "K13=-0.5:0.5:3", "--text", "U={K13}"}, folder.path());
    const QByteArray ofOneSurface = "Error : bd=0 or ac+bd=0\nError :  bd=0\n";
    EXPECT_EQ(ended.errors.toStdString(),
              ("2 of 3: K13 = 0\n" + ofOneSurface.repeated(3)).toStdString());
}

TEST_F(BatchSweepTest, InterruptedItFinishesTheSetAndLeavesNoHalfFile) {
    for (const int signal : {SIGTERM, SIGINT}) {
        QProcess process;
        // What a shell runs in the background ignores the interrupt, these tests perhaps.
        startSweep(process, "env", 100000, {"--default-signal=INT"});
        send(signal, process);
        ASSERT_TRUE(process.waitForFinished());
        EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
        EXPECT_EQ(process.exitCode(), 1);
        const QStringList made = files();
        const int setCount = made.size() / 2;
        EXPECT_EQ(made.size(), 2 * setCount);
        EXPECT_EQ(process.readAllStandardError().toStdString(),
                  QString("Interrupted: %1 of 100000 sets are not made\n")
                      .arg(100000 - setCount)
                      .toStdString());
        for (const QString& name : made) {
            EXPECT_EQ(contentOf(folder.filePath(name)).count('\n'), 18 + 64 * 64);
            QFile::remove(folder.filePath(name));
        }
    }
}

TEST_F(BatchSweepTest, SecondSignalOfEitherKindEndsItAtOnce) {
    // Whoever opens it to write waits until somebody reads.
    ASSERT_EQ(mkfifo(folder.filePath("pipe").toLocal8Bit().constData(), 0600), 0);
    for (const auto& [first, second] :
         {std::pair(SIGTERM, SIGTERM), {SIGINT, SIGTERM}, {SIGTERM, SIGINT}}) {
        QProcess process;
        start(process, "env",
              {"--default-signal=INT", TORVANE_BATCH, "--grid", "9x9", "--text", "X=first",
               "--text", "U=pipe"});
        deliver(first, process);
        EXPECT_EQ(process.state(), QProcess::Running) << "it only notes the first";
        send(second, process);
        EXPECT_TRUE(process.waitForFinished());
        EXPECT_EQ(process.exitStatus(), QProcess::CrashExit);
        EXPECT_EQ(process.exitCode(), second);
        EXPECT_EQ(files(), QStringList("first"));
        QFile::remove(folder.filePath("first"));
    }
}

TEST_F(BatchSweepTest, SignalThatItWasStartedToIgnoreStaysIgnored) {
    QProcess process;
    startSweep(process, "sh", 200, {"-c", R"(trap '' INT; exec "$0" "$@")"});
    send(SIGINT, process);
    ASSERT_TRUE(process.waitForFinished());
    EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().constData();
    EXPECT_EQ(files().size(), 2 * 200);
}

TEST_F(BatchSweepTest, SetThatThereIsNoMemoryForIsToldAndTheRestIsMade) {
#ifdef __SANITIZE_ADDRESS__
    GTEST_SKIP() << "the sanitizer takes more memory than any limit leaves";
#endif
    const auto run = [&](int kilobytes, const QStringList& sizes) {
        return BatchProgram::runInMemory(
            kilobytes, sizes + QStringList{"--text", "U=u{columns}", "--text", "X=x{columns}"},
            folder.path());
    };
    // As much as a small grid needs.
    constexpr int step = 2048;
    constexpr int plenty = 1 << 20;
    int limit = step;
    while (limit < plenty && run(limit, {"--columns", "5"}).exitCode != 0) {
        limit += step;
    }
    const BatchProgram ended = run(limit, {"--rows", "500", "--sweep", "columns=500:5:2"});
    EXPECT_EQ(ended.exitCode, 1);
    EXPECT_EQ(ended.errors.toStdString(), "columns = 500: Nothing is made: there is no memory\n");
    EXPECT_EQ(files(), (QStringList{"u5", "x5"}));
}
