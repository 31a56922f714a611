#include "platform/linux/files/FolderLock.h"

#include "ChildProcess.h"
#include "TemporaryFolder.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/file.h>

namespace {

using platform::linux_host::FileDescriptor;
using platform::linux_host::FolderLock;

bool isLocked(const std::filesystem::path& folder) {
    const FileDescriptor descriptor(::open(folder.c_str(), O_RDONLY | O_CLOEXEC));
    return ::flock(descriptor.get(), LOCK_EX | LOCK_NB) != 0;
}

TEST(FolderLock, IsHeldForAsLongAsItLives) {
    const TemporaryFolder folder;
    {
        const FolderLock lock(folder.path());
        EXPECT_TRUE(isLocked(folder.path()));
    }
    EXPECT_FALSE(isLocked(folder.path()));
}

TEST(FolderLock, EndsWithTheProcess) {
    const TemporaryFolder folder;
    inChild([&folder] {
        new FolderLock(folder.path());
        EXPECT_TRUE(isLocked(folder.path()));
    });
    EXPECT_FALSE(isLocked(folder.path()));
}

// Both would hang here for ever: the test's time limit is what notices.
TEST(FolderLock, ThatSomebodyKeepsIsNotWaitedForForEver) {
    const TemporaryFolder folder;
    const FolderLock first(folder.path());
    const FolderLock second(folder.path());
    EXPECT_TRUE(isLocked(folder.path()));
}

TEST(FolderLock, OfNoFolderIsNoLock) {
    const TemporaryFolder folder;
    folder.write("file", "");
    const FolderLock onNothing(folder.path() / "nothing");
    const FolderLock onFile(folder.path() / "file");
    EXPECT_FALSE(isLocked(folder.path() / "file"));
}

} // namespace
