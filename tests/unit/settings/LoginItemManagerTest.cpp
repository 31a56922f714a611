#include "settings/LoginItemManager.h"

#include "platform/simulated/Desktop.h"

#include <gmock/gmock.h>

namespace {

using platform::LoginItemStatus;
using simulated::desktop;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr auto enabled = LoginItemStatus::enabled;
constexpr auto notRegistered = LoginItemStatus::notRegistered;
constexpr auto requiresApproval = LoginItemStatus::requiresApproval;
constexpr auto notFound = LoginItemStatus::notFound;

/// The calls that a wish leads to while the registration stands like this.
std::vector<std::string> callsOf(bool wish, LoginItemStatus status) {
    desktop().loginItem.status = status;
    desktop().calls.clear();
    LoginItemManager::setEnabled(wish);
    return desktop().calls.all();
}

const auto nothingButTheStatus = ElementsAre("loginItemStatus()");
const auto aRegistration = ElementsAre("loginItemStatus()", "registerLoginItem()");
const auto aRemoval = ElementsAre("loginItemStatus()", "unregisterLoginItem()");

TEST(LoginItemManager, EnablingWhatIsEnabledDoesNothing) {
    EXPECT_THAT(callsOf(true, enabled), nothingButTheStatus);
    EXPECT_EQ(desktop().loginItem.status, enabled);
}

TEST(LoginItemManager, EnablingRegistersFromEveryOtherStatus) {
    for (const auto status : {notRegistered, requiresApproval, notFound}) {
        EXPECT_THAT(callsOf(true, status), aRegistration) << static_cast<int>(status);
        EXPECT_EQ(desktop().loginItem.status, enabled);
    }
}

TEST(LoginItemManager, DisablingWhatIsEnabledRemovesIt) {
    EXPECT_THAT(callsOf(false, enabled), aRemoval);
    EXPECT_EQ(desktop().loginItem.status, notRegistered);
}

TEST(LoginItemManager, DisablingWhatIsNotEnabledLeavesItAsItIs) {
    for (const auto status : {notRegistered, requiresApproval, notFound}) {
        EXPECT_THAT(callsOf(false, status), nothingButTheStatus) << static_cast<int>(status);
        EXPECT_EQ(desktop().loginItem.status, status);
    }
}

TEST(LoginItemManager, EnablingAgainRegistersAgainWhileTheUserHasNotApproved) {
    desktop().loginItem.registeringLeadsTo = requiresApproval;
    LoginItemManager::setEnabled(true);
    LoginItemManager::setEnabled(true);
    EXPECT_THAT(desktop().calls.of({"registerLoginItem"}),
                ElementsAre("registerLoginItem()", "registerLoginItem()"));
}

TEST(LoginItemManager, ReadsTheStatusAfreshEachTime) {
    LoginItemManager::setEnabled(true);
    desktop().loginItem.status = notRegistered;
    LoginItemManager::setEnabled(true);
    EXPECT_EQ(desktop().loginItem.status, enabled);
}

TEST(LoginItemManager, SuccessIsSilent) {
    LoginItemManager::setEnabled(true);
    LoginItemManager::setEnabled(false);
    EXPECT_THAT(desktop().log.lines, IsEmpty());
    EXPECT_THAT(desktop().log.messages, IsEmpty());
}

TEST(LoginItemManager, AFailedRegistrationIsOneLineInTheSystemLog) {
    desktop().loginItem.registerError = "The operation is not permitted.";
    LoginItemManager::setEnabled(true);
    EXPECT_THAT(desktop().calls.all(),
                ElementsAre("loginItemStatus()", "registerLoginItem()",
                            "systemLog(Quellbar: failed to update login item state: "
                            "The operation is not permitted.)"));
    EXPECT_EQ(desktop().loginItem.status, notRegistered);
}

TEST(LoginItemManager, AFailedRemovalIsOneLineInTheSystemLog) {
    desktop().loginItem.status = enabled;
    desktop().loginItem.unregisterError = "busy";
    LoginItemManager::setEnabled(false);
    EXPECT_THAT(desktop().calls.all(),
                ElementsAre("loginItemStatus()", "unregisterLoginItem()",
                            "systemLog(Quellbar: failed to update login item state: busy)"));
    EXPECT_EQ(desktop().loginItem.status, enabled);
}

TEST(LoginItemManager, AFailureIsTriedAgainByTheNextCallAlone) {
    desktop().loginItem.registerError = "busy";
    LoginItemManager::setEnabled(true);
    desktop().loginItem.registerError.reset();
    EXPECT_EQ(desktop().loginItem.status, notRegistered);
    LoginItemManager::setEnabled(true);
    EXPECT_EQ(desktop().loginItem.status, enabled);
    EXPECT_EQ(desktop().log.lines.size(), 1U);
}

TEST(LoginItemManager, PercentSignsAreLoggedAsTheyAre) {
    desktop().loginItem.registerError = "/home/a%20b/100%s %n %@";
    LoginItemManager::setEnabled(true);
    EXPECT_THAT(desktop().log.lines, ElementsAre("Quellbar: failed to update login item state: "
                                                 "/home/a%20b/100%s %n %@"));
}

TEST(LoginItemManager, AnErrorWithoutADescriptionIsLoggedToo) {
    desktop().loginItem.registerError = "";
    LoginItemManager::setEnabled(true);
    EXPECT_THAT(desktop().log.lines, ElementsAre("Quellbar: failed to update login item state: "));
}

TEST(LoginItemManager, ReadsAndStoresNoSetting) {
    LoginItemManager::setEnabled(true);
    EXPECT_THAT(desktop().calls.all(), aRegistration);
    EXPECT_THAT(desktop().userDefaults.stored, IsEmpty());
}

} // namespace
