#include "viewer/ShaderPrograms.h"

#include "resources/TorvaneResources.h"

#include <Inventor/nodes/SoFragmentShader.h>
#include <Inventor/nodes/SoShaderProgram.h>
#include <Inventor/nodes/SoVertexShader.h>
#include <QResource>
#include <iostream>

namespace {

/** The text of a resource with its exact length: resource data carries no terminating zero. */
QByteArray resourceText(const char* path) {
    registerTorvaneResources();
    const QResource resource{QString(path)};
    if (!resource.isValid()) {
        std::cerr << "There is no resource " << path << "\n";
    }
    return {reinterpret_cast<const char*>(resource.data()), static_cast<int>(resource.size())};
}

void setSource(SoShaderObject& shader, const char* path) {
    shader.sourceType = SoShaderObject::GLSL_PROGRAM;
    shader.sourceProgram = resourceText(path).constData();
}

} // namespace

SoShaderProgram* ShaderPrograms::create(const char* vertexPath, const char* fragmentPath) {
    auto* vertexShader = new SoVertexShader;
    setSource(*vertexShader, vertexPath);
    auto* fragmentShader = new SoFragmentShader;
    setSource(*fragmentShader, fragmentPath);
    auto* program = new SoShaderProgram;
    program->shaderObject.set1Value(0, vertexShader);
    program->shaderObject.set1Value(1, fragmentShader);
    return program;
}

SoShaderProgram* ShaderPrograms::createPhong() {
    return create(":/phong.vert.glsl", ":/phong.frag.glsl");
}

SoShaderProgram* ShaderPrograms::createSolid() {
    return create(":/solid.vert.glsl", ":/solid.frag.glsl");
}
