#pragma once

#include <QtGlobal>

/**
 * Makes the pictures and shaders readable under their paths (":/phong.vert.glsl").
 *
 * They are so from before main on in every program that contains this call: it is what ties the
 * collection into a program. Whoever reads a path makes the call; making it again does nothing.
 */
inline void registerTorvaneResources() {
    Q_INIT_RESOURCE(Torvane);
}
