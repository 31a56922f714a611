#include "hotkey/HotKeyManager.h"
#include "settings/Preferences.h"
#include "unit/menubar/StatusMenuTest.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <random>

namespace {

using simulated::desktop;

constexpr int rounds = 1000;

std::uint64_t chosenSeed() {
    const char* const seed = std::getenv("QUELLBAR_CLICKS_SEED");
    return seed == nullptr ? std::random_device()() : std::strtoull(seed, nullptr, 10);
}

/// A user who clicks on everything but Quit, again and again, in no order, and who takes a rest now
/// and then.
class RandomClicks : public WithStatusMenu {
  protected:
    struct Target {
        std::string submenu; // empty for the menu itself
        std::size_t index;
    };

    RandomClicks() {
        desktop().workspace.launch("Mail").openWindow("Inbox");
        HotKeyManager::shared().registerHotKey(Preferences::shared().minimizeAllShortcut());
        collectTargets("", menu());
        for (const simulated::MenuItem* const each : menu().items()) {
            if (each->submenu() != nullptr) {
                collectTargets(each->title, *each->submenu());
            }
        }
    }

    void collectTargets(const std::string& title, const simulated::Menu& in) {
        for (std::size_t index = 0; index < in.items().size(); ++index) {
            const simulated::MenuItem& each = *in.items()[index];
            if (each.submenu() == nullptr && each.title != "Quit Quellbar") {
                targets.push_back({title, index});
            }
        }
    }

    void click(const Target& target) {
        simulated::Menu& opened = item().openMenu();
        simulated::Menu& in = target.submenu.empty() ? opened : opened.openSubmenu(target.submenu);
        simulated::MenuItem& clicked = *in.items().at(target.index);
        in.click(clicked);
        EXPECT_EQ(menu().isOpen(), clicked.isSeparator);
        if (menu().isOpen()) {
            menu().dismiss();
        }
    }

    // Most of it is sleep: each second that is awake would be a tick.
    void rest() {
        desktop().clock.sleep(std::chrono::seconds(dice() % 3000));
        desktop().runLoop.run(std::chrono::seconds(1 + dice() % 3));
    }

    void expectEveryRule() {
        expectKeepAwakeAsTheManagerSays();
        expectSwitchesAsStored();
        EXPECT_EQ(menu().items().size(), 12U);
        EXPECT_EQ(menu().items().at(0)->title, "Minimize All Windows  (⌥⌘M)");
        EXPECT_LE(desktop().windows.all().size(), 2U);
        EXPECT_TRUE(std::ranges::all_of(menu().items(), [](const simulated::MenuItem* each) {
            return each->isSeparator || each->isEnabled();
        }));
    }

    void expectKeepAwakeAsTheManagerSays() {
        const bool isActive = keepAwake.isActive();
        const std::string left = KeepAwakeManager::formatted(keepAwake.remainingSeconds());
        EXPECT_EQ(desktop().powerAssertions.held().size(), isActive ? 1U : 0U);
        EXPECT_EQ(desktop().runLoop.timerCount(), isActive ? 1U : 0U);
        EXPECT_EQ(submenu("Keep Awake Controls").items().at(0)->title,
                  isActive ? "Turn Off" : "Turn On");
        EXPECT_EQ(rowText().text(),
                  "Keep Awake: " + (isActive ? left + " remaining" : std::string("Off")));
        EXPECT_EQ(button().title.string, isActive ? " " + left : "");
        EXPECT_EQ(simulated::nameOf(button().image.get()),
                  isActive ? "menubar_icon_active" : "menubar_icon");
        EXPECT_EQ(button().image->isTemplate(), !isActive);
    }

    static void expectSwitchesAsStored() {
        const auto& defaults = Preferences::shared().defaults;
        EXPECT_EQ(isChecked("Preferences", "Auto Launch at Login"),
                  defaults.boolForKey("autoLaunchAtLogin"));
        EXPECT_EQ(desktop().loginItem.status == platform::LoginItemStatus::enabled,
                  defaults.boolForKey("autoLaunchAtLogin"));
        EXPECT_EQ(isChecked("Preferences", "Enable Dock Icon"),
                  defaults.boolForKey("enableDockIcon"));
        EXPECT_EQ(desktop().application.self().activationPolicy ==
                      platform::ActivationPolicy::regular,
                  defaults.boolForKey("enableDockIcon"));
        EXPECT_EQ(isChecked("Preferences", "Enable Shortcuts"),
                  defaults.boolForKey("shortcutsEnabled"));
        EXPECT_EQ(desktop().hotKeys.registrations().size(),
                  defaults.boolForKey("shortcutsEnabled") ? 1U : 0U);
        expectCornersAsStored();
    }

    static void expectCornersAsStored() {
        const ScreenCornerSet corners = Preferences::shared().hotCorners();
        const auto items = submenu("Desktop Reveal Corners").items();
        for (std::size_t index = 0; index < items.size(); ++index) {
            EXPECT_EQ(items[index]->state == platform::ControlState::on,
                      corners.contains(allScreenCorners.at(index)));
        }
    }

    const std::uint64_t seed = chosenSeed();
    std::mt19937_64 dice{seed};
    std::vector<Target> targets;
};

TEST_F(RandomClicks, AThousandOnEveryItemKeepEveryRule) {
    std::printf("QUELLBAR_CLICKS_SEED=%llu brings these clicks back\n",
                static_cast<unsigned long long>(seed));
    ASSERT_EQ(targets.size(), 19U);
    for (int round = 0; round < rounds; ++round) {
        std::ranges::shuffle(targets, dice);
        for (const Target& target : targets) {
            click(target);
            expectEveryRule();
            ASSERT_FALSE(HasFailure()) << "after a click on item " << target.index << " of \""
                                       << target.submenu << "\" in round " << round;
        }
        rest();
        expectEveryRule();
        desktop().calls.clear();
    }
    choose({"Quit Quellbar"});
    EXPECT_TRUE(desktop().application.hasTerminated());
}

} // namespace
