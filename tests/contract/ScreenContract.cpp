#include "contract/World.h"
#include "platform/Pointer.h"
#include "platform/Screen.h"

namespace {

using platform::Point;
using platform::Rect;

class ScreenContract : public contract::ProgramTest {
  protected:
    static std::vector<Rect> frames() {
        std::vector<Rect> frames;
        for (const platform::Screen& screen : platform::screens()) {
            frames.push_back(screen.frame);
        }
        return frames;
    }
    [[nodiscard]] bool framesBecome(const std::vector<Rect>& expected) {
        return world_->turnUntil([&] { return frames() == expected; });
    }
    [[nodiscard]] bool pointerComesTo(Point place) {
        return world_->turnUntil([&] { return platform::mouseLocation() == place; });
    }
};

TEST_F(ScreenContract, TheScreenIsListedWithItsWholeFrame) {
    world_->arrangeScreens({{{0, 0}, {800, 600}}});
    EXPECT_TRUE(framesBecome({{{0, 0}, {800, 600}}}));
}

TEST_F(ScreenContract, ThePrimaryScreenIsTheFirstAndTheOriginItsBottomLeftCorner) {
    const std::vector<Rect> arrangement{{{0, 0}, {800, 600}}, {{-640, 100}, {640, 480}}};
    world_->arrangeScreens(arrangement);
    EXPECT_TRUE(framesBecome(arrangement));
}

TEST_F(ScreenContract, ScreensAboveHaveTheHigherY) {
    const std::vector<Rect> arrangement{{{0, 0}, {800, 600}}, {{0, 600}, {640, 480}}};
    world_->arrangeScreens(arrangement);
    EXPECT_TRUE(framesBecome(arrangement));
}

TEST_F(ScreenContract, AChangeOfTheArrangementIsSeen) {
    world_->arrangeScreens({{{0, 0}, {800, 600}}, {{800, 0}, {640, 480}}});
    EXPECT_TRUE(framesBecome({{{0, 0}, {800, 600}}, {{800, 0}, {640, 480}}}));
    world_->arrangeScreens({{{0, 0}, {800, 600}}});
    EXPECT_TRUE(framesBecome({{{0, 0}, {800, 600}}}));
    world_->arrangeScreens({{{0, 0}, {640, 480}}});
    EXPECT_TRUE(framesBecome({{{0, 0}, {640, 480}}}));
}

TEST_F(ScreenContract, ThePointerIsWhereTheUserMovesIt) {
    world_->arrangeScreens({{{0, 0}, {800, 600}}});
    for (const Point place : {Point{400, 300}, Point{10, 590}, Point{790, 10}}) {
        world_->movePointer(place);
        EXPECT_TRUE(pointerComesTo(place)) << place.x << ", " << place.y;
    }
}

TEST_F(ScreenContract, ThePointerIsInTheCoordinatesOfTheFramesOnEveryScreen) {
    world_->arrangeScreens({{{0, 0}, {800, 600}}, {{-640, 100}, {640, 480}}});
    world_->movePointer({-600, 120});
    EXPECT_TRUE(pointerComesTo({-600, 120}));
    world_->movePointer({400, 300});
    EXPECT_TRUE(pointerComesTo({400, 300}));
}

} // namespace
