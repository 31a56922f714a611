// The menu under a real pointer and a real keyboard, wherever the status item is.
#include "tests/desktop/MenuUser.h"
#include "tests/desktop/support/KeyGrabs.h"

#include <gtest/gtest.h>

#include <array>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace {

using namespace desktop;
namespace fs = std::filesystem;

enum class Place { trayer, tint2, strip };

std::string placeName(const testing::TestParamInfo<Place>& info) {
    switch (info.param) {
    case Place::trayer:
        return "trayer";
    case Place::tint2:
        return "tint2";
    case Place::strip:
        return "strip";
    }
    return {};
}

class Menu : public testing::TestWithParam<Place> {
  protected:
    Menu() {
        storeDefaults(session.desktop, R"({"keepAwakeDurationSeconds": 2400})");
        if (GetParam() != Place::strip) {
            tray.emplace(session.desktop,
                         GetParam() == Place::trayer ? TrayProgram::trayer : TrayProgram::tint2);
        }
        session.launch();
        user.item().waitUntilIn(tray ? ItemPlace::tray : ItemPlace::strip);
    }

    [[nodiscard]] std::string storedSettings() const {
        std::ifstream stream(defaultsFile(session.desktop));
        return {std::istreambuf_iterator<char>(stream), {}};
    }

    [[nodiscard]] bool isStored(const std::string& text) const {
        return storedSettings().find(text) != std::string::npos;
    }

    void waitUntilCounting() {
        user.item().waitUntil([](const ItemSight& sight) { return sight.showsRed; }, "a countdown");
    }
    void waitUntilIdle() {
        user.item().waitUntil([](const ItemSight& sight) { return !sight.showsRed; },
                              "no countdown");
    }

    void press(xcb_keycode_t key, int times = 1) {
        for (int i = 0; i < times; ++i) {
            session.keyboard.press({.modifiers = {}, .key = key});
        }
    }

    Session session;
    std::optional<Tray> tray;
    MenuUser user{session};
};

INSTANTIATE_TEST_SUITE_P(, Menu, testing::Values(Place::trayer, Place::tint2, Place::strip),
                         placeName);

TEST_P(Menu, MinimizesAllWindows) {
    const auto windows = session.application.open(3);
    user.choose(item::minimizeAll);
    session.windows.waitUntilHidden(windows);
}

TEST_P(Menu, OpensByEitherButtonAndClosesByAClickOnTheItem) {
    for (const std::uint8_t button : std::to_array<std::uint8_t>({1, 3})) {
        user.openMenu(button);
        user.pointer().click(button);
        user.menus().waitUntilOpen(0);
        session.settle();
        EXPECT_TRUE(user.menus().frames().empty());
    }
}

TEST_P(Menu, OpensNextToTheItemAndOnTheScreen) {
    user.openMenu();
    const Geometry menu = user.menus().frames().front();
    const ItemSight item = *user.item().look();
    EXPECT_GE(menu.y, item.frame.y + item.frame.height);
    EXPECT_LE(menu.y, item.frame.y + item.frame.height + 8);
    EXPECT_LE(menu.x + menu.width, 1280);
    EXPECT_GT(menu.x + menu.width, item.frame.x);
}

TEST_P(Menu, RowTogglesKeepAwakeOnceAndClosesTheMenu) {
    user.choose(item::row);
    waitUntilCounting();
    user.choose(item::row);
    waitUntilIdle();
}

TEST_P(Menu, RowTogglesWhileASubmenuIsOpenBesideIt) {
    user.openMenu();
    const int row = user.lineOf(item::row);
    user.moveToLine(0, user.lineOf(item::corners));
    user.menus().waitUntilOpen(2);
    user.moveToLine(0, row);
    user.pointer().click();
    user.menus().waitUntilOpen(0);
    waitUntilCounting();
}

TEST_P(Menu, TurnsKeepAwakeOnAndOff) {
    user.choose(keepAwakeMenu, 0);
    waitUntilCounting();
    user.choose(keepAwakeMenu, 0);
    waitUntilIdle();
}

TEST_P(Menu, ThirtyMinutesLessThanNothingIsNothing) {
    user.choose(keepAwakeMenu, 1);
    waitUntilIdle();
}

TEST_P(Menu, ThirtyMinutesMoreStartARunAndThirtyLessEndItInTheEnd) {
    user.choose(keepAwakeMenu, 2); // 40 and 30 minutes
    waitUntilCounting();
    user.choose(keepAwakeMenu, 1); // 40
    waitUntilCounting();
    user.choose(keepAwakeMenu, 1); // 10
    waitUntilCounting();
    user.choose(keepAwakeMenu, 1);
    waitUntilIdle();
}

TEST_P(Menu, CornersAreStoredAtOnce) {
    user.choose(cornersMenu, 0);
    EXPECT_TRUE(isStored("topLeft")) << storedSettings();
    user.choose(cornersMenu, 3);
    EXPECT_FALSE(isStored("bottomRight")) << storedSettings();
    EXPECT_TRUE(isStored("topLeft")) << storedSettings();
    user.choose(cornersMenu, 0);
    EXPECT_FALSE(isStored("topLeft")) << storedSettings();
}

TEST_P(Menu, SwitchesTheLaunchAtLogin) {
    const fs::path entry =
        session.desktop.configuration() / "autostart" / "io.github.quellbar.Quellbar.desktop";
    user.choose(preferencesMenu, 0);
    EXPECT_TRUE(fs::exists(entry));
    user.choose(preferencesMenu, 0);
    EXPECT_FALSE(fs::exists(entry));
}

TEST_P(Menu, SwitchesTheTaskBarEntry) {
    user.choose(preferencesMenu, 1);
    EXPECT_TRUE(isStored(R"("enableDockIcon": true)") || isStored(R"("enableDockIcon":true)"))
        << storedSettings();
    user.choose(preferencesMenu, 1);
    EXPECT_TRUE(isStored(R"("enableDockIcon": false)") || isStored(R"("enableDockIcon":false)"))
        << storedSettings();
}

TEST_P(Menu, SwitchesTheShortcut) {
    KeyGrabs grabs(session.desktop.display());
    ASSERT_TRUE(grabs.isTaken(defaultShortcut));
    user.choose(preferencesMenu, 2);
    EXPECT_TRUE(grabs.isFree(defaultShortcut));
    user.choose(preferencesMenu, 2);
    EXPECT_TRUE(grabs.isTaken(defaultShortcut));
}

TEST_P(Menu, QuitsByTheNormalTermination) {
    user.openMenu();
    user.moveToLine(0, user.lineOf(item::quit));
    user.pointer().click();
    EXPECT_EQ(session.quellbar->process().wait(), (Ended{.status = 0}));
    EXPECT_TRUE(KeyGrabs(session.desktop.display()).isFree(defaultShortcut));
}

TEST_P(Menu, IsWalkedByTheKeyboard) {
    const auto windows = session.application.open(2);
    user.openMenu();
    press(key::down, 2);
    press(key::returnKey);
    user.menus().waitUntilOpen(0);
    waitUntilCounting();
    user.openMenu();
    press(key::down, 4);
    press(key::right);
    user.menus().waitUntilOpen(2);
    press(key::returnKey);
    user.menus().waitUntilOpen(0);
    session.settle();
    EXPECT_TRUE(isStored("topLeft")) << storedSettings();
    user.openMenu();
    press(key::escape);
    user.menus().waitUntilOpen(0);
    EXPECT_FALSE(session.windows.isHidden(windows.front()));
}

} // namespace
