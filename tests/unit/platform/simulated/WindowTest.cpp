#include "platform/Window.h"

#include "platform/Application.h"
#include "platform/simulated/Desktop.h"

#include <gmock/gmock.h>

namespace {

using platform::Point;
using platform::Rect;
using platform::Size;
using simulated::desktop;
using simulated::stateOf;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

/// Takes the keyboard, and every key or none.
class Typist final : public platform::View {
  public:
    explicit Typist(bool takesKeys) : View(Rect{}), takesKeys_(takesKeys) {}

    [[nodiscard]] bool acceptsFirstResponder() const override { return true; }
    void keyDown(const platform::Event& event) override {
        keys.push_back(event.keyCode);
        if (!takesKeys_) {
            View::keyDown(event);
        }
    }

    std::vector<std::uint16_t> keys;

  private:
    const bool takesKeys_;
};

class SimulatedProgramWindow : public testing::Test {
  protected:
    SimulatedProgramWindow() { platform::Application::shared(); }

    static void show(platform::Window& window) {
        window.makeKeyAndOrderFront();
        platform::Application::shared().activateIgnoringOtherApps();
    }
    [[nodiscard]] simulated::ProgramWindow& shown() const { return stateOf(window); }

    platform::Window window{{400, 300}, "Window"};
};

using SimulatedProgramWindowDeathTest = SimulatedProgramWindow;

TEST_F(SimulatedProgramWindow, IsNotOnTheScreenBeforeItIsShown) {
    EXPECT_FALSE(shown().isOpen());
    EXPECT_FALSE(shown().isVisible());
    show(window);
    EXPECT_TRUE(shown().isVisible());
    EXPECT_TRUE(shown().isKey());
}

TEST_F(SimulatedProgramWindow, IsAmongTheWindowsOfItsProgramWhileItIsOpen) {
    const auto& self = desktop().application.self();
    EXPECT_THAT(self.windows(), IsEmpty());
    show(window);
    ASSERT_THAT(self.windows(), SizeIs(1));
    EXPECT_EQ(self.windows().front()->title, "Window");
    show(window);
    EXPECT_THAT(self.windows(), SizeIs(1));
    shown().close();
    EXPECT_THAT(self.windows(), IsEmpty());
}

TEST_F(SimulatedProgramWindow, ThatIsMinimizedComesBackWhenItIsShown) {
    show(window);
    desktop().application.self().windows().front()->isMinimized = true;
    EXPECT_TRUE(shown().isOpen());
    EXPECT_FALSE(shown().isVisible());
    show(window);
    EXPECT_TRUE(shown().isVisible());
}

TEST_F(SimulatedProgramWindow, GoesWithItsProgram) {
    show(window);
    desktop().application.self().quit();
    EXPECT_FALSE(shown().isVisible());
}

TEST_F(SimulatedProgramWindow, ThatIsDestroyedIsGoneFromTheScreen) {
    auto another = std::make_unique<platform::Window>(Size{100, 100}, "Another");
    show(*another);
    another.reset();
    EXPECT_THAT(desktop().application.self().windows(), IsEmpty());
    EXPECT_THAT(desktop().windows.all(), ElementsAre(&shown()));
}

TEST_F(SimulatedProgramWindow, HasAContentViewOfItsSize) {
    EXPECT_EQ(window.contentView()->frame(), (Rect{{0, 0}, {400, 300}}));
    EXPECT_EQ(window.contentView()->window(), &window);
}

TEST_F(SimulatedProgramWindow, MayHaveNoContentView) {
    desktop().windows.haveContentView = false;
    EXPECT_EQ(platform::Window({100, 100}, "Empty").contentView(), nullptr);
}

TEST_F(SimulatedProgramWindow, IsPutIntoTheMiddleOfTheFirstScreen) {
    desktop().screens.screens = {{{{100, 50}, {1000, 800}}}, {{{1100, 0}, {1920, 1080}}}};
    window.center();
    EXPECT_EQ(shown().origin(), (Point{400, 300}));
    desktop().screens.screens.clear();
    window.center();
    EXPECT_EQ(shown().origin(), (Point{400, 300}));
}

TEST_F(SimulatedProgramWindow, InFrontHasTheKeyboardWhileItsProgramIsActive) {
    platform::Window another({100, 100}, "Another");
    show(window);
    show(another);
    EXPECT_TRUE(stateOf(another).isKey());
    EXPECT_FALSE(shown().isKey());
    stateOf(another).close();
    EXPECT_TRUE(shown().isKey());
    desktop().application.deactivate();
    EXPECT_FALSE(shown().isKey());
}

TEST_F(SimulatedProgramWindow, TakesTheKeyboardWhenTheUserClicksIntoIt) {
    const auto view = std::make_shared<platform::View>(Rect{});
    int clicks = 0;
    view->addClickGestureRecognizer([&] { ++clicks; });
    window.contentView()->addSubview(view);
    show(window);
    desktop().application.deactivate();
    stateOf(*view).click();
    EXPECT_TRUE(shown().isKey());
    EXPECT_EQ(clicks, 1);
}

TEST_F(SimulatedProgramWindow, WithoutActivationHasNoKeyboard) {
    desktop().application.declinesActivation = true;
    show(window);
    EXPECT_TRUE(shown().isVisible());
    EXPECT_FALSE(shown().isKey());
}

TEST_F(SimulatedProgramWindow, GivesTheKeyboardToAViewThatTakesIt) {
    const auto typist = std::make_shared<Typist>(true);
    const auto picture = std::make_shared<platform::View>(Rect{});
    window.contentView()->addSubview(typist);
    window.contentView()->addSubview(picture);
    show(window);
    EXPECT_TRUE(window.makeFirstResponder(*typist));
    EXPECT_FALSE(window.makeFirstResponder(*picture));
    shown().pressKey({{}, 0, 12});
    EXPECT_THAT(typist->keys, ElementsAre(12));
    EXPECT_THAT(shown().unansweredKeys(), IsEmpty());
}

TEST_F(SimulatedProgramWindow, NotesTheKeysThatNobodyTakes) {
    const auto typist = std::make_shared<Typist>(false);
    window.contentView()->addSubview(typist);
    show(window);
    shown().pressKey({{}, 0, 12});
    window.makeFirstResponder(*typist);
    shown().pressKey({{}, 0, 13});
    EXPECT_THAT(shown().unansweredKeys(), SizeIs(2));
}

TEST_F(SimulatedProgramWindow, OffersAKeyToTheViewsAroundTheOneThatPassesItOn) {
    const auto outer = std::make_shared<Typist>(true);
    const auto inner = std::make_shared<Typist>(false);
    outer->addSubview(inner);
    window.contentView()->addSubview(outer);
    show(window);
    window.makeFirstResponder(*inner);
    shown().pressKey({{}, 0, 12});
    EXPECT_THAT(outer->keys, ElementsAre(12));
}

TEST_F(SimulatedProgramWindow, RemembersWhoHadTheKeyboardWhileItIsClosed) {
    const auto typist = std::make_shared<Typist>(true);
    window.contentView()->addSubview(typist);
    show(window);
    window.makeFirstResponder(*typist);
    shown().close();
    show(window);
    EXPECT_EQ(shown().firstResponder(), &stateOf(*typist));
}

TEST_F(SimulatedProgramWindow, MayRefuseTheKeyboard) {
    const auto typist = std::make_shared<Typist>(true);
    window.contentView()->addSubview(typist);
    desktop().windows.refuseFirstResponder = true;
    EXPECT_FALSE(window.makeFirstResponder(*typist));
    EXPECT_EQ(shown().firstResponder(), nullptr);
}

TEST_F(SimulatedProgramWindowDeathTest, UsedAsNoWindowCanBeIsMisuse) {
    const auto elsewhere = std::make_shared<Typist>(true);
    EXPECT_DEATH(shown().close(), "the user closes a window that is not on the screen: Window");
    EXPECT_DEATH(shown().moveTo({}), "the user moves a window that is not on the screen: Window");
    EXPECT_DEATH(shown().pressKey({}),
                 "the user types into a window that is not on the screen: Window");
    EXPECT_DEATH(static_cast<void>(window.makeFirstResponder(*elsewhere)),
                 "a view gets the keyboard of a window that it is not in: Window");
    show(window);
    desktop().application.deactivate();
    EXPECT_DEATH(shown().pressKey({}),
                 "the user types into a window that does not have the keyboard: Window");
    EXPECT_DEATH(static_cast<void>(shown().checkbox("Box")),
                 "there is no checkbox \"Box\" in the window Window");
    EXPECT_DEATH(static_cast<void>(shown().editableField()),
                 "there is no field to edit in the window Window");
    EXPECT_DEATH(static_cast<void>(shown().stepper()), "there is no stepper in the window Window");
    EXPECT_DEATH(static_cast<void>(desktop().windows.titled("None")),
                 "there is not one window \"None\"");
}

} // namespace
