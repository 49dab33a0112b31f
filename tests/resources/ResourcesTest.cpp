#include "resources/TorvaneResources.h"

#include <QDir>
#include <QImage>
#include <QRegularExpression>
#include <QResource>
#include <QSet>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace {

std::string bytesOf(const char* path) {
    const QResource resource{QString(path)};
    return {reinterpret_cast<const char*>(resource.data()),
            static_cast<std::size_t>(resource.size())};
}

const char* const shaders[] = {":/phong.vert.glsl", ":/phong.frag.glsl", ":/solid.vert.glsl",
                               ":/solid.frag.glsl"};

/** Expects that parts of a text stand in it one after the other. */
void expectInOrder(const char* path, const std::vector<std::string>& parts) {
    const std::string text = bytesOf(path);
    std::size_t position = 0;
    for (const std::string& part : parts) {
        position = text.find(part, position);
        ASSERT_NE(position, std::string::npos) << path << " lacks, or has elsewhere: " << part;
        position += part.size();
    }
}

/** What a text does: without its comments, and with one blank for any number. */
QString statementsOf(const char* path) {
    static const QRegularExpression comment(R"(/\*.*?\*/|//[^\n]*)",
                                            QRegularExpression::DotMatchesEverythingOption);
    return QString::fromStdString(bytesOf(path)).remove(comment).simplified();
}

struct Picture {
    const char* path;
    int width;
    int height;
    unsigned char colorType;
};

constexpr unsigned char palette = 3;
constexpr unsigned char trueColorWithAlpha = 6;
const Picture pictures[] = {{":/images/splash.png", 400, 343, trueColorWithAlpha},
                            {":/images/err1.png", 132, 42, palette},
                            {":/images/err2.png", 101, 17, palette}};

} // namespace

// First of all: nothing has asked for the registration yet, but the call below, which ties the
// collection into this program.
TEST(Resources, AreThereBeforeMainAndStayTheSameWhenAskedForAgain) {
    const std::string before = bytesOf(shaders[0]);
    EXPECT_FALSE(before.empty());
    const QStringList files = QDir(":/").entryList(QDir::Files);
    registerTorvaneResources();
    EXPECT_EQ(bytesOf(shaders[0]), before);
    EXPECT_EQ(QDir(":/").entryList(QDir::Files), files);
}

TEST(Resources, HoldExactlyTheShadersAndThePictures) {
    // Qt's own libraries keep theirs in other folders of the same tree.
    QSet<QString> found;
    for (const QString folder : {":/", ":/images/"}) {
        for (const QString& file : QDir(folder).entryList(QDir::Files)) {
            found.insert(folder + file);
        }
    }
    QSet<QString> expected;
    for (const char* path : shaders) {
        expected.insert(path);
    }
    for (const Picture& picture : pictures) {
        expected.insert(picture.path);
    }
    EXPECT_EQ(found, expected);
}

TEST(Resources, NewActionsPictureIsAbsent) {
    EXPECT_FALSE(QResource(":/images/new.png").isValid());
}

TEST(Resources, AreStoredUncompressed) {
    for (const char* path : shaders) {
        EXPECT_EQ(QResource(path).compressionAlgorithm(), QResource::NoCompression) << path;
    }
    for (const Picture& picture : pictures) {
        EXPECT_EQ(QResource(picture.path).compressionAlgorithm(), QResource::NoCompression);
    }
}

TEST(Resources, ShadersHaveTheirExactSizes) {
    EXPECT_EQ(bytesOf(shaders[0]).size(), 556U);
    EXPECT_EQ(bytesOf(shaders[1]).size(), 1813U);
    EXPECT_EQ(bytesOf(shaders[2]).size(), 426U);
    EXPECT_EQ(bytesOf(shaders[3]).size(), 128U);
}

TEST(Resources, ShaderLinesEndWithCarriageReturnAndLineFeedAndNoBlanks) {
    for (const char* path : shaders) {
        const std::string text = bytesOf(path);
        for (std::size_t i = 0; i < text.size(); ++i) {
            if (text[i] == '\n') {
                ASSERT_GT(i, 0U);
                EXPECT_EQ(text[i - 1], '\r') << path << " byte " << i;
                EXPECT_TRUE(i < 2 || (text[i - 2] != ' ' && text[i - 2] != '\t')) << path;
            } else if (text[i] == '\r') {
                EXPECT_EQ(text.at(i + 1), '\n') << path << " byte " << i;
            }
        }
        EXPECT_EQ(text.back(), '\n');
    }
}

TEST(Resources, PhongVertexShaderSaysAndDoesItsSteps) {
    expectInOrder(":/phong.vert.glsl",
                  {"Simple vertex shader for per pixel Phong lighting.", "varying vec3 normal;",
                   "Get the normal vector in eye space", "Correction for back faces",
                   "normal = gl_NormalMatrix * gl_Normal;",
                   "The following lines give the same result (optimization increasing)",
                   "// gl_Position = gl_ProjectionMatrix * gl_ModelViewMatrix * gl_Vertex;",
                   "// gl_Position = gl_ModelViewProjectionMatrix * gl_Vertex;",
                   "gl_Position = ftransform();", "Set both front and back colour",
                   "gl_FrontColor = gl_Color;", "gl_BackColor = gl_Color;"});
}

TEST(Resources, PhongFragmentShaderSaysAndDoesItsSteps) {
    expectInOrder(
        ":/phong.frag.glsl",
        {"Per pixel Phong light model fragment shader with colour for all types of\r\n",
         "light taken from gl_Color.",
         "varying vec3 normal;",
         "void addDirectionalLight(in int i, in vec3 fragmentNormal, inout vec4 ambient, inout "
         "vec4 "
         "diffuse, inout vec4 specular)",
         "vec3 L = normalize(gl_LightSource[i].position.xyz);",
         "vec3 H = gl_LightSource[i].halfVector.xyz;",
         "vec3 N = normalize(normal);",
         "if (!gl_FrontFacing)",
         "N = -N;",
         "float nDotL = max(0.0, dot(N, L));",
         "float nDotH = max(0.0, dot(N, H));",
         "if (nDotH == 0.0)",
         "powerMult = 0.0;",
         "powerMult = pow(nDotH, gl_FrontMaterial.shininess);",
         "ambient += gl_LightSource[i].ambient;",
         "diffuse += gl_LightSource[i].diffuse * nDotL;",
         "specular += gl_LightSource[i].specular * powerMult;",
         "vec3 fragmentNormal = normalize(normal);",
         "vec4 ambient = vec4(0.0, 0.0, 0.0, 0.0);",
         "vec4 diffuse = vec4(0.0, 0.0, 0.0, 0.0);",
         "vec4 specular = vec4(0.0, 0.0, 0.0, 0.0);",
         "Start from global ambient and emission",
         "vec3 finalColor = gl_FrontLightModelProduct.sceneColor.rgb;",
         "for (int i = 0; i < 8; i++)",
         "addDirectionalLight(i, fragmentNormal, ambient, diffuse, specular);",
         "finalColor += ambient.rgb * gl_Color.rgb + diffuse.rgb * gl_Color.rgb + specular.rgb * "
         "gl_Color.rgb;",
         "gl_FragColor = vec4(finalColor, gl_Color.a);"});
}

TEST(Resources, SolidShadersSayAndDoTheirSteps) {
    expectInOrder(":/solid.vert.glsl",
                  {"Simple vertex shader for no lighting - just the set colour.",
                   "The following lines give the same result (optimization increasing)",
                   "// gl_Position = gl_ProjectionMatrix * gl_ModelViewMatrix * gl_Vertex;",
                   "// gl_Position = gl_ModelViewProjectionMatrix * gl_Vertex;",
                   "gl_Position = ftransform();", "gl_FrontColor = gl_Color;",
                   "gl_BackColor = gl_Color;"});
    expectInOrder(":/solid.frag.glsl",
                  {"Per pixel fragment shader with colour simply set to gl_Color.",
                   "gl_FragColor = gl_Color;"});
}

TEST(Resources, ShadersDoNothingBesides) {
    EXPECT_EQ(statementsOf(":/phong.vert.glsl"), "varying vec3 normal; void main(void) { "
                                                 "normal = gl_NormalMatrix * gl_Normal; "
                                                 "gl_Position = ftransform(); "
                                                 "gl_FrontColor = gl_Color; "
                                                 "gl_BackColor = gl_Color; }");
    EXPECT_EQ(statementsOf(":/phong.frag.glsl"),
              "varying vec3 normal; "
              "void addDirectionalLight(in int i, in vec3 fragmentNormal, "
              "inout vec4 ambient, inout vec4 diffuse, inout vec4 specular) { "
              "vec3 L = normalize(gl_LightSource[i].position.xyz); "
              "vec3 H = gl_LightSource[i].halfVector.xyz; "
              "vec3 N = normalize(normal); "
              "if (!gl_FrontFacing) N = -N; "
              "float nDotL = max(0.0, dot(N, L)); "
              "float nDotH = max(0.0, dot(N, H)); "
              "float powerMult; "
              "if (nDotH == 0.0) powerMult = 0.0; "
              "else powerMult = pow(nDotH, gl_FrontMaterial.shininess); "
              "ambient += gl_LightSource[i].ambient; "
              "diffuse += gl_LightSource[i].diffuse * nDotL; "
              "specular += gl_LightSource[i].specular * powerMult; } "
              "void main(void) { "
              "vec3 fragmentNormal = normalize(normal); "
              "vec4 ambient = vec4(0.0, 0.0, 0.0, 0.0); "
              "vec4 diffuse = vec4(0.0, 0.0, 0.0, 0.0); "
              "vec4 specular = vec4(0.0, 0.0, 0.0, 0.0); "
              "vec3 finalColor = gl_FrontLightModelProduct.sceneColor.rgb; "
              "for (int i = 0; i < 8; i++) "
              "addDirectionalLight(i, fragmentNormal, ambient, diffuse, specular); "
              "finalColor += ambient.rgb * gl_Color.rgb + diffuse.rgb * gl_Color.rgb + "
              "specular.rgb * gl_Color.rgb; "
              "gl_FragColor = vec4(finalColor, gl_Color.a); }");
    EXPECT_EQ(statementsOf(":/solid.vert.glsl"), "void main(void) { gl_Position = ftransform(); "
                                                 "gl_FrontColor = gl_Color; "
                                                 "gl_BackColor = gl_Color; }");
    EXPECT_EQ(statementsOf(":/solid.frag.glsl"), "void main(void) { gl_FragColor = gl_Color; }");
}

TEST(Resources, PicturesHaveTheirSizesAndColourFormats) {
    constexpr std::size_t bitDepthPosition = 24;
    constexpr std::size_t colorTypePosition = 25;
    for (const Picture& picture : pictures) {
        const std::string bytes = bytesOf(picture.path);
        ASSERT_GT(bytes.size(), colorTypePosition);
        EXPECT_EQ(bytes.substr(1, 3), "PNG");
        EXPECT_EQ(bytes[bitDepthPosition], 8) << picture.path;
        EXPECT_EQ(static_cast<unsigned char>(bytes[colorTypePosition]), picture.colorType);
        const QImage image(picture.path);
        EXPECT_EQ(image.size(), QSize(picture.width, picture.height));
    }
}

TEST(Resources, PicturesShowSomething) {
    for (const Picture& picture : pictures) {
        const QImage image = QImage(picture.path).convertToFormat(QImage::Format_RGB32);
        QSet<QRgb> colors;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                colors.insert(image.pixel(x, y));
            }
        }
        EXPECT_GT(colors.size(), 20) << picture.path;
    }
}

TEST(Resources, SplashIsDarkWhereItsMessageStands) {
    const QImage splash(":/images/splash.png");
    for (int y = 0; y < 20; ++y) {
        for (int x = 300; x < 400; ++x) {
            EXPECT_LT(qGray(splash.pixel(x, y)), 80);
        }
    }
}
