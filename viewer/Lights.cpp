#include "viewer/Lights.h"

#include <Inventor/nodes/SoDirectionalLight.h>
#include <Inventor/nodes/SoEnvironment.h>

SoDirectionalLight* Lights::createDirectionalLight(float intensity, const SbVec3f& direction) {
    auto* light = new SoDirectionalLight;
    light->direction = direction;
    light->intensity = intensity;
    light->color.setValue(1, 1, 1);
    return light;
}

SoDirectionalLight* Lights::createHeadlight() {
    return createDirectionalLight(1, SbVec3f(1, -1, -10));
}

SoEnvironment* Lights::createEnvironment(float ambient) {
    auto* environment = new SoEnvironment;
    environment->ambientIntensity = ambient;
    environment->ambientColor.setValue(1, 1, 1);
    return environment;
}
