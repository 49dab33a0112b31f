#include "batch/FileTargets.h"

#include <QTemporaryDir>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <stdexcept>

namespace {

/** Why texts of the U surface cannot be written under these names; empty when they can. */
std::string refusalOf(const std::vector<std::string>& files,
                      const std::vector<Sweep>& sweeps = {}) {
    BatchOptions options;
    options.sweeps = sweeps;
    for (const std::string& file : files) {
        options.outputs.push_back({Output::Kind::text, Document::U, file});
    }
    try {
        FileTargets::refuseShared(options);
    } catch (const std::invalid_argument& error) {
        return error.what();
    }
    return {};
}

} // namespace

TEST(FileTargets, OneFileUnderTwoNamesIsRefused) {
    EXPECT_EQ(refusalOf({"a.txt", "./a.txt"}),
              "./a.txt is to be written twice: by a.txt and by ./a.txt");
    EXPECT_NE(refusalOf({"a.txt", "b/../a.txt"}), "");
    EXPECT_NE(refusalOf({"b//c/a.txt", "b/c/./a.txt"}), "");
    EXPECT_NE(refusalOf({"a.txt", std::filesystem::current_path() / "a.txt"}), "");
    EXPECT_EQ(refusalOf({"a.txt", "b/a.txt", "../a.txt", "/a.txt", "A.txt"}), "");
}

TEST(FileTargets, NamesOfDifferentSetsThatBecomeTheSameAreRefused) {
    const std::vector<Sweep> both{Sweep::read("columns=11:111:2"), Sweep::read("rows=11:111:2")};
    EXPECT_EQ(
        refusalOf({"{columns}{rows}"}, both),
        "11111 is to be written twice: by {columns}{rows} for columns = 11, rows = 111 and by "
        "{columns}{rows} for columns = 111, rows = 11");
    EXPECT_EQ(refusalOf({"{columns},{rows}"}, both), "");
    EXPECT_NE(refusalOf({"{columns},{rows}", "{rows},{columns}"}, both), "");
    EXPECT_EQ(refusalOf({"u{columns},{rows}", "x{rows},{columns}"}, both), "");
}

TEST(FileTargets, StandardOutputIsOneOfThem) {
    EXPECT_EQ(refusalOf({"-.{K13}"}, {Sweep::read("K13=0.25:0.5:3")}),
              "-.0.375 is to be written twice: by -.{K13} for K13 = 0.25 and by -.{K13} for K13 = "
              "0.375");
    EXPECT_EQ(refusalOf({"-", "./-"}), "") << "the second is a file";
}

TEST(FileTargets, LinksAreWaysToTheFileBehindThem) {
    namespace fs = std::filesystem;
    const QTemporaryDir temporary;
    const fs::path folder = temporary.path().toStdString();
    std::ofstream(folder / "there.txt") << "there";
    fs::create_directory(folder / "deep");
    fs::create_directory(folder / "deep" / "folder");
    fs::create_symlink("there.txt", folder / "link.txt");
    fs::create_symlink("../link.txt", folder / "deep" / "second.txt");
    fs::create_symlink("deep/new.txt", folder / "early.txt");
    fs::create_directory_symlink("deep/folder", folder / "way");
    fs::create_symlink("circle", folder / "circle");
    const auto refused = [&](const char* one, const char* other) {
        return !refusalOf({folder / one, folder / other}).empty();
    };
    EXPECT_TRUE(refused("there.txt", "link.txt"));
    EXPECT_TRUE(refused("link.txt", "deep/second.txt"));
    EXPECT_TRUE(refused("early.txt", "deep/new.txt")) << "the file is not there yet";
    EXPECT_TRUE(refused("way/a.txt", "deep/folder/a.txt"));
    EXPECT_TRUE(refused("way/../a.txt", "deep/a.txt"));
    EXPECT_FALSE(refused("way/../a.txt", "a.txt"));
    EXPECT_FALSE(refused("way/there.txt", "link.txt"));
    EXPECT_FALSE(refused("circle", "link.txt"));
}
