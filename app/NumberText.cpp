#include "app/NumberText.h"

#include <QLocale>
#include <QRegularExpression>
#include <cmath>

namespace {

QChar inPlainSigns(QChar sign, const QLocale& locale) {
    // No other kind of digit: a superscript is none of the number's.
    if (sign.category() == QChar::Number_DecimalDigit) {
        return QLatin1Char(static_cast<char>('0' + sign.digitValue()));
    }
    if (sign == ',' || sign == locale.decimalPoint()) {
        return '.';
    }
    if (sign == locale.negativeSign()) {
        return '-';
    }
    return sign == locale.positiveSign() ? QChar('+') : sign;
}

/** The text with the digits and signs that a program reads everywhere. */
QString plain(const QString& text, const QLocale& locale) {
    QString result = text.trimmed();
    for (QChar& sign : result) {
        sign = inPlainSigns(sign, locale);
    }
    return result;
}

bool matches(const QString& text, const char* pattern) {
    return QRegularExpression(QRegularExpression::anchoredPattern(pattern)).match(text).hasMatch();
}

} // namespace

std::optional<double> NumberText::decimal(const QString& text, const QLocale& locale) {
    const QString number = plain(text, locale);
    if (!matches(number, "[+-]?([0-9]+\\.?[0-9]*|\\.[0-9]+)([eE][+-]?[0-9]+)?")) {
        return std::nullopt;
    }
    bool isRepresentable = false;
    const double value = number.toDouble(&isRepresentable);
    return isRepresentable && std::isfinite(value) ? std::optional(value) : std::nullopt;
}

std::optional<int> NumberText::whole(const QString& text, const QLocale& locale) {
    const QString number = plain(text, locale);
    if (!matches(number, "[+-]?[0-9]+")) {
        return std::nullopt;
    }
    bool fits = false;
    const int value = number.toInt(&fits);
    return fits ? std::optional(value) : std::nullopt;
}
