#include "TemporaryFolder.h"

#include "platform/LoginItem.h"
#include "platform/linux/application/LaunchPhase.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace {

namespace fs = std::filesystem;
using platform::LoginItemStatus;
using platform::loginItemStatus;
using platform::registerLoginItem;
using platform::unregisterLoginItem;

constexpr const char* entry = "autostart/io.github.quellbar.Quellbar.desktop";

/// The login item of this test program, in a configuration folder of its own.
class LoginItem : public testing::Test {
  protected:
    void SetUp() override {
        ::setenv("XDG_CONFIG_HOME", folder.path().c_str(), 1);
        ::setenv("XDG_CONFIG_DIRS", (folder.path() / "xdg").c_str(), 1);
    }

    void turnOff() const { folder.write(entry, folder.read(entry) + "Hidden=true\n"); }

    TemporaryFolder folder;
};

TEST_F(LoginItem, OnceRegisteredIsEnabledAndOnceUnregisteredIsGone) {
    EXPECT_EQ(loginItemStatus(), LoginItemStatus::notRegistered);
    EXPECT_FALSE(registerLoginItem());
    EXPECT_EQ(loginItemStatus(), LoginItemStatus::enabled);
    EXPECT_FALSE(unregisterLoginItem());
    EXPECT_EQ(loginItemStatus(), LoginItemStatus::notRegistered);
}

TEST_F(LoginItem, WhileLaunchingWhatTheUserTurnedOffStaysOff) {
    EXPECT_FALSE(registerLoginItem());
    turnOff();
    const std::string before = folder.read(entry);
    EXPECT_EQ(registerLoginItem().value().description,
              "turned off in the desktop's autostart settings");
    EXPECT_EQ(folder.read(entry), before);
}

TEST_F(LoginItem, AfterLaunchWhatTheUserTurnedOffIsTurnedOnWhenAskedFor) {
    EXPECT_FALSE(registerLoginItem());
    turnOff();
    platform::linux_host::endLaunch();
    EXPECT_FALSE(registerLoginItem());
    EXPECT_EQ(loginItemStatus(), LoginItemStatus::enabled);
}

TEST_F(LoginItem, WithoutAHomeThereIsNoPlaceForIt) {
    ::unsetenv("XDG_CONFIG_HOME");
    ::unsetenv("HOME");
    EXPECT_EQ(loginItemStatus(), LoginItemStatus::notFound);
    EXPECT_TRUE(registerLoginItem());
}

TEST_F(LoginItem, AFailureNamesTheFileAndTheReason) {
    fs::create_directories(folder.path() / entry);
    EXPECT_EQ(registerLoginItem().value().description,
              (folder.path() / entry).string() + ": Is a directory");
}

} // namespace
