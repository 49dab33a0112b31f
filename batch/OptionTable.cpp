#include "batch/OptionTable.h"

#include "batch/Numbers.h"
#include "batch/OptionTexts.h"
#include "helix/Helix.h"
#include "hyperboloid/Hyperboloid.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>

namespace {

constexpr double percent = 100;
constexpr double largestZoom = 1000;
constexpr int finestPrint = 9600;

constexpr const char* ofSurfaces = "Surface";
constexpr const char* ofHelices = "Helix";
constexpr const char* ofLooks = "Appearance";
constexpr const char* ofPictures = "Pictures";

/** Puts a description together, for example "the width (0 to 3; start value 1)". */
std::string description(std::string_view meaning, double minimum, double maximum, double start) {
    constexpr int digitsOfFloat = 6;
    return std::string(meaning) + " (" + Numbers::text(minimum) + " to " + Numbers::text(maximum) +
           "; start value " + Numbers::text(Numbers::rounded(start, digitsOfFloat)) + ")";
}

const char* kindOf(const HyperboloidParameter& parameter) {
    if (parameter.decimals == 0) {
        return "COUNT";
    }
    return parameter.isLength ? "LENGTH" : "NUMBER";
}

SbVec3f vector(const std::string& text) {
    const FloatTriple read = OptionTexts::triple(text);
    return {read.x, read.y, read.z};
}

} // namespace

OptionTable::OptionTable(CLI::App& commandLine, BatchOptions& batchOptions)
    : app(commandLine)
    , options(batchOptions) {
    addParameters();
    addGrid();
    addSweep();
    addHelixPoint();
    addHelixValues();
    addAppearance();
    addCamera();
    addPaper();
    addOutputs();
    app.footer(
        "NUMBER is an entry of K or a coordinate. LENGTH is in units of the coordinates of the "
        "space that is shown.");
}

OptionTable::TakeText OptionTable::checked(const std::string& name, const TakeText& take) {
    return [name, take](const std::string& text) {
        try {
            take(text);
        } catch (const std::invalid_argument& error) {
            throw CLI::ValidationError(name, error.what());
        }
    };
}

CLI::Option* OptionTable::add(const std::string& name, const char* kind, const std::string& text,
                              const char* group, const TakeText& take) {
    return app.add_option_function<std::string>(name, checked(name, take), text)
        ->type_name(kind)
        ->group(group);
}

void OptionTable::addRepeated(const std::string& name, const char* kind, const std::string& text,
                              const char* group, const TakeText& take) {
    const auto takeOne = checked(name, take);
    const auto takeAll = [takeOne](const std::vector<std::string>& texts) {
        std::for_each(texts.begin(), texts.end(), takeOne);
    };
    app.add_option_function<std::vector<std::string>>(name, takeAll, text)
        ->type_name(kind)
        ->allow_extra_args(false)
        ->group(group);
}

void OptionTable::addParameters() {
    for (const HyperboloidParameter& parameter : HyperboloidParameters::all()) {
        const bool whole = parameter.decimals == 0;
        add("--" + std::string(parameter.name), kindOf(parameter),
            description(parameter.meaning, parameter.minimum, parameter.maximum,
                        parameter.valueIn(options.parameters)),
            ofSurfaces, [this, &parameter, whole](const std::string& text) {
                parameter.setValueIn(
                    options.parameters,
                    OptionTexts::number(text, parameter.minimum, parameter.maximum, whole));
            });
    }
}

void OptionTable::addGrid() {
    const auto takeGrid = [this](const std::string& text) {
        const auto sizes = OptionTexts::grid(text);
        options.parameters.horizontalPrecision = sizes[0];
        options.parameters.verticalPrecision = sizes[1];
    };
    add("--grid", "COLUMNSxROWS", "both at once", ofSurfaces, takeGrid)
        ->excludes("--columns", "--rows");
}

void OptionTable::addSweep() {
    addRepeated(
        "--sweep", "NAME=START:STOP:COUNT",
        "COUNT values of a parameter at equal distances; several sweeps make their product, " +
            std::to_string(mostSets) + " sets at most",
        ofSurfaces,
        [this](const std::string& text) { options.sweeps.push_back(Sweep::read(text)); });
}

void OptionTable::addHelixPoint() {
    add("--vertex", "INDEX|COLUMN,ROW", "the vertex that the helix belongs to (start value 0)",
        ofHelices,
        [this](const std::string& text) { options.helixPoint = OptionTexts::vertex(text); });
    add("--u", "U1,U2,U3",
        "any point of U space instead: the helix is coloured by its own "
        "vertices, and the surfaces bear no sphere",
        ofHelices,
        [this](const std::string& text) { options.helixPoint = OptionTexts::triple(text); })
        ->excludes("--vertex");
}

void OptionTable::addHelixValues() {
    const Helix start;
    const auto& parameters = HelixParameter::all();
    for (std::size_t i = 0; i < parameters.size(); ++i) {
        const HelixParameter& parameter = parameters.at(i);
        const double minimum = parameter.minimum / parameter.stepsPerUnit;
        const double maximum = parameter.maximum / parameter.stepsPerUnit;
        const bool whole = parameter.stepsPerUnit == 1;
        add("--" + std::string(parameter.name), whole ? "COUNT" : "LENGTH",
            description(parameter.meaning, minimum, maximum, parameter.valueIn(start)), ofHelices,
            [this, i, minimum, maximum, whole](const std::string& text) {
                options.helixValues.at(i) = OptionTexts::number(text, minimum, maximum, whole);
            });
    }
}

void OptionTable::addAppearance() {
    addPercent("--transparency", Hyperboloid::startTransparency, options.appearance.transparency);
    addPercent("--lightness", Hyperboloid::startLightness, options.appearance.lightness);
    addPercent("--saturation", Hyperboloid::startSaturation, options.appearance.saturation);
    add("--look", "lit|plain|lines", "of the surfaces (start value lit)", ofLooks,
        [this](const std::string& text) { options.look = OptionTexts::look(text); });
}

void OptionTable::addPercent(const std::string& name, double start, std::optional<int>& value) {
    add(name, "PERCENT", description("of the surfaces", 0, percent, start * percent), ofLooks,
        [&value](const std::string& text) {
            value = static_cast<int>(OptionTexts::number(text, 0, percent, true));
        });
}

void OptionTable::addCamera() {
    Viewpoint& viewpoint = options.viewpoint;
    add("--camera", "orthographic|perspective", "(start value orthographic)", ofPictures,
        [&](const std::string& text) { viewpoint.perspective = OptionTexts::isPerspective(text); });
    add("--direction", "X,Y,Z", "where the camera looks (start value 0,0,-1)", ofPictures,
        [&](const std::string& text) { viewpoint.direction = vector(text); });
    add("--up", "X,Y,Z", "what is up in the picture (start value 0,1,0)", ofPictures,
        [&](const std::string& text) { viewpoint.up = vector(text); });
    constexpr double smallestZoom = 1 / largestZoom;
    add("--zoom", "FACTOR",
        description("how much larger than at first", smallestZoom, largestZoom, viewpoint.zoom),
        ofPictures, [&](const std::string& text) {
            viewpoint.zoom = OptionTexts::number(text, smallestZoom, largestZoom, false);
        });
    app.add_flag("--fit", viewpoint.fitted,
                 "see all of this scene at first, not of that of the start values")
        ->group(ofPictures);
}

void OptionTable::addPaper() {
    Paper& paper = options.paper;
    add("--size", "WIDTHxHEIGHT", "of a picture in inches (start value 6x5)", ofPictures,
        [&](const std::string& text) {
            const auto sizes = OptionTexts::size(text);
            paper.width = sizes[0];
            paper.height = sizes[1];
        });
    add("--dpi", "DOTS",
        description("dots per inch of a picture", 1, finestPrint, paper.dotsPerInch), ofPictures,
        [&](const std::string& text) {
            paper.dotsPerInch = static_cast<int>(OptionTexts::number(text, 1, finestPrint, true));
        });
    add("--screen-dpi", "DOTS",
        description("lines are as wide as a dot of a screen of so many dots per inch", 1,
                    finestPrint, paper.screenDotsPerInch),
        ofPictures, [&](const std::string& text) {
            paper.screenDotsPerInch = OptionTexts::number(text, 1, finestPrint, false);
        });
}

void OptionTable::addOutputs() {
    const char* const group = "What to make: DOCUMENT is U, X, M or helix, - standard output";
    const auto addKind = [&](const char* name, Output::Kind kind, const char* text) {
        addRepeated(name, "DOCUMENT=FILE", text, group, [this, kind](const std::string& value) {
            options.outputs.push_back(OptionTexts::output(kind, value));
        });
    };
    addKind("--text", Output::Kind::text, "the numbers behind a document");
    addKind("--image", Output::Kind::image, "a picture, .eps or .png");
    addKind("--scene", Output::Kind::scene, "a scene for other programs, .iv or .wrl");
}
