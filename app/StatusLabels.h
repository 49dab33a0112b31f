#pragma once

#include <QString>
#include <vector>

struct HyperboloidParameters;
class ElidedLabel;
class HyperboloidFrame;
class QLabel;
class QStatusBar;
class SoQtGeneralViewerFrame;

/**
 * The permanent labels of the status bar, from the left: "surfaceConditionLabel",
 * "refusedParametersLabel" and "steeringLabel", which give way where there is too little room, then
 * "steeredHelixLabel", "helixPointLabel" and "viewerTitleLabel".
 */
class StatusLabels {
public:
    /** Adds the labels, empty, to a status bar, which owns them. */
    explicit StatusLabels(QStatusBar& bar);

    /**
     * Shows the viewer title of the active frame; beside a hyperboloid the window title and the U
     * coordinates of the helix that it steers, beside a helix its U coordinates while its viewer
     * title says something else.
     *
     * @param active the active frame, or null
     */
    void show(const SoQtGeneralViewerFrame* active);

    /**
     * Shows which helix each surface steers, and what is drawn where it is not the quadric of the
     * parameters.
     *
     * @param surfaces the hyperboloid frames, which share their parameters
     */
    void showSurfaces(const std::vector<HyperboloidFrame*>& surfaces);

    /**
     * Shows why values were refused, and the numbers themselves, until clearRefused(); meanwhile
     * nothing is said of the views: none can be clicked while they are asked for again.
     *
     * @param kept the values that stay in force
     */
    void showRefused(const HyperboloidParameters& refused, const HyperboloidParameters& kept);
    void clearRefused();

private:
    void makeRoomForRefusal();

    ElidedLabel* surfaceCondition;
    ElidedLabel* refusedParameters;
    ElidedLabel* steering;
    QLabel* steeredHelix;
    QLabel* helixPoint;
    QLabel* viewerTitle;
};
