#include "app/HyperboloidParameterDialog.h"

#include "app/Messages.h"
#include "app/NumberField.h"
#include "hyperboloid/HyperboloidFrame.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QTextDocumentFragment>
#include <type_traits>

namespace {

using Set = HyperboloidParameters;

struct LabelledField {
    const char* text;
    HyperboloidParameter::Member member;
};

constexpr std::size_t rowCount = 5;
using Column = std::array<LabelledField, rowCount>;

/** The fields from left to right, each column from top to bottom. */
constexpr std::array<Column, 3> columns{{
    {{{QT_TRANSLATE_NOOP("QMainWindow", "K1 :"), &Set::K1},
      {QT_TRANSLATE_NOOP("QMainWindow", "K2 :"), &Set::K2},
      {QT_TRANSLATE_NOOP("QMainWindow", "K3 :"), &Set::K3},
      {QT_TRANSLATE_NOOP("QMainWindow", "K13:"), &Set::K13},
      {QT_TRANSLATE_NOOP("QMainWindow", "K23:"), &Set::K23}}},
    {{{QT_TRANSLATE_NOOP("QMainWindow", "<html>&Ucirc;</html>1:"), &Set::U1},
      {QT_TRANSLATE_NOOP("QMainWindow", "<html>&Ucirc;</html>2:"), &Set::U2},
      {QT_TRANSLATE_NOOP("QMainWindow", "<html>&Ucirc;</html>3:"), &Set::U3},
      {QT_TRANSLATE_NOOP("QMainWindow", "Point R:"), &Set::pointRadius},
      {QT_TRANSLATE_NOOP("QMainWindow", "Horizontal Prec:"), &Set::horizontalPrecision}}},
    {{{QT_TRANSLATE_NOOP("QMainWindow", "U3Const Range:"), &Set::u3constRange},
      {QT_TRANSLATE_NOOP("QMainWindow", "U3Axis Range:"), &Set::u3axisRange},
      {QT_TRANSLATE_NOOP("QMainWindow", "U3Const Radius:"), &Set::u3constRadius},
      {QT_TRANSLATE_NOOP("QMainWindow", "U3Axis Radius:"), &Set::u3axisRadius},
      {QT_TRANSLATE_NOOP("QMainWindow", "Vertical Prec:"), &Set::verticalPrecision}}},
}};

template <typename SpinBox>
QAbstractSpinBox* createSpinBox(const HyperboloidParameter& parameter, double value,
                                QWidget* parent) {
    auto* box = new SpinBox(parent);
    using Number = decltype(box->value());
    if constexpr (std::is_floating_point_v<Number>) {
        box->setDecimals(parameter.decimals);
    }
    box->setRange(static_cast<Number>(parameter.minimum), static_cast<Number>(parameter.maximum));
    box->setSingleStep(static_cast<Number>(parameter.step));
    box->setValue(static_cast<Number>(value));
    return box;
}

QAbstractSpinBox* createField(const HyperboloidParameter& parameter, double value,
                              QWidget* parent) {
    return parameter.decimals == 0 ? createSpinBox<WholeField>(parameter, value, parent)
                                   : createSpinBox<DecimalField>(parameter, value, parent);
}

/** The number in a spin box of either kind. */
double valueOf(const QAbstractSpinBox& field) {
    return field.property("value").toDouble();
}

std::size_t indexOf(HyperboloidParameter::Member member) {
    const auto index = &HyperboloidParameter::of(member) - HyperboloidParameters::all().data();
    return static_cast<std::size_t>(index);
}

/** Hands a field over to the user: what is typed next replaces its text. */
void edit(QAbstractSpinBox& field) {
    field.setFocus();
    field.selectAll();
}

const char* pictureOf(HyperboloidCondition condition) {
    return condition == HyperboloidCondition::quadric ? ":/images/err1.png" : ":/images/err2.png";
}

} // namespace

HyperboloidParameterDialog::HyperboloidParameterDialog(const HyperboloidParameters& initial,
                                                       QWidget* parent)
    : QDialog(parent) {
    // The tab key follows the order of creation: down the columns, then along the buttons.
    for (const Column& column : columns) {
        for (const LabelledField& labelled : column) {
            const HyperboloidParameter& parameter = HyperboloidParameter::of(labelled.member);
            fieldOf(labelled.member) = createField(parameter, parameter.valueIn(initial), this);
        }
    }
    auto* layout = new QVBoxLayout;
    layout->addLayout(createColumns());
    layout->addLayout(createButtons());
    // The dialog keeps the size that its contents need.
    layout->setSizeConstraint(QLayout::SetFixedSize);
    setLayout(layout);
    edit(*fieldOf(columns.front().front().member));
}

void HyperboloidParameterDialog::accept() {
    for (QAbstractSpinBox* field : fields) {
        if (!field->hasAcceptableInput()) {
            field->interpretText();
            edit(*field);
            return;
        }
    }
    QDialog::accept();
}

std::optional<HyperboloidParameters> HyperboloidParameterDialog::ask(const HyperboloidFrame* frame,
                                                                     QWidget* parent,
                                                                     const Refusal& refuse) {
    const QPointer<const HyperboloidFrame> asked(frame);
    // Refused values are not kept: each new dialog starts from the model.
    while (asked) {
        const HyperboloidParameters kept = HyperboloidParameters::of(*asked);
        HyperboloidParameterDialog dialog(kept, parent);
        if (dialog.exec() != QDialog::Accepted) {
            return std::nullopt;
        }
        const HyperboloidParameters entered = dialog.parameters();
        const HyperboloidCondition broken = entered.brokenCondition();
        if (broken == HyperboloidCondition::none) {
            return asked ? std::optional(entered) : std::nullopt;
        }
        if (refuse) {
            refuse(entered, kept);
        }
        Messages::brokenCondition(pictureOf(broken), parent);
        if (!parent->isVisible()) {
            // The program is ending: the window was closed while the message was up.
            return std::nullopt;
        }
    }
    return std::nullopt;
}

QString HyperboloidParameterDialog::nameOf(HyperboloidParameter::Member member) {
    for (const Column& column : columns) {
        for (const LabelledField& field : column) {
            if (field.member == member) {
                const QString label = QCoreApplication::translate("QMainWindow", field.text);
                return QTextDocumentFragment::fromHtml(label).toPlainText().remove(':').trimmed();
            }
        }
    }
    return {};
}

QAbstractSpinBox*& HyperboloidParameterDialog::fieldOf(HyperboloidParameter::Member member) {
    return fields.at(indexOf(member));
}

QAbstractSpinBox* HyperboloidParameterDialog::fieldOf(HyperboloidParameter::Member member) const {
    return fields.at(indexOf(member));
}

QLayout* HyperboloidParameterDialog::createColumns() {
    auto* row = new QHBoxLayout;
    for (const Column& column : columns) {
        auto* labels = new QVBoxLayout;
        auto* widgets = new QVBoxLayout;
        for (const auto& [text, member] : column) {
            labels->addWidget(new QLabel(QCoreApplication::translate("QMainWindow", text)));
            widgets->addWidget(fieldOf(member));
        }
        row->addLayout(labels);
        row->addLayout(widgets);
    }
    return row;
}

QLayout* HyperboloidParameterDialog::createButtons() {
    auto* cancel = new QPushButton(QCoreApplication::translate("QMainWindow", "Cancel"), this);
    auto* ok = new QPushButton(QCoreApplication::translate("QMainWindow", "Ok"), this);
    ok->setDefault(true);
    // Clicked, it must not take the focus: a refused text would be gone before it is noticed.
    ok->setFocusPolicy(Qt::TabFocus);
    connect(ok, SIGNAL(clicked()), this, SLOT(accept()));
    connect(cancel, SIGNAL(clicked()), this, SLOT(reject()));
    auto* row = new QHBoxLayout;
    row->addWidget(cancel);
    row->addWidget(ok);
    return row;
}

HyperboloidParameters HyperboloidParameterDialog::parameters() const {
    HyperboloidParameters values;
    for (const HyperboloidParameter& parameter : HyperboloidParameters::all()) {
        parameter.setValueIn(values, valueOf(*fieldOf(parameter.member)));
    }
    return values;
}
