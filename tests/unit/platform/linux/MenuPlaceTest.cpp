#include "platform/linux/menu/MenuPlace.h"

#include <gmock/gmock.h>

namespace {

using platform::linux_host::menuPlace;

// Beside another screen, so that nothing begins at zero.
constexpr QRect screen{1000, 500, 800, 600};
constexpr QSize menu{200, 300};

TEST(MenuPlace, IsUnderTheItem) {
    EXPECT_EQ(menuPlace({1100, 500, 22, 24}, menu, screen), QPoint(1100, 524));
}

TEST(MenuPlace, IsAboveTheItemWhereTheScreenEndsBelow) {
    EXPECT_EQ(menuPlace({1100, 1076, 22, 24}, menu, screen), QPoint(1100, 776));
}

TEST(MenuPlace, IsUnderTheItemWhenItJustFits) {
    EXPECT_EQ(menuPlace({1100, 776, 22, 24}, menu, screen), QPoint(1100, 800));
    EXPECT_EQ(menuPlace({1100, 777, 22, 24}, menu, screen), QPoint(1100, 500));
}

TEST(MenuPlace, IsMovedBackFromTheEdgesOfTheScreen) {
    EXPECT_EQ(menuPlace({1778, 500, 22, 24}, menu, screen), QPoint(1600, 524));
    EXPECT_EQ(menuPlace({990, 500, 22, 24}, menu, screen), QPoint(1000, 524));
}

TEST(MenuPlace, OfATooLargeMenuShowsItsBeginning) {
    EXPECT_EQ(menuPlace({1100, 700, 22, 24}, {900, 700}, screen), QPoint(1000, 500));
}

TEST(MenuPlace, OfAnItemBeyondTheScreenIsOnTheScreen) {
    EXPECT_EQ(menuPlace({3000, 2000, 22, 24}, menu, screen), QPoint(1600, 800));
}

} // namespace
