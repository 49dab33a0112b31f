#pragma once

class QOpenGLContext;
class QSurface;

/** The OpenGL context that is current now, to be made current again. */
class CurrentContext {
public:
    CurrentContext();

    /** Makes it current again; `replacing` is released if there was none. */
    void reinstate(QOpenGLContext& replacing) const;

private:
    QOpenGLContext* context;
    QSurface* surface;
};
