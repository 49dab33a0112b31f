#include "batch/FileName.h"

#include "batch/Numbers.h"

#include <regex>

namespace {

const std::regex& braced() {
    static const std::regex pattern("\\{([^{}]*)\\}");
    return pattern;
}

} // namespace

std::vector<const HyperboloidParameter*> FileName::parametersIn(const std::string& pattern) {
    std::vector<const HyperboloidParameter*> found;
    for (std::sregex_iterator match(pattern.begin(), pattern.end(), braced()), end; match != end;
         ++match) {
        found.push_back(&HyperboloidParameter::named((*match)[1].str()));
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
