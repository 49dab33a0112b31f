// usage: random_user --seed SEED --moves COUNT
//        random_user --shrink FILE
//        random_user --play FILE
//
// Lets a random user loose on the real main window. With --seed a process of its own plays the
// moves, with a log beside them; when it fails, crashes or hangs, the moves are shrunk to few that
// still fail, and those are left in a file and told. With --shrink the moves come from such a file;
// with --play they are made in this process.

#include "tests/random/Invariants.h"
#include "tests/random/RandomUser.h"
#include "tests/random/Shrinking.h"
#include "tests/support/OpenedWindow.h"
#include "tests/support/RedrawCounter.h"
#include "tests/support/ResidentMemory.h"
#include "tests/support/TestApplication.h"

#include <QCommandLineParser>
#include <QProcess>
#include <csignal>
#include <fstream>
#include <iostream>
#include <random>
#include <unistd.h>

namespace {

using MoveSeeds = std::vector<std::uint32_t>;

/** A move that takes longer than this, in seconds, hangs: the alarm then ends the process. */
constexpr unsigned int longestMove = 30;
constexpr int movesBetweenReports = 1000;
constexpr int shrinkingAttempts = 150;

MoveSeeds seedsFor(std::uint32_t seed, int count) {
    std::mt19937 engine(seed);
    MoveSeeds seeds(static_cast<std::size_t>(count));
    std::generate(seeds.begin(), seeds.end(), [&] { return engine(); });
    return seeds;
}

MoveSeeds readSeeds(const std::string& path) {
    std::ifstream file(path);
    return {std::istream_iterator<std::uint32_t>(file), {}};
}

void writeSeeds(const std::string& path, const MoveSeeds& seeds) {
    std::ofstream file(path);
    for (const std::uint32_t seed : seeds) {
        file << seed << '\n';
    }
}

void finishMove() {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    RedrawCounter::settle();
}

/** Makes the moves until one fails; returns whether none did. */
bool play(const MoveSeeds& seeds) {
    const OpenedWindow opened;
    RandomUser user(opened);
    const Invariants invariants(opened);
    int number = 0;
    for (const std::uint32_t seed : seeds) {
        ++number;
        alarm(longestMove);
        std::cout << number << " ";
        user.play(seed, std::cout);
        finishMove();
        invariants.check();
        if (testing::UnitTest::GetInstance()->Failed()) {
            return false;
        }
        if (number % movesBetweenReports == 0) {
            std::cout << "-- " << residentBytes() / 1000000 << " MB resident" << std::endl;
        }
    }
    return !testing::UnitTest::GetInstance()->Failed();
}

/** What a process of its own did with the moves. */
struct Outcome {
    bool good;
    std::string log;
};

Outcome playApart(const MoveSeeds& seeds, const std::string& path) {
    writeSeeds(path, seeds);
    QProcess process;
    const std::string logPath = path + ".log";
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.setStandardOutputFile(QString::fromStdString(logPath));
    process.start(QCoreApplication::applicationFilePath(),
                  {"--play", QString::fromStdString(path)});
    process.waitForFinished(-1);
    const bool good = process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
    std::ostringstream log;
    log << std::ifstream(logPath).rdbuf();
    return {good, log.str()};
}

/** The number of the last move in a log, each of whose moves is a line that begins with it. */
std::size_t movesStarted(const std::string& log) {
    std::istringstream lines(log);
    std::size_t started = 0;
    for (std::string line; std::getline(lines, line);) {
        std::size_t number = 0;
        if (std::istringstream(line) >> number && number == started + 1) {
            started = number;
        }
    }
    return started;
}

std::string lastLines(const std::string& log) {
    constexpr std::size_t length = 4000;
    return log.size() <= length ? log : log.substr(log.size() - length);
}

/** Plays the moves; when they fail, leaves the few that still do in the file. */
int playAndShrink(MoveSeeds seeds, const std::string& path) {
    const Outcome outcome = playApart(seeds, path);
    std::cout << lastLines(outcome.log) << std::endl;
    if (outcome.good) {
        std::cout << seeds.size() << " moves, nothing failed" << std::endl;
        QFile::remove(QString::fromStdString(path));
        QFile::remove(QString::fromStdString(path + ".log"));
        return 0;
    }
    seeds.resize(movesStarted(outcome.log));
    std::cout << "move " << seeds.size() << " failed; shrinking" << std::endl;
    const auto fails = [&](const MoveSeeds& candidate) {
        return !playApart(candidate, path).good;
    };
    seeds = Shrinking::shrink<std::uint32_t>(seeds, fails, shrinkingAttempts);
    std::cout << "these " << seeds.size() << " moves still fail, repeat them by --play " << path
              << "\n"
              << lastLines(playApart(seeds, path).log) << std::endl;
    return 1;
}

} // namespace

int main(int argc, char** argv) {
    QCommandLineParser parser;
    parser.addOptions({{"seed", "Seed of the moves.", "SEED", "1"},
                       {"moves", "Number of moves.", "COUNT", "300"},
                       {"shrink", "Shrink the failing moves of a file.", "FILE"},
                       {"play", "Make the moves of a file.", "FILE"}});
    QStringList arguments;
    for (int i = 0; i < argc; ++i) {
        arguments.append(QString::fromLocal8Bit(argv[i]));
    }
    parser.parse(arguments);
    if (parser.isSet("play")) {
        const TestApplication application(argc, argv);
        return play(readSeeds(parser.value("play").toStdString())) ? 0 : 1;
    }
    const QCoreApplication application(argc, argv);
    if (parser.isSet("shrink")) {
        const std::string path = parser.value("shrink").toStdString();
        return playAndShrink(readSeeds(path), path);
    }
    const std::uint32_t seed = parser.value("seed").toUInt();
    return playAndShrink(seedsFor(seed, parser.value("moves").toInt()),
                         "random_user_" + std::to_string(seed) + ".moves");
}
