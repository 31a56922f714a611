#include "contract/World.h"
#include "platform/Accessibility.h"

namespace {

using platform::ActivationPolicy;
using platform::AttributeValue;
using platform::AXError;
using platform::UIElement;
using Elements = std::vector<UIElement>;

static_assert(static_cast<int>(AXError::success) == 0);

Elements windowsOf(platform::ProcessIdentifier program) {
    AttributeValue value;
    const UIElement application = UIElement::createApplication(program);
    EXPECT_EQ(application.copyAttributeValue("AXWindows", value), AXError::success);
    const auto* const windows = std::get_if<Elements>(&value);
    return windows == nullptr ? Elements{} : *windows;
}

class AccessibilityContract : public contract::ProgramTest {
  protected:
    /// The only window of a new program.
    UIElement openWindow(const std::string& title) {
        const auto windows = windowsOf(world_->start(ActivationPolicy::regular, {title}));
        if (windows.size() != 1) {
            throw std::runtime_error(title + " is not listed");
        }
        return windows[0];
    }

    [[nodiscard]] bool becomesMinimized(const std::string& title, bool isMinimized = true) {
        return world_->turnUntil([&] { return world_->isMinimized(title) == isMinimized; });
    }
};

TEST_F(AccessibilityContract, TheProgramIsTrustedWhereNothingStandsAgainstIt) {
    EXPECT_TRUE(platform::isProcessTrusted());
    EXPECT_TRUE(platform::isProcessTrustedWithOptions({}));
    EXPECT_TRUE(platform::isProcessTrustedWithOptions({.prompt = true}));
}

TEST_F(AccessibilityContract, TrustIsAskedForAnewByEachQuery) {
    world_->setTrusted(false);
    EXPECT_FALSE(platform::isProcessTrusted());
    EXPECT_FALSE(platform::isProcessTrustedWithOptions({}));
    EXPECT_FALSE(platform::isProcessTrustedWithOptions({.prompt = true}));
    world_->setTrusted(true);
    EXPECT_TRUE(platform::isProcessTrusted());
}

TEST_F(AccessibilityContract, AnApplicationListsItsWindowsAndNobodyElses) {
    const auto mail = world_->start(ActivationPolicy::regular, {"Inbox", "Draft"});
    const auto terminal = world_->start(ActivationPolicy::regular, {"Shell"});
    EXPECT_EQ(windowsOf(mail).size(), 2U);
    EXPECT_EQ(windowsOf(terminal).size(), 1U);
}

TEST_F(AccessibilityContract, AWindowThatHasClosedIsNoLongerListed) {
    const auto mail = world_->start(ActivationPolicy::regular, {"Inbox", "Draft"});
    world_->close("Draft");
    EXPECT_EQ(windowsOf(mail).size(), 1U);
}

TEST_F(AccessibilityContract, AWindowIsMinimizedAndBroughtBack) {
    const UIElement window = openWindow("Inbox");
    EXPECT_FALSE(world_->isMinimized("Inbox"));
    EXPECT_EQ(window.setAttributeValue("AXMinimized", true), AXError::success);
    EXPECT_TRUE(becomesMinimized("Inbox"));
    EXPECT_EQ(window.setAttributeValue("AXMinimized", false), AXError::success);
    EXPECT_TRUE(becomesMinimized("Inbox", false));
}

TEST_F(AccessibilityContract, AMinimizedWindowIsStillListedAndStaysMinimizedWhenAskedAgain) {
    const auto mail = world_->start(ActivationPolicy::regular, {"Inbox"});
    windowsOf(mail).at(0).setAttributeValue("AXMinimized", true);
    EXPECT_TRUE(becomesMinimized("Inbox"));
    EXPECT_EQ(windowsOf(mail).at(0).setAttributeValue("AXMinimized", true), AXError::success);
    // What is asked of a later window is done after it.
    openWindow("Shell").setAttributeValue("AXMinimized", true);
    EXPECT_TRUE(becomesMinimized("Shell"));
    EXPECT_TRUE(world_->isMinimized("Inbox"));
}

TEST_F(AccessibilityContract, OnlyTheWindowThatIsAskedIsMinimized) {
    const auto mail = world_->start(ActivationPolicy::regular, {"Inbox", "Draft"});
    world_->start(ActivationPolicy::regular, {"Shell"});
    windowsOf(mail).at(0).setAttributeValue("AXMinimized", true);
    EXPECT_TRUE(world_->turnUntil(
        [&] { return world_->isMinimized("Inbox") != world_->isMinimized("Draft"); }));
    EXPECT_FALSE(world_->isMinimized("Shell"));
}

TEST_F(AccessibilityContract, ACopyNamesTheSameWindow) {
    auto window = std::make_unique<UIElement>(openWindow("Inbox"));
    const UIElement copy = *window;
    window.reset();
    EXPECT_EQ(copy.setAttributeValue("AXMinimized", true), AXError::success);
    EXPECT_TRUE(becomesMinimized("Inbox"));
}

TEST_F(AccessibilityContract, AskingAWindowThatIsGoneIsHarmless) {
    const UIElement window = openWindow("Inbox");
    const UIElement other = openWindow("Shell");
    world_->close("Inbox");
    window.setAttributeValue("AXMinimized", true);
    EXPECT_EQ(other.setAttributeValue("AXMinimized", true), AXError::success);
    EXPECT_TRUE(becomesMinimized("Shell"));
}

TEST_F(AccessibilityContract, AnApplicationThatIsGoneCannotBeReadAndLeavesTheValueAsItWas) {
    const auto mail = world_->start(ActivationPolicy::regular, {"Inbox"});
    const UIElement application = UIElement::createApplication(mail);
    world_->quit(mail);
    AttributeValue value = platform::OtherValue{};
    EXPECT_NE(application.copyAttributeValue("AXWindows", value), AXError::success);
    EXPECT_NE(UIElement::createApplication(mail).copyAttributeValue("AXWindows", value),
              AXError::success);
    EXPECT_TRUE(std::holds_alternative<platform::OtherValue>(value));
}

TEST_F(AccessibilityContract, AnAttributeThatIsUnknownCanBeNeitherReadNorWritten) {
    const auto mail = world_->start(ActivationPolicy::regular, {"Inbox"});
    AttributeValue value = platform::OtherValue{};
    EXPECT_NE(UIElement::createApplication(mail).copyAttributeValue("AXNoSuchThing", value),
              AXError::success);
    EXPECT_TRUE(std::holds_alternative<platform::OtherValue>(value));
    EXPECT_NE(windowsOf(mail).at(0).setAttributeValue("AXNoSuchThing", true), AXError::success);
}

} // namespace
