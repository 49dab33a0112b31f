#include "batch/CommandLine.h"

#include <QTemporaryDir>
#include <cmath>
#include <fstream>
#include <gtest/gtest.h>

namespace {

class CommandLineTest : public testing::Test {
protected:
    /** Reads arguments; what the program says is in `said`. */
    CommandLine::Result read(std::vector<const char*> arguments) {
        arguments.insert(arguments.begin(), "torvane-batch");
        testing::internal::CaptureStderr();
        testing::internal::CaptureStdout();
        auto result = CommandLine::read(static_cast<int>(arguments.size()), arguments.data());
        said = testing::internal::GetCapturedStderr();
        helped = testing::internal::GetCapturedStdout();
        return result;
    }

    /** Reads arguments that must be taken, and an output. */
    BatchOptions taken(std::vector<const char*> arguments) {
        arguments.insert(arguments.end(), {"--text", "U=u.txt"});
        const auto result = read(arguments);
        EXPECT_TRUE(result.options) << said;
        return result.options.value_or(BatchOptions());
    }

    /** Expects arguments to be refused, and the reason to be the first line. */
    void expectRefused(std::vector<const char*> arguments, const std::string& reason) {
        const auto result = read(std::move(arguments));
        EXPECT_FALSE(result.options);
        EXPECT_EQ(result.exitCode, 2);
        EXPECT_EQ(said.substr(0, said.find('\n')), reason);
    }

    std::string said;
    std::string helped;
};

} // namespace

TEST_F(CommandLineTest, EveryParameterHasAnOptionOfItsNameAndRange) {
    for (const HyperboloidParameter& parameter : HyperboloidParameters::all()) {
        const std::string name = "--" + std::string(parameter.name);
        const auto set = [&](const std::string& text) {
            return taken({name.c_str(), text.c_str()}).parameters;
        };
        const auto least = static_cast<int>(std::ceil(parameter.minimum));
        EXPECT_EQ(parameter.valueIn(set(std::to_string(least))), least) << name;
        EXPECT_EQ(parameter.valueIn(set("7")), 7) << name;
        expectRefused({name.c_str(), "100000"},
                      name + ": 100000 is not in " +
                          (parameter.minimum == 0.01 ? "0.01" : std::to_string(least)) + " to " +
                          std::to_string(static_cast<int>(parameter.maximum)));
    }
}

TEST_F(CommandLineTest, RealNumbersStayDoublesAndCountsAreWhole) {
    EXPECT_EQ(taken({"--K13", "-0.123456789012"}).parameters.K13, -0.123456789012);
    expectRefused({"--rows", "5.5"}, "--rows: 5.5 is no whole number");
    expectRefused({"--K1", "1,5"}, "--K1: 1,5 is no number");
    expectRefused({"--K1", "nan"}, "--K1: nan is no number");
}

TEST_F(CommandLineTest, CountsPercentsAndDotsPerInchAreWholeAndInTheirRanges) {
    for (const std::string name :
         {"--turns", "--line-precision", "--tube-precision", "--transparency", "--dpi"}) {
        expectRefused({name.c_str(), "7.5"}, name + ": 7.5 is no whole number");
    }
    expectRefused({"--grid", "5.5x7"}, "--grid: 5.5 is no whole number");
    expectRefused({"--transparency", "101"}, "--transparency: 101 is not in 0 to 100");
    expectRefused({"--dpi", "9601"}, "--dpi: 9601 is not in 1 to 9600");
    expectRefused({"--screen-dpi", "0.5"}, "--screen-dpi: 0.5 is not in 1 to 9600");
}

TEST_F(CommandLineTest, GridIsColumnsAndRows) {
    const HyperboloidParameters set = taken({"--grid", "17x33"}).parameters;
    EXPECT_EQ(set.horizontalPrecision, 17);
    EXPECT_EQ(set.verticalPrecision, 33);
    expectRefused({"--grid", "4x33"}, "--grid: 4 is not in 5 to 500");
    expectRefused({"--grid", "17"}, "--grid: 17 is not two whole numbers with an x between them");
    expectRefused({"--grid", "17x33", "--rows", "9", "--text", "U=-"}, "--rows excludes --grid");
    expectRefused({"--grid", "17x33", "--columns", "9", "--text", "U=-"},
                  "--columns excludes --grid");
    expectRefused({"--grid", "17x33x5"},
                  "--grid: 17x33x5 is not two whole numbers with an x between them");
}

TEST_F(CommandLineTest, HelixIsPlacedByVertexOrByPoint) {
    EXPECT_EQ(std::get<int>(taken({"--vertex", "77"}).helixPoint), 77);
    const auto place = std::get<ColumnAndRow>(taken({"--vertex", "3,9"}).helixPoint);
    EXPECT_EQ(place.column, 3);
    EXPECT_EQ(place.row, 9);
    const auto point = std::get<FloatTriple>(taken({"--u", "-0.25,1.5,2"}).helixPoint);
    EXPECT_EQ(point.x, -0.25F);
    EXPECT_EQ(point.y, 1.5F);
    EXPECT_EQ(point.z, 2.0F);
    expectRefused({"--vertex", "1,2,3"}, "--vertex: 1,2,3 is neither INDEX nor COLUMN,ROW");
    for (const std::string text : {"1,2", "1,2,3,4", "1e39,0,0"}) {
        expectRefused({"--u", text.c_str()},
                      "--u: " + text + " is not three numbers separated by commas");
    }
    expectRefused({"--u", "1,2,3", "--vertex", "1"}, "--vertex excludes --u");
}

TEST_F(CommandLineTest, HelixHasItsFiveValues) {
    const BatchOptions options =
        taken({"--tube-radius", "0.0173", "--ribbon-range", "0.2", "--turns", "3",
               "--line-precision", "111", "--tube-precision", "9"});
    const std::array<std::optional<double>, 5> expected{0.0173, 0.2, 3, 111, 9};
    EXPECT_EQ(options.helixValues, expected);
    expectRefused({"--tube-radius", "0.11"}, "--tube-radius: 0.11 is not in 0 to 0.1");
    expectRefused({"--turns", "11"}, "--turns: 11 is not in 0 to 10");
}

TEST_F(CommandLineTest, PicturesHaveLookCameraAndSize) {
    const BatchOptions options =
        taken({"--transparency", "40", "--look", "lines", "--camera", "perspective", "--direction",
               "1,-2,0", "--up", "0,0,1", "--zoom", "1.5", "--fit", "--size", "3x2", "--dpi", "150",
               "--screen-dpi", "72.5"});
    EXPECT_EQ(options.appearance.transparency, 40);
    EXPECT_EQ(options.appearance.lightness, std::nullopt);
    EXPECT_EQ(options.look, DocumentScene::Look::lines);
    EXPECT_TRUE(options.viewpoint.perspective);
    EXPECT_EQ(options.viewpoint.direction, SbVec3f(1, -2, 0));
    EXPECT_EQ(options.viewpoint.up, SbVec3f(0, 0, 1));
    EXPECT_EQ(options.viewpoint.zoom, 1.5);
    EXPECT_TRUE(options.viewpoint.fitted);
    EXPECT_EQ(options.paper.width, 3);
    EXPECT_EQ(options.paper.height, 2);
    EXPECT_EQ(options.paper.dotsPerInch, 150);
    EXPECT_EQ(options.paper.screenDotsPerInch, 72.5);
    expectRefused({"--look", "shiny"}, "--look: There is no look shiny, only lit, plain and lines");
    expectRefused({"--camera", "fish"},
                  "--camera: There is no camera fish, only orthographic and perspective");
    for (const std::string text : {"3", "0x2", "3x2x1"}) {
        expectRefused({"--size", text.c_str()},
                      "--size: " + text + " is not two numbers above 0 with an x between them");
    }
    expectRefused({"--zoom", "0"}, "--zoom: 0 is not in 0.001 to 1000");
}

TEST_F(CommandLineTest, OutputsNameDocumentFileAndKind) {
    const auto result = read({"--text", "U=a.txt", "--image", "helix=b=c.png", "--scene", "M=d.wrl",
                              "--image", "X=e.eps"});
    ASSERT_TRUE(result.options) << said;
    ASSERT_EQ(result.options->outputs.size(), 4U);
    EXPECT_EQ(result.options->outputs[1].file, "b=c.png");
    EXPECT_EQ(result.options->outputs[1].document, Document::helix);
    expectRefused({"--text", "u.txt"}, "--text: u.txt is not DOCUMENT=FILE");
    expectRefused({"--text", "U="}, "--text: U= is not DOCUMENT=FILE");
    expectRefused({"--text", "Z=u.txt"}, "--text: There is no document Z, only U, X, M and helix");
    expectRefused({"--image", "U=u.jpg"}, "--image: u.jpg ends neither in .eps nor in .png");
    expectRefused({"--scene", "U=u.obj"}, "--scene: u.obj ends neither in .iv nor in .wrl");
    expectRefused({"--text", "U={K14}.txt"}, "--text: There is no parameter K14");
}

TEST_F(CommandLineTest, ContradictionsAreRefused) {
    expectRefused({}, "Nothing is to be made: give --text, --image or --scene (--help tells more)");
    expectRefused({"--text", "U=-", "--image", "X=-.png"}, "- is to be written twice");
    expectRefused({"--text", "U=a.txt", "--text", "X=a.txt"}, "a.txt is to be written twice");
    expectRefused({"--sweep", "K13=0:0.5:3", "--text", "U=a.txt"},
                  "a.txt would be written again and again: {K13} is not in its name");
    expectRefused({"--sweep", "K13=0:1:2", "--sweep", "K13=0:1:2", "--text", "U={K13}"},
                  "K13 is swept twice");
    expectRefused({"--K13", "1", "--sweep", "K13=0:1:2", "--text", "U={K13}"},
                  "K13 is both given and swept");
    expectRefused({"--grid", "9x9", "--sweep", "rows=5:6:2", "--text", "U={rows}"},
                  "rows is both given and swept");
    expectRefused({"--sweep", "K13=0:1:1001", "--sweep", "K23=0:1:1000", "--text", "U={K13},{K23}"},
                  "The sweeps make more than 1000000 sets");
    // So many are not too many.
    expectRefused({"--sweep", "K13=0:1:1000", "--sweep", "K23=0:1:1000", "--text", "U={K13}"},
                  "{K13} would be written again and again: {K23} is not in its name");
    expectRefused({"--sweep", "columns=11:12:2", "--sweep", "rows=11:12:2", "--list", "--text",
                   "U={columns},{rows}", "--text", "X={rows},{columns}"},
                  "11,11 is to be written twice: by {columns},{rows} for columns = 11, rows = 11 "
                  "and by {rows},{columns} for columns = 11, rows = 11");
    expectRefused({"--direction", "0,0,0", "--text", "U=-"},
                  "A direction of the camera has the length 0");
    expectRefused({"--direction", "0,-2,0", "--text", "U=-"},
                  "What is up in the picture may not be where the camera looks");
    expectRefused({"--direction", "1e30,0,0", "--up", "-3e38,0,0", "--text", "U=-"},
                  "What is up in the picture may not be where the camera looks");
    // Rounded, they are not quite parallel.
    expectRefused({"--direction", "4,5,6", "--up", "2.8,3.5,4.2", "--text", "U=-"},
                  "What is up in the picture may not be where the camera looks");
    EXPECT_EQ(taken({"--direction", "0.001,-2,0"}).viewpoint.direction, SbVec3f(0.001F, -2, 0));
    EXPECT_EQ(taken({"--direction", "1e30,0,0"}).viewpoint.direction, SbVec3f(1e30F, 0, 0));
    EXPECT_EQ(taken({"--direction", "0,1e-30,0", "--up", "0,0,3e38"}).viewpoint.up[2], 3e38F);
    expectRefused({"--size", "110x5", "--text", "U=-"},
                  "A picture is 32767 dots wide and high at most");
    expectRefused({"--size", "26755x26755", "--dpi", "1", "--text", "U=-"},
                  "A picture has 715827882 dots at most");
    EXPECT_EQ(taken({"--size", "26755x26754", "--dpi", "1"}).paper.width, 26755);
    EXPECT_EQ(taken({"--size", "32767x1", "--dpi", "1"}).paper.width, 32767);
    expectRefused({"--size", "5x0.001", "--text", "U=-"},
                  "A picture is a dot wide and high at least");
    expectRefused({"--list", "--text", "U=a\nb"}, "A name with a line break cannot be listed: a");
}

TEST_F(CommandLineTest, ParameterMayBeSweptWhenOnlyAnotherOfALongerNameIsGiven) {
    const std::vector<std::vector<const char*>> commands{
        {"--K13", "0.25", "--sweep", "K1=0.5:1:2", "--text", "U={K1}"},
        {"--K23", "0.25", "--sweep", "K2=1.5:2:2", "--text", "U={K2}"}};
    for (const auto& command : commands) {
        EXPECT_TRUE(read(command).options) << said;
    }
}

TEST_F(CommandLineTest, OptionsCanStandInAFile) {
    const QTemporaryDir folder;
    const std::string path = folder.filePath("options.toml").toStdString();
    std::ofstream(path) << "K13 = 0.25\nvertex = \"3,4\"\nfit = true\n"
                           "text = [\"U=a.txt\", \"X=b.txt\"]\n";
    const auto result = read({"--config", path.c_str(), "--K23", "0.125"});
    ASSERT_TRUE(result.options) << said;
    EXPECT_EQ(result.options->parameters.K13, 0.25);
    EXPECT_EQ(result.options->parameters.K23, 0.125);
    EXPECT_TRUE(result.options->viewpoint.fitted);
    EXPECT_EQ(std::get<ColumnAndRow>(result.options->helixPoint).row, 4);
    EXPECT_EQ(result.options->outputs.size(), 2U);
    EXPECT_EQ(result.options->words,
              (std::vector<std::string>{"--K13=0.25", "--K23=0.125", "--vertex=3,4", "--fit"}));
}

TEST_F(CommandLineTest, UnknownOptionsAndFilesAreRefused) {
    const QTemporaryDir folder;
    const std::string path = folder.filePath("options.ini").toStdString();
    std::ofstream(path) << "K14 = 0.25\n";
    expectRefused({"--config", path.c_str(), "--text", "U=-"}, "INI was not able to parse K14");
    const std::string missing = folder.filePath("missing.ini").toStdString();
    expectRefused({"--config", missing.c_str(), "--text", "U=-"},
                  missing + " was not readable (missing?)");
    expectRefused({"--K14", "1"}, "The following arguments were not expected: 1 --K14");
}

TEST_F(CommandLineTest, HelpNamesRangesAndStartValues) {
    const auto result = read({"--help"});
    EXPECT_FALSE(result.options);
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_NE(helped.find("--K2 NUMBER"), std::string::npos);
    EXPECT_NE(helped.find("second diagonal entry of K (0.01 to 100; start value 1.5)"),
              std::string::npos);
    for (const char* helixParameter :
         {"radius of the tube (0 to 0.1; start value 0.01)",
          "width of the ribbon (0 to 0.2; start value 0.05)",
          "number of turns (0 to 10; start value 5)",
          "vertices of the centre line in a turn (5 to 200; start value 50)",
          "vertices around a ring of the tube (5 to 100; start value 16)"}) {
        EXPECT_NE(helped.find(helixParameter), std::string::npos) << helixParameter;
    }
    EXPECT_NE(helped.find("--point-radius LENGTH"), std::string::npos);
    EXPECT_NE(helped.find("--tube-radius LENGTH"), std::string::npos);
    EXPECT_NE(helped.find("--u3axis-radius LENGTH"), std::string::npos);
    EXPECT_NE(helped.find("--turns COUNT"), std::string::npos);
    EXPECT_NE(helped.find("LENGTH is in units of the coordinates of the space"), std::string::npos);
    EXPECT_NE(helped.find("of the surfaces (0 to 100; start value 80)"), std::string::npos);
    EXPECT_NE(helped.find("at first (0.001 to 1000; start value 1)"), std::string::npos);
    EXPECT_NE(helped.find("of a picture (1 to 9600; start value 300)"), std::string::npos);
}

TEST(Paper, HasTheClosestNumberOfWholeDots) {
    Paper paper;
    paper.dotsPerInch = 96;
    EXPECT_EQ(paper.dots(2.5), 240);
    EXPECT_EQ(paper.dots(2.004), 192);
    EXPECT_EQ(paper.dots(2.006), 193);
}
