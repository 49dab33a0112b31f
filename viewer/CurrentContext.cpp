#include "viewer/CurrentContext.h"

#include <QOpenGLContext>

CurrentContext::CurrentContext()
    : context(QOpenGLContext::currentContext())
    , surface(context == nullptr ? nullptr : context->surface()) {}

void CurrentContext::reinstate(QOpenGLContext& replacing) const {
    if (context != nullptr) {
        context->makeCurrent(surface);
    } else {
        replacing.doneCurrent();
    }
}
