#include "viewer/SteadyClipping.h"

#include <Inventor/Qt/viewers/SoQtViewer.h>

namespace {

/** What rounding may move a plane, as a share of their distance. */
constexpr float rounding = 1e-5F;

/**
 * How near the near plane of a perspective camera may come, as the library takes it: it gives its
 * own 0.6 again, which is where every viewer begins.
 */
constexpr float nearPlaneShare = 0.625F;

} // namespace

void SteadyClipping::install(SoQtViewer& viewer) {
    const auto steady = [](void* clipping, const SbVec2f& wanted) {
        return static_cast<SteadyClipping*>(clipping)->planesFor(wanted);
    };
    viewer.setAutoClippingStrategy(SoQtViewer::VARIABLE_NEAR_PLANE, nearPlaneShare, steady, this);
}

SbVec2f SteadyClipping::planesFor(const SbVec2f& wanted) {
    if ((planes - wanted).length() > rounding * wanted.length()) {
        planes = wanted;
    }
    return planes;
}
