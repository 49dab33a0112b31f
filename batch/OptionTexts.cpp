#include "batch/OptionTexts.h"

#include "batch/FileName.h"
#include "batch/Numbers.h"
#include "batch/OutputFormat.h"
#include "batch/ShownDocument.h"

#include <cmath>
#include <stdexcept>

namespace {

[[noreturn]] void refuse(const std::string& reason) {
    throw std::invalid_argument(reason);
}

int wholeNumber(std::string_view text) {
    const std::optional<int> value = Numbers::readWhole(text);
    return value ? *value : (refuse(std::string(text) + " is no whole number"), 0);
}

int sizeOfGrid(std::string_view text, HyperboloidParameter::Member member) {
    const HyperboloidParameter& parameter = HyperboloidParameter::of(member);
    return static_cast<int>(
        OptionTexts::number(std::string(text), parameter.minimum, parameter.maximum, true));
}

Document document(std::string_view name) {
    for (const Document candidate : {Document::U, Document::X, Document::M, Document::helix}) {
        if (ShownDocument::nameOf(candidate) == name) {
            return candidate;
        }
    }
    refuse("There is no document " + std::string(name) + ", only U, X, M and helix");
}

} // namespace

double OptionTexts::number(const std::string& text, double minimum, double maximum, bool whole) {
    const std::optional<double> value = Numbers::read(text);
    if (!value) {
        refuse(text + " is no number");
    }
    const std::string fault = Numbers::fault(*value, minimum, maximum, whole);
    if (!fault.empty()) {
        refuse(text + " " + fault);
    }
    return *value;
}

HelixPoint OptionTexts::vertex(const std::string& text) {
    const auto parts = Numbers::split(text, ',');
    switch (parts.size()) {
    case 1:
        return wholeNumber(parts[0]);
    case 2:
        return ColumnAndRow{wholeNumber(parts[0]), wholeNumber(parts[1])};
    default:
        refuse(text + " is neither INDEX nor COLUMN,ROW");
    }
}

FloatTriple OptionTexts::triple(const std::string& text) {
    const auto parts = Numbers::split(text, ',');
    std::array<float, 3> values{};
    bool valid = parts.size() == values.size();
    for (std::size_t i = 0; valid && i < values.size(); ++i) {
        const std::optional<double> value = Numbers::read(parts[i]);
        valid = value && std::isfinite(static_cast<float>(*value));
        values[i] = static_cast<float>(value.value_or(0));
    }
    if (!valid) {
        refuse(text + " is not three numbers separated by commas");
    }
    return {values[0], values[1], values[2]};
}

std::array<int, 2> OptionTexts::grid(const std::string& text) {
    const auto parts = Numbers::split(text, 'x');
    if (parts.size() != 2) {
        refuse(text + " is not two whole numbers with an x between them");
    }
    return {sizeOfGrid(parts[0], &HyperboloidParameters::horizontalPrecision),
            sizeOfGrid(parts[1], &HyperboloidParameters::verticalPrecision)};
}

std::array<double, 2> OptionTexts::size(const std::string& text) {
    const auto parts = Numbers::split(text, 'x');
    std::array<double, 2> sides{};
    bool valid = parts.size() == sides.size();
    for (std::size_t i = 0; valid && i < sides.size(); ++i) {
        sides[i] = Numbers::read(parts[i]).value_or(0);
        valid = sides[i] > 0;
    }
    if (!valid) {
        refuse(text + " is not two numbers above 0 with an x between them");
    }
    return sides;
}

DocumentScene::Look OptionTexts::look(const std::string& text) {
    if (text == "lit") {
        return DocumentScene::Look::lit;
    }
    if (text == "plain") {
        return DocumentScene::Look::plain;
    }
    if (text == "lines") {
        return DocumentScene::Look::lines;
    }
    refuse("There is no look " + text + ", only lit, plain and lines");
}

bool OptionTexts::isPerspective(const std::string& text) {
    if (text != "perspective" && text != "orthographic") {
        refuse("There is no camera " + text + ", only orthographic and perspective");
    }
    return text == "perspective";
}

Output OptionTexts::output(Output::Kind kind, const std::string& text) {
    const std::size_t sign = text.find('=');
    if (sign == std::string::npos || sign + 1 == text.size()) {
        refuse(text + " is not DOCUMENT=FILE");
    }
    Output output{kind, document(text.substr(0, sign)), text.substr(sign + 1)};
    FileName::parametersIn(output.file);
    OutputFormat::of(output);
    return output;
}
