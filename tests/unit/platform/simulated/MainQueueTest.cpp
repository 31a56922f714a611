#include "platform/MainQueue.h"
#include "platform/simulated/Desktop.h"

#include <gmock/gmock.h>

namespace {

using simulated::desktop;
using testing::ElementsAre;

TEST(SimulatedMainQueue, APostedTaskWaitsForATurn) {
    int runs = 0;
    platform::dispatchAsyncOnMainQueue([&] { ++runs; });
    EXPECT_EQ(runs, 0);
    EXPECT_EQ(desktop().mainQueue.waiting(), 1U);
    desktop().mainQueue.turn();
    EXPECT_EQ(runs, 1);
    desktop().mainQueue.turn();
    EXPECT_EQ(runs, 1);
}

TEST(SimulatedMainQueue, TasksRunInTheOrderOfPosting) {
    std::string runs;
    platform::dispatchAsyncOnMainQueue([&] { runs += 'a'; });
    desktop().mainQueue.post([&] { runs += 'b'; });
    platform::dispatchAsyncOnMainQueue([&] { runs += 'c'; });
    desktop().mainQueue.turn();
    EXPECT_EQ(runs, "abc");
}

TEST(SimulatedMainQueue, WhatATaskPostsWaitsForTheNextTurn) {
    std::string runs;
    desktop().mainQueue.post([&] {
        runs += 'a';
        desktop().mainQueue.post([&] { runs += 'b'; });
    });
    desktop().mainQueue.turn();
    EXPECT_EQ(runs, "a");
    desktop().mainQueue.turn();
    EXPECT_EQ(runs, "ab");
}

TEST(SimulatedMainQueue, TurningUntilIdleRunsWhatTasksPostToo) {
    std::string runs;
    desktop().mainQueue.post([&] {
        runs += 'a';
        desktop().mainQueue.post([&] { runs += 'b'; });
    });
    desktop().mainQueue.turnUntilIdle();
    EXPECT_EQ(runs, "ab");
    EXPECT_EQ(desktop().mainQueue.waiting(), 0U);
}

TEST(SimulatedMainQueue, ThatIsClosedRunsNothingMore) {
    std::string runs;
    desktop().mainQueue.post([&] {
        runs += 'a';
        desktop().mainQueue.close();
    });
    desktop().mainQueue.post([&] { runs += 'b'; });
    desktop().mainQueue.turn();
    desktop().mainQueue.post([&] { runs += 'c'; });
    desktop().mainQueue.turnUntilIdle();
    EXPECT_EQ(runs, "a");
}

TEST(SimulatedMainQueue, OnlyTheProgramsPostsAreCalls) {
    desktop().mainQueue.post([] {});
    platform::dispatchAsyncOnMainQueue([] {});
    EXPECT_THAT(desktop().calls.all(), ElementsAre("dispatchAsyncOnMainQueue()"));
}

TEST(SimulatedMainQueueDeathTest, AnEmptyTaskIsFatal) {
    EXPECT_DEATH(platform::dispatchAsyncOnMainQueue({}), "an empty task is posted");
}

TEST(SimulatedMainQueueDeathTest, ATaskThatTurnsTheQueueIsFatal) {
    desktop().mainQueue.post([] { desktop().mainQueue.turn(); });
    EXPECT_DEATH(desktop().mainQueue.turn(), "a task turns the main queue that runs it");
}

TEST(SimulatedMainQueueDeathTest, AQueueThatNeverBecomesIdleIsFatal) {
    std::function<void()> again = [&] { desktop().mainQueue.post(again); };
    desktop().mainQueue.post(again);
    EXPECT_DEATH(desktop().mainQueue.turnUntilIdle(), "the main queue never becomes idle");
}

} // namespace
