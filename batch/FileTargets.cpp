#include "batch/FileTargets.h"

#include "batch/FileName.h"
#include "batch/OutputFormat.h"

#include <filesystem>
#include <stdexcept>
#include <unordered_map>

namespace {

namespace fs = std::filesystem;

/** Who writes a file. */
struct Writer {
    const Output* output;
    const HyperboloidParameters* set;
};

/** One text for each file, however it is named. */
std::string identityOf(const Output& output, const std::string& name, const fs::path& folder) {
    return OutputFormat::isStandardOutput(output) ? "-" : (folder / name).lexically_normal();
}

/** For example "{K13}.txt for K13 = 0.5". */
std::string text(const Writer& writer, const std::vector<Sweep>& sweeps) {
    const std::string values = sweptValues(*writer.set, sweeps);
    return writer.output->file + (values.empty() ? "" : " for " + values);
}

} // namespace

void FileTargets::refuseShared(const BatchOptions& options) {
    const std::vector<HyperboloidParameters> sets = setsOf(options.parameters, options.sweeps);
    std::error_code noFolder;
    const fs::path folder = fs::current_path(noFolder);
    std::unordered_map<std::string, Writer> writers;
    for (const HyperboloidParameters& set : sets) {
        for (const Output& output : options.outputs) {
            const std::string name = FileName::of(output.file, set);
            const Writer writer{&output, &set};
            const auto [first, isNew] = writers.emplace(identityOf(output, name, folder), writer);
            if (!isNew) {
                throw std::invalid_argument(name + " is to be written twice: by " +
                                            text(first->second, options.sweeps) + " and by " +
                                            text(writer, options.sweeps));
            }
        }
    }
}
