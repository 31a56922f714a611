#include "platform/linux/XdgDirectories.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace {

using platform::linux_host::configHome;

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

} // namespace
