#include "viewer/DocumentRoot.h"

#include <Inventor/actions/SoGLRenderAction.h>
#include <Inventor/elements/SoCacheElement.h>
#include <Inventor/elements/SoDepthBufferElement.h>
#include <Inventor/elements/SoGLCacheContextElement.h>
#include <Inventor/misc/SoChildList.h>
#include <Inventor/system/gl.h>
#include <utility>

namespace {

constexpr GLuint everyBit = ~0U;
/** What the stencil of a sample holds where something that comes before the surface is seen. */
constexpr GLint notTheSurface = 1;

void setDepthFunction(SoState* state, SoDepthBufferElement::DepthWriteFunction function) {
    SoDepthBufferElement::set(state, TRUE, TRUE, function, SbVec2f(0, 1));
}

} // namespace

void DocumentRoot::setSurfaceSource(const SoNode* surfaceChild, SurfaceSource source) {
    surface = surfaceChild;
    surfaceSource = std::move(source);
}

void DocumentRoot::GLRenderBelowPath(SoGLRenderAction* action) {
    SoState* state = action->getState();
    const int surfaceIndex = surfaceSource ? findChild(surface) : -1;
    // A display list would repeat what one frame has done, kept picture or not.
    if (surfaceIndex < 0 || SoCacheElement::anyOpen(state) ||
        !surfaceSource(*action, [&] { drawSurface(action, surfaceIndex); })) {
        SoSeparator::GLRenderBelowPath(action);
        return;
    }
    // Nor is a list begun around this frame: the next one may be drawn in another way.
    SoGLCacheContextElement::shouldAutoCache(state, SoGLCacheContextElement::DONT_AUTO_CACHE);
    drawAroundSurface(action, surfaceIndex);
}

void DocumentRoot::drawSurface(SoGLRenderAction* action, int surfaceIndex) {
    SoState* state = action->getState();
    state->push();
    for (int index = 0; index < surfaceIndex; ++index) {
        if (!isSeparator(index)) {
            getChildren()->traverse(action, index);
        }
    }
    getChildren()->traverse(action, surfaceIndex);
    state->pop();
}

void DocumentRoot::drawAroundSurface(SoGLRenderAction* action, int surfaceIndex) {
    SoState* state = action->getState();
    glClearStencil(0);
    glClear(GL_STENCIL_BUFFER_BIT);
    state->push();
    for (int index = 0; index < getNumChildren(); ++index) {
        if (index < surfaceIndex && isSeparator(index)) {
            drawAsIfBefore(action, index);
        } else if (index != surfaceIndex) {
            getChildren()->traverse(action, index);
        }
    }
    state->pop();
}

void DocumentRoot::drawAsIfBefore(SoGLRenderAction* action, int index) {
    SoState* state = action->getState();
    glEnable(GL_STENCIL_TEST);
    state->push();
    glStencilFunc(GL_ALWAYS, notTheSurface, everyBit);
    glStencilOp(GL_KEEP, GL_KEEP, GL_REPLACE);
    setDepthFunction(state, SoDepthBufferElement::LESS);
    getChildren()->traverse(action, index);

    glStencilFunc(GL_EQUAL, notTheSurface, everyBit);
    glStencilOp(GL_KEEP, GL_KEEP, GL_KEEP);
    setDepthFunction(state, SoDepthBufferElement::LEQUAL);
    getChildren()->traverse(action, index);
    state->pop();
    glDisable(GL_STENCIL_TEST);
}

bool DocumentRoot::isSeparator(int index) const {
    return getChild(index)->isOfType(SoSeparator::getClassTypeId()) != FALSE;
}
