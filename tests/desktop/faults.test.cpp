// A desktop that says wrong things: about windows that are gone, in the wrong form, or without end.
#include "tests/desktop/Session.h"
#include "tests/desktop/support/FakeWindowManager.h"
#include "tests/desktop/support/MinimizeRequests.h"

#include <gtest/gtest.h>

#include <array>
#include <set>

namespace {

using namespace desktop;

class FaultyManager : public testing::Test {
  protected:
    /// The windows that a press asks the manager to minimize.
    std::set<xcb_window_t> askedFor() {
        const std::size_t before = requests.soFar().size();
        session.press(defaultShortcut);
        const auto& all = requests.soFar();
        return {all.begin() + static_cast<std::ptrdiff_t>(before), all.end()};
    }

    Session session{WindowManager::none};
    FakeWindowManager manager{session.desktop.display()};
    MinimizeRequests requests{session.desktop.display()};
};

class Faults : public FaultyManager {
  protected:
    void SetUp() override { session.launch(); }
};

TEST_F(Faults, TheManagerIsAskedForTheWindowsThatItLists) {
    const auto windows = session.application.open(3);
    manager.list(std::array{windows[0], windows[2]});
    EXPECT_EQ(askedFor(), (std::set{windows[0], windows[2]}));
}

TEST_F(Faults, EachOfAThousandWindowsIsAskedForOnce) {
    const auto windows = session.application.open(1000);
    manager.list(windows);
    EXPECT_EQ(askedFor(), std::set(windows.begin(), windows.end()));
    EXPECT_EQ(requests.soFar().size(), windows.size());
}

TEST_F(Faults, WindowsThatAreGoneDoNotHoldUpTheOthers) {
    const auto windows = session.application.open(3);
    manager.list(windows);
    session.application.destroy({windows[1]});
    const auto asked = askedFor();
    EXPECT_TRUE(asked.contains(windows[0]));
    EXPECT_TRUE(asked.contains(windows[2]));
}

TEST_F(Faults, NumbersThatAreNoWindowsDoNotHoldUpTheOthers) {
    const auto window = session.application.open();
    const std::array<xcb_window_t, 8> listed{
        0, 1, window, manager.display().root(), 0xFFFFFFFF, 0x1FFFFFFF, 7, window};
    manager.list(listed);
    EXPECT_TRUE(askedFor().contains(window));
    EXPECT_TRUE(askedFor().contains(window));
}

TEST_F(Faults, AListOfAHundredThousandDeadWindowsIsGoneThrough) {
    std::vector<xcb_window_t> listed(100'000, 0x1FFFFFFF);
    listed.push_back(session.application.open());
    manager.list(listed);
    EXPECT_TRUE(askedFor().contains(listed.back()));
}

TEST_F(Faults, AListThatIsNoListOfWindowsReadsAsNone) {
    const auto window = session.application.open();
    const auto& display = manager.display();
    for (const auto* const list : {"_NET_CLIENT_LIST", "_NET_CLIENT_LIST_STACKING"}) {
        display.setText(display.root(), list, "no windows here");
    }
    display.sync();
    EXPECT_TRUE(askedFor().empty());
    manager.list({&window, 1});
    EXPECT_TRUE(askedFor().contains(window));
}

TEST_F(Faults, AWindowWhosePropertiesAreNonsenseIsAskedForLikeAnyOther) {
    const auto windows = session.application.open(2);
    manager.list(windows);
    const auto& display = manager.display();
    const std::vector<std::uint32_t> nonsense(50'000, 0xDEADBEEF);
    for (const auto* const property :
         {"_NET_WM_WINDOW_TYPE", "_NET_WM_STATE", "_NET_WM_ALLOWED_ACTIONS"}) {
        display.setText(windows[0], property, "nonsense");
        display.setProperty(windows[1], property, XCB_ATOM_STRING, nonsense);
    }
    for (const auto* const property : {"_NET_WM_PID", "WM_CLIENT_MACHINE"}) {
        display.setProperty(windows[0], property, XCB_ATOM_CARDINAL, nonsense);
        display.setText(windows[1], property, std::string(50'000, '\xff'));
    }
    display.sync();
    EXPECT_EQ(askedFor(), std::set(windows.begin(), windows.end()));
}

TEST_F(Faults, AWindowWhoseManagerAllowsEverythingButMinimizingIsNotAskedFor) {
    const auto windows = session.application.open(2);
    manager.list(windows);
    const auto& display = manager.display();
    const std::array allowed{display.atom("_NET_WM_ACTION_MOVE"),
                             display.atom("_NET_WM_ACTION_CLOSE")};
    display.setProperty(windows[0], "_NET_WM_ALLOWED_ACTIONS", XCB_ATOM_ATOM, allowed);
    display.sync();
    EXPECT_EQ(askedFor(), std::set{windows[1]});
}

TEST_F(FaultyManager, WhoseWindowDoesNotNameItselfIsNone) {
    const auto window = session.application.open();
    manager.list({&window, 1});
    const auto& display = manager.display();
    const xcb_window_t other = display.root();
    display.setProperty(manager.checkWindow(), "_NET_SUPPORTING_WM_CHECK", XCB_ATOM_WINDOW,
                        {&other, 1});
    display.sync();
    session.launch();
    EXPECT_TRUE(askedFor().empty());
}

TEST_F(FaultyManager, ThatKeepsNoListIsNone) {
    const auto window = session.application.open();
    manager.list({&window, 1});
    const auto& display = manager.display();
    display.setProperty(display.root(), "_NET_SUPPORTED", XCB_ATOM_ATOM, {});
    display.sync();
    session.launch();
    EXPECT_TRUE(askedFor().empty());
}

} // namespace
