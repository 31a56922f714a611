#include "platform/linux/files/FileReplacement.h"

#include "ChildProcess.h"
#include "TemporaryFolder.h"

#include "platform/linux/files/FileIdentity.h"

#include <gtest/gtest.h>

#include <system_error>

namespace {

namespace fs = std::filesystem;
using platform::linux_host::createFolders;
using platform::linux_host::FileIdentity;
using platform::linux_host::FileReplacement;
using platform::linux_host::linkTarget;
using platform::linux_host::setAside;

using Names = std::vector<std::string>;

struct stat statusOf(const fs::path& path) {
    struct stat status {};
    EXPECT_EQ(::stat(path.c_str(), &status), 0);
    return status;
}

TEST(FileReplacement, TakesTheFilesPlaceAtOnce) {
    const TemporaryFolder folder;
    folder.write("file", "old");
    FileReplacement replacement(folder.path() / "file");
    replacement.write("new");
    EXPECT_EQ(folder.read("file"), "old");
    const FileIdentity identity(replacement.status());
    replacement.commit();
    EXPECT_EQ(folder.read("file"), "new");
    EXPECT_EQ(FileIdentity(statusOf(folder.path() / "file")), identity);
}

TEST(FileReplacement, LeavesOneFileWhetherItSucceedsOrNot) {
    const TemporaryFolder folder;
    {
        FileReplacement replacement(folder.path() / "file");
        replacement.write("new");
        EXPECT_EQ(folder.names().size(), 1);
    }
    EXPECT_EQ(folder.names(), Names{});
    FileReplacement replacement(folder.path() / "file");
    replacement.write("new");
    replacement.commit();
    EXPECT_EQ(folder.names(), Names{"file"});
}

TEST(FileReplacement, OfAFolderFailsAndLeavesNothing) {
    const TemporaryFolder folder;
    fs::create_directory(folder.path() / "file");
    {
        FileReplacement replacement(folder.path() / "file");
        replacement.write("new");
        EXPECT_THROW(replacement.commit(), std::system_error);
    }
    EXPECT_EQ(folder.names(), Names{"file"});
}

TEST(FileReplacement, IsForTheUserAloneWhateverTheUmask) {
    for (const mode_t mask : {0000U, 0022U, 0777U}) {
        const TemporaryFolder folder;
        const mode_t before = ::umask(mask);
        FileReplacement replacement(folder.path() / "file");
        replacement.write("new");
        replacement.commit();
        ::umask(before);
        EXPECT_EQ(modeOf(folder.path() / "file"), 0600U);
    }
}

TEST(CreateFolders, MakesWhatIsMissingForTheUserAlone) {
    const TemporaryFolder folder;
    createFolders(folder.path() / "one" / "two");
    EXPECT_EQ(modeOf(folder.path() / "one"), 0700U);
    EXPECT_EQ(modeOf(folder.path() / "one" / "two"), 0700U);
}

TEST(CreateFolders, LeavesWhatIsThereAsItIs) {
    const TemporaryFolder folder;
    const unsigned mode = modeOf(folder.path());
    createFolders(folder.path());
    EXPECT_EQ(modeOf(folder.path()), mode);
}

TEST(CreateFolders, CannotMakeOneInsideAFile) {
    const TemporaryFolder folder;
    folder.write("file", "");
    EXPECT_THROW(createFolders(folder.path() / "file" / "one"), std::system_error);
    EXPECT_THROW(createFolders(folder.path() / "file" / "one" / "two"), std::system_error);
}

TEST(LinkTarget, IsWhereAllLinksLead) {
    const TemporaryFolder folder;
    fs::create_directory(folder.path() / "inner");
    fs::create_symlink("inner/second", folder.path() / "first");
    fs::create_symlink(folder.path() / "third", folder.path() / "inner" / "second");
    EXPECT_EQ(linkTarget(folder.path() / "first"), folder.path() / "third");
    EXPECT_EQ(linkTarget(folder.path() / "inner"), folder.path() / "inner");
    EXPECT_EQ(linkTarget(folder.path() / "nothing"), folder.path() / "nothing");
}

TEST(LinkTarget, OfACircleIsOneOfItsLinks) {
    const TemporaryFolder folder;
    fs::create_symlink("second", folder.path() / "first");
    fs::create_symlink("first", folder.path() / "second");
    EXPECT_TRUE(fs::is_symlink(fs::symlink_status(linkTarget(folder.path() / "first"))));
}

TEST(SetAside, TakesTheFirstFreeName) {
    const TemporaryFolder folder;
    for (const char* const text : {"one", "two", "three"}) {
        folder.write("file", text);
        setAside(folder.path() / "file");
    }
    EXPECT_EQ(folder.names(), (Names{"file.bad", "file.bad.2", "file.bad.3"}));
    EXPECT_EQ(folder.read("file.bad"), "one");
    EXPECT_EQ(folder.read("file.bad.2"), "two");
    EXPECT_EQ(folder.read("file.bad.3"), "three");
}

TEST(SetAside, DoesNotWriteThroughALinkOfThatName) {
    const TemporaryFolder folder;
    fs::create_symlink("nowhere", folder.path() / "file.bad");
    folder.write("file", "one");
    setAside(folder.path() / "file");
    EXPECT_EQ(folder.names(), (Names{"file.bad", "file.bad.2"}));
}

TEST(SetAside, OfNoFileDoesNothing) {
    const TemporaryFolder folder;
    setAside(folder.path() / "file");
    EXPECT_EQ(folder.names(), Names{});
}

} // namespace
