#include "batch/ListedCommand.h"

#include "batch/FileName.h"
#include "batch/Numbers.h"
#include "batch/ShownDocument.h"

#include <algorithm>
#include <cctype>
#include <string_view>

namespace {

bool isPlain(char letter) {
    constexpr std::string_view plainSigns = "-_=+.,:/@%";
    return std::isalnum(static_cast<unsigned char>(letter)) != 0 ||
           plainSigns.find(letter) != std::string_view::npos;
}

/** A word as a shell reads it. */
std::string quoted(const std::string& word) {
    if (!word.empty() && std::all_of(word.begin(), word.end(), isPlain)) {
        return word;
    }
    std::string text = "'";
    for (const char letter : word) {
        text += letter == '\'' ? std::string("'\\''") : std::string(1, letter);
    }
    return text + "'";
}

std::string_view optionOf(Output::Kind kind) {
    switch (kind) {
    case Output::Kind::text:
        return "--text=";
    case Output::Kind::image:
        return "--image=";
    default:
        return "--scene=";
    }
}

std::string wordOf(const Output& output, const HyperboloidParameters& set) {
    return std::string(optionOf(output.kind)) +
           std::string(ShownDocument::nameOf(output.document)) + "=" +
           FileName::of(output.file, set);
}

} // namespace

std::string ListedCommand::of(const BatchOptions& options, const HyperboloidParameters& set,
                              const std::string& program) {
    std::string command = quoted(program);
    for (const std::string& word : options.words) {
        command += " " + quoted(word);
    }
    for (const Sweep& sweep : options.sweeps) {
        command += " --" + std::string(sweep.parameter->name) + "=" +
                   Numbers::text(sweep.parameter->valueIn(set));
    }
    for (const Output& output : options.outputs) {
        command += " " + quoted(wordOf(output, set));
    }
    return command;
}
