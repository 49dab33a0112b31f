#include "batch/Contradictions.h"

#include "batch/Camera.h"
#include "batch/FileName.h"
#include "batch/FileTargets.h"
#include "batch/OutputFormat.h"
#include "batch/Targets.h"

#include <algorithm>
#include <limits>
#include <set>
#include <stdexcept>

namespace {

void require(bool condition, const std::string& otherwise) {
    if (!condition) {
        throw std::invalid_argument(otherwise);
    }
}

/** Whether a word of the command gives a parameter its value. */
bool gives(const std::string& word, const HyperboloidParameter& parameter) {
    const bool ofGrid = parameter.decimals == 0 && word.rfind("--grid=", 0) == 0;
    return ofGrid || word.rfind("--" + std::string(parameter.name) + "=", 0) == 0;
}

void checkSweeps(const BatchOptions& options) {
    std::set<const HyperboloidParameter*> swept;
    for (const Sweep& sweep : options.sweeps) {
        const std::string name(sweep.parameter->name);
        require(swept.insert(sweep.parameter).second, name + " is swept twice");
        const bool given =
            std::any_of(options.words.begin(), options.words.end(),
                        [&](const std::string& word) { return gives(word, *sweep.parameter); });
        require(!given, name + " is both given and swept");
    }
}

void checkProduct(const std::vector<Sweep>& sweeps) {
    double sets = 1;
    for (const Sweep& sweep : sweeps) {
        sets *= static_cast<double>(sweep.values.size());
    }
    require(sets <= mostSets, "The sweeps make more than " + std::to_string(mostSets) + " sets");
}

/** Every swept parameter must tell the files of different sets apart. */
void checkFileNames(const BatchOptions& options) {
    for (const Output& output : options.outputs) {
        const auto named = FileName::parametersIn(output.file);
        for (const Sweep& sweep : options.sweeps) {
            const bool told = std::find(named.begin(), named.end(), sweep.parameter) != named.end();
            require(told || sweep.values.size() == 1,
                    output.file + " would be written again and again: {" +
                        std::string(sweep.parameter->name) + "} is not in its name");
        }
    }
}

void checkTargets(const BatchOptions& options) {
    require(!options.outputs.empty(),
            "Nothing is to be made: give --text, --image or --scene (--help tells more)");
    std::set<std::string> names;
    for (const Output& output : options.outputs) {
        const std::string name =
            OutputFormat::isStandardOutput(output) ? Targets::standardOutput : output.file;
        require(names.insert(name).second, name + " is to be written twice");
    }
}

/** A command must stand in a line of its own. */
void checkLines(const BatchOptions& options) {
    for (const Output& output : options.outputs) {
        require(!options.list || output.file.find('\n') == std::string::npos,
                "A name with a line break cannot be listed: " + output.file);
    }
}

void checkViewpoint(const Viewpoint& viewpoint) {
    SbVec3f direction = Camera::scaled(viewpoint.direction);
    SbVec3f up = Camera::scaled(viewpoint.up);
    constexpr float leastSine = 1e-5F;
    require(direction.normalize() > 0 && up.normalize() > 0,
            "A direction of the camera has the length 0");
    require(direction.cross(up).length() > leastSine,
            "What is up in the picture may not be where the camera looks");
}

void checkPaper(const Paper& paper) {
    constexpr int largest = std::numeric_limits<short>::max();
    const auto [shorter, longer] = std::minmax(paper.width, paper.height);
    require(paper.dots(longer) <= largest,
            "A picture is " + std::to_string(largest) + " dots wide and high at most");
    require(paper.dots(shorter) >= 1, "A picture is a dot wide and high at least");
    // The scene library counts the bytes of a picture in an int.
    constexpr int bytesOfDot = 3;
    constexpr int most = std::numeric_limits<int>::max() / bytesOfDot;
    require(paper.dots(paper.width) * paper.dots(paper.height) <= most,
            "A picture has " + std::to_string(most) + " dots at most");
}

} // namespace

void Contradictions::refuse(const BatchOptions& options) {
    checkTargets(options);
    checkSweeps(options);
    checkProduct(options.sweeps);
    checkFileNames(options);
    FileTargets::refuseShared(options);
    checkLines(options);
    checkViewpoint(options.viewpoint);
    checkPaper(options.paper);
}
