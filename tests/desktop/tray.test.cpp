// The status item among trays that come, go, refuse and die: it is never invisible.
#include "tests/desktop/MenuUser.h"
#include "tests/desktop/support/FakeTray.h"
#include "tests/desktop/support/MessageBus.h"
#include "tests/desktop/support/Monitors.h"
#include "tests/desktop/support/ScreenPicture.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <functional>

namespace {

using namespace desktop;
namespace fs = std::filesystem;

class TrayTest {
  public:
    void startTray(TrayProgram program, const TrayLook& look = {}) {
        tray.emplace(session.desktop, program, look);
    }

    void launch() {
        session.launch();
        user.item().waitUntil([](const ItemSight&) { return true; }, "the item");
    }

    void startCounting() {
        user.choose(item::row);
        user.item().waitUntil([](const ItemSight& sight) { return sight.showsRed; }, "a countdown");
    }

    void expectTheMenuToWork() {
        user.openMenu();
        session.keyboard.press({.modifiers = {}, .key = key::escape});
        user.menus().waitUntilOpen(0);
        EXPECT_TRUE(session.quellbar->process().isRunning());
    }

    Session session;
    std::optional<Tray> tray;
    MenuUser user{session};
};

class AnyTray : public testing::TestWithParam<TrayProgram>, public TrayTest {};

INSTANTIATE_TEST_SUITE_P(, AnyTray, testing::Values(TrayProgram::trayer, TrayProgram::tint2),
                         [](const auto& program) {
                             return program.param == TrayProgram::trayer ? "trayer" : "tint2";
                         });

TEST_P(AnyTray, TakesTheItemWhenItStartsLater) {
    launch();
    EXPECT_EQ(user.item().look()->place, ItemPlace::strip);
    startTray(GetParam());
    user.item().waitUntilIn(ItemPlace::tray);
    expectTheMenuToWork();
}

TEST_P(AnyTray, HasTheItemBackAfterItWasEndedAndStartedAgain) {
    startTray(GetParam());
    launch();
    for (const int signal : {SIGTERM, SIGKILL}) {
        user.item().waitUntilIn(ItemPlace::tray);
        tray->end(signal);
        user.item().waitUntilIn(ItemPlace::strip);
        startTray(GetParam());
    }
    user.item().waitUntilIn(ItemPlace::tray);
    expectTheMenuToWork();
}

TEST_P(AnyTray, MayBeKilledWhileTheMenuIsOpen) {
    startTray(GetParam());
    launch();
    user.item().waitUntilIn(ItemPlace::tray);
    user.openMenu();
    tray->end(SIGKILL);
    user.item().waitUntilIn(ItemPlace::strip);
    session.keyboard.press({.modifiers = {}, .key = key::escape});
    user.menus().waitUntilOpen(0);
    expectTheMenuToWork();
}

TEST_P(AnyTray, MayBeReplacedByAnother) {
    startTray(GetParam());
    launch();
    user.item().waitUntilIn(ItemPlace::tray);
    tray->end(SIGKILL);
    const bool wasTrayer = GetParam() == TrayProgram::trayer;
    startTray(wasTrayer ? TrayProgram::tint2 : TrayProgram::trayer);
    user.item().waitUntilIn(ItemPlace::tray);
    expectTheMenuToWork();
}

TEST_P(AnyTray, ShowsTheTimeInRedInTheRoomThatItGives) {
    startTray(GetParam());
    launch();
    user.item().waitUntilIn(ItemPlace::tray);
    startCounting();
    const ItemSight sight = *user.item().look();
    if (GetParam() == TrayProgram::trayer) {
        EXPECT_GT(sight.frame.width, 2 * sight.frame.height);
    } else {
        EXPECT_EQ(sight.frame.width, sight.frame.height);
    }
}

TEST_P(AnyTray, OfAnyHeightShowsTheWholeItemAtTwoPixelsAPoint) {
    session.desktop.setVariable("QT_SCALE_FACTOR", "2");
    startTray(GetParam(), {.height = 24});
    launch();
    const ItemSight sight = user.item().waitUntilIn(ItemPlace::tray);
    EXPECT_LE(sight.frame.height, 24);
    EXPECT_GE(sight.frame.y, 0);
    startCounting();
}

TEST_P(AnyTray, AtTheBottomHasTheMenuAboveTheItem) {
    storeDefaults(session.desktop, R"({"hotCorners": []})");
    startTray(GetParam(), {.isAtBottom = true});
    launch();
    user.item().waitUntilIn(ItemPlace::tray);
    user.openMenu();
    const Geometry menu = user.menus().frames().front();
    EXPECT_LE(menu.y + menu.height, user.item().look()->frame.y + 1);
    EXPECT_GE(menu.y, 0);
}

class ItemTest : public testing::Test, public TrayTest {
  protected:
    [[nodiscard]] bool shows(const FakeTray& fake, std::uint32_t color) const {
        const ScreenPicture picture(display_, fake.place());
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                if (picture.pixel(x, y) == color) {
                    return true;
                }
            }
        }
        return false;
    }

    void waitForColor(const FakeTray& fake, std::uint32_t color) const {
        waitUntil([&] { return shows(fake, color); }, "a colour in the tray",
                  Deadline(std::chrono::seconds{20}));
    }

  private:
    XDisplay display_{session.desktop.display()};
};

TEST_F(ItemTest, IsInAStripAtTheTopRightWithoutATray) {
    launch();
    const ItemSight sight = *user.item().look();
    EXPECT_EQ(sight.place, ItemPlace::strip);
    EXPECT_EQ(sight.frame.y, 0);
    EXPECT_EQ(sight.frame.x + sight.frame.width, 1280);
}

TEST_F(ItemTest, IsInAStripWhenTheTrayDoesNotTakeIt) {
    const FakeTray refusing(session.desktop.display());
    launch();
    EXPECT_EQ(user.item().look()->place, ItemPlace::strip);
    expectTheMenuToWork();
}

TEST_F(ItemTest, GoesFromARefusingTrayToARealOne) {
    {
        const FakeTray refusing(session.desktop.display());
        launch();
    }
    startTray(TrayProgram::trayer);
    user.item().waitUntilIn(ItemPlace::tray);
    expectTheMenuToWork();
}

TEST_F(ItemTest, IsInAStripAgainWhenTheTrayPutsItOut) {
    FakeTray fake(session.desktop.display());
    session.launch();
    fake.waitForRequest();
    fake.take();
    user.item().waitUntilIn(ItemPlace::tray);
    fake.putOut();
    user.item().waitUntilIn(ItemPlace::strip);
    expectTheMenuToWork();
}

TEST_F(ItemTest, IsTakenByATrayThatTakesItsTime) {
    FakeTray fake(session.desktop.display());
    session.launch();
    fake.waitForRequest();
    user.item().waitUntilIn(ItemPlace::strip);
    fake.take();
    user.item().waitUntilIn(ItemPlace::tray);
}

TEST_F(ItemTest, HasTheColorsOfTheTray) {
    FakeTray fake(session.desktop.display(), 0x103050);
    fake.nameForeground(0x40FF80);
    session.launch();
    fake.waitForRequest();
    fake.take();
    waitForColor(fake, 0x40FF80);
    EXPECT_TRUE(shows(fake, 0x103050));
    EXPECT_FALSE(shows(fake, 0x000000));
    fake.nameForeground(0xFFC0E0);
    waitForColor(fake, 0xFFC0E0);
}

TEST_F(ItemTest, IsReadableInATrayThatNamesNoColors) {
    FakeTray fake(session.desktop.display(), 0x103050);
    session.launch();
    fake.waitForRequest();
    fake.take();
    waitForColor(fake, 0xFFFFFF);
}

TEST_F(ItemTest, ShowsTheTimeInATrayThatGivesMoreRoomThanItHas) {
    FakeTray fake(session.desktop.display(), 0x000000, 30);
    session.launch();
    fake.waitForRequest();
    fake.take();
    user.item().waitUntilIn(ItemPlace::tray);
    session.settle(); // the tray shows the window before the program knows of it
    startCounting();
}

TEST_F(ItemTest, StaysWithTheFirstOfTwoTraysUntilThatEnds) {
    startTray(TrayProgram::trayer);
    launch();
    user.item().waitUntilIn(ItemPlace::tray);
    const Tray second(session.desktop, TrayProgram::tint2);
    expectTheMenuToWork();
    tray->end(SIGKILL);
    user.item().waitUntil([](const ItemSight&) { return true; }, "the item");
    expectTheMenuToWork();
}

TEST_F(ItemTest, StripFollowsTheScreens) {
    Monitors monitors(session.desktop);
    launch();
    monitors.arrange({{"left", {.x = 0, .y = 0, .width = 640, .height = 800}},
                      {"right", {.x = 640, .y = 0, .width = 640, .height = 800}}});
    user.item().waitUntil(
        [](const ItemSight& sight) { return sight.frame.x + sight.frame.width == 640; },
        "the strip on the first screen");
    expectTheMenuToWork();
    monitors.arrange({});
    user.item().waitUntil(
        [](const ItemSight& sight) { return sight.frame.x + sight.frame.width == 1280; },
        "the strip on the only screen");
}

TEST_F(ItemTest, SurvivesThatScreensChangeWhileTheMenuIsOpen) {
    Monitors monitors(session.desktop);
    launch();
    user.openMenu();
    monitors.arrange({{"left", {.x = 0, .y = 0, .width = 640, .height = 800}},
                      {"right", {.x = 640, .y = 0, .width = 640, .height = 800}}});
    session.settle();
    session.keyboard.press({.modifiers = {}, .key = key::escape});
    user.menus().waitUntilOpen(0);
    expectTheMenuToWork();
}

TEST_F(ItemTest, StripIsAsWideAsTheShapeOfTheTimeNeeds) {
    storeDefaults(session.desktop, R"({"keepAwakeDurationSeconds": 2400})");
    launch();
    const auto idle = user.item().look()->frame.width;
    const auto widthWhenNot = [this](std::uint16_t old) {
        return user.item()
            .waitUntil([old](const ItemSight& sight) { return sight.frame.width != old; },
                       "another width")
            .frame.width;
    };
    user.choose(keepAwakeMenu, 2); // 40 and 30 minutes: with hours
    const auto withHours = widthWhenNot(idle);
    user.choose(keepAwakeMenu, 1); // 40 minutes
    const auto twoDigits = widthWhenNot(withHours);
    user.choose(keepAwakeMenu, 1); // a moment less than 10 minutes
    const auto oneDigit = widthWhenNot(twoDigits);
    user.choose(keepAwakeMenu, 1);
    EXPECT_EQ(widthWhenNot(oneDigit), idle);
    const std::array falling{withHours, twoDigits, oneDigit, idle};
    EXPECT_EQ(std::ranges::adjacent_find(falling, std::ranges::less_equal()), falling.end());
}

TEST_F(ItemTest, ShowsTheNameOfTheProgramWhenThereAreNoImages) {
    const fs::path folder = session.desktop.home() / "program";
    fs::create_directories(folder / "Quellbar_Quellbar.bundle");
    const Command built = Quellbar::command(session.desktop);
    fs::copy_file(built.arguments.front(), folder / "quellbar");
    const Process program(session.desktop.command({folder / "quellbar"}));
    const ItemSight sight = user.item().waitUntilIn(ItemPlace::strip);
    EXPECT_GT(sight.frame.width, 2 * sight.frame.height);
    user.openMenu();
}

TEST_F(ItemTest, IsThereAlthoughTheSessionBusHangs) {
    const MessageBus bus(session.desktop);
    bus.hang();
    session.desktop.setVariable("DBUS_SESSION_BUS_ADDRESS", bus.address());
    startTray(TrayProgram::trayer);
    launch();
    user.item().waitUntilIn(ItemPlace::tray);
    startCounting();
    expectTheMenuToWork();
}

} // namespace
