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
        return translated("Unit hyperboloid drawn, not the quadric: %1");
    case Drawn::rounded:
        return translated("Shape left by rounding, not the quadric; its size and colours mean "
                          "nothing: %1");
    case Drawn::point:
        return translated("Single point drawn, not the quadric; dark, as its energies are "
                          "undefined: %1");
    case Drawn::nothing:
        return translated("No surface can be drawn: %1");
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
        return translated("the quadric is a cone (Û1 = Û2 = 0)");
    default:
        return translated("the quadric is all but a cone (K1·K23·Û1 and K2·K13·Û2 are the same up "
                          "to rounding)");
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
