#include "contract/World.h"
#include "platform/MainQueue.h"

#include <thread>

namespace {

class MainQueueContract : public contract::ProgramTest {
  protected:
    [[nodiscard]] bool turnUntilRuns(std::size_t count) {
        return world_->turnUntil([&] { return runs_.size() >= count; });
    }

    std::string runs_;
};

TEST_F(MainQueueContract, ATaskNeverRunsWithinTheCallThatPostsIt) {
    platform::dispatchAsyncOnMainQueue([&] { runs_ += 'a'; });
    EXPECT_EQ(runs_, "");
    EXPECT_TRUE(turnUntilRuns(1));
}

TEST_F(MainQueueContract, TasksRunOnceEachInTheOrderOfPosting) {
    for (const char name : {'a', 'b', 'c', 'd'}) {
        platform::dispatchAsyncOnMainQueue([this, name] { runs_ += name; });
    }
    EXPECT_TRUE(turnUntilRuns(4));
    platform::dispatchAsyncOnMainQueue([&] { runs_ += 'e'; });
    EXPECT_TRUE(turnUntilRuns(5));
    EXPECT_EQ(runs_, "abcde");
}

TEST_F(MainQueueContract, WhatATaskPostsRunsAfterIt) {
    platform::dispatchAsyncOnMainQueue([&] {
        platform::dispatchAsyncOnMainQueue([&] { runs_ += 'c'; });
        runs_ += 'a';
    });
    platform::dispatchAsyncOnMainQueue([&] { runs_ += 'b'; });
    EXPECT_TRUE(turnUntilRuns(3));
    EXPECT_EQ(runs_, "abc");
}

TEST_F(MainQueueContract, TasksRunOnTheMainThread) {
    std::thread::id thread;
    platform::dispatchAsyncOnMainQueue([&] { thread = std::this_thread::get_id(); });
    EXPECT_TRUE(world_->turnUntil([&] { return thread != std::thread::id(); }));
    EXPECT_EQ(thread, std::this_thread::get_id());
}

TEST_F(MainQueueContract, ATaskIsLetGoOfAfterItHasRun) {
    auto kept = std::make_shared<int>();
    const std::weak_ptr<int> watched = kept;
    platform::dispatchAsyncOnMainQueue([owned = std::move(kept)] {});
    EXPECT_FALSE(watched.expired());
    EXPECT_TRUE(world_->turnUntil([&] { return watched.expired(); }));
}

} // namespace
