#include "platform/linux/files/FileIdentity.h"

#include <gtest/gtest.h>

#include <ctime>
#include <limits>

namespace {

using platform::linux_host::FileIdentity;

/// A file that was changed so many seconds after now.
struct stat changedIn(double seconds) {
    timespec now{};
    ::clock_gettime(CLOCK_REALTIME, &now);
    const auto nanoseconds = static_cast<long long>(seconds * 1e9) + now.tv_nsec;
    struct stat status {};
    status.st_mtim.tv_sec = now.tv_sec + (nanoseconds >= 0 ? 0 : -1) + nanoseconds / 1'000'000'000;
    status.st_mtim.tv_nsec = (nanoseconds % 1'000'000'000 + 1'000'000'000) % 1'000'000'000;
    return status;
}

TEST(FileIdentity, DiffersWithEveryPartOfIt) {
    const struct stat original = changedIn(0);
    EXPECT_EQ(FileIdentity(original), FileIdentity(original));
    struct stat other = original;
    other.st_dev += 1;
    EXPECT_NE(FileIdentity(original), FileIdentity(other));
    other = original;
    other.st_ino += 1;
    EXPECT_NE(FileIdentity(original), FileIdentity(other));
    other = original;
    other.st_size += 1;
    EXPECT_NE(FileIdentity(original), FileIdentity(other));
    other = original;
    other.st_mtim.tv_sec += 1;
    EXPECT_NE(FileIdentity(original), FileIdentity(other));
    other = original;
    other.st_mtim.tv_nsec += 1;
    EXPECT_NE(FileIdentity(original), FileIdentity(other));
}

TEST(FileIdentity, OfAFileThatHasJustChangedIsNotSettled) {
    for (int attempt = 0; attempt < 100; ++attempt) {
        if (!FileIdentity(changedIn(0)).isSettled()) {
            return; // a busy machine may pause between the two clock readings, but not every time
        }
    }
    FAIL() << "always settled";
}

TEST(FileIdentity, SettlesWithTime) {
    EXPECT_TRUE(FileIdentity(changedIn(-0.1)).isSettled());
    EXPECT_TRUE(FileIdentity(changedIn(-3600)).isSettled());
}

TEST(FileIdentity, OfAFileFromTheFutureIsSettled) {
    EXPECT_TRUE(FileIdentity(changedIn(3600)).isSettled());
}

TEST(FileIdentity, TakesAnyTimeThatAFileClaims) {
    struct stat status {};
    status.st_mtim.tv_sec = std::numeric_limits<time_t>::min();
    EXPECT_TRUE(FileIdentity(status).isSettled());
    status.st_mtim.tv_sec = std::numeric_limits<time_t>::max();
    EXPECT_TRUE(FileIdentity(status).isSettled());
}

} // namespace
