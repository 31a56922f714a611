#include "platform/linux/statusitem/Surroundings.h"

#include <gmock/gmock.h>

namespace {

using platform::linux_host::surroundingsIn;
using platform::linux_host::TrayStyle;

QPalette paletteOf(const QColor& text, const QColor& ground) {
    QPalette palette;
    palette.setColor(QPalette::WindowText, text);
    palette.setColor(QPalette::Window, ground);
    return palette;
}

QImage filledWith(const QColor& color) {
    QImage image(24, 24, QImage::Format_RGB32);
    image.fill(color);
    return image;
}

const QPalette light = paletteOf(Qt::black, Qt::white);
const QPalette dark = paletteOf(Qt::white, Qt::black);

QColor textIn(const QPalette& palette) {
    return palette.color(QPalette::WindowText);
}

QColor groundIn(const QPalette& palette) {
    return palette.color(QPalette::Window);
}

TEST(Surroundings, AreThoseOfTheProgramWhereTheTraySaysNothing) {
    EXPECT_EQ(textIn(surroundingsIn({}, {}, dark)), QColor(Qt::white));
    EXPECT_EQ(groundIn(surroundingsIn({}, {}, dark)), QColor(Qt::black));
}

TEST(Surroundings, HaveTheTextColorThatTheTrayNames) {
    const TrayStyle style{.foreground = 0x20F0A0};
    EXPECT_EQ(textIn(surroundingsIn(style, filledWith(Qt::gray), light)), QColor(0x20, 0xF0, 0xA0));
}

TEST(Surroundings, AreDarkWhereTheTrayNamesALightTextAndIsSeenThrough) {
    const TrayStyle style{.blends = true, .foreground = 0xEEEEEE};
    EXPECT_EQ(groundIn(surroundingsIn(style, {}, light)), QColor(Qt::black));
}

TEST(Surroundings, HaveTheGroundThatTheTrayShows) {
    EXPECT_EQ(groundIn(surroundingsIn({}, filledWith(QColor(200, 210, 220)), light)),
              QColor(200, 210, 220));
}

TEST(Surroundings, HaveTextThatCanBeReadOnTheGroundOfTheTray) {
    EXPECT_EQ(textIn(surroundingsIn({}, filledWith(QColor(30, 40, 50)), light)), QColor(Qt::white));
    EXPECT_EQ(textIn(surroundingsIn({}, filledWith(QColor(230, 240, 250)), dark)),
              QColor(Qt::black));
    EXPECT_EQ(textIn(surroundingsIn({}, filledWith(QColor(230, 240, 250)), light)),
              QColor(Qt::black));
}

} // namespace
