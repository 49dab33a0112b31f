#include "app/WindowPlace.h"

#include <QColor>
#include <QSettings>
#include <QWidget>
#include <gtest/gtest.h>
#include <vector>

namespace {

class WindowPlaceTest : public testing::Test {
protected:
    void TearDown() override { QSettings("Trolltech", "MDI Viewer").clear(); }

    static void storeValues(const QVariant& position, const QVariant& size) {
        QSettings settings("Trolltech", "MDI Viewer");
        settings.setValue("pos", position);
        settings.setValue("size", size);
    }

    /** Expects where a new window opens. */
    static void expectOpensAt(QPoint position, QSize size) {
        QWidget window;
        WindowPlace::restore(window);
        EXPECT_EQ(window.pos(), position);
        EXPECT_EQ(window.size(), size);
    }
};

} // namespace

TEST_F(WindowPlaceTest, IsTheDefaultWithoutStoredSettings) {
    expectOpensAt(QPoint(200, 200), QSize(400, 400));
}

TEST_F(WindowPlaceTest, IsWhereAWindowWasStored) {
    QWidget window;
    window.move(31, 41);
    window.resize(592, 653);
    WindowPlace::store(window);
    const QSettings settings("Trolltech", "MDI Viewer");
    EXPECT_EQ(settings.value("pos").toPoint(), QPoint(31, 41));
    EXPECT_EQ(settings.value("size").toSize(), QSize(592, 653));
    expectOpensAt(QPoint(31, 41), QSize(592, 653));
}

TEST_F(WindowPlaceTest, UnreadableSettingsFallBackToTheDefaults) {
    const std::vector<QVariant> unreadable{
        "garbage",  "@Point(31)",   QStringList{"31", "41"}, 7, QByteArray("\x01\x02"),
        QVariant(), QColor(Qt::red)};
    for (const QVariant& value : unreadable) {
        SCOPED_TRACE(value.typeName());
        storeValues(value, value);
        expectOpensAt(QPoint(200, 200), QSize(400, 400));
    }
}

TEST_F(WindowPlaceTest, PlaceAndSizeOfEachOthersKindFallBackToTheDefaults) {
    storeValues(QSize(592, 653), QPoint(31, 41));
    expectOpensAt(QPoint(200, 200), QSize(400, 400));
}

TEST_F(WindowPlaceTest, SizeThatIsNoneFallsBackToTheDefaultAloneAndKeepsThePlace) {
    for (const QSize size : {QSize(), QSize(-5, 300), QSize(300, -5)}) {
        storeValues(QPoint(31, 41), size);
        expectOpensAt(QPoint(31, 41), QSize(400, 400));
    }
}
