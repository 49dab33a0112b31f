#include "tests/viewer/ShownFrame.h"

#include <Inventor/nodes/SoDirectionalLight.h>
#include <Inventor/nodes/SoEnvironment.h>
#include <Inventor/nodes/SoFragmentShader.h>
#include <Inventor/nodes/SoVertexShader.h>
#include <array>
#include <cstddef>
#include <cstring>
#include <gtest/gtest.h>

namespace {

/**
 * The place of a virtual operation in the table of its class. In the Itanium ABI a pointer to it
 * begins with the bytes before that place, on some processors and one more.
 */
template <typename Operation>
std::ptrdiff_t slotOf(Operation operation) {
    std::array<std::ptrdiff_t, 2> content{};
    static_assert(sizeof(operation) == sizeof(content));
    std::memcpy(content.data(), &operation, sizeof(content));
    return content[0] / static_cast<std::ptrdiff_t>(sizeof(void*));
}

} // namespace

// Who is compiled against the frame calls its operations by their places.
TEST(GeneralViewerFrame, VirtualOperationsFollowOneAnotherInTheirOrder) {
    using Frame = SoQtGeneralViewerFrame;
    const std::vector<std::ptrdiff_t> following{
        slotOf(&Frame::processSoEvent), slotOf(&Frame::initialize), slotOf(&Frame::Draw),
        slotOf(&Frame::reDraw), slotOf(&Frame::toggleDrawStyle)};
    std::ptrdiff_t expected = slotOf(&Frame::SetEventHandlers);
    for (const std::ptrdiff_t slot : following) {
        EXPECT_EQ(slot, ++expected);
    }
}

TEST(GeneralViewerFrame, BaseOperationsDoNothing) {
    SoQtGeneralViewerFrame frame(true, nullptr);
    frame.initialize();
    const int children = frame.getSceneRoot()->getNumChildren();
    const SoKeyboardEvent event;
    EXPECT_EQ(frame.processSoEvent(&event), 0);
    frame.SetEventHandlers();
    frame.Draw();
    frame.reDraw();
    EXPECT_EQ(frame.getSceneRoot()->getNumChildren(), children);
}

TEST(GeneralViewerFrame, MissingShaderResourceIsEmptyText) {
    ShownFrame frame;
    const NodePointer<SoShaderProgram> program(
        frame.createShaderProgram(":/absent.vert.glsl", ":/absent.frag.glsl"));
    auto* shader = dynamic_cast<SoVertexShader*>(program->shaderObject[0]);
    ASSERT_NE(shader, nullptr);
    EXPECT_EQ(shader->sourceProgram.getValue().getLength(), 0);
}

TEST(GeneralViewerFrame, ShadersOfAProgramAreThoseOfItsPaths) {
    ShownFrame frame;
    const NodePointer<SoShaderProgram> program(
        frame.createShaderProgram(":/solid.vert.glsl", ":/phong.frag.glsl"));
    ASSERT_EQ(program->shaderObject.getNum(), 2);
    const auto* vertex = dynamic_cast<SoVertexShader*>(program->shaderObject[0]);
    const auto* fragment = dynamic_cast<SoFragmentShader*>(program->shaderObject[1]);
    ASSERT_NE(vertex, nullptr);
    ASSERT_NE(fragment, nullptr);
    EXPECT_EQ(vertex->sourceProgram.getValue().getLength(), 426) << "the length of the solid one";
    EXPECT_EQ(fragment->sourceProgram.getValue().getLength(), 1813) << "that of the Phong one";
}

TEST(GeneralViewerFrame, RemovesADirectChildByName) {
    ShownFrame frame;
    const NodePointer<SoSeparator> parent(new SoSeparator);
    parent->addChild(SceneNodes::createSeparator("first"));
    parent->addChild(SceneNodes::createSeparator("second"));
    frame.removeSceneChild("first", parent.get());
    ASSERT_EQ(parent->getNumChildren(), 1);
    EXPECT_EQ(parent->getChild(0)->getName(), SbName("second"));
}

TEST(GeneralViewerFrame, RemovesOnlyTheFirstOfSeveralChildrenOfOneName) {
    ShownFrame frame;
    const NodePointer<SoSeparator> parent(new SoSeparator);
    parent->addChild(SceneNodes::createSeparator("twice"));
    SoSeparator* second = SceneNodes::createSeparator("twice");
    parent->addChild(second);
    frame.removeSceneChild("twice", parent.get());
    ASSERT_EQ(parent->getNumChildren(), 1);
    EXPECT_EQ(parent->getChild(0), second);
}

TEST(GeneralViewerFrame, RemovingLeavesAChildAloneThatAGrandchildOfItsNameComesBefore) {
    ShownFrame frame;
    const NodePointer<SoSeparator> parent(new SoSeparator);
    SoSeparator* middle = SceneNodes::createSeparator("middle");
    middle->addChild(SceneNodes::createSeparator("twice"));
    parent->addChild(middle);
    parent->addChild(SceneNodes::createSeparator("twice"));
    frame.removeSceneChild("twice", parent.get());
    EXPECT_EQ(parent->getNumChildren(), 2);
    EXPECT_EQ(middle->getNumChildren(), 1);
}

TEST(GeneralViewerFrame, RemovingLeavesGrandchildrenTheParentAndUnknownNamesAlone) {
    ShownFrame frame;
    const NodePointer<SoSeparator> parent(SceneNodes::createSeparator("parent"));
    SoSeparator* middle = SceneNodes::createSeparator("middle");
    middle->addChild(SceneNodes::createSeparator("deep"));
    parent->addChild(middle);
    for (const char* name : {"deep", "parent", "unknown"}) {
        frame.removeSceneChild(name, parent.get());
        EXPECT_EQ(parent->getNumChildren(), 1);
        EXPECT_EQ(middle->getNumChildren(), 1);
    }
}

TEST(GeneralViewerFrame, MakesWhiteLights) {
    ShownFrame frame;
    const NodePointer<SoDirectionalLight> light(
        frame.createDirectionalLight(0.5F, SbVec3f(1, 2, 3)));
    EXPECT_EQ(light->intensity.getValue(), 0.5F);
    EXPECT_EQ(light->direction.getValue(), SbVec3f(1, 2, 3));
    EXPECT_EQ(light->color.getValue(), SbColor(1, 1, 1));
}

TEST(GeneralViewerFrame, MakesWhiteSurroundings) {
    ShownFrame frame;
    const NodePointer<SoEnvironment> environment(frame.createEnvironment(0.37F));
    EXPECT_EQ(environment->ambientIntensity.getValue(), 0.37F);
    EXPECT_EQ(environment->ambientColor.getValue(), SbColor(1, 1, 1));
}

TEST(GeneralViewerFrame, BackgroundGoesBehindWhatTheSceneHas) {
    ShownFrame frame;
    frame.initialize();
    frame.setBackground();
    ASSERT_EQ(frame.getSceneRoot()->getNumChildren(), 5);
    EXPECT_EQ(frame.getSceneRoot()->getChild(4)->getName(), SbName("Background"));
}
