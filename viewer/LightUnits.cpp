#include "viewer/LightUnits.h"

#include <Inventor/system/gl.h>

namespace {

GLenum nameOf(std::size_t unit) {
    return GL_LIGHT0 + static_cast<GLenum>(unit);
}

} // namespace

LightUnits LightUnits::ofCurrentContext() {
    LightUnits read;
    for (std::size_t i = 0; i < unitCount; ++i) {
        Unit& unit = read.units[i];
        glGetLightfv(nameOf(i), GL_AMBIENT, unit.ambient.data());
        glGetLightfv(nameOf(i), GL_DIFFUSE, unit.diffuse.data());
        glGetLightfv(nameOf(i), GL_SPECULAR, unit.specular.data());
        glGetLightfv(nameOf(i), GL_POSITION, unit.position.data());
    }
    return read;
}

void LightUnits::apply() const {
    // OpenGL transforms a position when it is set.
    glMatrixMode(GL_MODELVIEW);
    glPushMatrix();
    glLoadIdentity();
    for (std::size_t i = 0; i < unitCount; ++i) {
        const Unit& unit = units[i];
        glLightfv(nameOf(i), GL_AMBIENT, unit.ambient.data());
        glLightfv(nameOf(i), GL_DIFFUSE, unit.diffuse.data());
        glLightfv(nameOf(i), GL_SPECULAR, unit.specular.data());
        glLightfv(nameOf(i), GL_POSITION, unit.position.data());
    }
    glPopMatrix();
}
