#pragma once

#include "app/FocusedWheel.h"
#include "app/NumberText.h"

#include <QCoreApplication>
#include <QDoubleSpinBox>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QSpinBox>
#include <QTextDocument>
#include <QTimer>
#include <QToolTip>
#include <optional>
#include <type_traits>
#include <utility>

/**
 * A spin box that takes what is entered as NumberText reads it, or not at all.
 *
 * Every character stays where it was typed or pasted. A text that is no number of the field's
 * range, or has more decimals than the field, is not taken: when the user leaves the field or
 * strikes Enter, the value from before comes back and a tip says what the field takes. That Enter
 * goes no further, so that no dialog is accepted with another number than the one entered. Numbers
 * are shown in the user's locale.
 *
 * @tparam SpinBox QDoubleSpinBox or QSpinBox
 */
template <typename SpinBox>
class NumberField : public FocusedWheel<SpinBox> {
    using Number = decltype(std::declval<SpinBox>().value());

public:
    explicit NumberField(QWidget* parent)
        : FocusedWheel<SpinBox>(parent) {
        // Heard before the value follows the text.
        QObject::connect(this->lineEdit(), &QLineEdit::textEdited, this, [this] {
            if (!valueBefore) {
                valueBefore = this->value();
            }
        });
        QObject::connect(this, &SpinBox::editingFinished, this, [this] { valueBefore.reset(); });
    }

    /** Never invalid: what is refused at once would leave a text that is a number of its own. */
    QValidator::State validate(QString& text, int& /*position*/) const override {
        return numberIn(text) ? QValidator::Acceptable : QValidator::Intermediate;
    }

    /** @param text must be acceptable */
    Number valueFromText(const QString& text) const override {
        return numberIn(text).value_or(this->value());
    }

    void fixup(QString& text) const override {
        explain(text);
        text = this->textFromValue(valueBefore.value_or(this->value()));
    }

    void stepBy(int steps) override {
        if (!this->hasAcceptableInput()) {
            this->interpretText();
        }
        FocusedWheel<SpinBox>::stepBy(steps);
        valueBefore.reset();
    }

protected:
    void keyPressEvent(QKeyEvent* event) override {
        const bool refused = !this->hasAcceptableInput();
        FocusedWheel<SpinBox>::keyPressEvent(event);
        if (refused && (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)) {
            event->accept();
        }
    }

private:
    static constexpr bool isWhole = std::is_integral_v<Number>;

    /** The number in a text, none when the field does not take it. */
    std::optional<Number> numberIn(const QString& text) const {
        std::optional<Number> number;
        if constexpr (isWhole) {
            number = NumberText::whole(text, this->locale());
        } else {
            number = NumberText::decimal(text, this->locale());
            if (number && QString::number(*number, 'f', this->decimals()).toDouble() != *number) {
                return std::nullopt;
            }
        }
        const bool inRange = number && *number >= this->minimum() && *number <= this->maximum();
        return inRange ? number : std::nullopt;
    }

    void explain(const QString& refused) const {
        const QString least = this->textFromValue(this->minimum());
        const QString most = this->textFromValue(this->maximum());
        if constexpr (isWhole) {
            showTip(QCoreApplication::translate(
                        "NumberField", "\"%1\" is not taken: enter a whole number from %2 to %3.")
                        .arg(refused, least, most));
        } else {
            showTip(QCoreApplication::translate(
                        "NumberField",
                        "\"%1\" is not taken: enter a number from %2 to %3 with at most %n "
                        "decimals.",
                        nullptr, this->decimals())
                        .arg(refused, least, most));
        }
    }

    /** Shows it when the focus has gone where it goes and no button of the mouse is down. */
    void showTip(const QString& text) const {
        constexpr int laterInMilliseconds = 20;
        QTimer::singleShot(laterInMilliseconds, this, [this, text] {
            if (QGuiApplication::mouseButtons() != Qt::NoButton) {
                showTip(text);
                return;
            }
            // What was typed may look like rich text, and each of its spaces counts.
            QToolTip::showText(this->mapToGlobal(this->rect().bottomLeft()),
                               Qt::convertFromPlainText(text), this->window());
        });
    }

    /** The value from before the text that is being edited. */
    std::optional<Number> valueBefore;
};

using DecimalField = NumberField<QDoubleSpinBox>;
using WholeField = NumberField<QSpinBox>;
