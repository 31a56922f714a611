// A settings file that is not what it should be: the program launches with its own defaults,
// neither crashes nor waits, and loses nothing that is stored.
#include "tests/desktop/Session.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

#include <fstream>
#include <iterator>

namespace {

using namespace desktop;
namespace fs = std::filesystem;

std::string contents(const fs::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

class Settings : public testing::Test {
  protected:
    void expectTheDefaultShortcutToWork() {
        session.launch();
        EXPECT_TRUE(session.minimizesBy(defaultShortcut));
        EXPECT_EQ(session.quellbar->end(), (Ended{.status = 0}));
    }

    Session session;
    const fs::path file = defaultsFile(session.desktop);
};

class DamagedSettings : public Settings, public testing::WithParamInterface<std::string> {};

using namespace std::string_literals;
INSTANTIATE_TEST_SUITE_P(, DamagedSettings,
                         testing::Values("", "{", "null", "[]", "42", R"("text")",
                                         R"({"shortcutsEnabled")", R"({"shortcutsEnabled": false)",
                                         "\xff\xfe{}"s, "\0\0\0\0"s, std::string(100'000, '['),
                                         R"({"enableDockIcon": {}, "hotCorners": 7})",
                                         R"({"shortcutsEnabled": "yes", "minimizeShortcut": {}})"),
                         [](const auto& damage) { return std::to_string(damage.index); });

TEST_P(DamagedSettings, AreReadAsFarAsTheyGoAndLeftAsTheyAre) {
    storeDefaults(session.desktop, GetParam());
    expectTheDefaultShortcutToWork();
    EXPECT_EQ(contents(file), GetParam());
}

TEST_F(Settings, OfHalfAMegabyteAreRead) {
    storeDefaults(session.desktop, R"({"padding": ")" + std::string(500'000, 'x') +
                                       R"(", "shortcutsEnabled": false})");
    session.launch();
    EXPECT_FALSE(session.minimizesBy(defaultShortcut));
}

TEST_F(Settings, OfManyMegabytesReadAsNoneAndAreKept) {
    storeDefaults(session.desktop, R"({"shortcutsEnabled": false})");
    fs::resize_file(file, 50'000'000);
    expectTheDefaultShortcutToWork();
    EXPECT_EQ(fs::file_size(file), 50'000'000U);
}

TEST_F(Settings, ThatAreAFolderReadAsNone) {
    fs::create_directories(file);
    expectTheDefaultShortcutToWork();
}

TEST_F(Settings, WhoseFolderIsAFileReadAsNone) {
    std::ofstream(file.parent_path()) << "not a folder";
    expectTheDefaultShortcutToWork();
}

TEST_F(Settings, WhoseLinkLeadsNowhereReadAsNone) {
    fs::create_directories(file.parent_path());
    fs::create_symlink("nowhere.json", file);
    expectTheDefaultShortcutToWork();
}

TEST_F(Settings, ThatAreAPipeAreNotWaitedFor) {
    fs::create_directories(file.parent_path());
    ASSERT_EQ(mkfifo(file.c_str(), 0600), 0);
    expectTheDefaultShortcutToWork();
}

TEST_F(Settings, WithoutEndAreNotReadForEver) {
    fs::create_directories(file.parent_path());
    fs::create_symlink("/dev/zero", file);
    expectTheDefaultShortcutToWork();
}

TEST_F(Settings, InAReadOnlyFolderAreRead) {
    storeDefaults(session.desktop, R"({"shortcutsEnabled": false})");
    fs::permissions(file, fs::perms::owner_read);
    fs::permissions(file.parent_path(), fs::perms::owner_read | fs::perms::owner_exec);
    session.launch();
    EXPECT_FALSE(session.minimizesBy(defaultShortcut));
    EXPECT_EQ(session.quellbar->end(), (Ended{.status = 0}));
    fs::permissions(file.parent_path(), fs::perms::owner_all);
}

TEST_F(Settings, BehindALinkAreReadAndTheLinkIsKept) {
    storeDefaults(session.desktop, R"({"shortcutsEnabled": false})");
    fs::rename(file, session.desktop.home() / "elsewhere.json");
    fs::create_symlink(session.desktop.home() / "elsewhere.json", file);
    session.launch();
    EXPECT_FALSE(session.minimizesBy(defaultShortcut));
    EXPECT_TRUE(fs::is_symlink(file));
}

} // namespace
