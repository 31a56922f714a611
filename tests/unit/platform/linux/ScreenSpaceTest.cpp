#include "platform/linux/x11/ScreenSpace.h"

#include <gtest/gtest.h>

namespace platform {

// So that a failure shows numbers.
void PrintTo(const Point& point, std::ostream* stream) {
    *stream << "(" << point.x << ", " << point.y << ")";
}
void PrintTo(const Rect& rect, std::ostream* stream) {
    PrintTo(rect.origin, stream);
    *stream << " " << rect.size.width << " x " << rect.size.height;
}

} // namespace platform

namespace {

using platform::Point;
using platform::Rect;
using platform::linux_host::ScreenSpace;

constexpr ScreenSpace oneScreen{.primary = {0, 0, 1280, 800}};

TEST(ScreenSpace, TheOriginIsAtTheBottomLeftAndYGrowsUpward) {
    EXPECT_EQ(oneScreen.pointOf(0, 800), (Point{0, 0}));
    EXPECT_EQ(oneScreen.pointOf(0, 0), (Point{0, 800}));
    EXPECT_EQ(oneScreen.pointOf(1279, 799), (Point{1279, 1}));
}

TEST(ScreenSpace, ThePrimaryScreenStandsAtTheOrigin) {
    EXPECT_EQ(oneScreen.rectOf(oneScreen.primary), (Rect{{0, 0}, {1280, 800}}));
    const ScreenSpace elsewhere{.primary = {1920, 200, 1280, 800}};
    EXPECT_EQ(elsewhere.rectOf(elsewhere.primary), (Rect{{0, 0}, {1280, 800}}));
    EXPECT_EQ(elsewhere.pointOf(1920, 1000), (Point{0, 0}));
}

TEST(ScreenSpace, OtherScreensStandAroundThePrimaryOne) {
    const ScreenSpace space{.primary = {1000, 500, 1280, 800}};
    EXPECT_EQ(space.rectOf({0, 500, 1000, 600}), (Rect{{-1000, 200}, {1000, 600}})); // left
    EXPECT_EQ(space.rectOf({2280, 700, 640, 480}), (Rect{{1280, 120}, {640, 480}})); // right
    EXPECT_EQ(space.rectOf({1000, 0, 800, 500}), (Rect{{0, 800}, {800, 500}}));      // above
    EXPECT_EQ(space.rectOf({1000, 1300, 800, 500}), (Rect{{0, -500}, {800, 500}}));  // below
}

TEST(ScreenSpace, TheScaleOfThePrimaryScreenCountsForAll) {
    const ScreenSpace space{.primary = {0, 0, 2560, 1600}, .scale = 2};
    EXPECT_EQ(space.rectOf(space.primary), (Rect{{0, 0}, {1280, 800}}));
    EXPECT_EQ(space.rectOf({2560, 0, 1921, 1081}), (Rect{{1280, 259.5}, {960.5, 540.5}}));
    EXPECT_EQ(space.pointOf(2559, 1599), (Point{1279.5, 0.5}));
}

TEST(ScreenSpace, EveryPixelOfAScreenIsWithinItsFrame) {
    for (const double scale : {1.0, 1.25, 1.5, 2.0, 3.0}) {
        const ScreenSpace space{.primary = {7, 11, 1366, 768}, .scale = scale};
        const Rect frame = space.rectOf({1373, 50, 1919, 1079});
        const Point first = space.pointOf(1373, 50);
        const Point last = space.pointOf(1373 + 1919 - 1, 50 + 1079 - 1);
        EXPECT_GE(first.x, frame.minX());
        EXPECT_LE(first.y, frame.maxY());
        EXPECT_LT(last.x, frame.maxX());
        EXPECT_GT(last.y, frame.minY());
    }
}

} // namespace
