#include "app/RefusedParametersText.h"

#include "app/HyperboloidParameterDialog.h"

#include <QCoreApplication>
#include <QStringList>

namespace {

/** The first five values are those that the conditions are on. */
constexpr std::size_t conditioned = 5;

/** A value as it is entered. */
QString entered(const HyperboloidParameter& parameter, const HyperboloidParameters& set) {
    return QString::number(parameter.valueIn(set), 'f', parameter.decimals);
}

} // namespace

QString RefusedParametersText::of(const HyperboloidParameters& refused,
                                  const HyperboloidParameters& kept) {
    const auto& all = HyperboloidParameters::all();
    QStringList values;
    for (std::size_t i = 0; i < all.size(); ++i) {
        const QString value = entered(all[i], refused);
        if (i < conditioned || value != entered(all[i], kept)) {
            values << HyperboloidParameterDialog::nameOf(all[i].member) + " = " + value;
        }
    }
    const std::string_view formula = formulaOf(refused.brokenCondition());
    // The numbers come first: what does not fit into a narrow window is the end.
    return QCoreApplication::translate("MainWindow", "Refused: %1: %2 does not hold")
        .arg(values.join(", "),
             QString::fromUtf8(formula.data(), static_cast<int>(formula.size())));
}
