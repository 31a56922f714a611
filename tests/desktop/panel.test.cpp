// The status item in panels that are told of it over the session bus and take no windows.
#include "tests/desktop/MenuUser.h"
#include "tests/desktop/fakes/FakePanel.h"
#include "tests/desktop/support/MessageBus.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

using namespace desktop;
using Behaviour = FakePanel::Behaviour;

class PanelTest : public testing::Test {
  protected:
    PanelTest() { session.desktop.setVariable("DBUS_SESSION_BUS_ADDRESS", bus.address()); }

    void onKde() { session.desktop.setVariable("XDG_CURRENT_DESKTOP", "KDE"); }

    void startPanel(Behaviour behaviour = Behaviour::show) {
        panel.emplace(bus.address(), behaviour);
    }

    void launchInPanel() {
        startPanel();
        session.launch();
        panel->waitForItem();
    }

    [[nodiscard]] bool isOnTheScreen() const { return user.item().look().has_value(); }

    void waitUntilOffTheScreen() {
        panel->waitUntil([this] { return !isOnTheScreen(); }, "the item to leave the screen");
    }

    void openMenu(const std::string& method = "Activate", int x = 600, int y = 400) {
        panel->click(method, x, y);
        user.menus().waitUntilOpen(1);
    }

    void closeMenu() {
        session.keyboard.press({.modifiers = {}, .key = key::escape});
        user.menus().waitUntilOpen(0);
    }

    void startCounting() {
        openMenu();
        const int line = user.menus().waitForItems(item::count).at(item::row);
        const Geometry menu = user.menus().frames().front();
        user.pointer().moveTo(menu.x + menu.width / 2, line);
        user.pointer().click();
        panel->waitUntil([this] { return !panel->text("XAyatanaLabel").empty(); }, "a countdown");
    }

    Session session;
    MessageBus bus{session.desktop};
    MenuUser user{session};
    std::optional<FakePanel> panel;
};

TEST_F(PanelTest, ShowsTheItemWhereThereIsNoTray) {
    launchInPanel();
    waitUntilOffTheScreen();
    EXPECT_EQ(panel->text("Id"), "quellbar");
    EXPECT_EQ(panel->text("Category"), "ApplicationStatus");
    EXPECT_EQ(panel->text("Status"), "Active");
    EXPECT_EQ(panel->text("IconName"), "");
    EXPECT_EQ(panel->text("XAyatanaLabelGuide"), "00:00:00");
    EXPECT_FALSE(panel->itemIsMenu());
}

TEST_F(PanelTest, IsNotToldOfAnItemThatATrayHasTaken) {
    startPanel();
    const Tray tray(session.desktop, TrayProgram::trayer);
    session.launch();
    user.item().waitUntilIn(ItemPlace::tray);
    session.settle();
    panel->waitUntil([] { return true; }, "what has arrived");
    EXPECT_FALSE(panel->hasItem());
}

TEST_F(PanelTest, LosesTheItemToATrayThatComesLater) {
    launchInPanel();
    const Tray tray(session.desktop, TrayProgram::trayer);
    panel->waitUntilItemHasGone();
    user.item().waitUntilIn(ItemPlace::tray);
}

TEST_F(PanelTest, ComesBeforeTheTrayOnKde) {
    onKde();
    const Tray tray(session.desktop, TrayProgram::trayer);
    launchInPanel();
    waitUntilOffTheScreen();
    panel.reset();
    user.item().waitUntilIn(ItemPlace::tray);
    startPanel();
    panel->waitForItem();
    waitUntilOffTheScreen();
}

TEST_F(PanelTest, ThatEndsLeavesTheItemToTheStripUntilItReturns) {
    launchInPanel();
    panel.reset();
    user.item().waitUntilIn(ItemPlace::strip);
    startPanel();
    panel->waitForItem();
    waitUntilOffTheScreen();
}

TEST_F(PanelTest, ThatTakesOverIsToldOfTheItem) {
    launchInPanel();
    FakePanel successor(bus.address());
    successor.waitForItem();
    EXPECT_EQ(successor.text("Title"), "Quellbar");
}

TEST_F(PanelTest, IsNeededBesidesAWatcher) {
    startPanel(Behaviour::showNothing);
    session.launch();
    panel->waitUntil([this] { return isOnTheScreen(); }, "the strip");
    EXPECT_FALSE(panel->hasItem());
    panel->beginToShow();
    panel->waitForItem();
    waitUntilOffTheScreen();
}

TEST_F(PanelTest, ThatRefusesLeavesTheItemToTheStrip) {
    startPanel(Behaviour::refuse);
    session.launch();
    panel->waitForRefusal();
    user.item().waitUntilIn(ItemPlace::strip);
}

TEST_F(PanelTest, LeavesTheItemToTheStripWhenTheBusEnds) {
    launchInPanel();
    bus.kill();
    user.item().waitUntilIn(ItemPlace::strip);
    user.openMenu();
    EXPECT_TRUE(session.quellbar->process().isRunning());
}

TEST_F(PanelTest, LeavesTheItemToTheStripWhenTheBusHangs) {
    bus.hang();
    session.launch();
    user.item().waitUntilIn(ItemPlace::strip);
}

TEST_F(PanelTest, HasTheMenuOpenWhereItIsClickedInWhateverWay) {
    launchInPanel();
    for (const auto* const method : {"Activate", "ContextMenu", "SecondaryActivate"}) {
        openMenu(method, 300, 200);
        const Geometry menu = user.menus().frames().front();
        EXPECT_EQ(menu.x, 300) << method;
        EXPECT_EQ(menu.y, 201) << method;
        closeMenu();
    }
}

TEST_F(PanelTest, AtTheBottomHasTheMenuAboveTheClick) {
    launchInPanel();
    openMenu("Activate", 1279, 799);
    const Geometry menu = user.menus().frames().front();
    EXPECT_EQ(menu.x + menu.width, 1280);
    EXPECT_EQ(menu.y + menu.height, 799);
}

TEST_F(PanelTest, HasTheTimeAsLabelTitleAndTip) {
    launchInPanel();
    EXPECT_EQ(panel->text("XAyatanaLabel"), "");
    EXPECT_EQ(panel->text("Title"), "Quellbar");
    EXPECT_EQ(panel->tip(), "Quellbar");
    startCounting();
    panel->waitForSignal("XAyatanaNewLabel");
    EXPECT_TRUE(panel->text("XAyatanaLabel").starts_with("1:59:"));
    panel->waitForSignal("NewToolTip");
    EXPECT_TRUE(panel->tip().starts_with("Quellbar, Keep Awake 1:59:"));
    panel->waitForSignal("NewTitle");
    EXPECT_TRUE(panel->text("Title").starts_with("Quellbar, Keep Awake 1:59:"));
}

TEST_F(PanelTest, HasSquarePicturesOfManySizes) {
    launchInPanel();
    std::vector<int> sides;
    for (const BusPicture& picture : panel->pictures()) {
        EXPECT_EQ(picture.width, picture.height);
        EXPECT_EQ(picture.bytes.size(),
                  4 * static_cast<std::size_t>(picture.width * picture.height));
        EXPECT_TRUE(std::ranges::any_of(picture.bytes, [](auto byte) { return byte != 0; }));
        sides.push_back(picture.width);
    }
    EXPECT_EQ(sides, (std::vector{16, 22, 24, 32, 44, 48, 64}));
}

TEST_F(PanelTest, HasTheTimeInThePicturesOnKde) {
    onKde();
    launchInPanel();
    EXPECT_EQ(panel->pictures().back().countRed(), 0);
    startCounting();
    EXPECT_GT(panel->pictures().back().countRed(), 30);
}

TEST_F(PanelTest, HasNoTimeInThePicturesWhereTheLabelHasIt) {
    launchInPanel();
    const auto idle = panel->pictures().back().bytes;
    startCounting();
    EXPECT_NE(panel->pictures().back().bytes, idle);
    EXPECT_EQ(panel->pictures().back().countRed(), 0);
}

} // namespace
