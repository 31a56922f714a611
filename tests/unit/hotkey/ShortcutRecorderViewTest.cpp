#include "hotkey/ShortcutRecorderView.h"

#include "platform/Application.h"
#include "platform/simulated/Desktop.h"

#include <gmock/gmock.h>

#include <array>

namespace {

using simulated::desktop;
using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

constexpr std::uint32_t command = platform::modifierFlagCommand;
constexpr std::uint32_t option = platform::modifierFlagOption;
constexpr std::uint32_t control = platform::modifierFlagControl;
constexpr std::uint32_t shift = platform::modifierFlagShift;
constexpr std::uint32_t capsLock = 0x10000;

/// A recorder that shows ⌥⌘M, in a window that the user looks at.
class ShortcutRecorder : public testing::Test {
  protected:
    ShortcutRecorder() {
        platform::Application::shared();
        recorder->setFrame({{200, 290}, {120, 24}});
        recorder->onChange = [this](const KeyCombo& combo) { recorded.push_back(combo); };
        window.contentView()->addSubview(recorder);
        window.makeKeyAndOrderFront();
        platform::Application::shared().activateIgnoringOtherApps();
        desktop().calls.clear();
    }

    [[nodiscard]] simulated::View& view() const { return simulated::stateOf(*recorder); }
    [[nodiscard]] simulated::ProgramWindow& shown() const { return simulated::stateOf(window); }
    [[nodiscard]] const simulated::TextField& label() const {
        return dynamic_cast<const simulated::TextField&>(*view().subviews().at(0));
    }
    [[nodiscard]] double borderWidth() const { return view().layer()->borderWidth; }
    [[nodiscard]] bool isRecording() const { return label().text() == "Press new shortcut…"; }

    void press(std::uint16_t keyCode, std::uint32_t modifierFlags = 0) {
        shown().pressKey({{}, modifierFlags, keyCode});
    }
    void record(std::uint16_t keyCode, std::uint32_t modifierFlags = 0) {
        view().click();
        press(keyCode, modifierFlags);
    }

    platform::Window window{{420, 360}, "Window"};
    std::shared_ptr<ShortcutRecorderView> recorder =
        std::make_shared<ShortcutRecorderView>(KeyCombo{46, cmdKey | optionKey});
    std::vector<KeyCombo> recorded;
};

using ShortcutRecorderDeathTest = ShortcutRecorder;

TEST_F(ShortcutRecorder, ShowsItsShortcutWithoutABorder) {
    EXPECT_EQ(label().text(), "⌥⌘M");
    EXPECT_EQ(borderWidth(), 0);
    EXPECT_TRUE(recorder->acceptsFirstResponder());
}

TEST_F(ShortcutRecorder, HasRoundedCornersAndTheBackgroundOfControls) {
    EXPECT_EQ(view().layer()->cornerRadius, 6);
    EXPECT_EQ(view().layer()->backgroundColor, cgColor(platform::Color::controlBackground));
    EXPECT_EQ(view().layer()->borderColor, cgColor(platform::Color::controlAccent));
}

TEST_F(ShortcutRecorder, HasItsTextInTheMiddleOfAllOfIt) {
    EXPECT_EQ(label().frame(), (platform::Rect{{0, 0}, {120, 24}}));
    EXPECT_EQ(label().alignment(), platform::TextAlignment::center);
    EXPECT_EQ(label().font(), std::nullopt);
    recorder->setFrame({{0, 0}, {200, 30}});
    EXPECT_EQ(label().frame(), (platform::Rect{{0, 0}, {200, 30}}));
}

TEST_F(ShortcutRecorder, BeginsWithoutAPlace) {
    EXPECT_EQ(ShortcutRecorderView({0, 0}).frame(), platform::Rect{});
}

TEST_F(ShortcutRecorder, AfterAClickAsksForAKeyInsideABorderOf2Points) {
    view().click();
    EXPECT_EQ(label().text(), "Press new shortcut…");
    EXPECT_EQ(borderWidth(), 2);
    EXPECT_EQ(shown().firstResponder(), &view());
    EXPECT_THAT(recorded, IsEmpty());
}

TEST_F(ShortcutRecorder, RecordsTheNextKeyOnce) {
    record(46, option | command);
    EXPECT_THAT(recorded, ElementsAre(KeyCombo{46, 0x900}));
    EXPECT_EQ(label().text(), "⌥⌘M");
    EXPECT_EQ(borderWidth(), 0);
    press(12, command);
    EXPECT_THAT(recorded, SizeIs(1));
}

TEST_F(ShortcutRecorder, RecordsAKeyWithoutModifiers) {
    record(0);
    EXPECT_THAT(recorded, ElementsAre(KeyCombo{0, 0}));
    EXPECT_EQ(label().text(), "A");
}

TEST_F(ShortcutRecorder, RecordsEscapeDeleteReturnTabAndFunctionKeysLikeAnyOther) {
    for (const std::uint16_t key :
         std::to_array<std::uint16_t>({53, 51, 117, 36, 76, 48, 49, 122, 120, 126, 999})) {
        record(key);
        ASSERT_THAT(recorded, SizeIs(1));
        EXPECT_EQ(recorded.front(), (KeyCombo{key, 0}));
        EXPECT_FALSE(isRecording());
        recorded.clear();
    }
}

TEST_F(ShortcutRecorder, ShowsAQuestionMarkForEscape) {
    record(53);
    EXPECT_EQ(label().text(), "?");
}

TEST_F(ShortcutRecorder, RecordsTheHighestKeyCode) {
    record(65535, command);
    EXPECT_THAT(recorded, ElementsAre(KeyCombo{65535, 0x100}));
}

TEST_F(ShortcutRecorder, TurnsEachOfTheFourModifiersIntoItsBit) {
    const std::array<std::pair<std::uint32_t, std::uint32_t>, 5> modifiers{{
        {command, 0x100},
        {option, 0x800},
        {control, 0x1000},
        {shift, 0x200},
        {command | option | control | shift, 0x1B00},
    }};
    for (const auto& [flags, bits] : modifiers) {
        record(46, flags);
        EXPECT_EQ(recorded.back(), (KeyCombo{46, bits}));
    }
}

TEST_F(ShortcutRecorder, DropsCapsLockAndEveryOtherFlag) {
    record(12, command | capsLock);
    EXPECT_EQ(recorded.back(), (KeyCombo{12, 0x100}));
    record(12, ~(command | option | control | shift));
    EXPECT_EQ(recorded.back(), (KeyCombo{12, 0}));
}

TEST_F(ShortcutRecorder, ReportsTheSameShortcutAgain) {
    record(46, option | command);
    record(46, option | command);
    EXPECT_THAT(recorded, SizeIs(2));
    EXPECT_THAT(recorded, Each(KeyCombo{46, 0x900}));
}

TEST_F(ShortcutRecorder, WhileIdlePassesAKeyOn) {
    window.makeFirstResponder(*recorder);
    press(12, command);
    EXPECT_THAT(recorded, IsEmpty());
    EXPECT_EQ(label().text(), "⌥⌘M");
    ASSERT_THAT(shown().unansweredKeys(), SizeIs(1));
    EXPECT_EQ(shown().unansweredKeys().front().keyCode, 12);
}

TEST_F(ShortcutRecorder, ClickedTwiceIsDoneWithOneKey) {
    view().click();
    view().click();
    EXPECT_TRUE(isRecording());
    press(12);
    EXPECT_FALSE(isRecording());
    EXPECT_THAT(recorded, SizeIs(1));
}

TEST_F(ShortcutRecorder, GoesOnRecordingWhileAnotherViewHasTheKeyboard) {
    const auto field = platform::TextField::editable({{0, 0}, {60, 24}});
    window.contentView()->addSubview(field);
    view().click();
    simulated::stateOf(*field).type("5");
    EXPECT_TRUE(isRecording());
    EXPECT_THAT(recorded, IsEmpty());
    window.makeFirstResponder(*recorder);
    press(12);
    EXPECT_THAT(recorded, SizeIs(1));
}

TEST_F(ShortcutRecorder, GoesOnRecordingWhileItsWindowIsClosed) {
    view().click();
    shown().close();
    EXPECT_TRUE(isRecording());
    window.makeKeyAndOrderFront();
    press(12);
    EXPECT_THAT(recorded, ElementsAre(KeyCombo{12, 0}));
}

TEST_F(ShortcutRecorder, WhereItIsRefusedTheKeyboardRecordsOnceItHasIt) {
    desktop().windows.refuseFirstResponder = true;
    record(12);
    EXPECT_TRUE(isRecording());
    EXPECT_THAT(recorded, IsEmpty());
    desktop().windows.refuseFirstResponder = false;
    record(12);
    EXPECT_THAT(recorded, SizeIs(1));
}

TEST_F(ShortcutRecorder, MayHaveNobodyToReportTo) {
    recorder->onChange = nullptr;
    record(12, command);
    EXPECT_EQ(label().text(), "⌘Q");
}

TEST_F(ShortcutRecorder, ShowsTheNewShortcutBeforeItReportsIt) {
    recorder->onChange = [this](const KeyCombo&) {
        EXPECT_EQ(label().text(), "⌘Q");
        EXPECT_EQ(borderWidth(), 0);
    };
    record(12, command);
}

TEST_F(ShortcutRecorder, FollowsTheAppearanceWithItsBorderAloneAndWhenItsTextChanges) {
    const auto lightBackground = cgColor(platform::Color::controlBackground);
    desktop().appearance.isDark = true;
    view().click();
    EXPECT_EQ(view().layer()->borderColor, cgColor(platform::Color::controlAccent));
    EXPECT_EQ(view().layer()->backgroundColor, lightBackground);
}

TEST_F(ShortcutRecorderDeathTest, FromAnArchiveIsFatal) {
    EXPECT_DEATH(ShortcutRecorderView(platform::Coder()),
                 "Fatal error: init\\(coder:\\) has not been implemented");
}

} // namespace
