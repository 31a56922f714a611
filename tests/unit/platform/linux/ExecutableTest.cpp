#include "TemporaryFolder.h"

#include "platform/linux/files/Executable.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace {

namespace fs = std::filesystem;
using platform::linux_host::commandFor;
using platform::linux_host::findProgram;
using platform::linux_host::ownExecutable;

class Executable : public testing::Test {
  protected:
    fs::path addProgram(const fs::path& name, fs::perms perms = fs::perms::owner_all) const {
        folder.write(name, "#!/bin/sh\n");
        fs::permissions(folder.path() / name, perms);
        return folder.path() / name;
    }

    TemporaryFolder folder;
    std::string searchPath =
        (folder.path() / "first").string() + ":relative::" + (folder.path() / "second").string();
};

TEST_F(Executable, OfThisProgramIsTheFileThatRuns) {
    EXPECT_EQ(ownExecutable(), fs::canonical("/proc/self/exe"));
}

TEST_F(Executable, InAnAppImageIsTheImage) {
    const fs::path image = folder.path() / "Quellbar.AppImage";
    ::setenv("APPIMAGE", image.c_str(), 1);
    ::setenv("APPDIR", ownExecutable().parent_path().c_str(), 1);
    EXPECT_EQ(ownExecutable(), image);
}

TEST_F(Executable, StartedFromWithinAnotherAppImageIsItsOwn) {
    ::setenv("APPIMAGE", (folder.path() / "Editor.AppImage").c_str(), 1);
    ::setenv("APPDIR", folder.path().c_str(), 1);
    EXPECT_EQ(ownExecutable(), fs::canonical("/proc/self/exe"));
}

TEST_F(Executable, APathStandsForItself) {
    const fs::path file = addProgram("my programs/quellbar");
    EXPECT_EQ(findProgram(file.native(), ""), file);
}

TEST_F(Executable, ANameStandsForTheFirstProgramOfThatNameInThePath) {
    const fs::path second = addProgram("second/quellbar");
    EXPECT_EQ(findProgram("quellbar", searchPath), second);
    const fs::path first = addProgram("first/quellbar");
    EXPECT_EQ(findProgram("quellbar", searchPath), first);
}

TEST_F(Executable, ALinkStandsForItsTarget) {
    const fs::path file = addProgram("opt/quellbar-1");
    fs::create_directories(folder.path() / "first");
    fs::create_symlink(file, folder.path() / "first/quellbar");
    EXPECT_EQ(findProgram("quellbar", searchPath), file);
}

TEST_F(Executable, WhatCannotBeExecutedIsNoProgram) {
    addProgram("first/quellbar", fs::perms::owner_read);
    fs::create_directories(folder.path() / "second/quellbar");
    EXPECT_EQ(findProgram("quellbar", searchPath), "");
    EXPECT_EQ(findProgram((folder.path() / "first/quellbar").native(), searchPath), "");
    EXPECT_EQ(findProgram("", searchPath), "");
    EXPECT_EQ(findProgram("/nowhere/quellbar", searchPath), "");
}

TEST_F(Executable, InThePathIsCalledByItsName) {
    EXPECT_EQ(commandFor(addProgram("second/quellbar"), searchPath), "quellbar");
}

TEST_F(Executable, OutsideThePathOrHiddenThereIsCalledByItsPath) {
    const fs::path elsewhere = addProgram("opt/quellbar");
    EXPECT_EQ(commandFor(elsewhere, searchPath), elsewhere);
    const fs::path hidden = addProgram("second/quellbar");
    addProgram("first/quellbar");
    EXPECT_EQ(commandFor(hidden, searchPath), hidden);
}

} // namespace
