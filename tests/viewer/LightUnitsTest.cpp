#include "viewer/LightUnits.h"

#include <Inventor/system/gl.h>
#include <QGLWidget>
#include <QTest>
#include <array>
#include <gtest/gtest.h>
#include <vector>

namespace {

constexpr std::array<GLenum, 8> units{GL_LIGHT0, GL_LIGHT1, GL_LIGHT2, GL_LIGHT3,
                                      GL_LIGHT4, GL_LIGHT5, GL_LIGHT6, GL_LIGHT7};
constexpr std::array<GLenum, 4> parts{GL_AMBIENT, GL_DIFFUSE, GL_SPECULAR, GL_POSITION};

/** Every part of every unit. */
using Light = std::vector<std::array<float, 4>>;

/** Light that is another one in every part of every unit; of directions, like a headlight. */
Light lightFrom(float first) {
    Light light;
    for (std::size_t unit = 0; unit < units.size(); ++unit) {
        for (const GLenum part : parts) {
            const float value = first + 0.017F * static_cast<float>(light.size());
            const float last = part == GL_POSITION ? 0 : 1 - value;
            light.push_back({value, value / 3, value * value, last});
        }
    }
    return light;
}

void set(const Light& light) {
    auto values = light.begin();
    for (const GLenum unit : units) {
        for (const GLenum part : parts) {
            glLightfv(unit, part, (values++)->data());
        }
    }
}

Light heldLight() {
    Light light;
    for (const GLenum unit : units) {
        for (const GLenum part : parts) {
            glGetLightfv(unit, part, light.emplace_back().data());
        }
    }
    return light;
}

/** What is not the light: which units are switched on, and the transformation. */
std::vector<float> surroundings() {
    std::vector<float> values(16);
    glGetFloatv(GL_MODELVIEW_MATRIX, values.data());
    for (const GLenum unit : units) {
        values.push_back(glIsEnabled(unit));
    }
    return values;
}

} // namespace

TEST(LightUnitsTest, AreSetToWhatTheyHeldUnderWhateverTransformation) {
    QGLWidget window;
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    window.makeCurrent();
    const Light light = lightFrom(0.11F);
    set(light);
    const LightUnits read = LightUnits::ofCurrentContext();
    set(lightFrom(0.29F));
    glEnable(GL_LIGHT3);
    glRotatef(40, 1, 2, 3);
    const std::vector<float> before = surroundings();
    read.apply();
    EXPECT_EQ(heldLight(), light);
    EXPECT_EQ(surroundings(), before);
}
