#include "batch/Numbers.h"

#include <array>
#include <charconv>
#include <cmath>

namespace {

/** Room for any number. */
using Digits = std::array<char, 32>;

template <typename Number>
std::optional<Number> readAll(std::string_view text) {
    Number value{};
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, value);
    return error == std::errc() && stop == end ? std::optional(value) : std::nullopt;
}

} // namespace

std::optional<double> Numbers::read(std::string_view text) {
    const std::optional<double> value = readAll<double>(text);
    return value && std::isfinite(*value) ? value : std::nullopt;
}

std::optional<int> Numbers::readWhole(std::string_view text) {
    return readAll<int>(text);
}

std::string Numbers::fault(double value, double minimum, double maximum, bool whole) {
    if (whole && value != std::floor(value)) {
        return "is no whole number";
    }
    if (value < minimum || value > maximum) {
        return "is not in " + text(minimum) + " to " + text(maximum);
    }
    return {};
}

std::vector<std::string_view> Numbers::split(std::string_view text, char separator) {
    std::vector<std::string_view> parts;
    std::size_t end = text.find(separator);
    while (end != std::string_view::npos) {
        parts.push_back(text.substr(0, end));
        text.remove_prefix(end + 1);
        end = text.find(separator);
    }
    parts.push_back(text);
    return parts;
}

double Numbers::rounded(double value, int digits) {
    Digits text{};
    const auto end = std::to_chars(text.data(), text.data() + text.size(), value,
                                   std::chars_format::general, digits)
                         .ptr;
    double result = value;
    std::from_chars(text.data(), end, result);
    return result;
}

std::string Numbers::text(double value) {
    Digits text{};
    const auto end = std::to_chars(text.data(), text.data() + text.size(), value).ptr;
    return {text.data(), end};
}
