#include "platform/linux/defaults/DefaultsStore.h"

#include "AllocationCount.h"
#include "ChildProcess.h"
#include "TemporaryFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sys/syscall.h>

namespace {

using platform::DefaultsValue;
using platform::StringArray;
using platform::linux_host::DefaultsStore;

using Calls = std::vector<long>;

constexpr auto settings =
    R"({"hotCorners": ["topLeft"], "key that is longer than a short text": 1})";

/// The settings file, read once.
class DefaultsReadCost : public testing::Test {
  protected:
    DefaultsReadCost() {
        folder.write("defaults.json", settings);
        EXPECT_NE(store.valueForKey("hotCorners"), nullptr);
    }

    TemporaryFolder folder;
    DefaultsStore store{folder.path() / "defaults.json"};
};

TEST_F(DefaultsReadCost, IsOneSystemCallWhileTheFileHasNotChanged) {
    EXPECT_EQ(systemCallsOf([this] { (void)store.valueForKey("hotCorners"); }),
              Calls{SYS_newfstatat});
    EXPECT_EQ(systemCallsOf([this] { (void)store.valueForKey("missing"); }), Calls{SYS_newfstatat});
    EXPECT_EQ(systemCallsOf([this] {
                  for (int count = 0; count < 100; ++count) {
                      (void)store.valueForKey("hotCorners");
                  }
              }),
              Calls(100, SYS_newfstatat));
}

TEST_F(DefaultsReadCost, IsOneSystemCallWhileThereIsNoFile) {
    DefaultsStore onNothing(folder.path() / "nothing" / "defaults.json");
    (void)onNothing.valueForKey("hotCorners");
    EXPECT_EQ(systemCallsOf([&onNothing] { (void)onNothing.valueForKey("hotCorners"); }),
              Calls{SYS_newfstatat});
}

TEST_F(DefaultsReadCost, IsOneSystemCallWhileTheFileIsMalformed) {
    folder.write("defaults.json", "not JSON");
    (void)store.valueForKey("hotCorners");
    EXPECT_EQ(systemCallsOf([this] { (void)store.valueForKey("hotCorners"); }),
              Calls{SYS_newfstatat});
}

TEST_F(DefaultsReadCost, IsAReadingOfTheFileWhenItHasChanged) {
    folder.write("defaults.json", R"({"hotCorners": []})");
    const Calls calls = systemCallsOf([this] { (void)store.valueForKey("hotCorners"); });
    EXPECT_EQ(calls.front(), SYS_newfstatat);
    EXPECT_EQ(std::ranges::count(calls, SYS_openat), 1);
    EXPECT_EQ(std::ranges::count(calls, SYS_close), 1);
}

TEST_F(DefaultsReadCost, IsNoAllocation) {
    const StringArray* corners = nullptr;
    const std::size_t before = allocationCount();
    corners = std::get_if<StringArray>(store.valueForKey("hotCorners"));
    (void)store.valueForKey("key that is longer than a short text");
    (void)store.valueForKey("missing key that is longer than a short text");
    EXPECT_EQ(allocationCount(), before);
    EXPECT_EQ(*corners, StringArray{"topLeft"});
}

TEST_F(DefaultsReadCost, IsNoAllocationWhileThereIsNoFile) {
    DefaultsStore onNothing(folder.path() / "nothing" / "defaults.json");
    (void)onNothing.valueForKey("hotCorners");
    const std::size_t before = allocationCount();
    (void)onNothing.valueForKey("hotCorners");
    EXPECT_EQ(allocationCount(), before);
}

// The counting itself: it would notice.
TEST_F(DefaultsReadCost, OfAChangedFileAllocates) {
    folder.write("defaults.json", R"({"hotCorners": []})");
    const std::size_t before = allocationCount();
    (void)store.valueForKey("hotCorners");
    EXPECT_GT(allocationCount(), before);
}

/// Where the call stands among the calls; fails when it is not there.
std::ptrdiff_t placeOf(long call, const Calls& calls) {
    const auto place = std::ranges::find(calls, call);
    EXPECT_NE(place, calls.end()) << "no call " << call;
    return place - calls.begin();
}

TEST_F(DefaultsReadCost, AWriteLocksAndThenReadsAndSyncsBeforeItRenames) {
    const Calls calls = systemCallsOf([this] { store.setValue(true, "key"); });
    const auto locking = placeOf(SYS_flock, calls);
    const auto syncing = placeOf(SYS_fsync, calls);
    const auto renaming = placeOf(SYS_rename, calls);
    const auto lastLook = std::find(calls.begin() + locking, calls.end(), SYS_newfstatat);
    EXPECT_LT(lastLook - calls.begin(), syncing);
    EXPECT_LT(syncing, renaming);
    EXPECT_EQ(std::ranges::count(calls, SYS_rename), 1);
}

} // namespace
