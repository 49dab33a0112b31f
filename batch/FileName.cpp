#include "batch/FileName.h"

#include "batch/Numbers.h"

std::vector<const HyperboloidParameter*> FileName::parametersIn(const std::string& pattern) {
    std::vector<const HyperboloidParameter*> found;
    std::size_t start = pattern.find('{');
    std::size_t end = pattern.find('}', start);
    while (end != std::string::npos) {
        found.push_back(&HyperboloidParameter::named(pattern.substr(start + 1, end - start - 1)));
        start = pattern.find('{', end);
        end = pattern.find('}', start);
    }
    return found;
}

std::string FileName::of(const std::string& pattern, const HyperboloidParameters& set) {
    std::string name = pattern;
    for (const HyperboloidParameter* parameter : parametersIn(pattern)) {
        const std::string braces = "{" + std::string(parameter->name) + "}";
        name.replace(name.find(braces), braces.size(), Numbers::text(parameter->valueIn(set)));
    }
    return name;
}
