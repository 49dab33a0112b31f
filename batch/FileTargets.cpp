#include "batch/FileTargets.h"

#include "batch/FileName.h"
#include "batch/OutputFormat.h"
#include "batch/Targets.h"
#include "export/WholeFile.h"

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

/** Tells files apart, however they are named. */
class Identities {
public:
    /** One text for each file. */
    std::string of(const Output& output, const std::string& name) {
        if (OutputFormat::isStandardOutput(output)) {
            return Targets::standardOutput;
        }
        std::error_code error;
        const fs::path named = fs::absolute(name, error);
        const fs::path meant = WholeFile::behindLinks(named, error);
        const fs::path& file = error ? named : meant;
        return folderOf(file) / file.filename();
    }

private:
    /** Follows the links to a folder once for all files in it. */
    const fs::path& folderOf(const fs::path& file) {
        const auto [folder, isNew] = folders.try_emplace(file.parent_path());
        if (isNew) {
            std::error_code error;
            folder->second = fs::weakly_canonical(file.parent_path(), error);
            if (error) {
                folder->second = file.parent_path().lexically_normal();
            }
        }
        return folder->second;
    }

    std::unordered_map<std::string, fs::path> folders;
};

/** For example "{K13}.txt for K13 = 0.5". */
std::string text(const Writer& writer, const std::vector<Sweep>& sweeps) {
    const std::string values = sweptValues(*writer.set, sweeps);
    return writer.output->file + (values.empty() ? "" : " for " + values);
}

} // namespace

void FileTargets::refuseShared(const BatchOptions& options) {
    const std::vector<HyperboloidParameters> sets = setsOf(options.parameters, options.sweeps);
    Identities identities;
    std::unordered_map<std::string, Writer> writers;
    for (const HyperboloidParameters& set : sets) {
        for (const Output& output : options.outputs) {
            const std::string name = FileName::of(output.file, set);
            const Writer writer{&output, &set};
            const auto [first, isNew] = writers.emplace(identities.of(output, name), writer);
            if (!isNew) {
                throw std::invalid_argument(name + " is to be written twice: by " +
                                            text(first->second, options.sweeps) + " and by " +
                                            text(writer, options.sweeps));
            }
        }
    }
}
