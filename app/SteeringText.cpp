#include "app/SteeringText.h"

#include "helix/HelixFrame.h"
#include "hyperboloid/HyperboloidFrame.h"

#include <QCoreApplication>
#include <algorithm>

namespace {

QString translated(const char* text) {
    return QCoreApplication::translate("MainWindow", text);
}

QString letterOf(int space) {
    return QStringList{"U", "X", "M"}.at(space);
}

/** For example "Viewer 2 (U) steers Viewer 5". */
QString sentence(const HyperboloidFrame& surface) {
    const HelixFrame* helix = surface.GetPreviousHelix();
    return translated("%1 (%2) steers %3")
        .arg(surface.windowTitle(), letterOf(surface.WichSpace()),
             helix == nullptr ? translated("no helix") : helix->windowTitle());
}

bool steersNone(const HyperboloidFrame* surface) {
    return surface->GetPreviousHelix() == nullptr;
}

QString advice() {
    return translated(": activate a helix, then this view");
}

} // namespace

QString SteeringText::of(const std::vector<HyperboloidFrame*>& surfaces) {
    QStringList sentences;
    for (const HyperboloidFrame* surface : surfaces) {
        sentences << sentence(*surface);
    }
    // Once: the advice is the same for all that steer none.
    const auto last = std::find_if(surfaces.rbegin(), surfaces.rend(), steersNone);
    if (last != surfaces.rend()) {
        sentences[static_cast<int>(surfaces.rend() - last) - 1] += advice();
    }
    return sentences.join(" · ");
}

QStringList SteeringText::details(const std::vector<HyperboloidFrame*>& surfaces) {
    QStringList lines;
    for (const HyperboloidFrame* surface : surfaces) {
        lines << sentence(*surface) + (steersNone(surface) ? advice() : QString());
    }
    return lines;
}
