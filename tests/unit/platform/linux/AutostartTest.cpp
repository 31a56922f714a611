#include "TemporaryFolder.h"

#include "platform/linux/loginitem/Autostart.h"
#include "platform/linux/loginitem/DesktopEntry.h"

#include <gtest/gtest.h>

namespace {

namespace fs = std::filesystem;
using platform::LoginItemStatus;
using platform::linux_host::DesktopEntry;

constexpr const char* userEntry = "home/autostart/io.github.quellbar.Quellbar.desktop";
constexpr const char* systemEntry = "xdg/autostart/io.github.quellbar.Quellbar.desktop";

/// A program in a folder of its own, and folders for the user and for the system.
class Autostart : public testing::Test {
  protected:
    void SetUp() override {
        folder.write(executable.lexically_relative(folder.path()), "#!/bin/sh\n");
        fs::permissions(executable, fs::perms::owner_all);
    }

    [[nodiscard]] platform::linux_host::Autostart autostart() const {
        return {{.user = user, .system = {folder.path() / "xdg/autostart"}},
                {.executable = executable, .searchPath = searchPath}};
    }
    [[nodiscard]] LoginItemStatus status() const { return autostart().status(); }

    [[nodiscard]] std::string startingIt() const {
        return "[Desktop Entry]\nType=Application\nExec=" + executable.string() + "\n";
    }

    TemporaryFolder folder;
    fs::path user = folder.path() / "home/autostart";
    fs::path executable = folder.path() / "bin/quellbar";
    std::string searchPath;
};

TEST_F(Autostart, WithoutAnEntryIsNotRegistered) {
    EXPECT_EQ(status(), LoginItemStatus::notRegistered);
}

TEST_F(Autostart, AskingForTheStatusMakesNothing) {
    EXPECT_EQ(status(), LoginItemStatus::notRegistered);
    EXPECT_FALSE(fs::exists(user));
}

TEST_F(Autostart, OnceEnabledIsEnabled) {
    autostart().enable();
    EXPECT_EQ(status(), LoginItemStatus::enabled);
    const DesktopEntry entry(folder.read(userEntry));
    EXPECT_EQ(entry.string("Exec"), '"' + executable.string() + '"');
    EXPECT_EQ(entry.string("TryExec"), executable.string());
    EXPECT_EQ(entry.string("OnlyShowIn"), std::nullopt);
}

TEST_F(Autostart, InThePathIsStartedByItsName) {
    searchPath = executable.parent_path();
    autostart().enable();
    EXPECT_EQ(DesktopEntry(folder.read(userEntry)).string("Exec"), "\"quellbar\"");
    EXPECT_EQ(status(), LoginItemStatus::enabled);
}

TEST_F(Autostart, OnceDisabledIsNotRegisteredAndLeavesNoFile) {
    autostart().enable();
    autostart().disable();
    EXPECT_EQ(status(), LoginItemStatus::notRegistered);
    EXPECT_TRUE(fs::is_empty(user));
}

TEST_F(Autostart, DisablingWithoutAnEntryIsNoError) {
    EXPECT_NO_THROW(autostart().disable());
}

TEST_F(Autostart, AnEntryThatTheUserTurnedOffRequiresApproval) {
    for (const std::string line : {"Hidden=true", "X-GNOME-Autostart-enabled=false"}) {
        folder.write(userEntry, startingIt() + line + "\n");
        EXPECT_EQ(status(), LoginItemStatus::requiresApproval) << line;
    }
}

TEST_F(Autostart, AnEntryThatIsExpresslyOnIsEnabled) {
    folder.write(userEntry, startingIt() + "Hidden=false\nX-GNOME-Autostart-enabled=true\n");
    EXPECT_EQ(status(), LoginItemStatus::enabled);
}

TEST_F(Autostart, TurnedOffStaysSoWhenTheProgramMoves) {
    folder.write(userEntry, "[Desktop Entry]\nExec=/nowhere/quellbar\nHidden=true\n");
    EXPECT_EQ(status(), LoginItemStatus::requiresApproval);
}

TEST_F(Autostart, EnablingTurnsOnWhatWasTurnedOff) {
    folder.write(userEntry, startingIt() + "Hidden=true\n");
    autostart().enable();
    EXPECT_EQ(status(), LoginItemStatus::enabled);
}

TEST_F(Autostart, AnEntryThatStartsSomethingElseIsNotRegisteredAndRewrittenWhenEnabled) {
    for (const std::string exec : {"/nowhere/quellbar", "/bin/sh", "sh -c quellbar", ""}) {
        folder.write(userEntry, "[Desktop Entry]\nExec=" + exec + "\n");
        EXPECT_EQ(status(), LoginItemStatus::notRegistered) << exec;
        autostart().enable();
        EXPECT_EQ(status(), LoginItemStatus::enabled) << exec;
    }
}

TEST_F(Autostart, AMovedProgramIsNotRegistered) {
    autostart().enable();
    const fs::path moved = folder.path() / "opt/quellbar";
    fs::create_directories(moved.parent_path());
    fs::rename(executable, moved);
    executable = moved;
    EXPECT_EQ(status(), LoginItemStatus::notRegistered);
}

TEST_F(Autostart, AFileThatIsNoEntryIsNotRegistered) {
    for (const std::string text : {"", "\n\n", "Exec=quellbar", "\xff\xff", "[Desktop Entry]"}) {
        folder.write(userEntry, text);
        EXPECT_EQ(status(), LoginItemStatus::notRegistered) << text;
    }
}

TEST_F(Autostart, TheEntryForAllUsersCountsWhereTheUserHasNone) {
    folder.write(systemEntry, startingIt());
    EXPECT_EQ(status(), LoginItemStatus::enabled);
    folder.write(userEntry, startingIt() + "Hidden=true\n");
    EXPECT_EQ(status(), LoginItemStatus::requiresApproval);
}

TEST_F(Autostart, DisablingHidesTheEntryForAllUsers) {
    folder.write(systemEntry, startingIt());
    autostart().disable();
    EXPECT_TRUE(DesktopEntry(folder.read(userEntry)).has("Hidden", "true"));
    EXPECT_EQ(status(), LoginItemStatus::requiresApproval);
    EXPECT_EQ(folder.read(systemEntry), startingIt());
}

TEST_F(Autostart, WithoutAConfigurationFolderIsNotFound) {
    user.clear();
    EXPECT_EQ(status(), LoginItemStatus::notFound);
}

TEST_F(Autostart, WithAFileInPlaceOfTheFolderIsNotFoundAndEnablingFails) {
    folder.write("home", "");
    EXPECT_EQ(status(), LoginItemStatus::notFound);
    EXPECT_THROW(autostart().enable(), std::system_error);
    EXPECT_EQ(folder.read("home"), "");
}

TEST_F(Autostart, WithAFolderInPlaceOfTheEntryCannotBeEnabled) {
    fs::create_directories(folder.path() / userEntry);
    EXPECT_EQ(status(), LoginItemStatus::notRegistered);
    EXPECT_THROW(autostart().enable(), std::system_error);
    EXPECT_EQ(std::distance(fs::directory_iterator(user), {}), 1);
}

TEST_F(Autostart, APathThatNoEntryCanHoldIsRefusedAndNothingWritten) {
    executable = folder.path() / "100%/quellbar";
    folder.write("100%/quellbar", "");
    EXPECT_THROW(autostart().enable(), std::runtime_error);
    EXPECT_FALSE(fs::exists(user));
}

TEST_F(Autostart, AnyOtherPathIsFoundAgain) {
    executable = folder.path() / "my (programs); #1 & \xc3\xbc/quellbar";
    folder.write(executable.lexically_relative(folder.path()), "");
    fs::permissions(executable, fs::perms::owner_all);
    autostart().enable();
    EXPECT_EQ(status(), LoginItemStatus::enabled);
}

} // namespace
