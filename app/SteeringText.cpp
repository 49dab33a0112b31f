#include "app/SteeringText.h"

#include "helix/HelixFrame.h"
#include "hyperboloid/HyperboloidFrame.h"

#include <QCoreApplication>
#include <algorithm>

namespace {

/** Surfaces that steer the same helix, or none. */
struct Group {
    const HelixFrame* helix;
    QStringList surfaces;
};

QString translated(const char* text) {
    return QCoreApplication::translate("MainWindow", text);
}

/** For example "Viewer 2 (U)". */
QString nameOf(const HyperboloidFrame& surface) {
    const QString letter = QStringList{"U", "X", "M"}.at(surface.WichSpace());
    return translated("%1 (%2)").arg(surface.windowTitle(), letter);
}

/** In the order of the surfaces, but first those that steer nothing: the end may find no room. */
std::vector<Group> groupsOf(const std::vector<HyperboloidFrame*>& surfaces) {
    std::vector<Group> groups;
    for (const HyperboloidFrame* surface : surfaces) {
        const HelixFrame* helix = surface->GetPreviousHelix();
        auto group = std::find_if(groups.begin(), groups.end(),
                                  [&](const Group& one) { return one.helix == helix; });
        if (group == groups.end()) {
            group = groups.insert(group, {helix, {}});
        }
        group->surfaces << nameOf(*surface);
    }
    std::stable_partition(groups.begin(), groups.end(),
                          [](const Group& group) { return group.helix == nullptr; });
    return groups;
}

QString sentence(const Group& group) {
    const bool isOne = group.surfaces.size() == 1;
    const QString names = group.surfaces.join(", ");
    if (group.helix != nullptr) {
        return translated(isOne ? "%1 steers %2" : "%1 steer %2")
            .arg(names, group.helix->windowTitle());
    }
    return translated(isOne ? "%1 steers no helix: activate a helix, then this view"
                            : "%1 steer no helix: activate a helix, then one of these views")
        .arg(names);
}

} // namespace

QStringList SteeringText::of(const std::vector<HyperboloidFrame*>& surfaces) {
    QStringList sentences;
    for (const Group& group : groupsOf(surfaces)) {
        sentences << sentence(group);
    }
    return sentences;
}
