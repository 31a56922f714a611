#include "platform/Accessibility.h"
#include "platform/simulated/Desktop.h"

#include <gmock/gmock.h>

namespace {

using namespace std::chrono_literals;
using platform::AttributeValue;
using platform::AXError;
using platform::UIElement;
using simulated::desktop;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

using Elements = std::vector<UIElement>;

UIElement elementOf(const simulated::RunningApplication& application) {
    return UIElement::createApplication(application.processIdentifier);
}

Elements windowsOf(const simulated::RunningApplication& application) {
    AttributeValue value;
    EXPECT_EQ(elementOf(application).copyAttributeValue("AXWindows", value), AXError::success);
    return std::get<Elements>(value);
}

TEST(SimulatedTrust, IsThereUntilItIsTakenAway) {
    EXPECT_TRUE(platform::isProcessTrusted());
    EXPECT_TRUE(platform::isProcessTrustedWithOptions({.prompt = true}));
    desktop().accessibility.isTrusted = false;
    EXPECT_FALSE(platform::isProcessTrusted());
    EXPECT_FALSE(platform::isProcessTrustedWithOptions({.prompt = true}));
}

TEST(SimulatedTrust, IsAskedForOnlyWhenMissingAndOnlyWithThePrompt) {
    platform::isProcessTrustedWithOptions({.prompt = true});
    EXPECT_EQ(desktop().accessibility.promptsShown(), 0);
    desktop().accessibility.isTrusted = false;
    platform::isProcessTrustedWithOptions({.prompt = false});
    (void)platform::isProcessTrusted();
    EXPECT_EQ(desktop().accessibility.promptsShown(), 0);
    platform::isProcessTrustedWithOptions({.prompt = true});
    platform::isProcessTrustedWithOptions({.prompt = true});
    EXPECT_EQ(desktop().accessibility.promptsShown(), 2);
}

TEST(SimulatedUIElement, ListsTheOpenWindowsOfItsApplication) {
    auto& mail = desktop().workspace.launch("Mail");
    EXPECT_THAT(windowsOf(mail), IsEmpty());
    mail.openWindow("Inbox");
    mail.openWindow("Draft").close();
    desktop().workspace.launch("Terminal").openWindow("Shell");
    EXPECT_THAT(windowsOf(mail), SizeIs(1));
}

TEST(SimulatedUIElement, MinimizesAWindowAndBringsItBack) {
    auto& mail = desktop().workspace.launch("Mail");
    const auto& inbox = mail.openWindow("Inbox");
    const UIElement window = windowsOf(mail)[0];
    EXPECT_EQ(window.setAttributeValue("AXMinimized", true), AXError::success);
    EXPECT_TRUE(inbox.isMinimized);
    EXPECT_EQ(window.setAttributeValue("AXMinimized", false), AXError::success);
    EXPECT_FALSE(inbox.isMinimized);
}

TEST(SimulatedUIElement, AWindowMayAcceptARequestAndIgnoreIt) {
    auto& mail = desktop().workspace.launch("Mail");
    auto& panel = mail.openWindow("Panel");
    panel.refusesToMinimize = true;
    EXPECT_EQ(windowsOf(mail)[0].setAttributeValue("AXMinimized", true), AXError::success);
    EXPECT_FALSE(panel.isMinimized);
}

TEST(SimulatedUIElement, AWindowMayFailARequest) {
    auto& mail = desktop().workspace.launch("Mail");
    auto& inbox = mail.openWindow("Inbox");
    inbox.writeResult = AXError::cannotComplete;
    EXPECT_EQ(windowsOf(mail)[0].setAttributeValue("AXMinimized", true), AXError::cannotComplete);
    EXPECT_FALSE(inbox.isMinimized);
}

TEST(SimulatedUIElement, AFailedReadLeavesTheValueAsItWas) {
    auto& mail = desktop().workspace.launch("Mail");
    mail.openWindow("Inbox");
    mail.readResult = AXError::apiDisabled;
    AttributeValue value = platform::OtherValue{};
    EXPECT_EQ(elementOf(mail).copyAttributeValue("AXWindows", value), AXError::apiDisabled);
    EXPECT_TRUE(std::holds_alternative<platform::OtherValue>(value));
}

TEST(SimulatedUIElement, AReadMayGiveAnyValue) {
    auto& mail = desktop().workspace.launch("Mail");
    mail.openWindow("Inbox");
    AttributeValue value = Elements{};
    mail.readValue = platform::OtherValue{};
    EXPECT_EQ(elementOf(mail).copyAttributeValue("AXWindows", value), AXError::success);
    EXPECT_TRUE(std::holds_alternative<platform::OtherValue>(value));
    mail.readValue = std::monostate{};
    EXPECT_EQ(elementOf(mail).copyAttributeValue("AXWindows", value), AXError::success);
    EXPECT_TRUE(std::holds_alternative<std::monostate>(value));
}

TEST(SimulatedUIElement, OfWhatIsGoneFails) {
    auto& mail = desktop().workspace.launch("Mail");
    auto& inbox = mail.openWindow("Inbox");
    const UIElement application = elementOf(mail);
    const UIElement window = windowsOf(mail)[0];
    inbox.close();
    EXPECT_EQ(window.setAttributeValue("AXMinimized", true), AXError::invalidUIElement);
    EXPECT_FALSE(inbox.isMinimized);
    mail.quit();
    AttributeValue value;
    EXPECT_EQ(application.copyAttributeValue("AXWindows", value), AXError::invalidUIElement);
    EXPECT_EQ(UIElement::createApplication(-1).copyAttributeValue("AXWindows", value),
              AXError::invalidUIElement);
}

TEST(SimulatedUIElement, KnowsNoOtherAttribute) {
    auto& mail = desktop().workspace.launch("Mail");
    auto& inbox = mail.openWindow("Inbox");
    const UIElement window = windowsOf(mail)[0];
    AttributeValue value;
    EXPECT_EQ(elementOf(mail).copyAttributeValue("AXMinimized", value),
              AXError::attributeUnsupported);
    EXPECT_EQ(window.copyAttributeValue("AXWindows", value), AXError::attributeUnsupported);
    EXPECT_EQ(window.setAttributeValue("AXHidden", true), AXError::attributeUnsupported);
    EXPECT_EQ(elementOf(mail).setAttributeValue("AXMinimized", true),
              AXError::attributeUnsupported);
    EXPECT_FALSE(inbox.isMinimized);
}

TEST(SimulatedUIElement, ASlowApplicationTakesItsTimeForEachCall) {
    auto& mail = desktop().workspace.launch("Mail");
    mail.openWindow("Inbox");
    mail.answersAfter = 6s;
    (void)windowsOf(mail)[0].setAttributeValue("AXMinimized", true);
    EXPECT_EQ(desktop().clock.uptime(), 12s);
}

TEST(SimulatedUIElement, CallsNameTheApplicationOrTheWindow) {
    auto& mail = desktop().workspace.launch("Mail");
    mail.openWindow("Inbox");
    (void)windowsOf(mail)[0].setAttributeValue("AXMinimized", true);
    (void)UIElement::createApplication(-7);
    EXPECT_THAT(desktop().calls.all(),
                ElementsAre("createApplication(Mail)", "copyAttributeValue(Mail, AXWindows)",
                            "setAttributeValue(Inbox, AXMinimized, true)",
                            "createApplication(process -7)"));
}

} // namespace
