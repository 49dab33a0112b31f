#include "viewer/SurfacePicture.h"

#include <Inventor/SoPath.h>
#include <Inventor/actions/SoGLRenderAction.h>
#include <Inventor/actions/SoSearchAction.h>
#include <Inventor/nodes/SoLight.h>
#include <Inventor/nodes/SoMaterial.h>
#include <Inventor/nodes/SoShape.h>
#include <algorithm>

namespace {

bool isTransparent(const SoMaterial& material) {
    const float* values = material.transparency.getValues(0);
    return std::any_of(values, values + material.transparency.getNum(),
                       [](float value) { return value > 0; });
}

bool hasTransparency(SoNode& scene) {
    SoSearchAction materials;
    materials.setType(SoMaterial::getClassTypeId());
    materials.setInterest(SoSearchAction::ALL);
    materials.apply(&scene);
    for (int i = 0; i < materials.getPaths().getLength(); ++i) {
        const SoNode* material = materials.getPaths()[i]->getTail();
        if (isTransparent(*static_cast<const SoMaterial*>(material))) {
            return true;
        }
    }
    return false;
}

bool has(const SoType& type, const SoNode& part) {
    SoSearchAction search;
    search.setType(type);
    search.apply(const_cast<SoNode*>(&part));
    return search.getPath() != nullptr;
}

/** Whether a copy of the surface shows what drawing it where it stands in the scene does. */
bool canBeCopied(const SoPath& root, const SoNode& surface) {
    // The shader sums the lights of all units, and a light stays in its unit behind its separator.
    return has(SoShape::getClassTypeId(), surface) && !hasTransparency(*root.getHead()) &&
           !has(SoLight::getClassTypeId(), *root.getTail());
}

} // namespace

bool SurfacePicture::show(SoGLRenderAction& action, const SoNode& surface,
                          const std::function<void()>& drawSurface) {
    const SurfaceSight now(action, surface);
    if (now != sight) {
        forget();
        sight = now;
        return false;
    }
    if (isRefused || !canBeCopied(*action.getCurPath(), surface)) {
        return false;
    }
    if (picture.isTaken()) {
        picture.putBack();
        return true;
    }
    const SbVec2s& size = sight.windowSize();
    if (!picture.prepare(QSize(size[0], size[1]))) {
        isRefused = true;
        return false;
    }
    drawSurface();
    isRefused = !picture.take();
    return true;
}

void SurfacePicture::forget() {
    sight = SurfaceSight();
    picture.forget();
    isRefused = false;
}
