#pragma once

#include "batch/BatchOptions.h"

#include <string>

/**
 * What the texts of options mean. Every reader throws std::invalid_argument, saying what is wrong,
 * for a text that is none of its own.
 */
namespace OptionTexts {

/** A number of a range; whole numbers only where `whole`. */
double number(const std::string& text, double minimum, double maximum, bool whole);

/** INDEX, or COLUMN,ROW. */
HelixPoint vertex(const std::string& text);

/** Three numbers separated by commas. */
FloatTriple triple(const std::string& text);

/** Columns and rows in their ranges, separated by "x". */
std::array<int, 2> grid(const std::string& text);

/** Two numbers above 0, separated by "x". */
std::array<double, 2> size(const std::string& text);

/** "lit", "plain" or "lines". */
DocumentScene::Look look(const std::string& text);

/** "perspective" (true) or "orthographic" (false). */
bool isPerspective(const std::string& text);

/** DOCUMENT=FILE; the file's ending must be one of the kind's. */
Output output(Output::Kind kind, const std::string& text);

} // namespace OptionTexts
