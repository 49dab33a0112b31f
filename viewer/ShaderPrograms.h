#pragma once

class SoShaderProgram;

/** The GLSL programs of the scenes, from the texts that the program carries as resources. */
namespace ShaderPrograms {

/**
 * A new program of a vertex and a fragment shader, unreferenced.
 *
 * The sources are the exact texts of two resources, given by their paths (":/solid.vert.glsl"). A
 * path that is not there is told on standard error; the source is then empty and does not compile.
 */
SoShaderProgram* create(const char* vertexPath, const char* fragmentPath);

/** A new program that lights every pixel, in the colours of the vertices; unreferenced. */
SoShaderProgram* createPhong();

/** A new program that shows the colours of the vertices unlit; unreferenced. */
SoShaderProgram* createSolid();

} // namespace ShaderPrograms
