// What the program says when it is only asked about itself, and when it cannot show anything.

#include "tests/program/RunningViewer.h"
#include "tests/program/WindowHistory.h"

#include <QDir>
#include <QFile>
#include <gtest/gtest.h>
#include <map>

namespace {

constexpr int patience = 30000;
constexpr int shortWhile = 200;

/** A copy of the program, so far without the folder of plug-ins beside its own. */
class CopiedProgram {
public:
    CopiedProgram() {
        QDir(folder.path()).mkdir("bin");
        EXPECT_TRUE(QFile::copy(TORVANE_PROGRAM, path()));
    }

    QString path() const { return folder.filePath("bin/torvane"); }
    QString plugIns() const { return folder.filePath("PlugIns"); }

private:
    QTemporaryDir folder;
};

/** A program that is run with settings of its own. */
class StartedProgram {
public:
    StartedProgram(const QString& path, const QStringList& arguments,
                   const std::map<QString, QString>& variables) {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("XDG_CONFIG_HOME", home.path());
        environment.insert("XDG_RUNTIME_DIR", home.path());
        for (const auto& [name, value] : variables) {
            environment.insert(name, value);
        }
        process.setProcessEnvironment(environment);
        process.start(path, arguments);
        EXPECT_TRUE(process.waitForStarted());
    }

    ~StartedProgram() {
        if (process.state() != QProcess::NotRunning) {
            process.kill();
            process.waitForFinished();
        }
    }
    StartedProgram(const StartedProgram&) = delete;
    StartedProgram& operator=(const StartedProgram&) = delete;

    /** The exit code, or nothing when the program goes on or has crashed. */
    std::optional<int> exitCode() {
        const bool ended =
            process.state() == QProcess::NotRunning || process.waitForFinished(patience);
        if (!ended || process.exitStatus() != QProcess::NormalExit) {
            return std::nullopt;
        }
        return process.exitCode();
    }

    /** A box may be on the screen before it has the keyboard. */
    void strikeReturnUntilItEnds() {
        RunningViewer::waitUntil([this] {
            QProcess::execute("xdotool", {"key", "Return"});
            return process.waitForFinished(shortWhile);
        });
    }

    QProcess process;

private:
    QTemporaryDir home;
};

const std::map<QString, QString> noDisplay{{"DISPLAY", {}}, {"WAYLAND_DISPLAY", {}}};

std::string answerTo(const char* option) {
    StartedProgram program(TORVANE_PROGRAM, {option}, noDisplay);
    EXPECT_EQ(program.exitCode(), 0) << option;
    EXPECT_EQ(program.process.readAllStandardError(), "") << option;
    return program.process.readAllStandardOutput().toStdString();
}

bool waitForBox() {
    return RunningViewer::waitUntil([] {
        QProcess search;
        search.start("xdotool", {"search", "--onlyvisible", "--name", "^Torvane$"});
        return search.waitForFinished() && search.exitCode() == 0;
    });
}

/** Expects a box and the same text on standard error, and the end when the box is answered. */
void expectRefusal(StartedProgram& program, const QString& text,
                   const std::function<void()>& answer) {
    ASSERT_TRUE(waitForBox());
    EXPECT_EQ(program.process.state(), QProcess::Running);
    answer();
    EXPECT_EQ(program.exitCode(), 1);
    const QString said = program.process.readAllStandardError();
    EXPECT_TRUE(said.contains(text)) << said.toStdString();
}

} // namespace

TEST(ProgramInformation, VersionIsToldWithoutDisplay) {
    EXPECT_EQ(answerTo("--version"), "torvane " TORVANE_VERSION "\n");
    EXPECT_EQ(answerTo("-v"), answerTo("--version"));
}

TEST(ProgramInformation, HelpNamesTheOptionsWithoutDisplay) {
    const std::string help = answerTo("--help");
    EXPECT_NE(help.find("Shows helices and the quadric surface"), std::string::npos);
    EXPECT_NE(help.find("-platform"), std::string::npos) << "an option of every Qt program";
    EXPECT_NE(help.find("-h, --help"), std::string::npos);
    EXPECT_NE(help.find("-v, --version"), std::string::npos);
    EXPECT_EQ(answerTo("-h"), help);
}

TEST(ProgramInformation, OptionsOfQtAreNoQuestions) {
    // Both have a v or an h among their letters.
    StartedProgram program(TORVANE_PROGRAM, {"-reverse", "-graphicssystem", "native"}, noDisplay);
    EXPECT_EQ(program.exitCode(), 1);
    EXPECT_EQ(program.process.readAllStandardOutput(), "");
}

TEST(RefusedStart, SaysThatThereIsNoDisplay) {
    StartedProgram program(TORVANE_PROGRAM, {}, noDisplay);
    EXPECT_EQ(program.exitCode(), 1);
    EXPECT_TRUE(program.process.readAllStandardError().contains("There is no display."));
}

TEST(RefusedStart, DisplayOfTheOtherWindowSystemIsADisplay) {
    StartedProgram program(TORVANE_PROGRAM, {},
                           {{"DISPLAY", {}}, {"WAYLAND_DISPLAY", "wayland-9"}});
    EXPECT_EQ(program.exitCode(), 1);
    const QByteArray said = program.process.readAllStandardError();
    EXPECT_TRUE(said.contains("No window system could be used.")) << said.toStdString();
    EXPECT_FALSE(said.contains("There is no display.")) << said.toStdString();
}

TEST(RefusedStart, SaysWhatToInstallForTheWindowSystem) {
    StartedProgram program(TORVANE_PROGRAM, {}, {{"QT_QPA_PLATFORM", "absent"}});
    EXPECT_EQ(program.exitCode(), 1);
    EXPECT_TRUE(program.process.readAllStandardError().contains("install libqt5gui5 (Debian"));
}

TEST(RefusedStart, SaysWherePlugInsAreMissingAndWhatToInstall) {
    const CopiedProgram copy;
    StartedProgram program(copy.path(), {}, {});
    expectRefusal(program,
                  "Qt's plug-ins are not in " + copy.plugIns() + ".\nInstall libqt5gui5 (Debian",
                  [&] { program.strikeReturnUntilItEnds(); });
}

TEST(RefusedStart, LinkToPlugInsThatLeadsNowhereIsNoPlugIns) {
    const CopiedProgram copy;
    ASSERT_TRUE(QFile::link("/nowhere/at/all", copy.plugIns()));
    StartedProgram program(copy.path(), {}, {});
    expectRefusal(program, "Qt's plug-ins are not in " + copy.plugIns(),
                  [&] { program.strikeReturnUntilItEnds(); });
}

TEST(RefusedStart, SaysWhichDriverToInstall) {
    StartedProgram program(TORVANE_PROGRAM, {}, {{"LIBGL_DRIVERS_PATH", "/nowhere"}});
    expectRefusal(program, "Install a driver: libgl1-mesa-dri (Debian",
                  [&] { program.strikeReturnUntilItEnds(); });
}

TEST(RefusedStart, SplashLeavesTheScreenBeforeTheBoxComes) {
    WindowHistory history(qEnvironmentVariable("DISPLAY"));
    const CopiedProgram copy;
    StartedProgram program(copy.path(), {}, {});
    expectRefusal(program, "Qt's plug-ins are not in", [&] {
        ASSERT_TRUE(RunningViewer::waitUntil([&] { return history.changes().size() > 1; }));
        const std::vector<WindowHistory::Change> changes = history.changes();
        EXPECT_EQ(changes[0].place.size(), QSize(400, 343)) << "the size of the splash's picture";
        EXPECT_EQ(changes[1].window, changes[0].window);
        EXPECT_FALSE(changes[1].shown);
        program.process.terminate();
    });
}

TEST(RefusedStart, TerminationSignalEndsItWhileTheBoxIsUp) {
    const CopiedProgram copy;
    StartedProgram program(copy.path(), {}, {});
    expectRefusal(program, "Qt's plug-ins are not in", [&] { program.process.terminate(); });
}
