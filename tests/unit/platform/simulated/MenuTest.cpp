#include "platform/Menu.h"

#include "platform/StatusItem.h"
#include "platform/Timer.h"
#include "platform/simulated/Desktop.h"

#include <gmock/gmock.h>

namespace {

using namespace std::chrono_literals;
using platform::ControlState;
using platform::MenuItem;
using simulated::desktop;
using simulated::stateOf;
using testing::ElementsAre;
using testing::IsEmpty;

using Notes = std::vector<std::string>;

class Delegate final : public platform::MenuDelegate {
  public:
    void menuWillOpen(platform::Menu& menu) override { onOpening(menu); }

    std::function<void(platform::Menu&)> onOpening = [](platform::Menu&) {};
};

/// Notes what the desktop tells it.
class NotingView final : public platform::View {
  public:
    NotingView(std::string viewName, Notes& viewNotes)
        : View({{0, 0}, {260, 30}}), name(std::move(viewName)), notes(viewNotes) {}

    void viewDidMoveToWindow() override {
        notes.push_back(name + (window() == nullptr ? " out of a window" : " into a window"));
    }
    void updateTrackingAreas() override {
        if (area) {
            removeTrackingArea(*area);
        }
        area = addTrackingArea(bounds(),
                               platform::TrackingAreaOptions::mouseEnteredAndExitedActiveAlways);
        notes.push_back(name + " tracks");
    }
    void mouseEntered(const platform::Event&) override { notes.push_back(name + " entered"); }
    void mouseExited(const platform::Event&) override { notes.push_back(name + " left"); }
    void mouseUp(const platform::Event& event) override {
        releasedAt = convertFromWindow(event.locationInWindow);
        notes.push_back(name + " clicked");
    }

    const std::string name;
    Notes& notes;
    std::optional<platform::TrackingArea> area;
    platform::Point releasedAt;
};

/// A status item with a menu: Copy, a view, a separator, and More with Less in it.
class SimulatedMenu : public testing::Test {
  protected:
    SimulatedMenu() {
        menu->setDelegate(delegate);
        submenu->addItem(noting("Less", "l"));
        const auto more = std::make_shared<MenuItem>("More");
        more->setSubmenu(submenu);
        const auto viewItem = std::make_shared<MenuItem>("");
        viewItem->setView(view);
        menu->addItem(noting("Copy", "c"));
        menu->addItem(viewItem);
        menu->addItem(MenuItem::separatorItem());
        menu->addItem(more);
        statusItem->setMenu(menu);
    }

    std::shared_ptr<MenuItem> noting(const std::string& title, std::string_view key = {}) {
        return std::make_shared<MenuItem>(
            title, [this](MenuItem& sender) { notes.push_back(sender.title() + " runs"); }, key);
    }
    static simulated::Menu& open() { return desktop().statusBar.item().openMenu(); }
    [[nodiscard]] simulated::Menu& shown() const { return stateOf(*menu); }

    Notes notes;
    std::shared_ptr<Delegate> delegate = std::make_shared<Delegate>();
    std::shared_ptr<NotingView> view = std::make_shared<NotingView>("view", notes);
    std::shared_ptr<platform::Menu> submenu = std::make_shared<platform::Menu>();
    std::shared_ptr<platform::Menu> menu = std::make_shared<platform::Menu>();
    std::shared_ptr<platform::StatusItem> statusItem =
        platform::StatusItem::inSystemStatusBar(platform::StatusItem::variableLength);
};

using SimulatedMenuDeathTest = SimulatedMenu;

TEST_F(SimulatedMenu, TellsItsDelegateAndThenItsViewsThatItOpens) {
    delegate->onOpening = [&](platform::Menu& opening) {
        EXPECT_EQ(&opening, menu.get());
        EXPECT_EQ(view->window(), nullptr);
        notes.emplace_back("will open");
    };
    open();
    EXPECT_THAT(notes, ElementsAre("will open", "view into a window", "view tracks"));
    EXPECT_TRUE(shown().isOpen());
}

TEST_F(SimulatedMenu, TellsItsViewsThatItClosesAndNothingOfThePointer) {
    open().pointAt(*shown().items().at(1));
    notes.clear();
    shown().dismiss();
    EXPECT_THAT(notes, ElementsAre("view out of a window"));
    EXPECT_FALSE(shown().isOpen());
}

TEST_F(SimulatedMenu, OpensWithoutADelegateOrOnceThatIsGone) {
    delegate.reset();
    open();
    EXPECT_TRUE(shown().isOpen());
}

TEST_F(SimulatedMenu, ThatItsDelegateCancelsDoesNotOpen) {
    delegate->onOpening = [](platform::Menu& opening) { opening.cancelTracking(); };
    open();
    EXPECT_FALSE(shown().isOpen());
    EXPECT_THAT(notes, IsEmpty());
}

TEST_F(SimulatedMenu, ClosesAndThenRunsTheItemThatIsClicked) {
    const auto check =
        std::make_shared<MenuItem>("Check", [&](MenuItem&) { EXPECT_FALSE(shown().isOpen()); });
    menu->addItem(check);
    open().click("Check");
    open().click("Copy");
    EXPECT_THAT(notes, testing::Contains("Copy runs"));
}

TEST_F(SimulatedMenu, StaysOpenWhenASeparatorIsClicked) {
    open().click(*shown().items().at(2));
    EXPECT_TRUE(shown().isOpen());
}

TEST_F(SimulatedMenu, OpensASubmenuAndClosesAllOfThemForAnItemInIt) {
    simulated::Menu& below = open().openSubmenu("More");
    EXPECT_TRUE(below.isOpen());
    EXPECT_EQ(desktop().openMenus.all().size(), 2U);
    below.click("Less");
    EXPECT_FALSE(below.isOpen());
    EXPECT_FALSE(shown().isOpen());
    EXPECT_EQ(notes.back(), "Less runs");
}

TEST_F(SimulatedMenu, CancelledFromASubmenuClosesToo) {
    open().openSubmenu("More");
    submenu->cancelTracking();
    EXPECT_FALSE(shown().isOpen());
}

TEST_F(SimulatedMenu, CancelledWhileClosedStaysAsItIs) {
    menu->cancelTracking();
    EXPECT_FALSE(shown().isOpen());
}

TEST_F(SimulatedMenu, HasOneSubmenuOpenAtATime) {
    const auto another = std::make_shared<platform::Menu>();
    const auto item = std::make_shared<MenuItem>("Another");
    item->setSubmenu(another);
    menu->addItem(item);
    open().openSubmenu("More");
    shown().openSubmenu("Another");
    EXPECT_FALSE(stateOf(*submenu).isOpen());
    EXPECT_TRUE(stateOf(*another).isOpen());
}

TEST_F(SimulatedMenu, TracksWhileItIsOpen) {
    int fired = 0;
    const auto timer = platform::Timer::scheduledRepeatingTimer(1s, [&] { ++fired; });
    open();
    desktop().runLoop.run(5s);
    EXPECT_EQ(fired, 0);
    shown().dismiss();
    desktop().runLoop.run(0s);
    EXPECT_EQ(fired, 1);
}

TEST_F(SimulatedMenu, TellsAViewOfThePointersComingAndGoing) {
    open();
    notes.clear();
    shown().pointAt(*shown().items().at(1));
    shown().pointAt(*shown().items().at(1));
    shown().pointAt(*shown().items().at(0));
    shown().pointAt(*shown().items().at(1));
    shown().pointElsewhere();
    EXPECT_THAT(notes, ElementsAre("view entered", "view left", "view entered", "view left"));
}

TEST_F(SimulatedMenu, TellsAViewOfAClickInItsOwnCoordinatesAndStaysOpen) {
    open().click(*shown().items().at(1));
    EXPECT_EQ(notes.back(), "view clicked");
    EXPECT_EQ(view->releasedAt, (platform::Point{130, 15}));
    EXPECT_TRUE(shown().isOpen());
}

TEST_F(SimulatedMenu, LaysItsItemsOutFromTopToBottom) {
    open();
    const auto items = shown().items();
    EXPECT_EQ(shown().frameOf(*items.at(3)), (platform::Rect{{0, 5}, {260, 22}}));
    EXPECT_EQ(shown().frameOf(*items.at(2)), (platform::Rect{{0, 27}, {260, 11}}));
    EXPECT_EQ(shown().frameOf(*items.at(1)), (platform::Rect{{0, 38}, {260, 30}}));
    EXPECT_EQ(shown().frameOf(*items.at(0)), (platform::Rect{{0, 68}, {260, 22}}));
}

TEST_F(SimulatedMenu, EnablesOfItselfOnlyWhatDoesSomething) {
    menu->addItem(std::make_shared<MenuItem>("Idle"));
    const auto items = shown().items();
    EXPECT_TRUE(items.at(0)->isEnabled());
    EXPECT_FALSE(items.at(1)->isEnabled());
    EXPECT_TRUE(items.at(3)->isEnabled());
    EXPECT_FALSE(shown().item("Idle").isEnabled());
    menu->setAutoenablesItems(false);
    EXPECT_TRUE(shown().item("Idle").isEnabled());
    EXPECT_FALSE(items.at(2)->isEnabled());
}

TEST_F(SimulatedMenu, LeavesAnItemAloneThatIsNotEnabled) {
    menu->addItem(std::make_shared<MenuItem>("Idle"));
    open().click("Idle");
    EXPECT_TRUE(shown().isOpen());
}

TEST_F(SimulatedMenu, FindsTheItemOfAKeyAlsoInASubmenu) {
    open().pressKeyEquivalent("l");
    EXPECT_EQ(notes.back(), "Less runs");
    EXPECT_FALSE(shown().isOpen());
    open().pressKeyEquivalent("c");
    EXPECT_EQ(notes.back(), "Copy runs");
}

TEST_F(SimulatedMenu, StaysOpenForAKeyOfNoItem) {
    open().pressKeyEquivalent("x");
    shown().pressKeyEquivalent("");
    EXPECT_TRUE(shown().isOpen());
}

TEST_F(SimulatedMenu, IsTheMenuOfItsItems) {
    const auto item = std::make_shared<MenuItem>("Item");
    EXPECT_EQ(item->menu(), nullptr);
    menu->addItem(item);
    EXPECT_EQ(item->menu(), menu.get());
    statusItem.reset();
    menu.reset();
    EXPECT_EQ(item->menu(), nullptr);
}

TEST_F(SimulatedMenu, KnowsTheItemThatAViewFills) {
    EXPECT_EQ(view->enclosingMenuItem(), &shown().items().at(1)->self());
    const auto inner = std::make_shared<platform::View>(platform::Rect{});
    view->addSubview(inner);
    EXPECT_EQ(inner->enclosingMenuItem(), view->enclosingMenuItem());
    EXPECT_EQ(platform::View(platform::Rect{}).enclosingMenuItem(), nullptr);
}

TEST_F(SimulatedMenu, RunsAnItemThatIsDroppedWhileItRuns) {
    auto own = std::make_shared<platform::Menu>();
    own->addItem(std::make_shared<MenuItem>("Drop", [&](MenuItem& sender) {
        statusItem->setMenu(menu);
        own.reset();
        EXPECT_EQ(sender.title(), "Drop");
    }));
    statusItem->setMenu(own);
    open().click("Drop");
    EXPECT_EQ(own, nullptr);
}

TEST_F(SimulatedMenu, ClosesWithItsStatusItem) {
    open();
    statusItem.reset();
    EXPECT_FALSE(shown().isOpen());
    EXPECT_THAT(desktop().statusBar.items(), IsEmpty());
}

TEST_F(SimulatedMenu, RemembersTitleStateAndWhatItemsStandFor) {
    MenuItem item("Title");
    item.setTitle("Another");
    item.setState(ControlState::mixed);
    item.setRepresentedObject(7);
    EXPECT_EQ(item.title(), "Another");
    EXPECT_EQ(item.state(), ControlState::mixed);
    EXPECT_EQ(std::any_cast<int>(item.representedObject()), 7);
}

TEST_F(SimulatedMenuDeathTest, UsedAsNoMenuCanBeIsMisuse) {
    EXPECT_DEATH(shown().click("Copy"), "the user finds the menu closed");
    EXPECT_DEATH(shown().dismiss(), "the user finds the menu closed");
    EXPECT_DEATH(shown().pressKeyEquivalent("c"), "the user finds the menu closed");
    EXPECT_DEATH(static_cast<void>(shown().item("Paste")),
                 "there is no item \"Paste\" in the menu");
    EXPECT_DEATH(menu->addItem(nullptr), "an item is added to a menu that is none");
    EXPECT_DEATH(submenu->addItem(shown().items().at(0)->self().shared_from_this()),
                 "or is in a menu already");
    open();
    EXPECT_DEATH(open(), "the user opens a menu while another one is open");
    EXPECT_DEATH(shown().openSubmenu("Copy"), "the item \"Copy\" opens no menu");
    EXPECT_DEATH(shown().items().at(0)->self().setView(nullptr),
                 "an item changes its kind while its menu is open");
}

TEST_F(SimulatedMenuDeathTest, FilledWithAViewThatHasAPlaceIsMisuse) {
    EXPECT_DEATH(MenuItem("Another").setView(view), "that has its place already");
}

} // namespace
