#include "app/StartUp.h"

#include "tests/support/Waiting.h"

#include <QPixmap>
#include <QSplashScreen>
#include <QWindow>
#include <gtest/gtest.h>

namespace {

QImage pictureOf(QWidget& widget) {
    return widget.grab().toImage();
}

} // namespace

TEST(StartUpTest, SplashShowsItsPictureAndSaysInTheUpperRightThatItComputes) {
    const QPixmap picture = StartUp::splashPicture();
    ASSERT_FALSE(picture.isNull());
    EXPECT_EQ(picture.toImage(), QPixmap(":/images/splash.png").toImage());
    QSplashScreen splash(picture);
    StartUp::showSplash(splash);
    EXPECT_TRUE(splash.isVisible());
    QSplashScreen expected(picture);
    const QImage withoutMessage = pictureOf(expected);
    expected.showMessage("Computing...", Qt::AlignRight | Qt::AlignTop, QColor(255, 255, 255));
    EXPECT_EQ(pictureOf(splash), pictureOf(expected));
    EXPECT_NE(pictureOf(splash), withoutMessage);
}

TEST(StartUpTest, SplashGoesWhenTheWindowIsThere) {
    QSplashScreen splash(StartUp::splashPicture());
    StartUp::showSplash(splash);
    QWidget window;
    window.show();
    StartUp::finishSplash(splash, window);
    EXPECT_TRUE(window.windowHandle()->isExposed());
    EXPECT_FALSE(splash.isVisible());
}
