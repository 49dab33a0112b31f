#include "viewer/SurfacePicture.h"

#include <Inventor/SoFullPath.h>
#include <Inventor/actions/SoGLRenderAction.h>
#include <Inventor/actions/SoSearchAction.h>
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
        const SoNode* material = static_cast<SoFullPath*>(materials.getPaths()[i])->getTail();
        if (isTransparent(*static_cast<const SoMaterial*>(material))) {
            return true;
        }
    }
    return false;
}

bool hasShape(const SoNode& surface) {
    SoSearchAction shapes;
    shapes.setType(SoShape::getClassTypeId());
    shapes.apply(const_cast<SoNode*>(&surface));
    return shapes.getPath() != nullptr;
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
    if (isRefused || hasTransparency(*action.getCurPath()->getHead()) || !hasShape(surface)) {
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
