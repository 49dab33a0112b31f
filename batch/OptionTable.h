#pragma once

#include "batch/BatchOptions.h"

#include <CLI/CLI.hpp>
#include <functional>
#include <string>

/** The options of sets, pictures and files under their names, each with what takes its text. */
class OptionTable {
public:
    /**
     * Adds the options to a command line.
     *
     * @param batchOptions what the texts of the options are taken into; both outlive the table
     */
    OptionTable(CLI::App& commandLine, BatchOptions& batchOptions);

    /** Whether an option may be given any number of times. */
    static bool isRepeated(const CLI::Option& option) { return option.get_expected_max() > 1; }

private:
    using TakeText = std::function<void(const std::string&)>;

    /** Takes a text; what it throws is told with the option's name. */
    static TakeText checked(const std::string& name, const TakeText& take);

    /** An option that may be given once. */
    CLI::Option* add(const std::string& name, const char* kind, const std::string& text,
                     const char* group, const TakeText& take);
    /** An option that may be given any number of times. */
    void addRepeated(const std::string& name, const char* kind, const std::string& text,
                     const char* group, const TakeText& take);

    void addParameters();
    void addGrid();
    void addSweep();
    void addHelixPoint();
    void addHelixValues();
    void addAppearance();
    void addPercent(const std::string& name, double start, std::optional<int>& value);
    void addCamera();
    void addPaper();
    void addOutputs();

    CLI::App& app;
    BatchOptions& options;
};
