#include "app/StatusLabels.h"

#include "app/ElidedLabel.h"
#include "app/MessageRoom.h"
#include "app/RefusedParametersText.h"
#include "app/SteeringText.h"
#include "app/SurfaceConditionText.h"
#include "helix/HelixFrame.h"
#include "hyperboloid/HyperboloidFrame.h"

#include <QCoreApplication>
#include <QLabel>
#include <QStatusBar>

namespace {

// What can always be read: "Unit hyperboloid", the first refused numbers, "Viewer".
constexpr int conditionLetters = 16;
constexpr int refusalLetters = 30;
constexpr int steeringLetters = 6;

/** Names a label and adds it to the bar. With a stretch it gets what the others leave over. */
template <typename Label>
Label* add(Label* label, const char* name, QStatusBar& bar, int stretch = 0) {
    label->setObjectName(name);
    bar.addPermanentWidget(label, stretch);
    return label;
}

QString steeredHelixText(const SoQtGeneralViewerFrame* active) {
    const auto* hyperboloid = qobject_cast<const HyperboloidFrame*>(active);
    const HelixFrame* steered = hyperboloid == nullptr ? nullptr : hyperboloid->GetPreviousHelix();
    return steered == nullptr ? QString()
                              : QCoreApplication::translate("MainWindow", "%1: %2")
                                    .arg(steered->windowTitle(), steered->pointText());
}

QString helixPointText(const SoQtGeneralViewerFrame* active) {
    const auto* helix = qobject_cast<const HelixFrame*>(active);
    return helix == nullptr || helix->pointText() == helix->viewerTitle() ? QString()
                                                                          : helix->pointText();
}

} // namespace

StatusLabels::StatusLabels(QStatusBar& bar)
    : surfaceCondition(add(new ElidedLabel(conditionLetters), "surfaceConditionLabel", bar))
    , refusedParameters(add(new ElidedLabel(refusalLetters), "refusedParametersLabel", bar))
    , steering(add(new ElidedLabel(steeringLetters), "steeringLabel", bar, 1))
    , steeredHelix(add(new QLabel, "steeredHelixLabel", bar))
    , helixPoint(add(new QLabel, "helixPointLabel", bar))
    , viewerTitle(add(new QLabel, "viewerTitleLabel", bar)) {
    new MessageRoom(bar);
    showSurfaces({});
    clearRefused();
}

void StatusLabels::show(const SoQtGeneralViewerFrame* active) {
    steeredHelix->setText(steeredHelixText(active));
    helixPoint->setText(helixPointText(active));
    viewerTitle->setText(active == nullptr ? QString() : active->viewerTitle());
}

void StatusLabels::showSurfaces(const std::vector<HyperboloidFrame*>& surfaces) {
    const SurfaceCondition condition =
        surfaces.empty() ? SurfaceCondition() : surfaces.front()->surfaceCondition();
    const QString conditionText = SurfaceConditionText::of(condition);
    surfaceCondition->showText(conditionText,
                               {conditionText, SurfaceConditionText::explanation(condition)});
    const QStringList sentences = SteeringText::of(surfaces);
    steering->showText(sentences.join(" · "), sentences);
    makeRoomForRefusal();
}

void StatusLabels::showRefused(const HyperboloidParameters& refused,
                               const HyperboloidParameters& kept) {
    refusedParameters->showText(RefusedParametersText::of(refused, kept));
    makeRoomForRefusal();
}

void StatusLabels::clearRefused() {
    refusedParameters->showText({});
    makeRoomForRefusal();
}

void StatusLabels::makeRoomForRefusal() {
    const bool isRefusing = !refusedParameters->text().isEmpty();
    steering->setVisible(!steering->text().isEmpty() && !isRefusing);
    for (QLabel* label : {steeredHelix, helixPoint, viewerTitle}) {
        label->setVisible(!isRefusing);
    }
}
