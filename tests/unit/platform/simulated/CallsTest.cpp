#include "platform/Accessibility.h"
#include "platform/MainQueue.h"
#include "platform/simulated/Desktop.h"

#include <gmock/gmock.h>

#include <thread>

namespace {

using simulated::desktop;
using testing::ElementsAre;
using testing::IsEmpty;

TEST(SimulatedCalls, AreListedInOrder) {
    (void)platform::isProcessTrusted();
    platform::isProcessTrustedWithOptions({.prompt = true});
    EXPECT_THAT(desktop().calls.all(),
                ElementsAre("isProcessTrusted()", "isProcessTrustedWithOptions(prompt)"));
}

TEST(SimulatedCalls, CanBeAskedForSomeOperationsAlone) {
    desktop().calls.record("set", {"a"});
    desktop().calls.record("setAll", {"b"});
    desktop().calls.record("get");
    desktop().calls.record("set", {"c", "d"});
    EXPECT_THAT(desktop().calls.of({"set", "get"}), ElementsAre("set(a)", "get()", "set(c, d)"));
}

TEST(SimulatedCalls, ThatAreForgottenAreNotListed) {
    desktop().calls.record("get");
    desktop().calls.clear();
    EXPECT_THAT(desktop().calls.all(), IsEmpty());
}

TEST(SimulatedCalls, AnActionRunsWithinTheCallItWaitsForBeforeTheAnswer) {
    desktop().calls.during("isProcessTrusted()", [] { desktop().accessibility.isTrusted = false; });
    EXPECT_FALSE(platform::isProcessTrusted());
}

TEST(SimulatedCalls, AnActionRunsOnceAndInNoOtherCall) {
    int runs = 0;
    desktop().calls.during("get(a)", [&] { ++runs; });
    desktop().calls.record("get", {"b"});
    EXPECT_EQ(runs, 0);
    desktop().calls.record("get", {"a"});
    desktop().calls.record("get", {"a"});
    EXPECT_EQ(runs, 1);
}

TEST(SimulatedCalls, TwoActionsForOneCallRunInTheNextTwoSuchCalls) {
    std::string runs;
    desktop().calls.during("get()", [&] { runs += 'a'; });
    desktop().calls.during("get()", [&] { runs += 'b'; });
    desktop().calls.record("get");
    EXPECT_EQ(runs, "a");
    desktop().calls.record("get");
    EXPECT_EQ(runs, "ab");
}

TEST(SimulatedCalls, AnActionMayItselfCallAndAwait) {
    desktop().calls.during("outer()", [] {
        desktop().calls.record("inner");
        desktop().calls.during("outer()", [] { desktop().calls.record("again"); });
    });
    desktop().calls.record("outer");
    desktop().calls.record("outer");
    EXPECT_THAT(desktop().calls.all(), ElementsAre("outer()", "inner()", "outer()", "again()"));
}

TEST(SimulatedCallsDeathTest, ACallOutsideTheMainThreadIsFatal) {
    (void)desktop();
    EXPECT_DEATH(std::thread([] { platform::dispatchAsyncOnMainQueue([] {}); }).join(),
                 "Fatal error: simulated desktop: dispatchAsyncOnMainQueue\\(\\) is called outside "
                 "the main thread");
}

} // namespace
