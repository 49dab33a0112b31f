#include "tests/support/RedrawCounter.h"
#include "tests/support/ViewDriver.h"
#include "viewer/SoQtGeneralViewer.h"
#include "viewer/SoQtGeneralViewerFrame.h"

#include <Inventor/actions/SoGLRenderAction.h>
#include <Inventor/nodes/SoCallback.h>
#include <Inventor/nodes/SoCoordinate3.h>
#include <Inventor/nodes/SoDirectionalLight.h>
#include <Inventor/nodes/SoFaceSet.h>
#include <Inventor/nodes/SoMaterial.h>
#include <Inventor/nodes/SoNormal.h>
#include <Inventor/nodes/SoNormalBinding.h>
#include <Inventor/nodes/SoSeparator.h>
#include <Inventor/nodes/SoTransform.h>
#include <QGLWidget>
#include <algorithm>
#include <array>
#include <cmath>
#include <gtest/gtest.h>

namespace {

constexpr double fullTurn = 2 * M_PI;
const SbColor quarterGrey(0.25F, 0.25F, 0.25F);

/** A square in front of the camera, without ambient light, under the viewer's headlight alone. */
class LitSquare : public SoQtGeneralViewerFrame {
public:
    LitSquare()
        : SoQtGeneralViewerFrame(true, nullptr) {
        initialize();
        show();
        EXPECT_TRUE(waitUntil([this] { return ViewDriver(*this).isDrawn(); }));
    }

    void Draw() override {
        auto* lights = new SoCallback;
        lights->setCallback(lightByUnitSeven, this);
        drawStyleSeparator->addChild(lights);
        material = new SoMaterial;
        material->ambientColor = SbColor(0, 0, 0);
        material->diffuseColor = quarterGrey;
        material->shininess = 0;
        drawStyleSeparator->addChild(material);
        turn = new SoTransform;
        drawStyleSeparator->addChild(turn);
        normals = new SoNormal;
        normals->vector = SbVec3f(0, 0, 1);
        drawStyleSeparator->addChild(normals);
        auto* binding = new SoNormalBinding;
        binding->value = SoNormalBinding::OVERALL;
        drawStyleSeparator->addChild(binding);
        drawStyleSeparator->addChild(createSquare());
    }

    /** Turns the square around the vertical axis, by a part of a full turn. */
    void turnBy(double share) {
        turn->rotation = SbRotation(SbVec3f(0, 1, 0), static_cast<float>(share * fullTurn));
    }

    /** The grey value, from 0 to 255, in the middle of the view. */
    int brightness() {
        RedrawCounter::settle();
        const QImage picture = ViewDriver(*this).grab();
        return picture.pixelColor(picture.rect().center()).green();
    }

    /** The brightness that the headlight gives to a surface with this normal. */
    double brightnessUnderHeadlight(SbVec3f normal, double shininess) const {
        normal.normalize();
        SbVec3f light = -getViewer()->getHeadlight()->direction.getValue();
        light.normalize();
        SbVec3f half = light + SbVec3f(0, 0, 1);
        half.normalize();
        constexpr double openGLShininess = 128;
        const double diffuse = std::max(0.0F, normal.dot(light));
        const double specular =
            normal.dot(half) > 0 ? std::pow(normal.dot(half), openGLShininess * shininess) : 0;
        return 255 * quarterGrey[0] * (diffuse + specular);
    }

    SoMaterial* material = nullptr;
    SoNormal* normals = nullptr;
    /** What the last of OpenGL's eight lights, which stays switched off, gives straight ahead. */
    struct OffLight {
        float ambient = 0;
        float diffuse = 0;
    };
    OffLight offLight;

private:
    static SoSeparator* createSquare() {
        auto* square = new SoSeparator;
        auto* corners = new SoCoordinate3;
        const std::array<SbVec3f, 4> points{SbVec3f(-1, -1, 0), SbVec3f(1, -1, 0), SbVec3f(1, 1, 0),
                                            SbVec3f(-1, 1, 0)};
        corners->point.setValues(0, static_cast<int>(points.size()), points.data());
        square->addChild(corners);
        square->addChild(new SoFaceSet);
        return square;
    }

    static void lightByUnitSeven(void* frame, SoAction* action) {
        if (!action->isOfType(SoGLRenderAction::getClassTypeId())) {
            return;
        }
        const OffLight& light = static_cast<LitSquare*>(frame)->offLight;
        const std::array<float, 4> straightAhead{0, 0, 1, 0};
        glDisable(GL_LIGHT7);
        setUnitSeven(GL_AMBIENT, light.ambient);
        setUnitSeven(GL_DIFFUSE, light.diffuse);
        glLightfv(GL_LIGHT7, GL_POSITION, straightAhead.data());
    }

    static void setUnitSeven(GLenum term, float strength) {
        const std::array<float, 4> color{strength, strength, strength, 1};
        glLightfv(GL_LIGHT7, term, color.data());
    }

    SoTransform* turn = nullptr;
};

/** Rounding of colours, antialiasing and the like. */
constexpr int smallDifference = 2;

} // namespace

TEST(Shading, HeadlightGivesDiffuseAndSpecularLightInTheColourOfTheSurface) {
    LitSquare square;
    for (const double share : {0.0, 0.05, 0.1, 1.0 / 6, -0.1, -1.0 / 6}) {
        for (const float shininess : {0.0F, 0.01F, 0.1F, 1.0F}) {
            SCOPED_TRACE(testing::Message() << share << " " << shininess);
            square.turnBy(share);
            square.material->shininess = shininess;
            const SbVec3f normal(static_cast<float>(std::sin(share * fullTurn)), 0,
                                 static_cast<float>(std::cos(share * fullTurn)));
            EXPECT_NEAR(square.brightness(), square.brightnessUnderHeadlight(normal, shininess),
                        smallDifference);
        }
    }
}

TEST(Shading, BacksAreLitLikeFronts) {
    LitSquare square;
    for (const double share : {0.0, 1.0 / 12, 1.0 / 6, -1.0 / 6}) {
        SCOPED_TRACE(share);
        square.turnBy(share);
        const int front = square.brightness();
        EXPECT_GT(front, 50);
        square.turnBy(share + 0.5);
        EXPECT_NEAR(square.brightness(), front, smallDifference);
    }
}

TEST(Shading, SurfaceAcrossTheLightHasNoHighlightEvenWithoutShininess) {
    LitSquare square;
    // At right angles to the light and to the eye, and so to what lies half way between them.
    SbVec3f across = square.getViewer()->getHeadlight()->direction.getValue();
    across = across.cross(SbVec3f(0, 0, 1));
    square.normals->vector = across;
    EXPECT_EQ(square.brightness(), 0);
    // The slightest lean towards the light, and the highlight is there in full.
    square.normals->vector = across + SbVec3f(0, 0, 0.01F);
    EXPECT_NEAR(square.brightness(), quarterGrey[0] * 255, smallDifference);
}

TEST(Shading, LightThatIsSwitchedOffStillCounts) {
    LitSquare square;
    square.turnBy(1.0 / 6);
    const int before = square.brightness();
    const auto more = [&](const LitSquare::OffLight& light) {
        square.offLight = light;
        square.material->touch();
        return square.brightness() - before;
    };
    const double grey = 255 * quarterGrey[0];
    EXPECT_NEAR(more({0.4F, 0}), 0.4 * grey, smallDifference);
    // Half its diffuse light falls on a square turned by 60 degrees.
    EXPECT_NEAR(more({0, 1}), 0.5 * grey, smallDifference);
    EXPECT_NEAR(more({0.3F, 0.4F}), (0.3 + 0.2) * grey, smallDifference);
}

TEST(Shading, SolidStyleShowsTheColourItself) {
    LitSquare square;
    square.toggleDrawStyle();
    EXPECT_NEAR(square.brightness(), quarterGrey[0] * 255, smallDifference);
    square.turnBy(1.0 / 6);
    EXPECT_NEAR(square.brightness(), quarterGrey[0] * 255, smallDifference);
    square.toggleDrawStyle();
    // Only the edges are left.
    EXPECT_EQ(square.brightness(), 0);
}
