#include "viewer/WindowSystem.h"

#include <QByteArray>
#include <gtest/gtest.h>
#include <map>

namespace {

/** What the environment says about the window system; afterwards it says what it said before. */
class WindowSystemTest : public testing::Test {
protected:
    void SetUp() override {
        for (const char* name : {"DISPLAY", "QT_QPA_PLATFORM", "QT_ENABLE_HIGHDPI_SCALING",
                                 "QT_AUTO_SCREEN_SCALE_FACTOR"}) {
            before[name] = qgetenv(name);
            qunsetenv(name);
        }
    }
    void TearDown() override {
        for (const auto& [name, value] : before) {
            value.isNull() ? qunsetenv(name) : qputenv(name, value);
        }
    }

private:
    std::map<const char*, QByteArray> before;
};

} // namespace

TEST_F(WindowSystemTest, IsTheXServerWithoutScalingWhereNobodySaysOtherwise) {
    qputenv("DISPLAY", ":7");
    WindowSystem::prepareEnvironment();
    EXPECT_EQ(qgetenv("QT_QPA_PLATFORM"), "xcb");
    EXPECT_EQ(qgetenv("QT_ENABLE_HIGHDPI_SCALING"), "0");
}

TEST_F(WindowSystemTest, IsLeftToQtWhereThereIsNoXServer) {
    WindowSystem::prepareEnvironment();
    EXPECT_FALSE(qEnvironmentVariableIsSet("QT_QPA_PLATFORM"));
    EXPECT_EQ(qgetenv("QT_ENABLE_HIGHDPI_SCALING"), "0");
}

TEST_F(WindowSystemTest, IsTheUsersOwnWhereTheySaySo) {
    qputenv("DISPLAY", ":7");
    qputenv("QT_QPA_PLATFORM", "wayland");
    qputenv("QT_ENABLE_HIGHDPI_SCALING", "1");
    WindowSystem::prepareEnvironment();
    EXPECT_EQ(qgetenv("QT_QPA_PLATFORM"), "wayland");
    EXPECT_EQ(qgetenv("QT_ENABLE_HIGHDPI_SCALING"), "1");
}

TEST_F(WindowSystemTest, KeepsAnAutomaticFactorThatTheUserAsksFor) {
    qputenv("QT_AUTO_SCREEN_SCALE_FACTOR", "1");
    WindowSystem::prepareEnvironment();
    EXPECT_FALSE(qEnvironmentVariableIsSet("QT_ENABLE_HIGHDPI_SCALING"));
}
