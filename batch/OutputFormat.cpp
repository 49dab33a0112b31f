#include "batch/OutputFormat.h"

#include "batch/Targets.h"

#include <array>
#include <filesystem>
#include <stdexcept>
#include <string>

namespace {

struct Ending {
    const char* text;
    Format format;
};
using Endings = std::array<Ending, 2>;

constexpr Endings imageEndings{{{".eps", Format::postScript}, {".png", Format::png}}};
constexpr Endings sceneEndings{{{".iv", Format::openInventor}, {".wrl", Format::vrml}}};

} // namespace

bool OutputFormat::isStandardOutput(const Output& output) {
    return output.file == Targets::standardOutput || output.file.rfind("-.", 0) == 0;
}

Format OutputFormat::of(const Output& output) {
    if (output.kind == Output::Kind::text) {
        return Format::text;
    }
    const Endings& endings = output.kind == Output::Kind::image ? imageEndings : sceneEndings;
    if (output.file == Targets::standardOutput) {
        return endings.front().format;
    }
    const std::string ending =
        std::filesystem::path(isStandardOutput(output) ? "name" + output.file : output.file)
            .extension();
    for (const Ending& known : endings) {
        if (ending == known.text) {
            return known.format;
        }
    }
    throw std::invalid_argument(output.file + " ends neither in " + endings[0].text + " nor in " +
                                endings[1].text);
}
