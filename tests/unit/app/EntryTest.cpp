#include "app/Entry.h"

#include "platform/simulated/Desktop.h"
#include "unit/support/Installation.h"

#include <gmock/gmock.h>

namespace {

using simulated::desktop;
using testing::ElementsAre;

TEST(Entry, MakesTheApplicationGivesItItsDelegateAndRunsIt) {
    installQuellbar();
    desktop().mainQueue.post([] { desktop().application.quit(); });
    EXPECT_EQ(runQuellbar(), 0);
    EXPECT_THAT(desktop().calls.of({"Application::shared", "setDelegate", "run",
                                    "setActivationPolicy", "unregisterEventHotKey"}),
                ElementsAre("Application::shared()", "setDelegate()", "run()",
                            "setActivationPolicy(accessory)", "unregisterEventHotKey(46, 0x900)"));
}

TEST(Entry, AsksNothingOfTheDesktopBeforeTheProgramHasLaunched) {
    installQuellbar();
    desktop().calls.during("run()", [] {
        EXPECT_THAT(desktop().calls.all(),
                    ElementsAre("Application::shared()", "setDelegate()", "run()"));
        EXPECT_FALSE(desktop().application.hasLaunched());
    });
    desktop().mainQueue.post([] { desktop().application.quit(); });
    runQuellbar();
    EXPECT_TRUE(desktop().application.hasLaunched());
}

TEST(Entry, FromThePressOfTheShortcutToTheMinimizedWindow) {
    installQuellbar();
    const auto& inbox = desktop().workspace.launch("Mail").openWindow("Inbox");
    desktop().mainQueue.post([] { desktop().hotKeys.press({46, 0x900}); });
    desktop().calls.during("setAttributeValue(Inbox, AXMinimized, true)",
                           [] { desktop().mainQueue.post([] { desktop().application.quit(); }); });
    EXPECT_EQ(runQuellbar(), 0);
    EXPECT_TRUE(inbox.isMinimized);
}

TEST(EntryDeathTest, WithoutADesktopEndsWithStatusOne) {
    desktop().application.start = simulated::Application::Start::findsNoDesktop;
    EXPECT_EXIT(runQuellbar(), testing::ExitedWithCode(1), "there is no desktop");
}

TEST(EntryDeathTest, ASecondStartEndsWithStatusZero) {
    desktop().application.start = simulated::Application::Start::findsItRunning;
    EXPECT_EXIT(runQuellbar(), testing::ExitedWithCode(0), "runs already");
}

} // namespace
