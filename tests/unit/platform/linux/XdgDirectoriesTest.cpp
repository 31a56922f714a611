#include "platform/linux/files/XdgDirectories.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace {

using platform::linux_host::absolutePathsIn;
using platform::linux_host::configDirectories;
using platform::linux_host::configHome;

using Paths = std::vector<std::filesystem::path>;

void setOrUnset(const char* variable, const char* value) {
    if (value == nullptr) {
        ::unsetenv(variable);
    } else {
        ::setenv(variable, value, 1);
    }
}

std::filesystem::path configHomeWith(const char* configHomeVariable, const char* home) {
    setOrUnset("XDG_CONFIG_HOME", configHomeVariable);
    setOrUnset("HOME", home);
    return configHome();
}

TEST(ConfigHome, IsWhatTheVariableSays) {
    EXPECT_EQ(configHomeWith("/somewhere/else", "/home/user"), "/somewhere/else");
    EXPECT_EQ(configHomeWith("/somewhere/else", nullptr), "/somewhere/else");
}

TEST(ConfigHome, IsInTheHomeFolderOtherwise) {
    EXPECT_EQ(configHomeWith(nullptr, "/home/user"), "/home/user/.config");
    EXPECT_EQ(configHomeWith("", "/home/user"), "/home/user/.config");
}

TEST(ConfigHome, IgnoresARelativeVariable) {
    EXPECT_EQ(configHomeWith("somewhere", "/home/user"), "/home/user/.config");
    EXPECT_EQ(configHomeWith("./somewhere", nullptr), "");
}

TEST(ConfigHome, IsNowhereWithoutAHomeFolder) {
    EXPECT_EQ(configHomeWith(nullptr, nullptr), "");
    EXPECT_EQ(configHomeWith("", ""), "");
    EXPECT_EQ(configHomeWith(nullptr, "home/user"), "");
}

TEST(ConfigDirectories, AreWhatTheVariableSaysInItsOrder) {
    setOrUnset("XDG_CONFIG_DIRS", "/one:/two");
    EXPECT_EQ(configDirectories(), (Paths{"/one", "/two"}));
}

TEST(ConfigDirectories, AreTheUsualOneOtherwise) {
    for (const char* const value : std::initializer_list<const char*>{nullptr, ""}) {
        setOrUnset("XDG_CONFIG_DIRS", value);
        EXPECT_EQ(configDirectories(), Paths{"/etc/xdg"});
    }
}

TEST(PathList, EmptyAndRelativePathsArePassedOver) {
    EXPECT_EQ(absolutePathsIn(":/one::two:./three:/four:"), (Paths{"/one", "/four"}));
    EXPECT_EQ(absolutePathsIn(""), Paths{});
    EXPECT_EQ(absolutePathsIn("."), Paths{});
}

} // namespace
