#include "batch/CommandLine.h"

#include "batch/Contradictions.h"
#include "batch/ExitCode.h"
#include "batch/OptionTable.h"
#include "batch/OptionsFile.h"
#include "batch/Targets.h"

#include <CLI/CLI.hpp>
#include <iostream>
#include <memory>
#include <stdexcept>
#include <string>

namespace {

/** What the program does, rather than what it makes. */
constexpr const char* otherOptions = "Other";

/**
 * The words of a command that gives the same options, but those that may be repeated and those that
 * say what the program does.
 */
std::vector<std::string> wordsOf(const CLI::App& app) {
    std::vector<std::string> words;
    for (const CLI::Option* option : app.get_options()) {
        const std::string name = option->get_name();
        if (option->count() == 0 || option->get_group() == otherOptions ||
            OptionTable::isRepeated(*option)) {
            continue;
        }
        const bool isFlag = option->get_expected_min() == 0;
        if (!isFlag) {
            words.push_back(name + "=" + option->results().front());
        } else if (option->as<bool>()) {
            words.push_back(name);
        }
    }
    return words;
}

/** The whole command line. */
class Parser {
public:
    Parser()
        : table(app, options) {
        app.get_option("--help")->group(otherOptions);
        app.set_version_flag("--version", "torvane-batch " TORVANE_VERSION)->group(otherOptions);
        app.set_config("--config", "", "a file of options, TOML or INI")
            ->type_name("FILE")
            ->group(otherOptions);
        app.config_formatter(optionsFile);
        app.allow_config_extras(false);
        app.add_option("--write-config", writtenConfig,
                       "make nothing, but write a file of the options that are given; "
                       "- is standard output")
            ->type_name("FILE")
            ->configurable(false)
            ->group(otherOptions);
        app.add_flag("--list", options.list,
                     "make nothing, but print a command for each set of the sweeps")
            ->group(otherOptions);
    }

    CommandLine::Result read(int argc, const char* const* argv) try {
        app.parse(argc, argv);
        options.words = wordsOf(app);
        if (!writtenConfig.empty()) {
            return {std::nullopt, Targets::write(optionsFile->text(), writtenConfig)};
        }
        Contradictions::refuse(options);
        return {options, 0};
    } catch (const CLI::CallForHelp&) {
        return {std::nullopt, Targets::write(app.help(), Targets::standardOutput)};
    } catch (const CLI::CallForVersion& version) {
        return {std::nullopt,
                Targets::write(version.what() + std::string("\n"), Targets::standardOutput)};
    } catch (const CLI::ParseError& error) {
        app.exit(error);
        return {std::nullopt, ExitCode::refused};
    } catch (const std::invalid_argument& error) {
        std::cerr << error.what() << "\n";
        return {std::nullopt, ExitCode::refused};
    }

private:
    CLI::App app{"Makes what the viewer shows, as text, pictures and scenes, without a window."};
    BatchOptions options;
    OptionTable table;
    std::shared_ptr<OptionsFile> optionsFile = std::make_shared<OptionsFile>(app);
    std::string writtenConfig;
};

} // namespace

CommandLine::Result CommandLine::read(int argc, const char* const* argv) {
    return Parser().read(argc, argv);
}
