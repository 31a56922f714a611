#include "unit/menubar/StatusMenuTest.h"

namespace {

using platform::Point;
using platform::Rect;
using simulated::desktop;
using testing::ElementsAre;
using testing::IsEmpty;

class KeepAwakeRowClick : public WithStatusMenu {
  protected:
    /// Lets go of the mouse button over a point of the row, without having moved the pointer there
    /// before.
    static void releaseAt(Point inRow) {
        const Rect frame = menu().frameOf(rowItem());
        row().releaseMouseButton({frame.minX() + inRow.x, frame.minY() + inRow.y});
    }
    bool togglesAt(Point inRow) const {
        item().openMenu();
        const bool before = keepAwake.isActive();
        releaseAt(inRow);
        const bool toggles = keepAwake.isActive() != before;
        EXPECT_EQ(menu().isOpen(), !toggles);
        if (menu().isOpen()) {
            menu().dismiss();
        }
        return toggles;
    }
};

TEST_F(KeepAwakeRowClick, ClosesTheMenuAndThenTogglesOnce) {
    desktop().calls.during(
        "createPowerAssertion(NoDisplaySleepAssertion, 255, Quellbar Keep Awake)",
        [] { EXPECT_FALSE(menu().isOpen()); });
    item().openMenu().click(rowItem());
    EXPECT_TRUE(keepAwake.isActive());
    EXPECT_THAT(desktop().calls.of({"cancelTracking", "createPowerAssertion"}),
                ElementsAre("cancelTracking()",
                            "createPowerAssertion(NoDisplaySleepAssertion, 255, Quellbar Keep "
                            "Awake)"));
}

TEST_F(KeepAwakeRowClick, EndsARun) {
    keepAwake.start(60);
    item().openMenu().click(rowItem());
    EXPECT_FALSE(keepAwake.isActive());
}

TEST_F(KeepAwakeRowClick, CountsAnywhereInTheRowAndNowhereElse) {
    EXPECT_TRUE(togglesAt({130, 11}));
    EXPECT_TRUE(togglesAt({0, 0}));
    EXPECT_TRUE(togglesAt({259.9, 21.9}));
    EXPECT_FALSE(togglesAt({-0.1, 11}));
    EXPECT_FALSE(togglesAt({130, -0.1}));
    EXPECT_FALSE(togglesAt({260, 11}));
    EXPECT_FALSE(togglesAt({130, 22}));
}

TEST_F(KeepAwakeRowClick, WhileHighlightedCountsWhereverTheButtonIsLetGo) {
    item().openMenu().pointAt(rowItem());
    releaseAt({-100, -100});
    EXPECT_TRUE(keepAwake.isActive());
    EXPECT_FALSE(menu().isOpen());
}

TEST_F(KeepAwakeRowClick, LeavesTheHighlightUntilThePointerHasComeAndGoneAgain) {
    item().openMenu().click(rowItem());
    item().openMenu();
    EXPECT_EQ(rowText().textColor(), platform::Color::white);
    menu().pointAt(rowItem());
    menu().pointElsewhere();
    EXPECT_EQ(rowText().textColor(), platform::Color::systemRed);
}

TEST_F(KeepAwakeRowClick, OnceTheControllerIsGoneClosesTheMenuAndNoMore) {
    const auto kept =
        std::static_pointer_cast<KeepAwakeMenuItemView>(row().self().shared_from_this());
    controller.reset();
    kept->onClick();
    EXPECT_FALSE(keepAwake.isActive());
}

/// A row that nobody has put into a menu.
class LoneKeepAwakeRow : public StatusMenuTest {
  protected:
    LoneKeepAwakeRow() {
        window->contentView()->addSubview(view);
        window->makeKeyAndOrderFront();
    }
    void click() { simulated::stateOf(*view).releaseMouseButton({130, 11}); }

    std::shared_ptr<KeepAwakeMenuItemView> view =
        std::make_shared<KeepAwakeMenuItemView>(Rect{{0, 0}, {260, 22}});
    std::unique_ptr<platform::Window> window =
        std::make_unique<platform::Window>(platform::Size{300, 100}, "Window");
};

TEST_F(LoneKeepAwakeRow, ReportsItsClickWithoutAMenuToClose) {
    int clicks = 0;
    view->onClick = [&] { ++clicks; };
    click();
    EXPECT_EQ(clicks, 1);
    EXPECT_THAT(desktop().calls.of({"cancelTracking"}), IsEmpty());
}

TEST_F(LoneKeepAwakeRow, MayHaveNobodyToReportTo) {
    EXPECT_FALSE(view->onClick);
    click();
    EXPECT_THAT(desktop().calls.of({"cancelTracking"}), IsEmpty());
}

} // namespace
