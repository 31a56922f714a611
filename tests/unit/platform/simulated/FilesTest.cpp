#include "platform/simulated/Desktop.h"

#include <gmock/gmock.h>

namespace {

simulated::Files& files() {
    return simulated::desktop().files;
}

TEST(SimulatedFiles, AreNoneAtFirst) {
    EXPECT_FALSE(files().contains("/"));
    EXPECT_EQ(files().contentOf("/etc/passwd"), nullptr);
}

TEST(SimulatedFiles, LieInFolders) {
    files().addFile("/Applications/Quellbar/icon.png", "picture");
    EXPECT_TRUE(files().isFolder("/Applications/Quellbar"));
    EXPECT_TRUE(files().isFolder("/Applications"));
    EXPECT_FALSE(files().isFolder("/Applications/Quellbar/icon.png"));
    EXPECT_EQ(*files().contentOf("/Applications/Quellbar/icon.png"), "picture");
    EXPECT_EQ(files().contentOf("/Applications/Quellbar"), nullptr);
}

TEST(SimulatedFiles, MayChangeAndBeEmpty) {
    files().addFile("/a", "picture");
    files().addFile("/a", "");
    EXPECT_EQ(*files().contentOf("/a"), "");
}

TEST(SimulatedFiles, GoWithTheirFolder) {
    files().addFile("/folder/a", "");
    files().addFile("/folder 2/a", "");
    files().remove("/folder");
    EXPECT_FALSE(files().contains("/folder"));
    EXPECT_FALSE(files().contains("/folder/a"));
    EXPECT_TRUE(files().contains("/folder 2/a"));
}

TEST(SimulatedFilesDeathTest, ThatCannotBeAreMisuse) {
    files().addFile("/file", "");
    files().addFolder("/folder");
    EXPECT_DEATH(files().addFile("relative", ""), "is not absolute: ");
    EXPECT_DEATH(files().addFile("/folder", ""), "a file takes the place of a folder: /folder");
    EXPECT_DEATH(files().addFolder("/file"), "a folder takes the place of a file: /file");
    EXPECT_DEATH(files().addFile("/file/in", ""), "a folder takes the place of a file: /file");
    EXPECT_DEATH(files().remove("/none"), "what is not there is removed: /none");
}

} // namespace
