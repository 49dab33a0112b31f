#include "viewer/ShaderPrograms.h"

#include "scene/SceneNodes.h"

#include <Inventor/nodes/SoFragmentShader.h>
#include <Inventor/nodes/SoShaderProgram.h>
#include <Inventor/nodes/SoVertexShader.h>
#include <QResource>
#include <gtest/gtest.h>
#include <string>

namespace {

std::string resource(const char* path) {
    const QResource entry{QString(path)};
    return {reinterpret_cast<const char*>(entry.data()), static_cast<std::size_t>(entry.size())};
}

/** The source of one of a program's shaders, which must be GLSL of a kind. */
template <typename Shader>
std::string source(const SoShaderProgram& program, int position) {
    const auto* shader = dynamic_cast<Shader*>(program.shaderObject[position]);
    if (shader == nullptr) {
        ADD_FAILURE() << "another shader at " << position;
        return "";
    }
    EXPECT_EQ(shader->sourceType.getValue(), SoShaderObject::GLSL_PROGRAM);
    return shader->sourceProgram.getValue().getString();
}

void expectSources(SoShaderProgram* created, const char* vertexPath, const char* fragmentPath) {
    const NodePointer<SoShaderProgram> program(created);
    ASSERT_EQ(program->shaderObject.getNum(), 2);
    EXPECT_FALSE(resource(vertexPath).empty());
    EXPECT_EQ(source<SoVertexShader>(*program, 0), resource(vertexPath));
    EXPECT_FALSE(resource(fragmentPath).empty());
    EXPECT_EQ(source<SoFragmentShader>(*program, 1), resource(fragmentPath));
}

} // namespace

TEST(ShaderPrograms, HoldTheExactTextsOfTheResourcesAndAreSilent) {
    testing::internal::CaptureStderr();
    expectSources(ShaderPrograms::createPhong(), ":/phong.vert.glsl", ":/phong.frag.glsl");
    expectSources(ShaderPrograms::createSolid(), ":/solid.vert.glsl", ":/solid.frag.glsl");
    expectSources(ShaderPrograms::create(":/solid.vert.glsl", ":/phong.frag.glsl"),
                  ":/solid.vert.glsl", ":/phong.frag.glsl");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST(ShaderPrograms, PathThatIsNotThereIsToldInOneLineAndItsSourceIsEmpty) {
    testing::internal::CaptureStderr();
    const NodePointer<SoShaderProgram> program(
        ShaderPrograms::create(":/phong.vert.glsl", ":/absent.frag.glsl"));
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "There is no resource :/absent.frag.glsl\n");
    EXPECT_EQ(source<SoVertexShader>(*program, 0), resource(":/phong.vert.glsl"));
    EXPECT_EQ(source<SoFragmentShader>(*program, 1), "");
}
