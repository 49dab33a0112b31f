#include "app/SurfaceConditionText.h"

#include <QCoreApplication>
#include <QStringList>

namespace {

using Cause = SurfaceCondition::Cause;
using Drawn = SurfaceCondition::Drawn;

QString translated(const char* text) {
    return QCoreApplication::translate("MainWindow", text);
}

QString drawnText(Drawn drawn) {
    switch (drawn) {
    case Drawn::unitHyperboloid:
        return translated("Unit hyperboloid, not the quadric: %1");
    case Drawn::rounded:
        return translated("Shaped by rounding, not the quadric: %1");
    case Drawn::point:
        return translated("Point, not the quadric: %1");
    case Drawn::nothing:
        return translated("No surface: %1");
    default:
        return {};
    }
}

QString causeText(Cause cause) {
    switch (cause) {
    case Cause::equalK1K2:
        return translated("K1 = K2");
    case Cause::zeroK13:
        return translated("K13 = 0");
    case Cause::zeroK23:
        return translated("K23 = 0");
    case Cause::zeroUHat:
        return translated("Û = 0");
    case Cause::zeroSigma:
        return translated("K1·K23·Û1 + K2·K13·Û2 + 2·K13·K23·Û3 = 0");
    case Cause::uHatOnThirdAxis:
        return translated("Û1 = Û2 = 0 (a cone)");
    default:
        return translated("K1·K23·Û1 ≈ K2·K13·Û2 (a cone)");
    }
}

} // namespace

QString SurfaceConditionText::of(const SurfaceCondition& condition) {
    if (condition.drawn == Drawn::quadric) {
        return {};
    }
    QStringList causes;
    for (const Cause cause : condition.causes) {
        causes << causeText(cause);
    }
    return drawnText(condition.drawn).arg(causes.join(translated(" and ")));
}

QString SurfaceConditionText::explanation(const SurfaceCondition& condition) {
    switch (condition.drawn) {
    case Drawn::unitHyperboloid:
        return translated("The hyperboloid with semi-axes 1 is drawn in the quadric's place.");
    case Drawn::rounded:
        return translated("The quadric is so nearly a cone that rounding decides what is drawn: "
                          "its size and its colours mean nothing.");
    case Drawn::point:
        return translated("The quadric is so nearly a cone that all its vertices are rounded to "
                          "its centre: their energies are undefined, their colour means nothing.");
    case Drawn::nothing:
        return translated("The vertices have no finite coordinates.");
    default:
        return {};
    }
}
