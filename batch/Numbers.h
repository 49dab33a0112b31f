#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/** Numbers as they are written on the command line, in file names and in messages. */
namespace Numbers {

/** A finite decimal number that is the whole text; nothing for any other text. */
std::optional<double> read(std::string_view text);

/** A whole number that is the whole text; nothing for any other text. */
std::optional<int> readWhole(std::string_view text);

/**
 * Why a number is not admitted, for example "is not in 0.01 to 100"; empty when it is.
 *
 * @param whole whether it must be a whole number
 */
std::string fault(double value, double minimum, double maximum, bool whole);

/** The parts of a text between separators; one part at least. */
std::vector<std::string_view> split(std::string_view text, char separator);

/** The number that the text of so many significant digits of a finite value shows. */
double rounded(double value, int digits);

/** The shortest decimal text that reads as the same number, with a decimal point. */
std::string text(double value);

} // namespace Numbers
