#include "settings/Preferences.h"
#include "unit/keepawake/KeepAwakeTest.h"

#include <limits>

namespace {

using namespace std::chrono_literals;
using platform::DefaultsValue;
using simulated::desktop;
using testing::ElementsAre;
using testing::IsEmpty;
using namespace std::string_literals;

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

class KeepAwakeDuration : public KeepAwakeTest {
  protected:
    /// The reports of a run for which the setting is `value`, and of its first second.
    const std::vector<Report>& reportsWith(DefaultsValue value) {
        desktop().userDefaults.stored[Preferences::keepAwakeDurationSecondsKey] = std::move(value);
        manager.start();
        pass(1s);
        return reports();
    }
};

TEST_F(KeepAwakeDuration, OfZeroIsARunThatTheFirstTickEnds) {
    EXPECT_THAT(reportsWith(0.0), ElementsAre(inactive, running(0), inactive));
    EXPECT_THAT(desktop().calls.of({"createPowerAssertion", "releasePowerAssertion"}),
                ElementsAre(testing::_, "releasePowerAssertion(1)"));
}

TEST_F(KeepAwakeDuration, OfZeroHoldsTheDisplayUntilThatTick) {
    manager.start(0);
    pass(999ms);
    EXPECT_TRUE(manager.isActive());
    EXPECT_TRUE(displayStaysAwake());
    pass(1ms);
    EXPECT_FALSE(displayStaysAwake());
}

TEST_F(KeepAwakeDuration, BelowZeroIsARunThatTheFirstTickEnds) {
    EXPECT_THAT(reportsWith(-7200.0), ElementsAre(inactive, running(0), inactive));
}

TEST_F(KeepAwakeDuration, InTextIsTheNumberThatTheTextBeginsWith) {
    EXPECT_THAT(reportsWith("90 minutes"s), ElementsAre(inactive, running(90), running(89)));
}

TEST_F(KeepAwakeDuration, InTextThatIsNoNumberIsZero) {
    EXPECT_THAT(reportsWith("two hours"s), ElementsAre(inactive, running(0), inactive));
}

TEST_F(KeepAwakeDuration, ThatIsNeitherNumberNorTextIsZero) {
    EXPECT_THAT(reportsWith(platform::StringArray{"7200"}),
                ElementsAre(inactive, running(0), inactive));
}

TEST_F(KeepAwakeDuration, ThatIsADateIsZero) {
    desktop().userDefaults.storedOtherwise.insert(Preferences::keepAwakeDurationSecondsKey);
    manager.start();
    EXPECT_THAT(reports(), ElementsAre(inactive, running(0)));
}

TEST_F(KeepAwakeDuration, ThatIsNotStoredIsTwoHours) {
    manager.start();
    EXPECT_THAT(reports(), ElementsAre(inactive, running(7200)));
}

TEST_F(KeepAwakeDuration, ThatCannotBeReadIsTwoHours) {
    desktop().userDefaults.stored[Preferences::keepAwakeDurationSecondsKey] = 60.0;
    desktop().userDefaults.isReadable = false;
    manager.start();
    EXPECT_THAT(reports(), ElementsAre(inactive, running(7200)));
}

TEST_F(KeepAwakeDuration, IsNotRounded) {
    EXPECT_THAT(reportsWith(1.375), ElementsAre(inactive, running(1.375), running(0.375)));
}

TEST_F(KeepAwakeDuration, WithoutEndLastsUntilItIsStopped) {
    EXPECT_THAT(reportsWith(infinity), ElementsAre(inactive, running(infinity), running(infinity)));
    desktop().clock.sleep(24h * 365);
    pass(10min);
    EXPECT_TRUE(displayStaysAwake());
    forget();
    manager.stop();
    EXPECT_THAT(reports(), ElementsAre(inactive));
}

TEST_F(KeepAwakeDuration, WithoutEndStaysWithoutEndWhenItIsShortened) {
    manager.start(infinity);
    forget();
    manager.adjust(-1800);
    EXPECT_THAT(reports(), ElementsAre(running(infinity)));
}

TEST_F(KeepAwakeDuration, InTextThatIsOutOfRangeHasNoEnd) {
    EXPECT_THAT(reportsWith("1e999"s), ElementsAre(inactive, running(infinity), running(infinity)));
}

TEST_F(KeepAwakeDuration, BeforeAllTimeIsARunThatTheFirstTickEnds) {
    EXPECT_THAT(reportsWith(-infinity), ElementsAre(inactive, running(0), inactive));
}

TEST_F(KeepAwakeDuration, ThatIsNoNumberIsARunThatTheFirstTickEnds) {
    EXPECT_THAT(reportsWith(notANumber), ElementsAre(inactive, running(0), inactive));
}

TEST_F(KeepAwakeDuration, BeyondAllMeasureIsARunLikeAnyOther) {
    constexpr double largest = std::numeric_limits<double>::max();
    EXPECT_THAT(reportsWith(largest), ElementsAre(inactive, running(largest), running(largest)));
    manager.adjust(-1800);
    EXPECT_TRUE(manager.isActive());
    manager.stop();
    EXPECT_FALSE(displayStaysAwake());
}

TEST_F(KeepAwakeDuration, ThatIsGivenGoesBeforeTheSettingAlsoWhenItIsZero) {
    manager.start(0);
    EXPECT_THAT(desktop().calls.of({"doubleForKey"}), IsEmpty());
    EXPECT_THAT(reports(), ElementsAre(inactive, running(0)));
}

TEST_F(KeepAwakeDuration, ThatChangesDuringARunCountsFromTheNextOne) {
    EXPECT_THAT(reportsWith(60.0), ElementsAre(inactive, running(60), running(59)));
    desktop().userDefaults.stored[Preferences::keepAwakeDurationSecondsKey] = 30.0;
    forget();
    pass(1s);
    EXPECT_THAT(reports(), ElementsAre(running(58)));
    forget();
    manager.start();
    EXPECT_THAT(reports(), ElementsAre(inactive, running(30)));
}

} // namespace
