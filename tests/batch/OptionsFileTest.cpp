// Options in files, and what becomes of them beside those of the command line.

#include "batch/CommandLine.h"

#include <QFile>
#include <QTemporaryDir>
#include <fstream>
#include <gtest/gtest.h>

namespace {

class OptionsFileTest : public testing::Test {
protected:
    std::string path(const char* name = "options.toml") const {
        return folder.filePath(name).toStdString();
    }

    /** Reads arguments; what the program says is in `said`. */
    CommandLine::Result read(std::vector<std::string> arguments) {
        arguments.insert(arguments.begin(), "torvane-batch");
        std::vector<const char*> words;
        words.reserve(arguments.size());
        for (const std::string& argument : arguments) {
            words.push_back(argument.c_str());
        }
        testing::internal::CaptureStderr();
        auto result = CommandLine::read(static_cast<int>(words.size()), words.data());
        said = testing::internal::GetCapturedStderr();
        return result;
    }

    /** The options of a file and of a command line that must be taken. */
    BatchOptions taken(const std::string& file, std::vector<std::string> arguments = {}) {
        std::ofstream(path()) << file;
        arguments.insert(arguments.end(), {"--config", path()});
        const auto result = read(arguments);
        EXPECT_TRUE(result.options) << file << said;
        return result.options.value_or(BatchOptions());
    }

    void expectRefused(const std::string& file, const std::string& reason) {
        std::ofstream(path()) << file;
        const auto result = read({"--config", path()});
        EXPECT_EQ(result.exitCode, 2);
        EXPECT_EQ(said.substr(0, said.find('\n')), reason) << file;
    }

    using Words = std::vector<std::string>;
    QTemporaryDir folder;
    std::string said;
    const std::string text = "text = \"U={K13},{K3},{columns},{rows}.txt\"\n";
};

} // namespace

TEST_F(OptionsFileTest, FlagsAreOnlyGivenWhenTheyAreTrue) {
    EXPECT_EQ(taken(text + "fit = true\n").words, Words{"--fit"});
    const BatchOptions options = taken(text + "fit = false\nlist = false\n");
    EXPECT_FALSE(options.viewpoint.fitted);
    EXPECT_FALSE(options.list);
    EXPECT_EQ(options.words, Words());
    EXPECT_FALSE(taken(text + "fit = true\n", {"--fit=false"}).viewpoint.fitted);
}

TEST_F(OptionsFileTest, CommandLineWinsOverTheSameOption) {
    const BatchOptions options =
        taken(text + "K13 = 0.375\nK23 = 0.125\nsweep = \"K3=1:2:3\"\n",
              {"--K13", "0.625", "--sweep", "K3=3:4:2", "--text", "U={K3}"});
    EXPECT_EQ(options.parameters.K13, 0.625);
    EXPECT_EQ(options.parameters.K23, 0.125);
    ASSERT_EQ(options.sweeps.size(), 1U);
    EXPECT_EQ(options.sweeps[0].values.front(), 3);
    ASSERT_EQ(options.outputs.size(), 1U);
    EXPECT_EQ(options.outputs[0].file, "{K3}");
}

TEST_F(OptionsFileTest, CommandLineWinsOverTheSameSaidInAnotherWay) {
    EXPECT_EQ(
        std::get<FloatTriple>(taken(text + "vertex = \"3,4\"\n", {"--u", "0.25,-1.5,2"}).helixPoint)
            .y,
        -1.5F);
    EXPECT_EQ(std::get<int>(taken(text + "u = \"1,2,3\"\n", {"--vertex", "77"}).helixPoint), 77);

    const auto grid = [&](const std::string& file, const Words& arguments) {
        const HyperboloidParameters set = taken(text + file, arguments).parameters;
        return std::make_pair(set.horizontalPrecision, set.verticalPrecision);
    };
    EXPECT_EQ(grid("columns = 17\nrows = 33\n", {"--grid", "9x11"}), std::make_pair(9, 11));
    EXPECT_EQ(grid("grid = \"17x33\"\n", {"--rows", "11"}), std::make_pair(17, 11));
    EXPECT_EQ(grid("grid = \"17x33\"\n", {"--columns", "9"}), std::make_pair(9, 33));
    EXPECT_EQ(grid("grid = \"17x33\"\n", {"--columns", "9", "--rows", "11"}),
              std::make_pair(9, 11));
    EXPECT_EQ(grid("grid = \"17x33\"\n", {"--sweep", "rows=7:9:3"}), std::make_pair(17, 64));
    EXPECT_EQ(grid("rows = 33\n", {"--sweep", "rows=7:9:3"}), std::make_pair(64, 64));
}

TEST_F(OptionsFileTest, CommandLineWinsBetweenValuesAndSweeps) {
    EXPECT_EQ(taken(text + "K13 = 0.375\n", {"--sweep", "K13=0.5:0.625:2"}).words, Words());
    const auto sweeps = taken(text + "sweep = [\"K13=0:1:3\", \"rows=5:7:3\", \"K3=1:2:5\"]\n",
                              {"--K13", "0.625", "--grid", "9x11"})
                            .sweeps;
    ASSERT_EQ(sweeps.size(), 1U);
    EXPECT_EQ(sweeps[0].parameter->name, "K3");
}

TEST_F(OptionsFileTest, ContradictionsWithinAFileAreRefused) {
    expectRefused("vertex = 3\nu = \"1,2,3\"\n" + text, "--vertex excludes --u");
    expectRefused("K13 = 0.5\nsweep = \"K13=0:1:3\"\n" + text, "K13 is both given and swept");
}

TEST_F(OptionsFileTest, ArraysStandForTextsWithCommas) {
    const BatchOptions options = taken("vertex = [3, 4]\ndirection = [-1, 0.5, -0.25]\n" + text);
    EXPECT_EQ(std::get<ColumnAndRow>(options.helixPoint).column, 3);
    EXPECT_EQ(options.viewpoint.direction, SbVec3f(-1, 0.5F, -0.25F));
    EXPECT_EQ(std::get<ColumnAndRow>(taken("vertex = 3,4\n" + text).helixPoint).row, 4);
    EXPECT_EQ(taken("text = [\n  \"U=a.txt\", # first\n\n  \"X=b.txt\",\n]\nK13 = 0.375\n")
                  .outputs.size(),
              2U);
}

TEST_F(OptionsFileTest, CommentsBeginOutsideOfQuotes) {
    const BatchOptions options = taken("# figure 7\nK13 = 0.375 # as before\n; an old comment\n"
                                       "image = ['X=a#1.png', \"U=b#2.png\"] # \"two\"\n");
    EXPECT_EQ(options.parameters.K13, 0.375);
    ASSERT_EQ(options.outputs.size(), 2U);
    EXPECT_EQ(options.outputs[0].file, "a#1.png");
    EXPECT_EQ(options.outputs[1].file, "b#2.png");
}

TEST_F(OptionsFileTest, SemicolonBeginsACommentAfterASpace) {
    const BatchOptions options =
        taken("K13 = 0.375 ; as before\nvertex = 3,4\t; \"two\"\n"
              "  ; text = no\ntext = ['U=a;b.txt', \"X=c ; d.txt\"] ; end\n"
              "scene = X=e;f.iv\n");
    EXPECT_EQ(options.parameters.K13, 0.375);
    EXPECT_EQ(std::get<ColumnAndRow>(options.helixPoint).row, 4);
    ASSERT_EQ(options.outputs.size(), 3U);
    EXPECT_EQ(options.outputs[0].file, "a;b.txt");
    EXPECT_EQ(options.outputs[1].file, "c ; d.txt");
    EXPECT_EQ(options.outputs[2].file, "e;f.iv");
}

TEST_F(OptionsFileTest, ByteOrderMarkIsNoPartOfTheFirstKey) {
    EXPECT_EQ(taken("\xEF\xBB\xBFK13 = 0.375\n" + text).parameters.K13, 0.375);
}

TEST_F(OptionsFileTest, KeyThatStandsTwiceIsRefused) {
    expectRefused("vertex = 3\nvertex = 4\n" + text, "vertex stands twice in the file");
    expectRefused("K13 = 0.375\n" + text + "\"K13\"=0.375\n", "K13 stands twice in the file");
    expectRefused(text + "fit = true\n" + text, "text stands twice in the file");
    expectRefused("fit\nfit = false\n" + text, "fit stands twice in the file");
}

TEST_F(OptionsFileTest, SectionsAreRefused) {
    expectRefused("[figure]\nK13 = 0.5\n" + text,
                  "A file of options has no sections such as figure");
}

TEST_F(OptionsFileTest, WrittenFileAsksForTheSame) {
    const Words asked{"--K13",
                      "0.375",
                      "--grid",
                      "17x33",
                      "--u",
                      "0.25,-1.5,2",
                      "--fit",
                      "--size",
                      "2.5x2",
                      "--sweep",
                      "K3=1:2:3",
                      "--sweep",
                      "Uhat1=0:0.5:2",
                      "--text",
                      "U=it's #{K3},{Uhat1}.txt",
                      "--image",
                      "X=a \"{K3}\" [{Uhat1}].png"};
    Words writing = asked;
    writing.insert(writing.end(), {"--write-config", path("written.toml")});
    const auto written = read(writing);
    EXPECT_FALSE(written.options);
    EXPECT_EQ(written.exitCode, 0) << said;
    const auto expected = read(asked).options;
    const auto again = read({"--config", path("written.toml")}).options;
    ASSERT_TRUE(expected && again) << said;
    EXPECT_EQ(again->words, expected->words);
    EXPECT_EQ(again->sweeps[1].values, expected->sweeps[1].values);
    ASSERT_EQ(again->outputs.size(), 2U);
    EXPECT_EQ(again->outputs[0].file, expected->outputs[0].file);
    EXPECT_EQ(again->outputs[1].file, expected->outputs[1].file);
}

TEST_F(OptionsFileTest, FileNeedNotSayWhatToMakeWhenItIsWritten) {
    testing::internal::CaptureStdout();
    EXPECT_EQ(read({"--zoom", "2", "--vertex", "3,4", "--write-config", "-"}).exitCode, 0);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "vertex=\"3,4\"\nzoom=2\n");
}

TEST_F(OptionsFileTest, WhatAFileCannotHoldIsRefused) {
    for (const char* held : {"U=it's \"a\".txt", "U=a\nb.txt"}) {
        EXPECT_EQ(read({"--text", held, "--write-config", path("written.toml")}).exitCode, 2);
        EXPECT_EQ(said.substr(0, said.find('\n')),
                  "A file of options cannot hold both kinds of quotes in a text, nor a line break");
        EXPECT_FALSE(QFile::exists(folder.filePath("written.toml")));
    }
}

TEST_F(OptionsFileTest, FileThatCannotBeWrittenIsTold) {
    const std::string missing = path("missing/written.toml");
    EXPECT_EQ(read({"--zoom", "2", "--write-config", missing}).exitCode, 1);
    EXPECT_EQ(said, missing + " cannot be written (No such file or directory)\n");
}
