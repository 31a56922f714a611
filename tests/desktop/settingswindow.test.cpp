// The settings window, under a real pointer and a real keyboard: what it stores, and what that
// does.
#include "tests/desktop/Session.h"
#include "tests/desktop/support/KeyGrabs.h"
#include "tests/desktop/support/OwnWindows.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

namespace {

using namespace desktop;
namespace fs = std::filesystem;

// In points, from the bottom left of the window's content.
constexpr ContentPoint recorder{.x = 260, .y = 302};
constexpr ContentPoint durationField{.x = 240, .y = 230};
constexpr ContentPoint stepUp{.x = 296, .y = 236};
constexpr ContentPoint stepDown{.x = 296, .y = 224};
constexpr ContentPoint autoLaunchCheckbox{.x = 60, .y = 142};
constexpr ContentPoint dockIconCheckbox{.x = 60, .y = 112};
constexpr ContentPoint shortcutsCheckbox{.x = 60, .y = 82};

const Chord controlShiftK{.modifiers = {key::leftControl, key::leftShift}, .key = key::k};
const Chord superO{.modifiers = {key::leftSuper}, .key = key::o};

class SettingsWindow : public testing::Test {
  protected:
    void open(std::string_view settings = "{}") {
        storeDefaults(session.desktop, settings);
        session.launch();
        window = own.openSettings();
    }

    void click(ContentPoint place) { own.click(window, place); }
    void press(xcb_keycode_t key) { session.keyboard.press({.modifiers = {}, .key = key}); }
    void record(const Chord& chord) {
        click(recorder);
        session.keyboard.press(chord);
    }

    [[nodiscard]] std::string stored() const {
        std::ifstream stream(defaultsFile(session.desktop), std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), {}};
    }
    [[nodiscard]] bool stores(const std::string& text) const {
        return stored().find(text) != std::string::npos;
    }
    void waitUntilStored(const std::string& text) {
        waitUntil([&] { return stores(text); }, text + " to be stored, beside " + stored());
    }
    void waitUntilStoredShortcut(const std::string& bytes) {
        const std::string whole = defaultsWithShortcut(bytes);
        const auto begin = whole.find(R"("data": ")") + 9;
        waitUntilStored(whole.substr(begin, whole.find('"', begin) - begin));
    }
    void waitUntilDuration(const std::string& seconds) {
        waitUntilStored(R"("keepAwakeDurationSeconds": )" + seconds);
    }

    /// Whether nobody holds the keys.
    [[nodiscard]] bool isFree(const Chord& chord) const {
        return KeyGrabs(session.desktop.display()).isFree(chord);
    }

    Session session;
    OwnWindows own{session.desktop.display()};
    xcb_window_t window = XCB_NONE;
};

TEST_F(SettingsWindow, RecordsAShortcutThatWorksAtOnce) {
    open();
    record(controlShiftK);
    waitUntilStoredShortcut(R"({"keyCode":40,"modifiers":4608})");
    waitUntil([&] { return !isFree(controlShiftK); }, "the shortcut to be taken");
    EXPECT_TRUE(session.minimizesBy(controlShiftK));
    EXPECT_FALSE(session.minimizesBy(defaultShortcut));
}

TEST_F(SettingsWindow, RecordsWithShortcutsOffAndRegistersWhenTheyAreSwitchedOn) {
    open(R"({"shortcutsEnabled": false})");
    record(controlShiftK);
    waitUntilStoredShortcut(R"({"keyCode":40,"modifiers":4608})");
    EXPECT_FALSE(session.minimizesBy(controlShiftK));
    click(shortcutsCheckbox);
    waitUntilStored(R"("shortcutsEnabled": true)");
    waitUntil([&] { return !isFree(controlShiftK); }, "the shortcut to be taken");
    EXPECT_TRUE(session.minimizesBy(controlShiftK));
}

TEST_F(SettingsWindow, RecordsKeysThatOtherControlsWouldUse) {
    open(R"({"shortcutsEnabled": false})");
    record({.modifiers = {}, .key = key::tab});
    waitUntilStoredShortcut(R"({"keyCode":48,"modifiers":0})");
    record({.modifiers = {}, .key = key::escape});
    waitUntilStoredShortcut(R"({"keyCode":53,"modifiers":0})");
    record({.modifiers = {}, .key = key::returnKey});
    waitUntilStoredShortcut(R"({"keyCode":36,"modifiers":0})");
    record({.modifiers = {}, .key = key::space});
    waitUntilStoredShortcut(R"({"keyCode":49,"modifiers":0})");
}

TEST_F(SettingsWindow, RecordsNoModifierByItself) {
    open(R"({"shortcutsEnabled": false})");
    click(recorder);
    press(key::leftSuper);
    press(key::leftShift);
    press(key::capsLock);
    press(key::capsLock);
    session.keyboard.press(superO);
    waitUntilStoredShortcut(R"({"keyCode":31,"modifiers":256})");
}

// The key repeats while it is held; the first press ends recording, and Tab would go on to the
// field with the next.
TEST_F(SettingsWindow, RecordsAKeyThatIsHeldOnce) {
    open(R"({"shortcutsEnabled": false})");
    repeatKeysFast(session.desktop);
    click(recorder);
    session.keyboard.hold({.modifiers = {}, .key = key::tab}, std::chrono::milliseconds{300});
    waitUntilStoredShortcut(R"({"keyCode":48,"modifiers":0})");
    press(key::space); // begins to record, if the recorder still has the keyboard
    session.keyboard.press(superO);
    waitUntilStoredShortcut(R"({"keyCode":31,"modifiers":256})");
}

TEST_F(SettingsWindow, RecordsByThePositionOfTheKey) {
    run(session.desktop.command({"setxkbmap", "us,ru"}));
    open(R"({"shortcutsEnabled": false})");
    record(superO);
    waitUntilStoredShortcut(R"({"keyCode":31,"modifiers":256})");
}

TEST_F(SettingsWindow, StoresTheDurationThatIsTypedAtReturn) {
    open();
    click(durationField);
    session.keyboard.press({.modifiers = {key::leftControl}, .key = key::a});
    press(key::digit4);
    press(key::digit5);
    EXPECT_FALSE(stores("keepAwakeDurationSeconds"));
    press(key::returnKey);
    waitUntilDuration("2700");
}

TEST_F(SettingsWindow, StoresTheDurationThatIsTypedWhenTheKeyboardGoesElsewhere) {
    open();
    click(durationField);
    session.keyboard.press({.modifiers = {key::leftControl}, .key = key::a});
    press(key::digit4);
    press(key::digit5);
    press(key::tab);
    waitUntilDuration("2700");
}

TEST_F(SettingsWindow, LeavesADurationThatIsOnlyLookedAt) {
    open();
    click(durationField);
    press(key::tab);
    click(shortcutsCheckbox);
    waitUntilStored(R"("shortcutsEnabled": false)");
    EXPECT_FALSE(stores("keepAwakeDurationSeconds"));
}

TEST_F(SettingsWindow, StepsTheDurationUpAndDownFromTwoHours) {
    open();
    click(stepUp);
    waitUntilDuration("9000");
    click(stepDown);
    waitUntilDuration("7200");
    click(stepDown);
    waitUntilDuration("5400");
}

// The stepper has a number of its own.
TEST_F(SettingsWindow, StepsFromTheSteppersNumberWhateverWasTyped) {
    open();
    click(durationField);
    session.keyboard.press({.modifiers = {key::leftControl}, .key = key::a});
    press(key::digit5);
    press(key::digit0);
    press(key::digit0);
    press(key::returnKey);
    waitUntilDuration("30000");
    click(stepUp);
    waitUntilDuration("9000");
}

TEST_F(SettingsWindow, StepsOnAtTheOtherEnd) {
    open(R"({"keepAwakeDurationSeconds": 1800.0})");
    click(stepDown);
    waitUntilDuration("86400");
    click(stepUp);
    waitUntilDuration("1800");
}

TEST_F(SettingsWindow, SwitchesTheLoginItem) {
    const fs::path entry =
        session.desktop.configuration() / "autostart" / "io.github.quellbar.Quellbar.desktop";
    open();
    EXPECT_FALSE(fs::exists(entry));
    click(autoLaunchCheckbox);
    waitUntilStored(R"("autoLaunchAtLogin": true)");
    waitUntil([&] { return fs::exists(entry); }, "the login item");
    click(autoLaunchCheckbox);
    waitUntilStored(R"("autoLaunchAtLogin": false)");
    waitUntil([&] { return !fs::exists(entry); }, "the login item to go");
}

TEST_F(SettingsWindow, SwitchesTheDockIcon) {
    open();
    click(dockIconCheckbox);
    waitUntilStored(R"("enableDockIcon": true)");
    session.keyboard.press(defaultShortcut);
    session.windows.waitUntilHidden(window);
}

TEST_F(SettingsWindow, SwitchesTheShortcut) {
    open();
    EXPECT_FALSE(isFree(defaultShortcut));
    click(shortcutsCheckbox);
    waitUntilStored(R"("shortcutsEnabled": false)");
    waitUntil([&] { return isFree(defaultShortcut); }, "the shortcut to be given back");
    click(shortcutsCheckbox);
    waitUntil([&] { return !isFree(defaultShortcut); }, "the shortcut to be taken");
}

// Recorder, field, stepper, three checkboxes, and round again.
TEST_F(SettingsWindow, GoesFromControlToControlWithTab) {
    open(R"({"shortcutsEnabled": false})");
    click(durationField);
    press(key::tab);
    press(key::tab);
    press(key::space);
    waitUntilStored(R"("autoLaunchAtLogin": true)");
    press(key::tab);
    press(key::space);
    waitUntilStored(R"("enableDockIcon": true)");
    press(key::tab);
    press(key::space);
    waitUntilStored(R"("shortcutsEnabled": true)");
    press(key::tab);
    press(key::space);
    session.keyboard.press(superO);
    waitUntilStoredShortcut(R"({"keyCode":31,"modifiers":256})");
}

} // namespace
