#include "platform/Color.h"
#include "unit/menubar/StatusMenuTest.h"

namespace {

using namespace std::chrono_literals;
using platform::AttributedString;
using platform::Color;
using platform::Font;
using simulated::desktop;
using testing::ElementsAre;
using testing::IsEmpty;

class StatusButton : public WithStatusMenu {
  protected:
    /// The name of the button's image, followed by a star where it takes the bar's colour.
    static std::string icon() {
        const auto& image = button().image;
        return simulated::nameOf(image.get()) + (image && image->isTemplate() ? "*" : "");
    }
    static std::string titleWith(double remaining) {
        KeepAwakeManager::shared().start(remaining);
        return button().title.string;
    }
    static std::string toggleTitle() { return submenu("Keep Awake Controls").items().at(0)->title; }
    static void expectOff() {
        EXPECT_EQ(icon(), "menubar_icon*");
        EXPECT_EQ(button().title, AttributedString{});
        EXPECT_EQ(toggleTitle(), "Turn On");
    }
};

TEST_F(StatusButton, BeginsWithTheTemplateIconWithoutATitle) {
    expectOff();
}

TEST_F(StatusButton, HasItsImageBeforeItsTitle) {
    EXPECT_EQ(button().imagePosition, platform::ImagePosition::imageLeading);
}

TEST_F(StatusButton, DuringARunShowsTheActiveIconInItsOwnColours) {
    keepAwake.start(60);
    EXPECT_EQ(icon(), "menubar_icon_active");
    EXPECT_EQ(toggleTitle(), "Turn Off");
}

TEST_F(StatusButton, DuringARunShowsTheTimeWithOneLeadingSpaceAndThreeAttributes) {
    keepAwake.start(1799);
    EXPECT_EQ(button().title, (AttributedString{.string = " 29:59",
                                                .foregroundColor = Color::systemRed,
                                                .font = Font::menuBar(0),
                                                .baselineOffset = 0}));
}

TEST_F(StatusButton, DuringARunLeavesThePlainTitleAlone) {
    keepAwake.start(60);
    desktop().calls.clear();
    keepAwake.adjust(60);
    EXPECT_THAT(desktop().calls.of({"setTitle", "setAttributedTitle"}),
                ElementsAre("setAttributedTitle(\" 2:00\")"));
}

TEST_F(StatusButton, HasHoursFromAnHourOn) {
    EXPECT_EQ(titleWith(3599), " 59:59");
    EXPECT_EQ(titleWith(3600), " 1:00:00");
    EXPECT_EQ(titleWith(5400), " 1:30:00");
    EXPECT_EQ(titleWith(99 * 86'400), " 2376:00:00");
}

TEST_F(StatusButton, CountsDown) {
    keepAwake.start(60);
    desktop().runLoop.run(2s);
    EXPECT_EQ(button().title.string, " 0:58");
}

TEST_F(StatusButton, IsAsBeforeWhenTheMenuEndsTheRun) {
    keepAwake.start(60);
    choose({"Keep Awake Controls", "Turn Off"});
    expectOff();
}

TEST_F(StatusButton, IsAsBeforeWhenTheRowEndsTheRun) {
    keepAwake.start(60);
    item().openMenu().click(rowItem());
    expectOff();
}

TEST_F(StatusButton, IsAsBeforeWhenTheCountdownEndsTheRun) {
    keepAwake.start(2);
    desktop().runLoop.run(2s);
    expectOff();
}

TEST_F(StatusButton, ClearsTheAttributedTitleAndThenThePlainOne) {
    keepAwake.start(60);
    desktop().calls.clear();
    keepAwake.stop();
    EXPECT_THAT(desktop().calls.of({"MenuItem::setTitle", "setStringValue",
                                    "StatusBarButton::setImage", "setAttributedTitle", "setTitle"}),
                ElementsAre("MenuItem::setTitle(Turn Off, Turn On)",
                            "setStringValue(Keep Awake: Off)",
                            "StatusBarButton::setImage(menubar_icon)", "setAttributedTitle(\"\")",
                            "setTitle(\"\")"));
}

TEST_F(StatusButton, LooksTheSameHoweverOftenItIsTold) {
    keepAwake.start(60);
    const auto title = button().title;
    controller->keepAwakeDidChangeState(true, 60);
    controller->keepAwakeDidChangeState(true, 60);
    EXPECT_EQ(button().title, title);
    EXPECT_EQ(icon(), "menubar_icon_active");
    controller->keepAwakeDidChangeState(false, 0);
    controller->keepAwakeDidChangeState(false, 0);
    expectOff();
}

TEST_F(StatusButton, ShowsWhatItIsToldAndNotWhatTheManagerKnows) {
    controller->keepAwakeDidChangeState(true, 59);
    EXPECT_EQ(button().title.string, " 0:59");
    EXPECT_EQ(rowText().text(), "Keep Awake: 0:59 remaining");
    EXPECT_EQ(toggleTitle(), "Turn Off");
}

TEST_F(StatusButton, SetsTheTemplateFlagEachTimeItShowsTheIcon) {
    keepAwake.start(60);
    keepAwake.stop();
    EXPECT_THAT(desktop().calls.of({"setTemplate"}),
                ElementsAre("setTemplate(menubar_icon, true)", // the stop with which a start begins
                            "setTemplate(menubar_icon_active, false)",
                            "setTemplate(menubar_icon, true)"));
}

TEST_F(StatusButton, ShowsTheTimeAloneWhereTheActiveIconIsMissing) {
    desktop().files.addFolder(desktop().bundle.path / "Quellbar_Quellbar.bundle");
    desktop().files.remove(desktop().bundle.path / "menubar_icon_active.png");
    keepAwake.start(60);
    EXPECT_EQ(button().image, nullptr);
    EXPECT_EQ(button().title.string, " 1:00");
    keepAwake.stop();
    expectOff();
}

TEST_F(StatusButton, ShowsNoIconWhereItIsMissingAndSaysNothing) {
    desktop().files.addFolder(desktop().bundle.path / "Quellbar_Quellbar.bundle");
    desktop().files.remove(desktop().bundle.path / "menubar_icon.png");
    controller.reset();
    create();
    EXPECT_EQ(button().image, nullptr);
    EXPECT_THAT(desktop().log.lines, IsEmpty());
    EXPECT_THAT(desktop().log.messages, IsEmpty());
}

} // namespace
