// The entry that has the desktops start the program at login.
#include "tests/desktop/Session.h"
#include "tests/desktop/support/KeyGrabs.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

namespace {

using namespace desktop;
namespace fs = std::filesystem;

constexpr auto failure = "Quellbar: failed to update login item state: ";

class LoginItem : public testing::Test {
  protected:
    void wish(bool isStarted) {
        storeDefaults(session.desktop, isStarted ? R"({"autoLaunchAtLogin": true})"
                                                 : R"({"autoLaunchAtLogin": false})");
    }

    void store(const std::string& text) {
        fs::create_directories(entry.parent_path());
        std::ofstream(entry) << text;
    }

    [[nodiscard]] std::string stored() const {
        std::ifstream stream(entry);
        return {std::istreambuf_iterator<char>(stream), {}};
    }

    /// The path of the program that is tested, as it stands in an entry.
    [[nodiscard]] std::string execLine() const {
        const auto program = fs::canonical(Quellbar::command(session.desktop).arguments.front());
        return "Exec=\"" + program.string() + "\"\n";
    }

    /// Launches; then one line tells of the failure, and the program goes on.
    void expectAFailureThatIsSurvived() {
        session.launch();
        EXPECT_TRUE(session.minimizesBy(defaultShortcut));
        if (!fs::exists("/run/systemd/journal/socket")) { // which would take the log
            EXPECT_EQ(session.quellbar->log().count(failure), 1U);
        }
    }

    Session session;
    const fs::path entry =
        session.desktop.configuration() / "autostart" / "io.github.quellbar.Quellbar.desktop";
};

TEST_F(LoginItem, IsRegisteredAtLaunchWhenItIsWished) {
    wish(true);
    session.launch();
    EXPECT_NE(stored().find(execLine()), std::string::npos);
    EXPECT_EQ(session.quellbar->log().count(failure), 0U);
}

TEST_F(LoginItem, IsNotRegisteredAtLaunchWhenItIsNotWished) {
    wish(false);
    session.launch();
    EXPECT_FALSE(fs::exists(entry));
}

TEST_F(LoginItem, PassesTheValidatorOfTheDesktops) {
    wish(true);
    session.launch();
    EXPECT_NO_THROW(run(session.desktop.command({"desktop-file-validate", entry})));
}

TEST_F(LoginItem, StartsTheProgramAtTheNextLogin) {
    wish(true);
    session.launch();
    session.quellbar->end();
    const auto window = session.application.open();
    Command login = session.desktop.command({"dex", "--autostart", "--environment", "Other"});
    login.environment["XDG_CONFIG_DIRS"] = "/nonexistent"; // nothing but the user's own
    const Process desktopSession(login);
    KeyGrabs probe(session.desktop.display());
    waitUntil([&] { return probe.isTaken(defaultShortcut); }, "the program to be started");
    session.keyboard.press(defaultShortcut);
    session.windows.waitUntilHidden(window);
}

TEST_F(LoginItem, ThatPointsElsewhereIsRewritten) {
    wish(true);
    store("[Desktop Entry]\nType=Application\nName=Quellbar\nExec=/old/place/quellbar\n");
    session.launch();
    EXPECT_NE(stored().find(execLine()), std::string::npos);
    EXPECT_EQ(stored().find("/old/place"), std::string::npos);
}

TEST_F(LoginItem, ThatIsThereStaysWhenItIsNotWished) {
    const std::string text = "[Desktop Entry]\nType=Application\nName=Quellbar\n" + execLine();
    wish(false);
    store(text);
    session.launch();
    EXPECT_EQ(stored(), text);
}

class TurnedOff : public LoginItem, public testing::WithParamInterface<const char*> {};

INSTANTIATE_TEST_SUITE_P(, TurnedOff,
                         testing::Values("Hidden=true\n", "X-GNOME-Autostart-enabled=false\n"),
                         [](const auto& key) { return std::to_string(key.index); });

TEST_P(TurnedOff, ByTheUserStaysSoAtLaunch) {
    const std::string text =
        "[Desktop Entry]\nType=Application\nName=Quellbar\n" + execLine() + GetParam();
    wish(true);
    store(text);
    expectAFailureThatIsSurvived();
    EXPECT_EQ(stored(), text);
}

TEST_F(LoginItem, WhoseFolderIsAFileFailsInOneLine) {
    std::ofstream(entry.parent_path()) << "not a folder";
    wish(true);
    expectAFailureThatIsSurvived();
}

TEST_F(LoginItem, ThatIsAFolderFailsInOneLine) {
    fs::create_directories(entry / "inside");
    wish(true);
    expectAFailureThatIsSurvived();
}

// A folder that takes no file from anyone, the superuser included.
TEST_F(LoginItem, WhoseFolderCannotBeWrittenFailsInOneLine) {
    fs::create_directory_symlink("/proc/self", entry.parent_path());
    wish(true);
    expectAFailureThatIsSurvived();
}

} // namespace
