#include "batch/BatchRun.h"

#include "batch/ExitCode.h"
#include "batch/Interruption.h"
#include "batch/ListedCommand.h"
#include "batch/ModelSet.h"
#include "batch/Production.h"
#include "batch/ProgressLine.h"
#include "batch/Targets.h"
#include "export/StandardOutput.h"

#include <Inventor/SoDB.h>
#include <iostream>

namespace {

using Sets = std::vector<HyperboloidParameters>;

std::vector<std::string> makeAll(const BatchOptions& options, const Sets& sets) {
    Production production(options);
    ProgressLine progress(sets.size());
    const Interruption interruption;
    std::vector<std::string> failures;
    for (std::size_t i = 0; i < sets.size(); ++i) {
        if (interruption.isAskedFor()) {
            failures.push_back("Interrupted: " + std::to_string(sets.size() - i) + " of " +
                               std::to_string(sets.size()) + " sets are not made");
            break;
        }
        const std::string values = sweptValues(sets[i], options.sweeps);
        progress.show(i, values);
        const std::string place = values.empty() ? values : values + ": ";
        for (const std::string& failure : production.make(sets[i])) {
            failures.push_back(place + failure);
        }
    }
    if (const std::string undrawn = production.undrawnPictures(); !undrawn.empty()) {
        failures.push_back(undrawn);
    }
    return failures;
}

int makeAndReport(const BatchOptions& options, const Sets& sets) {
    SoDB::init();
    const std::vector<std::string> failures = makeAll(options, sets);
    SoDB::finish();
    for (const std::string& failure : failures) {
        std::cerr << failure << "\n";
    }
    return failures.empty() ? 0 : ExitCode::incomplete;
}

int list(const BatchOptions& options, const Sets& sets, const std::string& program) {
    StandardOutput output;
    for (const HyperboloidParameters& set : sets) {
        const std::string line = ListedCommand::of(options, set, program) + "\n";
        output.write(line.data(), line.size());
    }
    return Targets::close(output, Targets::standardOutput);
}

} // namespace

int BatchRun::run(const BatchOptions& options, const std::string& program) {
    const Sets sets = setsOf(options.parameters, options.sweeps);
    if (sets.size() == 1) {
        const std::string refusal = ModelSet::refusal(sets.front(), options);
        if (!refusal.empty()) {
            std::cerr << "Refused: " << refusal << "\n";
            return ExitCode::refused;
        }
    }
    return options.list ? list(options, sets, program) : makeAndReport(options, sets);
}
