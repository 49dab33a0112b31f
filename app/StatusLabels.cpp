#include "app/StatusLabels.h"

#include "helix/HelixFrame.h"
#include "hyperboloid/HyperboloidFrame.h"

#include <QCoreApplication>
#include <QLabel>
#include <QStatusBar>

namespace {

QLabel* addLabel(QStatusBar& bar, const char* name) {
    auto* label = new QLabel;
    label->setObjectName(name);
    bar.addPermanentWidget(label);
    return label;
}

QString steeredHelixText(const SoQtGeneralViewerFrame* active) {
    const auto* hyperboloid = qobject_cast<const HyperboloidFrame*>(active);
    const HelixFrame* steered = hyperboloid == nullptr ? nullptr : hyperboloid->GetPreviousHelix();
    return steered == nullptr ? QString()
                              : QCoreApplication::translate("MainWindow", "%1: %2")
                                    .arg(steered->windowTitle(), steered->viewerTitle());
}

} // namespace

StatusLabels::StatusLabels(QStatusBar& bar)
    : steeredHelix(addLabel(bar, "steeredHelixLabel"))
    , viewerTitle(addLabel(bar, "viewerTitleLabel")) {}

void StatusLabels::show(const SoQtGeneralViewerFrame* active) {
    steeredHelix->setText(steeredHelixText(active));
    viewerTitle->setText(active == nullptr ? QString() : active->viewerTitle());
}
