#include "viewer/SurfacelessContexts.h"

#include <Inventor/C/glue/gl.h>
#include <Inventor/system/gl.h>
#include <array>
#include <future>
#include <gtest/gtest.h>
#include <map>
#include <thread>

namespace {

/** A context as the scene library makes one for a picture off the screen. */
class SurfacelessContextsTest : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_EQ(SurfacelessContexts::install(), "");
        context = cc_glglue_context_create_offscreen(61, 47);
        ASSERT_NE(context, nullptr);
    }
    void TearDown() override { cc_glglue_context_destruct(context); }

    bool makeCurrent() const { return cc_glglue_context_make_current(context) != FALSE; }
    void reinstatePrevious() const { cc_glglue_context_reinstate_previous(context); }

private:
    void* context = nullptr;
};

} // namespace

TEST_F(SurfacelessContextsTest, HaveRoomForColourDepthAndStencil) {
    ASSERT_TRUE(makeCurrent());
    const std::map<GLenum, int> expected{
        {GL_RED_BITS, 8},   {GL_GREEN_BITS, 8},  {GL_BLUE_BITS, 8},
        {GL_ALPHA_BITS, 8}, {GL_DEPTH_BITS, 24}, {GL_STENCIL_BITS, 8},
    };
    for (const auto& [name, bits] : expected) {
        GLint found = 0;
        glGetIntegerv(name, &found);
        EXPECT_EQ(found, bits) << std::hex << name;
    }
    reinstatePrevious();
}

TEST_F(SurfacelessContextsTest, GiveWayAgainToTheOneThatWasCurrentBefore) {
    ASSERT_TRUE(makeCurrent());
    const std::array<GLfloat, 4> color{0.25F, 0.5F, 0.75F, 1};
    glClearColor(color[0], color[1], color[2], color[3]);
    void* inner = cc_glglue_context_create_offscreen(37, 29);
    ASSERT_NE(inner, nullptr);
    EXPECT_TRUE(cc_glglue_context_make_current(inner));
    cc_glglue_context_reinstate_previous(inner);
    cc_glglue_context_destruct(inner);
    std::array<GLfloat, 4> found{};
    glGetFloatv(GL_COLOR_CLEAR_VALUE, found.data());
    EXPECT_EQ(found, color);
    reinstatePrevious();
}

TEST_F(SurfacelessContextsTest, AreRefusedWhileAnotherThreadDrawsInThem) {
    std::promise<bool> taken;
    std::promise<void> free;
    std::thread other([&] {
        taken.set_value(makeCurrent());
        free.get_future().wait();
        reinstatePrevious();
    });
    EXPECT_TRUE(taken.get_future().get());
    EXPECT_FALSE(makeCurrent());
    free.set_value();
    other.join();
    EXPECT_TRUE(makeCurrent());
    reinstatePrevious();
}
