#include "unit/corners/CornerTest.h"

namespace {

using namespace std::chrono_literals;
using simulated::desktop;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr auto enteredTopLeft = "Cursor entered enabled corner topLeft";
constexpr auto enteredBottomRight = "Cursor entered enabled corner bottomRight";
constexpr auto fired = "Dwell time reached, revealing desktop";

class CornerVisit : public CornerTest {
  protected:
    CornerVisit() {
        enable({"topLeft", "bottomRight"});
        startAndForget();
    }
};

TEST_F(CornerVisit, IsLoggedAtItsFirstPollAndFiresAtTheFourthAfterIt) {
    point(bottomRight);
    poll();
    EXPECT_THAT(messages(), ElementsAre(enteredBottomRight));
    poll(3);
    EXPECT_EQ(reveals(), 0U);
    poll();
    EXPECT_EQ(reveals(), 1U);
    EXPECT_THAT(messages(), ElementsAre(enteredBottomRight, fired));
}

TEST_F(CornerVisit, IsLoggedUnderTheProgramsNameAndTheCategoryOfTheCorners) {
    point(topLeft);
    poll(5);
    for (const auto& message : desktop().log.messages) {
        EXPECT_EQ(message.subsystem, "io.github.quellbar.Quellbar");
        EXPECT_EQ(message.category, "CornerHover");
    }
    EXPECT_THAT(messages(), ElementsAre(enteredTopLeft, fired));
}

TEST_F(CornerVisit, MinimizesTheWindowsOfEveryApplicationAfterItHasLogged) {
    point(bottomRight);
    poll(4);
    forget();
    poll();
    EXPECT_THAT(desktop().calls.all(),
                ElementsAre("stringArrayForKey(hotCorners)", "mouseLocation()", "screens()",
                            "Logger::log(Dwell time reached, revealing desktop)",
                            "isProcessTrusted()", "runningApplications()", "activationPolicy(Mail)",
                            "isTerminated(Mail)", "processIdentifier(Mail)",
                            "createApplication(Mail)", "copyAttributeValue(Mail, AXWindows)",
                            "setAttributeValue(Inbox, AXMinimized, true)"));
}

TEST_F(CornerVisit, OfAQuarterOfASecondIsLoggedAndDoesNotFire) {
    point(bottomRight);
    pass(250ms);
    point(middle);
    pass(5s);
    EXPECT_THAT(messages(), ElementsAre(enteredBottomRight));
    EXPECT_EQ(reveals(), 0U);
}

TEST_F(CornerVisit, AfterAShortOneCountsFromZeroAndIsLoggedAgain) {
    point(bottomRight);
    pass(250ms);
    point(middle);
    poll();
    point(bottomRight);
    poll(4);
    EXPECT_EQ(reveals(), 0U);
    poll();
    EXPECT_THAT(messages(), ElementsAre(enteredBottomRight, enteredBottomRight, fired));
    EXPECT_EQ(reveals(), 1U);
}

TEST_F(CornerVisit, OfFiveSecondsFiresOnce) {
    point(bottomRight);
    pass(5s);
    EXPECT_THAT(messages(), ElementsAre(enteredBottomRight, fired));
    EXPECT_EQ(reveals(), 1U);
}

TEST_F(CornerVisit, FiresAgainAfterLeavingAndReturning) {
    point(bottomRight);
    pass(5s);
    point(middle);
    poll();
    forget();
    point(bottomRight);
    poll(4);
    EXPECT_EQ(reveals(), 0U);
    poll();
    EXPECT_EQ(reveals(), 1U);
    EXPECT_THAT(messages(), ElementsAre(enteredBottomRight, fired));
}

TEST_F(CornerVisit, GoesOnWhenThePointerLeavesAndReturnsBetweenTwoPolls) {
    point(bottomRight);
    pass(100ms);
    point(middle);
    pass(50ms);
    point(bottomRight);
    pass(250ms);
    EXPECT_THAT(messages(), ElementsAre(enteredBottomRight, fired));
}

TEST_F(CornerVisit, EndsWhenThePointerLeavesWithoutAnotherWord) {
    point(bottomRight);
    poll(5);
    forget();
    point(middle);
    pass(10s);
    EXPECT_THAT(messages(), IsEmpty());
    EXPECT_EQ(reveals(), 0U);
}

TEST_F(CornerVisit, IsNoneInACornerThatIsNotEnabled) {
    point(topRight);
    pass(5s);
    EXPECT_THAT(messages(), IsEmpty());
    EXPECT_EQ(reveals(), 0U);
}

TEST_F(CornerVisit, GoesOnFromOneEnabledCornerToAnother) {
    point(topLeft);
    poll(3);
    point(bottomRight);
    poll(2);
    EXPECT_THAT(messages(), ElementsAre(enteredTopLeft, fired));
    EXPECT_EQ(reveals(), 1U);
}

TEST_F(CornerVisit, ThatHasFiredDoesNotFireInTheNextEnabledCorner) {
    point(topLeft);
    poll(5);
    point(bottomRight);
    pass(5s);
    EXPECT_THAT(messages(), ElementsAre(enteredTopLeft, fired));
    EXPECT_EQ(reveals(), 1U);
}

TEST_F(CornerVisit, EndsInACornerThatIsNotEnabled) {
    point(topLeft);
    poll(3);
    point(topRight);
    poll();
    point(bottomRight);
    poll(4);
    EXPECT_EQ(reveals(), 0U);
    poll();
    EXPECT_THAT(messages(), ElementsAre(enteredTopLeft, enteredBottomRight, fired));
}

TEST_F(CornerVisit, BeginsAtTheNextPollWhenItsCornerIsEnabledUnderThePointer) {
    point(topRight);
    pass(5s);
    enable({"topRight"});
    poll();
    EXPECT_THAT(messages(), ElementsAre("Cursor entered enabled corner topRight"));
    poll(4);
    EXPECT_EQ(reveals(), 1U);
}

TEST_F(CornerVisit, EndsAtTheNextPollWhenTheLastCornerIsDisabled) {
    point(bottomRight);
    poll(4);
    enable({});
    poll();
    enable({"bottomRight"});
    poll(4);
    EXPECT_EQ(reveals(), 0U);
    EXPECT_THAT(messages(), ElementsAre(enteredBottomRight, enteredBottomRight));
}

TEST_F(CornerVisit, EndsAtTheNextPollWhenItsOwnCornerIsDisabled) {
    point(bottomRight);
    poll(4);
    enable({"topLeft"});
    poll();
    enable({"bottomRight"});
    poll(4);
    EXPECT_EQ(reveals(), 0U);
    poll();
    EXPECT_EQ(reveals(), 1U);
}

TEST_F(CornerVisit, ThatHasFiredFiresAgainAfterTheLastCornerWasDisabledForAPoll) {
    point(bottomRight);
    poll(5);
    enable({});
    poll();
    enable({"bottomRight"});
    pass(5s);
    EXPECT_EQ(reveals(), 2U);
    EXPECT_THAT(messages(), ElementsAre(enteredBottomRight, fired, enteredBottomRight, fired));
}

TEST_F(CornerVisit, EndsWhenTheScreensMoveAwayFromUnderThePointer) {
    point(bottomRight);
    poll(4);
    desktop().screens.screens = {{{{0, 0}, {2560, 1440}}}};
    pass(5s);
    EXPECT_EQ(reveals(), 0U);
    EXPECT_THAT(messages(), ElementsAre(enteredBottomRight));
}

TEST_F(CornerVisit, EndsWhenTheLastScreenIsGone) {
    point(bottomRight);
    poll(4);
    const auto screens = std::exchange(desktop().screens.screens, {});
    poll();
    desktop().screens.screens = screens;
    poll(4);
    EXPECT_EQ(reveals(), 0U);
    EXPECT_THAT(messages(), ElementsAre(enteredBottomRight, enteredBottomRight));
}

TEST_F(CornerVisit, IsForgottenByAStop) {
    point(bottomRight);
    poll(4);
    monitor.stop();
    startAndForget();
    poll(4);
    EXPECT_THAT(messages(), ElementsAre(enteredBottomRight));
    poll();
    EXPECT_THAT(messages(), ElementsAre(enteredBottomRight, fired));
}

TEST_F(CornerVisit, ThatHasFiredIsForgottenByARestart) {
    point(bottomRight);
    poll(5);
    startAndForget();
    poll(5);
    EXPECT_THAT(messages(), ElementsAre(enteredBottomRight, fired));
}

TEST_F(CornerVisit, IsForgottenByARestartWithinItsOwnFiring) {
    point(bottomRight);
    desktop().calls.during("isProcessTrusted()", [this] { monitor.start(); });
    poll(5);
    EXPECT_EQ(reveals(), 1U);
    poll(5);
    EXPECT_EQ(reveals(), 2U);
}

TEST_F(CornerVisit, WithoutTrustAsksForItAndCountsAsFired) {
    desktop().accessibility.isTrusted = false;
    point(bottomRight);
    pass(5s);
    EXPECT_EQ(desktop().accessibility.promptsShown(), 1);
    EXPECT_EQ(reveals(), 0U);
    EXPECT_THAT(messages(), ElementsAre(enteredBottomRight, fired));
}

} // namespace
