#include "batch/OptionsFile.h"

#include "batch/Numbers.h"
#include "batch/OptionTable.h"
#include "hyperboloid/HyperboloidParameters.h"

#include <algorithm>
#include <istream>
#include <set>
#include <sstream>

namespace {

using Items = std::vector<CLI::ConfigItem>;

bool isAtWordStart(const std::string& line, std::size_t place) {
    return place == 0 || line[place - 1] == ' ' || line[place - 1] == '\t';
}

std::string withoutComment(std::string line) {
    char quote = '\0';
    for (std::size_t i = 0; i < line.size(); ++i) {
        const char letter = line[i];
        if (quote != '\0') {
            quote = letter == quote ? '\0' : quote;
        } else if (letter == '"' || letter == '\'') {
            quote = letter;
        } else if (letter == '#' || (letter == ';' && isAtWordStart(line, i))) {
            line.erase(i);
        }
    }
    return line;
}

/** Whether a line begins an array that does not end in it. */
bool beginsArray(const std::string& line) {
    const std::string value = CLI::detail::trim_copy(line.substr(line.find('=') + 1));
    return line.find('=') != std::string::npos && value.rfind('[', 0) == 0 && value.back() != ']';
}

/** Some editors put one at the beginning of every file. */
void skipByteOrderMark(std::istream& input) {
    for (const char letter : {'\xEF', '\xBB', '\xBF'}) {
        if (input.peek() == std::istream::traits_type::to_int_type(letter)) {
            input.get();
        }
    }
}

/**
 * The text of a file without comments, and with every array in one line. The library takes a # in
 * quotes for a comment, and the first line of an array for all of it.
 */
std::stringstream prepared(std::istream& input) {
    skipByteOrderMark(input);
    std::stringstream text;
    bool isInArray = false;
    for (std::string line; std::getline(input, line);) {
        line = CLI::detail::trim_copy(withoutComment(line));
        isInArray = isInArray ? line.empty() || line.back() != ']' : beginsArray(line);
        text << line << (isInArray ? ' ' : '\n');
    }
    return text;
}

/** The library would take the values of a key that stands twice for those of an array. */
void refuseKeysThatStandTwice(std::istream&& text) {
    std::set<std::string> keys;
    for (std::string line; std::getline(text, line);) {
        std::string key = CLI::detail::trim_copy(line.substr(0, line.find('=')));
        CLI::detail::remove_quotes(key);
        if (!key.empty() && !keys.insert(key).second) {
            throw CLI::ConfigError(key + " stands twice in the file");
        }
    }
}

/** The options of a file as they stand there. */
Items read(std::istream& input) {
    CLI::ConfigTOML reader;
    // None are left to look for.
    reader.comment('\0');
    std::stringstream text = prepared(input);
    refuseKeysThatStandTwice(std::istringstream(text.str()));
    return reader.from_config(text);
}

/** The name in NAME=START:STOP:COUNT. */
std::string_view sweptName(std::string_view sweep) {
    return Numbers::split(sweep, '=').front();
}

bool isParameter(const std::string& name) {
    const auto& all = HyperboloidParameters::all();
    return std::any_of(all.begin(), all.end(), [&](const HyperboloidParameter& parameter) {
        return parameter.name == name;
    });
}

} // namespace

Items OptionsFile::from_config(std::istream& input) const {
    Items given = read(input);
    for (CLI::ConfigItem& item : given) {
        if (!item.parents.empty()) {
            throw CLI::ConfigError("A file of options has no sections such as " +
                                   item.parents.front());
        }
        giveWay(item);
        joinArray(item);
    }
    given.erase(std::remove_if(given.begin(), given.end(),
                               [](const CLI::ConfigItem& item) { return item.inputs.empty(); }),
                given.end());
    return given;
}

std::string OptionsFile::text() const {
    std::string written = app.config_to_str();
    std::istringstream stream(written);
    for (const CLI::ConfigItem& item : read(stream)) {
        const CLI::Option* option = app.get_option_no_throw("--" + item.name);
        if (option == nullptr || option->results() != item.inputs) {
            throw CLI::ConfigError("A file of options cannot hold both kinds of quotes in a text, "
                                   "nor a line break");
        }
    }
    return written;
}

bool OptionsFile::isGiven(const std::string& option) const {
    return app.get_option("--" + option)->count() > 0;
}

bool OptionsFile::isDecided(std::string_view parameter) const {
    const bool isOfGrid = parameter == "columns" || parameter == "rows";
    const std::vector<std::string>& sweeps = app.get_option("--sweep")->results();
    return isGiven(std::string(parameter)) || (isOfGrid && isGiven("grid")) ||
           std::any_of(sweeps.begin(), sweeps.end(),
                       [&](const std::string& sweep) { return sweptName(sweep) == parameter; });
}

void OptionsFile::giveWay(CLI::ConfigItem& item) const {
    std::vector<std::string>& texts = item.inputs;
    if (item.name == "sweep") {
        texts.erase(
            std::remove_if(texts.begin(), texts.end(),
                           [&](const std::string& sweep) { return isDecided(sweptName(sweep)); }),
            texts.end());
    } else if (item.name == "grid") {
        keepUndecidedSide(item);
    } else if ((item.name == "vertex" && isGiven("u")) || (item.name == "u" && isGiven("vertex")) ||
               (isParameter(item.name) && isDecided(item.name))) {
        texts.clear();
    }
}

void OptionsFile::keepUndecidedSide(CLI::ConfigItem& grid) const {
    const std::string size = grid.inputs.front();
    const auto sides = Numbers::split(size, 'x');
    const bool columns = isDecided("columns");
    const bool rows = isDecided("rows");
    if (columns && rows) {
        grid.inputs.clear();
    } else if ((columns || rows) && sides.size() == 2) {
        grid.name = columns ? "rows" : "columns";
        grid.inputs = {std::string(columns ? sides.back() : sides.front())};
    }
}

void OptionsFile::joinArray(CLI::ConfigItem& item) const {
    const CLI::Option* option = app.get_option_no_throw("--" + item.name);
    if (option != nullptr && !OptionTable::isRepeated(*option) && item.inputs.size() > 1) {
        item.inputs = {CLI::detail::join(item.inputs)};
    }
}
