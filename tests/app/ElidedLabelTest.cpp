#include "app/ElidedLabel.h"

#include <gtest/gtest.h>

namespace {

constexpr int height = 20;

QImage pictureOf(const QString& text, int width) {
    ElidedLabel label(5);
    label.showText(text);
    label.setMaximumWidth(width);
    label.resize(width, height);
    return label.grab().toImage();
}

} // namespace

TEST(ElidedLabelTest, ShowsThatTheEndIsLeftOut) {
    const QString text = "Unit hyperboloid, not the quadric: K13 = 0";
    ElidedLabel label(5);
    label.resize(90, height);
    const QString elided =
        label.fontMetrics().elidedText(text, Qt::ElideRight, label.contentsRect().width());
    ASSERT_TRUE(elided.endsWith("…"));
    EXPECT_EQ(pictureOf(text, 90), pictureOf(elided, 90));
    EXPECT_NE(pictureOf(text, 90), pictureOf("", 90));
}

TEST(ElidedLabelTest, NeedsRoomForItsFirstLettersOnlyAndTakesNoMoreThanItsText) {
    ElidedLabel label(5);
    label.showText("Unit hyperboloid, not the quadric: K13 = 0");
    EXPECT_LT(label.minimumSizeHint().width(), label.sizeHint().width() / 4);
    EXPECT_EQ(label.maximumWidth(), label.sizeHint().width());
    label.showText("U");
    EXPECT_EQ(label.minimumSizeHint().width(), label.sizeHint().width());
}

TEST(ElidedLabelTest, KeepsALettersHeightFreeBeforeTheNextText) {
    ElidedLabel label(5);
    label.showText("U");
    EXPECT_EQ(label.sizeHint().width(),
              QLabel("U").sizeHint().width() + label.fontMetrics().height());
}

TEST(ElidedLabelTest, ShortTextLooksAsOnAnyLabel) {
    const QSize roomy(300, 37);
    ElidedLabel label(5);
    label.showText("Unit");
    label.setMaximumWidth(roomy.width());
    label.resize(roomy);
    QLabel plain("Unit");
    plain.resize(roomy);
    EXPECT_EQ(label.grab().toImage(), plain.grab().toImage());
}

TEST(ElidedLabelTest, TellsAllInItsToolTipAsTextAndNotAsMarkup) {
    ElidedLabel label(5);
    label.showText("K13²/K1 + K23²/K2 < K3");
    EXPECT_TRUE(label.toolTip().contains("&lt; K3"));
    label.showText("short", {"first line", "second line"});
    EXPECT_TRUE(label.toolTip().contains("first line"));
    EXPECT_TRUE(label.toolTip().contains("second line"));
    EXPECT_FALSE(label.toolTip().contains("short"));
}

TEST(ElidedLabelTest, TakesNoRoomWithoutAText) {
    ElidedLabel label(5);
    label.showText("something");
    EXPECT_FALSE(label.isHidden());
    label.showText("");
    EXPECT_TRUE(label.isHidden());
}
