#pragma once

#include <optional>

class QLocale;
class QString;

/**
 * The numbers in what a user enters.
 *
 * Point and comma both are the decimal point, in every locale, beside the locale's own sign, digits
 * and decimal point. Spaces around a number do not count. Digits are never grouped: a second
 * separator or a space between digits makes a text that is no number.
 */
namespace NumberText {

/** The number in a text such as "-2,5", ".5" or "1e2"; none when it is no finite number. */
std::optional<double> decimal(const QString& text, const QLocale& locale);

/** The number in a text such as "-25"; none when it is no whole number, or none that fits. */
std::optional<int> whole(const QString& text, const QLocale& locale);

} // namespace NumberText
