#include "platform/Pointer.h"
#include "platform/Screen.h"
#include "platform/simulated/Desktop.h"

#include <gmock/gmock.h>

namespace {

using platform::Point;
using platform::Rect;
using simulated::desktop;
using testing::ElementsAre;
using testing::IsEmpty;

std::vector<Rect> frames() {
    std::vector<Rect> frames;
    for (const platform::Screen& screen : platform::screens()) {
        frames.push_back(screen.frame);
    }
    return frames;
}

TEST(SimulatedScreens, AreOneWithThePointerInItsMiddle) {
    EXPECT_THAT(frames(), ElementsAre(Rect{{0, 0}, {1440, 900}}));
    EXPECT_EQ(platform::mouseLocation(), (Point{720, 450}));
}

TEST(SimulatedScreens, AreListedInTheirOrder) {
    desktop().screens.screens = {{{{0, 0}, {800, 600}}}, {{{-1920, 0.5}, {1920, 1080}}}};
    EXPECT_THAT(frames(), ElementsAre(Rect{{0, 0}, {800, 600}}, Rect{{-1920, 0.5}, {1920, 1080}}));
}

TEST(SimulatedScreens, MayAllBeGone) {
    desktop().screens.screens.clear();
    EXPECT_THAT(frames(), IsEmpty());
}

TEST(SimulatedScreens, DoNotHoldThePointer) {
    desktop().screens.pointer = {-12.5, 5000};
    EXPECT_EQ(platform::mouseLocation(), (Point{-12.5, 5000}));
}

TEST(SimulatedScreens, AndThePointerAreAskedForInCalls) {
    (void)platform::mouseLocation();
    (void)platform::screens();
    EXPECT_THAT(desktop().calls.all(), ElementsAre("mouseLocation()", "screens()"));
}

} // namespace
