#include "platform/StatusItem.h"

#include "platform/simulated/Desktop.h"

#include <gmock/gmock.h>

namespace {

using platform::AttributedString;
using platform::StatusItem;
using simulated::desktop;
using testing::IsEmpty;
using testing::SizeIs;

TEST(SimulatedStatusItem, IsInTheStatusBarWhileTheProgramHoldsIt) {
    auto item = StatusItem::inSystemStatusBar(24);
    EXPECT_THAT(desktop().statusBar.items(), SizeIs(1));
    EXPECT_EQ(desktop().statusBar.item().length, 24);
    item.reset();
    EXPECT_THAT(desktop().statusBar.items(), IsEmpty());
}

TEST(SimulatedStatusItem, HasAButtonWithoutImageOrTitleAtFirst) {
    const auto item = StatusItem::inSystemStatusBar(StatusItem::variableLength);
    ASSERT_NE(item->button(), nullptr);
    EXPECT_EQ(item->button()->image(), nullptr);
    EXPECT_EQ(desktop().statusBar.item().button().title, AttributedString{});
}

TEST(SimulatedStatusItem, EitherTitleReplacesTheOther) {
    const auto item = StatusItem::inSystemStatusBar(StatusItem::variableLength);
    const auto& title = desktop().statusBar.item().button().title;
    item->button()->setTitle("plain");
    item->button()->setAttributedTitle({"red", platform::Color::systemRed});
    EXPECT_EQ(title, (AttributedString{"red", platform::Color::systemRed}));
    item->button()->setTitle("plain");
    EXPECT_EQ(title, (AttributedString{"plain"}));
}

TEST(SimulatedStatusItem, ShowsAnImageAndTakesItAway) {
    desktop().files.addFile("/icon.png", simulated::pngFile(18, 18));
    const auto item = StatusItem::inSystemStatusBar(StatusItem::variableLength);
    const auto image = platform::Image::withContentsOfFile("/icon.png");
    item->button()->setImage(image);
    EXPECT_EQ(item->button()->image(), image);
    item->button()->setImage(nullptr);
    EXPECT_EQ(item->button()->image(), nullptr);
}

TEST(SimulatedStatusItem, MayHaveNoButton) {
    desktop().statusBar.givesButtons = false;
    EXPECT_EQ(StatusItem::inSystemStatusBar(24)->button(), nullptr);
}

TEST(SimulatedStatusItemDeathTest, IsLookedForInVainWhereThereIsNone) {
    EXPECT_DEATH(static_cast<void>(desktop().statusBar.item()),
                 "there is not one status item, but 0");
    const auto item = StatusItem::inSystemStatusBar(24);
    EXPECT_DEATH(desktop().statusBar.item().openMenu(), "the status item has no menu");
    const auto second = StatusItem::inSystemStatusBar(24);
    EXPECT_DEATH(static_cast<void>(desktop().statusBar.item()),
                 "there is not one status item, but 2");
}

} // namespace
