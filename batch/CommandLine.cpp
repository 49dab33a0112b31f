#include "batch/CommandLine.h"

#include "batch/Contradictions.h"
#include "batch/Numbers.h"
#include "batch/OptionTexts.h"
#include "helix/Helix.h"

#include <CLI/CLI.hpp>
#include <functional>
#include <set>
#include <stdexcept>
#include <string>

namespace {

constexpr double percent = 100;
constexpr double largestZoom = 1000;
constexpr int finestPrint = 9600;

using Texts = std::vector<std::string>;

/** Puts the description of a parameter together, for example "the width (0 to 3; start value 1)".
 */
std::string description(std::string_view meaning, double minimum, double maximum, double start) {
    constexpr int digitsOfFloat = 6;
    return std::string(meaning) + " (" + Numbers::text(minimum) + " to " + Numbers::text(maximum) +
           "; start value " + Numbers::text(Numbers::rounded(start, digitsOfFloat)) + ")";
}

/** The options under their names, each with what takes its text. */
class OptionReader {
public:
    OptionReader() {
        addParameters();
        addHelix();
        addAppearance();
        addCamera();
        addOutputs();
        app.get_option("--help")->group("Other");
        app.set_version_flag("--version", "torvane-batch " TORVANE_VERSION)->group("Other");
        app.set_config("--config", "", "a file of options, TOML or INI")->group("Other");
        app.allow_config_extras(false);
    }

    CommandLine::Result read(int argc, const char* const* argv) {
        try {
            app.parse(argc, argv);
            rememberWords();
            Contradictions::refuse(options);
        } catch (const CLI::ParseError& error) {
            return {std::nullopt, app.exit(error) == 0 ? 0 : CommandLine::refused};
        } catch (const std::invalid_argument& error) {
            std::cerr << error.what() << "\n";
            return {std::nullopt, CommandLine::refused};
        }
        return {options, 0};
    }

private:
    using TakeText = std::function<void(const std::string&)>;

    /** An option that may be given once. */
    CLI::Option* add(const std::string& name, const char* kind, const std::string& text,
                     const char* group, const TakeText& take) {
        return app.add_option_function<std::string>(name, checked(name, take), text)
            ->type_name(kind)
            ->group(group);
    }

    /** An option that may be given any number of times. */
    CLI::Option* addRepeated(const std::string& name, const char* kind, const std::string& text,
                             const char* group, const TakeText& take) {
        const auto takeOne = checked(name, take);
        const auto takeAll = [takeOne](const Texts& texts) {
            std::for_each(texts.begin(), texts.end(), takeOne);
        };
        notRepeated.insert(name);
        return app.add_option_function<Texts>(name, takeAll, text)
            ->type_name(kind)
            ->allow_extra_args(false)
            ->group(group);
    }

    static TakeText checked(const std::string& name, const TakeText& take) {
        return [name, take](const std::string& text) {
            try {
                take(text);
            } catch (const std::invalid_argument& error) {
                throw CLI::ValidationError(name, error.what());
            }
        };
    }

    CLI::Option* addPercent(const std::string& name, std::optional<int>& value) {
        return add(name, "PERCENT", "of the surfaces (0 to 100; as in a new viewer)", "Appearance",
                   [&value](const std::string& text) {
                       value = static_cast<int>(OptionTexts::number(text, 0, percent, true));
                   });
    }

    void addParameters() {
        const char* const group = "Surface";
        for (const HyperboloidParameter& parameter : HyperboloidParameters::all()) {
            const std::string text =
                description(parameter.meaning, parameter.minimum, parameter.maximum,
                            parameter.valueIn(options.parameters));
            add("--" + std::string(parameter.name), parameter.decimals == 0 ? "COUNT" : "NUMBER",
                text, group, [this, &parameter](const std::string& value) {
                    parameter.setValueIn(options.parameters,
                                         OptionTexts::number(value, parameter.minimum,
                                                             parameter.maximum,
                                                             parameter.decimals == 0));
                });
        }
        add("--grid", "COLUMNSxROWS", "both at once", group, [this](const std::string& text) {
            takeGrid(text);
        })->excludes("--columns", "--rows");
        addRepeated("--sweep", "NAME=START:STOP:COUNT",
                    "COUNT values of a parameter at equal distances; several sweeps make their "
                    "product",
                    group, [this](const std::string& text) {
                        options.sweeps.push_back(Sweep::read(text));
                    });
    }

    void takeGrid(const std::string& text) {
        const auto sizes = OptionTexts::product(text);
        const std::array<HyperboloidParameter::Member, 2> members{
            &HyperboloidParameters::horizontalPrecision, &HyperboloidParameters::verticalPrecision};
        for (std::size_t i = 0; i < members.size(); ++i) {
            const HyperboloidParameter& parameter = HyperboloidParameter::of(members.at(i));
            parameter.setValueIn(options.parameters,
                                 OptionTexts::number(std::to_string(sizes.at(i)), parameter.minimum,
                                                     parameter.maximum, true));
        }
    }

    void addHelix() {
        const char* const group = "Helix";
        add("--vertex", "INDEX|COLUMN,ROW", "the vertex that the helix belongs to (start value 0)",
            group,
            [this](const std::string& text) { options.helixPoint = OptionTexts::vertex(text); });
        add("--u", "U1,U2,U3",
            "any point of U space instead: the helix is coloured by its own "
            "vertices, and the surfaces bear no sphere",
            group,
            [this](const std::string& text) { options.helixPoint = OptionTexts::triple(text); })
            ->excludes("--vertex");
        const Helix start;
        const auto& parameters = HelixParameter::all();
        for (std::size_t i = 0; i < parameters.size(); ++i) {
            const HelixParameter& parameter = parameters.at(i);
            const double minimum = parameter.minimum / parameter.stepsPerUnit;
            const double maximum = parameter.maximum / parameter.stepsPerUnit;
            const bool whole = parameter.stepsPerUnit == 1;
            add("--" + std::string(parameter.name), whole ? "COUNT" : "NUMBER",
                description(parameter.meaning, minimum, maximum, parameter.valueIn(start)), group,
                [this, i, minimum, maximum, whole](const std::string& text) {
                    options.helixValues.at(i) = OptionTexts::number(text, minimum, maximum, whole);
                });
        }
    }

    void addAppearance() {
        addPercent("--transparency", options.appearance.transparency);
        addPercent("--lightness", options.appearance.lightness);
        addPercent("--saturation", options.appearance.saturation);
        add("--look", "lit|plain|lines", "of the surfaces (start value lit)", "Appearance",
            [this](const std::string& text) { options.look = OptionTexts::look(text); });
    }

    void addCamera() {
        const char* const group = "Pictures";
        Viewpoint& viewpoint = options.viewpoint;
        add("--camera", "orthographic|perspective", "(start value orthographic)", group,
            [&](const std::string& text) {
                viewpoint.perspective = OptionTexts::isPerspective(text);
            });
        add("--direction", "X,Y,Z", "where the camera looks (start value 0,0,-1)", group,
            [&](const std::string& text) { viewpoint.direction = vector(text); });
        add("--up", "X,Y,Z", "what is up in the picture (start value 0,1,0)", group,
            [&](const std::string& text) { viewpoint.up = vector(text); });
        add("--zoom", "FACTOR", "how much larger than at first (start value 1)", group,
            [&](const std::string& text) {
                viewpoint.zoom = OptionTexts::number(text, 1 / largestZoom, largestZoom, false);
            });
        app.add_flag("--fit", viewpoint.fitted,
                     "see all of this scene at first, not of that of the start values")
            ->group(group);
        addPaper();
    }

    void addPaper() {
        const char* const group = "Pictures";
        Paper& paper = options.paper;
        add("--size", "WIDTHxHEIGHT", "of a picture in whole inches (start value 6x5)", group,
            [&](const std::string& text) {
                const auto sizes = OptionTexts::product(text);
                paper.width = sizes[0];
                paper.height = sizes[1];
            });
        add("--dpi", "DOTS", "dots per inch of a picture (start value 300)", group,
            [&](const std::string& text) {
                paper.dotsPerInch =
                    static_cast<int>(OptionTexts::number(text, 1, finestPrint, true));
            });
        add("--screen-dpi", "DOTS",
            "lines are as wide as a dot of a screen of so many dots per inch (start value 96)",
            group, [&](const std::string& text) {
                paper.screenDotsPerInch = OptionTexts::number(text, 1, finestPrint, false);
            });
    }

    void addOutputs() {
        const char* const group = "What to make: DOCUMENT is U, X, M or helix, - standard output";
        const auto add = [&](const char* name, Output::Kind kind, const char* text) {
            addRepeated(name, "DOCUMENT=FILE", text, group, [this, kind](const std::string& value) {
                options.outputs.push_back(OptionTexts::output(kind, value));
            });
        };
        add("--text", Output::Kind::text, "the numbers behind a document");
        add("--image", Output::Kind::image, "a picture, .eps or .png");
        add("--scene", Output::Kind::scene, "a scene for other programs, .iv or .wrl");
        app.add_flag("--list", options.list,
                     "make nothing, but print a command for each set of the sweeps")
            ->group("Other");
        notRepeated.insert({"--list", "--config", "--help", "--version"});
    }

    static SbVec3f vector(const std::string& text) {
        const FloatTriple read = OptionTexts::triple(text);
        return {read.x, read.y, read.z};
    }

    void rememberWords() {
        for (const CLI::Option* option : app.get_options()) {
            const std::string name = option->get_name();
            if (option->count() == 0 || notRepeated.count(name) != 0) {
                continue;
            }
            options.words.push_back(
                option->get_expected_min() == 0 ? name : name + "=" + option->results().front());
        }
    }

    CLI::App app{"Makes what the viewer shows, as text, pictures and scenes, without a window."};
    BatchOptions options;
    /** Options that a listed command does not repeat as they are. */
    std::set<std::string> notRepeated;
};

} // namespace

CommandLine::Result CommandLine::read(int argc, const char* const* argv) {
    return OptionReader().read(argc, argv);
}
